#include "zelUIUnitLabel.h"

#include "meta.h"
#include "zelUIMultiVar.h"
#include "zelUIStdElement.h"

ZelUIUnitLabel::ZelUIUnitLabel()
{
    setModelKind(L"unit");
}

ZelUIUnitLabel::~ZelUIUnitLabel() = default;

void ZelUIUnitLabel::setup(ZelUIMultiVar *variable, AttrMap &attributes)
{
    ZelUIObject::setup(variable, attributes);
    if (!variable)
        return;
    mDefaultUnit = variable->mDefaultUnit;
    mCurrentUnit = ZelDimensions::defaultUnit(mDefaultUnit, true);
}

bool ZelUIUnitLabel::setUnit(ZelDimensions::Unit unit, bool defaultToo)
{
    const bool sameDimension = ZelDimensions::getType(unit) == ZelDimensions::getType(mDefaultUnit);
    auto *element = dynamic_cast<ZelUIStdElement *>(modelParent());
    const bool known = unit == ZelDimensions::DynamicUnit || unit == mCurrentUnit
        || ZelDimensions::getType(unit) != ZelDimensions::NoType;
    if (!known || (element && !sameDimension))
        return false;
    mCurrentUnit = unit;
    if (defaultToo || !sameDimension)
        mDefaultUnit = unit;
    if (element)
        element->modelSetUnit(unit);
    return true;
}

void ZelUIUnitLabel::setData(Meta *meta, int64_t id)
{
    ZelUIItem::setData(meta, id);
    if (meta && modelVariable() && mDefaultUnit != ZelDimensions::DynamicUnit)
        mCurrentUnit = meta->currentUnit(*modelVariable(), id);
}

zelWString ZelUIUnitLabel::getUnitString() const
{
    return mDefaultUnit == ZelDimensions::DynamicUnit
        ? mDynamicText
        : zelWString(ZelDimensions::getString(mCurrentUnit));
}

std::vector<zelWString> ZelUIUnitLabel::getUnitStringList() const
{
    const auto texts = ZelDimensions::getStringList(ZelDimensions::getType(mCurrentUnit));
    return {texts.begin(), texts.end()};
}
