#include "zelDimensions.h"

#include <QtTest>

#include <cmath>
#include <limits>
#include <random>
#include <set>

// Values and texts of the units. The factors themselves are compared with another program in
// tst_zelDimensionsGnuUnits.

namespace {

constexpr int unitCount = 212;
constexpr int typeCount = 58;

ZelDimensions::Unit unitAt(int number)
{
    return static_cast<ZelDimensions::Unit>(number);
}

ZelDimensions::Type typeAt(int number)
{
    return static_cast<ZelDimensions::Type>(number);
}

QByteArray nameOf(ZelDimensions::Unit unit)
{
    return QString::fromStdWString(ZelDimensions::getEnumString(unit)).toUtf8();
}

// Distance from a number to the next greater double.
double ulp(double value)
{
    return std::nextafter(value, std::numeric_limits<double>::infinity()) - value;
}

bool usCustomary = false;

bool queryUnitSystem()
{
    return usCustomary;
}

constexpr ZelDimensions::Unit outside[] = {
    ZelDimensions::DynamicUnit, ZelDimensions::NoUnit, static_cast<ZelDimensions::Unit>(-1),
    static_cast<ZelDimensions::Unit>(214), static_cast<ZelDimensions::Unit>(1 << 30)};

} // namespace

class tst_zelDimensions : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void theNumbersThatWidgetsCompareWithAreFixed();
    void everyNumberBelow212IsAUnit();
    void everyNumberBelow58IsADimensionWithUnits();
    void theListsOfTheDimensionsHoldEveryUnitOnce();
    void theTextsOfAListFollowItsUnits();
    void menusRunFromMetricToUsCustomaryUnits_data();
    void menusRunFromMetricToUsCustomaryUnits();

    void displayTextsAreUniqueOverAllDimensions();
    void displayTextsFitIntoAMenu();
    void textsForFilesAreUniqueAsciiWithoutBlanks();
    void textsLeadBackToTheirUnit();
    void theTextOfAUnitIsFixed_data();
    void theTextOfAUnitIsFixed();
    void unknownTextsGiveNoUnit_data();
    void unknownTextsGiveNoUnit();
    void numbersOutsideTheEnumerationsAreHarmless();

    void withoutQueryAllIsMetric();
    void theQueryChoosesTheUnitSystem();
    void theMetricDefaultIgnoresTheQuery();
    void theDefaultOfADimensionIsOneOfItsUnits();
    void aUnitWithoutDimensionIsItsOwnDefault();

    void conversionsHaveTheirExactValue_data();
    void conversionsHaveTheirExactValue();
    void aConversionToTheSameUnitKeepsEveryBit();
    void aConversionBetweenDimensionsGivesTheValue();
    void aConversionWithoutUnitGivesTheValue();
    void zeroKeepsItsSign();
    void infinityAndNanStay();
    void aRoundTripStaysWithinTwoUlp_data();
    void aRoundTripStaysWithinTwoUlp();
};

void tst_zelDimensions::cleanup()
{
    ZelDimensions::setUnitSystemQuery(nullptr);
    usCustomary = false;
}

void tst_zelDimensions::theNumbersThatWidgetsCompareWithAreFixed()
{
    QCOMPARE(static_cast<int>(ZelDimensions::DegreeAngle), 133);
    QCOMPARE(static_cast<int>(ZelDimensions::DynamicUnit), 212);
    QCOMPARE(static_cast<int>(ZelDimensions::NoUnit), 213);
    QCOMPARE(static_cast<int>(ZelDimensions::NoType), 58);
    QCOMPARE(ZelDimensions::getString(unitAt(133)), std::wstring(L"°"));
    QCOMPARE(ZelDimensions::getType(unitAt(133)), ZelDimensions::Angle);
}

void tst_zelDimensions::everyNumberBelow212IsAUnit()
{
    for (int i = 0; i < unitCount; ++i) {
        QVERIFY2(!ZelDimensions::getString(unitAt(i)).empty(), QByteArray::number(i));
        QVERIFY2(!ZelDimensions::getEnumString(unitAt(i)).empty(), QByteArray::number(i));
        QVERIFY2(ZelDimensions::getType(unitAt(i)) != ZelDimensions::NoType, QByteArray::number(i));
    }
}

