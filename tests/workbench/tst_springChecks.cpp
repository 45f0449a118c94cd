#include "springCalculation.h"
#include "springExamples.h"

#include <QtTest>

#include <functional>

using Change = std::function<void(SpringInput &)>;
using Field = SpringField;
using Fields = std::vector<SpringField>;

Q_DECLARE_METATYPE(SpringInput)
Q_DECLARE_METATYPE(SpringMessage)
Q_DECLARE_METATYPE(SpringSeverity)
Q_DECLARE_METATYPE(Fields)

// Every check is tried on both sides of its limit: `stays` must not report it, `fails` must.
class tst_springChecks : public QObject
{
    Q_OBJECT

private slots:
    void error_data();
    void error();
    void warning_data();
    void warning();
    void warningAtTheLimits_data();
    void warningAtTheLimits();

    void notANumberIsAnError_data();
    void notANumberIsAnError();
    void valuesThatAreNotInUseAreNotChecked();
    void overflowIsAnError_data();
    void overflowIsAnError();
    void coilWiderByOneBitHasAnIndexAboveOne();
    void allWrongInputsAreReportedAtOnce();
    void warningsOfARefusedSpringAreNotShown();
    void solidLengthItselfIsAllowed_data();
    void solidLengthItselfIsAllowed();
    void unloadedFirstPointIsAllowed();
    void largeSizeIsUsualForHotCoiledSprings();
};

static const SpringInput s1 = SpringExamples::s1();
static const SpringInput s2 = SpringExamples::s2();
static const SpringInput hot = SpringExamples::hot();

static void addColumns()
{
    QTest::addColumn<SpringInput>("stays");
    QTest::addColumn<SpringInput>("fails");
    QTest::addColumn<SpringMessage>("code");
    QTest::addColumn<Fields>("fields");
}

static void addRow(const char *name, const SpringInput &base, const Change &stays,
                   const Change &fails, SpringMessage code, const Fields &fields)
{
    SpringInput inside = base;
    SpringInput outside = base;
    stays(inside);
    fails(outside);
    QTest::newRow(name) << inside << outside << code << fields;
}

template <typename T>
static void addLimit(const char *name, const SpringInput &base, T SpringInput::*member,
                     double stays, double fails, SpringMessage code, const Fields &fields)
{
    addRow(
        name, base, [=](SpringInput &i) { i.*member = stays; },
        [=](SpringInput &i) { i.*member = fails; }, code, fields);
}

static void addMaterialLimit(const char *name, double SpringMaterial::*member, double stays,
                             double fails, Field field)
{
    const auto with = [member](double value) {
        return [member, value](SpringInput &i) {
            std::get<SpringMaterial>(i.mMaterial).*member = value;
        };
    };
    addRow(name, s1, with(stays), with(fails), SpringMessage::NotPositive, {field});
}

static bool contains(const SpringResult &result, const SpringFinding &finding)
{
    return std::find(result.mFindings.begin(), result.mFindings.end(), finding)
        != result.mFindings.end();
}

static bool hasCode(const SpringResult &result, SpringMessage code)
{
    return std::any_of(result.mFindings.begin(), result.mFindings.end(),
                       [code](const SpringFinding &finding) { return finding.mCode == code; });
}

