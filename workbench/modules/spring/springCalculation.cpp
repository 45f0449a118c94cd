#include "springCalculation.h"

#include "springChecks.h"

#include <cmath>
#include <numbers>

using std::numbers::pi;

// Loss of shear modulus per kelvin above 20 °C, EN 13906-1 for patented cold drawn wire.
static constexpr double shearModulusLoss = 0.25e-3;

// Share of the tensile strength that the uncorrected stress of a cold coiled spring may reach at
// solid length.
static constexpr double permissibleShare = 0.56;

// Rounded by the standard; exactly 1000 sqrt(1000) / (2 pi sqrt(2)) = 3558.8.
static constexpr double frequencyConstant = 3560;

static double square(double value)
{
    return value * value;
}

static double cube(double value)
{
    return value * value * value;
}

static bool isCold(const SpringInput &input)
{
    return input.mCoiling == SpringCoiling::Cold;
}

static void setMaterial(SpringValues &values, const SpringInput &input)
{
    if (const auto *own = std::get_if<SpringMaterial>(&input.mMaterial)) {
        values.mShearModulus = own->mShearModulus;
        values.mElasticModulus = own->mElasticModulus;
        values.mDensity = own->mDensity;
        values.mTensileStrength = own->mTensileStrength;
        return;
    }
    const auto &grade = std::get<WireGrade>(input.mMaterial);
    values.mShearModulus = grade.mShearModulus * (1 - shearModulusLoss * (input.mTemperature - 20));
    values.mElasticModulus = grade.mElasticModulus;
    values.mDensity = grade.mDensity;
    values.mTensileStrength = grade.tensileStrength(input.mWireDiameter);
}

// A grade may be handed in with wrong values, and heat beyond all sense leaves no shear modulus.
static std::vector<SpringFinding> checkMaterial(const SpringValues &values)
{
    std::vector<SpringFinding> findings;
    if (!(values.mShearModulus > 0))
        findings.push_back({SpringMessage::NotPositive,
                            SpringSeverity::Error,
                            {SpringField::ShearModulus, SpringField::Temperature}});
    if (!(values.mElasticModulus > 0 && values.mDensity > 0 && values.mTensileStrength > 0))
        findings.push_back(
            {SpringMessage::NotPositive, SpringSeverity::Error, {SpringField::Grade}});
    return findings;
}

static double correctionFactor(double index, SpringCorrection correction)
{
    if (correction == SpringCorrection::Wahl)
        return (4 * index - 1) / (4 * index - 4) + 0.615 / index;
    return (index + 0.5) / (index - 0.75);
}

static double totalCoils(const SpringInput &input)
{
    return input.mTotalCoils.value_or(input.mActiveCoils + (isCold(input) ? 2 : 1.5));
}

static double largestWireDiameter(const SpringInput &input)
{
    return input.mLargestWireDiameter.value_or(input.mWireDiameter);
}

double springSolidLength(const SpringInput &input)
{
    const bool ground = input.mEnds == SpringEnds::Ground;
    const double more = isCold(input) ? (ground ? 0 : 1.5) : (ground ? -0.3 : 1.1);
    return (totalCoils(input) + more) * largestWireDiameter(input);
}

static double springRate(const SpringInput &input, double shearModulus)
{
    return shearModulus * square(square(input.mWireDiameter))
        / (8 * cube(input.mCoilDiameter) * input.mActiveCoils);
}

static double smallestGap(const SpringInput &input)
{
    const double wire = input.mWireDiameter;
    const double coil = input.mCoilDiameter;
    const bool dynamic = input.mLoad == SpringLoad::Dynamic;
    if (isCold(input))
        return input.mActiveCoils * (0.0015 * square(coil) / wire + 0.1 * wire)
            * (dynamic ? 1.5 : 1);
    return 0.02 * input.mActiveCoils * (coil + wire) * (dynamic ? 2 : 1);
}

static SpringPoint pointAt(double deflection, const SpringInput &input, const SpringValues &values)
{
    SpringPoint point;
    point.mDeflection = deflection;
    point.mLength = input.mFreeLength - deflection;
    point.mForce = values.mRate * deflection;
    point.mStress = 8 * input.mCoilDiameter * point.mForce / (pi * cube(input.mWireDiameter));
    point.mCorrectedStress = values.mCorrection * point.mStress;
    return point;
}

static void setGeometry(SpringValues &values, const SpringInput &input)
{
    const double wire = input.mWireDiameter;
    const double coil = input.mCoilDiameter;
    values.mTotalCoils = totalCoils(input);
    values.mLargestWireDiameter = largestWireDiameter(input);
    values.mIndex = coil / wire;
    values.mOuterDiameter = coil + wire;
    values.mInnerDiameter = coil - wire;
    values.mCorrection = correctionFactor(values.mIndex, input.mCorrection);
    values.mRate = springRate(input, values.mShearModulus);
    values.mSmallestGap = smallestGap(input);

    const double solid = springSolidLength(input);
    values.mSolid = pointAt(input.mFreeLength - solid, input, values);
    values.mSolid.mLength = solid; // not by way of the deflection, which rounds
    values.mUsable = pointAt(input.mFreeLength - solid - values.mSmallestGap, input, values);
    values.mUsable.mLength = solid + values.mSmallestGap;
}

static void setWorkingRange(SpringValues &values, const SpringInput &input)
{
    if (input.mRange == SpringRange::Lengths) {
        values.mFirst = pointAt(input.mFreeLength - input.mFirstLength, input, values);
        values.mSecond = pointAt(input.mFreeLength - input.mSecondLength, input, values);
        values.mFirst.mLength = input.mFirstLength;
        values.mSecond.mLength = input.mSecondLength;
    } else {
        values.mFirst = pointAt(input.mFirstForce / values.mRate, input, values);
        values.mSecond = pointAt(input.mSecondForce / values.mRate, input, values);
        values.mFirst.mForce = input.mFirstForce;
        values.mSecond.mForce = input.mSecondForce;
    }
    values.mStroke = values.mSecond.mDeflection - values.mFirst.mDeflection;
    values.mWork = (values.mFirst.mForce + values.mSecond.mForce) / 2 * values.mStroke;
}

