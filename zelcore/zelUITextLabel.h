#pragma once

#include "zelUIItem.h"
#include "zelUITextHandler.h"
#include "zelUITypes.h"

class ZelDomNode;
class ZelUIVarText;

/// A prompt, or a text that the module writes.
class ZELCORE_EXPORT ZelUITextLabel : public ZelUIItem
{
public:
    explicit ZelUITextLabel(ZelUIAlignment alignment = ZelUIAlignment::Left);
    ~ZelUITextLabel() override;

    using ZelUIItem::setup;

    void setup(ZelUIVar *variable, AttrMap &attributes) override;
    void setup(const AttrMap &attributes) override;
    /// Ends in the virtual setup(ZelUIVar *, AttrMap &), whose override names the widget.
    virtual void setup(const ZelDomNode *node);
    virtual void setup(ZelUIVarText *variable, AttrMap &attributes, int kind);

    /// A label of a text variable takes its text and calls retranslate() when it changed.
    void setData(Meta *meta, int64_t id) override;

    zelWString getText() const;
    ZelUIAlignment getAlignment() const { return mAlignment; }
    void setModelText(const ZelUITextHandler &text) { mText = text; }

private:
    ZelUITextHandler mText;
    zelWString mValue;
    ZelUIAlignment mAlignment;
    bool mShowsValue = false;
};
