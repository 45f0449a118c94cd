#include "zelUINotepad.h"

#include "meta.h"
#include "zelUIVarKinds.h"

ZelUINotepad::ZelUINotepad()
{
    modelFollowRole(true);
}

ZelUINotepad::~ZelUINotepad() = default;

void ZelUINotepad::setup(ZelUIVarMultilineString *variable, AttrMap &attributes)
{
    ZelUIObject::setup(variable, attributes);
}

void ZelUINotepad::setData(Meta *meta, int64_t id)
{
    ZelUIItem::setData(meta, id);
    if (!meta || !modelVariable())
        return;
    mText = mLoadedText = meta->text(*modelVariable(), id);
}

void ZelUINotepad::getData(Meta *meta, int64_t id)
{
    if (!modelMayWrite(meta))
        return;
    const bool untouched = modelIsLoaded(meta, id) && mText == mLoadedText;
    if (untouched || mText == meta->text(*modelVariable(), id))
        return;
    meta->setText(*modelVariable(), id, mText, ZelOrigin::User);
    if (modelIsLoaded(meta, id))
        mLoadedText = mText;
}