void tst_zelDimensions::everyNumberBelow58IsADimensionWithUnits()
{
    std::set<std::wstring> names;
    for (int i = 0; i < typeCount; ++i) {
        QVERIFY2(ZelDimensions::getList(typeAt(i)).size() >= 2, QByteArray::number(i));
        names.insert(ZelDimensions::getTypeString(typeAt(i)));
    }
    QCOMPARE(names.size(), size_t{typeCount});
    QVERIFY(!names.count(L""));
    QCOMPARE(ZelDimensions::getTypeString(ZelDimensions::Length), std::wstring(L"Length"));
    QCOMPARE(ZelDimensions::getTypeString(ZelDimensions::RevolutionCount),
             std::wstring(L"RevolutionCount"));
}

void tst_zelDimensions::theListsOfTheDimensionsHoldEveryUnitOnce()
{
    std::vector<ZelDimensions::Unit> all;
    for (int i = 0; i < typeCount; ++i) {
        for (const ZelDimensions::Unit unit : ZelDimensions::getList(typeAt(i))) {
            QCOMPARE(ZelDimensions::getType(unit), typeAt(i));
            all.push_back(unit);
        }
    }
    QCOMPARE(all.size(), size_t{unitCount});
    for (int i = 0; i < unitCount; ++i)
        QCOMPARE(all[static_cast<size_t>(i)], unitAt(i));
}

void tst_zelDimensions::theTextsOfAListFollowItsUnits()
{
    for (int i = 0; i < typeCount; ++i) {
        const auto units = ZelDimensions::getList(typeAt(i));
        const auto texts = ZelDimensions::getStringList(typeAt(i));
        QCOMPARE(texts.size(), units.size());
        for (size_t j = 0; j < units.size(); ++j)
            QCOMPARE(texts[j], ZelDimensions::getString(units[j]));
    }
}

void tst_zelDimensions::menusRunFromMetricToUsCustomaryUnits_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("menu");
    QTest::newRow("length") << int{ZelDimensions::Length} << "mm cm m km mil in ft mi";
    QTest::newRow("force") << int{ZelDimensions::Force} << "N daN kN MN kgf lbf kip";
    QTest::newRow("stress") << int{ZelDimensions::Stress} << "N/mm² MPa GPa kgf/mm² psi ksi";
    QTest::newRow("pressure") << int{ZelDimensions::Pressure} << "Pa kPa mbar bar lbf/ft² lbf/in²";
    QTest::newRow("angle") << int{ZelDimensions::Angle} << "° rad mrad ′ ″";
    QTest::newRow("temperature") << int{ZelDimensions::Temperature} << "°C K °F";
    QTest::newRow("temperature difference")
        << int{ZelDimensions::TemperatureDifference} << "ΔK Δ°C Δ°F";
}

void tst_zelDimensions::menusRunFromMetricToUsCustomaryUnits()
{
    QFETCH(int, type);
    QStringList menu;
    for (const std::wstring &text : ZelDimensions::getStringList(typeAt(type)))
        menu << QString::fromStdWString(text);
    QTEST(menu.join(' '), "menu");
}

void tst_zelDimensions::displayTextsAreUniqueOverAllDimensions()
{
    std::set<std::wstring> texts;
    for (int i = 0; i < unitCount; ++i)
        QVERIFY2(texts.insert(ZelDimensions::getString(unitAt(i))).second, nameOf(unitAt(i)));
}

// Menus make "&" a mnemonic and labels read "<" as the begin of a tag.
void tst_zelDimensions::displayTextsFitIntoAMenu()
{
    for (int i = 0; i < unitCount; ++i) {
        const std::wstring text = ZelDimensions::getString(unitAt(i));
        QVERIFY2(text.find_first_of(L"&<>\t\n[]") == std::wstring::npos, nameOf(unitAt(i)));
        QVERIFY2(text.front() != L' ' && text.back() != L' ', nameOf(unitAt(i)));
    }
}

void tst_zelDimensions::textsForFilesAreUniqueAsciiWithoutBlanks()
{
    std::set<std::wstring> texts;
    for (int i = 0; i < unitCount; ++i) {
        const std::wstring text = ZelDimensions::getEnumString(unitAt(i));
        QVERIFY2(texts.insert(text).second, nameOf(unitAt(i)));
        for (const wchar_t character : text)
            QVERIFY2(character > L' ' && character < 127, nameOf(unitAt(i)));
    }
}

void tst_zelDimensions::textsLeadBackToTheirUnit()
{
    for (int i = 0; i < unitCount; ++i) {
        const ZelDimensions::Unit unit = unitAt(i);
        QCOMPARE(ZelDimensions::getUnit(ZelDimensions::getString(unit)), unit);
        QCOMPARE(ZelDimensions::fromEnumString(ZelDimensions::getEnumString(unit)), unit);
        QCOMPARE(ZelDimensions::getType(ZelDimensions::getString(unit)),
                 ZelDimensions::getType(unit));
    }
}

