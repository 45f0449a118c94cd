#include "springCalculation.h"
#include "springExamples.h"

#include <QtTest>

#include <functional>

using Value = std::optional<double>;
using Getter = Value (*)(const SpringValues &);
using Change = std::function<void(SpringInput &)>;

Q_DECLARE_METATYPE(Getter)
Q_DECLARE_METATYPE(Value)
Q_DECLARE_METATYPE(SpringInput)

class tst_springCalculation : public QObject
{
    Q_OBJECT

private slots:
    void examples_data();
    void examples();
    void firstExampleHasNoFinding();
    void secondExampleIsToBeGuided();

    void textbookWireDiameterForAStress();
    void textbookDeflection();
    void textbookSecondSpring();

    void lengthsAndForcesGiveTheSame_data();
    void lengthsAndForcesGiveTheSame();
    void changeOfTheRangeConvertsTheOtherPair();
    void changeOfTheRangeToItselfKeepsTheValues();
    void changeOfTheRangeNeedsARate_data();
    void changeOfTheRangeNeedsARate();

    void solidLengthAndGaps_data();
    void solidLengthAndGaps();
    void hotCoiledSpring();
    void springsThatAreNotGroundHaveNoPitch();
    void totalCoilsWithoutInput();
    void largestWireMovesTheSolidLengthAlone();

    void heatLowersTheModulusOfGradesAlone();
    void permissibleStressIsAnInputOfHotCoiledSpringsAlone();
    void stressFromForceIsStressFromDeflection();
    void springThatNeverBuckles();
    void radicandOfZeroStillBuckles();
    void equalModuliDivideByNothing();
    void unloadedSecondPointHasNoSafety();
};

static SpringValues valuesOf(const SpringInput &input)
{
    const SpringResult result = calculateSpring(input);
    if (!result.mValues)
        qFatal("the spring was refused");
    return *result.mValues;
}

namespace {
struct ExampleRow
{
    const char *mName;
    Getter mGetter;
    Value mFirst;
    Value mSecond;
    SpringCorrection mCorrection = SpringCorrection::Standard;
};
} // namespace

#define GET(expression) [](const SpringValues &v) -> Value { return expression; }

static const ExampleRow exampleRows[] = {
    {"w", GET(v.mIndex), 6, 8},
    {"D_e", GET(v.mOuterDiameter), 49, 22.5},
    {"D_i", GET(v.mInnerDiameter), 35, 17.5},
    {"k", GET(v.mCorrection), 1.2381, 1.17241},
    {"k Wahl", GET(v.mCorrection), 1.2525, 1.18402, SpringCorrection::Wahl},
    {"R", GET(v.mRate), 41.203, 6.63249},
    {"L_c", GET(v.mSolid.mLength), 70, 23.75},
    {"S_a", GET(v.mSmallestGap), 8.624, 5.5125},
    {"L_n", GET(v.mUsable.mLength), 78.624, 29.2625},
    {"s_c", GET(v.mSolid.mDeflection), 40, 46.25},
    {"s_n", GET(v.mUsable.mDeflection), 31.376, 40.7375},
    {"s_1", GET(v.mFirst.mDeflection), 9.70804, 8},
    {"s_2", GET(v.mSecond.mDeflection), 30.3376, 24},
    {"s_h", GET(v.mStroke), 20.6296, 16},
    {"L_1", GET(v.mFirst.mLength), 100.292, 62},
    {"L_2", GET(v.mSecond.mLength), 79.6624, 46},
    {"F_1", GET(v.mFirst.mForce), 400, 53.0599},
    {"F_2", GET(v.mSecond.mForce), 1250, 159.18},
    {"F_n", GET(v.mUsable.mForce), 1292.78, 270.191},
    {"F_c", GET(v.mSolid.mForce), 1648.12, 306.753},
    {"tau_1", GET(v.mFirst.mStress), 124.726, 172.948},
    {"tau_2", GET(v.mSecond.mStress), 389.767, 518.845},
    {"tau_n", GET(v.mUsable.mStress), 403.108, 880.686},
    {"tau_c", GET(v.mSolid.mStress), 513.906, 999.858},
    {"tau_k1", GET(v.mFirst.mCorrectedStress), 154.422, 202.767},
    {"tau_k2", GET(v.mSecond.mCorrectedStress), 482.569, 608.301},
    {"tau_kh", GET(v.mCorrectedStressRange), 328.147, 405.534},
    {"tau_k1 Wahl", GET(v.mFirst.mCorrectedStress), 156.219, 204.774, SpringCorrection::Wahl},
    {"tau_k2 Wahl", GET(v.mSecond.mCorrectedStress), 488.183, 614.322, SpringCorrection::Wahl},
    {"R_m", GET(v.mTensileStrength), 1090, 1893.69},
    {"tau_zul", GET(v.mPermissibleStress), 610.4, 1060.47},
    {"S_c", GET(v.mSolidSafety), 1.18777, 1.06062},
    {"S_2", GET(v.mSecondSafety), 1.56606, 2.0439},
    {"f_e", GET(v.mFrequency), 179.786, 302.282},
    {"L_0/D", GET(v.mSlenderness), 2.61905, 3.5},
    {"rho_K", GET(v.mBucklingRadicand), -2.8905, 0.456328},
    {"s_K", GET(v.mBucklingDeflection), std::nullopt, 18.7911},
    {"s_K/s_2", GET(v.mBucklingRatio), std::nullopt, 0.782963},
    {"p", GET(v.mPitch), 12, 8.66667},
    {"Delta D_e", GET(v.mOuterGrowth), 0.159524, 0.282639},
    {"l_w", GET(v.mWireLength), 1319.47, 596.903},
    {"mass in g", GET(v.mMass * 1000), 398.616, 23.0008},
    {"W_12 in J", GET(v.mWork / 1000), 17.0194, 1.69792},
};

