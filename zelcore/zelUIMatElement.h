#pragma once

#include "zelUIElement.h"

class ZelUIComboBox;
class ZelUIPushButton;
class ZelUITextLabel;

/// The choice of a material, with or without its type. Parts are not owned.
class ZELCORE_EXPORT ZelUIMatElement : public ZelUIElement
{
public:
    ZelUIMatElement();
    ~ZelUIMatElement() override;

    /// Makes parts put in by hand known to the walks.
    void modelMakeParts() override;

    ZelUITextLabel *mLabel1 = nullptr;
    ZelUITextLabel *mLabel2 = nullptr;
    ZelUIComboBox *mCombo1 = nullptr;
    ZelUIPushButton *mButton1 = nullptr;
    ZelUIComboBox *mCombo2 = nullptr;
    ZelUIPushButton *mButton2 = nullptr;

protected:
    void modelForget(ZelUIObject *child) override;
};
