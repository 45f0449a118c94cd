#include "loadForm.h"

#include "meta.h"
#include "zelQtSingleCalcVarInput.h"

#include <QVBoxLayout>

static constexpr double gravity = 9.80665; // m/s²

//! [lines]
LoadForm::LoadForm(Meta &meta, QWidget *parent)
    : ZelQtUiWidget(parent)
    , mMeta(meta)
    , mMass(new ZelQtSingleCalcVarInput(this))
{
    mMass->setObjectName(QStringLiteral("mass"));
    mMass->setDefaultUnit(QStringLiteral("kg"));
    mMass->setFormula(QStringLiteral("m"));
    mMass->setDefaultDecimals(3);
    mMass->setBottom(0);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(mMass);
    LoadForm::retranslateStrings();
}

LoadForm::~LoadForm() = default;

void LoadForm::setData()
{
    const ZelUIVar *force = mMeta.variable(L"F");
    if (force)
        mMass->setWert(mMeta.real(*force, 0) / gravity, QStringLiteral("kg"));
}

void LoadForm::getData()
{
    double mass = 0;
    mMass->getWert(mass, QStringLiteral("kg"));
    const ZelUIVar *force = mMeta.variable(L"F");
    if (force)
        mMeta.setReal(*force, 0, 0, mass * gravity, ZelOrigin::User);
}

void LoadForm::retranslateStrings()
{
    mMass->setPrompt(tr("Masse am Hebel"));
    ZelQtUiWidget::retranslateStrings();
    resizeLayout();
}
//! [lines]
