#include "fieldOnPage.h"
#include "zelQtDoubleValidator.h"
#include "zelQtIntValidator.h"
#include "zelQtValueEdit.h"

#include <QtTest>

// What can be typed into a value edit: its validator in all modes, ranges and units.

class tst_zelQtValueEdit_validators : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    // replacement
    void freshFieldIsAnOpenRealField();
    void validatorIsReplacedAndBelongsToTheField();
    void rangeUpdateWithoutChangeKeepsTheValidator_data();
    void rangeUpdateWithoutChangeKeepsTheValidator();
    void rangeUpdateReplacesWhatIsNotItsOwn();

    // limits
    void limitsStandInTheCurrentUnit();
    void limitsOfAnIntegerFieldAreTruncated();
    void limitsBeyondIntSaturate();
    void singleLimits_data();
    void singleLimits();
    void singleLimitKeepsTheOtherEndAndTheDecimals();
    void rangeUpdateKeepsTheDecimals();
    void rangeUpdateEndsScientificNotationOnPurpose_data();
    void rangeUpdateEndsScientificNotationOnPurpose();
    void newCurrentUnitKeepsTheFormerLimitsOnPurpose();

    // change of unit
    void changeUnitOpensTheLimitsUntilTheNextSetDataOnPurpose();
    void changeUnitConvertsTheEndsOfAFreshIntegerValidator();
    void changeUnitWithoutLimitsKeepsTheValidator();
    void changeUnitKeepsTheDecimals();

    // change of mode
    void bottomAtOrBelowZeroIsLostOnPurpose_data();
    void bottomAtOrBelowZeroIsLostOnPurpose();
    void rangeSwitchedToIntegerAndBackKeepsOnlyTheTop();
    void integerLimitsGoOverToTheRealField();
    void integerModeTwiceKeepsTheValidator();

    // typing
    void typedText_data();
    void typedText();
    void scientificFieldTakesAnExponent();
    void clampedTextConfirms();
    void limitOfManyDigitsLeavesTheFieldUnconfirmedOnPurpose();
};

using Fixture = FieldOnPage<ZelQtValueEdit>;

static const QDoubleValidator *real(const ZelQtValueEdit &field)
{
    return qobject_cast<const ZelQtDoubleValidator *>(field.validator());
}

static const QIntValidator *integer(const ZelQtValueEdit &field)
{
    return qobject_cast<const ZelQtIntValidator *>(field.validator());
}

static bool isOpen(const QDoubleValidator *validator)
{
    return validator->bottom() < -1e300 && validator->top() > 1e300;
}

void tst_zelQtValueEdit_validators::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_zelQtValueEdit_validators::freshFieldIsAnOpenRealField()
{
    const ZelQtValueEdit field;
    QVERIFY(!field.isOfTypeInteger());
    QVERIFY(real(field) && isOpen(real(field)));
    QCOMPARE(real(field)->decimals(), 4);
    QCOMPARE(real(field)->parent(), &field);
}

void tst_zelQtValueEdit_validators::validatorIsReplacedAndBelongsToTheField()
{
    ZelQtValueEdit field;
    const auto replaced = [&field](auto change) {
        const QPointer<const QValidator> former(field.validator());
        change();
        return !former && field.validator()->parent() == &field
            && field.findChildren<QValidator *>().size() == 1;
    };
    QVERIFY(replaced([&] { field.setRange(1, 10, false); }));
    QVERIFY(replaced([&] { field.setBottom(2); }));
    QVERIFY(replaced([&] { field.setTop(9); }));
    QVERIFY(replaced([&] { field.setDefaultDecimals(2); }));
    QVERIFY(replaced([&] { field.setScientificNotation(true); }));
    QVERIFY(replaced([&] { field.setTypeToInteger(true); }));
    QVERIFY(replaced([&] { field.setTop(8); }));
    QVERIFY(replaced([&] { field.setTypeToInteger(false); }));
    QVERIFY(replaced([&] { field.changeUnit(QString()); }));
}

