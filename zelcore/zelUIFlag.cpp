#include "zelUIFlag.h"

#include "meta.h"
#include "zelUIVarKinds.h"

ZelUIFlag::ZelUIFlag()
    : ZelUIFlag(ZelUIFlagType::CheckBox)
{
}

ZelUIFlag::ZelUIFlag(ZelUIFlagType type)
    : mFlagType(type)
{
    modelFollowRole(true);
}

ZelUIFlag::~ZelUIFlag() = default;

void ZelUIFlag::setup(ZelUIVarTable *variable, AttrMap &attributes)
{
    if (variable && mText.empty())
        mText = variable->mText;
    setModelKind(L"flag");
    // A table is no result in the sense of a value: its flag stays open.
    modelFollowRole(false);
    ZelUIVar *const plain = variable;
    setup(plain, attributes);
}

void ZelUIFlag::setup(ZelUIVarBool *variable, AttrMap &attributes)
{
    ZelUIObject::setup(variable, attributes);
    mBool = variable;
    if (variable && mText.empty())
        mText = variable->mText;
}

ZelUIFlagStruct ZelUIFlag::toFlagStruct()
{
    return {getName(), mChecked, state()};
}

void ZelUIFlag::setFlagType(ZelUIFlagType type)
{
    mFlagType = type;
}

void ZelUIFlag::updateState(Meta *meta, int64_t id)
{
    const bool wasEnabled = mEnabled;
    ZelUIItem::updateState(meta, id);
    if (mEnabled && !wasEnabled)
        retranslate();
}

void ZelUIFlag::setData(Meta *meta, int64_t id)
{
    ZelUIItem::setData(meta, id);
    if (!meta || !mBool)
        return;
    mChecked = mLoadedChecked = meta->boolean(*mBool, id);
}

void ZelUIFlag::getData(Meta *meta, int64_t id)
{
    if (!modelMayWrite(meta) || !mBool)
        return;
    const bool untouched = modelIsLoaded(meta, id) && mChecked == mLoadedChecked;
    if (untouched || mChecked == meta->boolean(*mBool, id))
        return;
    meta->setBoolean(*mBool, id, mChecked, ZelOrigin::User);
    if (modelIsLoaded(meta, id))
        mLoadedChecked = mChecked;
    modelNoteTyped(*meta, id);
}
