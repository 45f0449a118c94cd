#include "zelQtValueEdit.h"

#include "fieldOnPage.h"

#include <QtTest>

// The road of a number: typing, reading, writing and units. What is shown stands in
// tst_zelQtValueEdit_display, what can be typed in tst_zelQtValueEdit_validators, the way to the
// module's data in tst_zelQtValueEdit_model.

class tst_zelQtValueEdit : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    // typing
    void typedNumberCountsInTheCurrentUnit();
    void typedNumberKeepsAllDigits();
    void unreadableTextCountsAsZero();
    void typedNumberIsNeitherClampedNorRewrittenOnPurpose();
    void listenerOfValueChangedReadsTheFormerNumberOnPurpose();
    void numberIsFinalAtConfirmation();
    void silentFieldStoresTheNumberToo();
    void refusedSecondPointReportsAChangeAllTheSame();
    void emptiedFieldWithBottomZeroConfirmsOnDemandOnly();
    void commaOfTheLocaleDoesNotMatter_data();
    void commaOfTheLocaleDoesNotMatter();

    // reading
    void readsInAnyUnitOfTheDimension_data();
    void readsInAnyUnitOfTheDimension();
    void integerFormsTruncateTowardZero_data();
    void integerFormsTruncateTowardZero();
    void dirtyValueIsWrittenWhenItDiffers_data();
    void dirtyValueIsWrittenWhenItDiffers();

    // writing
    void writtenNumberIsConvertedAndSilent();
    void writtenNumberIsClamped_data();
    void writtenNumberIsClamped();
    void limitsCountInTheDefaultUnit();

    // units
    void constructorsTakeUnitTexts();
    void defaultUnitByTextLeavesTheTextOnPurpose();
    void currentUnitByTextRewritesTheText();
    void changeUnitKeepsTheNumber();
    void unitOfAnotherDimensionChangesNothing();
};

using Fixture = FieldOnPage<ZelQtValueEdit>;

static double number(const ZelQtValueEdit &field, const QString &unit = QString())
{
    double value = -1;
    field.getWert(value, unit);
    return value;
}

static void type(ZelQtValueEdit &field, const QString &text)
{
    field.selectAll();
    QTest::keyClicks(&field, text);
}

void tst_zelQtValueEdit::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_zelQtValueEdit::cleanup()
{
    QLocale::setDefault(QLocale::c());
}

void tst_zelQtValueEdit::typedNumberCountsInTheCurrentUnit()
{
    Fixture fixture;
    fixture.mField.setDefaultUnit(QStringLiteral("mm"));
    fixture.mField.setCurrentUnit(QStringLiteral("m"));
    QVERIFY(fixture.enter());
    type(fixture.mField, QStringLiteral("1"));
    QCOMPARE(fixture.mField.mValue, 1000.0);
    QCOMPARE(number(fixture.mField, QStringLiteral("m")), 1.0);
    QCOMPARE(number(fixture.mField), 1000.0);
}

void tst_zelQtValueEdit::typedNumberKeepsAllDigits()
{
    Fixture fixture;
    fixture.mField.setDefaultDecimals(12);
    QVERIFY(fixture.enter());
    type(fixture.mField, QStringLiteral("1.234567890123"));
    QCOMPARE(number(fixture.mField), 1.234567890123);
    QCOMPARE(fixture.mField.text(), QStringLiteral("1.234567890123"));
}

void tst_zelQtValueEdit::unreadableTextCountsAsZero()
{
    Fixture fixture;
    fixture.mField.setWert(5, QString());
    QVERIFY(fixture.enter());
    type(fixture.mField, QStringLiteral("-"));
    QCOMPARE(fixture.mField.text(), QStringLiteral("-"));
    QCOMPARE(number(fixture.mField), 0.0);
    fixture.mField.setWert(5, QString());
    fixture.mField.selectAll();
    QTest::keyClick(&fixture.mField, Qt::Key_Delete);
    QCOMPARE(fixture.mField.text(), QString());
    QCOMPARE(number(fixture.mField), 0.0);
}

void tst_zelQtValueEdit::typedNumberIsNeitherClampedNorRewrittenOnPurpose()
{
    Fixture fixture;
    fixture.mField.setRange(10, 100, false);
    QVERIFY(fixture.enter());
    type(fixture.mField, QStringLiteral("3"));
    QCOMPARE(fixture.mField.text(), QStringLiteral("3"));
    QCOMPARE(number(fixture.mField), 3.0);
    // Leaving clamps the text; the number stays as typed, which is meant.
    QVERIFY(fixture.leave());
    QCOMPARE(fixture.mField.text(), QStringLiteral("10"));
    QCOMPARE(number(fixture.mField), 3.0);
    QCOMPARE(fixture.take(), changedEvents + confirmedEvents);
}