void tst_springCalculation::examples_data()
{
    QTest::addColumn<SpringInput>("input");
    QTest::addColumn<Getter>("getter");
    QTest::addColumn<Value>("expected");
    for (const ExampleRow &row : exampleRows) {
        SpringInput first = SpringExamples::s1();
        SpringInput second = SpringExamples::s2();
        first.mCorrection = second.mCorrection = row.mCorrection;
        QTest::addRow("S1 %s", row.mName) << first << row.mGetter << row.mFirst;
        QTest::addRow("S2 %s", row.mName) << second << row.mGetter << row.mSecond;
    }
}

void tst_springCalculation::examples()
{
    QFETCH(SpringInput, input);
    QFETCH(Getter, getter);
    QFETCH(Value, expected);
    const Value value = getter(valuesOf(input));
    QCOMPARE(value.has_value(), expected.has_value());
    if (value)
        QVERIFY2(SpringExamples::close(*value, *expected, 1e-5),
                 qPrintable(QString::number(*value, 'g', 9)));
}

void tst_springCalculation::firstExampleHasNoFinding()
{
    QVERIFY(calculateSpring(SpringExamples::s1()).mFindings.empty());
}

void tst_springCalculation::secondExampleIsToBeGuided()
{
    const std::vector<SpringFinding> expected{
        {SpringMessage::MayBuckle,
         SpringSeverity::Warning,
         {SpringField::FreeLength, SpringField::SecondLength}}};
    QVERIFY(calculateSpring(SpringExamples::s2()).mFindings == expected);
}

// The printed values of V. B. Bhandari, Design of Machine Elements, examples 10.1 and 10.7, with
// the six digits of the companion sheets of FOSSEE, IIT Bombay.

void tst_springCalculation::textbookWireDiameterForAStress()
{
    SpringInput input = SpringExamples::s1();
    input.mWireDiameter = 6.625083; // printed for half the tensile strength at 1250 N
    input.mCoilDiameter = 6 * input.mWireDiameter;
    input.mCorrection = SpringCorrection::Wahl;
    const SpringValues values = valuesOf(input);
    QVERIFY(SpringExamples::close(values.mCorrection, 1.2525, 1e-9));
    QVERIFY(SpringExamples::close(values.mSecond.mCorrectedStress, 0.5 * 1090, 1e-6));
}

void tst_springCalculation::textbookDeflection()
{
    const SpringValues values = valuesOf(SpringExamples::s1());
    QVERIFY(SpringExamples::close(values.mSecond.mDeflection, 109.337611 - 70 - 9, 1e-6));
}

