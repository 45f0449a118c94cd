#pragma once

#include "zelmath_export.h"

#include <string>
#include <vector>

/// The units of machine design: their dimensions, texts and conversions. Static operations only, on
/// a fixed table. A value outside the enumerations counts as NoUnit or NoType everywhere.
/// The units of a dimension stand together, in the order of its menu. A text belongs to one
/// dimension alone: µm to Roughness, N/mm to LinearStiffness, psi to Stress and lbf/in² to
/// Pressure.
class ZELMATH_EXPORT ZelDimensions
{
public:
    /// The numbers 133, 212 and 213 are compared with by widgets and keep their places.
    enum Unit : int {
        Millimetre = 0, // Length
        Centimetre,
        Metre,
        Kilometre,
        Mil,
        Inch,
        Foot,
        Mile,
        Nanometre, // Roughness
        Micrometre,
        Microinch,
        SquareMillimetre, // Area
        SquareCentimetre,
        SquareMetre,
        SquareInch,
        SquareFoot,
        CubicMillimetre, // Volume
        CubicCentimetre,
        CubicDecimetre,
        CubicMetre,
        CubicInch,
        CubicFoot,
        Millilitre, // LiquidVolume
        Litre,
        FluidOunce,
        Gallon,
        MillimetreToTheFourth, // SecondMomentOfArea
        CentimetreToTheFourth,
        InchToTheFourth,
        MillimetreToTheSixth, // WarpingConstant
        CentimetreToTheSixth,
        InchToTheSixth,
        PerMillimetre, // Curvature
        PerMetre,
        PerInch,
        Gram, // Mass
        Kilogram,
        Tonne,
        Ounce,
        Pound,
        ShortTon,
        KilogramSquareMillimetre, // MomentOfInertia
        KilogramSquareCentimetre,
        KilogramSquareMetre,
        PoundSquareInch,
        PoundSquareFoot,
        GramPerMetre, // MassPerLength
        KilogramPerMetre,
        PoundPerInch,
        PoundPerFoot,
        GramMillimetre, // Imbalance
        OunceInch,
        KilogramPerCubicDecimetre, // Density
        KilogramPerCubicMetre,
        GramPerCubicCentimetre,
        PoundPerCubicInch,
        PoundPerCubicFoot,
        Newton, // Force
        Decanewton,
        Kilonewton,
        Meganewton,
        KilogramForce,
        PoundForce,
        Kip,
        NewtonMillimetre, // Moment
        NewtonMetre,
        KilonewtonMetre,
        OunceForceInch,
        PoundForceInch,
        PoundForceFoot,
        NewtonPerSquareMillimetre, // Stress
        Megapascal,
        Gigapascal,
        KilogramForcePerSquareMillimetre,
        Psi,
        Ksi,
        Pascal, // Pressure
        Kilopascal,
        Millibar,
        Bar,
        PoundForcePerSquareFoot,
        PoundForcePerSquareInch,
        NewtonPerMillimetre, // LinearStiffness
        NewtonPerMicrometre,
        KilonewtonPerMillimetre,
        PoundForcePerInch,
        NewtonPerMetre, // LineLoad
        KilonewtonPerMetre,
        PoundForcePerFoot,
        NewtonMillimetrePerRadian, // TorsionalStiffness
        NewtonMetrePerRadian,
        NewtonMillimetrePerDegree,
        NewtonMetrePerDegree,
        PoundForceInchPerRadian,
        PoundForceInchPerDegree,
        MillimetrePerNewton, // Compliance
        InchPerPoundForce,
        NewtonSecondPerMetre, // LinearDamping
        PoundForceSecondPerInch,
        NewtonMetreSecondPerRadian, // TorsionalDamping
        PoundForceInchSecondPerRadian,
        MegapascalRootMetre, // FractureToughness
        KsiRootInch,
        JoulePerSquareCentimetre, // ImpactToughness
        FootPoundForcePerSquareInch,
        SquareMillimetrePerNewton, // PressureViscosity
        SquareInchPerPoundForce,
        MegapascalMetrePerSecond, // PressureVelocity
        PsiFootPerMinute,
        Millisecond, // Time
        Second,
        Minute,
        Hour,
        Day,
        Year,
        Hertz, // Frequency
        Kilohertz,
        PerHour,
        PerMinute, // RotationalSpeed
        PerSecond,
        Rpm,
        RadianPerSecond,
        MillimetrePerSecond, // LinearSpeed
        MetrePerSecond,
        MetrePerMinute,
        KilometrePerHour,
        InchPerSecond,
        FootPerSecond,
        FootPerMinute,
        MilePerHour,
        MetrePerSquareSecond, // Acceleration
        StandardGravity,
        FootPerSquareSecond,
        DegreeAngle = 133, // Angle
        Radian,
        Milliradian,
        Arcminute,
        Arcsecond,
        DegreePerMetre, // Twist
        DegreePerFoot,
        RadianPerSquareSecond, // AngularAcceleration
        DegreePerSquareSecond,
        MetrePerCubicSecond, // Jerk
        FootPerCubicSecond,
        Watt, // Power
        Kilowatt,
        Megawatt,
        MetricHorsepower,
        Horsepower,
        VoltAmpere, // ApparentPower
        KilovoltAmpere,
        Millijoule, // Energy
        Joule,
        Kilojoule,
        KilowattHour,
        InchPoundForce,
        FootPoundForce,
        Btu,
        KilojoulePerKilogram, // SpecificEnergy
        BtuPerPound,
        WattPerSquareMetre, // HeatFlux
        WattPerSquareMillimetre,
        BtuPerHourSquareFoot,
        Celsius, // Temperature
        Kelvin,
        Fahrenheit,
        KelvinDifference, // TemperatureDifference
        CelsiusDifference,
        FahrenheitDifference,
        PerKelvin, // ThermalExpansion
        MicroPerKelvin,
        MicroPerFahrenheit,
        WattPerMetreKelvin, // ThermalConductivity
        BtuPerHourFootFahrenheit,
        KilojoulePerKelvin, // HeatCapacity
        BtuPerFahrenheit,
        JoulePerKilogramKelvin, // SpecificHeatCapacity
        KilojoulePerKilogramKelvin,
        BtuPerPoundFahrenheit,
        WattPerSquareMetreKelvin, // HeatTransfer
        BtuPerHourSquareFootFahrenheit,
        KelvinPerWatt, // ThermalResistance
        FahrenheitHourPerBtu,
        PascalSecond, // DynamicViscosity
        MillipascalSecond,
        Centipoise,
        PoundForceSecondPerSquareInch,
        SquareMillimetrePerSecond, // KinematicViscosity
        SquareMetrePerSecond,
        Centistokes,
        SquareInchPerSecond,
        CubicMetrePerSecond, // VolumeFlow
        CubicMetrePerHour,
        LitrePerMinute,
        CubicFootPerMinute,
        GallonPerMinute,
        KilogramPerSecond, // MassFlow
        KilogramPerHour,
        PoundPerSecond,
        PoundPerHour,
        Volt, // Voltage
        Kilovolt,
        Milliampere, // ElectricCurrent
        Ampere,
        Ohm, // ElectricResistance
        Kiloohm,
        Megaohm,
        Percent, // Ratio
        Permille,
        PartPerMillion,
        Revolution, // RevolutionCount
        MillionRevolutions,
        DynamicUnit = 212, ///< a unit whose text changes at run time
        NoUnit = 213 ///< a quantity without unit
    };

