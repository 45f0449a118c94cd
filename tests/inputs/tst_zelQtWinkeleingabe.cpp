#include "zelQtWinkeleingabe.h"

#include "fieldOnPage.h"
#include "modal.h"
#include "zelQtDoubleCalcVarInput.h"
#include "zelQtValueEdit.h"

#include <QGridLayout>
#include <QIntValidator>
#include <QLabel>
#include <QtTest>

class tst_zelQtWinkeleingabe : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void form();
    void startValues_data();
    void startValues();
    void acceptedAngle_data();
    void acceptedAngle();
    void returnInAnyFieldAccepts_data();
    void returnInAnyFieldAccepts();
    void angleIsStoredInTheDefaultUnitOfTheField();
    void angleIsAnEditThatIsConfirmedLater();
    void angleIsClampedToTheLimits();
    void emptiedFieldDoesNotAccept();
    void fieldsRefuseLargerNumbers_data();
    void fieldsRefuseLargerNumbers();
    void fieldsTakeDigitsOnlyInEveryLanguage_data();
    void fieldsTakeDigitsOnlyInEveryLanguage();
    void tabGoesRound();
    void tabCountsOnWhateverHasTheFocus();
    void escapeChangesNothing();
    void fieldOfADoubleLineTakesHighPriority();
};

using Fixture = FieldOnPage<ZelQtValueEdit>;

namespace {

QLineEdit *fieldOf(const QWidget *popup, const char *name)
{
    return popup->findChild<QLineEdit *>(QString::fromLatin1(name));
}

QStringList textsOf(const QWidget *popup)
{
    return {fieldOf(popup, "mGrad")->text(), fieldOf(popup, "mMinuten")->text(),
            fieldOf(popup, "mSekunden")->text()};
}

QString focusOf(const QWidget *popup)
{
    return popup->focusWidget() ? popup->focusWidget()->objectName() : QString();
}

void enterAngle(QWidget *popup, const QStringList &texts, const char *returnIn = "mGrad")
{
    const char *names[] = {"mGrad", "mMinuten", "mSekunden"};
    for (int i = 0; i < 3; ++i) {
        fieldOf(popup, names[i])->selectAll();
        QTest::keyClicks(fieldOf(popup, names[i]), texts.at(i));
    }
    QTest::keyClick(fieldOf(popup, returnIn), Qt::Key_Return);
}

/// Runs the popup of a field, acts on it, and tells whether it came up.
template <class Act> bool run(ZelQtValueEdit *field, Act act)
{
    const auto action = onPopup<ZelQtWinkeleingabe>(act);
    ZelQtWinkeleingabe popup(field, field->mValue);
    popup.exec(QPoint(0, 0));
    return action.ran();
}

const QString degree = QStringLiteral("°");

} // namespace

void tst_zelQtWinkeleingabe::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_zelQtWinkeleingabe::form()
{
    ZelQtValueEdit field;
    const ZelQtWinkeleingabe popup(&field, 0);
    QCOMPARE(popup.parent(), &field);
    QCOMPARE(popup.objectName(), QStringLiteral("ZelQtWinkeleingabe"));
    QCOMPARE(popup.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(popup.size(), QSize(167, 104));
    auto *layout = qobject_cast<QGridLayout *>(popup.layout());
    QVERIFY(layout);
    QCOMPARE(layout->objectName(), QStringLiteral("mLayout"));
    QCOMPARE(layout->horizontalSpacing(), 6);
    QCOMPARE(layout->verticalSpacing(), 6);
    QCOMPARE(layout->contentsMargins(), QMargins(9, 9, 9, 9));
    QCOMPARE(popup.sizeHint(), layout->sizeHint());

    const char *names[] = {"mGrad", "mMinuten", "mSekunden"};
    const QString labels[] = {QStringLiteral("Grad"), QStringLiteral("Minuten"),
                              QStringLiteral("Sekunden")};
    const QString signs[] = {degree, QStringLiteral("'"), QStringLiteral("''")};
    const int tops[] = {359, 59, 3599};
    for (int row = 0; row < 3; ++row) {
        const auto labelAt = [&](int column) {
            auto *label = qobject_cast<QLabel *>(layout->itemAtPosition(row, column)->widget());
            return label ? label->text() : QString();
        };
        QCOMPARE(labelAt(0), labels[row]);
        QCOMPARE(labelAt(2), signs[row]);
        const QLineEdit *edit = fieldOf(&popup, names[row]);
        QCOMPARE(layout->itemAtPosition(row, 1)->widget(), edit);
        QCOMPARE(edit->minimumSize(), QSize(75, 24));
        QCOMPARE(edit->maximumSize(), QSize(75, 24));
        QCOMPARE(edit->alignment(), Qt::Alignment(Qt::AlignRight));
        const auto *validator = qobject_cast<const QIntValidator *>(edit->validator());
        QVERIFY(validator);
        QCOMPARE(validator->bottom(), 0);
        QCOMPARE(validator->top(), tops[row]);
    }
}

void tst_zelQtWinkeleingabe::startValues_data()
{
    QTest::addColumn<double>("degrees");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("zero") << 0.0 << QStringList{"0", "0", "0"};
    QTest::newRow("half a degree") << 30.5 << QStringList{"30", "30", "0"};
    QTest::newRow("seconds") << 1 + 2 / 60.0 + 3.5 / 3600 << QStringList{"1", "2", "3"};
    QTest::newRow("beyond the range of the field") << 400.25 << QStringList{"400", "15", "0"};
    QTest::newRow("negative") << -30.5 << QStringList{"-30", "-30", "0"};
    QTest::newRow("beyond 16 bits") << 1e9 << QStringList{"32767", "32767", "32767"};
}

void tst_zelQtWinkeleingabe::startValues()
{
    QFETCH(double, degrees);
    ZelQtValueEdit field;
    const ZelQtWinkeleingabe popup(&field, degrees);
    QTEST(textsOf(&popup), "texts");
}

void tst_zelQtWinkeleingabe::acceptedAngle_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<double>("degrees");
    QTest::newRow("minutes") << QStringList{"90", "30", "0"} << 90.5;
    QTest::newRow("seconds") << QStringList{"0", "0", "36"} << 0.01;
    QTest::newRow("all seconds of a degree but one")
        << QStringList{"1", "0", "3599"} << 1 + 3599 / 3600.0;
    QTest::newRow("largest") << QStringList{"359", "59", "59"} << 359 + 3599 / 3600.0;
}