// Files and settings hold the stable texts, so a change of one loses what users have stored.
void tst_zelDimensions::theTextOfAUnitIsFixed_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("enumString");
    const auto row = [](ZelDimensions::Unit unit, const char *text, const char *enumString) {
        QTest::newRow(enumString) << int{unit} << QString::fromUtf8(text) << QString(enumString);
    };
    row(ZelDimensions::Millimetre, "mm", "mm");
    row(ZelDimensions::Micrometre, "µm", "um");
    row(ZelDimensions::SquareMillimetrePerSecond, "mm²/s", "mm2/s");
    row(ZelDimensions::NewtonPerSquareMillimetre, "N/mm²", "N/mm2");
    row(ZelDimensions::NewtonMillimetre, "N·mm", "N*mm");
    row(ZelDimensions::KilogramPerCubicDecimetre, "kg/dm³", "kg/dm3");
    row(ZelDimensions::DegreeAngle, "°", "deg");
    row(ZelDimensions::Celsius, "°C", "degC");
    row(ZelDimensions::KelvinDifference, "ΔK", "dK");
    row(ZelDimensions::PerMinute, "1/min", "1/min");
    row(ZelDimensions::MicroPerKelvin, "10⁻⁶/K", "1e-6/K");
    row(ZelDimensions::Permille, "‰", "permille");
    row(ZelDimensions::Ohm, "Ω", "Ohm");
    row(ZelDimensions::MillionRevolutions, "10⁶ rev", "1e6rev");
}

void tst_zelDimensions::theTextOfAUnitIsFixed()
{
    QFETCH(int, unit);
    QTEST(QString::fromStdWString(ZelDimensions::getString(unitAt(unit))), "text");
    QTEST(QString::fromStdWString(ZelDimensions::getEnumString(unitAt(unit))), "enumString");
}

void tst_zelDimensions::unknownTextsGiveNoUnit_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << "";
    QTest::newRow("no unit") << "furlong";
    QTest::newRow("blank in front") << " mm";
    QTest::newRow("other case") << "MM";
    QTest::newRow("beginning of a text") << "N/m" + QString(QChar(0));
    QTest::newRow("with tags") << "N/mm<sup>2</sup>";
}

void tst_zelDimensions::unknownTextsGiveNoUnit()
{
    QFETCH(QString, text);
    QCOMPARE(ZelDimensions::getUnit(text.toStdWString()), ZelDimensions::NoUnit);
    QCOMPARE(ZelDimensions::getType(text.toStdWString()), ZelDimensions::NoType);
    QCOMPARE(ZelDimensions::fromEnumString(text.toStdWString()), ZelDimensions::NoUnit);
}

void tst_zelDimensions::numbersOutsideTheEnumerationsAreHarmless()
{
    for (const ZelDimensions::Unit unit : outside) {
        QVERIFY(ZelDimensions::getString(unit).empty());
        QVERIFY(ZelDimensions::getEnumString(unit).empty());
        QCOMPARE(ZelDimensions::getType(unit), ZelDimensions::NoType);
    }
    for (const int type : {-1, 58, 59, 1 << 30}) {
        QVERIFY(ZelDimensions::getTypeString(typeAt(type)).empty());
        QVERIFY(ZelDimensions::getStringList(typeAt(type)).empty());
        QVERIFY(ZelDimensions::getList(typeAt(type)).empty());
    }
}

void tst_zelDimensions::withoutQueryAllIsMetric()
{
    QCOMPARE(ZelDimensions::defaultUnit(ZelDimensions::Foot, true), ZelDimensions::Millimetre);
    QCOMPARE(ZelDimensions::defaultUnit(ZelDimensions::Foot, false), ZelDimensions::Millimetre);
}

void tst_zelDimensions::theQueryChoosesTheUnitSystem()
{
    ZelDimensions::setUnitSystemQuery(queryUnitSystem);
    QCOMPARE(ZelDimensions::defaultUnit(ZelDimensions::Metre, true), ZelDimensions::Millimetre);
    usCustomary = true;
    QCOMPARE(ZelDimensions::defaultUnit(ZelDimensions::Metre, true), ZelDimensions::Inch);
    QCOMPARE(ZelDimensions::defaultUnit(ZelDimensions::Kilonewton, true),
             ZelDimensions::PoundForce);
    QCOMPARE(ZelDimensions::defaultUnit(ZelDimensions::Megapascal, true), ZelDimensions::Psi);
    QCOMPARE(ZelDimensions::defaultUnit(ZelDimensions::Kelvin, true), ZelDimensions::Fahrenheit);
    usCustomary = false;
    QCOMPARE(ZelDimensions::defaultUnit(ZelDimensions::Psi, true),
             ZelDimensions::NewtonPerSquareMillimetre);
}

