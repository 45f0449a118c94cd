#pragma once

#include "zelUIElement.h"

class ZelUIComboBox;
class ZelUIPushButton;
class ZelUITextLabel;

/// The choice of a lubricant. Parts are not owned.
class ZELCORE_EXPORT ZelUILubElement : public ZelUIElement
{
public:
    ZelUILubElement();
    ~ZelUILubElement() override;

    /// Makes parts put in by hand known to the walks.
    void modelMakeParts() override;

    ZelUITextLabel *mLabel = nullptr;
    ZelUIComboBox *mCombo1 = nullptr;
    ZelUIPushButton *mButton1 = nullptr;
    ZelUIComboBox *mCombo2 = nullptr;
    ZelUIPushButton *mButton2 = nullptr;
    ZelUIPushButton *mButton3 = nullptr;

protected:
    void modelForget(ZelUIObject *child) override;
};
