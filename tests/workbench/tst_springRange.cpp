#include "springModuleSupport.h"
#include "zelUIVarChoice.h"

#include <QtTest>

using namespace SpringTest;

// The working range is entered as lengths or as forces. Values are typed here as the fields of a
// mask write them.
class tst_springRange : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void aForceTypedAfterLengthsPicksForcesAndTheOtherStaysAsComputed();
    void aLengthTypedAfterForcesPicksLengthsAndTheOtherStaysAsComputed();
    void lengthsTypedSinceTheCalculationAreConverted();
    void forcesTypedSinceTheCalculationAreConverted();
    void aChangedSpringKeepsTheEnteredLengths();
    void aRadioButtonConvertsBoth();
    void aRadioButtonConvertsAlsoWhatWasTypedBefore();
    void thereAndBackAgainChangesNoBit();
    void lengthsThatWereNotEnteredAreNotConverted();
    void aForceOfNothingIsTheFreeLength();
    void withoutARateNothingIsConverted();
    void aFileBringsItsOwnValues();
    void eachObjectHasItsOwnRange();

private:
    std::unique_ptr<ZelLoadedModule> mSpring;

    Meta &meta() const { return mSpring->meta(); }
    double get(const char *name, int64_t id = 0) const { return value(meta(), name, id); }
    void type(const char *name, double number, int64_t id = 0) const;
    QString range(int64_t id = 0) const;
    const ZelUIVarChoice &choice() const;
    void pick(short alternative) const;
    bool calculate(int64_t id = 0) const { return mSpring->mModule->run(id).mSucceeded; }
    double force(double length) const { return get("R") * (get("L0") - length); }
};

void tst_springRange::init()
{
    mSpring = load();
    readExample(meta(), "S2");
}

void tst_springRange::type(const char *name, double number, int64_t id) const
{
    const ZelUIVar &typed = variable(meta(), name);
    meta().setReal(typed, id, 0, number, ZelOrigin::User);
    meta().noteTyped(typed, id);
}

const ZelUIVarChoice &tst_springRange::choice() const
{
    return dynamic_cast<const ZelUIVarChoice &>(variable(meta(), "range"));
}

QString tst_springRange::range(int64_t id) const
{
    return toText(choice().entryName(meta().integer(choice(), id)));
}

void tst_springRange::pick(short alternative) const
{
    meta().pick(choice(), 0, alternative, ZelOrigin::User);
}

void tst_springRange::aForceTypedAfterLengthsPicksForcesAndTheOtherStaysAsComputed()
{
    type("L1", 60);
    type("L2", 45);
    QVERIFY(calculate());
    QCOMPARE(range(), QStringLiteral("lengths"));
    const double first = get("F1");
    QVERIFY(close(first, force(60), 1e-12));

    type("F2", 150);
    QCOMPARE(range(), QStringLiteral("forces"));
    QVERIFY(get("F1") == first); // to the bit
    QCOMPARE(get("F2"), 150.0);
    QVERIFY(calculate());
    QVERIFY(get("F1") == first);
    QCOMPARE(get("F2"), 150.0);
    QVERIFY(close(get("L1"), 60, 1e-12));
    QVERIFY(close(get("L2"), 70 - 150 / get("R"), 1e-12));
}

void tst_springRange::aLengthTypedAfterForcesPicksLengthsAndTheOtherStaysAsComputed()
{
    type("F1", 50);
    type("F2", 150);
    QVERIFY(calculate());
    const double second = get("L2");
    type("L1", 65);
    QCOMPARE(range(), QStringLiteral("lengths"));
    QVERIFY(get("L2") == second);
    QCOMPARE(get("L1"), 65.0);
    QVERIFY(calculate());
    QVERIFY(close(get("F1"), force(65), 1e-12));
    QVERIFY(close(get("F2"), 150, 1e-12));
}

void tst_springRange::lengthsTypedSinceTheCalculationAreConverted()
{
    QVERIFY(calculate());
    type("L1", 58);
    type("F2", 150);
    QCOMPARE(range(), QStringLiteral("forces"));
    QVERIFY(close(get("F1"), force(58), 1e-12));
    QCOMPARE(get("F2"), 150.0);
}

