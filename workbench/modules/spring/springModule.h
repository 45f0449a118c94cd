#pragma once

#include "springCalculation.h"
#include "zelCalcModule.h"

class ZelModuleRegistry;

/// The spring between its mask and its calculation: takes the inputs out of the data, calculates,
/// writes results and tells messages. Of a wire grade it fills in the material values, of what the
/// user leaves to the calculation (d_max, n_t, τ_zul, the other pair of the working range) the
/// values that were counted with.
class SpringModule : public ZelCalcModule
{
public:
    SpringModule();
    ~SpringModule() override;

    // ZelCalcModule
    void calculate(ZelCalcRun &run) override;
    /// Converts the working range between lengths and forces, so that it stays the same. What the
    /// user has just typed stays as it is.
    void choiceChanged(const ZelUIVarChoice &choice, short former, short current,
                       int64_t id) override;

private:
    SpringInput input(int64_t id) const;
    void readDesign(SpringInput &input, int64_t id) const;
    std::variant<SpringMaterial, WireGrade> material(int64_t id) const;

    void fillInGrade(const SpringInput &input, int64_t id) const;
    void writeComputedInputs(const SpringInput &input, const SpringValues *values, int64_t id);
    void writeCharacteristic(const SpringValues &values, int64_t id) const;
    void writeStresses(const SpringValues &values, int64_t id) const;
    void writeFurther(const SpringValues &values, int64_t id) const;

    void tell(ZelCalcRun &run, const SpringFinding &finding, const SpringInput &input,
              const SpringValues *values) const;
    const ZelVarHandle &handle(SpringField field) const;

    // Inputs
    ZelRealVar mWire{*this, "d", "mm"};
    ZelRealVar mLargestWire{*this, "dmax", "mm"};
    ZelRealVar mCoil{*this, "D", "mm"};
    ZelRealVar mActiveCoils{*this, "n"};
    ZelRealVar mTotalCoils{*this, "nt"};
    ZelRealVar mFreeLength{*this, "L0", "mm"};
    ZelListVar mCoiling{*this, "coiling"};
    ZelListVar mEnds{*this, "ends"};
    ZelListVar mLoad{*this, "load"};
    ZelRealVar mSeating{*this, "nu"};
    ZelListVar mCorrectionForm{*this, "correction"};
    ZelListVar mGrade{*this, "grade"};
    ZelRealVar mShearModulus{*this, "G", "N/mm²"};
    ZelRealVar mElasticModulus{*this, "E", "N/mm²"};
    ZelRealVar mDensity{*this, "rho", "kg/dm³"};
    ZelRealVar mTensileStrength{*this, "Rm", "N/mm²"};
    ZelRealVar mPermissibleStress{*this, "tau_zul", "N/mm²"};
    ZelRealVar mTemperature{*this, "T", "°C"};
    ZelListVar mRange{*this, "range"};
    ZelRealVar mFirstLength{*this, "L1", "mm"};
    ZelRealVar mSecondLength{*this, "L2", "mm"};
    ZelRealVar mFirstForce{*this, "F1", "N"};
    ZelRealVar mSecondForce{*this, "F2", "N"};

    // Results
    ZelResultVar mWarmShearModulus{*this, "GT", "N/mm²"};
    ZelResultVar mRate{*this, "R", "N/mm"};
    ZelResultVar mFirstDeflection{*this, "s1", "mm"};
    ZelResultVar mSecondDeflection{*this, "s2", "mm"};
    ZelResultVar mStroke{*this, "sh", "mm"};
    ZelResultVar mWork{*this, "W12", "J"};
    ZelResultVar mSmallestGap{*this, "Sa", "mm"};
    ZelResultVar mUsableLength{*this, "Ln", "mm"};
    ZelResultVar mUsableDeflection{*this, "sn", "mm"};
    ZelResultVar mUsableForce{*this, "Fn", "N"};
    ZelResultVar mSolidLength{*this, "Lc", "mm"};
    ZelResultVar mSolidDeflection{*this, "sc", "mm"};
    ZelResultVar mSolidForce{*this, "Fc", "N"};
    ZelResultVar mFirstStress{*this, "tau_1", "N/mm²"};
    ZelResultVar mSecondStress{*this, "tau_2", "N/mm²"};
    ZelResultVar mUsableStress{*this, "tau_n", "N/mm²"};
    ZelResultVar mSolidStress{*this, "tau_c", "N/mm²"};
    ZelResultVar mSolidSafety{*this, "Sc"};
    ZelResultVar mSecondSafety{*this, "S2"};
    ZelResultVar mCorrection{*this, "k"};
    ZelResultVar mFirstCorrectedStress{*this, "tau_k1", "N/mm²"};
    ZelResultVar mSecondCorrectedStress{*this, "tau_k2", "N/mm²"};
    ZelResultVar mCorrectedStressRange{*this, "tau_kh", "N/mm²"};
    ZelResultVar mIndex{*this, "w"};
    ZelResultVar mOuterDiameter{*this, "De", "mm"};
    ZelResultVar mInnerDiameter{*this, "Di", "mm"};
    ZelResultVar mOuterGrowth{*this, "DDe", "mm"};
    ZelResultVar mPitch{*this, "p", "mm"};
    ZelResultVar mWireLength{*this, "lw", "mm"};
    ZelResultVar mMass{*this, "mass", "g"};
    ZelResultVar mSlenderness{*this, "L0_D"};
    ZelResultVar mBucklingRadicand{*this, "rho_K"};
    ZelResultVar mBucklingDeflection{*this, "sK", "mm"};
    ZelResultVar mBucklingRatio{*this, "sK_s2"};
    ZelResultVar mFrequency{*this, "fe", "Hz"};
};

/// Makes the spring known to an application.
void registerSpringModule(ZelModuleRegistry &registry);
