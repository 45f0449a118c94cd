#pragma once

#include "zelQtParentDialog.h"

class ZelQtDialogButtonBox;
class ZelQtSingleCalcVarInput;

/// Tries out a force and an arm; nothing in it comes from a description.
class TrialDialog : public ZelQtParentDialog
{
    Q_OBJECT

public:
    explicit TrialDialog(QWidget *parent = nullptr);
    ~TrialDialog() override;

public Q_SLOTS:
    void calculate() override;

protected:
    void retranslateStrings() override;

private:
    ZelQtSingleCalcVarInput *addLine(const char *name, const char *unit, const char *formula);

    ZelQtSingleCalcVarInput *mForce;
    ZelQtSingleCalcVarInput *mArm;
    ZelQtSingleCalcVarInput *mMoment;
    ZelQtDialogButtonBox *mButtonBox;
};
