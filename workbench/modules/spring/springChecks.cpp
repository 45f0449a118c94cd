#include "springChecks.h"

#include <array>
#include <cmath>
#include <initializer_list>

using Field = SpringField;

namespace {
struct InputValue
{
    double mValue;
    Field mField;
    bool mPositive; ///< 0 and less are errors
};

class Findings
{
public:
    void error(SpringMessage code, std::vector<Field> fields)
    {
        mList.push_back({code, SpringSeverity::Error, std::move(fields)});
    }

    void warnIf(bool condition, SpringMessage code, std::vector<Field> fields)
    {
        if (condition)
            mList.push_back({code, SpringSeverity::Warning, std::move(fields)});
    }

    std::vector<SpringFinding> take() { return std::move(mList); }

private:
    std::vector<SpringFinding> mList;
};

bool outside(double value, double from, double to)
{
    return value < from || value > to;
}
} // namespace

static bool isHot(const SpringInput &input)
{
    return input.mCoiling == SpringCoiling::Hot;
}

static std::vector<Field> rangeFields(const SpringInput &input)
{
    if (input.mRange == SpringRange::Lengths)
        return {Field::FirstLength, Field::SecondLength};
    return {Field::FirstForce, Field::SecondForce};
}

static Field secondField(const SpringInput &input)
{
    return rangeFields(input).back();
}

// The values that the calculation reads, and no others: what stands in a pair that is not in use,
// or in the permissible stress of a cold coiled spring, must not refuse it.
static std::vector<InputValue> valuesInUse(const SpringInput &input)
{
    std::vector<InputValue> values{
        {input.mWireDiameter, Field::WireDiameter, true},
        {input.mCoilDiameter, Field::CoilDiameter, true},
        {input.mActiveCoils, Field::ActiveCoils, true},
        {input.mFreeLength, Field::FreeLength, true},
        {input.mSeating, Field::Seating, true},
        {input.mTemperature, Field::Temperature, false},
    };
    if (input.mLargestWireDiameter)
        values.push_back({*input.mLargestWireDiameter, Field::LargestWireDiameter, true});
    if (input.mTotalCoils)
        values.push_back({*input.mTotalCoils, Field::TotalCoils, true});
    if (isHot(input) && input.mPermissibleStress)
        values.push_back({*input.mPermissibleStress, Field::PermissibleStress, true});
    if (input.mRange == SpringRange::Lengths) {
        values.push_back({input.mFirstLength, Field::FirstLength, false});
        values.push_back({input.mSecondLength, Field::SecondLength, false});
    } else {
        values.push_back({input.mFirstForce, Field::FirstForce, false});
        values.push_back({input.mSecondForce, Field::SecondForce, false});
    }
    if (const auto *own = std::get_if<SpringMaterial>(&input.mMaterial)) {
        values.push_back({own->mShearModulus, Field::ShearModulus, true});
        values.push_back({own->mElasticModulus, Field::ElasticModulus, true});
        values.push_back({own->mDensity, Field::Density, true});
        values.push_back({own->mTensileStrength, Field::TensileStrength, true});
    }
    return values;
}

std::vector<SpringFinding> checkSpringInput(const SpringInput &input)
{
    Findings findings;
    bool counts = true;
    for (const InputValue &value : valuesInUse(input)) {
        if (!std::isfinite(value.mValue))
            findings.error(SpringMessage::NotFinite, {value.mField});
        else if (value.mPositive && value.mValue <= 0)
            findings.error(SpringMessage::NotPositive, {value.mField});
        else
            continue;
        counts = false;
    }
    if (isHot(input) && !input.mPermissibleStress)
        findings.error(SpringMessage::PermissibleStressMissing, {Field::PermissibleStress});
    if (!counts) // comparing the others with a wrong value would only repeat it
        return findings.take();

    if (input.mCoilDiameter <= input.mWireDiameter)
        findings.error(SpringMessage::CoilTooSmall, {Field::CoilDiameter, Field::WireDiameter});
    if (input.mLargestWireDiameter && *input.mLargestWireDiameter < input.mWireDiameter)
        findings.error(SpringMessage::LargestWireTooSmall,
                       {Field::LargestWireDiameter, Field::WireDiameter});
    if (input.mTotalCoils && *input.mTotalCoils <= input.mActiveCoils)
        findings.error(SpringMessage::TotalCoilsTooFew, {Field::TotalCoils, Field::ActiveCoils});
    const auto *grade = std::get_if<WireGrade>(&input.mMaterial);
    if (grade && !grade->availableFor(input.mWireDiameter))
        findings.error(SpringMessage::GradeNotAvailable, {Field::Grade, Field::WireDiameter});
    return findings.take();
}

