#include "zelQtDoubleCalcVarInput.h"

#include "internMessage.h"
#include "zelQtConversions.h"
#include "zelQtFieldPriority_p.h"
#include "zelQtUnitLabel.h"
#include "zelQtValueEdit.h"

#include <QHBoxLayout>

#include <stdexcept>

ZelQtDoubleCalcVarInput::ZelQtDoubleCalcVarInput(QWidget *parent)
    : ZelQtSingleCalcVarInput(parent)
    , mInput2(insertField(3))
{
    QWidget::setTabOrder(mInput, mInput2);
    connect(mUnit, qOverload<QString>(&ZelQtUnitLabel::unitChanged), mInput2,
            &ZelQtValueEdit::changeUnit);
}

ZelQtDoubleCalcVarInput::~ZelQtDoubleCalcVarInput() = default;

void ZelQtDoubleCalcVarInput::misuse(const char *text, const char *file, long line) const
{
    // An exception out of a slot would end the program.
    if (sender())
        internMessage(file, line, text);
    else
        throw std::logic_error(text);
}

void ZelQtDoubleCalcVarInput::showInUnit(ZelQtValueEdit *field, const QString &unit)
{
    field->ZelUIValueEdit::setCurrentUnit(stringToUnit(unit));
    field->updateWert();
}

void ZelQtDoubleCalcVarInput::getWert(double &first, double &second, const QString &unit) const
{
    mInput->getWert(first, unit);
    mInput2->getWert(second, unit);
}

void ZelQtDoubleCalcVarInput::getWert(zelAutoDirty<double> &first, zelAutoDirty<double> &second,
                                      const QString &unit) const
{
    mInput->getWert(first, unit);
    mInput2->getWert(second, unit);
}

void ZelQtDoubleCalcVarInput::getWert(short &first, short &second, const QString &unit) const
{
    mInput->getWert(first, unit);
    mInput2->getWert(second, unit);
}

void ZelQtDoubleCalcVarInput::setWert(double first, double second, const QString &unit)
{
    mInput->setWert(first, unit);
    mInput2->setWert(second, unit);
}

void ZelQtDoubleCalcVarInput::getWert2(double &second, const QString &unit) const
{
    mInput2->getWert(second, unit);
}

void ZelQtDoubleCalcVarInput::getWert2(short &second, const QString &unit) const
{
    mInput2->getWert(second, unit);
}

void ZelQtDoubleCalcVarInput::setWert2(double second, const QString &unit)
{
    mInput2->setWert(second, unit);
}

void ZelQtDoubleCalcVarInput::setDefaultUnit(const QString &unit)
{
    // Both fields first: the unit label redraws them when the unit differs.
    mInput2->ZelUIValueEdit::setDefaultUnit(stringToUnit(unit));
    ZelQtSingleCalcVarInput::setDefaultUnit(unit);
}

void ZelQtDoubleCalcVarInput::setCurrentUnit(const QString &unit)
{
    showInUnit(mInput, unit);
    showInUnit(mInput2, unit);
    mUnit->setCurrentUnit(unit, false);
}

void ZelQtDoubleCalcVarInput::setTypeToInteger(bool integer)
{
    ZelQtSingleCalcVarInput::setTypeToInteger(integer);
    mInput2->setTypeToInteger(integer);
}

void ZelQtDoubleCalcVarInput::setDefaultDecimals(int decimals)
{
    ZelQtSingleCalcVarInput::setDefaultDecimals(decimals);
    mInput2->setDefaultDecimals(decimals);
}

bool ZelQtDoubleCalcVarInput::isEditable() const
{
    return mReact1 ? !mInput->isReadOnly() : !mInput2->isReadOnly();
}

void ZelQtDoubleCalcVarInput::setEditable(bool editable)
{
    if (mReact1 != mReact2) {
        misuse("ZelQtDoubleCalcVarInput::setEditable(bool) wurde für Eingabefelder mit "
               "unterschiedlichem Verhalten verwendet",
               __FILE__, __LINE__);
        return;
    }
    ZelQtCalcVarInput::setEditable(editable);
}

void ZelQtDoubleCalcVarInput::setEditable(bool first, bool second)
{
    mInput->setReadOnly(!first);
    mInput2->setReadOnly(!second);
    followEditable(mReact1 ? first : second);
}

void ZelQtDoubleCalcVarInput::setActive(bool first, bool second)
{
    mInput->setActive(first);
    mInput2->setActive(second);
}

void ZelQtDoubleCalcVarInput::setMessageState(int first, int second)
{
    mInput->setMessageState(first);
    mInput2->setMessageState(second);
}

void ZelQtDoubleCalcVarInput::setReactToToggle(bool first, bool second)
{
    if (!first && !second) {
        misuse("ZelQtDoubleCalcVarInput::setReactToToggle() kein Eingabefeld kommuniziert mit dem "
               "Edit-Button",
               __FILE__, __LINE__);
        return;
    }
    mReact1 = first;
    mReact2 = second;
}

void ZelQtDoubleCalcVarInput::setInputEditable(bool editable)
{
    if (mReact1)
        mInput->setReadOnly(!editable);
    if (mReact2)
        mInput2->setReadOnly(!editable);
}

int ZelQtDoubleCalcVarInput::inputWidth() const
{
    return ZelQtSingleCalcVarInput::inputWidth() + mLayout->spacing() + mInput2->sizeHint().width();
}

void ZelQtDoubleCalcVarInput::adjustInputWidth(int)
{
    // A line of several fields keeps their width.
}

void ZelQtDoubleCalcVarInput::disableValueChanged()
{
    ZelQtSingleCalcVarInput::disableValueChanged();
    mInput2->disableValueChanged();
}

void ZelQtDoubleCalcVarInput::disableValueConfirmed()
{
    ZelQtSingleCalcVarInput::disableValueConfirmed();
    mInput2->disableValueConfirmed();
}

void ZelQtDoubleCalcVarInput::followTyping(bool follow)
{
    const auto all = fields();
    for (ZelQtValueEdit *field : all) {
        if (follow)
            connect(field, &QLineEdit::textEdited, this,
                    &ZelQtDoubleCalcVarInput::updateLowPriorityIndex, Qt::UniqueConnection);
        else
            disconnect(field, &QLineEdit::textEdited, this,
                       &ZelQtDoubleCalcVarInput::updateLowPriorityIndex);
    }
}

int ZelQtDoubleCalcVarInput::lowPriorityIndex() const
{
    return lowPriorityField(fields());
}

void ZelQtDoubleCalcVarInput::setLowPriorityIndex(int index)
{
    if (index == -1)
        followTyping(false);
    else if ((index == 0 || index == 1) && lowPriorityIndex() == -1)
        followTyping(true);
    setLowPriorityField(fields(), index);
}

void ZelQtDoubleCalcVarInput::updateLowPriorityIndex()
{
    setLowPriorityExcept(fields(), sender());
}

int ZelQtDoubleCalcVarInput::highPriorityIndex() const
{
    switch (lowPriorityIndex()) {
    case 0:
        return 1;
    case 1:
        return 0;
    default:
        return -1;
    }
}

void ZelQtDoubleCalcVarInput::setHighPriorityIndex(int index)
{
    const bool valid = index == 0 || index == 1;
    followTyping(valid);
    setLowPriorityField(fields(), valid ? 1 - index : -1);
}

void ZelQtDoubleCalcVarInput::setHighPriorityWidget(ZelQtValueEdit *field)
{
    const int index = fields().indexOf(field);
    if (index != -1)
        setHighPriorityIndex(index);
}