void tst_zelQtValueEdit::listenerOfValueChangedReadsTheFormerNumberOnPurpose()
{
    Fixture fixture;
    fixture.mField.setWert(7, QString());
    QList<double> heard;
    connect(&fixture.mPage, &ZelQtParentWidget::valueChanged, this,
            [&] { heard.append(number(fixture.mField)); });
    connect(&fixture.mField, &ZelQtValueEdit::valueChanged, this,
            [&] { heard.append(number(fixture.mField)); });
    QVERIFY(fixture.enter());
    type(fixture.mField, QStringLiteral("12"));
    QCOMPARE(heard, QList<double>({7, 7, 1, 1}));
    QCOMPARE(number(fixture.mField), 12.0);
}

void tst_zelQtValueEdit::numberIsFinalAtConfirmation()
{
    Fixture fixture;
    QList<double> heard;
    connect(&fixture.mPage, &ZelQtParentWidget::valueConfirmed, this,
            [&] { heard.append(number(fixture.mField)); });
    QVERIFY(fixture.enter());
    type(fixture.mField, QStringLiteral("12"));
    QTest::keyClick(&fixture.mField, Qt::Key_Return);
    QCOMPARE(heard, QList<double>({12}));
    QCOMPARE(fixture.take(), changedEvents + changedEvents + confirmedEvents);
}

void tst_zelQtValueEdit::silentFieldStoresTheNumberToo()
{
    Fixture fixture;
    fixture.mField.disableValueChanged();
    QVERIFY(fixture.enter());
    type(fixture.mField, QStringLiteral("12"));
    QCOMPARE(number(fixture.mField), 12.0);
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtValueEdit::refusedSecondPointReportsAChangeAllTheSame()
{
    Fixture fixture;
    QVERIFY(fixture.enter());
    type(fixture.mField, QStringLiteral("3.5"));
    fixture.take();
    QTest::keyClick(&fixture.mField, '.');
    QCOMPARE(fixture.mField.text(), QStringLiteral("3.5"));
    QCOMPARE(fixture.take(), changedEvents);
    QCOMPARE(number(fixture.mField), 3.5);
}

void tst_zelQtValueEdit::emptiedFieldWithBottomZeroConfirmsOnDemandOnly()
{
    // Qt reports no end of editing while the text is unacceptable, and 0 needs no mending here.
    Fixture fixture;
    fixture.mField.setRange(0, 10, false);
    fixture.mField.setWert(5, QString());
    QVERIFY(fixture.enter());
    fixture.mField.selectAll();
    QTest::keyClick(&fixture.mField, Qt::Key_Delete);
    QCOMPARE(fixture.take(), changedEvents);
    QVERIFY(fixture.leave());
    QCOMPARE(fixture.take(), QStringList());
    fixture.mField.ensureValueConfirmed();
    QCOMPARE(fixture.take(), confirmedEvents);
}

void tst_zelQtValueEdit::commaOfTheLocaleDoesNotMatter_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::newRow("C") << QLocale::c();
    QTest::newRow("German") << QLocale(QLocale::German);
    QTest::newRow("English") << QLocale(QLocale::English);
    QTest::newRow("French") << QLocale(QLocale::French);
}

void tst_zelQtValueEdit::commaOfTheLocaleDoesNotMatter()
{
    QFETCH(QLocale, locale);
    QLocale::setDefault(locale);
    for (const char *typed : {"3,5", "3.5"}) {
        Fixture fixture;
        QVERIFY(fixture.enter());
        type(fixture.mField, QString::fromLatin1(typed));
        QCOMPARE(fixture.mField.text(), QStringLiteral("3.5"));
        QCOMPARE(number(fixture.mField), 3.5);
        fixture.mField.setWert(1234.5, QString());
        QCOMPARE(fixture.mField.text(), QStringLiteral("1234.5000"));
        QVERIFY(fixture.mField.hasAcceptableInput());
    }
}

void tst_zelQtValueEdit::readsInAnyUnitOfTheDimension_data()
{
    QTest::addColumn<QString>("unit");
    QTest::addColumn<double>("expected");
    QTest::newRow("no unit text stands for the default unit") << "" << 25.4;
    QTest::newRow("default unit") << "mm" << 25.4;
    QTest::newRow("another unit") << "in" << 1.0;
    QTest::newRow("unknown unit changes nothing") << "xyz" << 25.4;
    QTest::newRow("other dimension changes nothing") << "N" << 25.4;
}

