#pragma once

#include "zelUIValueEdit.h"

/// A number that is changed in steps.
class ZELCORE_EXPORT ZelUISpinBox : public ZelUIValueEdit
{
public:
    ZelUISpinBox();
    ~ZelUISpinBox() override;

    using ZelUIValueEdit::setup;

    /// Ends in the virtual setRange and setStep. A side without limit gets 999999, since a box
    /// always has a range.
    virtual void setup(ZelUIMultiVar *variable, AttrMap &attributes, int component, double step);
    virtual void setStep(double step);

    double mStep = 1;
};
