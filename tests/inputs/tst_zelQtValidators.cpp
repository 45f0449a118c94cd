#include "zelQtDoubleValidator.h"
#include "zelQtIntValidator.h"

#include <QLineEdit>
#include <QtTest>

class tst_zelQtValidators : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void doubleValidatorCorrectsTheText_data();
    void doubleValidatorCorrectsTheText();
    void doubleValidatorMovesTheCursor_data();
    void doubleValidatorMovesTheCursor();
    void doubleValidatorStartsOpenInStandardNotation();
    void doubleValidatorIgnoresTheLocale();
    void doubleFixupClamps_data();
    void doubleFixupClamps();
    void doubleFixupKnowsSixDigitsOnPurpose();
    void intFixupClamps_data();
    void intFixupClamps();
    void intValidatorTakesDigitsOnlyInEveryLanguage_data();
    void intValidatorTakesDigitsOnlyInEveryLanguage();
    void pastedTextIsCorrectedToo();
};

Q_DECLARE_METATYPE(QValidator::State)

void tst_zelQtValidators::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_zelQtValidators::cleanup()
{
    QLocale::setDefault(QLocale::c());
}

void tst_zelQtValidators::doubleValidatorCorrectsTheText_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QValidator::State>("state");
    QTest::newRow("comma becomes a point") << "3,5"
                                           << "3.5" << QValidator::Acceptable;
    QTest::newRow("point stays") << "3.5"
                                 << "3.5" << QValidator::Acceptable;
    QTest::newRow("lone point") << "."
                                << "0." << QValidator::Acceptable;
    QTest::newRow("lone comma") << ","
                                << "0." << QValidator::Acceptable;
    QTest::newRow("second point goes") << "3.5.1"
                                       << "3.51" << QValidator::Acceptable;
    QTest::newRow("second comma goes") << "3,5,1"
                                       << "3.51" << QValidator::Acceptable;
    QTest::newRow("a third one is refused") << "1.2.3.4"
                                            << "1.23.4" << QValidator::Invalid;
    QTest::newRow("two points alone") << ".."
                                      << "." << QValidator::Intermediate;
    QTest::newRow("number") << "-12"
                            << "-12" << QValidator::Acceptable;
    QTest::newRow("sign alone") << "-"
                                << "-" << QValidator::Intermediate;
    QTest::newRow("empty") << ""
                           << "" << QValidator::Intermediate;
    QTest::newRow("letters") << "abc"
                             << "abc" << QValidator::Invalid;
    QTest::newRow("exponent in standard notation") << "1e5"
                                                   << "1e5" << QValidator::Invalid;
    QTest::newRow("fourth decimal") << "1.2345"
                                    << "1.2345" << QValidator::Acceptable;
    QTest::newRow("fifth decimal") << "1.23456"
                                   << "1.23456" << QValidator::Invalid;
    QTest::newRow("above the top") << "150"
                                   << "150" << QValidator::Intermediate;
    QTest::newRow("more digits than the top") << "9999"
                                              << "9999" << QValidator::Invalid;
}

void tst_zelQtValidators::doubleValidatorCorrectsTheText()
{
    QFETCH(QString, input);
    ZelQtDoubleValidator validator;
    validator.setRange(-100, 100, 4);
    int position = input.size();
    const QValidator::State state = validator.validate(input, position);
    QTEST(input, "text");
    QTEST(state, "state");
}

void tst_zelQtValidators::doubleValidatorMovesTheCursor_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    QTest::newRow("comma") << "3,5" << 3 << 3;
    QTest::newRow("lone point") << "." << 1 << 2;
    QTest::newRow("second point at the end") << "3.5." << 4 << 3;
    QTest::newRow("point typed before the other") << "3.5.1" << 2 << 1;
}

void tst_zelQtValidators::doubleValidatorMovesTheCursor()
{
    QFETCH(QString, input);
    QFETCH(int, before);
    const ZelQtDoubleValidator validator;
    validator.validate(input, before);
    QTEST(before, "after");
}

void tst_zelQtValidators::doubleValidatorStartsOpenInStandardNotation()
{
    QObject parent;
    const ZelQtDoubleValidator validator(&parent);
    QCOMPARE(validator.parent(), &parent);
    QCOMPARE(validator.notation(), QDoubleValidator::StandardNotation);
    QVERIFY(validator.bottom() < -1e300);
    QVERIFY(validator.top() > 1e300);
    const ZelQtIntValidator integer(&parent);
    QCOMPARE(integer.parent(), &parent);
    QCOMPARE(integer.bottom(), std::numeric_limits<int>::min());
    QCOMPARE(integer.top(), std::numeric_limits<int>::max());
}