    enum Type : int {
        Length = 0,
        Roughness, ///< roughness, tolerances, film thicknesses: lengths that are counted in µm
        Area,
        Volume, ///< solid volume, section modulus, first moment of area
        LiquidVolume,
        SecondMomentOfArea,
        WarpingConstant,
        Curvature,
        Mass,
        MomentOfInertia,
        MassPerLength,
        Imbalance,
        Density,
        Force,
        Moment,
        Stress, ///< stress, strength, modulus of elasticity
        Pressure, ///< of gases and liquids
        LinearStiffness,
        LineLoad,
        TorsionalStiffness, ///< torsional and tilting stiffness
        Compliance,
        LinearDamping,
        TorsionalDamping,
        FractureToughness,
        ImpactToughness,
        PressureViscosity, ///< coefficient of the growth of viscosity with pressure
        PressureVelocity, ///< pressure times sliding speed of bearings and seals
        Time,
        Frequency,
        RotationalSpeed, ///< 1/min and 1/s count turns
        LinearSpeed,
        Acceleration,
        Angle,
        Twist, ///< angle of twist by length
        AngularAcceleration,
        Jerk, ///< change of acceleration, of cams
        Power,
        ApparentPower,
        Energy,
        SpecificEnergy,
        HeatFlux,
        Temperature,
        TemperatureDifference,
        ThermalExpansion,
        ThermalConductivity,
        HeatCapacity,
        SpecificHeatCapacity,
        HeatTransfer,
        ThermalResistance,
        DynamicViscosity,
        KinematicViscosity,
        VolumeFlow,
        MassFlow,
        Voltage,
        ElectricCurrent,
        ElectricResistance,
        Ratio, ///< parts of a whole; a plain number has no unit at all
        RevolutionCount, ///< revolutions and load cycles
        NoType = 58
    };

    /// Unit of a display text; NoUnit for L"" and for a text that is none.
    static Unit getUnit(const std::wstring &text);
    /// Display text, plain and unique over all dimensions; L"" for NoUnit and DynamicUnit.
    static std::wstring getString(Unit unit);
    /// Text for files: ASCII without blanks, the same in every version; L"" as above.
    static std::wstring getEnumString(Unit unit);
    /// Unit of a text for files; NoUnit for one that is none.
    static Unit fromEnumString(const std::wstring &text);

    static Type getType(Unit unit);
    /// Dimension of a display text.
    static Type getType(const std::wstring &text);
    /// Name of the enumerator, for reports of faults and documentation; L"" for NoType.
    static std::wstring getTypeString(Type type);

    /// Display texts of a dimension in menu order; none for NoType.
    static std::vector<std::wstring> getStringList(Type type);
    /// Units of a dimension in the same order.
    static std::vector<Unit> getList(Type type);

    /// Default unit of the dimension of `unit`: the one of the current unit system, or the metric
    /// one when `currentSystem` is false. A unit without dimension is its own default.
    static Unit defaultUnit(Unit unit, bool currentSystem);
    using UnitSystemQuery = bool (*)();
    /// Installs the query for the current unit system, true for US customary units, and returns the
    /// former one. Without one, and with a null pointer, all is metric.
    static UnitSystemQuery setUnitSystemQuery(UnitSystemQuery usCustomary);

    /// `value` of unit `from` in unit `to`, unrounded. Between different dimensions, and where one
    /// is NoUnit or DynamicUnit, it stays as it is. There and back again changes it by 2 ulp at
    /// most; between temperature scales these are ulps of the value plus the distance of the zeros.
    static double changeUnit(double value, Unit from, Unit to);
};
