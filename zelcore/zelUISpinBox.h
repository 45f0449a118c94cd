#pragma once

#include "zelUIValueEdit.h"

/// A number that is changed in steps.
class ZELCORE_EXPORT ZelUISpinBox : public ZelUIValueEdit
{
public:
    ZelUISpinBox();
    ~ZelUISpinBox() override;

    using ZelUIValueEdit::setup;

    virtual void setup(ZelUIMultiVar *variable, AttrMap &attributes, int component, double step);
    virtual void setStep(double step);

    double mStep = 1;
};