void tst_zelQtWinkeleingabe::acceptedAngle()
{
    QFETCH(QStringList, texts);
    QFETCH(double, degrees);
    Fixture fixture;
    fixture.mField.setDefaultUnit(degree);
    QVERIFY(fixture.enter());
    bool closed = false;
    QVERIFY(run(&fixture.mField, [&](ZelQtWinkeleingabe *popup) {
        enterAngle(popup, texts);
        closed = !popup->isVisible();
    }));
    QVERIFY(closed);
    QCOMPARE(fixture.mField.mValue, degrees);
}

void tst_zelQtWinkeleingabe::returnInAnyFieldAccepts_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("degrees") << QByteArray("mGrad");
    QTest::newRow("minutes") << QByteArray("mMinuten");
    QTest::newRow("seconds") << QByteArray("mSekunden");
}

void tst_zelQtWinkeleingabe::returnInAnyFieldAccepts()
{
    QFETCH(QByteArray, name);
    Fixture fixture;
    fixture.mField.setDefaultUnit(degree);
    QVERIFY(fixture.enter());
    QVERIFY(run(&fixture.mField, [&name](ZelQtWinkeleingabe *popup) {
        enterAngle(popup, {"90", "30", "0"}, name.constData());
    }));
    QCOMPARE(fixture.mField.mValue, 90.5);
}

void tst_zelQtWinkeleingabe::angleIsStoredInTheDefaultUnitOfTheField()
{
    Fixture fixture;
    fixture.mField.setDefaultUnit(QStringLiteral("rad"));
    fixture.mField.setCurrentUnit(degree);
    QVERIFY(fixture.enter());
    QVERIFY(run(&fixture.mField, [](ZelQtWinkeleingabe *popup) {
        enterAngle(popup, {"180", "0", "0"});
    }));
    QCOMPARE(fixture.mField.mValue, 3.14159265358979323846);
    QCOMPARE(fixture.mField.text(), QStringLiteral("180.0000"));
}

void tst_zelQtWinkeleingabe::angleIsAnEditThatIsConfirmedLater()
{
    Fixture fixture;
    fixture.mField.setDefaultUnit(degree);
    fixture.mField.setWert(30.5, QString());
    double heard = -1;
    connect(&fixture.mField, &ZelQtValueEdit::valueChanged, this,
            [&] { fixture.mField.getWert(heard, QString()); });
    QVERIFY(fixture.enter());
    QVERIFY(run(&fixture.mField, [&fixture](ZelQtWinkeleingabe *popup) {
        fixture.take();
        QTest::keyClick(fieldOf(popup, "mGrad"), Qt::Key_Return);
    }));
    QCOMPARE(heard, 30.5);
    QCOMPARE(fixture.take(), changedEvents);
    QVERIFY(fixture.leave());
    QCOMPARE(fixture.take(), confirmedEvents);
}

void tst_zelQtWinkeleingabe::angleIsClampedToTheLimits()
{
    Fixture fixture;
    fixture.mField.setDefaultUnit(degree);
    fixture.mField.setTop(45);
    QVERIFY(fixture.enter());
    QVERIFY(run(&fixture.mField, [](ZelQtWinkeleingabe *popup) {
        enterAngle(popup, {"90", "0", "0"});
    }));
    QCOMPARE(fixture.mField.mValue, 45.0);
}

void tst_zelQtWinkeleingabe::emptiedFieldDoesNotAccept()
{
    Fixture fixture;
    fixture.mField.setDefaultUnit(degree);
    fixture.mField.setWert(30.5, QString());
    QVERIFY(fixture.enter());
    bool stayedOpen = false;
    QVERIFY(run(&fixture.mField, [&stayedOpen](ZelQtWinkeleingabe *popup) {
        fieldOf(popup, "mGrad")->selectAll();
        QTest::keyClick(fieldOf(popup, "mGrad"), Qt::Key_Delete);
        QTest::keyClick(fieldOf(popup, "mGrad"), Qt::Key_Return);
        stayedOpen = popup->isVisible();
    }));
    QVERIFY(stayedOpen);
    QCOMPARE(fixture.mField.mValue, 30.5);
}