void tst_zelQtValidators::doubleValidatorIgnoresTheLocale()
{
    QLocale::setDefault(QLocale(QLocale::German));
    const ZelQtDoubleValidator validator;
    QString input = QStringLiteral("1234,5");
    int position = 6;
    QCOMPARE(validator.validate(input, position), QValidator::Acceptable);
    QCOMPARE(input, QStringLiteral("1234.5"));
}

void tst_zelQtValidators::doubleFixupClamps_data()
{
    QTest::addColumn<double>("bottom");
    QTest::addColumn<double>("top");
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("text");
    QTest::newRow("below") << 1.5 << 10.0 << "1"
                           << "1.5";
    QTest::newRow("above") << 1.5 << 10.25 << "11"
                           << "10.25";
    QTest::newRow("inside") << 1.5 << 10.0 << "5."
                            << "5.";
    QTest::newRow("empty counts as 0") << 1.5 << 10.0 << ""
                                       << "1.5";
    QTest::newRow("empty with 0 inside") << -1.0 << 10.0 << ""
                                         << "";
    QTest::newRow("sign counts as 0") << -10.0 << -2.0 << "-"
                                      << "-2";
}

void tst_zelQtValidators::doubleFixupClamps()
{
    QFETCH(double, bottom);
    QFETCH(double, top);
    QFETCH(QString, input);
    ZelQtDoubleValidator validator;
    validator.setRange(bottom, top, 4);
    validator.fixup(input);
    QTEST(input, "text");
}

void tst_zelQtValidators::doubleFixupKnowsSixDigitsOnPurpose()
{
    ZelQtDoubleValidator validator;
    validator.setRange(0, 1234567.8, 4);
    QString input = QStringLiteral("9999999");
    validator.fixup(input);
    QCOMPARE(input, QStringLiteral("1.23457e+06"));
    int position = 0;
    QCOMPARE(validator.validate(input, position), QValidator::Invalid);
}

void tst_zelQtValidators::intFixupClamps_data()
{
    QTest::addColumn<int>("bottom");
    QTest::addColumn<int>("top");
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("text");
    const int lowest = std::numeric_limits<int>::min();
    const int highest = std::numeric_limits<int>::max();
    QTest::newRow("below") << 5 << 20 << "2"
                           << "5";
    QTest::newRow("above") << 5 << 20 << "21"
                           << "20";
    QTest::newRow("inside") << 5 << 20 << "7"
                            << "7";
    QTest::newRow("beyond int") << 5 << 20 << "99999999999"
                                << "20";
    QTest::newRow("beyond int without limit") << lowest << highest << "99999999999"
                                              << "2147483647";
    QTest::newRow("below int") << lowest << highest << "-99999999999"
                               << "-2147483648";
    QTest::newRow("empty counts as 0") << 5 << 20 << ""
                                       << "5";
    QTest::newRow("empty with 0 inside") << -5 << 20 << ""
                                         << "";
    QTest::newRow("five digits above") << 5 << 2000 << "20000"
                                       << "2000";
}

void tst_zelQtValidators::intFixupClamps()
{
    QFETCH(int, bottom);
    QFETCH(int, top);
    QFETCH(QString, input);
    QFETCH(QString, text);
    for (const QLocale &locale : {QLocale::c(), QLocale(QLocale::German)}) {
        QLocale::setDefault(locale);
        ZelQtIntValidator validator;
        validator.setRange(bottom, top);
        QString fixed = input;
        validator.fixup(fixed);
        QCOMPARE(fixed, text);
    }
}

void tst_zelQtValidators::intValidatorTakesDigitsOnlyInEveryLanguage_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QValidator::State>("state");
    QTest::newRow("number") << "1000" << QValidator::Acceptable;
    QTest::newRow("negative number") << "-3" << QValidator::Acceptable;
    QTest::newRow("point") << "1.000" << QValidator::Invalid;
    QTest::newRow("comma") << "1,000" << QValidator::Invalid;
    QTest::newRow("empty") << "" << QValidator::Intermediate;
}

void tst_zelQtValidators::intValidatorTakesDigitsOnlyInEveryLanguage()
{
    QFETCH(QString, input);
    QFETCH(QValidator::State, state);
    for (const QLocale &locale :
         {QLocale::c(), QLocale(QLocale::German), QLocale(QLocale::English)}) {
        QLocale::setDefault(locale);
        const ZelQtIntValidator validator;
        int position = 0;
        QCOMPARE(validator.validate(input, position), state);
    }
}

void tst_zelQtValidators::pastedTextIsCorrectedToo()
{
    QLineEdit edit;
    edit.setValidator(new ZelQtDoubleValidator(&edit));
    edit.insert(QStringLiteral("1,5"));
    QCOMPARE(edit.text(), QStringLiteral("1.5"));
    edit.insert(QStringLiteral(",5"));
    QCOMPARE(edit.text(), QStringLiteral("1.55"));
}

QTEST_MAIN(tst_zelQtValidators)
#include "tst_zelQtValidators.moc"
