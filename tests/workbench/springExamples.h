#pragma once

#include "springCalculation.h"

#include <cmath>

/// The two worked examples that the tests of the spring start from.
namespace SpringExamples {
/// Own material, forces given; after V. B. Bhandari, Design of Machine Elements, example 10.1.
inline SpringInput s1()
{
    SpringInput input;
    input.mWireDiameter = 7;
    input.mCoilDiameter = 42;
    input.mActiveCoils = 8;
    input.mTotalCoils = 10;
    input.mFreeLength = 110;
    input.mMaterial = SpringMaterial{81370, 206000, 7.85, 1090};
    input.mSeating = 0.5;
    input.mRange = SpringRange::Forces;
    input.mFirstForce = 400;
    input.mSecondForce = 1250;
    return input;
}

/// Wire grade, lengths given, dynamic load.
inline SpringInput s2()
{
    SpringInput input;
    input.mWireDiameter = 2.5;
    input.mCoilDiameter = 20;
    input.mActiveCoils = 7.5;
    input.mTotalCoils = 9.5;
    input.mFreeLength = 70;
    input.mLoad = SpringLoad::Dynamic;
    input.mMaterial = *findWireGrade(wireTable(), "SH");
    input.mSeating = 1;
    input.mFirstLength = 62;
    input.mSecondLength = 46;
    return input;
}

/// Hot coiled of thick wire, without a finding.
inline SpringInput hot()
{
    SpringInput input;
    input.mWireDiameter = 16;
    input.mCoilDiameter = 100;
    input.mActiveCoils = 6;
    input.mFreeLength = 240;
    input.mCoiling = SpringCoiling::Hot;
    input.mMaterial = SpringMaterial{78500, 206000, 7.85, 1400};
    input.mFirstLength = 220;
    input.mSecondLength = 180;
    input.mPermissibleStress = 900;
    return input;
}

inline bool close(double value, double expected, double relative)
{
    return std::abs(value - expected) <= relative * std::abs(expected);
}
} // namespace SpringExamples
