#include "springExamples.h"
#include "wireTable.h"

#include <QtTest>

class tst_wireTable : public QObject
{
    Q_OBJECT

private slots:
    void strengthFollowsTheFormula_data();
    void strengthFollowsTheFormula();
    void strengthIsOnTheSafeSideOfTheStandard();
    void rangeOfDiameters_data();
    void rangeOfDiameters();
    void allGradesHaveTheElasticValuesOfPatentedWire();
    void unknownGradeIsNotFound();
};

static const WireGrade &grade(const QString &name)
{
    const WireGrade *found = findWireGrade(wireTable(), name.toStdString());
    if (!found)
        qFatal("no such grade");
    return *found;
}

void tst_wireTable::strengthFollowsTheFormula_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("diameter");
    QTest::addColumn<double>("strength");
    QTest::newRow("SL 3") << "SL" << 3.0 << 1405.1;
    QTest::newRow("SM 1") << "SM" << 1.0 << 1980.0;
    QTest::newRow("SM 2") << "SM" << 2.0 << 1757.24;
    QTest::newRow("SM 5") << "SM" << 5.0 << 1462.76;
    QTest::newRow("DM as SM") << "DM" << 5.0 << 1462.76;
    QTest::newRow("SH 2.5") << "SH" << 2.5 << 1893.69;
    QTest::newRow("SH 0.3") << "SH" << 0.3 << 2648.76;
    QTest::newRow("DH 0.15, capped") << "DH" << 0.15 << 2800.0;
    QTest::newRow("DH 0.05, capped") << "DH" << 0.05 << 2800.0;
    QTest::newRow("DH 0.2, just below the cap") << "DH" << 0.2 << 2793.16;
}

void tst_wireTable::strengthFollowsTheFormula()
{
    QFETCH(QString, name);
    QFETCH(double, diameter);
    QFETCH(double, strength);
    QVERIFY(SpringExamples::close(grade(name).tensileStrength(diameter), strength, 1e-5));
}

// The standard tabulates 2660 N/mm² for SH at 0.3 mm.
void tst_wireTable::strengthIsOnTheSafeSideOfTheStandard()
{
    const double strength = grade(QStringLiteral("SH")).tensileStrength(0.3);
    QVERIFY(strength < 2660);
    QVERIFY(strength > 2660 - 15);
}

void tst_wireTable::rangeOfDiameters_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("diameter");
    QTest::addColumn<bool>("available");
    const auto limits = [](const char *name, double from, double to) {
        QTest::addRow("%s below", name) << name << from * 0.999 << false;
        QTest::addRow("%s smallest", name) << name << from << true;
        QTest::addRow("%s largest", name) << name << to << true;
        QTest::addRow("%s above", name) << name << to * 1.001 << false;
    };
    limits("SL", 1, 10);
    limits("SM", 0.3, 20);
    limits("SH", 0.3, 20);
    limits("DM", 0.3, 20);
    limits("DH", 0.05, 20);
    QTest::newRow("not a number") << "SH" << qQNaN() << false;
}

void tst_wireTable::rangeOfDiameters()
{
    QFETCH(QString, name);
    QFETCH(double, diameter);
    QTEST(grade(name).availableFor(diameter), "available");
}

void tst_wireTable::allGradesHaveTheElasticValuesOfPatentedWire()
{
    QCOMPARE(wireTable().size(), size_t(5));
    for (const WireGrade &wire : wireTable()) {
        QCOMPARE(wire.mShearModulus, 81500.0);
        QCOMPARE(wire.mElasticModulus, 206000.0);
        QCOMPARE(wire.mDensity, 7.85);
    }
}

void tst_wireTable::unknownGradeIsNotFound()
{
    QVERIFY(findWireGrade(wireTable(), "SH"));
    QVERIFY(!findWireGrade(wireTable(), "XX"));
    QVERIFY(!findWireGrade(wireTable(), ""));
    QVERIFY(!findWireGrade({}, "SH"));
}

QTEST_APPLESS_MAIN(tst_wireTable)
#include "tst_wireTable.moc"
