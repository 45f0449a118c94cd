#include "trialDialog.h"

#include "zelQtDialogButtonBox.h"
#include "zelQtSingleCalcVarInput.h"

#include <QVBoxLayout>

static constexpr int noMessage = 0;
static constexpr int errorMessage = 1;

//! [dialog]
TrialDialog::TrialDialog(QWidget *parent)
    : ZelQtParentDialog(parent)
{
    new QVBoxLayout(this);
    mForce = addLine("force", "N", "F");
    mArm = addLine("arm", "mm", "l");
    mMoment = addLine("moment", "N·m", "M");
    mMoment->setEditable(false);
    mButtonBox = new ZelQtDialogButtonBox(ZelQtDialogButtonBox::CALC_OK_CANCEL, this);
    layout()->addWidget(mButtonBox);
    setupDialogButtonBox();
    TrialDialog::retranslateStrings();
}

void TrialDialog::calculate()
{
    double force = 0;
    double arm = 0;
    mForce->getWert(force, QStringLiteral("N"));
    mArm->getWert(arm, QStringLiteral("m"));
    mArm->setMessageState(arm > 0 ? noMessage : errorMessage);
    mMoment->setWert(force * arm, QStringLiteral("N·m"));
    if (arm > 0)
        mButtonBox->permitAccept();
    else
        mButtonBox->forbidAccept();
}
//! [dialog]

TrialDialog::~TrialDialog() = default;

//! [line]
ZelQtSingleCalcVarInput *TrialDialog::addLine(const char *name, const char *unit,
                                              const char *formula)
{
    auto *line = new ZelQtSingleCalcVarInput(this);
    line->setObjectName(QString::fromUtf8(name));
    line->setDefaultUnit(QString::fromUtf8(unit));
    line->setFormula(QString::fromUtf8(formula));
    line->setDefaultDecimals(2);
    layout()->addWidget(line);
    return line;
}
//! [line]

void TrialDialog::retranslateStrings()
{
    mForce->setPrompt(tr("Kraft"));
    mArm->setPrompt(tr("Hebelarm"));
    mMoment->setPrompt(tr("Moment"));
    ZelQtParentDialog::retranslateStrings();
}
