#include "zelQtSpinBox.h"

#include "zelQtConfirmation_p.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <limits>

// Qt's signal of the same name, which the one without arguments hides.
static constexpr auto numberChanged = qOverload<double>(&QDoubleSpinBox::valueChanged);

template <class Integer> static Integer truncated(double value)
{
    using Limits = std::numeric_limits<Integer>;
    return static_cast<Integer>(
        std::clamp(value, static_cast<double>(Limits::min()), static_cast<double>(Limits::max())));
}

ZelQtSpinBox::ZelQtSpinBox(QWidget *parent, double value)
    : QDoubleSpinBox(parent)
{
    if (value != 0) {
        mValue = value;
        // Before the decimals: it is rounded to the two of a fresh box.
        setValue(value);
    }
    setDecimals(mDecimals);
    connect(this, numberChanged, this, &ZelQtSpinBox::emitValueChanged);
    connect(this, numberChanged, this, &ZelQtSpinBox::emitValueConfirmed);
}

ZelQtSpinBox::~ZelQtSpinBox() = default;

void ZelQtSpinBox::getWert(short &value) const
{
    value = truncated<short>(QDoubleSpinBox::value());
}

void ZelQtSpinBox::getWert(int &value) const
{
    value = truncated<int>(QDoubleSpinBox::value());
}

void ZelQtSpinBox::getWert(double &value) const
{
    value = QDoubleSpinBox::value();
}

void ZelQtSpinBox::setWert(int value)
{
    mValue = value;
    updateWert();
}

void ZelQtSpinBox::updateWert()
{
    disableValueChanged();
    disableValueConfirmed();
    setValue(mValue);
    // Both are back even where they had been cut before.
    connect(this, numberChanged, this, &ZelQtSpinBox::emitValueChanged);
    connect(this, numberChanged, this, &ZelQtSpinBox::emitValueConfirmed);
}

void ZelQtSpinBox::setOurStdWidth(bool use)
{
    mOurStdWidth = use;
    const auto policy = use ? QSizePolicy::Fixed : QSizePolicy::Preferred;
    setSizePolicy(policy, policy);
}

void ZelQtSpinBox::setOurMaxWidth(bool use)
{
    mOurMaxWidth = use;
}

QSize ZelQtSpinBox::sizeHint() const
{
    QSize hint = QAbstractSpinBox::sizeHint();
    hint.setHeight(standardHeight(this));
    if (mOurStdWidth)
        hint.setWidth(standardWidth(this));
    if (mOurMaxWidth)
        hint.setWidth(::maximumWidth(this));
    return hint;
}

void ZelQtSpinBox::setup(ZelUIMultiVar *variable, AttrMap &attributes, int component, double step)
{
    const QScopedValueRollback<bool> silent(mSilent, true);
    ZelUISpinBox::setup(variable, attributes, component, step);
    applyElementName(this, nullptr);
    setDecimals(mDecimals);
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

void ZelQtSpinBox::updateState(Meta *meta, int64_t id)
{
    ZelUIValueEdit::updateState(meta, id);
    setEnabled(mEnabled);
    setVisible(mVisible);
}

void ZelQtSpinBox::setData(Meta *meta, int64_t id)
{
    ZelUISpinBox::setData(meta, id);
    updateWert();
}

void ZelQtSpinBox::getData(Meta *meta, int64_t id)
{
    mValue = QDoubleSpinBox::value();
    ZelUISpinBox::getData(meta, id);
}

void ZelQtSpinBox::setRange(double bottom, double top, bool inCurrentUnit)
{
    ZelUISpinBox::setRange(bottom, top, inCurrentUnit);
    // New limits may move the number, which is no edit of the user.
    const QScopedValueRollback<bool> silent(mSilent, true);
    QDoubleSpinBox::setRange(bottom, top);
}

void ZelQtSpinBox::setStep(double step)
{
    ZelUISpinBox::setStep(step);
    setSingleStep(step);
}

void ZelQtSpinBox::disableValueChanged()
{
    disconnect(this, numberChanged, this, &ZelQtSpinBox::emitValueChanged);
}

void ZelQtSpinBox::disableValueConfirmed()
{
    disconnect(this, numberChanged, this, &ZelQtSpinBox::emitValueConfirmed);
}

void ZelQtSpinBox::emitValueChanged()
{
    if (!mSilent)
        tellValueChanged(this);
}

void ZelQtSpinBox::emitValueConfirmed()
{
    if (!mSilent)
        tellValueConfirmed(this);
}