// Refreshes update the range of every field of a mask.
void tst_zelQtValueEdit_validators::rangeUpdateWithoutChangeKeepsTheValidator_data()
{
    QTest::addColumn<bool>("isInteger");
    QTest::addColumn<bool>("hasBottom");
    QTest::addColumn<bool>("hasTop");
    for (const bool isInteger : {false, true}) {
        for (const bool hasBottom : {false, true}) {
            for (const bool hasTop : {false, true})
                QTest::addRow("%d %d %d", isInteger, hasBottom, hasTop)
                    << isInteger << hasBottom << hasTop;
        }
    }
}

void tst_zelQtValueEdit_validators::rangeUpdateWithoutChangeKeepsTheValidator()
{
    QFETCH(bool, isInteger);
    QFETCH(bool, hasBottom);
    QFETCH(bool, hasTop);
    ZelQtValueEdit field(QStringLiteral("mm"), QStringLiteral("cm"));
    field.setTypeToInteger(isInteger);
    if (hasBottom)
        field.setBottom(-20);
    if (hasTop)
        field.setTop(35);
    field.updateRange();
    const QPointer<const QValidator> former(field.validator());
    field.updateRange();
    QVERIFY(former && former == field.validator());
    QCOMPARE(field.isOfTypeInteger(), isInteger);
    if (!hasBottom && !hasTop)
        return;
    field.setCurrentUnit(ZelDimensions::getUnit(L"mm"));
    QVERIFY(former == field.validator()); // limits in the former unit, until the next update
    field.updateRange();
    QVERIFY(!former);
}

void tst_zelQtValueEdit_validators::rangeUpdateReplacesWhatIsNotItsOwn()
{
    ZelQtValueEdit field;
    field.setRange(1, 10, false);
    const auto replaced = [&field] {
        const QPointer<const QValidator> former(field.validator());
        field.updateRange();
        return !former && real(field) && real(field)->bottom() == 1 && real(field)->top() == 10
            && real(field)->notation() == QDoubleValidator::StandardNotation;
    };
    field.setScientificNotation(true);
    QVERIFY(replaced());
    field.setValidator(new QDoubleValidator(1, 10, 4, &field));
    QVERIFY(replaced());
    field.changeUnit(QString());
    QVERIFY(replaced());
}

void tst_zelQtValueEdit_validators::limitsStandInTheCurrentUnit()
{
    ZelQtValueEdit field(QStringLiteral("mm"), QStringLiteral("m"));
    field.setRange(500, 2000, false);
    QCOMPARE(real(field)->bottom(), 0.5);
    QCOMPARE(real(field)->top(), 2.0);
    QCOMPARE(field.bottom(), 500.0);
    field.setBottom(1000);
    QCOMPARE(real(field)->bottom(), 1.0);
    field.setTop(3000);
    QCOMPARE(real(field)->top(), 3.0);
}

void tst_zelQtValueEdit_validators::limitsOfAnIntegerFieldAreTruncated()
{
    ZelQtValueEdit field;
    field.setTypeToInteger(true);
    field.setRange(1.9, 10.9, false);
    QCOMPARE(integer(field)->bottom(), 1);
    QCOMPARE(integer(field)->top(), 10);
}

void tst_zelQtValueEdit_validators::limitsBeyondIntSaturate()
{
    ZelQtValueEdit field;
    field.setTypeToInteger(true);
    field.setRange(-1e12, 1e12, false);
    QCOMPARE(integer(field)->bottom(), std::numeric_limits<int>::min());
    QCOMPARE(integer(field)->top(), std::numeric_limits<int>::max());
}

void tst_zelQtValueEdit_validators::singleLimits_data()
{
    QTest::addColumn<bool>("isInteger");
    QTest::newRow("real") << false;
    QTest::newRow("integer") << true;
}

