#include "zelDimensions.h"
#include "zelDimensionsTable_p.h"

#include <QProcess>
#include <QStandardPaths>
#include <QtTest>

#include <cmath>

// Every factor and every conversion against GNU Units, which has its own definitions of all units
// (/usr/share/units/definitions.units).

namespace {

// A unit, what that program calls it, and the SI base of its dimension.
struct Expression
{
    ZelDimensions::Unit mUnit;
    const char *mText;
    const char *mBase;
    int mPower = 1; // the program takes no root of a unit: it gets the square
};

// clang-format off
constexpr Expression expressions[] = {
    {ZelDimensions::Millimetre, "mm", "m"},
    {ZelDimensions::Centimetre, "cm", "m"},
    {ZelDimensions::Metre, "m", "m"},
    {ZelDimensions::Kilometre, "km", "m"},
    {ZelDimensions::Mil, "mil", "m"},
    {ZelDimensions::Inch, "inch", "m"},
    {ZelDimensions::Foot, "ft", "m"},
    {ZelDimensions::Mile, "mile", "m"},
    {ZelDimensions::Nanometre, "nm", "m"},
    {ZelDimensions::Micrometre, "micrometer", "m"},
    {ZelDimensions::Microinch, "microinch", "m"},
    {ZelDimensions::SquareMillimetre, "mm^2", "m^2"},
    {ZelDimensions::SquareCentimetre, "cm^2", "m^2"},
    {ZelDimensions::SquareMetre, "m^2", "m^2"},
    {ZelDimensions::SquareInch, "in^2", "m^2"},
    {ZelDimensions::SquareFoot, "ft^2", "m^2"},
    {ZelDimensions::CubicMillimetre, "mm^3", "m^3"},
    {ZelDimensions::CubicCentimetre, "cm^3", "m^3"},
    {ZelDimensions::CubicDecimetre, "dm^3", "m^3"},
    {ZelDimensions::CubicMetre, "m^3", "m^3"},
    {ZelDimensions::CubicInch, "in^3", "m^3"},
    {ZelDimensions::CubicFoot, "ft^3", "m^3"},
    {ZelDimensions::Millilitre, "ml", "m^3"},
    {ZelDimensions::Litre, "liter", "m^3"},
    {ZelDimensions::FluidOunce, "usfloz", "m^3"},
    {ZelDimensions::Gallon, "usgallon", "m^3"},
    {ZelDimensions::MillimetreToTheFourth, "mm^4", "m^4"},
    {ZelDimensions::CentimetreToTheFourth, "cm^4", "m^4"},
    {ZelDimensions::InchToTheFourth, "in^4", "m^4"},
    {ZelDimensions::MillimetreToTheSixth, "mm^6", "m^6"},
    {ZelDimensions::CentimetreToTheSixth, "cm^6", "m^6"},
    {ZelDimensions::InchToTheSixth, "in^6", "m^6"},
    {ZelDimensions::PerMillimetre, "1/mm", "1/m"},
    {ZelDimensions::PerMetre, "1/m", "1/m"},
    {ZelDimensions::PerInch, "1/in", "1/m"},
    {ZelDimensions::Gram, "gram", "kg"},
    {ZelDimensions::Kilogram, "kg", "kg"},
    {ZelDimensions::Tonne, "tonne", "kg"},
    {ZelDimensions::Ounce, "oz", "kg"},
    {ZelDimensions::Pound, "lb", "kg"},
    {ZelDimensions::ShortTon, "shortton", "kg"},
    {ZelDimensions::KilogramSquareMillimetre, "kg mm^2", "kg m^2"},
    {ZelDimensions::KilogramSquareCentimetre, "kg cm^2", "kg m^2"},
    {ZelDimensions::KilogramSquareMetre, "kg m^2", "kg m^2"},
    {ZelDimensions::PoundSquareInch, "lb in^2", "kg m^2"},
    {ZelDimensions::PoundSquareFoot, "lb ft^2", "kg m^2"},
    {ZelDimensions::GramPerMetre, "g/m", "kg/m"},
    {ZelDimensions::KilogramPerMetre, "kg/m", "kg/m"},
    {ZelDimensions::PoundPerInch, "lb/in", "kg/m"},
    {ZelDimensions::PoundPerFoot, "lb/ft", "kg/m"},
    {ZelDimensions::GramMillimetre, "g mm", "kg m"},
    {ZelDimensions::OunceInch, "oz in", "kg m"},
    {ZelDimensions::KilogramPerCubicDecimetre, "kg/dm^3", "kg/m^3"},
    {ZelDimensions::KilogramPerCubicMetre, "kg/m^3", "kg/m^3"},
    {ZelDimensions::GramPerCubicCentimetre, "g/cm^3", "kg/m^3"},
    {ZelDimensions::PoundPerCubicInch, "lb/in^3", "kg/m^3"},
    {ZelDimensions::PoundPerCubicFoot, "lb/ft^3", "kg/m^3"},
    {ZelDimensions::Newton, "N", "N"},
    {ZelDimensions::Decanewton, "daN", "N"},
    {ZelDimensions::Kilonewton, "kN", "N"},
    {ZelDimensions::Meganewton, "MN", "N"},
    {ZelDimensions::KilogramForce, "kgf", "N"},
    {ZelDimensions::PoundForce, "lbf", "N"},
    {ZelDimensions::Kip, "kip", "N"},
    {ZelDimensions::NewtonMillimetre, "N mm", "N m"},
    {ZelDimensions::NewtonMetre, "N m", "N m"},
    {ZelDimensions::KilonewtonMetre, "kN m", "N m"},
    {ZelDimensions::OunceForceInch, "(oz force) in", "N m"},
    {ZelDimensions::PoundForceInch, "lbf in", "N m"},
    {ZelDimensions::PoundForceFoot, "lbf ft", "N m"},
    {ZelDimensions::NewtonPerSquareMillimetre, "N/mm^2", "Pa"},
    {ZelDimensions::Megapascal, "MPa", "Pa"},
    {ZelDimensions::Gigapascal, "GPa", "Pa"},
    {ZelDimensions::KilogramForcePerSquareMillimetre, "kgf/mm^2", "Pa"},
    {ZelDimensions::Psi, "psi", "Pa"},
    {ZelDimensions::Ksi, "ksi", "Pa"},
    {ZelDimensions::Pascal, "Pa", "Pa"},
    {ZelDimensions::Kilopascal, "kPa", "Pa"},
    {ZelDimensions::Millibar, "mbar", "Pa"},
    {ZelDimensions::Bar, "bar", "Pa"},
    {ZelDimensions::PoundForcePerSquareFoot, "lbf/ft^2", "Pa"},
    {ZelDimensions::PoundForcePerSquareInch, "lbf/in^2", "Pa"},
    {ZelDimensions::NewtonPerMillimetre, "N/mm", "N/m"},
    {ZelDimensions::NewtonPerMicrometre, "N/micrometer", "N/m"},
    {ZelDimensions::KilonewtonPerMillimetre, "kN/mm", "N/m"},
    {ZelDimensions::PoundForcePerInch, "lbf/in", "N/m"},
    {ZelDimensions::NewtonPerMetre, "N/m", "N/m"},
    {ZelDimensions::KilonewtonPerMetre, "kN/m", "N/m"},
    {ZelDimensions::PoundForcePerFoot, "lbf/ft", "N/m"},
    {ZelDimensions::NewtonMillimetrePerRadian, "N mm/radian", "N m/radian"},
    {ZelDimensions::NewtonMetrePerRadian, "N m/radian", "N m/radian"},
    {ZelDimensions::NewtonMillimetrePerDegree, "N mm/degree", "N m/radian"},
    {ZelDimensions::NewtonMetrePerDegree, "N m/degree", "N m/radian"},
    {ZelDimensions::PoundForceInchPerRadian, "lbf in/radian", "N m/radian"},
    {ZelDimensions::PoundForceInchPerDegree, "lbf in/degree", "N m/radian"},
    {ZelDimensions::MillimetrePerNewton, "mm/N", "m/N"},
    {ZelDimensions::InchPerPoundForce, "in/lbf", "m/N"},
    {ZelDimensions::NewtonSecondPerMetre, "N s/m", "N s/m"},
    {ZelDimensions::PoundForceSecondPerInch, "lbf s/in", "N s/m"},
    {ZelDimensions::NewtonMetreSecondPerRadian, "N m s/radian", "N m s/radian"},
    {ZelDimensions::PoundForceInchSecondPerRadian, "lbf in s/radian", "N m s/radian"},
    {ZelDimensions::MegapascalRootMetre, "MPa^2 m", "Pa^2 m", 2},
    {ZelDimensions::KsiRootInch, "ksi^2 inch", "Pa^2 m", 2},
    {ZelDimensions::JoulePerSquareCentimetre, "J/cm^2", "J/m^2"},
    {ZelDimensions::FootPoundForcePerSquareInch, "ft lbf/in^2", "J/m^2"},
    {ZelDimensions::SquareMillimetrePerNewton, "mm^2/N", "1/Pa"},
    {ZelDimensions::SquareInchPerPoundForce, "in^2/lbf", "1/Pa"},
    {ZelDimensions::MegapascalMetrePerSecond, "MPa m/s", "Pa m/s"},
    {ZelDimensions::PsiFootPerMinute, "psi ft/min", "Pa m/s"},
    {ZelDimensions::Millisecond, "ms", "s"},
    {ZelDimensions::Second, "s", "s"},
    {ZelDimensions::Minute, "min", "s"},
    {ZelDimensions::Hour, "hour", "s"},
    {ZelDimensions::Day, "day", "s"},
    {ZelDimensions::Year, "julianyear", "s"},
    {ZelDimensions::Hertz, "Hz", "Hz"},
    {ZelDimensions::Kilohertz, "kHz", "Hz"},
    {ZelDimensions::PerHour, "1/hour", "Hz"},
    {ZelDimensions::PerMinute, "rpm", "radian/s"},
    {ZelDimensions::PerSecond, "revolution/s", "radian/s"},
    {ZelDimensions::Rpm, "rpm", "radian/s"},
    {ZelDimensions::RadianPerSecond, "radian/s", "radian/s"},
    {ZelDimensions::MillimetrePerSecond, "mm/s", "m/s"},
    {ZelDimensions::MetrePerSecond, "m/s", "m/s"},
    {ZelDimensions::MetrePerMinute, "m/min", "m/s"},
    {ZelDimensions::KilometrePerHour, "km/hour", "m/s"},
    {ZelDimensions::InchPerSecond, "in/s", "m/s"},
    {ZelDimensions::FootPerSecond, "ft/s", "m/s"},
    {ZelDimensions::FootPerMinute, "ft/min", "m/s"},
    {ZelDimensions::MilePerHour, "mph", "m/s"},
    {ZelDimensions::MetrePerSquareSecond, "m/s^2", "m/s^2"},
    {ZelDimensions::StandardGravity, "gravity", "m/s^2"},
    {ZelDimensions::FootPerSquareSecond, "ft/s^2", "m/s^2"},
    {ZelDimensions::DegreeAngle, "degree", "radian"},
    {ZelDimensions::Radian, "radian", "radian"},
    {ZelDimensions::Milliradian, "milliradian", "radian"},
    {ZelDimensions::Arcminute, "arcmin", "radian"},
    {ZelDimensions::Arcsecond, "arcsec", "radian"},
    {ZelDimensions::DegreePerMetre, "degree/m", "radian/m"},
    {ZelDimensions::DegreePerFoot, "degree/ft", "radian/m"},
    {ZelDimensions::RadianPerSquareSecond, "radian/s^2", "radian/s^2"},
    {ZelDimensions::DegreePerSquareSecond, "degree/s^2", "radian/s^2"},
    {ZelDimensions::MetrePerCubicSecond, "m/s^3", "m/s^3"},
    {ZelDimensions::FootPerCubicSecond, "ft/s^3", "m/s^3"},
    {ZelDimensions::Watt, "W", "W"},
    {ZelDimensions::Kilowatt, "kW", "W"},
    {ZelDimensions::Megawatt, "MW", "W"},
    {ZelDimensions::MetricHorsepower, "metrichorsepower", "W"},
    {ZelDimensions::Horsepower, "hp", "W"},
    {ZelDimensions::VoltAmpere, "V A", "W"},
    {ZelDimensions::KilovoltAmpere, "kV A", "W"},
    {ZelDimensions::Millijoule, "mJ", "J"},
    {ZelDimensions::Joule, "J", "J"},
    {ZelDimensions::Kilojoule, "kJ", "J"},
    {ZelDimensions::KilowattHour, "kW hour", "J"},
    {ZelDimensions::InchPoundForce, "in lbf", "J"},
    {ZelDimensions::FootPoundForce, "ft lbf", "J"},
    {ZelDimensions::Btu, "btu_IT", "J"},
    {ZelDimensions::KilojoulePerKilogram, "kJ/kg", "J/kg"},
    {ZelDimensions::BtuPerPound, "btu_IT/lb", "J/kg"},
    {ZelDimensions::WattPerSquareMetre, "W/m^2", "W/m^2"},
    {ZelDimensions::WattPerSquareMillimetre, "W/mm^2", "W/m^2"},
    {ZelDimensions::BtuPerHourSquareFoot, "btu_IT/(hour ft^2)", "W/m^2"},
    {ZelDimensions::Celsius, "tempC", "tempK"},
    {ZelDimensions::Kelvin, "tempK", "tempK"},
    {ZelDimensions::Fahrenheit, "tempF", "tempK"},
    {ZelDimensions::KelvinDifference, "K", "K"},
    {ZelDimensions::CelsiusDifference, "degC", "K"},
    {ZelDimensions::FahrenheitDifference, "degF", "K"},
    {ZelDimensions::PerKelvin, "1/K", "1/K"},
    {ZelDimensions::MicroPerKelvin, "1e-6/K", "1/K"},
    {ZelDimensions::MicroPerFahrenheit, "1e-6/degF", "1/K"},
    {ZelDimensions::WattPerMetreKelvin, "W/(m K)", "W/(m K)"},
    {ZelDimensions::BtuPerHourFootFahrenheit, "btu_IT/(hour ft degF)", "W/(m K)"},
    {ZelDimensions::KilojoulePerKelvin, "kJ/K", "J/K"},
    {ZelDimensions::BtuPerFahrenheit, "btu_IT/degF", "J/K"},
    {ZelDimensions::JoulePerKilogramKelvin, "J/(kg K)", "J/(kg K)"},
    {ZelDimensions::KilojoulePerKilogramKelvin, "kJ/(kg K)", "J/(kg K)"},
    {ZelDimensions::BtuPerPoundFahrenheit, "btu_IT/(lb degF)", "J/(kg K)"},
    {ZelDimensions::WattPerSquareMetreKelvin, "W/(m^2 K)", "W/(m^2 K)"},
    {ZelDimensions::BtuPerHourSquareFootFahrenheit, "btu_IT/(hour ft^2 degF)", "W/(m^2 K)"},
    {ZelDimensions::KelvinPerWatt, "K/W", "K/W"},
    {ZelDimensions::FahrenheitHourPerBtu, "degF hour/btu_IT", "K/W"},
    {ZelDimensions::PascalSecond, "Pa s", "Pa s"},
    {ZelDimensions::MillipascalSecond, "mPa s", "Pa s"},
    {ZelDimensions::Centipoise, "centipoise", "Pa s"},
    {ZelDimensions::PoundForceSecondPerSquareInch, "reyn", "Pa s"},
    {ZelDimensions::SquareMillimetrePerSecond, "mm^2/s", "m^2/s"},
    {ZelDimensions::SquareMetrePerSecond, "m^2/s", "m^2/s"},
    {ZelDimensions::Centistokes, "centistokes", "m^2/s"},
    {ZelDimensions::SquareInchPerSecond, "in^2/s", "m^2/s"},
    {ZelDimensions::CubicMetrePerSecond, "m^3/s", "m^3/s"},
    {ZelDimensions::CubicMetrePerHour, "m^3/hour", "m^3/s"},
    {ZelDimensions::LitrePerMinute, "liter/min", "m^3/s"},
    {ZelDimensions::CubicFootPerMinute, "ft^3/min", "m^3/s"},
    {ZelDimensions::GallonPerMinute, "usgallon/min", "m^3/s"},
    {ZelDimensions::KilogramPerSecond, "kg/s", "kg/s"},
    {ZelDimensions::KilogramPerHour, "kg/hour", "kg/s"},
    {ZelDimensions::PoundPerSecond, "lb/s", "kg/s"},
    {ZelDimensions::PoundPerHour, "lb/hour", "kg/s"},
    {ZelDimensions::Volt, "V", "V"},
    {ZelDimensions::Kilovolt, "kV", "V"},
    {ZelDimensions::Milliampere, "mA", "A"},
    {ZelDimensions::Ampere, "A", "A"},
    {ZelDimensions::Ohm, "ohm", "ohm"},
    {ZelDimensions::Kiloohm, "kiloohm", "ohm"},
    {ZelDimensions::Megaohm, "megaohm", "ohm"},
    {ZelDimensions::Percent, "percent", "1"},
    {ZelDimensions::Permille, "1e-3", "1"},
    {ZelDimensions::PartPerMillion, "ppm", "1"},
    {ZelDimensions::Revolution, "1", "1"},
    {ZelDimensions::MillionRevolutions, "1e6", "1"},
};
// clang-format on

// Where a text of ours means something else to that program. The result is in the base above;
// NaN: it refuses to convert.
struct Difference
{
    ZelDimensions::Unit mUnit;
    const char *mText;
    double mTheirs;
    const char *mReason;
};

const double refused = std::nan("");

const Difference differences[] = {
    {ZelDimensions::PerMinute, "1/min", 1.0 / 60, "a frequency: no turn of 2 pi in it"},
    {ZelDimensions::PerSecond, "1/s", 1, "a frequency: no turn of 2 pi in it"},
    {ZelDimensions::Revolution, "rev", 2 * M_PI, "an angle, not a count"},
    {ZelDimensions::Year, "year", 31556925.9746784, "the tropical year"},
    {ZelDimensions::Year, "a", refused, "are, an area"},
    {ZelDimensions::Hour, "h", refused, "Planck's constant"},
    {ZelDimensions::Radian, "rad", refused, "a dose of radiation"},
    {ZelDimensions::Milliradian, "mrad", refused, "a dose of radiation"},
    {ZelDimensions::MetricHorsepower, "PS", refused, "petasiemens"},
    {ZelDimensions::FluidOunce, "fl oz", refused, "femtolitre times ounce"},
    {ZelDimensions::MegapascalRootMetre, "MPa m^(1|2)", refused, "no root of a unit"},
    {ZelDimensions::KsiRootInch, "ksi inch^(1|2)", refused, "no root of a unit"},
    {ZelDimensions::Celsius, "degC", 1, "a temperature difference"},
    {ZelDimensions::Fahrenheit, "degF", 5.0 / 9, "a temperature difference"},
};

const Expression &expressionOf(ZelDimensions::Unit unit)
{
    return expressions[unit];
}

QByteArray nameOf(ZelDimensions::Unit unit)
{
    return QString::fromStdWString(ZelDimensions::getEnumString(unit)).toUtf8();
}

bool isTemperature(ZelDimensions::Unit unit)
{
    return ZelDimensions::getType(unit) == ZelDimensions::Temperature;
}

struct Question
{
    QByteArray mHave;
    QByteArray mWant;
};

// All questions through one process; an answer is a line.
QList<QByteArray> ask(const QList<Question> &questions)
{
    QProcess process;
    // An empty file name keeps the user's own definitions out.
    process.start("units", {"--terse", "--output-format", "%.17g", "--file", ""});
    for (const Question &question : questions)
        process.write(question.mHave + '\n' + question.mWant + '\n');
    process.closeWriteChannel();
    process.waitForFinished();
    return process.readAllStandardOutput().trimmed().split('\n');
}

bool isClose(double ours, double theirs, double size)
{
    return std::abs(ours - theirs) <= 1e-14 * size;
}

} // namespace