void tst_springChecks::error_data()
{
    addColumns();
    using enum SpringMessage;
    addLimit("d", s1, &SpringInput::mWireDiameter, 7, 0, NotPositive, {Field::WireDiameter});
    addLimit("d negative", s1, &SpringInput::mWireDiameter, 7, -7, NotPositive,
             {Field::WireDiameter});
    addLimit("D", s1, &SpringInput::mCoilDiameter, 42, 0, NotPositive, {Field::CoilDiameter});
    addLimit("n", s1, &SpringInput::mActiveCoils, 8, 0, NotPositive, {Field::ActiveCoils});
    addLimit("L_0", s1, &SpringInput::mFreeLength, 110, 0, NotPositive, {Field::FreeLength});
    addLimit("nu", s1, &SpringInput::mSeating, 0.5, 0, NotPositive, {Field::Seating});
    addLimit("d_max", s1, &SpringInput::mLargestWireDiameter, 7, 0, NotPositive,
             {Field::LargestWireDiameter});
    addLimit("n_t", s1, &SpringInput::mTotalCoils, 10, 0, NotPositive, {Field::TotalCoils});
    addLimit("tau_zul hot", hot, &SpringInput::mPermissibleStress, 1, 0, NotPositive,
             {Field::PermissibleStress});
    addMaterialLimit("G", &SpringMaterial::mShearModulus, 81370, 0, Field::ShearModulus);
    addMaterialLimit("E", &SpringMaterial::mElasticModulus, 206000, 0, Field::ElasticModulus);
    addMaterialLimit("rho", &SpringMaterial::mDensity, 7.85, 0, Field::Density);
    addMaterialLimit("R_m", &SpringMaterial::mTensileStrength, 1, 0, Field::TensileStrength);
    addRow(
        "tau_zul missing hot", hot, [](SpringInput &) {},
        [](SpringInput &i) { i.mPermissibleStress.reset(); }, PermissibleStressMissing,
        {Field::PermissibleStress});
    addLimit("D and d", s1, &SpringInput::mCoilDiameter, 7.001, 7, CoilTooSmall,
             {Field::CoilDiameter, Field::WireDiameter});
    addLimit("d_max and d", s1, &SpringInput::mLargestWireDiameter, 7, 6.999, LargestWireTooSmall,
             {Field::LargestWireDiameter, Field::WireDiameter});
    addLimit("n_t and n", s1, &SpringInput::mTotalCoils, 8.001, 8, TotalCoilsTooFew,
             {Field::TotalCoils, Field::ActiveCoils});
    addLimit("grade too thin", s2, &SpringInput::mWireDiameter, 0.3, 0.2999, GradeNotAvailable,
             {Field::Grade, Field::WireDiameter});
    addRow(
        "grade too thick", s2, [](SpringInput &i) { i.mWireDiameter = 20, i.mCoilDiameter = 100; },
        [](SpringInput &i) { i.mWireDiameter = 20.001, i.mCoilDiameter = 100; }, GradeNotAvailable,
        {Field::Grade, Field::WireDiameter});
    addRow(
        "L_0 and L_c", s1,
        [](SpringInput &i) { i.mFreeLength = 70.001, i.mSecondForce = i.mFirstForce = 0; },
        [](SpringInput &i) { i.mFreeLength = 70; }, FreeLengthTooSmall, {Field::FreeLength});
    addLimit("L_2 and L_c", s2, &SpringInput::mSecondLength, 23.7501, 23.7499, BeyondSolidLength,
             {Field::SecondLength});
    addLimit("F_2 and F_c", s1, &SpringInput::mSecondForce, 1648.11, 1648.13, BeyondSolidLength,
             {Field::SecondForce});
    const Fields lengths{Field::FirstLength, Field::SecondLength};
    const Fields forces{Field::FirstForce, Field::SecondForce};
    addLimit("L_0 and L_1", s2, &SpringInput::mFirstLength, 70, 70.001, RangeOutOfOrder, lengths);
    addLimit("L_1 and L_2", s2, &SpringInput::mFirstLength, 46, 45.999, RangeOutOfOrder, lengths);
    addLimit("F_1", s1, &SpringInput::mFirstForce, 0, -0.001, RangeOutOfOrder, forces);
    addLimit("F_1 and F_2", s1, &SpringInput::mFirstForce, 1250, 1250.001, RangeOutOfOrder, forces);
    addLimit("heat without end", s2, &SpringInput::mTemperature, 4019, 4021, NotPositive,
             {Field::ShearModulus, Field::Temperature});
    addRow(
        "grade without density", s2, [](SpringInput &) {},
        [](SpringInput &i) { std::get<WireGrade>(i.mMaterial).mDensity = 0; }, NotPositive,
        {Field::Grade});
}

void tst_springChecks::error()
{
    QFETCH(SpringInput, stays);
    QFETCH(SpringInput, fails);
    QFETCH(SpringMessage, code);
    QFETCH(Fields, fields);
    QVERIFY(!hasCode(calculateSpring(stays), code));
    const SpringResult refused = calculateSpring(fails);
    QVERIFY(contains(refused, {code, SpringSeverity::Error, fields}));
    QVERIFY(!refused.mValues);
}