void tst_zelQtWinkeleingabe::fieldsRefuseLargerNumbers_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");
    QTest::newRow("four digits of degrees") << QByteArray("mGrad") << "3591"
                                            << "359";
    QTest::newRow("three digits of minutes") << QByteArray("mMinuten") << "591"
                                             << "59";
    QTest::newRow("seconds of an hour") << QByteArray("mSekunden") << "35991"
                                        << "3599";
    QTest::newRow("sign") << QByteArray("mGrad") << "-5"
                          << "5";
    QTest::newRow("letter") << QByteArray("mMinuten") << "a5"
                            << "5";
}

void tst_zelQtWinkeleingabe::fieldsRefuseLargerNumbers()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, typed);
    ZelQtValueEdit field;
    const ZelQtWinkeleingabe popup(&field, 0);
    QLineEdit *edit = fieldOf(&popup, name.constData());
    edit->clear();
    QTest::keyClicks(edit, typed);
    QTEST(edit->text(), "text");
}

void tst_zelQtWinkeleingabe::fieldsTakeDigitsOnlyInEveryLanguage_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::newRow("C") << QLocale::c();
    QTest::newRow("German") << QLocale(QLocale::German, QLocale::Germany);
    QTest::newRow("English") << QLocale(QLocale::English, QLocale::UnitedStates);
    QTest::newRow("French") << QLocale(QLocale::French, QLocale::France);
}

void tst_zelQtWinkeleingabe::fieldsTakeDigitsOnlyInEveryLanguage()
{
    // "1.000" would be read as nothing.
    QFETCH(QLocale, locale);
    QLocale::setDefault(locale);
    ZelQtValueEdit field;
    ZelQtWinkeleingabe popup(&field, 0);
    QLineEdit *seconds = fieldOf(&popup, "mSekunden");
    seconds->clear();
    QTest::keyClicks(seconds, QStringLiteral("1.0,0 0"));
    QLocale::setDefault(QLocale::c());
    QCOMPARE(seconds->text(), QStringLiteral("1000"));
}

void tst_zelQtWinkeleingabe::tabGoesRound()
{
    Fixture fixture;
    QVERIFY(fixture.enter());
    QStringList places;
    QVERIFY(run(&fixture.mField, [&places](ZelQtWinkeleingabe *popup) {
        places.append(focusOf(popup));
        for (int i = 0; i < 4; ++i) {
            QTest::keyClick(popup->focusWidget(), Qt::Key_Tab);
            places.append(focusOf(popup));
        }
        QVERIFY(popup->isVisible());
    }));
    QCOMPARE(places,
             QStringList({QStringLiteral("mGrad"), QStringLiteral("mMinuten"),
                          QStringLiteral("mSekunden"), QStringLiteral("mGrad"),
                          QStringLiteral("mMinuten")}));
}

void tst_zelQtWinkeleingabe::tabCountsOnWhateverHasTheFocus()
{
    Fixture fixture;
    QVERIFY(fixture.enter());
    QString place;
    QVERIFY(run(&fixture.mField, [&place](ZelQtWinkeleingabe *popup) {
        fieldOf(popup, "mSekunden")->setFocus();
        QTest::keyClick(popup->focusWidget(), Qt::Key_Tab);
        place = focusOf(popup);
    }));
    QCOMPARE(place, QStringLiteral("mMinuten"));
}

void tst_zelQtWinkeleingabe::escapeChangesNothing()
{
    Fixture fixture;
    fixture.mField.setDefaultUnit(degree);
    fixture.mField.setWert(30.5, QString());
    QVERIFY(fixture.enter());
    QVERIFY(run(&fixture.mField, [](ZelQtWinkeleingabe *popup) {
        QTest::keyClick(fieldOf(popup, "mGrad"), Qt::Key_Escape);
        QVERIFY(!popup->isVisible());
    }));
    QCOMPARE(fixture.mField.mValue, 30.5);
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtWinkeleingabe::fieldOfADoubleLineTakesHighPriority()
{
    ZelQtDoubleCalcVarInput line;
    const auto fields = line.findChildren<ZelQtValueEdit *>();
    QCOMPARE(fields.size(), 2);
    line.setHighPriorityWidget(fields[0]);
    QVERIFY(fields[1]->hasLowPriority());
    QVERIFY(showAndActivate(&line));
    QVERIFY(run(fields[1], [](ZelQtWinkeleingabe *popup) {
        enterAngle(popup, {"90", "30", "0"});
    }));
    QVERIFY(!fields[1]->hasLowPriority());
    QVERIFY(fields[0]->hasLowPriority());
}

QTEST_MAIN(tst_zelQtWinkeleingabe)
#include "tst_zelQtWinkeleingabe.moc"
