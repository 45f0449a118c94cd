#pragma once

#include "zelQtUiWidget.h"

class Meta;
class ZelQtSingleCalcVarInput;

/// A form written by hand in the mask of the lever: a mass that hangs at its end, and the force
/// that follows.
//! [form]
class LoadForm : public ZelQtUiWidget
{
    Q_OBJECT

public:
    using ZelQtUiWidget::getData;
    using ZelQtUiWidget::setData;

    LoadForm(Meta &meta, QWidget *parent);
    ~LoadForm() override;

public Q_SLOTS:
    void setData() override;
    void getData() override;

protected:
    void retranslateStrings() override;

private:
    Meta &mMeta;
    ZelQtSingleCalcVarInput *mMass;
};
//! [form]
