#include "zelUIValueEdit.h"

#include "meta.h"
#include "runde.h"
#include "zelNumberInput_p.h"
#include "zelSameBits_p.h"
#include "zelUIMultiVar.h"

#include <cmath>

ZelUIValueEdit::ZelUIValueEdit() = default;

ZelUIValueEdit::ZelUIValueEdit(ZelDimensions::Unit defaultUnit)
    : ZelUIValueEdit(defaultUnit, defaultUnit)
{
}

ZelUIValueEdit::ZelUIValueEdit(ZelDimensions::Unit defaultUnit, ZelDimensions::Unit currentUnit)
    : mDefaultUnit(defaultUnit)
    , mCurrentUnit(currentUnit)
{
}

ZelUIValueEdit::~ZelUIValueEdit() = default;

void ZelUIValueEdit::setup(ZelUIMultiVar *variable, AttrMap &attributes, int component)
{
    ZelUIObject::setup(variable, attributes);
    setModelComponent(component);
    mNumber = variable;
    if (!variable)
        return;
    mDefaultUnit = variable->mDefaultUnit;
    mCurrentUnit = ZelDimensions::defaultUnit(mDefaultUnit, true);
    mValueKind = variable->mValueKind;
    mDecimals = variable->mDecimals;
    mHasBottom = variable->mHasBottom;
    mHasTop = variable->mHasTop;
    mBottom = variable->mBottom;
    mTop = variable->mTop;
    modelTakePriorityName();
}

void ZelUIValueEdit::setDefaultUnit(ZelDimensions::Unit unit)
{
    mDefaultUnit = unit;
    if (ZelDimensions::getType(mCurrentUnit) != ZelDimensions::getType(unit))
        mCurrentUnit = unit;
}

void ZelUIValueEdit::setCurrentUnit(ZelDimensions::Unit unit)
{
    if (ZelDimensions::getType(unit) == ZelDimensions::getType(mDefaultUnit))
        mCurrentUnit = unit;
}

void ZelUIValueEdit::setRange(double bottom, double top, bool inCurrentUnit)
{
    const ZelDimensions::Unit unit = inCurrentUnit ? mCurrentUnit : mDefaultUnit;
    mHasBottom = true;
    mHasTop = true;
    mBottom = ZelDimensions::changeUnit(bottom, unit, mDefaultUnit);
    mTop = ZelDimensions::changeUnit(top, unit, mDefaultUnit);
}

void ZelUIValueEdit::setBottom(double bottom)
{
    mHasBottom = true;
    mBottom = bottom;
}

void ZelUIValueEdit::setTop(double top)
{
    mHasTop = true;
    mTop = top;
}

double ZelUIValueEdit::storedValue(const Meta &meta, int64_t id) const
{
    if (mNumber->mValueKind == 0)
        return meta.real(*mNumber, id, mComponent);
    return static_cast<double>(meta.integer(*mNumber, id, mComponent));
}

double ZelUIValueEdit::withinLimits(double value) const
{
    if (mHasBottom && value < mBottom)
        value = mBottom;
    if (mHasTop && value > mTop)
        value = mTop;
    return value;
}

void ZelUIValueEdit::writeValue(Meta &meta, int64_t id)
{
    if (mNumber->mValueKind == 0)
        meta.setReal(*mNumber, id, mComponent, mValue, ZelOrigin::User);
    else
        meta.setInteger(*mNumber, id, mComponent, zelToInteger(mValue), ZelOrigin::User);
    if (modelIsLoaded(&meta, id))
        mLoadedValue = mValue;
    modelNoteTyped(meta, id);
}

void ZelUIValueEdit::setData(Meta *meta, int64_t id)
{
    ZelUIInput::setData(meta, id);
    if (!meta || !mNumber)
        return;
    mValue = mLoadedValue = storedValue(*meta, id);
    mCurrentUnit = meta->currentUnit(*mNumber, id);
}

void ZelUIValueEdit::getData(Meta *meta, int64_t id)
{
    if (!modelMayWrite(meta) || !mNumber)
        return;
    if (modelIsLoaded(meta, id) && sameBits(mValue, mLoadedValue))
        return;
    // A field keeps the number as it was typed while it corrects its text to the limit.
    mValue = withinLimits(mValue);
    if (!sameBits(mValue, storedValue(*meta, id)))
        writeValue(*meta, id);
}

bool ZelUIValueEdit::setUserInput(Meta *meta, int64_t id, const zelWString &text, bool &changed)
{
    changed = false;
    const std::optional<double> number = zelReadNumber(text);
    if (!modelMayWrite(meta) || !mNumber || !number)
        return false;
    if (mValueKind != 0 && *number != std::trunc(*number))
        return false;
    mValue = withinLimits(ZelDimensions::changeUnit(*number, mCurrentUnit, mDefaultUnit));
    changed = !sameBits(mValue, storedValue(*meta, id));
    if (changed)
        writeValue(*meta, id);
    return true;
}

zelWString ZelUIValueEdit::getRenderedData()
{
    if (!mEnabled)
        return {};
    const double shown = valueInCurrentUnit();
    return mValueKind == 0 ? zelFixedText(shown, mDecimals) : zelFixedText(Runde(shown, 0), 0);
}

zelWString ZelUIValueEdit::getCurrentUnitString() const
{
    return ZelDimensions::getString(mCurrentUnit);
}

double ZelUIValueEdit::valueInCurrentUnit() const
{
    return ZelDimensions::changeUnit(mValue, mDefaultUnit, mCurrentUnit);
}
