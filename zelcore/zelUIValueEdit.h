#pragma once

#include "zelDimensions.h"
#include "zelUIInput.h"

class ZelUIMultiVar;

/// A number with units and limits. Value and limits count in mDefaultUnit, the user sees
/// mCurrentUnit.
class ZELCORE_EXPORT ZelUIValueEdit : public ZelUIInput
{
public:
    ZelUIValueEdit();
    explicit ZelUIValueEdit(ZelDimensions::Unit defaultUnit);
    ZelUIValueEdit(ZelDimensions::Unit defaultUnit, ZelDimensions::Unit currentUnit);
    ~ZelUIValueEdit() override;

    using ZelUIInput::setup;

    /// `component` from 0.
    virtual void setup(ZelUIMultiVar *variable, AttrMap &attributes, int component);
    /// Leaves the numbers as they are; the current unit follows when its dimension is another one.
    virtual void setDefaultUnit(ZelDimensions::Unit unit);
    /// A unit of another dimension changes nothing.
    virtual void setCurrentUnit(ZelDimensions::Unit unit);
    /// Limits in the default unit, or in the current unit with `inCurrentUnit`.
    virtual void setRange(double bottom, double top, bool inCurrentUnit);
    /// In the default unit.
    virtual void setBottom(double bottom);
    virtual void setTop(double top);

    void setData(Meta *meta, int64_t id) override;
    /// What is beyond the limits is stored as the limit.
    void getData(Meta *meta, int64_t id) override;
    bool setUserInput(Meta *meta, int64_t id, const zelWString &text, bool &changed) override;
    zelWString getRenderedData() override;

    double top() const { return mTop; }
    double bottom() const { return mBottom; }
    ZelDimensions::Unit defaultUnit() const { return mDefaultUnit; }
    ZelDimensions::Unit currentUnit() const { return mCurrentUnit; }
    zelWString getCurrentUnitString() const;
    double valueInCurrentUnit() const;

    double mValue = 0;
    ZelDimensions::Unit mDefaultUnit = ZelDimensions::NoUnit;
    ZelDimensions::Unit mCurrentUnit = ZelDimensions::NoUnit;
    bool mHasBottom = false;
    bool mHasTop = false;
    double mBottom = 0;
    double mTop = 0;
    /// 0 real number, otherwise integer; 2 also leaves the decimals of the field alone.
    int mValueKind = 0;
    short mDecimals = 4;

private:
    double storedValue(const Meta &meta, int64_t id) const;
    double withinLimits(double value) const;
    void writeValue(Meta &meta, int64_t id);

    ZelUIMultiVar *mNumber = nullptr;
    double mLoadedValue = 0;
};
