#include "zelUIEditButton.h"

#include "meta.h"
#include "zelUIMultiVar.h"
#include "zelUIVarChoice.h"
#include "zelUiBuild.h"

ZelUIEditButton::ZelUIEditButton()
    : ZelUIEditButton(ZelUIEditButtonType::CHECKBOX)
{
}

ZelUIEditButton::ZelUIEditButton(ZelUIEditButtonType type)
    : mEditType(type)
{
    setModelKind(L"edit");
}

ZelUIEditButton::~ZelUIEditButton() = default;

ZelUIEditButtonType ZelUIEditButton::modelTypeFor(const ZelUIVar &variable, const Meta &meta)
{
    if (variable.mResult)
        return ZelUIEditButtonType::LABEL;
    if (variable.mOptional)
        return ZelUIEditButtonType::CHECKBOX;
    const ZelUIVarChoice *choice = meta.choiceOf(variable);
    if (choice && (choice->mBy == ZelUIVarChoice::Switch || choice->isDisjoint()))
        return ZelUIEditButtonType::RADIOBUTTON;
    return ZelUIEditButtonType::LABEL;
}

void ZelUIEditButton::setup(ZelUIMultiVar *variable, AttrMap &attributes, int component)
{
    ZelUIObject::setup(variable, attributes);
    setModelComponent(component);
    const ZelUiBuild *build = ZelUiBuild::current();
    if (!build || !variable || mEditType == ZelUIEditButtonType::LABEL)
        return;
    // Without a kind of its own the variable leaves the button as its maker wanted it.
    const ZelUIEditButtonType type = modelTypeFor(*variable, build->meta());
    if (type != ZelUIEditButtonType::LABEL && type != mEditType)
        setEditType(type);
}

ZelUIEditButtonStruct ZelUIEditButton::toEditButtonStruct()
{
    return {getName(), mEditType, mChecked};
}

void ZelUIEditButton::setEditType(ZelUIEditButtonType type)
{
    mEditType = type;
}

void ZelUIEditButton::updateState(Meta *meta, int64_t id)
{
    ZelUIItem::updateState(meta, id);
    if (mEditType == ZelUIEditButtonType::HIDDEN)
        mVisible = false;
}

bool ZelUIEditButton::storedState(const Meta &meta, int64_t id) const
{
    const ZelUIVar &variable = *modelVariable();
    if (mEditType == ZelUIEditButtonType::CHECKBOX)
        return meta.isOptionChecked(variable, id);
    const ZelUIVarChoice *choice = meta.choiceOf(variable);
    return choice && choice->contains(static_cast<short>(meta.integer(*choice, id)), &variable);
}

void ZelUIEditButton::writeState(Meta &meta, int64_t id) const
{
    const ZelUIVar &variable = *modelVariable();
    if (mEditType == ZelUIEditButtonType::CHECKBOX) {
        meta.setOptionChecked(variable, id, mChecked, ZelOrigin::User);
        return;
    }
    const ZelUIVarChoice *choice = meta.choiceOf(variable);
    if (!choice || !mChecked)
        return;
    const auto count = static_cast<short>(choice->mAlternatives.size());
    for (short alternative = 1; alternative <= count; ++alternative) {
        if (choice->contains(alternative, &variable)) {
            meta.pick(*choice, id, alternative, ZelOrigin::User);
            return;
        }
    }
}

void ZelUIEditButton::setData(Meta *meta, int64_t id)
{
    ZelUIItem::setData(meta, id);
    if (!meta || !modelVariable())
        return;
    mChecked = mLoadedChecked = storedState(*meta, id);
}

// The comparison with the last setData matters for radio buttons: when the user checks one of
// another alternative, those of the former are still checked until the next refresh.
void ZelUIEditButton::getData(Meta *meta, int64_t id)
{
    const bool writes =
        mEditType == ZelUIEditButtonType::CHECKBOX || mEditType == ZelUIEditButtonType::RADIOBUTTON;
    if (!writes || !modelMayWrite(meta))
        return;
    const bool untouched = modelIsLoaded(meta, id) && mChecked == mLoadedChecked;
    if (untouched || mChecked == storedState(*meta, id))
        return;
    writeState(*meta, id);
    if (modelIsLoaded(meta, id))
        mLoadedChecked = mChecked;
}
