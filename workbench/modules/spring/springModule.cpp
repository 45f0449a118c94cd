#include "springModule.h"

#include "springMessages.h"
#include "zelModuleRegistry.h"

#include <cmath>

static constexpr double newtonMillimetresPerJoule = 1000;
static constexpr double gramsPerKilogram = 1000;

// Two ways of computing the same length or force differ by less.
static bool isOther(double value, double converted)
{
    return std::abs(converted - value) > 1e-9 * (std::abs(converted) + std::abs(value));
}

static std::optional<double> entered(const ZelRealVar &handle, int64_t id)
{
    return handle.isEntered(id) ? std::optional(handle.get(id)) : std::nullopt;
}

static void setOrUnset(const ZelRealVar &handle, const std::optional<double> &value, int64_t id)
{
    if (value)
        handle.set(*value, id);
    else
        handle.unset(id);
}

SpringModule::SpringModule() = default;
SpringModule::~SpringModule() = default;

void registerSpringModule(ZelModuleRegistry &registry)
{
    registry.add<SpringModule>(L"SpringModule");
}

std::variant<SpringMaterial, WireGrade> SpringModule::material(int64_t id) const
{
    for (const WireGrade &grade : wireTable()) {
        if (mGrade.is(grade.mName, id))
            return grade;
    }
    return SpringMaterial{mShearModulus.get(id), mElasticModulus.get(id), mDensity.get(id),
                          mTensileStrength.get(id)};
}

void SpringModule::readDesign(SpringInput &input, int64_t id) const
{
    input.mCoiling = mCoiling.is("hot", id) ? SpringCoiling::Hot : SpringCoiling::Cold;
    input.mEnds = mEnds.is("unground", id) ? SpringEnds::NotGround : SpringEnds::Ground;
    input.mLoad = mLoad.is("dynamic", id) ? SpringLoad::Dynamic : SpringLoad::Static;
    input.mCorrection =
        mCorrectionForm.is("wahl", id) ? SpringCorrection::Wahl : SpringCorrection::Standard;
    input.mRange = mRange.is("forces", id) ? SpringRange::Forces : SpringRange::Lengths;
}

SpringInput SpringModule::input(int64_t id) const
{
    SpringInput input;
    readDesign(input, id);
    input.mWireDiameter = mWire.get(id);
    input.mLargestWireDiameter = entered(mLargestWire, id);
    input.mCoilDiameter = mCoil.get(id);
    input.mActiveCoils = mActiveCoils.get(id);
    input.mTotalCoils = entered(mTotalCoils, id);
    input.mFreeLength = mFreeLength.get(id);
    input.mMaterial = material(id);
    input.mSeating = mSeating.get(id);
    input.mFirstLength = mFirstLength.get(id);
    input.mSecondLength = mSecondLength.get(id);
    input.mFirstForce = mFirstForce.get(id);
    input.mSecondForce = mSecondForce.get(id);
    if (input.mCoiling == SpringCoiling::Hot)
        input.mPermissibleStress = entered(mPermissibleStress, id);
    // The mask takes no temperature for own material, and what it took before must not count.
    if (std::holds_alternative<WireGrade>(input.mMaterial))
        input.mTemperature = mTemperature.get(id);
    return input;
}

void SpringModule::calculate(ZelCalcRun &run)
{
    const int64_t id = run.id();
    const SpringInput spring = input(id);
    const SpringResult result = calculateSpring(spring);
    const SpringValues *values = result.mValues ? &*result.mValues : nullptr;
    fillInGrade(spring, id);
    writeComputedInputs(spring, values, id);
    if (values) {
        writeCharacteristic(*values, id);
        writeStresses(*values, id);
        writeFurther(*values, id);
    }
    for (const SpringFinding &finding : result.mFindings)
        tell(run, finding, spring, values);
}

// A grade that is not drawn in the diameter has no strength there.
void SpringModule::fillInGrade(const SpringInput &input, int64_t id) const
{
    const auto *grade = std::get_if<WireGrade>(&input.mMaterial);
    if (!grade)
        return;
    mShearModulus.set(grade->mShearModulus, id);
    mElasticModulus.set(grade->mElasticModulus, id);
    mDensity.set(grade->mDensity, id);
    const double wire = input.mWireDiameter;
    setOrUnset(
        mTensileStrength,
        grade->availableFor(wire) ? std::optional(grade->tensileStrength(wire)) : std::nullopt, id);
}

// The other pair of the working range is left as it is when the spring is refused: its values are
// the input again as soon as the user goes back to it.
void SpringModule::writeComputedInputs(const SpringInput &input, const SpringValues *values,
                                       int64_t id)
{
    const auto computed = [values](double SpringValues::*member) {
        return values ? std::optional(values->*member) : std::nullopt;
    };
    if (!input.mLargestWireDiameter)
        setOrUnset(mLargestWire, computed(&SpringValues::mLargestWireDiameter), id);
    if (!input.mTotalCoils)
        setOrUnset(mTotalCoils, computed(&SpringValues::mTotalCoils), id);
    if (!input.mPermissibleStress) {
        // The stress of a cold coiled spring must not pass for an input when it becomes a hot one.
        // Unchecking takes the value away, so it comes first.
        meta().setOptionChecked(*mPermissibleStress.variable(), id, false, ZelOrigin::Module);
        setOrUnset(mPermissibleStress, computed(&SpringValues::mPermissibleStress), id);
    }
    if (!values)
        return;
    if (input.mRange == SpringRange::Lengths) {
        mFirstForce.set(values->mFirst.mForce, id);
        mSecondForce.set(values->mSecond.mForce, id);
    } else {
        mFirstLength.set(values->mFirst.mLength, id);
        mSecondLength.set(values->mSecond.mLength, id);
    }
}

