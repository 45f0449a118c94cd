#include "zelQtSingleCalcVarInput.h"

#include "zelQtConversions.h"
#include "zelQtSaturate_p.h"
#include "zelQtUnitLabel.h"
#include "zelQtValueEdit.h"

#include <QHBoxLayout>
#include <QLabel>

ZelQtSingleCalcVarInput::ZelQtSingleCalcVarInput(QWidget *parent)
    : ZelQtCalcVarInput(parent)
    , mInput(insertField(2))
{
    setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(mInput);
}

ZelQtSingleCalcVarInput::~ZelQtSingleCalcVarInput() = default;

ZelQtValueEdit *ZelQtSingleCalcVarInput::insertField(int index)
{
    auto *field = new ZelQtValueEdit(this);
    mLayout->insertWidget(index, field);
    connect(field, &ZelQtLineEdit::valueChanged, this, &ZelQtCalcVarInput::inputValueChanged);
    connect(field, &ZelQtLineEdit::valueConfirmed, this, &ZelQtCalcVarInput::inputValueConfirmed);
    connect(field, &QLineEdit::editingFinished, this, &ZelQtSingleCalcVarInput::editingFinished);
    return field;
}

void ZelQtSingleCalcVarInput::getWert(short &value, const QString &unit) const
{
    mInput->getWert(value, unit);
}

void ZelQtSingleCalcVarInput::getWert(int &value, const QString &unit) const
{
    mInput->getWert(value, unit);
}

void ZelQtSingleCalcVarInput::getWert(unsigned int &value, const QString &unit) const
{
    double number = 0;
    mInput->getWert(number, unit);
    value = saturate<unsigned int>(number);
}

void ZelQtSingleCalcVarInput::getWert(double &value, const QString &unit) const
{
    mInput->getWert(value, unit);
}

void ZelQtSingleCalcVarInput::getWert(zelAutoDirty<double> &value, const QString &unit) const
{
    mInput->getWert(value, unit);
}

void ZelQtSingleCalcVarInput::setWert(double value, const QString &unit) const
{
    mInput->setWert(value, unit);
}

QString ZelQtSingleCalcVarInput::defaultUnit()
{
    return unitToString(mInput->ZelUIValueEdit::defaultUnit());
}

void ZelQtSingleCalcVarInput::setDefaultUnit(const QString &unit)
{
    // Past the field, which is redrawn through the unit label when the unit differs.
    mInput->ZelUIValueEdit::setDefaultUnit(stringToUnit(unit));
    mUnit->setCurrentUnit(unit, false);
}

void ZelQtSingleCalcVarInput::setTypeToInteger(bool integer)
{
    mInput->setTypeToInteger(integer);
}

bool ZelQtSingleCalcVarInput::isOfTypeInteger() const
{
    return mInput->isOfTypeInteger();
}

int ZelQtSingleCalcVarInput::defaultDecimals() const
{
    return mInput->defaultDecimals();
}

void ZelQtSingleCalcVarInput::setDefaultDecimals(int decimals)
{
    mInput->setDefaultDecimals(decimals);
}

void ZelQtSingleCalcVarInput::setDecimals(int decimals)
{
    setDefaultDecimals(decimals);
}

void ZelQtSingleCalcVarInput::setRange(double bottom, double top) const
{
    mInput->setRange(bottom, top, false);
}

double ZelQtSingleCalcVarInput::bottom() const
{
    return mInput->bottom();
}

double ZelQtSingleCalcVarInput::top() const
{
    return mInput->top();
}

void ZelQtSingleCalcVarInput::setBottom(double bottom) const
{
    mInput->setBottom(bottom);
}

void ZelQtSingleCalcVarInput::setTop(double top) const
{
    mInput->setTop(top);
}

bool ZelQtSingleCalcVarInput::isEditable() const
{
    return !mInput->isReadOnly();
}

void ZelQtSingleCalcVarInput::setActive(bool active)
{
    mInput->setActive(active);
}

void ZelQtSingleCalcVarInput::setMessageState(int state)
{
    mInput->setMessageState(state);
}

void ZelQtSingleCalcVarInput::disableValueChanged()
{
    ZelQtCalcVarInput::disableValueChanged();
    mInput->disableValueChanged();
}

void ZelQtSingleCalcVarInput::disableValueConfirmed()
{
    ZelQtCalcVarInput::disableValueConfirmed();
    mInput->disableValueConfirmed();
}

void ZelQtSingleCalcVarInput::changeInputUnit(const QString &unit)
{
    mInput->changeUnit(unit);
}

void ZelQtSingleCalcVarInput::setInputEditable(bool editable)
{
    mInput->setReadOnly(!editable);
}

int ZelQtSingleCalcVarInput::inputWidth() const
{
    return mInput->sizeHint().width();
}

void ZelQtSingleCalcVarInput::adjustInputWidth(int width)
{
    // The derived lines answer inputWidth() for several fields; the pads are for this one alone.
    const int missing = width - inputWidth();
    if (missing <= 0) {
        delete mLeftPad;
        delete mRightPad;
        mLeftPad = nullptr;
        mRightPad = nullptr;
        return;
    }
    if (!mLeftPad) {
        mLeftPad = new QLabel(this);
        mLayout->insertWidget(1, mLeftPad);
    }
    if (!mRightPad) {
        mRightPad = new QLabel(this);
        mLayout->insertWidget(5, mRightPad);
    }
    mLeftPad->setFixedWidth(missing / 2);
    mRightPad->setFixedWidth(missing - missing / 2);
}
