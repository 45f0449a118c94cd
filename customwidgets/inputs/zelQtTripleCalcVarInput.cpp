#include "zelQtTripleCalcVarInput.h"

#include "zelQtConversions.h"
#include "zelQtFieldPriority_p.h"
#include "zelQtUnitLabel.h"
#include "zelQtValueEdit.h"

#include <QHBoxLayout>

ZelQtTripleCalcVarInput::ZelQtTripleCalcVarInput(QWidget *parent)
    : ZelQtDoubleCalcVarInput(parent)
    , mInput3(insertField(4))
{
    // Straight after the first field, in front of the second: Tab is meant to go 1, 3, 2.
    QWidget::setTabOrder(mInput, mInput3);
    connect(mUnit, qOverload<QString>(&ZelQtUnitLabel::unitChanged), mInput3,
            &ZelQtValueEdit::changeUnit);
}

ZelQtTripleCalcVarInput::~ZelQtTripleCalcVarInput() = default;

void ZelQtTripleCalcVarInput::getWert(double &first, double &second, double &third,
                                      const QString &unit) const
{
    ZelQtDoubleCalcVarInput::getWert(first, second, unit);
    mInput3->getWert(third, unit);
}

void ZelQtTripleCalcVarInput::getWert(short &first, short &second, short &third,
                                      const QString &unit) const
{
    ZelQtDoubleCalcVarInput::getWert(first, second, unit);
    mInput3->getWert(third, unit);
}

void ZelQtTripleCalcVarInput::setWert(double first, double second, double third,
                                      const QString &unit)
{
    ZelQtDoubleCalcVarInput::setWert(first, second, unit);
    mInput3->setWert(third, unit);
}

void ZelQtTripleCalcVarInput::getWert3(double &third, const QString &unit) const
{
    mInput3->getWert(third, unit);
}

void ZelQtTripleCalcVarInput::getWert3(short &third, const QString &unit) const
{
    mInput3->getWert(third, unit);
}

void ZelQtTripleCalcVarInput::setWert3(double third, const QString &unit)
{
    mInput3->setWert(third, unit);
}

void ZelQtTripleCalcVarInput::setDefaultUnit(const QString &unit)
{
    mInput3->ZelUIValueEdit::setDefaultUnit(stringToUnit(unit));
    ZelQtDoubleCalcVarInput::setDefaultUnit(unit);
}

void ZelQtTripleCalcVarInput::setCurrentUnit(const QString &unit)
{
    showInUnit(mInput3, unit);
    ZelQtDoubleCalcVarInput::setCurrentUnit(unit);
}

void ZelQtTripleCalcVarInput::setTypeToInteger(bool integer)
{
    ZelQtDoubleCalcVarInput::setTypeToInteger(integer);
    mInput3->setTypeToInteger(integer);
}

void ZelQtTripleCalcVarInput::setDefaultDecimals(int decimals)
{
    ZelQtDoubleCalcVarInput::setDefaultDecimals(decimals);
    mInput3->setDefaultDecimals(decimals);
}

bool ZelQtTripleCalcVarInput::isEditable() const
{
    if (mReact1)
        return !mInput->isReadOnly();
    return mReact2 ? !mInput2->isReadOnly() : !mInput3->isReadOnly();
}

void ZelQtTripleCalcVarInput::setEditable(bool editable)
{
    // Narrower than it looks, and meant so: with true, true, false this is no misuse.
    if (mReact1 != mReact2 && mReact1 != mReact3) {
        misuse("ZelQtTripleCalcVarInput::setEditable(bool) wurde für Eingabefelder mit "
               "unterschiedlichem Verhalten verwendet",
               __FILE__, __LINE__);
        return;
    }
    ZelQtCalcVarInput::setEditable(editable);
}

void ZelQtTripleCalcVarInput::setEditable(bool first, bool second, bool third)
{
    mInput->setReadOnly(!first);
    mInput2->setReadOnly(!second);
    mInput3->setReadOnly(!third);
    if (mReact1)
        followEditable(first);
    else
        followEditable(mReact2 ? second : third);
}

void ZelQtTripleCalcVarInput::setActive(bool first, bool second, bool third)
{
    ZelQtDoubleCalcVarInput::setActive(first, second);
    mInput3->setActive(third);
}

void ZelQtTripleCalcVarInput::setMessageState(int first, int second, int third)
{
    mInput->setMessageState(first);
    // The third field is meant to have no message state: the second shows the third one's.
    mInput2->setMessageState(second);
    mInput2->setMessageState(third);
}

void ZelQtTripleCalcVarInput::setReactToToggle(bool first, bool second, bool third)
{
    if (!first && !second && !third) {
        misuse("ZelQtTripleCalcVarInput::setReactToToggle() kein Eingabefeld kommuniziert mit dem "
               "Edit-Button",
               __FILE__, __LINE__);
        return;
    }
    mReact1 = first;
    mReact2 = second;
    mReact3 = third;
}

void ZelQtTripleCalcVarInput::setInputEditable(bool editable)
{
    ZelQtDoubleCalcVarInput::setInputEditable(editable);
    if (mReact3)
        mInput3->setReadOnly(!editable);
}

int ZelQtTripleCalcVarInput::inputWidth() const
{
    return ZelQtDoubleCalcVarInput::inputWidth() + mLayout->spacing() + mInput3->sizeHint().width();
}

void ZelQtTripleCalcVarInput::followTyping(bool follow)
{
    const auto all = fields();
    for (ZelQtValueEdit *field : all) {
        if (follow)
            connect(field, &QLineEdit::textEdited, this,
                    &ZelQtTripleCalcVarInput::updateLowPriorityIndex, Qt::UniqueConnection);
        else
            disconnect(field, &QLineEdit::textEdited, this,
                       &ZelQtTripleCalcVarInput::updateLowPriorityIndex);
    }
}

int ZelQtTripleCalcVarInput::lowPriorityIndex() const
{
    return lowPriorityField(fields());
}

void ZelQtTripleCalcVarInput::setLowPriorityIndex(int index)
{
    if (index == -1)
        followTyping(false);
    else if (index >= 0 && index <= 2 && lowPriorityIndex() == -1)
        followTyping(true);
    setLowPriorityField(fields(), index);
}

void ZelQtTripleCalcVarInput::updateLowPriorityIndex()
{
    setLowPriorityExcept(fields(), sender());
}

int ZelQtTripleCalcVarInput::highPriorityIndex() const
{
    const int low = lowPriorityIndex();
    return low == -1 ? -1 : 2 - low;
}

void ZelQtTripleCalcVarInput::setHighPriorityIndex(int index)
{
    // Opposite field: for 1 that is the second one itself, which is meant.
    const bool valid = index >= 0 && index <= 2;
    followTyping(valid);
    setLowPriorityField(fields(), valid ? 2 - index : -1);
}

void ZelQtTripleCalcVarInput::setHighPriorityWidget(ZelQtValueEdit *field)
{
    const int index = fields().indexOf(field);
    if (index != -1)
        setHighPriorityIndex(index);
}