void tst_zelDimensions::theMetricDefaultIgnoresTheQuery()
{
    ZelDimensions::setUnitSystemQuery(queryUnitSystem);
    usCustomary = true;
    QCOMPARE(ZelDimensions::defaultUnit(ZelDimensions::Inch, false), ZelDimensions::Millimetre);
}

void tst_zelDimensions::theDefaultOfADimensionIsOneOfItsUnits()
{
    ZelDimensions::setUnitSystemQuery(queryUnitSystem);
    for (const bool system : {false, true}) {
        usCustomary = system;
        for (int i = 0; i < unitCount; ++i) {
            const ZelDimensions::Unit unit = ZelDimensions::defaultUnit(unitAt(i), true);
            QCOMPARE(ZelDimensions::getType(unit), ZelDimensions::getType(unitAt(i)));
            QCOMPARE(ZelDimensions::defaultUnit(unit, true), unit);
        }
    }
}

void tst_zelDimensions::aUnitWithoutDimensionIsItsOwnDefault()
{
    for (const bool current : {false, true}) {
        QCOMPARE(ZelDimensions::defaultUnit(ZelDimensions::NoUnit, current), ZelDimensions::NoUnit);
        QCOMPARE(ZelDimensions::defaultUnit(ZelDimensions::DynamicUnit, current),
                 ZelDimensions::DynamicUnit);
        QCOMPARE(ZelDimensions::defaultUnit(unitAt(-1), current), ZelDimensions::NoUnit);
        QCOMPARE(ZelDimensions::defaultUnit(unitAt(214), current), ZelDimensions::NoUnit);
    }
}

void tst_zelDimensions::conversionsHaveTheirExactValue_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<double>("result");
    const auto row = [](double value, const char *from, const char *to, double result) {
        QTest::addRow("%g %s in %s", value, from, to)
            << value << QString::fromUtf8(from) << QString::fromUtf8(to) << result;
    };
    row(1, "in", "mm", 25.4);
    row(25.4, "mm", "in", 1);
    row(1, "ft", "in", 12);
    row(1, "mi", "m", 1609.344);
    row(100, "mm", "m", 0.1);
    row(0.1, "m", "mm", 100);
    row(1, "N/mm²", "MPa", 1);
    row(1, "kg/dm³", "kg/m³", 1000);
    row(1, "lb", "kg", 0.45359237);
    row(1, "kgf", "N", 9.80665);
    row(1, "lbf", "N", 4.4482216152605);
    row(1, "gal", "l", 3.785411784);
    row(1, "PS", "W", 735.49875);
    row(1, "Btu", "J", 1055.05585262);
    row(36, "km/h", "m/s", 10);
    row(1, "a", "d", 365.25);
    row(1, "h", "min", 60);
    row(1500, "1/min", "1/s", 25);
    row(1500, "rpm", "1/min", 1500);
    row(180, "°", "rad", M_PI);
    row(1, "°", "′", 60);
    row(12.5, "%", "‰", 125);
    row(1e6, "rev", "10⁶ rev", 1);
    row(32, "°F", "°C", 0);
    row(212, "°F", "°C", 100);
    row(-40, "°F", "°C", -40);
    row(100, "°C", "°F", 212);
    row(37, "°C", "°F", 98.6);
    row(0, "°C", "K", 273.15);
    row(-273.15, "°C", "K", 0);
    row(-459.67, "°F", "K", 0);
    row(68, "°F", "K", 293.15);
    row(0, "K", "°F", -459.67);
    row(-273.15, "°C", "°F", -459.67);
    row(20, "°C", "K", 293.15);
    row(0.01, "°C", "K", 273.16);
    row(98.6, "°F", "°C", 37);
    row(90, "Δ°F", "ΔK", 50);
    row(10, "ΔK", "Δ°C", 10);
}

// Written with all digits: QCOMPARE lets doubles differ.
void tst_zelDimensions::conversionsHaveTheirExactValue()
{
    QFETCH(double, value);
    QFETCH(QString, from);
    QFETCH(QString, to);
    QFETCH(double, result);
    const ZelDimensions::Unit fromUnit = ZelDimensions::getUnit(from.toStdWString());
    const ZelDimensions::Unit toUnit = ZelDimensions::getUnit(to.toStdWString());
    QVERIFY(fromUnit != ZelDimensions::NoUnit && toUnit != ZelDimensions::NoUnit);
    const double changed = ZelDimensions::changeUnit(value, fromUnit, toUnit);
    QCOMPARE(QByteArray::number(changed, 'g', 17), QByteArray::number(result, 'g', 17));
}