void tst_springChecks::warning_data()
{
    addColumns();
    using enum SpringMessage;
    addLimit("L_2 and L_n", s2, &SpringInput::mSecondLength, 29.2626, 29.2624, CoilsMayTouch,
             {Field::SecondLength});
    addLimit("F_2 and F_n", s1, &SpringInput::mSecondForce, 1292.77, 1292.79, CoilsMayTouch,
             {Field::SecondForce});
    const Fields index{Field::CoilDiameter, Field::WireDiameter};
    addLimit("w below, cold", s2, &SpringInput::mCoilDiameter, 10, 9.999, SpringIndexUnusual,
             index);
    addLimit("w above, cold", s2, &SpringInput::mCoilDiameter, 50, 50.001, SpringIndexUnusual,
             index);
    addLimit("w below, hot", hot, &SpringInput::mCoilDiameter, 48, 47.999, SpringIndexUnusual,
             index);
    addLimit("w above, hot", hot, &SpringInput::mCoilDiameter, 192, 192.001, SpringIndexUnusual,
             index);
    addLimit("n cold", s2, &SpringInput::mActiveCoils, 2, 1.999, FewActiveCoils,
             {Field::ActiveCoils});
    addLimit("n hot", hot, &SpringInput::mActiveCoils, 3, 2.999, FewActiveCoils,
             {Field::ActiveCoils});
    addLimit("L_0", s2, &SpringInput::mFreeLength, 630, 630.001, FreeLengthLarge,
             {Field::FreeLength});
    addLimit("nu below", s2, &SpringInput::mSeating, 0.5, 0.499, SeatingUnusual, {Field::Seating});
    addLimit("nu above", s2, &SpringInput::mSeating, 2, 2.001, SeatingUnusual, {Field::Seating});
    addLimit("T below", s2, &SpringInput::mTemperature, -40, -40.1, TemperatureUnusual,
             {Field::Temperature});
    addLimit("T above", s2, &SpringInput::mTemperature, 120, 120.1, TemperatureUnusual,
             {Field::Temperature});
    const auto wide = [](double diameter) {
        return [diameter](SpringInput &i) {
            i.mCoilDiameter = diameter;
            i.mSecondForce = i.mFirstForce = 0;
        };
    };
    addRow("D cold", s1, wide(200), wide(200.001), CoilDiameterLarge, {Field::CoilDiameter});
    const auto thick = [](double diameter) {
        return [diameter](SpringInput &i) {
            i.mWireDiameter = diameter;
            i.mCoilDiameter = 5 * diameter;
            i.mFreeLength = i.mFirstLength = i.mSecondLength = 15 * diameter;
            i.mRange = SpringRange::Lengths;
        };
    };
    const Fields wire{Field::WireDiameter};
    addRow("d above, cold", s1, thick(20), thick(20.001), WireDiameterUnusual, wire);
    addRow("d below, hot", hot, thick(8), thick(7.999), WireDiameterUnusual, wire);
    addRow("d above, hot", hot, thick(100), thick(100.001), WireDiameterUnusual, wire);
}

void tst_springChecks::warning()
{
    QFETCH(SpringInput, stays);
    QFETCH(SpringInput, fails);
    QFETCH(SpringMessage, code);
    QFETCH(Fields, fields);
    const SpringResult clean = calculateSpring(stays);
    QVERIFY(clean.mValues);
    QVERIFY(!hasCode(clean, code));
    const SpringResult warned = calculateSpring(fails);
    QVERIFY(warned.mValues);
    QVERIFY(contains(warned, {code, SpringSeverity::Warning, fields}));
}

