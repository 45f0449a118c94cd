#include "zelUISpinBox.h"

ZelUISpinBox::ZelUISpinBox() = default;
ZelUISpinBox::~ZelUISpinBox() = default;

void ZelUISpinBox::setup(ZelUIMultiVar *variable, AttrMap &attributes, int component, double step)
{
    constexpr double open = 999999;
    ZelUIValueEdit::setup(variable, attributes, component);
    setRange(mHasBottom ? mBottom : -open, mHasTop ? mTop : open, false);
    setStep(step);
}

void ZelUISpinBox::setStep(double step)
{
    mStep = step;
}
