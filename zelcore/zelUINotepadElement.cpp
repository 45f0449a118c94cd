#include "zelUINotepadElement.h"

#include "zelUINotepad.h"
#include "zelUIVarKinds.h"
#include "zelUiBuild.h"
#include "zelUiFactory.h"
#include "zelUiParts_p.h"

ZelUINotepadElement::ZelUINotepadElement() = default;
ZelUINotepadElement::~ZelUINotepadElement() = default;

void ZelUINotepadElement::setup(ZelUIVar *variable, AttrMap &attributes)
{
    ZelUIElement::setup(variable, attributes);
    mAttributes = attributes;
}

void ZelUINotepadElement::modelMakeParts()
{
    ZelUiBuild *build = ZelUiBuild::current();
    auto *notes = dynamic_cast<ZelUIVarMultilineString *>(modelVariable());
    if (build && notes && !mNotepad) {
        mNotepad = build->factory().makeNotepad();
        if (mNotepad)
            mNotepad->setup(notes, mAttributes);
    }
    modelAdoptParts();
}

void ZelUINotepadElement::modelAdoptParts()
{
    modelAddItem(mNotepad);
}

void ZelUINotepadElement::modelForget(ZelUIObject *child)
{
    zelForget(mNotepad, child);
    ZelUIElement::modelForget(child);
}