void tst_springChecks::warningAtTheLimits_data()
{
    addColumns();
    using enum SpringMessage;
    // The stress is not above the permissible one when it equals it: hot coiled springs set it
    // freely.
    const double solid = calculateSpring(hot).mValues->mSolid.mStress;
    const double second = calculateSpring(hot).mValues->mSecond.mStress;
    addLimit("tau_c", hot, &SpringInput::mPermissibleStress, solid, solid * 0.9999,
             SolidStressTooHigh, {Field::FreeLength});
    addLimit("tau_2", hot, &SpringInput::mPermissibleStress, second, second * 0.9999,
             SecondStressTooHigh, {Field::SecondLength});
    addRow(
        "tau_2 of forces", s1,
        [](SpringInput &i) { std::get<SpringMaterial>(i.mMaterial).mTensileStrength = 696.1; },
        [](SpringInput &i) { std::get<SpringMaterial>(i.mMaterial).mTensileStrength = 695.9; },
        SecondStressTooHigh, {Field::SecondForce});
    // s_K of the second example is 18.7911, so that L_2 = 51.2089 stands at the limit.
    addLimit("s_K", s2, &SpringInput::mSecondLength, 51.2090, 51.2088, MayBuckle,
             {Field::FreeLength, Field::SecondLength});
    const double buckling = *calculateSpring(s2).mValues->mBucklingDeflection;
    addLimit("s_K of the ratio 1", s2, &SpringInput::mSecondLength, 51.2090, 70 - buckling,
             MayBuckle, {Field::FreeLength, Field::SecondLength});
}

void tst_springChecks::warningAtTheLimits()
{
    warning();
}

void tst_springChecks::notANumberIsAnError_data()
{
    QTest::addColumn<SpringInput>("input");
    QTest::addColumn<SpringMessage>("code");
    QTest::addColumn<Fields>("fields");
    const auto row = [](const char *name, const SpringInput &base, Field field,
                        const std::function<void(SpringInput &, double)> &set) {
        for (const double value : {qQNaN(), qInf(), -qInf()}) {
            SpringInput input = base;
            set(input, value);
            QTest::addRow("%s %g", name, value)
                << input << SpringMessage::NotFinite << Fields{field};
        }
    };
#define SET(member) [](SpringInput &i, double value) { i.member = value; }
#define SET_OWN(member)                                                                            \
    [](SpringInput &i, double value) { std::get<SpringMaterial>(i.mMaterial).member = value; }
    row("d", s1, Field::WireDiameter, SET(mWireDiameter));
    row("d_max", s1, Field::LargestWireDiameter, SET(mLargestWireDiameter));
    row("D", s1, Field::CoilDiameter, SET(mCoilDiameter));
    row("n", s1, Field::ActiveCoils, SET(mActiveCoils));
    row("n_t", s1, Field::TotalCoils, SET(mTotalCoils));
    row("L_0", s1, Field::FreeLength, SET(mFreeLength));
    row("nu", s1, Field::Seating, SET(mSeating));
    row("T", s1, Field::Temperature, SET(mTemperature));
    row("F_1", s1, Field::FirstForce, SET(mFirstForce));
    row("F_2", s1, Field::SecondForce, SET(mSecondForce));
    row("L_1", s2, Field::FirstLength, SET(mFirstLength));
    row("L_2", s2, Field::SecondLength, SET(mSecondLength));
    row("tau_zul", hot, Field::PermissibleStress, SET(mPermissibleStress));
    row("G", s1, Field::ShearModulus, SET_OWN(mShearModulus));
    row("E", s1, Field::ElasticModulus, SET_OWN(mElasticModulus));
    row("rho", s1, Field::Density, SET_OWN(mDensity));
    row("R_m", s1, Field::TensileStrength, SET_OWN(mTensileStrength));
}

void tst_springChecks::notANumberIsAnError()
{
    QFETCH(SpringInput, input);
    QFETCH(SpringMessage, code);
    QFETCH(Fields, fields);
    const SpringResult result = calculateSpring(input);
    QVERIFY(!result.mValues);
    QCOMPARE(result.mFindings.size(), size_t(1));
    QVERIFY(result.mFindings.front() == (SpringFinding{code, SpringSeverity::Error, fields}));
}

void tst_springChecks::valuesThatAreNotInUseAreNotChecked()
{
    SpringInput forces = s1;
    forces.mFirstLength = forces.mSecondLength = qQNaN();
    forces.mPermissibleStress = qQNaN(); // cold coiled: not an input
    QVERIFY(calculateSpring(forces).mValues);
    SpringInput lengths = s2;
    lengths.mFirstForce = lengths.mSecondForce = qInf();
    QVERIFY(calculateSpring(lengths).mValues);
}

