#pragma once

#include "wireTable.h"

#include <optional>
#include <variant>
#include <vector>

// Cylindrical helical compression spring of round wire with linear characteristic and closed ends,
// cold or hot coiled: rate, forces, stresses, buckling and natural frequency by EN 13906-1. The
// correction of the shear stress may instead follow A. M. Wahl, Mechanical Springs. A fatigue check
// against Goodman diagrams is not included.
// Lengths in mm, forces in N, stresses and moduli in N/mm², densities in kg/dm³, temperatures in
// °C.

enum class SpringCoiling { Cold, Hot };
enum class SpringEnds { Ground, NotGround };
enum class SpringLoad { Static, Dynamic };
enum class SpringCorrection { Standard, Wahl };

/// Which pair of the input is the working range; the other pair is not looked at.
enum class SpringRange { Lengths, Forces };

/// Own values of a wire, taken as they are at the working temperature.
struct SpringMaterial
{
    double mShearModulus = 0;
    double mElasticModulus = 0;
    double mDensity = 0;
    double mTensileStrength = 0;
};

struct SpringInput
{
    double mWireDiameter = 0; ///< d
    std::optional<double> mLargestWireDiameter; ///< d_max with tolerance; without it d
    double mCoilDiameter = 0; ///< D, mean
    double mActiveCoils = 0; ///< n
    std::optional<double> mTotalCoils; ///< n_t; without it n + 2 cold, n + 1.5 hot coiled
    double mFreeLength = 0; ///< L_0
    SpringCoiling mCoiling = SpringCoiling::Cold;
    SpringEnds mEnds = SpringEnds::Ground;
    SpringLoad mLoad = SpringLoad::Static;
    SpringCorrection mCorrection = SpringCorrection::Standard;
    std::variant<SpringMaterial, WireGrade> mMaterial;
    double mSeating = 0.5; ///< ν, 0.5 (both ends fixed and guided) to 2 (one end free)
    SpringRange mRange = SpringRange::Lengths;
    double mFirstLength = 0; ///< L_1
    double mSecondLength = 0; ///< L_2, not above L_1
    double mFirstForce = 0; ///< F_1
    double mSecondForce = 0; ///< F_2, not below F_1
    std::optional<double> mPermissibleStress; ///< τ_zul, for hot coiled springs, which need it
    double mTemperature = 20; ///< T, lowers the shear modulus of wire grades
};

/// Inputs, for messages that mark the fields they concern.
enum class SpringField {
    WireDiameter,
    LargestWireDiameter,
    CoilDiameter,
    ActiveCoils,
    TotalCoils,
    FreeLength,
    Grade,
    ShearModulus,
    ElasticModulus,
    Density,
    TensileStrength,
    Seating,
    FirstLength,
    SecondLength,
    FirstForce,
    SecondForce,
    PermissibleStress,
    Temperature
};

enum class SpringSeverity { Note, Warning, Error };

enum class SpringMessage {
    // Errors
    NotFinite, ///< a value is infinite or not a number
    NotPositive,
    PermissibleStressMissing, ///< hot coiled without τ_zul
    CoilTooSmall, ///< D ≤ d
    LargestWireTooSmall, ///< d_max < d
    TotalCoilsTooFew, ///< n_t ≤ n
    GradeNotAvailable, ///< the grade is not drawn in d
    FreeLengthTooSmall, ///< L_0 ≤ L_c
    RangeOutOfOrder, ///< not L_0 ≥ L_1 ≥ L_2, not 0 ≤ F_1 ≤ F_2
    BeyondSolidLength, ///< L_2 < L_c, F_2 > F_c
    OutOfNumberRange, ///< a result is beyond what can be counted with
    // Warnings
    CoilsMayTouch, ///< L_2 < L_n, F_2 > F_n
    SpringIndexUnusual, ///< w outside 4 to 20 cold, 3 to 12 hot coiled
    FewActiveCoils, ///< n < 2 cold, n < 3 hot coiled
    WireDiameterUnusual, ///< d above 20 cold, outside 8 to 100 hot coiled
    CoilDiameterLarge, ///< D > 200, cold coiled
    FreeLengthLarge, ///< L_0 > 630, cold coiled
    SeatingUnusual, ///< ν outside 0.5 to 2
    TemperatureUnusual, ///< T outside -40 to 120
    SolidStressTooHigh, ///< τ_c > τ_zul: not to be compressed to solid length
    SecondStressTooHigh, ///< τ_2 > τ_zul
    MayBuckle ///< s_2 ≥ s_K: guide with a rod or sleeve
};

struct SpringFinding
{
    SpringMessage mCode;
    SpringSeverity mSeverity;
    std::vector<SpringField> mFields; ///< never empty

    bool operator==(const SpringFinding &) const = default;
};

/// One point of the characteristic.
struct SpringPoint
{
    double mDeflection = 0; ///< s
    double mLength = 0; ///< L
    double mForce = 0; ///< F
    double mStress = 0; ///< τ, uncorrected
    double mCorrectedStress = 0; ///< τ_k
};

/// Results. Values that the spring does not have are empty.
struct SpringValues
{
    double mTotalCoils = 0; ///< n_t that was counted with
    double mLargestWireDiameter = 0; ///< d_max that was counted with
    double mShearModulus = 0; ///< G at the working temperature
    double mElasticModulus = 0; ///< E
    double mDensity = 0; ///< ρ
    double mTensileStrength = 0; ///< R_m
    double mIndex = 0; ///< w
    double mOuterDiameter = 0; ///< D_e
    double mInnerDiameter = 0; ///< D_i
    double mCorrection = 0; ///< k
    double mRate = 0; ///< R, N/mm
    double mSmallestGap = 0; ///< S_a, sum of the gaps between the coils at L_n
    SpringPoint mFirst; ///< 1
    SpringPoint mSecond; ///< 2
    SpringPoint mUsable; ///< n, smallest usable length; its deflection is negative if L_0 < L_n
    SpringPoint mSolid; ///< c
    double mStroke = 0; ///< s_h
    double mCorrectedStressRange = 0; ///< τ_kh
    double mPermissibleStress = 0; ///< τ_zul
    double mSolidSafety = 0; ///< S_c
    std::optional<double> mSecondSafety; ///< S_2, none for an unloaded second point
    double mFrequency = 0; ///< f_e in Hz, lowest axial mode with both ends fixed
    double mSlenderness = 0; ///< L_0 / D
    double mBucklingRadicand = 0; ///< ρ_K
    std::optional<double> mBucklingDeflection; ///< s_K, none if the spring never buckles
    std::optional<double> mBucklingRatio; ///< s_K / s_2, none also if s_2 is 0
    std::optional<double> mPitch; ///< p, ground ends only
    std::optional<double> mOuterGrowth; ///< ΔD_e at solid length, ground ends only
    double mWireLength = 0; ///< l_w, pitch neglected
    double mMass = 0; ///< kg
    double mWork = 0; ///< W_12 of the stroke in N mm
};

/// Errors and no values, or values and the warnings about them.
struct SpringResult
{
    std::vector<SpringFinding> mFindings;
    std::optional<SpringValues> mValues;
};

/// Depends on its input alone. Infinite values and NaN are errors, as is a result that overflows.
SpringResult calculateSpring(const SpringInput &input);

/// L_c. It needs no spring rate, so that a message can name it where there are no results.
double springSolidLength(const SpringInput &input);

/// Fills the pair of the working range that is not in use from the one that is, and changes to it;
/// the working range stays the same. Without a spring rate (an input is missing or wrong) nothing
/// changes and the answer is false.
bool changeSpringRange(SpringInput &input, SpringRange range);