void tst_zelQtValueEdit::readsInAnyUnitOfTheDimension()
{
    QFETCH(QString, unit);
    ZelQtValueEdit field(QStringLiteral("mm"), QStringLiteral("m"));
    field.setWert(25.4, QString());
    QTEST(number(field, unit), "expected");
}

void tst_zelQtValueEdit::integerFormsTruncateTowardZero_data()
{
    QTest::addColumn<double>("stored");
    QTest::addColumn<int>("asInt");
    QTest::addColumn<int>("asShort");
    QTest::newRow("positive") << 2.9 << 2 << 2;
    QTest::newRow("half") << 2.5 << 2 << 2;
    QTest::newRow("negative") << -2.9 << -2 << -2;
    QTest::newRow("beyond short") << 1e5 << 100000 << 32767;
    QTest::newRow("beyond int") << 1e12 << 2147483647 << 32767;
    QTest::newRow("below int") << -1e12 << std::numeric_limits<int>::min() << -32768;
    QTest::newRow("not a number") << std::nan("") << 0 << 0;
}

void tst_zelQtValueEdit::integerFormsTruncateTowardZero()
{
    QFETCH(double, stored);
    QFETCH(int, asInt);
    QFETCH(int, asShort);
    ZelQtValueEdit field(QStringLiteral("mm"));
    field.setWert(stored, QString());
    int wide = 1;
    field.getWert(wide, QString());
    QCOMPARE(wide, asInt);
    short narrow = 1;
    field.getWert(narrow, QString());
    QCOMPARE(int(narrow), asShort);
    if (std::abs(stored) < 10) {
        field.getWert(wide, QStringLiteral("m"));
        QCOMPARE(wide, 0);
    }
}

void tst_zelQtValueEdit::dirtyValueIsWrittenWhenItDiffers_data()
{
    QTest::addColumn<double>("former");
    QTest::addColumn<bool>("written");
    QTest::newRow("other number") << 4.0 << true;
    QTest::newRow("same number") << 5.0 << false;
    QTest::newRow("as good as the same") << 5.0 * (1 + 1e-14) << false;
}

void tst_zelQtValueEdit::dirtyValueIsWrittenWhenItDiffers()
{
    QFETCH(double, former);
    QFETCH(bool, written);
    ZelQtValueEdit field(QStringLiteral("mm"));
    field.setWert(5000, QString());
    bool dirty = false;
    zelAutoDirty<double> target(former, &dirty);
    field.getWert(target, QStringLiteral("m"));
    QCOMPARE(dirty, written);
    QVERIFY(target.mValue == (written ? 5.0 : former));

    zelAutoDirty<double> withoutFlag(former);
    field.getWert(withoutFlag, QStringLiteral("m"));
    QVERIFY(withoutFlag.mValue == (written ? 5.0 : former));
}