void tst_springCalculation::textbookSecondSpring()
{
    SpringInput input = SpringExamples::s1();
    input.mWireDiameter = 5;
    input.mCoilDiameter = 40;
    input.mActiveCoils = 5;
    input.mTotalCoils = 7;
    input.mFreeLength = 56.101389;
    input.mFirstForce = 0;
    input.mSecondForce = 300;
    const SpringValues values = valuesOf(input);
    QVERIFY(SpringExamples::close(values.mRate, 19.865723, 1e-7));
    QCOMPARE(values.mSolid.mLength, 35.0);
    QVERIFY(SpringExamples::close(values.mSecond.mDeflection, 56.101389 - 35 - 6, 1e-6));
}

void tst_springCalculation::lengthsAndForcesGiveTheSame_data()
{
    QTest::addColumn<SpringInput>("input");
    QTest::newRow("own material, from forces") << SpringExamples::s1();
    QTest::newRow("grade, from lengths") << SpringExamples::s2();
    QTest::newRow("hot coiled, from lengths") << SpringExamples::hot();
}

void tst_springCalculation::lengthsAndForcesGiveTheSame()
{
    QFETCH(SpringInput, input);
    SpringInput other = input;
    const bool lengths = input.mRange == SpringRange::Lengths;
    QVERIFY(changeSpringRange(other, lengths ? SpringRange::Forces : SpringRange::Lengths));
    const SpringValues values = valuesOf(input);
    const SpringValues converted = valuesOf(other);
    for (const ExampleRow &row : exampleRows) {
        const Value value = row.mGetter(values);
        const Value again = row.mGetter(converted);
        QCOMPARE(again.has_value(), value.has_value());
        if (value)
            QVERIFY2(SpringExamples::close(*again, *value, 1e-12), row.mName);
    }
}

void tst_springCalculation::changeOfTheRangeConvertsTheOtherPair()
{
    SpringInput input = SpringExamples::s2();
    input.mFirstForce = input.mSecondForce = -1; // left over, must be replaced
    QVERIFY(changeSpringRange(input, SpringRange::Forces));
    QVERIFY(input.mRange == SpringRange::Forces);
    QVERIFY(SpringExamples::close(input.mFirstForce, 53.0599, 1e-5));
    QVERIFY(SpringExamples::close(input.mSecondForce, 159.18, 1e-5));

    input.mFirstLength = input.mSecondLength = -1;
    QVERIFY(changeSpringRange(input, SpringRange::Lengths));
    QVERIFY(SpringExamples::close(input.mFirstLength, 62, 1e-12));
    QVERIFY(SpringExamples::close(input.mSecondLength, 46, 1e-12));
}

void tst_springCalculation::changeOfTheRangeToItselfKeepsTheValues()
{
    SpringInput input = SpringExamples::s2();
    input.mFirstForce = 17;
    QVERIFY(changeSpringRange(input, SpringRange::Lengths));
    QCOMPARE(input.mFirstLength, 62.0);
    QCOMPARE(input.mFirstForce, 17.0);
}

void tst_springCalculation::changeOfTheRangeNeedsARate_data()
{
    QTest::addColumn<SpringInput>("input");
    const auto row = [](const char *name, const Change &change) {
        SpringInput input = SpringExamples::s2();
        change(input);
        QTest::newRow(name) << input;
    };
    row("no wire", [](SpringInput &i) { i.mWireDiameter = 0; });
    row("no coil diameter", [](SpringInput &i) { i.mCoilDiameter = 0; });
    row("no coils", [](SpringInput &i) { i.mActiveCoils = 0; });
    row("coils and diameter negative",
        [](SpringInput &i) { i.mActiveCoils = i.mCoilDiameter = -8; });
    row("no free length", [](SpringInput &i) { i.mFreeLength = 0; });
    row("free length not a number", [](SpringInput &i) { i.mFreeLength = qQNaN(); });
    row("no modulus", [](SpringInput &i) { i.mMaterial = SpringMaterial{0, 206000, 7.85, 1}; });
    row("length not a number", [](SpringInput &i) { i.mFirstLength = qQNaN(); });
}

