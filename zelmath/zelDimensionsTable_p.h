#pragma once

#include "zelDimensions.h"

#include <numbers>

// The table behind ZelDimensions. A value in the SI base of its dimension is
// (number + offset) * factor. All factors follow from definitions and are written as such; long
// double keeps the ratio of two of them exact to the last digit of a double.

namespace zelDimensionsTable {

constexpr long double nano = 1e-9L;
constexpr long double micro = 1e-6L;
constexpr long double milli = 1e-3L;
constexpr long double centi = 1e-2L;
constexpr long double kilo = 1e3L;
constexpr long double mega = 1e6L;
constexpr long double giga = 1e9L;

constexpr long double pi = std::numbers::pi_v<long double>;
constexpr long double turn = 2 * pi;
constexpr long double degree = pi / 180;
constexpr long double minute = 60.0L;
constexpr long double hour = 60 * minute;
constexpr long double litre = 1e-3L;
constexpr long double bar = 1e5L;

// International yard and pound agreement of 1959.
constexpr long double inch = 0.0254L;
constexpr long double foot = 12 * inch;
constexpr long double pound = 0.45359237L;
// 3rd CGPM, 1901.
constexpr long double gravity = 9.80665L;
constexpr long double poundForce = 0.45359237L * 9.80665L;
constexpr long double psi = poundForce / (inch * inch);
// The US gallon is 231 cubic inches.
constexpr long double gallon = 231 * inch * inch * inch;
// The degree of Fahrenheit and Rankine in kelvin.
constexpr long double rankine = 5.0L / 9.0L;
// British thermal unit of the International Table: 4.1868 J/g, for a pound and a degree Fahrenheit.
constexpr long double btu = 4186.8L * pound * rankine;

constexpr long double squareRoot(long double number)
{
    long double root = number < 1 ? 1 : number;
    for (int i = 0; i < 64; ++i)
        root = (root + number / root) / 2;
    return root;
}
constexpr long double rootOfInch = squareRoot(inch);

constexpr int unitCount = 212;
constexpr int typeCount = 58;

struct UnitRow
{
    ZelDimensions::Unit mUnit;
    const wchar_t *mText; // for people
    const wchar_t *mEnumString; // for files
    ZelDimensions::Type mType;
    long double mFactor;
    long double mOffset = 0;
};

struct TypeRow
{
    ZelDimensions::Type mType;
    const wchar_t *mName;
    ZelDimensions::Unit mMetric;
    ZelDimensions::Unit mUsCustomary;
};

using enum ZelDimensions::Unit;
using enum ZelDimensions::Type;

// The formatter would take the products for pointers.
// clang-format off
constexpr UnitRow units[] = {
    // Length in m.
    {Millimetre, L"mm", L"mm", Length, milli},
    {Centimetre, L"cm", L"cm", Length, centi},
    {Metre, L"m", L"m", Length, 1.0L},
    {Kilometre, L"km", L"km", Length, kilo},
    {Mil, L"mil", L"mil", Length, inch / 1000},
    {Inch, L"in", L"in", Length, inch},
    {Foot, L"ft", L"ft", Length, foot},
    {Mile, L"mi", L"mi", Length, 5280 * foot},
    // Roughness in m: also tolerances and film thicknesses.
    {Nanometre, L"nm", L"nm", Roughness, nano},
    {Micrometre, L"µm", L"um", Roughness, micro},
    {Microinch, L"µin", L"uin", Roughness, micro * inch},
    // Area in m^2.
    {SquareMillimetre, L"mm²", L"mm2", Area, milli * milli},
    {SquareCentimetre, L"cm²", L"cm2", Area, centi * centi},
    {SquareMetre, L"m²", L"m2", Area, 1.0L},
    {SquareInch, L"in²", L"in2", Area, inch * inch},
    {SquareFoot, L"ft²", L"ft2", Area, foot * foot},
    // Volume in m^3: also section modulus and first moment of area.
    {CubicMillimetre, L"mm³", L"mm3", Volume, milli * milli * milli},
    {CubicCentimetre, L"cm³", L"cm3", Volume, centi * centi * centi},
    {CubicDecimetre, L"dm³", L"dm3", Volume, litre},
    {CubicMetre, L"m³", L"m3", Volume, 1.0L},
    {CubicInch, L"in³", L"in3", Volume, inch * inch * inch},
    {CubicFoot, L"ft³", L"ft3", Volume, foot * foot * foot},
    // LiquidVolume in m^3: of the US.
    {Millilitre, L"ml", L"ml", LiquidVolume, milli * litre},
    {Litre, L"l", L"l", LiquidVolume, litre},
    {FluidOunce, L"fl oz", L"floz", LiquidVolume, gallon / 128},
    {Gallon, L"gal", L"gal", LiquidVolume, gallon},
    // SecondMomentOfArea in m^4.
    {MillimetreToTheFourth, L"mm⁴", L"mm4", SecondMomentOfArea, milli * milli * milli * milli},
    {CentimetreToTheFourth, L"cm⁴", L"cm4", SecondMomentOfArea, centi * centi * centi * centi},
    {InchToTheFourth, L"in⁴", L"in4", SecondMomentOfArea, inch * inch * inch * inch},
    // WarpingConstant in m^6.
    {MillimetreToTheSixth, L"mm⁶", L"mm6", WarpingConstant,
     milli * milli * milli * milli * milli * milli},
    {CentimetreToTheSixth, L"cm⁶", L"cm6", WarpingConstant,
     centi * centi * centi * centi * centi * centi},
    {InchToTheSixth, L"in⁶", L"in6", WarpingConstant, inch * inch * inch * inch * inch * inch},
    // Curvature in 1/m.
    {PerMillimetre, L"1/mm", L"1/mm", Curvature, 1 / milli},
    {PerMetre, L"1/m", L"1/m", Curvature, 1.0L},
    {PerInch, L"1/in", L"1/in", Curvature, 1 / inch},
    // Mass in kg.
    {Gram, L"g", L"g", Mass, milli},
    {Kilogram, L"kg", L"kg", Mass, 1.0L},
    {Tonne, L"t", L"t", Mass, kilo},
    {Ounce, L"oz", L"oz", Mass, pound / 16},
    {Pound, L"lb", L"lb", Mass, pound},
    {ShortTon, L"short ton", L"short_ton", Mass, 2000 * pound},
    // MomentOfInertia in kg m^2.
    {KilogramSquareMillimetre, L"kg·mm²", L"kg*mm2", MomentOfInertia, milli * milli},
    {KilogramSquareCentimetre, L"kg·cm²", L"kg*cm2", MomentOfInertia, centi * centi},
    {KilogramSquareMetre, L"kg·m²", L"kg*m2", MomentOfInertia, 1.0L},
    {PoundSquareInch, L"lb·in²", L"lb*in2", MomentOfInertia, pound * inch * inch},
    {PoundSquareFoot, L"lb·ft²", L"lb*ft2", MomentOfInertia, pound * foot * foot},
    // MassPerLength in kg/m.
    {GramPerMetre, L"g/m", L"g/m", MassPerLength, milli},
    {KilogramPerMetre, L"kg/m", L"kg/m", MassPerLength, 1.0L},
    {PoundPerInch, L"lb/in", L"lb/in", MassPerLength, pound / inch},
    {PoundPerFoot, L"lb/ft", L"lb/ft", MassPerLength, pound / foot},
    // Imbalance in kg m.
    {GramMillimetre, L"g·mm", L"g*mm", Imbalance, micro},
    {OunceInch, L"oz·in", L"oz*in", Imbalance, pound / 16 * inch},
    // Density in kg/m^3.
    {KilogramPerCubicDecimetre, L"kg/dm³", L"kg/dm3", Density, kilo},
    {KilogramPerCubicMetre, L"kg/m³", L"kg/m3", Density, 1.0L},
    {GramPerCubicCentimetre, L"g/cm³", L"g/cm3", Density, kilo},
    {PoundPerCubicInch, L"lb/in³", L"lb/in3", Density, pound / (inch * inch * inch)},
    {PoundPerCubicFoot, L"lb/ft³", L"lb/ft3", Density, pound / (foot * foot * foot)},
    // Force in N.
    {Newton, L"N", L"N", Force, 1.0L},
    {Decanewton, L"daN", L"daN", Force, 10.0L},
    {Kilonewton, L"kN", L"kN", Force, kilo},
    {Meganewton, L"MN", L"MN", Force, mega},
    {KilogramForce, L"kgf", L"kgf", Force, gravity},
    {PoundForce, L"lbf", L"lbf", Force, poundForce},
    {Kip, L"kip", L"kip", Force, kilo * poundForce},
    // Moment in N m.
    {NewtonMillimetre, L"N·mm", L"N*mm", Moment, milli},
    {NewtonMetre, L"N·m", L"N*m", Moment, 1.0L},
    {KilonewtonMetre, L"kN·m", L"kN*m", Moment, kilo},
    {OunceForceInch, L"ozf·in", L"ozf*in", Moment, poundForce / 16 * inch},
    {PoundForceInch, L"lbf·in", L"lbf*in", Moment, poundForce * inch},
    {PoundForceFoot, L"lbf·ft", L"lbf*ft", Moment, poundForce * foot},
    // Stress in Pa: also strength and modulus of elasticity.
    {NewtonPerSquareMillimetre, L"N/mm²", L"N/mm2", Stress, mega},
    {Megapascal, L"MPa", L"MPa", Stress, mega},
    {Gigapascal, L"GPa", L"GPa", Stress, giga},
    {KilogramForcePerSquareMillimetre, L"kgf/mm²", L"kgf/mm2", Stress, gravity * mega},
    {Psi, L"psi", L"psi", Stress, psi},
    {Ksi, L"ksi", L"ksi", Stress, kilo * psi},
    // Pressure in Pa: of gases and liquids.
    {Pascal, L"Pa", L"Pa", Pressure, 1.0L},
    {Kilopascal, L"kPa", L"kPa", Pressure, kilo},
    {Millibar, L"mbar", L"mbar", Pressure, 100.0L},
    {Bar, L"bar", L"bar", Pressure, bar},
    {PoundForcePerSquareFoot, L"lbf/ft²", L"lbf/ft2", Pressure, poundForce / (foot * foot)},
    {PoundForcePerSquareInch, L"lbf/in²", L"lbf/in2", Pressure, psi},
    // LinearStiffness in N/m.
    {NewtonPerMillimetre, L"N/mm", L"N/mm", LinearStiffness, kilo},
    {NewtonPerMicrometre, L"N/µm", L"N/um", LinearStiffness, mega},
    {KilonewtonPerMillimetre, L"kN/mm", L"kN/mm", LinearStiffness, mega},
    {PoundForcePerInch, L"lbf/in", L"lbf/in", LinearStiffness, poundForce / inch},
    // LineLoad in N/m.
    {NewtonPerMetre, L"N/m", L"N/m", LineLoad, 1.0L},
    {KilonewtonPerMetre, L"kN/m", L"kN/m", LineLoad, kilo},
    {PoundForcePerFoot, L"lbf/ft", L"lbf/ft", LineLoad, poundForce / foot},
    // TorsionalStiffness in N m/rad: torsional and tilting stiffness.
    {NewtonMillimetrePerRadian, L"N·mm/rad", L"N*mm/rad", TorsionalStiffness, milli},
    {NewtonMetrePerRadian, L"N·m/rad", L"N*m/rad", TorsionalStiffness, 1.0L},
    {NewtonMillimetrePerDegree, L"N·mm/°", L"N*mm/deg", TorsionalStiffness, milli / degree},
    {NewtonMetrePerDegree, L"N·m/°", L"N*m/deg", TorsionalStiffness, 1 / degree},
    {PoundForceInchPerRadian, L"lbf·in/rad", L"lbf*in/rad", TorsionalStiffness, poundForce * inch},
    {PoundForceInchPerDegree, L"lbf·in/°", L"lbf*in/deg", TorsionalStiffness,
     poundForce * inch / degree},
    // Compliance in m/N.
    {MillimetrePerNewton, L"mm/N", L"mm/N", Compliance, milli},
    {InchPerPoundForce, L"in/lbf", L"in/lbf", Compliance, inch / poundForce},
    // LinearDamping in N s/m.
    {NewtonSecondPerMetre, L"N·s/m", L"N*s/m", LinearDamping, 1.0L},
    {PoundForceSecondPerInch, L"lbf·s/in", L"lbf*s/in", LinearDamping, poundForce / inch},
    // TorsionalDamping in N m s/rad.
    {NewtonMetreSecondPerRadian, L"N·m·s/rad", L"N*m*s/rad", TorsionalDamping, 1.0L},
    {PoundForceInchSecondPerRadian, L"lbf·in·s/rad", L"lbf*in*s/rad", TorsionalDamping,
     poundForce * inch},
    // FractureToughness in Pa*sqrt(m).
    {MegapascalRootMetre, L"MPa·√m", L"MPa*sqrt(m)", FractureToughness, mega},
    {KsiRootInch, L"ksi·√in", L"ksi*sqrt(in)", FractureToughness, kilo * psi * rootOfInch},
    // ImpactToughness in J/m^2.
    {JoulePerSquareCentimetre, L"J/cm²", L"J/cm2", ImpactToughness, 10000.0L},
    {FootPoundForcePerSquareInch, L"ft·lbf/in²", L"ft*lbf/in2", ImpactToughness, foot * psi},
    // PressureViscosity in 1/Pa: coefficient of the growth of viscosity with pressure.
    {SquareMillimetrePerNewton, L"mm²/N", L"mm2/N", PressureViscosity, micro},
    {SquareInchPerPoundForce, L"in²/lbf", L"in2/lbf", PressureViscosity, 1 / psi},
    // PressureVelocity in Pa m/s: pressure times sliding speed of bearings and seals.
    {MegapascalMetrePerSecond, L"MPa·m/s", L"MPa*m/s", PressureVelocity, mega},
    {PsiFootPerMinute, L"psi·ft/min", L"psi*ft/min", PressureVelocity, psi * foot / minute},
    // Time in s: a is the Julian one of 365.25 days, as the IAU counts it.
    {Millisecond, L"ms", L"ms", Time, milli},
    {Second, L"s", L"s", Time, 1.0L},
    {Minute, L"min", L"min", Time, minute},
    {Hour, L"h", L"h", Time, hour},
    {Day, L"d", L"d", Time, 24 * hour},
    {Year, L"a", L"a", Time, 365.25L * 24 * hour},
    // Frequency in Hz.
    {Hertz, L"Hz", L"Hz", Frequency, 1.0L},
    {Kilohertz, L"kHz", L"kHz", Frequency, kilo},
    {PerHour, L"1/h", L"1/h", Frequency, 1 / hour},
    // RotationalSpeed in rad/s: 1/min and 1/s count turns.
    {PerMinute, L"1/min", L"1/min", RotationalSpeed, turn / minute},
    {PerSecond, L"1/s", L"1/s", RotationalSpeed, turn},
    {Rpm, L"rpm", L"rpm", RotationalSpeed, turn / minute},
    {RadianPerSecond, L"rad/s", L"rad/s", RotationalSpeed, 1.0L},
    // LinearSpeed in m/s.
    {MillimetrePerSecond, L"mm/s", L"mm/s", LinearSpeed, milli},
    {MetrePerSecond, L"m/s", L"m/s", LinearSpeed, 1.0L},
    {MetrePerMinute, L"m/min", L"m/min", LinearSpeed, 1 / minute},
    {KilometrePerHour, L"km/h", L"km/h", LinearSpeed, kilo / hour},
    {InchPerSecond, L"in/s", L"in/s", LinearSpeed, inch},
    {FootPerSecond, L"ft/s", L"ft/s", LinearSpeed, foot},
    {FootPerMinute, L"ft/min", L"ft/min", LinearSpeed, foot / minute},
    {MilePerHour, L"mph", L"mph", LinearSpeed, 5280 * foot / hour},
    // Acceleration in m/s^2.
    {MetrePerSquareSecond, L"m/s²", L"m/s2", Acceleration, 1.0L},
    {StandardGravity, L"g₀", L"g0", Acceleration, gravity},
    {FootPerSquareSecond, L"ft/s²", L"ft/s2", Acceleration, foot},
    // Angle in rad.
    {DegreeAngle, L"°", L"deg", Angle, degree},
    {Radian, L"rad", L"rad", Angle, 1.0L},
    {Milliradian, L"mrad", L"mrad", Angle, milli},
    {Arcminute, L"′", L"arcmin", Angle, degree / 60},
    {Arcsecond, L"″", L"arcsec", Angle, degree / 3600},
    // Twist in rad/m: angle of twist by length.
    {DegreePerMetre, L"°/m", L"deg/m", Twist, degree},
    {DegreePerFoot, L"°/ft", L"deg/ft", Twist, degree / foot},
    // AngularAcceleration in rad/s^2.
    {RadianPerSquareSecond, L"rad/s²", L"rad/s2", AngularAcceleration, 1.0L},
    {DegreePerSquareSecond, L"°/s²", L"deg/s2", AngularAcceleration, degree},
    // Jerk in m/s^3: change of acceleration, of cams.
    {MetrePerCubicSecond, L"m/s³", L"m/s3", Jerk, 1.0L},
    {FootPerCubicSecond, L"ft/s³", L"ft/s3", Jerk, foot},
    // Power in W: PS: 75 kgf·m/s; hp: 550 ft·lbf/s.
    {Watt, L"W", L"W", Power, 1.0L},
    {Kilowatt, L"kW", L"kW", Power, kilo},
    {Megawatt, L"MW", L"MW", Power, mega},
    {MetricHorsepower, L"PS", L"PS", Power, 75 * gravity},
    {Horsepower, L"hp", L"hp", Power, 550 * foot * poundForce},
    // ApparentPower in W.
    {VoltAmpere, L"VA", L"VA", ApparentPower, 1.0L},
    {KilovoltAmpere, L"kVA", L"kVA", ApparentPower, kilo},
    // Energy in J: Btu: of the International Table, 1055.05585262 J.
    {Millijoule, L"mJ", L"mJ", Energy, milli},
    {Joule, L"J", L"J", Energy, 1.0L},
    {Kilojoule, L"kJ", L"kJ", Energy, kilo},
    {KilowattHour, L"kWh", L"kWh", Energy, kilo * hour},
    {InchPoundForce, L"in·lbf", L"in*lbf", Energy, inch * poundForce},
    {FootPoundForce, L"ft·lbf", L"ft*lbf", Energy, foot * poundForce},
    {Btu, L"Btu", L"Btu", Energy, btu},
    // SpecificEnergy in J/kg.
    {KilojoulePerKilogram, L"kJ/kg", L"kJ/kg", SpecificEnergy, kilo},
    {BtuPerPound, L"Btu/lb", L"Btu/lb", SpecificEnergy, btu / pound},
    // HeatFlux in W/m^2.
    {WattPerSquareMetre, L"W/m²", L"W/m2", HeatFlux, 1.0L},
    {WattPerSquareMillimetre, L"W/mm²", L"W/mm2", HeatFlux, mega},
    {BtuPerHourSquareFoot, L"Btu/(h·ft²)", L"Btu/(h*ft2)", HeatFlux, btu / (hour * foot * foot)},
    // Temperature in K: the offset leads to absolute zero.
    {Celsius, L"°C", L"degC", Temperature, 1.0L, 273.15L},
    {Kelvin, L"K", L"K", Temperature, 1.0L},
    {Fahrenheit, L"°F", L"degF", Temperature, rankine, 459.67L},
    // TemperatureDifference in K.
    {KelvinDifference, L"ΔK", L"dK", TemperatureDifference, 1.0L},
    {CelsiusDifference, L"Δ°C", L"ddegC", TemperatureDifference, 1.0L},
    {FahrenheitDifference, L"Δ°F", L"ddegF", TemperatureDifference, rankine},
    // ThermalExpansion in 1/K.
    {PerKelvin, L"1/K", L"1/K", ThermalExpansion, 1.0L},
    {MicroPerKelvin, L"10⁻⁶/K", L"1e-6/K", ThermalExpansion, micro},
    {MicroPerFahrenheit, L"10⁻⁶/°F", L"1e-6/degF", ThermalExpansion, micro / rankine},
    // ThermalConductivity in W/(m K).
    {WattPerMetreKelvin, L"W/(m·K)", L"W/(m*K)", ThermalConductivity, 1.0L},
    {BtuPerHourFootFahrenheit, L"Btu/(h·ft·°F)", L"Btu/(h*ft*degF)", ThermalConductivity,
     btu / (hour * foot * rankine)},
    // HeatCapacity in J/K.
    {KilojoulePerKelvin, L"kJ/K", L"kJ/K", HeatCapacity, kilo},
    {BtuPerFahrenheit, L"Btu/°F", L"Btu/degF", HeatCapacity, btu / rankine},
    // SpecificHeatCapacity in J/(kg K).
    {JoulePerKilogramKelvin, L"J/(kg·K)", L"J/(kg*K)", SpecificHeatCapacity, 1.0L},
    {KilojoulePerKilogramKelvin, L"kJ/(kg·K)", L"kJ/(kg*K)", SpecificHeatCapacity, kilo},
    {BtuPerPoundFahrenheit, L"Btu/(lb·°F)", L"Btu/(lb*degF)", SpecificHeatCapacity,
     btu / (pound * rankine)},
    // HeatTransfer in W/(m^2 K).
    {WattPerSquareMetreKelvin, L"W/(m²·K)", L"W/(m2*K)", HeatTransfer, 1.0L},
    {BtuPerHourSquareFootFahrenheit, L"Btu/(h·ft²·°F)", L"Btu/(h*ft2*degF)", HeatTransfer,
     btu / (hour * foot * foot * rankine)},
    // ThermalResistance in K/W.
    {KelvinPerWatt, L"K/W", L"K/W", ThermalResistance, 1.0L},
    {FahrenheitHourPerBtu, L"°F·h/Btu", L"degF*h/Btu", ThermalResistance, rankine * hour / btu},
    // DynamicViscosity in Pa s: reyn: lbf·s/in².
    {PascalSecond, L"Pa·s", L"Pa*s", DynamicViscosity, 1.0L},
    {MillipascalSecond, L"mPa·s", L"mPa*s", DynamicViscosity, milli},
    {Centipoise, L"cP", L"cP", DynamicViscosity, milli},
    {PoundForceSecondPerSquareInch, L"lbf·s/in²", L"lbf*s/in2", DynamicViscosity, psi},
    // KinematicViscosity in m^2/s.
    {SquareMillimetrePerSecond, L"mm²/s", L"mm2/s", KinematicViscosity, micro},
    {SquareMetrePerSecond, L"m²/s", L"m2/s", KinematicViscosity, 1.0L},
    {Centistokes, L"cSt", L"cSt", KinematicViscosity, micro},
    {SquareInchPerSecond, L"in²/s", L"in2/s", KinematicViscosity, inch * inch},
    // VolumeFlow in m^3/s.
    {CubicMetrePerSecond, L"m³/s", L"m3/s", VolumeFlow, 1.0L},
    {CubicMetrePerHour, L"m³/h", L"m3/h", VolumeFlow, 1 / hour},
    {LitrePerMinute, L"l/min", L"l/min", VolumeFlow, litre / minute},
    {CubicFootPerMinute, L"ft³/min", L"ft3/min", VolumeFlow, foot * foot * foot / minute},
    {GallonPerMinute, L"gal/min", L"gal/min", VolumeFlow, gallon / minute},
    // MassFlow in kg/s.
    {KilogramPerSecond, L"kg/s", L"kg/s", MassFlow, 1.0L},
    {KilogramPerHour, L"kg/h", L"kg/h", MassFlow, 1 / hour},
    {PoundPerSecond, L"lb/s", L"lb/s", MassFlow, pound},
    {PoundPerHour, L"lb/h", L"lb/h", MassFlow, pound / hour},
    // Voltage in V.
    {Volt, L"V", L"V", Voltage, 1.0L},
    {Kilovolt, L"kV", L"kV", Voltage, kilo},
    // ElectricCurrent in A.
    {Milliampere, L"mA", L"mA", ElectricCurrent, milli},
    {Ampere, L"A", L"A", ElectricCurrent, 1.0L},
    // ElectricResistance in ohm.
    {Ohm, L"Ω", L"Ohm", ElectricResistance, 1.0L},
    {Kiloohm, L"kΩ", L"kOhm", ElectricResistance, kilo},
    {Megaohm, L"MΩ", L"MOhm", ElectricResistance, mega},
    // Ratio in 1: a plain number has no unit at all.
    {Percent, L"%", L"%", Ratio, centi},
    {Permille, L"‰", L"permille", Ratio, milli},
    {PartPerMillion, L"ppm", L"ppm", Ratio, micro},
    // RevolutionCount in 1: revolutions and load cycles.
    {Revolution, L"rev", L"rev", RevolutionCount, 1.0L},
    {MillionRevolutions, L"10⁶ rev", L"1e6rev", RevolutionCount, mega},
};
// clang-format on

constexpr TypeRow types[] = {
    {Length, L"Length", Millimetre, Inch},
    {Roughness, L"Roughness", Micrometre, Microinch},
    {Area, L"Area", SquareMillimetre, SquareInch},
    {Volume, L"Volume", CubicMillimetre, CubicInch},
    {LiquidVolume, L"LiquidVolume", Litre, Gallon},
    {SecondMomentOfArea, L"SecondMomentOfArea", MillimetreToTheFourth, InchToTheFourth},
    {WarpingConstant, L"WarpingConstant", MillimetreToTheSixth, InchToTheSixth},
    {Curvature, L"Curvature", PerMillimetre, PerInch},
    {Mass, L"Mass", Kilogram, Pound},
    {MomentOfInertia, L"MomentOfInertia", KilogramSquareMetre, PoundSquareFoot},
    {MassPerLength, L"MassPerLength", KilogramPerMetre, PoundPerFoot},
    {Imbalance, L"Imbalance", GramMillimetre, OunceInch},
    {Density, L"Density", KilogramPerCubicDecimetre, PoundPerCubicInch},
    {Force, L"Force", Newton, PoundForce},
    {Moment, L"Moment", NewtonMetre, PoundForceFoot},
    {Stress, L"Stress", NewtonPerSquareMillimetre, Psi},
    {Pressure, L"Pressure", Bar, PoundForcePerSquareInch},
    {LinearStiffness, L"LinearStiffness", NewtonPerMillimetre, PoundForcePerInch},
    {LineLoad, L"LineLoad", KilonewtonPerMetre, PoundForcePerFoot},
    {TorsionalStiffness, L"TorsionalStiffness", NewtonMetrePerRadian, PoundForceInchPerRadian},
    {Compliance, L"Compliance", MillimetrePerNewton, InchPerPoundForce},
    {LinearDamping, L"LinearDamping", NewtonSecondPerMetre, PoundForceSecondPerInch},
    {TorsionalDamping, L"TorsionalDamping", NewtonMetreSecondPerRadian,
     PoundForceInchSecondPerRadian},
    {FractureToughness, L"FractureToughness", MegapascalRootMetre, KsiRootInch},
    {ImpactToughness, L"ImpactToughness", JoulePerSquareCentimetre, FootPoundForcePerSquareInch},
    {PressureViscosity, L"PressureViscosity", SquareMillimetrePerNewton, SquareInchPerPoundForce},
    {PressureVelocity, L"PressureVelocity", MegapascalMetrePerSecond, PsiFootPerMinute},
    {Time, L"Time", Hour, Hour},
    {Frequency, L"Frequency", Hertz, Hertz},
    {RotationalSpeed, L"RotationalSpeed", PerMinute, Rpm},
    {LinearSpeed, L"LinearSpeed", MetrePerSecond, FootPerSecond},
    {Acceleration, L"Acceleration", MetrePerSquareSecond, FootPerSquareSecond},
    {Angle, L"Angle", DegreeAngle, DegreeAngle},
    {Twist, L"Twist", DegreePerMetre, DegreePerFoot},
    {AngularAcceleration, L"AngularAcceleration", RadianPerSquareSecond, RadianPerSquareSecond},
    {Jerk, L"Jerk", MetrePerCubicSecond, FootPerCubicSecond},
    {Power, L"Power", Kilowatt, Horsepower},
    {ApparentPower, L"ApparentPower", KilovoltAmpere, KilovoltAmpere},
    {Energy, L"Energy", Joule, FootPoundForce},
    {SpecificEnergy, L"SpecificEnergy", KilojoulePerKilogram, BtuPerPound},
    {HeatFlux, L"HeatFlux", WattPerSquareMetre, BtuPerHourSquareFoot},
    {Temperature, L"Temperature", Celsius, Fahrenheit},
    {TemperatureDifference, L"TemperatureDifference", KelvinDifference, FahrenheitDifference},
    {ThermalExpansion, L"ThermalExpansion", MicroPerKelvin, MicroPerFahrenheit},
    {ThermalConductivity, L"ThermalConductivity", WattPerMetreKelvin, BtuPerHourFootFahrenheit},
    {HeatCapacity, L"HeatCapacity", KilojoulePerKelvin, BtuPerFahrenheit},
    {SpecificHeatCapacity, L"SpecificHeatCapacity", JoulePerKilogramKelvin, BtuPerPoundFahrenheit},
    {HeatTransfer, L"HeatTransfer", WattPerSquareMetreKelvin, BtuPerHourSquareFootFahrenheit},
    {ThermalResistance, L"ThermalResistance", KelvinPerWatt, FahrenheitHourPerBtu},
    {DynamicViscosity, L"DynamicViscosity", MillipascalSecond, PoundForceSecondPerSquareInch},
    {KinematicViscosity, L"KinematicViscosity", SquareMillimetrePerSecond, SquareInchPerSecond},
    {VolumeFlow, L"VolumeFlow", LitrePerMinute, GallonPerMinute},
    {MassFlow, L"MassFlow", KilogramPerSecond, PoundPerSecond},
    {Voltage, L"Voltage", Volt, Volt},
    {ElectricCurrent, L"ElectricCurrent", Ampere, Ampere},
    {ElectricResistance, L"ElectricResistance", Ohm, Ohm},
    {Ratio, L"Ratio", Percent, Percent},
    {RevolutionCount, L"RevolutionCount", MillionRevolutions, MillionRevolutions},
};

} // namespace zelDimensionsTable
