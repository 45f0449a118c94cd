#include "openLine.h"
#include "tarvexModule.h"
#include "zelQtSingleCalcVarInput.h"

#include <QVBoxLayout>
#include <QtTest>

/// Tells how often it was invalidated.
class CountingLayout : public QVBoxLayout
{
public:
    using QVBoxLayout::QVBoxLayout;
    void invalidate() override
    {
        ++mInvalidated;
        QVBoxLayout::invalidate();
    }
    int mInvalidated = 0;
};

/// Units of the lines of a page, as hosts set them when the unit system changes.
class tst_zelQtCalcVarUnits : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void linesTakeTheUnitOfTheUnitSystem_data();
    void linesTakeTheUnitOfTheUnitSystem();
    void unitsReachNestedLines();
    void checkedUnitsLeaveTheValue();
    void checkedUnitsLayTheParentOutAnew();

private:
    TarvexSetup mSetup;
};

void tst_zelQtCalcVarUnits::cleanup()
{
    TarvexModule::Setup = nullptr;
}

void tst_zelQtCalcVarUnits::linesTakeTheUnitOfTheUnitSystem_data()
{
    QTest::addColumn<bool>("usCustomary");
    QTest::addColumn<bool>("keepDefault");
    QTest::addColumn<QString>("defaultUnit");
    QTest::addColumn<QString>("unit");
    QTest::newRow("metric") << false << false << "m"
                            << "mm";
    QTest::newRow("US customary") << true << false << "m"
                                  << "in";
    QTest::newRow("default unit kept, metric") << false << true << "m"
                                               << "m";
    QTest::newRow("default unit kept, US customary") << true << true << "m"
                                                     << "m";
    QTest::newRow("force") << true << false << "N"
                           << "lbf";
    QTest::newRow("no unit") << true << false << ""
                             << "";
}

void tst_zelQtCalcVarUnits::linesTakeTheUnitOfTheUnitSystem()
{
    QFETCH(bool, usCustomary);
    QFETCH(bool, keepDefault);
    QFETCH(QString, defaultUnit);
    QFETCH(QString, unit);
    mSetup.mUSCustomaryUnits = usCustomary;
    TarvexModule::Setup = &mSetup;
    QWidget page;
    ProbeLine line(&page);
    line.mDefaultUnit = defaultUnit;
    if (!defaultUnit.isEmpty())
        line.setCurrentUnit(defaultUnit == QStringLiteral("N") ? QStringLiteral("kN")
                                                               : QStringLiteral("cm"));
    const QString before = line.currentUnit();
    line.take();
    ZelQtCalcVarInput::checkUnits(&page, keepDefault);
    QCOMPARE(line.currentUnit(), unit);
    // The input first, and once more through the label when that changes.
    QStringList expected{QStringLiteral("unit '%1' at '%2'").arg(unit, before)};
    if (unit != before)
        expected.append(QStringLiteral("unit '%1' at '%1'").arg(unit));
    QCOMPARE(line.take(), expected);
}

void tst_zelQtCalcVarUnits::unitsReachNestedLines()
{
    QWidget page;
    QWidget box(&page);
    QWidget innerBox(&box);
    ProbeLine line(&innerBox);
    line.mDefaultUnit = QStringLiteral("mm");
    line.setCurrentUnit(QStringLiteral("in"));
    ZelQtCalcVarInput::checkUnits(&page, true);
    QCOMPARE(line.currentUnit(), QStringLiteral("mm"));
}

void tst_zelQtCalcVarUnits::checkedUnitsLeaveTheValue()
{
    QWidget page;
    OpenLine<ZelQtSingleCalcVarInput> line(&page);
    line.setDefaultUnit(QStringLiteral("mm"));
    line.setCurrentUnit(QStringLiteral("m"));
    line.setWert(1500, QString());
    QCOMPARE(line.fields().at(0)->text(), QStringLiteral("1.5000"));
    ZelQtCalcVarInput::checkUnits(&page, true);
    double value = 0;
    line.getWert(value, QString());
    QCOMPARE(value, 1500.0);
    QCOMPARE(line.fields().at(0)->text(), QStringLiteral("1500.0000"));
    QCOMPARE(line.currentUnit(), QStringLiteral("mm"));
}

void tst_zelQtCalcVarUnits::checkedUnitsLayTheParentOutAnew()
{
    QWidget page;
    auto *layout = new CountingLayout(&page);
    layout->addWidget(new ProbeLine(&page));
    layout->mInvalidated = 0;
    ZelQtCalcVarInput::checkUnits(&page, true);
    QVERIFY(layout->mInvalidated > 0);
}

QTEST_MAIN(tst_zelQtCalcVarUnits)
#include "tst_zelQtCalcVarUnits.moc"