class tst_zelDimensionsGnuUnits : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyUnitHasItsExpression();
    void everyFactorToTheSiBaseAgrees();
    void everyConversionAgrees_data();
    void everyConversionAgrees();
    void theKnownDifferencesAreStillThere_data();
    void theKnownDifferencesAreStillThere();
};

void tst_zelDimensionsGnuUnits::initTestCase()
{
    QVERIFY2(!QStandardPaths::findExecutable("units").isEmpty(),
             "GNU Units is missing; install the package \"units\"");
    QProcess process;
    process.start("units", {"--version"});
    QVERIFY(process.waitForFinished());
    QVERIFY2(process.readAllStandardOutput().startsWith("GNU Units"),
             "the program \"units\" is not GNU Units");
}

void tst_zelDimensionsGnuUnits::everyUnitHasItsExpression()
{
    QCOMPARE(std::size(expressions), size_t{212});
    for (int i = 0; i < 212; ++i)
        QCOMPARE(static_cast<int>(expressions[i].mUnit), i);
}

void tst_zelDimensionsGnuUnits::everyFactorToTheSiBaseAgrees()
{
    QList<Question> questions;
    for (const Expression &expression : expressions) {
        // A scale of temperatures counts from its zero: its factor is that of one step.
        const bool scale = isTemperature(expression.mUnit);
        const QByteArray text = expression.mText;
        questions << Question{scale ? text + "(1)-" + text + "(0)" : text,
                              scale ? "K" : expression.mBase};
    }
    const QList<QByteArray> answers = ask(questions);
    QVERIFY2(answers.size() == questions.size(), answers.join('\n'));
    for (int i = 0; i < questions.size(); ++i) {
        const zelDimensionsTable::UnitRow &row = zelDimensionsTable::units[i];
        bool isNumber = false;
        const double theirs = answers[i].toDouble(&isNumber);
        QVERIFY2(isNumber, nameOf(row.mUnit) + ": " + answers[i]);
        const double ours = std::pow(static_cast<double>(row.mFactor), expressions[i].mPower);
        // The step of a scale is the small difference of two large numbers.
        const double size = isTemperature(row.mUnit) ? 273.15 : theirs;
        QVERIFY2(isClose(ours, theirs, size), nameOf(row.mUnit) + ": " + answers[i]);
    }
}