void tst_springCalculation::changeOfTheRangeNeedsARate()
{
    QFETCH(SpringInput, input);
    input.mFirstForce = 17;
    QVERIFY(!changeSpringRange(input, SpringRange::Forces));
    QVERIFY(input.mRange == SpringRange::Lengths);
    QCOMPARE(input.mFirstForce, 17.0);
}

void tst_springCalculation::solidLengthAndGaps_data()
{
    QTest::addColumn<SpringInput>("input");
    QTest::addColumn<double>("solid");
    QTest::addColumn<double>("gap");
    const auto rows = [](const char *name, SpringInput input, SpringEnds ends, double solid,
                         double gap, double dynamicFactor) {
        input.mEnds = ends;
        input.mLoad = SpringLoad::Static;
        QTest::addRow("%s, static", name) << input << solid << gap;
        input.mLoad = SpringLoad::Dynamic;
        QTest::addRow("%s, dynamic", name) << input << solid << gap * dynamicFactor;
    };
    const SpringInput cold = SpringExamples::s2(); // d 2.5, D 20, n 7.5, n_t 9.5
    rows("cold, ground", cold, SpringEnds::Ground, 9.5 * 2.5, 3.675, 1.5);
    rows("cold, not ground", cold, SpringEnds::NotGround, 11 * 2.5, 3.675, 1.5);
    const SpringInput hot = SpringExamples::hot(); // d 16, D 100, n 6, n_t 7.5
    rows("hot, ground", hot, SpringEnds::Ground, 7.2 * 16, 13.92, 2);
    rows("hot, not ground", hot, SpringEnds::NotGround, 8.6 * 16, 13.92, 2);
}

void tst_springCalculation::solidLengthAndGaps()
{
    QFETCH(SpringInput, input);
    QFETCH(double, solid);
    QFETCH(double, gap);
    const SpringValues values = valuesOf(input);
    QVERIFY(SpringExamples::close(values.mSolid.mLength, solid, 1e-12));
    QVERIFY(SpringExamples::close(values.mSmallestGap, gap, 1e-12));
    QVERIFY(SpringExamples::close(values.mUsable.mLength, solid + gap, 1e-12));
    QVERIFY(SpringExamples::close(values.mSolid.mDeflection, input.mFreeLength - solid, 1e-12));
}

void tst_springCalculation::hotCoiledSpring()
{
    const SpringValues values = valuesOf(SpringExamples::hot());
    QVERIFY(SpringExamples::close(values.mRate, 107.178667, 1e-8));
    QVERIFY(SpringExamples::close(values.mSolid.mForce, 13375.8976, 1e-8));
    QVERIFY(SpringExamples::close(values.mUsable.mForce, 11883.9706, 1e-8));
    QVERIFY(SpringExamples::close(values.mSolid.mStress, 831.578211, 1e-8));
    QVERIFY(SpringExamples::close(values.mSecond.mStress, 399.797217, 1e-8));
    QCOMPARE(values.mPermissibleStress, 900.0);
    QVERIFY(SpringExamples::close(values.mSolidSafety, 900 / 831.578211, 1e-8));
}

void tst_springCalculation::springsThatAreNotGroundHaveNoPitch()
{
    for (SpringInput input : {SpringExamples::s2(), SpringExamples::hot()}) {
        QVERIFY(valuesOf(input).mPitch && valuesOf(input).mOuterGrowth);
        input.mEnds = SpringEnds::NotGround;
        QVERIFY(!valuesOf(input).mPitch);
        QVERIFY(!valuesOf(input).mOuterGrowth);
    }
}

void tst_springCalculation::totalCoilsWithoutInput()
{
    SpringInput input = SpringExamples::s2();
    input.mTotalCoils.reset();
    QCOMPARE(valuesOf(input).mTotalCoils, 9.5);
    input = SpringExamples::hot();
    QCOMPARE(valuesOf(input).mTotalCoils, 7.5);
}

