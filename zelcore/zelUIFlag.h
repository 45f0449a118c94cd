#pragma once

#include "zelUIItem.h"
#include "zelUITextHandler.h"
#include "zelUITypes.h"

class ZelUIVarBool;
class ZelUIVarTable;

struct ZelUIFlagStruct
{
    zelWString mName;
    bool mChecked = false;
    ZelUIState mState;
};

/// A yes or no with a text.
class ZELCORE_EXPORT ZelUIFlag : public ZelUIItem
{
public:
    ZelUIFlag();
    explicit ZelUIFlag(ZelUIFlagType type);
    ~ZelUIFlag() override;

    using ZelUIItem::setup;

    /// Ends in the virtual setup(ZelUIVar *, AttrMap &), whose override names the widget.
    virtual void setup(ZelUIVarTable *variable, AttrMap &attributes);
    virtual void setup(ZelUIVarBool *variable, AttrMap &attributes);
    virtual ZelUIFlagStruct toFlagStruct();
    virtual void setFlagType(ZelUIFlagType type);

    /// Calls retranslate() when the flag becomes enabled again, since a disabled one drops its
    /// text.
    void updateState(Meta *meta, int64_t id) override;
    void setData(Meta *meta, int64_t id) override;
    void getData(Meta *meta, int64_t id) override;

    zelWString getText() const { return mText.getText(); }
    void setModelText(const ZelUITextHandler &text) { mText = text; }

    bool mChecked = false;
    ZelUIFlagType mFlagType = ZelUIFlagType::CheckBox;

private:
    ZelUITextHandler mText;
    const ZelUIVarBool *mBool = nullptr;
    bool mLoadedChecked = false;
};