void tst_springChecks::overflowIsAnError_data()
{
    QTest::addColumn<SpringInput>("input");
    const auto row = [](const char *name, const Change &change) {
        SpringInput input = s1;
        change(input);
        QTest::newRow(name) << input;
    };
    const auto scaled = [](double size) {
        return [size](SpringInput &i) {
            i.mWireDiameter *= size;
            i.mCoilDiameter *= size;
            i.mFreeLength *= size;
            i.mFirstForce = i.mSecondForce = 0;
        };
    };
    row("fourth power too large", scaled(1e100));
    row("third power too small", scaled(1e-120));
    row("second power too small", scaled(1e-170));
    row("seating too small", [](SpringInput &i) { i.mSeating = 1e-310; });
    row("rate too small", [](SpringInput &i) {
        i.mMaterial = SpringMaterial{1e-307, 206000, 7.85, 1090};
        i.mFirstForce = i.mSecondForce = 0;
    });
}

void tst_springChecks::overflowIsAnError()
{
    QFETCH(SpringInput, input);
    const SpringResult result = calculateSpring(input);
    QVERIFY(!result.mValues);
    QVERIFY(hasCode(result, SpringMessage::OutOfNumberRange));
}

// Where Wahl's factor comes nearest to its pole.
void tst_springChecks::coilWiderByOneBitHasAnIndexAboveOne()
{
    SpringInput input = s1;
    input.mWireDiameter = 1.9999999999999996;
    input.mCoilDiameter = std::nextafter(input.mWireDiameter, 3);
    input.mCorrection = SpringCorrection::Wahl;
    input.mFirstForce = input.mSecondForce = 0;
    const SpringResult result = calculateSpring(input);
    QVERIFY(result.mValues);
    QVERIFY(result.mValues->mIndex > 1);
    QVERIFY(hasCode(result, SpringMessage::SpringIndexUnusual));
}

void tst_springChecks::allWrongInputsAreReportedAtOnce()
{
    const SpringResult result = calculateSpring({});
    QVERIFY(!result.mValues);
    const std::vector<Field> empty{
        Field::WireDiameter, Field::CoilDiameter,   Field::ActiveCoils, Field::FreeLength,
        Field::ShearModulus, Field::ElasticModulus, Field::Density,     Field::TensileStrength};
    QCOMPARE(result.mFindings.size(), empty.size());
    for (const Field field : empty)
        QVERIFY(contains(result, {SpringMessage::NotPositive, SpringSeverity::Error, {field}}));
}

void tst_springChecks::warningsOfARefusedSpringAreNotShown()
{
    SpringInput input = s2;
    input.mTemperature = 130;
    QVERIFY(hasCode(calculateSpring(input), SpringMessage::TemperatureUnusual));
    input.mSecondLength = 1;
    const SpringResult refused = calculateSpring(input);
    QCOMPARE(refused.mFindings.size(), size_t(1));
    QVERIFY(refused.mFindings.front().mCode == SpringMessage::BeyondSolidLength);
}

void tst_springChecks::solidLengthItselfIsAllowed_data()
{
    QTest::addColumn<SpringInput>("input");
    SpringInput lengths = s2;
    lengths.mSecondLength = calculateSpring(s2).mValues->mSolid.mLength;
    QTest::newRow("length") << lengths;
    SpringInput forces = s1;
    forces.mSecondForce = calculateSpring(s1).mValues->mSolid.mForce;
    QTest::newRow("force") << forces;
}

void tst_springChecks::solidLengthItselfIsAllowed()
{
    QFETCH(SpringInput, input);
    const SpringResult result = calculateSpring(input);
    QVERIFY(result.mValues);
    QVERIFY(hasCode(result, SpringMessage::CoilsMayTouch));
}

void tst_springChecks::unloadedFirstPointIsAllowed()
{
    SpringInput input = s2;
    input.mFirstLength = input.mFreeLength;
    const SpringResult result = calculateSpring(input);
    QVERIFY(result.mValues);
    QCOMPARE(result.mValues->mFirst.mForce, 0.0);
}

void tst_springChecks::largeSizeIsUsualForHotCoiledSprings()
{
    SpringInput input = hot;
    input.mWireDiameter = 48;
    input.mCoilDiameter = 300;
    input.mFreeLength = 720;
    input.mFirstLength = 660;
    input.mSecondLength = 540;
    const SpringResult result = calculateSpring(input);
    QVERIFY(result.mValues);
    QVERIFY(result.mFindings.empty());
}

QTEST_APPLESS_MAIN(tst_springChecks)
#include "tst_springChecks.moc"