void SpringModule::writeCharacteristic(const SpringValues &values, int64_t id) const
{
    mWarmShearModulus.set(values.mShearModulus, id);
    mRate.set(values.mRate, id);
    mFirstDeflection.set(values.mFirst.mDeflection, id);
    mSecondDeflection.set(values.mSecond.mDeflection, id);
    mStroke.set(values.mStroke, id);
    mWork.set(values.mWork / newtonMillimetresPerJoule, id);
    mSmallestGap.set(values.mSmallestGap, id);
    mUsableLength.set(values.mUsable.mLength, id);
    mUsableDeflection.set(values.mUsable.mDeflection, id);
    mUsableForce.set(values.mUsable.mForce, id);
    mSolidLength.set(values.mSolid.mLength, id);
    mSolidDeflection.set(values.mSolid.mDeflection, id);
    mSolidForce.set(values.mSolid.mForce, id);
}

void SpringModule::writeStresses(const SpringValues &values, int64_t id) const
{
    mFirstStress.set(values.mFirst.mStress, id);
    mSecondStress.set(values.mSecond.mStress, id);
    mUsableStress.set(values.mUsable.mStress, id);
    mSolidStress.set(values.mSolid.mStress, id);
    mSolidSafety.set(values.mSolidSafety, id);
    setOrUnset(mSecondSafety, values.mSecondSafety, id);
    mCorrection.set(values.mCorrection, id);
    mFirstCorrectedStress.set(values.mFirst.mCorrectedStress, id);
    mSecondCorrectedStress.set(values.mSecond.mCorrectedStress, id);
    mCorrectedStressRange.set(values.mCorrectedStressRange, id);
}

void SpringModule::writeFurther(const SpringValues &values, int64_t id) const
{
    mIndex.set(values.mIndex, id);
    mOuterDiameter.set(values.mOuterDiameter, id);
    mInnerDiameter.set(values.mInnerDiameter, id);
    setOrUnset(mOuterGrowth, values.mOuterGrowth, id);
    setOrUnset(mPitch, values.mPitch, id);
    mWireLength.set(values.mWireLength, id);
    mMass.set(values.mMass * gramsPerKilogram, id);
    mSlenderness.set(values.mSlenderness, id);
    mBucklingRadicand.set(values.mBucklingRadicand, id);
    setOrUnset(mBucklingDeflection, values.mBucklingDeflection, id);
    setOrUnset(mBucklingRatio, values.mBucklingRatio, id);
    mFrequency.set(values.mFrequency, id);
}

void SpringModule::tell(ZelCalcRun &run, const SpringFinding &finding, const SpringInput &input,
                        const SpringValues *values) const
{
    const SpringMessageText &text = springMessageText(finding.mCode);
    ZelVarHandles fields;
    for (const SpringField field : finding.mFields)
        fields.emplace_back(handle(field));
    auto arguments = springMessageArguments(finding, input, values);
    switch (finding.mSeverity) {
    case SpringSeverity::Error:
        return run.error(text.mCode, fields, text.mGerman, std::move(arguments));
    case SpringSeverity::Warning:
        return run.warning(text.mCode, fields, text.mGerman, std::move(arguments));
    case SpringSeverity::Note:
        return run.note(text.mCode, fields, text.mGerman, std::move(arguments));
    }
}

const ZelVarHandle &SpringModule::handle(SpringField field) const
{
    // In the order of SpringField.
    const std::array<const ZelVarHandle *, 18> handles{
        &mWire,        &mLargestWire,       &mCoil,
        &mActiveCoils, &mTotalCoils,        &mFreeLength,
        &mGrade,       &mShearModulus,      &mElasticModulus,
        &mDensity,     &mTensileStrength,   &mSeating,
        &mFirstLength, &mSecondLength,      &mFirstForce,
        &mSecondForce, &mPermissibleStress, &mTemperature};
    return *handles.at(static_cast<size_t>(field));
}

void SpringModule::choiceChanged(const ZelUIVarChoice &, short, short, int64_t id)
{
    const bool forces = mRange.is("forces", id);
    SpringInput spring = input(id);
    spring.mRange = forces ? SpringRange::Lengths : SpringRange::Forces;
    const SpringInput former = spring;
    if (!changeSpringRange(spring, forces ? SpringRange::Forces : SpringRange::Lengths))
        return;
    // What the last calculation computed stays to the bit, and a length of 0 was not entered yet:
    // no spring is compressed to nothing.
    const auto convert = [id](const ZelRealVar &handle, double value) {
        if (isOther(handle.get(id), value))
            handle.set(value, id);
    };
    if (forces && former.mFirstLength > 0)
        convert(mFirstForce, spring.mFirstForce);
    if (forces && former.mSecondLength > 0)
        convert(mSecondForce, spring.mSecondForce);
    if (!forces) {
        convert(mFirstLength, spring.mFirstLength);
        convert(mSecondLength, spring.mSecondLength);
    }
}