void tst_zelDimensionsGnuUnits::everyConversionAgrees_data()
{
    QTest::addColumn<int>("type");
    for (const zelDimensionsTable::TypeRow &row : zelDimensionsTable::types)
        QTest::newRow(qPrintable(QString::fromWCharArray(row.mName))) << int{row.mType};
}

void tst_zelDimensionsGnuUnits::everyConversionAgrees()
{
    QFETCH(int, type);
    struct Case
    {
        double mValue;
        ZelDimensions::Unit mFrom;
        ZelDimensions::Unit mTo;
    };
    QList<Question> questions;
    QList<Case> cases;
    const auto units = ZelDimensions::getList(static_cast<ZelDimensions::Type>(type));
    for (const ZelDimensions::Unit from : units) {
        for (const ZelDimensions::Unit to : units) {
            for (const double value : {1.0, 137.25, 451.0}) {
                const Expression &have = expressionOf(from);
                const double power = std::pow(value, have.mPower);
                const QByteArray number = '(' + QByteArray::number(power, 'g', 17) + ')';
                const QByteArray text =
                    isTemperature(from) ? have.mText + number : number + " (" + have.mText + ')';
                questions << Question{text, expressionOf(to).mText};
                cases << Case{value, from, to};
            }
        }
    }
    const QList<QByteArray> answers = ask(questions);
    QVERIFY2(answers.size() == questions.size(), answers.join('\n'));
    for (int i = 0; i < cases.size(); ++i) {
        const auto [value, from, to] = cases[i];
        bool isNumber = false;
        const double theirs = answers[i].toDouble(&isNumber);
        const QByteArray what =
            questions[i].mHave + " in " + questions[i].mWant + ": " + answers[i];
        QVERIFY2(isNumber, what);
        const double changed = ZelDimensions::changeUnit(value, from, to);
        const double ours = std::pow(changed, expressionOf(to).mPower);
        const double size = std::abs(theirs) + (isTemperature(from) ? 273.15 : 0);
        QVERIFY2(isClose(ours, theirs, size), what);
    }
}

