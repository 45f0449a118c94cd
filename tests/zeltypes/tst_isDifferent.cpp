#include "isDifferent.h"
#include "zelAutoDirty.h"

#include <QtTest>

#include <cstring>
#include <limits>

// The test for a changed number, and the value that notes its changes.
class tst_isDifferent : public QObject
{
    Q_OBJECT

private slots:
    void aDifferenceAboveATrillionthOfTheLargerCounts_data();
    void aDifferenceAboveATrillionthOfTheLargerCounts();

    void aNewValueSetsTheFlag();
    void theSameValueLeavesTheFlag();
    void aValueWithoutFlagJustChanges();
    void aFlagThatIsSetStaysSet();
    void assigningFromAnotherObjectTakesItsValueAlone();
    void aNotANumberThatStaysOneIsNoChange();
    void theValueStandsBeforeTheFlagPointer();
};

void tst_isDifferent::aDifferenceAboveATrillionthOfTheLargerCounts_data()
{
    QTest::addColumn<double>("a");
    QTest::addColumn<double>("b");
    QTest::addColumn<bool>("different");
    const double infinity = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("equal") << 0.1 << 0.1 << false;
    QTest::newRow("last digits of a sum") << 0.1 + 0.2 << 0.3 << false;
    QTest::newRow("just within") << 1.0 << 1.0 + 0.9e-12 << false;
    QTest::newRow("just beyond") << 1.0 << 1.0 + 1.1e-12 << true;
    QTest::newRow("large, within") << 1e200 << 1e200 * (1 + 0.9e-12) << false;
    QTest::newRow("large, beyond") << 1e200 << 1e200 * (1 + 1.1e-12) << true;
    QTest::newRow("small, beyond") << 1e-200 << 1.1e-200 << true;
    QTest::newRow("zero and a small number") << 0.0 << 1e-300 << true;
    QTest::newRow("zeros of both signs") << 0.0 << -0.0 << false;
    QTest::newRow("signs") << 1.0 << -1.0 << true;
    QTest::newRow("a difference beyond a double") << 1.7e308 << -1.7e308 << true;
    QTest::newRow("NaN twice") << nan << nan << false;
    QTest::newRow("NaN and a number") << nan << 1.0 << true;
    QTest::newRow("infinity twice") << infinity << infinity << false;
    QTest::newRow("infinities of both signs") << infinity << -infinity << true;
    QTest::newRow("infinity and a number") << infinity << 1e308 << true;
    QTest::newRow("infinity and NaN") << infinity << nan << true;
}

void tst_isDifferent::aDifferenceAboveATrillionthOfTheLargerCounts()
{
    QFETCH(double, a);
    QFETCH(double, b);
    QTEST(isDifferent(a, b), "different");
    QTEST(isDifferent(b, a), "different");
}

void tst_isDifferent::aNewValueSetsTheFlag()
{
    bool dirty = false;
    zelAutoDirty<double> value(1.5, &dirty);
    QVERIFY(!dirty);
    value = 2.5;
    QVERIFY(dirty);
    QCOMPARE(static_cast<double>(value), 2.5);
}

void tst_isDifferent::theSameValueLeavesTheFlag()
{
    bool dirty = false;
    zelAutoDirty<double> value(1.5, &dirty);
    value = 1.5;
    QVERIFY(!dirty);
}

void tst_isDifferent::aValueWithoutFlagJustChanges()
{
    zelAutoDirty<int> value;
    QCOMPARE(static_cast<int>(value), 0);
    value = 3;
    QCOMPARE(static_cast<int>(value), 3);
}

void tst_isDifferent::aFlagThatIsSetStaysSet()
{
    bool dirty = true;
    zelAutoDirty<double> value(1.5, &dirty);
    value = 1.5;
    QVERIFY(dirty);
}

void tst_isDifferent::assigningFromAnotherObjectTakesItsValueAlone()
{
    bool dirty = false;
    bool otherDirty = false;
    zelAutoDirty<double> value(1.5, &dirty);
    const zelAutoDirty<double> other(2.5, &otherDirty);
    value = other;
    QVERIFY(dirty);
    QVERIFY(!otherDirty);
    QCOMPARE(value.mValue, 2.5);
    QCOMPARE(value.mDirty, &dirty);
    QCOMPARE(zelAutoDirty<double>(other).mDirty, &otherDirty);
}

void tst_isDifferent::aNotANumberThatStaysOneIsNoChange()
{
    bool dirty = false;
    const double nan = std::numeric_limits<double>::quiet_NaN();
    zelAutoDirty<double> value(nan, &dirty);
    value = nan;
    QVERIFY(!dirty);
    value = 1.0;
    QVERIFY(dirty);
    dirty = false;
    value = nan;
    QVERIFY(dirty);
}

// Readers of the value write both parts at their places.
void tst_isDifferent::theValueStandsBeforeTheFlagPointer()
{
    bool dirty = false;
    const zelAutoDirty<double> value(1.5, &dirty);
    QCOMPARE(sizeof value, sizeof(double) + sizeof(bool *));
    const char *const bytes = reinterpret_cast<const char *>(&value);
    const double number = 1.5;
    const bool *const flag = &dirty;
    QVERIFY(std::memcmp(bytes, &number, sizeof number) == 0);
    QVERIFY(std::memcmp(bytes + sizeof number, &flag, sizeof flag) == 0);
}

QTEST_APPLESS_MAIN(tst_isDifferent)
#include "tst_isDifferent.moc"
