#pragma once

#include "zelUIInput.h"
#include "zelUITextHandler.h"

class ZelUIVarFuncText;
class ZelUIVarString;

/// One line of text: entered, or computed by a function of the module.
class ZELCORE_EXPORT ZelUITextEdit : public ZelUIInput
{
public:
    ZelUITextEdit();
    ~ZelUITextEdit() override;

    using ZelUIInput::setup;

    virtual void setup(ZelUIVarFuncText *variable, AttrMap &attributes, int kind);
    virtual void setup(ZelUIVarString *variable, AttrMap &attributes, int kind);

    void setData(Meta *meta, int64_t id) override;
    void getData(Meta *meta, int64_t id) override;
    bool setUserInput(Meta *meta, int64_t id, const zelWString &text, bool &changed) override;
    zelWString getRenderedData() override;

    /// What an empty field shows, in the current language.
    zelWString placeholder() const;

    zelWString mText;

private:
    zelWString storedText(Meta &meta, int64_t id) const;

    ZelUITextHandler mPlaceholder;
    zelWString mFunction;
    zelWString mLoadedText;
    bool mIsFunction = false;
};