void tst_zelQtValueEdit_validators::singleLimits()
{
    QFETCH(bool, isInteger);
    ZelQtValueEdit bottomOnly;
    bottomOnly.setTypeToInteger(isInteger);
    bottomOnly.setBottom(-3);
    bottomOnly.updateRange();
    ZelQtValueEdit topOnly;
    topOnly.setTypeToInteger(isInteger);
    topOnly.setTop(7);
    topOnly.updateRange();
    if (isInteger) {
        QCOMPARE(integer(bottomOnly)->bottom(), -3);
        QCOMPARE(integer(bottomOnly)->top(), std::numeric_limits<int>::max());
        QCOMPARE(integer(topOnly)->bottom(), std::numeric_limits<int>::min());
        QCOMPARE(integer(topOnly)->top(), 7);
    } else {
        QCOMPARE(real(bottomOnly)->bottom(), -3.0);
        QVERIFY(real(bottomOnly)->top() > 1e300);
        QVERIFY(real(topOnly)->bottom() < -1e300);
        QCOMPARE(real(topOnly)->top(), 7.0);
    }
}

void tst_zelQtValueEdit_validators::singleLimitKeepsTheOtherEndAndTheDecimals()
{
    ZelQtValueEdit field;
    field.setDefaultDecimals(2);
    field.setRange(-5, 10, false);
    field.setBottom(-3);
    QCOMPARE(real(field)->bottom(), -3.0);
    QCOMPARE(real(field)->top(), 10.0);
    field.setTop(20);
    QCOMPARE(real(field)->bottom(), -3.0);
    QCOMPARE(real(field)->top(), 20.0);
    QCOMPARE(real(field)->decimals(), 2);
}

void tst_zelQtValueEdit_validators::rangeUpdateKeepsTheDecimals()
{
    ZelQtValueEdit field;
    field.setDefaultDecimals(2);
    field.setRange(0, 10, false);
    QCOMPARE(field.defaultDecimals(), 2);
}

void tst_zelQtValueEdit_validators::rangeUpdateEndsScientificNotationOnPurpose_data()
{
    QTest::addColumn<bool>("hasBottom");
    QTest::addColumn<bool>("hasTop");
    QTest::addColumn<bool>("scientific");
    QTest::newRow("both limits") << true << true << false;
    QTest::newRow("bottom") << true << false << false;
    QTest::newRow("top") << false << true << false;
    QTest::newRow("no limit, nothing to update") << false << false << true;
}

void tst_zelQtValueEdit_validators::rangeUpdateEndsScientificNotationOnPurpose()
{
    QFETCH(bool, hasBottom);
    QFETCH(bool, hasTop);
    ZelQtValueEdit field;
    if (hasBottom)
        field.setBottom(1);
    if (hasTop)
        field.setTop(10);
    field.setScientificNotation(true);
    field.updateRange();
    QTEST(field.isScientificNotation(), "scientific");
}

void tst_zelQtValueEdit_validators::newCurrentUnitKeepsTheFormerLimitsOnPurpose()
{
    ZelQtValueEdit field(QStringLiteral("mm"));
    field.setRange(500, 2000, false);
    field.setCurrentUnit(QStringLiteral("m"));
    QCOMPARE(real(field)->bottom(), 500.0);
    QCOMPARE(real(field)->top(), 2000.0);
    field.updateRange();
    QCOMPARE(real(field)->top(), 2.0);
}

void tst_zelQtValueEdit_validators::changeUnitOpensTheLimitsUntilTheNextSetDataOnPurpose()
{
    Fixture fixture;
    fixture.mField.setDefaultUnit(QStringLiteral("mm"));
    fixture.mField.setRange(500, 2000, false);
    fixture.mField.changeUnit(QStringLiteral("m"));
    QVERIFY(isOpen(real(fixture.mField)));
    QVERIFY(fixture.enter());
    fixture.mField.selectAll();
    QTest::keyClicks(&fixture.mField, QStringLiteral("99999"));
    QCOMPARE(fixture.mField.text(), QStringLiteral("99999"));
    QVERIFY(fixture.leave());
    QCOMPARE(fixture.mField.text(), QStringLiteral("99999"));
    fixture.mField.setData(nullptr, 1);
    QCOMPARE(real(fixture.mField)->bottom(), 0.5);
    QCOMPARE(real(fixture.mField)->top(), 2.0);
}

