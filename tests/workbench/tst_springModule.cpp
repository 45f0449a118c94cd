#include "springExamples.h"
#include "springModuleSupport.h"
#include "zelUIMultiVar.h"

#include <QtTest>

using namespace SpringTest;
using Expectation = std::optional<double>;
Q_DECLARE_METATYPE(Expectation)

class tst_springModule : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void descriptionHasNoFaults();
    void unitsOfTheExpectedResultsAreThoseOfTheDescription_data();
    void unitsOfTheExpectedResultsAreThoseOfTheDescription();

    void examples_data();
    void examples();
    void everyResultOfTheExamplesIsSetOrExpectedToBeNone_data();
    void everyResultOfTheExamplesIsSetOrExpectedToBeNone();
    void firstExampleHasNoMessage();
    void secondExampleIsToBeGuided();

    void refusedCalculationUnsetsAllResults();
    void refusedCalculationLeavesTheInputsAlone();
    void valuesThatASpringDoesNotHaveAreUnset_data();
    void valuesThatASpringDoesNotHaveAreUnset();
    void objectsAreCalculatedForThemselves();

    void uncheckedOptionsAreEmptyUntilComputed();
    void uncheckedOptionsShowWhatWasCountedWith();
    void checkedOptionsAreCountedWith();
    void optionsThatCannotBeComputedAreEmpty();

    void gradesFillInTheMaterial_data();
    void gradesFillInTheMaterial();
    void strengthFollowsTheWireDiameter();
    void gradeThatIsNotDrawnInTheDiameterHasNoStrength();
    void ownMaterialStaysAsEntered();
    void temperatureOfAGradeDoesNotCountForOwnMaterial();

    void hotCoiledSpring();
    void hotCoiledSpringNeedsItsStress();
    void stressOfAColdCoiledSpringIsNoInputForAHotOne();

private:
    std::unique_ptr<ZelLoadedModule> mSpring;

    Meta &meta() const { return mSpring->meta(); }
    ZelCalcResult calculate(int64_t id = 0) const { return mSpring->mModule->run(id); }
    void set(const char *name, double value, int64_t id = 0) const
    {
        meta().setReal(variable(meta(), name), id, 0, value, ZelOrigin::Load);
    }
    void check(const char *name, bool checked = true) const
    {
        meta().setOptionChecked(variable(meta(), name), 0, checked, ZelOrigin::Load);
    }
    void choose(const char *list, const char *entry) const;
    void setHotSpring() const;
};

void tst_springModule::init()
{
    mSpring = load();
}

void tst_springModule::choose(const char *list, const char *entry) const
{
    const ZelUIVar &found = variable(meta(), list);
    const auto id = found.entryId(zelWString::fromUtf8(entry));
    QVERIFY(id);
    meta().setInteger(found, 0, 0, *id, ZelOrigin::Load);
}

void tst_springModule::setHotSpring() const
{
    const SpringInput hot = SpringExamples::hot();
    const auto &material = std::get<SpringMaterial>(hot.mMaterial);
    choose("coiling", "hot");
    choose("grade", "own");
    set("d", hot.mWireDiameter);
    set("D", hot.mCoilDiameter);
    set("n", hot.mActiveCoils);
    set("L0", hot.mFreeLength);
    set("G", material.mShearModulus);
    set("E", material.mElasticModulus);
    set("rho", material.mDensity);
    set("Rm", material.mTensileStrength);
    set("L1", hot.mFirstLength);
    set("L2", hot.mSecondLength);
}

void tst_springModule::descriptionHasNoFaults()
{
    ZelFaultList faults;
    const auto spring = load(faults);
    QCOMPARE(QString::fromStdString(zelFaultReport(faults)), QString());
    QVERIFY(spring->mModule->canCalculate());
    QVERIFY(dynamic_cast<SpringModule *>(spring->mModule.get()));
}

void tst_springModule::unitsOfTheExpectedResultsAreThoseOfTheDescription_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("unit");
    for (const Expected &row : expectedResults("S1"))
        QTest::newRow(qPrintable(row.mName)) << row.mName << row.mUnit;
}

void tst_springModule::unitsOfTheExpectedResultsAreThoseOfTheDescription()
{
    QFETCH(QString, name);
    const auto *number = dynamic_cast<const ZelUIMultiVar *>(&variable(meta(), name));
    QVERIFY(number);
    QTEST(QString::fromStdWString(ZelDimensions::getString(number->mDefaultUnit)), "unit");
}