static void setStrength(SpringValues &values, const SpringInput &input)
{
    values.mCorrectedStressRange = values.mSecond.mCorrectedStress - values.mFirst.mCorrectedStress;
    values.mPermissibleStress = isCold(input) ? permissibleShare * values.mTensileStrength
                                              : input.mPermissibleStress.value_or(0);
    values.mSolidSafety = values.mPermissibleStress / values.mSolid.mStress;
    if (values.mSecond.mStress > 0)
        values.mSecondSafety = values.mPermissibleStress / values.mSecond.mStress;
}

// s_K = L_0 · 0.5 / (1 - G/E) · (1 - sqrt(ρ_K)) with 1 - sqrt(ρ_K) = (1 - ρ_K) / (1 + sqrt(ρ_K)):
// the factor 1 - G/E falls out, and G = E divides by nothing.
static void setBuckling(SpringValues &values, const SpringInput &input)
{
    const double ratio = values.mShearModulus / values.mElasticModulus;
    const double slope =
        square(pi * input.mCoilDiameter / (input.mSeating * input.mFreeLength)) / (0.5 + ratio);
    values.mSlenderness = input.mFreeLength / input.mCoilDiameter;
    values.mBucklingRadicand = 1 - (1 - ratio) * slope;
    if (values.mBucklingRadicand < 0)
        return;
    values.mBucklingDeflection =
        input.mFreeLength * 0.5 * slope / (1 + std::sqrt(values.mBucklingRadicand));
    if (values.mSecond.mDeflection > 0)
        values.mBucklingRatio = *values.mBucklingDeflection / values.mSecond.mDeflection;
}

static void setFurther(SpringValues &values, const SpringInput &input)
{
    const double wire = input.mWireDiameter;
    const double coil = input.mCoilDiameter;
    values.mFrequency = frequencyConstant * wire / (input.mActiveCoils * square(coil))
        * std::sqrt(values.mShearModulus / values.mDensity);
    values.mWireLength = pi * coil * values.mTotalCoils;
    values.mMass = values.mDensity * 1e-6 * pi * square(wire) / 4 * values.mWireLength;
    if (input.mEnds != SpringEnds::Ground)
        return;
    const double pitch = values.mSolid.mDeflection / input.mActiveCoils + wire;
    values.mPitch = pitch;
    values.mOuterGrowth = 0.1 * (square(pitch) - 0.8 * pitch * wire - 0.2 * square(wire)) / coil;
}

// What the formulas divide by must not become 0 on the way, as the powers of a tiny wire do. The
// index needs no look: a quotient of two different numbers never rounds to 1, the pole of Wahl's
// factor.
static bool divisorsExist(const SpringInput &input)
{
    const double coil = input.mCoilDiameter;
    return std::isnormal(cube(input.mWireDiameter))
        && std::isnormal(8 * cube(coil) * input.mActiveCoils)
        && std::isnormal(input.mActiveCoils * square(coil))
        && std::isnormal(input.mSeating * input.mFreeLength);
}

static std::vector<SpringFinding> outOfNumberRange()
{
    return {{SpringMessage::OutOfNumberRange,
             SpringSeverity::Error,
             {SpringField::WireDiameter, SpringField::CoilDiameter, SpringField::ActiveCoils,
              SpringField::FreeLength}}};
}

SpringResult calculateSpring(const SpringInput &input)
{
    SpringResult result;
    result.mFindings = checkSpringInput(input);
    if (!result.mFindings.empty())
        return result;
    SpringValues values;
    setMaterial(values, input);
    result.mFindings = checkMaterial(values);
    if (!result.mFindings.empty())
        return result;
    if (!divisorsExist(input)) {
        result.mFindings = outOfNumberRange();
        return result;
    }
    setGeometry(values, input);
    result.mFindings = checkSpringLengths(input, values);
    if (result.mFindings.empty()
        && !(std::isnormal(values.mRate) && std::isnormal(values.mSolid.mStress)))
        result.mFindings = outOfNumberRange();
    if (!result.mFindings.empty())
        return result;
    setWorkingRange(values, input);
    setStrength(values, input);
    setBuckling(values, input);
    setFurther(values, input);
    if (!springValuesFinite(values)) {
        result.mFindings = outOfNumberRange();
        return result;
    }
    result.mFindings = springWarnings(input, values);
    result.mValues = values;
    return result;
}

bool changeSpringRange(SpringInput &input, SpringRange range)
{
    if (range == input.mRange)
        return true;
    const double free = input.mFreeLength;
    if (!(input.mWireDiameter > 0 && input.mCoilDiameter > 0 && input.mActiveCoils > 0 && free > 0))
        return false;
    SpringValues values;
    setMaterial(values, input);
    const double rate = springRate(input, values.mShearModulus);
    if (!(rate > 0))
        return false;

    const bool forces = range == SpringRange::Forces;
    const double first =
        forces ? (free - input.mFirstLength) * rate : free - input.mFirstForce / rate;
    const double second =
        forces ? (free - input.mSecondLength) * rate : free - input.mSecondForce / rate;
    if (!std::isfinite(first) || !std::isfinite(second))
        return false;
    (forces ? input.mFirstForce : input.mFirstLength) = first;
    (forces ? input.mSecondForce : input.mSecondLength) = second;
    input.mRange = range;
    return true;
}
