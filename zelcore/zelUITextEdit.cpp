#include "zelUITextEdit.h"

#include "meta.h"
#include "zelFunctionText_p.h"
#include "zelUIVarKinds.h"

ZelUITextEdit::ZelUITextEdit() = default;
ZelUITextEdit::~ZelUITextEdit() = default;

void ZelUITextEdit::setup(ZelUIVarFuncText *variable, AttrMap &attributes, int kind)
{
    ZelUIObject::setup(variable, attributes);
    setModelComponent(kind);
    mIsFunction = true;
    mFunction = variable ? variable->mFunction : zelWString();
    modelAlwaysReadOnly(true);
}

void ZelUITextEdit::setup(ZelUIVarString *variable, AttrMap &attributes, int kind)
{
    ZelUIObject::setup(variable, attributes);
    setModelComponent(kind);
    if (variable)
        mPlaceholder = variable->mPlaceholder;
    modelTakePriorityName();
}

zelWString ZelUITextEdit::storedText(Meta &meta, int64_t id) const
{
    return mIsFunction ? zelFunctionText(meta, mFunction, id) : meta.text(*modelVariable(), id);
}

void ZelUITextEdit::setData(Meta *meta, int64_t id)
{
    ZelUIInput::setData(meta, id);
    if (!meta || !modelVariable())
        return;
    mText = mLoadedText = storedText(*meta, id);
}

void ZelUITextEdit::getData(Meta *meta, int64_t id)
{
    if (!modelMayWrite(meta) || mIsFunction)
        return;
    const bool untouched = modelIsLoaded(meta, id) && mText == mLoadedText;
    if (untouched || mText == storedText(*meta, id))
        return;
    meta->setText(*modelVariable(), id, mText, ZelOrigin::User);
    if (modelIsLoaded(meta, id))
        mLoadedText = mText;
    modelNoteTyped(*meta, id);
}

bool ZelUITextEdit::setUserInput(Meta *meta, int64_t id, const zelWString &text, bool &changed)
{
    changed = false;
    if (!modelMayWrite(meta) || mIsFunction)
        return false;
    changed = !(storedText(*meta, id) == text);
    mText = text;
    getData(meta, id);
    return true;
}

zelWString ZelUITextEdit::getRenderedData()
{
    return mEnabled ? mText : zelWString();
}

zelWString ZelUITextEdit::placeholder() const
{
    return mPlaceholder.getText();
}