void tst_springCalculation::largestWireMovesTheSolidLengthAlone()
{
    SpringInput input = SpringExamples::s2();
    const SpringValues nominal = valuesOf(input);
    QCOMPARE(nominal.mLargestWireDiameter, 2.5);
    input.mLargestWireDiameter = 2.52;
    const SpringValues values = valuesOf(input);
    QVERIFY(SpringExamples::close(values.mSolid.mLength, 9.5 * 2.52, 1e-12));
    QCOMPARE(values.mRate, nominal.mRate);
    QCOMPARE(values.mSmallestGap, nominal.mSmallestGap);
    QCOMPARE(values.mOuterDiameter, nominal.mOuterDiameter);
}

void tst_springCalculation::heatLowersTheModulusOfGradesAlone()
{
    SpringInput input = SpringExamples::s2();
    input.mTemperature = 120;
    QVERIFY(SpringExamples::close(valuesOf(input).mShearModulus, 81500 * 0.975, 1e-12));
    input.mTemperature = -40;
    QVERIFY(SpringExamples::close(valuesOf(input).mShearModulus, 81500 * 1.015, 1e-12));
    input = SpringExamples::s1();
    input.mTemperature = 120;
    QCOMPARE(valuesOf(input).mShearModulus, 81370.0);
}

void tst_springCalculation::permissibleStressIsAnInputOfHotCoiledSpringsAlone()
{
    SpringInput input = SpringExamples::s1();
    input.mPermissibleStress = 1;
    QVERIFY(SpringExamples::close(valuesOf(input).mPermissibleStress, 610.4, 1e-12));
}

void tst_springCalculation::stressFromForceIsStressFromDeflection()
{
    for (const SpringInput &input :
         {SpringExamples::s1(), SpringExamples::s2(), SpringExamples::hot()}) {
        const SpringValues values = valuesOf(input);
        for (const SpringPoint &point :
             {values.mFirst, values.mSecond, values.mUsable, values.mSolid}) {
            const double stress = values.mShearModulus * input.mWireDiameter * point.mDeflection
                / (M_PI * input.mActiveCoils * input.mCoilDiameter * input.mCoilDiameter);
            QVERIFY(SpringExamples::close(point.mStress, stress, 1e-12));
        }
    }
}

void tst_springCalculation::springThatNeverBuckles()
{
    const SpringValues values = valuesOf(SpringExamples::s1());
    QVERIFY(values.mBucklingRadicand < 0);
    QVERIFY(!values.mBucklingDeflection);
    QVERIFY(!values.mBucklingRatio);
}

void tst_springCalculation::radicandOfZeroStillBuckles()
{
    SpringInput input = SpringExamples::s2();
    const double ratio = 81500.0 / 206000;
    // A hair above the seating that makes the radicand 0, where rounding decides its sign.
    input.mSeating = M_PI * 20 / 70 * std::sqrt((1 - ratio) / (0.5 + ratio)) * (1 + 1e-12);
    const SpringValues values = valuesOf(input);
    QVERIFY(values.mBucklingRadicand >= 0 && values.mBucklingRadicand < 1e-10);
    QVERIFY(values.mBucklingDeflection);
    QVERIFY(SpringExamples::close(*values.mBucklingDeflection, 70 * 0.5 / (1 - ratio), 1e-5));
}

void tst_springCalculation::equalModuliDivideByNothing()
{
    SpringInput input = SpringExamples::s2();
    input.mMaterial = SpringMaterial{206000, 206000, 7.85, 6000};
    const double equal = valuesOf(input).mBucklingDeflection.value();
    input.mMaterial = SpringMaterial{206000 * (1 - 1e-7), 206000, 7.85, 6000};
    const double near = valuesOf(input).mBucklingDeflection.value();
    QVERIFY(std::isfinite(equal));
    QVERIFY(SpringExamples::close(equal, near, 1e-6));
}

void tst_springCalculation::unloadedSecondPointHasNoSafety()
{
    SpringInput input = SpringExamples::s2();
    input.mFirstLength = input.mSecondLength = input.mFreeLength;
    const SpringValues values = valuesOf(input);
    QVERIFY(!values.mSecondSafety);
    QVERIFY(!values.mBucklingRatio);
    QVERIFY(values.mBucklingDeflection);
    QCOMPARE(values.mWork, 0.0);
}

QTEST_APPLESS_MAIN(tst_springCalculation)
#include "tst_springCalculation.moc"
