#pragma once

#include "zelUIElement.h"
#include "zelUITypes.h"

class ZelUIPushButton;

/// A push button on a line of its own. The part is not owned.
class ZELCORE_EXPORT ZelUIButtonBox : public ZelUIElement
{
public:
    ZelUIButtonBox();
    ~ZelUIButtonBox() override;

    using ZelUIElement::setup;
    /// A button without variable is described by its node, which modelSetNode takes.
    void setup(ZelUIVar *variable, AttrMap &attributes) override;
    void modelMakeParts() override;
    void modelAdoptParts();

    ZelUIAlignment getAlignment() const { return mAlignment; }
    ZelUIPushButton *getSingleButton() const { return mButton; }

    ZelUIPushButton *mButton = nullptr;
    ZelUIAlignment mAlignment = ZelUIAlignment::Left;

protected:
    void modelForget(ZelUIObject *child) override;

private:
    AttrMap mAttributes;
};