void tst_springRange::forcesTypedSinceTheCalculationAreConverted()
{
    type("F1", 50);
    QVERIFY(calculate());
    type("F2", 140);
    type("L1", 65);
    QCOMPARE(range(), QStringLiteral("lengths"));
    QCOMPARE(get("L1"), 65.0);
    QVERIFY(close(get("L2"), 70 - 140 / get("R"), 1e-12));
}

// The rate is another one, so that the forces computed last belong to other lengths.
void tst_springRange::aChangedSpringKeepsTheEnteredLengths()
{
    QVERIFY(calculate());
    type("n", 15);
    type("F2", 80);
    QVERIFY(close(get("F1"), get("R") / 2 * (70 - 62), 1e-12));
    QCOMPARE(get("F2"), 80.0);
}

void tst_springRange::aRadioButtonConvertsBoth()
{
    QVERIFY(calculate());
    type("L1", 60);
    type("L2", 45);
    pick(2);
    QCOMPARE(range(), QStringLiteral("forces"));
    QVERIFY(close(get("F1"), force(60), 1e-12));
    QVERIFY(close(get("F2"), force(45), 1e-12));
    QCOMPARE(get("L1"), 60.0);
    QCOMPARE(get("L2"), 45.0);
}

// The force was typed, but for another spring than the one whose lengths are converted.
void tst_springRange::aRadioButtonConvertsAlsoWhatWasTypedBefore()
{
    type("F1", 50);
    type("F2", 150);
    QVERIFY(calculate());
    pick(1);
    type("n", 15);
    pick(2);
    QVERIFY(close(get("F1"), 25, 1e-12));
    QVERIFY(close(get("F2"), 75, 1e-12));
}

void tst_springRange::thereAndBackAgainChangesNoBit()
{
    QVERIFY(calculate());
    const std::string before = zelWriteValues(meta(), true);
    pick(2);
    QVERIFY(zelWriteValues(meta(), true) != before);
    QVERIFY(calculate());
    pick(1);
    QVERIFY(calculate());
    QCOMPARE(QString::fromStdString(zelWriteValues(meta(), true)), QString::fromStdString(before));
}

void tst_springRange::lengthsThatWereNotEnteredAreNotConverted()
{
    type("L1", 0);
    type("L2", 0);
    type("F2", 150);
    QCOMPARE(range(), QStringLiteral("forces"));
    QCOMPARE(get("F1"), 0.0);
    QCOMPARE(get("F2"), 150.0);
}

void tst_springRange::aForceOfNothingIsTheFreeLength()
{
    type("F1", 0);
    type("F2", 150);
    QVERIFY(calculate());
    QCOMPARE(get("L1"), 70.0);
    type("L2", 50);
    QCOMPARE(get("L1"), 70.0);
    QVERIFY(calculate());
    QCOMPARE(get("F1"), 0.0);
}

void tst_springRange::withoutARateNothingIsConverted()
{
    QVERIFY(calculate());
    const double first = get("F1");
    type("L1", 58);
    type("d", 0);
    type("F2", 150);
    QCOMPARE(range(), QStringLiteral("forces"));
    QVERIFY(get("F1") == first);
    QCOMPARE(get("F2"), 150.0);
}

void tst_springRange::aFileBringsItsOwnValues()
{
    QVERIFY(calculate());
    readExample(meta(), "S1"); // changes from lengths to forces
    QCOMPARE(range(), QStringLiteral("forces"));
    QCOMPARE(get("F1"), 400.0);
    QCOMPARE(get("F2"), 1250.0);
    QCOMPARE(get("L1"), 62.0);
}

void tst_springRange::eachObjectHasItsOwnRange()
{
    for (const char *name : {"d", "D", "n", "L0", "L1", "L2"})
        type(name, get(name), 3);
    QVERIFY(calculate());
    QVERIFY(calculate(3));
    type("L1", 58, 3);
    type("F2", 150, 3);
    QCOMPARE(range(3), QStringLiteral("forces"));
    QVERIFY(close(get("F1", 3), force(58), 1e-12));
    QCOMPARE(range(), QStringLiteral("lengths"));
    QVERIFY(close(get("F1"), force(62), 1e-12));
}

QTEST_APPLESS_MAIN(tst_springRange)
#include "tst_springRange.moc"
