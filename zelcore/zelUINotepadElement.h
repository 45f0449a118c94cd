#pragma once

#include "zelUIElement.h"

class ZelUINotepad;

/// A notepad over the whole width. The part is not owned.
class ZELCORE_EXPORT ZelUINotepadElement : public ZelUIElement
{
public:
    ZelUINotepadElement();
    ~ZelUINotepadElement() override;

    using ZelUIElement::setup;
    void setup(ZelUIVar *variable, AttrMap &attributes) override;
    void modelMakeParts() override;
    void modelAdoptParts();

    ZelUINotepad *mNotepad = nullptr;

protected:
    void modelForget(ZelUIObject *child) override;

private:
    AttrMap mAttributes;
};