void tst_springModule::examples_data()
{
    QTest::addColumn<QString>("example");
    QTest::addColumn<QString>("correction");
    QTest::addColumn<QString>("name");
    QTest::addColumn<Expectation>("expected");
    const auto add = [](const QString &example, const QString &correction, const QString &file) {
        for (const Expected &row : expectedResults(file))
            QTest::addRow("%s %s", qPrintable(file), qPrintable(row.mName))
                << example << correction << row.mName << row.mValue;
    };
    add("S1", "standard", "S1");
    add("S2", "standard", "S2");
    add("S1", "wahl", "S1.wahl");
    add("S2", "wahl", "S2.wahl");
}

void tst_springModule::examples()
{
    QFETCH(QString, example);
    QFETCH(QString, correction);
    QFETCH(QString, name);
    QFETCH(Expectation, expected);
    readExample(meta(), example);
    choose("correction", qPrintable(correction));
    QVERIFY(calculate().mSucceeded);
    QCOMPARE(isSet(meta(), name), expected.has_value());
    if (expected)
        QVERIFY2(close(value(meta(), name), *expected),
                 qPrintable(QString::number(value(meta(), name), 'g', 9)));
}

void tst_springModule::everyResultOfTheExamplesIsSetOrExpectedToBeNone_data()
{
    QTest::addColumn<QString>("example");
    QTest::newRow("S1") << "S1";
    QTest::newRow("S2") << "S2";
}

// Guards against a result that the module forgets to write.
void tst_springModule::everyResultOfTheExamplesIsSetOrExpectedToBeNone()
{
    QFETCH(QString, example);
    readExample(meta(), example);
    QVERIFY(calculate().mSucceeded);
    QStringList none;
    for (const Expected &row : expectedResults(example)) {
        if (!row.mValue)
            none << row.mName;
    }
    QStringList unset;
    for (const auto &candidate : meta().variables()) {
        if (candidate->mResult && !meta().isSet(*candidate, 0))
            unset << toText(candidate->name());
    }
    none.sort();
    unset.sort();
    QCOMPARE(unset, none);
}

void tst_springModule::firstExampleHasNoMessage()
{
    readExample(meta(), "S1");
    const ZelCalcResult result = calculate();
    QVERIFY(result.mSucceeded);
    QCOMPARE(codes(result), QStringList());
}

void tst_springModule::secondExampleIsToBeGuided()
{
    readExample(meta(), "S2");
    const ZelCalcResult result = calculate();
    QVERIFY(result.mSucceeded);
    QCOMPARE(codes(result), QStringList("mayBuckle"));
    QVERIFY(result.mMessages[0].mSeverity == ZelMessageSeverity::Warning);
    QCOMPARE(toText(result.mMessages[0].text()),
             QStringLiteral("Die Feder kann ausknicken (s_K/s_2 = 0,783) und ist durch einen Dorn "
                            "oder eine Hülse zu führen."));
}

void tst_springModule::refusedCalculationUnsetsAllResults()
{
    readExample(meta(), "S2");
    QVERIFY(calculate().mSucceeded);
    QVERIFY(isSet(meta(), "R"));
    set("D", 0);
    QVERIFY(!calculate().mSucceeded);
    int results = 0;
    for (const auto &candidate : meta().variables()) {
        results += candidate->mResult;
        QVERIFY2(!candidate->mResult || !meta().isSet(*candidate, 0),
                 candidate->name().toUtf8().c_str());
    }
    QVERIFY(results > 30);
}

void tst_springModule::refusedCalculationLeavesTheInputsAlone()
{
    readExample(meta(), "S1");
    set("L0", 60); // below the solid length
    const std::string before = zelWriteValues(meta(), false);
    const ZelCalcResult result = calculate();
    QCOMPARE(codes(result), QStringList("freeLengthTooSmall"));
    QCOMPARE(QString::fromStdString(zelWriteValues(meta(), false)), QString::fromStdString(before));
}

void tst_springModule::valuesThatASpringDoesNotHaveAreUnset_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("entry");
    QTest::addColumn<double>("force");
    QTest::addColumn<QStringList>("unset");
    QTest::newRow("ends not ground") << "ends"
                                     << "unground" << 400.0 << QStringList{"DDe", "p"};
    QTest::newRow("unloaded") << "ends"
                              << "ground" << 0.0 << QStringList{"S2", "sK_s2"};
}

