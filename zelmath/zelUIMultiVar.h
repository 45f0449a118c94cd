#pragma once

#include "zelDimensions.h"
#include "zelUIVar.h"

#include <array>

/// A number, or a pair or triple of numbers, with unit, decimals and limits.
class ZELMATH_EXPORT ZelUIMultiVar : public ZelUIVar
{
public:
    /// Real number(s) for value kind 0, integers otherwise.
    explicit ZelUIMultiVar(zelWString name, ZelDimensions::Unit defaultUnit = ZelDimensions::NoUnit,
                           int componentCount = 1);
    ~ZelUIMultiVar() override;

    // ZelUIVar
    ZelVarStorage storage() const override;
    double initialNumber(int component) const override;

    /// Unit of the stored values, the limits and the initial values.
    ZelDimensions::Unit mDefaultUnit = ZelDimensions::NoUnit;
    /// 0 real number, otherwise integer; 2 also leaves the decimals of the field alone.
    int mValueKind = 0;
    short mDecimals = 4;
    bool mHasBottom = false;
    bool mHasTop = false;
    double mBottom = 0;
    double mTop = 0;
    std::array<double, 3> mInitial{};
    /// Step of a spin box.
    double mStep = 1;
    /// Shown in a spin box, which takes a number without unit.
    bool mStepped = false;
};