// Lengths are compared as lengths and forces as forces, as they were entered: a rounded conversion
// must not refuse a spring that is compressed exactly to its solid length.
std::vector<SpringFinding> checkSpringLengths(const SpringInput &input, const SpringValues &values)
{
    Findings findings;
    if (input.mFreeLength <= values.mSolid.mLength) {
        findings.error(SpringMessage::FreeLengthTooSmall, {Field::FreeLength});
        return findings.take();
    }
    const bool lengths = input.mRange == SpringRange::Lengths;
    const bool ordered = lengths
        ? input.mFreeLength >= input.mFirstLength && input.mFirstLength >= input.mSecondLength
        : 0 <= input.mFirstForce && input.mFirstForce <= input.mSecondForce;
    if (!ordered)
        findings.error(SpringMessage::RangeOutOfOrder, rangeFields(input));
    if (lengths ? input.mSecondLength < values.mSolid.mLength
                : input.mSecondForce > values.mSolid.mForce)
        findings.error(SpringMessage::BeyondSolidLength, {secondField(input)});
    return findings.take();
}

bool springValuesFinite(const SpringValues &values)
{
    for (const SpringPoint &point : {values.mFirst, values.mSecond, values.mUsable, values.mSolid})
        for (const double value : {point.mDeflection, point.mLength, point.mForce, point.mStress,
                                   point.mCorrectedStress})
            if (!std::isfinite(value))
                return false;
    for (const auto &value : {values.mSecondSafety, values.mBucklingDeflection,
                              values.mBucklingRatio, values.mPitch, values.mOuterGrowth})
        if (value && !std::isfinite(*value))
            return false;
    for (const double value : {values.mTotalCoils,
                               values.mElasticModulus,
                               values.mDensity,
                               values.mTensileStrength,
                               values.mIndex,
                               values.mOuterDiameter,
                               values.mInnerDiameter,
                               values.mCorrection,
                               values.mRate,
                               values.mSmallestGap,
                               values.mStroke,
                               values.mCorrectedStressRange,
                               values.mPermissibleStress,
                               values.mSolidSafety,
                               values.mFrequency,
                               values.mSlenderness,
                               values.mBucklingRadicand,
                               values.mWireLength,
                               values.mMass,
                               values.mWork})
        if (!std::isfinite(value))
            return false;
    return true;
}

SpringLimits springLimits(SpringCoiling coiling)
{
    if (coiling == SpringCoiling::Hot)
        return {3, 12, 3, 8, 100};
    return {4, 20, 2, 0, 20};
}

static void warnAboutGeometry(Findings &findings, const SpringInput &input, double index)
{
    const SpringLimits limits = springLimits(input.mCoiling);
    const bool cold = !isHot(input);
    findings.warnIf(outside(index, limits.mSmallestIndex, limits.mLargestIndex),
                    SpringMessage::SpringIndexUnusual, {Field::CoilDiameter, Field::WireDiameter});
    findings.warnIf(input.mActiveCoils < limits.mFewestActiveCoils, SpringMessage::FewActiveCoils,
                    {Field::ActiveCoils});
    findings.warnIf(outside(input.mWireDiameter, limits.mSmallestWire, limits.mLargestWire),
                    SpringMessage::WireDiameterUnusual, {Field::WireDiameter});
    findings.warnIf(cold && input.mCoilDiameter > SpringLimits::largestCoil,
                    SpringMessage::CoilDiameterLarge, {Field::CoilDiameter});
    findings.warnIf(cold && input.mFreeLength > SpringLimits::largestFreeLength,
                    SpringMessage::FreeLengthLarge, {Field::FreeLength});
    findings.warnIf(
        outside(input.mSeating, SpringLimits::smallestSeating, SpringLimits::largestSeating),
        SpringMessage::SeatingUnusual, {Field::Seating});
    findings.warnIf(outside(input.mTemperature, SpringLimits::lowestTemperature,
                            SpringLimits::highestTemperature),
                    SpringMessage::TemperatureUnusual, {Field::Temperature});
}

std::vector<SpringFinding> springWarnings(const SpringInput &input, const SpringValues &values)
{
    Findings findings;
    const Field second = secondField(input);
    findings.warnIf(input.mRange == SpringRange::Lengths
                        ? input.mSecondLength < values.mUsable.mLength
                        : input.mSecondForce > values.mUsable.mForce,
                    SpringMessage::CoilsMayTouch, {second});
    warnAboutGeometry(findings, input, values.mIndex);
    findings.warnIf(values.mSolid.mStress > values.mPermissibleStress,
                    SpringMessage::SolidStressTooHigh, {Field::FreeLength});
    findings.warnIf(values.mSecond.mStress > values.mPermissibleStress,
                    SpringMessage::SecondStressTooHigh, {second});
    findings.warnIf(values.mBucklingRatio && *values.mBucklingRatio <= 1, SpringMessage::MayBuckle,
                    {Field::FreeLength, second});
    return findings.take();
}
