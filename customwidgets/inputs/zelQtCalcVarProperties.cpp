#include "zelQtCalcVarInput.h"

#include "zelQtAdvancedLabel.h"
#include "zelQtCustomButtons.h"
#include "zelQtEditButton.h"
#include "zelQtFormulaLabel.h"
#include "zelQtRadioButton.h"
#include "zelQtUnitLabel.h"

// What a form sets and asks of a line: texts, unit, edit button and small buttons.

QString ZelQtCalcVarInput::prompt() const
{
    return mPrompt->text();
}

void ZelQtCalcVarInput::setPrompt(const QString &text)
{
    mPrompt->setText(text);
}

QString ZelQtCalcVarInput::formula() const
{
    return mFormula->text();
}

void ZelQtCalcVarInput::setFormula(const QString &formula)
{
    mFormula->setText(formula);
}

QString ZelQtCalcVarInput::currentUnit() const
{
    return mUnit->currentUnit();
}

void ZelQtCalcVarInput::setCurrentUnit(const QString &unit)
{
    changeInputUnit(unit);
    mUnit->setCurrentUnit(unit, false);
}

int ZelQtCalcVarInput::unitWidth() const
{
    return mUnit->width();
}

ZelQtCalcVarInput::EditButtonType ZelQtCalcVarInput::editButtonType() const
{
    return static_cast<EditButtonType>(mEditButton->editType());
}

void ZelQtCalcVarInput::setEditButtonType(EditButtonType type)
{
    // HIDDEN is meant to give the label page too, not an invisible button.
    const bool button = type == CHECKBOX || type == RADIOBUTTON;
    mEditButton->setEditType(button ? static_cast<ZelUIEditButtonType>(type)
                                    : ZelUIEditButtonType::LABEL);
    setEditable(isEditable());
}

void ZelQtCalcVarInput::enableEditButton(bool enable)
{
    mEditButton->setEnabled(enable);
}

void ZelQtCalcVarInput::setEditButtonMode(bool mode)
{
    mEditButtonMode = mode;
    setEditable(isEditable());
}

void ZelQtCalcVarInput::setEditButtonToolTip(const QString &text)
{
    mEditButton->enableDefaultToolTip(false);
    mEditButton->setToolTip(text);
}

QRadioButton *ZelQtCalcVarInput::radioButtonWidget() const
{
    return mEditButton->radioButtonWidget();
}

bool ZelQtCalcVarInput::sizeButton() const
{
    return !mSizeButton->isHidden();
}

void ZelQtCalcVarInput::showSizeButton(bool show)
{
    mSizeButton->setVisible(show);
}

void ZelQtCalcVarInput::enableSizeButton(bool enable)
{
    mSizeButton->setEnabled(enable);
}

void ZelQtCalcVarInput::setSizeButtonMode(bool on)
{
    mSizeButtonMode = on;
    if (on)
        mSizeButton->setEnabled(isEditable());
}

void ZelQtCalcVarInput::setSizeButtonToolTip(const QString &text)
{
    mSizeButton->setToolTip(text);
}

void ZelQtCalcVarInput::setSizeButtonStatusTip(const QString &text)
{
    mSizeButton->setStatusTip(text);
}

void ZelQtCalcVarInput::setSizeButtonAuthorItCode(int code)
{
    mSizeButton->setAuthorItCode(code);
}

bool ZelQtCalcVarInput::convertButton() const
{
    return !mConvertButton->isHidden();
}

void ZelQtCalcVarInput::showConvertButton(bool show)
{
    mConvertButton->setVisible(show);
}

void ZelQtCalcVarInput::enableConvertButton(bool enable)
{
    mConvertButton->setEnabled(enable);
}

void ZelQtCalcVarInput::setConvertButtonMode(bool on)
{
    mConvertButtonMode = on;
    if (on)
        mConvertButton->setEnabled(isEditable());
}

void ZelQtCalcVarInput::setConvertButtonToolTip(const QString &text)
{
    mConvertButton->setToolTip(text);
}

void ZelQtCalcVarInput::setConvertButtonStatusTip(const QString &text)
{
    mConvertButton->setStatusTip(text);
}

void ZelQtCalcVarInput::setConvertButtonAuthorItCode(int code)
{
    mConvertButton->setAuthorItCode(code);
}

bool ZelQtCalcVarInput::plusButton() const
{
    return !mPlusButton->isHidden();
}

void ZelQtCalcVarInput::showPlusButton(bool show)
{
    mPlusButton->setVisible(show);
}

void ZelQtCalcVarInput::enablePlusButton(bool enable)
{
    mPlusButton->setEnabled(enable);
}

void ZelQtCalcVarInput::setPlusButtonMode(bool on)
{
    mPlusButtonMode = on;
    if (on)
        mPlusButton->setEnabled(isEditable());
}

void ZelQtCalcVarInput::setPlusButtonToolTip(const QString &text)
{
    mPlusButton->setToolTip(text);
}

void ZelQtCalcVarInput::setPlusButtonStatusTip(const QString &text)
{
    mPlusButton->setStatusTip(text);
}

void ZelQtCalcVarInput::setPlusButtonAuthorItCode(int code)
{
    mPlusButton->setAuthorItCode(code);
}

bool ZelQtCalcVarInput::databaseButton() const
{
    return !mDatabaseButton->isHidden();
}

void ZelQtCalcVarInput::showDatabaseButton(bool show)
{
    mDatabaseButton->setVisible(show);
}

bool ZelQtCalcVarInput::settingsButton() const
{
    return !mSettingsButton->isHidden();
}

void ZelQtCalcVarInput::showSettingsButton(bool show)
{
    mSettingsButton->setVisible(show);
}

bool ZelQtCalcVarInput::infoButton() const
{
    return !mInfoButton->isHidden();
}

void ZelQtCalcVarInput::showInfoButton(bool show)
{
    mInfoButton->setVisible(show);
}

int ZelQtCalcVarInput::infoId() const
{
    return mInfoButton->currentInfoId();
}

void ZelQtCalcVarInput::setInfoId(int id)
{
    mInfoButton->setInfoId(id);
}

QString ZelQtCalcVarInput::infoFile() const
{
    return mInfoButton->currentInfoFile();
}

void ZelQtCalcVarInput::setInfoFile(const QString &file)
{
    mInfoButton->setInfoFile(file);
}

bool ZelQtCalcVarInput::offerButton() const
{
    return !mOfferButton->isHidden();
}

void ZelQtCalcVarInput::showOfferButton(bool show)
{
    mOfferButton->setVisible(show);
}