void tst_zelQtValueEdit_validators::changeUnitConvertsTheEndsOfAFreshIntegerValidator()
{
    ZelQtValueEdit field(QStringLiteral("mm"));
    field.setTypeToInteger(true);
    field.setRange(500, 2000, false);
    field.changeUnit(QStringLiteral("m"));
    QCOMPARE(integer(field)->bottom(), -2147483);
    QCOMPARE(integer(field)->top(), 2147483);

    ZelQtValueEdit half(QStringLiteral("m"));
    half.setTypeToInteger(true);
    half.setTop(2);
    half.changeUnit(QStringLiteral("mm"));
    QCOMPARE(integer(half)->bottom(), std::numeric_limits<int>::min());
    QCOMPARE(integer(half)->top(), std::numeric_limits<int>::max());
}

void tst_zelQtValueEdit_validators::changeUnitWithoutLimitsKeepsTheValidator()
{
    ZelQtValueEdit field(QStringLiteral("mm"));
    field.setScientificNotation(true);
    const QValidator *const former = field.validator();
    field.changeUnit(QStringLiteral("m"));
    QCOMPARE(field.validator(), former);
    QVERIFY(field.isScientificNotation());
}

void tst_zelQtValueEdit_validators::changeUnitKeepsTheDecimals()
{
    ZelQtValueEdit field(QStringLiteral("mm"));
    field.setDefaultDecimals(2);
    field.setTop(5);
    field.changeUnit(QStringLiteral("m"));
    QCOMPARE(field.defaultDecimals(), 2);
}

void tst_zelQtValueEdit_validators::bottomAtOrBelowZeroIsLostOnPurpose_data()
{
    QTest::addColumn<double>("bottom");
    QTest::addColumn<bool>("kept");
    QTest::newRow("negative") << -5.0 << false;
    QTest::newRow("zero") << 0.0 << false;
    QTest::newRow("positive") << 2.5 << true;
}

void tst_zelQtValueEdit_validators::bottomAtOrBelowZeroIsLostOnPurpose()
{
    QFETCH(double, bottom);
    QFETCH(bool, kept);
    ZelQtValueEdit toReal;
    toReal.setRange(bottom, 10.5, false);
    toReal.setDefaultDecimals(2);
    QCOMPARE(real(toReal)->bottom() == bottom, kept);
    QVERIFY(kept || real(toReal)->bottom() < -1e300);
    QCOMPARE(real(toReal)->top(), 10.5);

    ZelQtValueEdit toInteger;
    toInteger.setRange(bottom, 10.5, false);
    toInteger.setTypeToInteger(true);
    QCOMPARE(integer(toInteger)->bottom(), kept ? 2 : std::numeric_limits<int>::min());
    QCOMPARE(integer(toInteger)->top(), 10);
}

void tst_zelQtValueEdit_validators::rangeSwitchedToIntegerAndBackKeepsOnlyTheTop()
{
    ZelQtValueEdit field;
    field.setRange(0, 10, false);
    field.setTypeToInteger(true);
    field.setTypeToInteger(false);
    QVERIFY(real(field)->bottom() < -1e300);
    QCOMPARE(real(field)->top(), 10.0);
    field.setData(nullptr, 1);
    QCOMPARE(real(field)->bottom(), 0.0);
    QCOMPARE(real(field)->top(), 10.0);
}