void tst_zelDimensions::aConversionToTheSameUnitKeepsEveryBit()
{
    for (int i = 0; i < unitCount; ++i) {
        for (const double value : {0.1, -1e308, 5e-324}) {
            QVERIFY2(ZelDimensions::changeUnit(value, unitAt(i), unitAt(i)) == value,
                     nameOf(unitAt(i)));
        }
    }
}

void tst_zelDimensions::aConversionBetweenDimensionsGivesTheValue()
{
    for (int from = 0; from < unitCount; ++from) {
        for (int to = 0; to < unitCount; ++to) {
            if (ZelDimensions::getType(unitAt(from)) != ZelDimensions::getType(unitAt(to)))
                QVERIFY2(ZelDimensions::changeUnit(17.3, unitAt(from), unitAt(to)) == 17.3,
                         nameOf(unitAt(from)));
        }
    }
}

void tst_zelDimensions::aConversionWithoutUnitGivesTheValue()
{
    for (const ZelDimensions::Unit unit : outside) {
        QVERIFY(ZelDimensions::changeUnit(17.3, unit, ZelDimensions::Inch) == 17.3);
        QVERIFY(ZelDimensions::changeUnit(17.3, ZelDimensions::Inch, unit) == 17.3);
        QVERIFY(ZelDimensions::changeUnit(17.3, unit, unit) == 17.3);
    }
}

void tst_zelDimensions::zeroKeepsItsSign()
{
    const auto millimetreToInch = [](double value) {
        return ZelDimensions::changeUnit(value, ZelDimensions::Millimetre, ZelDimensions::Inch);
    };
    QVERIFY(std::signbit(millimetreToInch(-0.0)));
    QVERIFY(!std::signbit(millimetreToInch(0.0)));
}

void tst_zelDimensions::infinityAndNanStay()
{
    const double infinity = std::numeric_limits<double>::infinity();
    for (const ZelDimensions::Unit to : {ZelDimensions::Fahrenheit, ZelDimensions::Kelvin}) {
        QVERIFY(ZelDimensions::changeUnit(-infinity, ZelDimensions::Celsius, to) == -infinity);
        QVERIFY(std::isnan(ZelDimensions::changeUnit(std::nan(""), ZelDimensions::Celsius, to)));
    }
}

void tst_zelDimensions::aRoundTripStaysWithinTwoUlp_data()
{
    QTest::addColumn<int>("type");
    for (int i = 0; i < typeCount; ++i) {
        const QString name = QString::fromStdWString(ZelDimensions::getTypeString(typeAt(i)));
        QTest::newRow(qPrintable(name)) << i;
    }
}

// A shift between scales adds an error of its own size, which is all that is left of a temperature
// close to the zero of its scale.
void tst_zelDimensions::aRoundTripStaysWithinTwoUlp()
{
    QFETCH(int, type);
    std::mt19937_64 random(20240117);
    std::uniform_real_distribution<double> mantissa(-2, 2);
    std::uniform_int_distribution<int> exponent(-1000, 1000);
    const auto units = ZelDimensions::getList(typeAt(type));
    for (const ZelDimensions::Unit from : units) {
        for (const ZelDimensions::Unit to : units) {
            const double shift = std::abs(ZelDimensions::changeUnit(0, to, from));
            int compared = 0;
            for (int i = 0; i < 3000; ++i) {
                const int range = i % 2 ? exponent(random) : exponent(random) / 50;
                const double value = std::ldexp(mantissa(random), range);
                const double there = ZelDimensions::changeUnit(value, from, to);
                if (!std::isnormal(value) || !std::isnormal(there))
                    continue;
                const double back = ZelDimensions::changeUnit(there, to, from);
                const double size = std::abs(value) + shift;
                QVERIFY2(std::abs(back - value) <= 2 * ulp(size),
                         nameOf(from) + " to " + nameOf(to) + ", "
                             + QByteArray::number(value, 'g', 17));
                ++compared;
            }
            QVERIFY2(compared > 2500, nameOf(from) + " to " + nameOf(to));
        }
    }
}

QTEST_APPLESS_MAIN(tst_zelDimensions)
#include "tst_zelDimensions.moc"
