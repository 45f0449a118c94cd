#pragma once

#include "zelDimensions.h"
#include "zelUIItem.h"

class ZelUIMultiVar;

/// The unit behind a value, from which the user changes the unit of the line.
class ZELCORE_EXPORT ZelUIUnitLabel : public ZelUIItem
{
public:
    ZelUIUnitLabel();
    ~ZelUIUnitLabel() override;

    using ZelUIItem::setup;

    virtual void setup(ZelUIMultiVar *variable, AttrMap &attributes);
    /// Shows `unit`; with `defaultToo` it becomes the default unit as well. In an element a unit of
    /// another dimension is refused with false; a known one reaches all inputs of the line, whose
    /// limits are set again, and is remembered in the Meta of the element's last setData. Outside
    /// an element every known unit is taken, and one of another dimension becomes the default unit
    /// too. NoUnit, the unit of an unknown text, is refused unless it is the current unit.
    virtual bool setUnit(ZelDimensions::Unit unit, bool defaultToo);

    void setData(Meta *meta, int64_t id) override;

    zelWString getUnitString() const;
    /// Texts of all units of the current unit's dimension, in menu order.
    std::vector<zelWString> getUnitStringList() const;

    ZelDimensions::Unit mDefaultUnit = ZelDimensions::NoUnit;
    ZelDimensions::Unit mCurrentUnit = ZelDimensions::NoUnit;
    /// What a label with the default unit DynamicUnit shows.
    zelWString mDynamicText;
};
