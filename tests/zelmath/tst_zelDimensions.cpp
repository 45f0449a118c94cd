#include "zelDimensions.h"

#include <QtTest>

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
    return QByteArray::fromStdString(
        QString::fromStdWString(ZelDimensions::getEnumString(unit)).toStdString());
}

bool usCustomary = false;

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

QTEST_APPLESS_MAIN(tst_zelDimensions)
#include "tst_zelDimensions.moc"