void tst_zelQtValueEdit_validators::integerLimitsGoOverToTheRealField()
{
    ZelQtValueEdit field;
    field.setTypeToInteger(true);
    field.setRange(-5, 10, false);
    field.setTypeToInteger(false);
    QCOMPARE(real(field)->bottom(), -5.0);
    QCOMPARE(real(field)->top(), 10.0);
    ZelQtValueEdit open;
    open.setTypeToInteger(true);
    open.setTypeToInteger(false);
    QVERIFY(isOpen(real(open)));
}

void tst_zelQtValueEdit_validators::integerModeTwiceKeepsTheValidator()
{
    ZelQtValueEdit field;
    field.setTypeToInteger(true);
    const QValidator *const former = field.validator();
    field.setTypeToInteger(true);
    QCOMPARE(field.validator(), former);
}

void tst_zelQtValueEdit_validators::typedText_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("left");
    QTest::newRow("number") << "5"
                            << "5"
                            << "5";
    QTest::newRow("comma") << "3,5"
                           << "3.5"
                           << "3.5";
    QTest::newRow("point alone") << "."
                                 << "0."
                                 << "0.";
    QTest::newRow("second point") << "3.5."
                                  << "3.5"
                                  << "3.5";
    QTest::newRow("fifth decimal is refused") << "1.23456"
                                              << "1.2345"
                                              << "1.2345";
    QTest::newRow("exponent is refused") << "1e5"
                                         << "15"
                                         << "10";
    QTest::newRow("more digits than the larger limit") << "999"
                                                       << "99"
                                                       << "10";
    QTest::newRow("above the top is clamped on leaving") << "11"
                                                         << "11"
                                                         << "10";
    QTest::newRow("letters are refused") << "a1b"
                                         << "1"
                                         << "1";
}

void tst_zelQtValueEdit_validators::typedText()
{
    QFETCH(QString, typed);
    Fixture fixture;
    fixture.mField.setRange(0, 10, false);
    QVERIFY(fixture.enter());
    fixture.mField.selectAll();
    QTest::keyClicks(&fixture.mField, typed);
    QTEST(fixture.mField.text(), "text");
    QVERIFY(fixture.leave());
    QTEST(fixture.mField.text(), "left");
}

void tst_zelQtValueEdit_validators::scientificFieldTakesAnExponent()
{
    Fixture fixture;
    fixture.mField.setScientificNotation(true);
    QVERIFY(fixture.enter());
    fixture.mField.selectAll();
    QTest::keyClicks(&fixture.mField, QStringLiteral("1,5e3"));
    QCOMPARE(fixture.mField.text(), QStringLiteral("1.5e3"));
    QCOMPARE(fixture.mField.mValue, 1500.0);
}

void tst_zelQtValueEdit_validators::clampedTextConfirms()
{
    Fixture fixture;
    fixture.mField.setTypeToInteger(true);
    fixture.mField.setRange(5, 20, false);
    QVERIFY(fixture.enter());
    fixture.mField.selectAll();
    QTest::keyClicks(&fixture.mField, QStringLiteral("2"));
    fixture.take();
    QTest::keyClick(&fixture.mField, Qt::Key_Return);
    QCOMPARE(fixture.mField.text(), QStringLiteral("5"));
    QCOMPARE(fixture.take(), confirmedEvents);
    QCOMPARE(fixture.mField.mValue, 2.0); // the text is clamped, the number stays as typed
}

void tst_zelQtValueEdit_validators::limitOfManyDigitsLeavesTheFieldUnconfirmedOnPurpose()
{
    Fixture fixture;
    fixture.mField.setRange(0, 1234567.8, false);
    QVERIFY(fixture.enter());
    fixture.mField.selectAll();
    QTest::keyClicks(&fixture.mField, QStringLiteral("9999999"));
    fixture.take();
    QVERIFY(fixture.leave());
    QCOMPARE(fixture.take(), QStringList());
    fixture.mField.ensureValueConfirmed();
    QCOMPARE(fixture.take(), confirmedEvents);
}

QTEST_MAIN(tst_zelQtValueEdit_validators)
#include "tst_zelQtValueEdit_validators.moc"