void tst_zelDimensionsGnuUnits::theKnownDifferencesAreStillThere_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < static_cast<int>(std::size(differences)); ++i)
        QTest::addRow("%s: %s", differences[i].mText, differences[i].mReason) << i;
}

void tst_zelDimensionsGnuUnits::theKnownDifferencesAreStillThere()
{
    QFETCH(int, index);
    const Difference &difference = differences[index];
    const Expression &expression = expressionOf(difference.mUnit);
    const bool scale = isTemperature(difference.mUnit);
    const QByteArray base = scale ? "K" : expression.mBase;
    const QByteArray answer = ask({{difference.mText, base}}).first();
    bool isNumber = false;
    const double theirs = answer.toDouble(&isNumber);
    QCOMPARE(isNumber, !std::isnan(difference.mTheirs));
    if (!isNumber)
        return;
    QVERIFY2(isClose(difference.mTheirs, theirs, theirs), answer);
    const double ours = scale
        ? ZelDimensions::changeUnit(1, difference.mUnit, ZelDimensions::Kelvin)
        : static_cast<double>(zelDimensionsTable::units[difference.mUnit].mFactor);
    QVERIFY2(!isClose(ours, theirs, theirs), "no difference any more");
}

QTEST_APPLESS_MAIN(tst_zelDimensionsGnuUnits)
#include "tst_zelDimensionsGnuUnits.moc"