void tst_springModule::valuesThatASpringDoesNotHaveAreUnset()
{
    QFETCH(QString, list);
    QFETCH(QString, entry);
    QFETCH(double, force);
    QFETCH(QStringList, unset);
    readExample(meta(), "S1");
    set("nu", 2); // so that it can buckle
    QVERIFY(calculate().mSucceeded);
    for (const QString &name : unset)
        QVERIFY2(isSet(meta(), name), qPrintable(name));
    choose(qPrintable(list), qPrintable(entry));
    set("F1", force);
    set("F2", force);
    QVERIFY(calculate().mSucceeded);
    for (const QString &name : unset)
        QVERIFY2(!isSet(meta(), name), qPrintable(name));
}

void tst_springModule::objectsAreCalculatedForThemselves()
{
    readExample(meta(), "S2");
    QVERIFY(calculate().mSucceeded);
    const std::string first = zelWriteValues(meta(), true);
    for (const auto &[name, number] :
         {std::pair{"d", 3.0}, {"D", 24.0}, {"n", 6.0}, {"L0", 80.0}, {"L1", 75.0}, {"L2", 60.0}})
        set(name, number, 4);
    QVERIFY(calculate(4).mSucceeded);
    QCOMPARE(value(meta(), "w", 4), 8.0);
    // G d^4 / (8 D^3 n)
    QVERIFY(close(value(meta(), "R", 4), 81500 * 81.0 / (8 * 13824.0 * 6), 1e-12));
    const std::string both = zelWriteValues(meta(), true);
    QVERIFY(both.size() > first.size());
    QCOMPARE(QString::fromStdString(both.substr(0, first.size())), QString::fromStdString(first));
}

void tst_springModule::uncheckedOptionsAreEmptyUntilComputed()
{
    for (const char *name : {"dmax", "nt", "tau_zul"})
        QVERIFY2(!isSet(meta(), name), name);
    readExample(meta(), "S2");
    QVERIFY(isSet(meta(), "nt")); // the example enters it
    QVERIFY(!isSet(meta(), "dmax") && !isSet(meta(), "tau_zul"));
}

void tst_springModule::uncheckedOptionsShowWhatWasCountedWith()
{
    readExample(meta(), "S2");
    check("nt", false);
    QVERIFY(calculate().mSucceeded);
    QCOMPARE(value(meta(), "dmax"), 2.5);
    QCOMPARE(value(meta(), "nt"), 9.5);
    QVERIFY(close(value(meta(), "tau_zul"), 1060.47));
    set("d", 2.6);
    set("n", 7);
    QVERIFY(calculate().mSucceeded);
    QCOMPARE(value(meta(), "dmax"), 2.6);
    QCOMPARE(value(meta(), "nt"), 9.0);
}

void tst_springModule::checkedOptionsAreCountedWith()
{
    readExample(meta(), "S2");
    check("dmax");
    set("dmax", 2.6);
    set("nt", 10);
    QVERIFY(calculate().mSucceeded);
    QVERIFY(close(value(meta(), "Lc"), 26, 1e-12));
    QCOMPARE(value(meta(), "dmax"), 2.6);
    QCOMPARE(value(meta(), "nt"), 10.0);
}

void tst_springModule::optionsThatCannotBeComputedAreEmpty()
{
    readExample(meta(), "S2");
    check("nt", false);
    QVERIFY(calculate().mSucceeded);
    QVERIFY(isSet(meta(), "dmax") && isSet(meta(), "nt") && isSet(meta(), "tau_zul"));
    set("d", 0);
    QVERIFY(!calculate().mSucceeded);
    QVERIFY(!isSet(meta(), "dmax") && !isSet(meta(), "nt") && !isSet(meta(), "tau_zul"));
}

void tst_springModule::gradesFillInTheMaterial_data()
{
    QTest::addColumn<QString>("grade");
    QTest::addColumn<double>("strength");
    for (const WireGrade &grade : wireTable())
        QTest::newRow(grade.mName.c_str())
            << QString::fromStdString(grade.mName) << grade.tensileStrength(2.5);
}

