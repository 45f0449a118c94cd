#pragma once

#include "zelUIElement.h"

class ZelUIComboBox;
class ZelUISpinBox;
class ZelUITextLabel;

/// A list with a stepped number behind it. Parts are not owned.
class ZELCORE_EXPORT ZelUILSElement : public ZelUIElement
{
public:
    ZelUILSElement();
    ~ZelUILSElement() override;

    /// Makes parts put in by hand known to the walks.
    void modelMakeParts() override;

    /// The number stands in the column of the icon buttons and not beside the list.
    bool hasAdvancedLayout() const { return mAdvancedLayout; }

    ZelUITextLabel *mLabel1 = nullptr;
    ZelUIComboBox *mCombo = nullptr;
    ZelUITextLabel *mLabel2 = nullptr;
    ZelUISpinBox *mSpinBox = nullptr;
    bool mAdvancedLayout = false;

protected:
    void modelForget(ZelUIObject *child) override;
};
