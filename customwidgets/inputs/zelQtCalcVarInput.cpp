#include "zelQtCalcVarInput.h"

#include "zelQtAdvancedLabel.h"
#include "zelQtCustomButtons.h"
#include "zelQtEditButton.h"
#include "zelQtFormulaLabel.h"
#include "zelQtUnitLabel.h"

#include <QHBoxLayout>
#include <QSignalBlocker>

ZelQtCalcVarInput::ZelQtCalcVarInput(QWidget *parent)
    : QWidget(parent)
{
    makeChildren();
    connectChildren();
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

ZelQtCalcVarInput::~ZelQtCalcVarInput()
{
    // QWidget takes the focus from a field on its way out, and a pending edit is confirmed then:
    // too late for the signals of this class.
    const QList<QWidget *> children = findChildren<QWidget *>();
    for (QWidget *child : children)
        child->disconnect(this);
    // The spacer may be out of the layout, and then nobody else deletes it.
    mLayout->removeItem(mSpacer);
    delete mSpacer;
}

void ZelQtCalcVarInput::makeChildren()
{
    mLayout = new QHBoxLayout(this);
    mLayout->setContentsMargins(0, 0, 0, 0);
    mLayout->setSpacing(6);

    mPrompt = new ZelQtAdvancedLabel(this);
    mFormula = new ZelQtFormulaLabel(this);
    mUnit = new ZelQtUnitLabel(this);
    mEditButton = new ZelQtEditButton(this);
    mSpacer = new QSpacerItem(0, 10, QSizePolicy::Fixed, QSizePolicy::Minimum);
    mSizeButton = new ZelQtSizeButton(this);
    mConvertButton = new ZelQtConvertButton(this);
    mPlusButton = new ZelQtPlusButton(this);
    mDatabaseButton = new ZelQtDatabaseButton(this);
    mSettingsButton = new ZelQtSettingsButton(this);
    mInfoButton = new ZelQtInfoButton(this);
    mOfferButton = new ZelQtOfferButton(this);

    mPrompt->setObjectName(QStringLiteral("mPrompt"));
    mFormula->setObjectName(QStringLiteral("mFormula"));
    mUnit->setObjectName(QStringLiteral("mUnit"));
    mEditButton->setObjectName(QStringLiteral("mEditButton"));

    for (QWidget *widget : {static_cast<QWidget *>(mPrompt), static_cast<QWidget *>(mFormula),
                            static_cast<QWidget *>(mUnit), static_cast<QWidget *>(mEditButton)})
        mLayout->addWidget(widget);
    mLayout->addItem(mSpacer);
    mEditButton->hide();
    const QList<QWidget *> buttons = smallButtons();
    for (QWidget *button : buttons) {
        // Tab goes from field to field and skips the buttons.
        button->setFocusPolicy(Qt::ClickFocus);
        mLayout->addWidget(button);
        button->hide();
    }
}

void ZelQtCalcVarInput::connectChildren()
{
    connect(mUnit, qOverload<QString>(&ZelQtUnitLabel::unitChanged), this,
            &ZelQtCalcVarInput::changeInputUnit);
    connect(mEditButton, &ZelQtEditButton::checkBoxClicked, this,
            &ZelQtCalcVarInput::editButtonClicked);
    connect(mEditButton, &ZelQtEditButton::radioButtonClicked, this,
            &ZelQtCalcVarInput::editButtonClicked);
    connect(mEditButton, &ZelQtEditButton::checkBoxToggled, this,
            &ZelQtCalcVarInput::reactToToggle);
    connect(mEditButton, &ZelQtEditButton::radioButtonToggled, this,
            &ZelQtCalcVarInput::reactToToggle);
    connect(mSizeButton, &QAbstractButton::clicked, this, &ZelQtCalcVarInput::sizeButtonClicked);
    connect(mConvertButton, &QAbstractButton::clicked, this,
            &ZelQtCalcVarInput::convertButtonClicked);
    connect(mPlusButton, &QAbstractButton::clicked, this, &ZelQtCalcVarInput::plusButtonClicked);
    connect(mDatabaseButton, &QAbstractButton::clicked, this,
            &ZelQtCalcVarInput::databaseButtonClicked);
    connect(mSettingsButton, &QAbstractButton::clicked, this,
            &ZelQtCalcVarInput::settingsButtonClicked);
    connect(mOfferButton, &QAbstractButton::clicked, this, &ZelQtCalcVarInput::offerButtonClicked);
}

QList<QWidget *> ZelQtCalcVarInput::smallButtons() const
{
    return {mSizeButton,     mConvertButton, mPlusButton, mDatabaseButton,
            mSettingsButton, mInfoButton,    mOfferButton};
}

QString ZelQtCalcVarInput::defaultUnit()
{
    return QString();
}

void ZelQtCalcVarInput::setDefaultUnit(const QString &)
{
}

bool ZelQtCalcVarInput::isEditable() const
{
    return false;
}

void ZelQtCalcVarInput::changeInputUnit(const QString &)
{
}

void ZelQtCalcVarInput::setInputEditable(bool)
{
}

void ZelQtCalcVarInput::retranslateStrings()
{
    // Straight to setToolTip: the buttons' own form would translate in another context. Tags of the
    // prompt stay.
    const QString text = prompt();
    mSizeButton->setToolTip(tr("%1 auslegen").arg(text));
    mConvertButton->setToolTip(tr("%1 umrechnen").arg(text));
    mPlusButton->setToolTip(tr("%1 definieren").arg(text));
}

void ZelQtCalcVarInput::disableValueChanged()
{
    mEditButton->disableValueChanged();
}

void ZelQtCalcVarInput::disableValueConfirmed()
{
    mEditButton->disableValueConfirmed();
}

void ZelQtCalcVarInput::setEditable(bool editable)
{
    setInputEditable(editable);
    followEditable(editable);
}

void ZelQtCalcVarInput::setReadOnly(bool readOnly)
{
    setEditable(!readOnly);
}

void ZelQtCalcVarInput::followEditable(bool editable)
{
    enableComputingButtons(editable);
    const QSignalBlocker blocker(mEditButton);
    mEditButton->setChecked(editable == mEditButtonMode);
}

void ZelQtCalcVarInput::enableComputingButtons(bool editable)
{
    if (mSizeButtonMode)
        mSizeButton->setEnabled(editable);
    if (mConvertButtonMode)
        mConvertButton->setEnabled(editable);
    if (mPlusButtonMode)
        mPlusButton->setEnabled(editable);
}

void ZelQtCalcVarInput::reactToToggle(bool checked)
{
    const bool editable = checked == mEditButtonMode;
    setInputEditable(editable);
    enableComputingButtons(editable);
}
