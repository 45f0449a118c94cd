#include "zelQtDoubleValidator.h"
#include "zelQtIntValidator.h"
#include "zelQtSaturate_p.h"
#include "zelQtValueEdit.h"

#include "zelQtConversions.h"

#include <bit>
#include <cfloat>
#include <climits>
#include <cstdint>

// The part of the value edit that deals with its validator: mode, decimals, notation and limits
// live there. A validator is replaced, never changed.

static bool sameBits(double a, double b)
{
    return std::bit_cast<uint64_t>(a) == std::bit_cast<uint64_t>(b);
}

bool ZelQtValueEdit::isOfTypeInteger() const
{
    return qobject_cast<const QIntValidator *>(validator()) != nullptr;
}

void ZelQtValueEdit::setTypeToInteger(bool integer)
{
    if (integer)
        setIntValidator();
    else
        setDoubleValidator(mDecimals, false);
}

int ZelQtValueEdit::defaultDecimals() const
{
    const auto *real = qobject_cast<const QDoubleValidator *>(validator());
    return real ? real->decimals() : 0;
}

void ZelQtValueEdit::setDefaultDecimals(int decimals)
{
    if (!isOfTypeInteger())
        setDoubleValidator(decimals, false);
}

bool ZelQtValueEdit::isScientificNotation() const
{
    const auto *real = qobject_cast<const QDoubleValidator *>(validator());
    return real && real->notation() == QDoubleValidator::ScientificNotation;
}

void ZelQtValueEdit::setScientificNotation(bool on)
{
    // With the decimals of the process, on purpose, and not with those of the field.
    if (!isOfTypeInteger())
        setDoubleValidator(mDefaultDecimals, on);
}

void ZelQtValueEdit::setIntValidator()
{
    if (isOfTypeInteger())
        return;
    auto *integer = new ZelQtIntValidator(this);
    if (const auto *old = qobject_cast<const QDoubleValidator *>(validator())) {
        // DBL_MIN is the smallest positive number: a bottom of 0 or below is lost, and the field
        // open downward until the next updateRange(). So it is meant.
        if (old->bottom() > DBL_MIN)
            integer->setBottom(saturate<int>(old->bottom()));
        if (old->top() < DBL_MAX)
            integer->setTop(saturate<int>(old->top()));
    }
    replaceValidator(integer);
}

void ZelQtValueEdit::setDoubleValidator(int decimals, bool scientific)
{
    auto *real = new ZelQtDoubleValidator(this);
    real->setDecimals(decimals);
    if (scientific)
        real->setNotation(QDoubleValidator::ScientificNotation);
    if (const auto *old = qobject_cast<const QIntValidator *>(validator())) {
        if (old->bottom() != INT_MIN)
            real->setBottom(old->bottom());
        if (old->top() != INT_MAX)
            real->setTop(old->top());
    } else if (const auto *old = qobject_cast<const QDoubleValidator *>(validator())) {
        // As in setIntValidator().
        if (old->bottom() > DBL_MIN)
            real->setBottom(old->bottom());
        if (old->top() < DBL_MAX)
            real->setTop(old->top());
    }
    replaceValidator(real);
}

void ZelQtValueEdit::setRange(double bottom, double top, bool inCurrentUnit)
{
    ZelUIValueEdit::setRange(bottom, top, inCurrentUnit);
    updateRange();
}

void ZelQtValueEdit::setBottom(double bottom)
{
    ZelUIValueEdit::setBottom(bottom);
    updateBottom();
}

void ZelQtValueEdit::setTop(double top)
{
    ZelUIValueEdit::setTop(top);
    updateTop();
}

void ZelQtValueEdit::updateRange()
{
    if (mHasBottom && mHasTop) {
        setLimits(toCurrentUnit(mBottom), toCurrentUnit(mTop));
    } else {
        updateBottom();
        updateTop();
    }
}

void ZelQtValueEdit::updateBottom()
{
    if (mHasBottom)
        setLimits(toCurrentUnit(mBottom), validatorTop());
}

void ZelQtValueEdit::updateTop()
{
    if (mHasTop)
        setLimits(validatorBottom(), toCurrentUnit(mTop));
}

void ZelQtValueEdit::changeUnit(const QString &newUnit)
{
    const ZelDimensions::Unit unit = stringToUnit(newUnit);
    if (mHasBottom || mHasTop) {
        // What is converted are the ends of a fresh validator, not the limits of the field: until
        // the next updateRange(), which every setData() runs, any number can be typed.
        if (isOfTypeInteger()) {
            auto *integer = new ZelQtIntValidator(this);
            if (mHasBottom)
                integer->setBottom(saturate<int>(
                    ZelDimensions::changeUnit(integer->bottom(), mCurrentUnit, unit)));
            if (mHasTop)
                integer->setTop(
                    saturate<int>(ZelDimensions::changeUnit(integer->top(), mCurrentUnit, unit)));
            replaceValidator(integer);
        } else {
            auto *real = new ZelQtDoubleValidator(this);
            real->setDecimals(defaultDecimals());
            if (mHasBottom)
                real->setBottom(ZelDimensions::changeUnit(real->bottom(), mCurrentUnit, unit));
            if (mHasTop)
                real->setTop(ZelDimensions::changeUnit(real->top(), mCurrentUnit, unit));
            replaceValidator(real);
        }
    }
    ZelUIValueEdit::setCurrentUnit(unit);
    updateWert();
}

// What updateRange() would make is there already. A refresh asks for every field of a mask.
bool ZelQtValueEdit::hasLimits(double bottom, double top) const
{
    if (const auto *real = qobject_cast<const ZelQtDoubleValidator *>(validator()))
        return real->notation() == QDoubleValidator::StandardNotation
            && sameBits(real->bottom(), bottom) && sameBits(real->top(), top);
    const auto *integer = qobject_cast<const ZelQtIntValidator *>(validator());
    return integer && integer->bottom() == saturate<int>(bottom)
        && integer->top() == saturate<int>(top);
}

void ZelQtValueEdit::setLimits(double bottom, double top)
{
    if (hasLimits(bottom, top))
        return;
    if (isOfTypeInteger()) {
        auto *integer = new ZelQtIntValidator(this);
        integer->setRange(saturate<int>(bottom), saturate<int>(top));
        replaceValidator(integer);
    } else {
        // Standard notation: an update of the range ends the scientific one, on purpose.
        auto *real = new ZelQtDoubleValidator(this);
        real->setRange(bottom, top, defaultDecimals());
        replaceValidator(real);
    }
}

double ZelQtValueEdit::validatorBottom() const
{
    if (const auto *integer = qobject_cast<const QIntValidator *>(validator()))
        return integer->bottom();
    const auto *real = qobject_cast<const QDoubleValidator *>(validator());
    return real ? real->bottom() : -std::numeric_limits<double>::infinity();
}

double ZelQtValueEdit::validatorTop() const
{
    if (const auto *integer = qobject_cast<const QIntValidator *>(validator()))
        return integer->top();
    const auto *real = qobject_cast<const QDoubleValidator *>(validator());
    return real ? real->top() : std::numeric_limits<double>::infinity();
}

double ZelQtValueEdit::toCurrentUnit(double value) const
{
    return ZelDimensions::changeUnit(value, mDefaultUnit, mCurrentUnit);
}

void ZelQtValueEdit::replaceValidator(QValidator *validator)
{
    const QValidator *old = this->validator();
    setValidator(validator);
    delete old;
}