void tst_springModule::gradesFillInTheMaterial()
{
    QFETCH(QString, grade);
    readExample(meta(), "S1"); // other values stand there
    set("d", 2.5);
    set("D", 20);
    set("F1", 10);
    set("F2", 20);
    set("E", 1);
    set("rho", 1);
    choose("grade", qPrintable(grade));
    QVERIFY(calculate().mSucceeded);
    QCOMPARE(value(meta(), "G"), 81500.0);
    QCOMPARE(value(meta(), "E"), 206000.0);
    QCOMPARE(value(meta(), "rho"), 7.85);
    QTEST(value(meta(), "Rm"), "strength");
    QVERIFY(close(value(meta(), "tau_zul"), 0.56 * value(meta(), "Rm"), 1e-12));
}

void tst_springModule::strengthFollowsTheWireDiameter()
{
    readExample(meta(), "S2");
    QVERIFY(calculate().mSucceeded);
    QVERIFY(close(value(meta(), "Rm"), 1893.69));
    set("d", 2.4);
    QVERIFY(calculate().mSucceeded);
    QVERIFY(close(value(meta(), "Rm"), 2220 - 820 * std::log10(2.4), 1e-12));
}

void tst_springModule::gradeThatIsNotDrawnInTheDiameterHasNoStrength()
{
    readExample(meta(), "S2");
    QVERIFY(calculate().mSucceeded);
    set("d", 0.2);
    QCOMPARE(codes(calculate()), QStringList("gradeNotAvailable"));
    QVERIFY(!isSet(meta(), "Rm"));
    QCOMPARE(value(meta(), "E"), 206000.0);
}

void tst_springModule::ownMaterialStaysAsEntered()
{
    readExample(meta(), "S1");
    QVERIFY(calculate().mSucceeded);
    QCOMPARE(value(meta(), "G"), 81370.0);
    QCOMPARE(value(meta(), "Rm"), 1090.0);
    QCOMPARE(value(meta(), "GT"), 81370.0);
}

void tst_springModule::temperatureOfAGradeDoesNotCountForOwnMaterial()
{
    readExample(meta(), "S2");
    set("T", 120);
    QVERIFY(calculate().mSucceeded);
    QVERIFY(close(value(meta(), "GT"), 81500 * 0.975, 1e-12));
    choose("grade", "own");
    QVERIFY(calculate().mSucceeded);
    QCOMPARE(value(meta(), "GT"), 81500.0);
    set("T", 1e300); // the field is closed, so nobody could put it right
    QCOMPARE(codes(calculate()), QStringList("mayBuckle"));
}

void tst_springModule::hotCoiledSpring()
{
    setHotSpring();
    check("tau_zul");
    set("tau_zul", 900);
    const ZelCalcResult result = calculate();
    QVERIFY(result.mSucceeded);
    QCOMPARE(codes(result), QStringList());
    const SpringValues expected = *calculateSpring(SpringExamples::hot()).mValues;
    QCOMPARE(value(meta(), "nt"), 7.5);
    QCOMPARE(value(meta(), "tau_zul"), 900.0);
    QCOMPARE(value(meta(), "R"), expected.mRate);
    QVERIFY(close(value(meta(), "Lc"), 7.2 * 16, 1e-12));
    QVERIFY(close(value(meta(), "Sa"), 0.02 * 6 * 116, 1e-12));
    QCOMPARE(value(meta(), "F2"), expected.mSecond.mForce);
    QCOMPARE(value(meta(), "mass"), expected.mMass * 1000);
}

void tst_springModule::hotCoiledSpringNeedsItsStress()
{
    setHotSpring();
    const ZelCalcResult result = calculate();
    QVERIFY(!result.mSucceeded);
    QCOMPARE(codes(result), QStringList("permissibleStressMissing"));
}

void tst_springModule::stressOfAColdCoiledSpringIsNoInputForAHotOne()
{
    setHotSpring();
    check("tau_zul");
    set("tau_zul", 900);
    choose("coiling", "cold");
    QVERIFY(calculate().mSucceeded);
    QVERIFY(close(value(meta(), "tau_zul"), 0.56 * 1400, 1e-12));
    choose("coiling", "hot");
    QCOMPARE(codes(calculate()), QStringList("permissibleStressMissing"));
}

QTEST_APPLESS_MAIN(tst_springModule)
#include "tst_springModule.moc"