void tst_zelQtValueEdit::writtenNumberIsConvertedAndSilent()
{
    Fixture fixture;
    fixture.mField.setDefaultUnit(QStringLiteral("mm"));
    fixture.mField.setWert(2, QStringLiteral("m"));
    QCOMPARE(number(fixture.mField), 2000.0);
    QCOMPARE(fixture.mField.text(), QStringLiteral("2000.0000"));
    fixture.mField.setWert(3, QString());
    QCOMPARE(number(fixture.mField), 3.0);
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtValueEdit::writtenNumberIsClamped_data()
{
    QTest::addColumn<bool>("hasBottom");
    QTest::addColumn<bool>("hasTop");
    QTest::addColumn<double>("written");
    QTest::addColumn<double>("stored");
    QTest::newRow("above the top") << true << true << 5.0 << 3.0;
    QTest::newRow("below the bottom") << true << true << -5.0 << 1.0;
    QTest::newRow("inside") << true << true << 2.0 << 2.0;
    QTest::newRow("no top") << true << false << 5.0 << 5.0;
    QTest::newRow("no bottom") << false << true << -5.0 << -5.0;
    QTest::newRow("no limit") << false << false << -5.0 << -5.0;
}

void tst_zelQtValueEdit::writtenNumberIsClamped()
{
    QFETCH(bool, hasBottom);
    QFETCH(bool, hasTop);
    QFETCH(double, written);
    QFETCH(double, stored);
    ZelQtValueEdit field;
    if (hasBottom)
        field.setBottom(1);
    if (hasTop)
        field.setTop(3);
    field.setWert(written, QString());
    QCOMPARE(number(field), stored);
    QCOMPARE(field.text(), QString::number(stored, 'f', 4));
}

void tst_zelQtValueEdit::limitsCountInTheDefaultUnit()
{
    ZelQtValueEdit field(QStringLiteral("mm"), QStringLiteral("m"));
    field.setTop(3000);
    field.setWert(5, QStringLiteral("m"));
    QCOMPARE(number(field), 3000.0);
    QCOMPARE(field.text(), QStringLiteral("3.0000"));
}

void tst_zelQtValueEdit::constructorsTakeUnitTexts()
{
    const ZelQtValueEdit plain;
    QCOMPARE(plain.defaultUnitString(), QString());
    QCOMPARE(plain.currentUnitString(), QString());
    const ZelQtValueEdit one(QStringLiteral("mm"));
    QCOMPARE(one.defaultUnitString(), QStringLiteral("mm"));
    QCOMPARE(one.currentUnitString(), QStringLiteral("mm"));
    const ZelQtValueEdit two(QStringLiteral("mm"), QStringLiteral("m"));
    QCOMPARE(two.defaultUnitString(), QStringLiteral("mm"));
    QCOMPARE(two.currentUnitString(), QStringLiteral("m"));
    for (const ZelQtValueEdit *field : {&plain, &one, &two}) {
        QCOMPARE(field->alignment(), Qt::Alignment(Qt::AlignRight));
        QCOMPARE(field->sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
        QCOMPARE(field->sizeHint().width(), 16 * field->fontMetrics().averageCharWidth());
        QCOMPARE(field->minimumSizeHint(), field->sizeHint());
        QCOMPARE(field->defaultDecimals(), 4);
    }
}

void tst_zelQtValueEdit::defaultUnitByTextLeavesTheTextOnPurpose()
{
    ZelQtValueEdit field(QStringLiteral("mm"));
    field.setWert(5, QString());
    QCOMPARE(field.text(), QStringLiteral("5.0000"));
    QVERIFY(field.setProperty("defaultUnit", QStringLiteral("m")));
    QCOMPARE(field.property("defaultUnit").toString(), QStringLiteral("m"));
    QCOMPARE(field.text(), QStringLiteral("5.0000"));
    field.updateWert();
    QCOMPARE(field.text(), QStringLiteral("5000.0000"));

    ZelQtValueEdit redrawn(QStringLiteral("mm"));
    redrawn.setWert(5, QString());
    redrawn.setDefaultUnit(ZelDimensions::Metre);
    QCOMPARE(redrawn.text(), QStringLiteral("5000.0000"));
}

void tst_zelQtValueEdit::currentUnitByTextRewritesTheText()
{
    Fixture fixture;
    fixture.mField.setDefaultUnit(QStringLiteral("mm"));
    fixture.mField.setWert(5, QString());
    fixture.mField.setCurrentUnit(QStringLiteral("cm"));
    QCOMPARE(fixture.mField.text(), QStringLiteral("0.5000"));
    fixture.mField.setCurrentUnit(ZelDimensions::Millimetre);
    QCOMPARE(fixture.mField.text(), QStringLiteral("5.0000"));
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtValueEdit::changeUnitKeepsTheNumber()
{
    Fixture fixture;
    fixture.mField.setDefaultUnit(QStringLiteral("mm"));
    fixture.mField.setWert(1.0 / 3, QString());
    fixture.mField.changeUnit(QStringLiteral("m"));
    QCOMPARE(fixture.mField.text(), QStringLiteral("0.0003"));
    fixture.mField.changeUnit(QStringLiteral("mm"));
    QCOMPARE(fixture.mField.text(), QStringLiteral("0.3333"));
    QVERIFY(number(fixture.mField) == 1.0 / 3);
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtValueEdit::unitOfAnotherDimensionChangesNothing()
{
    ZelQtValueEdit field(QStringLiteral("mm"));
    field.setWert(5, QString());
    field.changeUnit(QStringLiteral("N"));
    field.setCurrentUnit(QStringLiteral("N"));
    QCOMPARE(field.currentUnitString(), QStringLiteral("mm"));
    QCOMPARE(field.text(), QStringLiteral("5.0000"));
}

QTEST_MAIN(tst_zelQtValueEdit)
#include "tst_zelQtValueEdit.moc"
