#include "zelQtFormeleingabe.h"

#include "fieldOnPage.h"
#include "modal.h"
#include "zelQtTripleCalcVarInput.h"
#include "zelQtValueEdit.h"

#include <QLabel>
#include <QTranslator>
#include <QVBoxLayout>
#include <QtTest>

class tst_zelQtFormeleingabe : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void form();
    void startsWithTheTextSelectedAndInFocus();
    void resultIsStoredInTheCurrentUnit();
    void resultIsAnEditThatIsConfirmedLater();
    void typingInThePopupIsReportedToTheHostToo();
    void listenerReadsTheResult();
    void resultIsClampedToTheLimits();
    void formulaThatFailsLeavesThePopupOpen();
    void withoutEvaluatorThePopupJustCloses();
    void escapeChangesNothing();
    void fieldOfADoubleLineTakesHighPriority();
    void thirdFieldOfATripleLineTakesHighPriority();
    void lineWithoutPriorityStaysWithout();
    void labelFollowsTheLanguage();
};

using Fixture = FieldOnPage<ZelQtValueEdit>;

namespace {

/// A plain sum, so that formula and number differ.
bool sum(const QString &formula, double &result)
{
    result = 0;
    for (const QString &part : formula.split(QLatin1Char('+'))) {
        bool ok = false;
        result += part.toDouble(&ok);
        if (!ok)
            return false;
    }
    return true;
}

QLineEdit *formulaOf(ZelQtFormeleingabe *popup)
{
    return popup->findChild<QLineEdit *>(QStringLiteral("mFormel"));
}

void enterFormula(ZelQtFormeleingabe *popup, const QString &formula)
{
    QLineEdit *edit = formulaOf(popup);
    edit->selectAll();
    QTest::keyClicks(edit, formula);
    QTest::keyClick(edit, Qt::Key_Return);
}

/// Opens the popup of a field, enters a formula and tells whether the popup came.
bool calculate(ZelQtValueEdit *field, const QString &formula)
{
    const auto action = onPopup<ZelQtFormeleingabe>(
        [&formula](ZelQtFormeleingabe *popup) { enterFormula(popup, formula); });
    ZelQtFormeleingabe popup(field, field->text());
    popup.exec(QPoint(0, 0));
    return action.ran();
}

} // namespace

void tst_zelQtFormeleingabe::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_zelQtFormeleingabe::init()
{
    ZelQtFormeleingabe::setEvalFuncPnt(sum);
}

void tst_zelQtFormeleingabe::cleanup()
{
    ZelQtFormeleingabe::setEvalFuncPnt(nullptr);
}

void tst_zelQtFormeleingabe::form()
{
    ZelQtValueEdit field;
    ZelQtFormeleingabe popup(&field, QStringLiteral("1+2"));
    QCOMPARE(popup.parent(), &field);
    QCOMPARE(popup.objectName(), QStringLiteral("ZelQtFormeleingabe"));
    QCOMPARE(popup.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(popup.size(), QSize(368, 64));
    auto *layout = qobject_cast<QVBoxLayout *>(popup.layout());
    QVERIFY(layout);
    QCOMPARE(layout->objectName(), QStringLiteral("mLayout"));
    QCOMPARE(layout->spacing(), 6);
    QCOMPARE(layout->contentsMargins(), QMargins(9, 9, 9, 9));
    QCOMPARE(popup.sizeHint(), layout->sizeHint());
    QCOMPARE(layout->itemAt(0)->widget()->objectName(), QStringLiteral("label"));
    QCOMPARE(popup.findChild<QLabel *>()->text(), QStringLiteral("Formeleingabe:"));
    QCOMPARE(layout->itemAt(1)->widget(), formulaOf(&popup));
    QCOMPARE(formulaOf(&popup)->minimumSize(), QSize(350, 24));
    QCOMPARE(formulaOf(&popup)->maximumSize(), QSize(350, 24));
}

void tst_zelQtFormeleingabe::startsWithTheTextSelectedAndInFocus()
{
    Fixture fixture;
    QVERIFY(fixture.enter());
    QString selected;
    bool hasFocus = false;
    const auto action = onPopup<ZelQtFormeleingabe>([&](ZelQtFormeleingabe *popup) {
        selected = formulaOf(popup)->selectedText();
        hasFocus = formulaOf(popup)->hasFocus();
    });
    ZelQtFormeleingabe popup(&fixture.mField, QStringLiteral("1+2"));
    popup.exec(QPoint(0, 0));
    QVERIFY(action.ran());
    QCOMPARE(selected, QStringLiteral("1+2"));
    QVERIFY(hasFocus);
}

void tst_zelQtFormeleingabe::resultIsStoredInTheCurrentUnit()
{
    Fixture fixture;
    fixture.mField.setDefaultUnit(QStringLiteral("mm"));
    fixture.mField.setCurrentUnit(QStringLiteral("m"));
    QVERIFY(fixture.enter());
    QVERIFY(calculate(&fixture.mField, QStringLiteral("1.5+0.5")));
    QCOMPARE(fixture.mField.mValue, 2000.0);
    QCOMPARE(fixture.mField.text(), QStringLiteral("2.0000"));
}

void tst_zelQtFormeleingabe::resultIsAnEditThatIsConfirmedLater()
{
    Fixture fixture;
    QVERIFY(fixture.enter());
    const auto action = onPopup<ZelQtFormeleingabe>([&fixture](ZelQtFormeleingabe *popup) {
        fixture.take();
        QTest::keyClick(formulaOf(popup), Qt::Key_Return);
        QVERIFY(!popup->isVisible());
    });
    ZelQtFormeleingabe popup(&fixture.mField, QStringLiteral("1+2"));
    popup.exec(QPoint(0, 0));
    QVERIFY(action.ran());
    QCOMPARE(fixture.take(), changedEvents);
    QCOMPARE(fixture.mField.mValue, 3.0);
    QVERIFY(fixture.leave());
    QCOMPARE(fixture.take(), confirmedEvents);
}

void tst_zelQtFormeleingabe::typingInThePopupIsReportedToTheHostToo()
{
    // The field of the popup is an editing widget of the mask like any other.
    Fixture fixture;
    QVERIFY(fixture.enter());
    const auto action = onPopup<ZelQtFormeleingabe>(
        [](ZelQtFormeleingabe *popup) { QTest::keyClick(formulaOf(popup), Qt::Key_1); });
    ZelQtFormeleingabe popup(&fixture.mField, QString());
    popup.exec(QPoint(0, 0));
    QVERIFY(action.ran());
    QVERIFY(fixture.take().contains(QStringLiteral("host valueChanged")));
    QCOMPARE(fixture.mField.mValue, 0.0);
}

void tst_zelQtFormeleingabe::listenerReadsTheResult()
{
    // Unlike a keystroke: the number is stored before the report.
    Fixture fixture;
    double heard = -1;
    connect(&fixture.mField, &ZelQtValueEdit::valueChanged, this,
            [&] { fixture.mField.getWert(heard, QString()); });
    QVERIFY(fixture.enter());
    QVERIFY(calculate(&fixture.mField, QStringLiteral("1+2")));
    QCOMPARE(heard, 3.0);
}

void tst_zelQtFormeleingabe::resultIsClampedToTheLimits()
{
    Fixture fixture;
    fixture.mField.setTop(2);
    QVERIFY(fixture.enter());
    QVERIFY(calculate(&fixture.mField, QStringLiteral("1+2")));
    QCOMPARE(fixture.mField.mValue, 2.0);
    QCOMPARE(fixture.mField.text(), QStringLiteral("2.0000"));
}

void tst_zelQtFormeleingabe::formulaThatFailsLeavesThePopupOpen()
{
    Fixture fixture;
    fixture.mField.setWert(7, QString());
    QVERIFY(fixture.enter());
    bool stayedOpen = false;
    const auto action = onPopup<ZelQtFormeleingabe>([&](ZelQtFormeleingabe *popup) {
        enterFormula(popup, QStringLiteral("1+"));
        stayedOpen = popup->isVisible();
        QVERIFY(!QApplication::activeModalWidget());
        QCOMPARE(fixture.mField.mValue, 7.0);
        enterFormula(popup, QStringLiteral("1+2"));
        QVERIFY(!popup->isVisible());
    });
    ZelQtFormeleingabe popup(&fixture.mField, QString());
    popup.exec(QPoint(0, 0));
    QVERIFY(action.ran());
    QVERIFY(stayedOpen);
    QCOMPARE(fixture.mField.mValue, 3.0);
}

void tst_zelQtFormeleingabe::withoutEvaluatorThePopupJustCloses()
{
    ZelQtFormeleingabe::setEvalFuncPnt(nullptr);
    Fixture fixture;
    fixture.mField.setWert(7, QString());
    QVERIFY(fixture.enter());
    bool closed = false;
    const auto action = onPopup<ZelQtFormeleingabe>([&](ZelQtFormeleingabe *popup) {
        QTest::keyClick(formulaOf(popup), Qt::Key_Return);
        closed = !popup->isVisible();
    });
    ZelQtFormeleingabe popup(&fixture.mField, QStringLiteral("1+2"));
    popup.exec(QPoint(0, 0));
    QVERIFY(action.ran());
    QVERIFY(closed);
    QCOMPARE(fixture.mField.mValue, 7.0);
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtFormeleingabe::escapeChangesNothing()
{
    Fixture fixture;
    fixture.mField.setWert(7, QString());
    QVERIFY(fixture.enter());
    const auto action = onPopup<ZelQtFormeleingabe>([](ZelQtFormeleingabe *popup) {
        QTest::keyClick(formulaOf(popup), Qt::Key_Escape);
        QVERIFY(!popup->isVisible());
    });
    ZelQtFormeleingabe popup(&fixture.mField, QStringLiteral("1+2"));
    popup.exec(QPoint(0, 0));
    QVERIFY(action.ran());
    QCOMPARE(fixture.mField.mValue, 7.0);
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtFormeleingabe::fieldOfADoubleLineTakesHighPriority()
{
    ZelQtDoubleCalcVarInput line;
    const auto fields = line.findChildren<ZelQtValueEdit *>();
    QCOMPARE(fields.size(), 2);
    QVERIFY(showAndActivate(&line));
    for (ZelQtValueEdit *field : fields) {
        line.setHighPriorityWidget(field == fields[0] ? fields[1] : fields[0]);
        QVERIFY(field->hasLowPriority());
        QVERIFY(calculate(field, QStringLiteral("1+2")));
        QVERIFY(!field->hasLowPriority());
    }
}

void tst_zelQtFormeleingabe::thirdFieldOfATripleLineTakesHighPriority()
{
    ZelQtTripleCalcVarInput line;
    line.setHighPriorityIndex(0);
    const auto fields = line.findChildren<ZelQtValueEdit *>();
    QCOMPARE(fields.size(), 3);
    QVERIFY(showAndActivate(&line));
    QVERIFY(line.highPriorityIndex() != -1);
    for (ZelQtValueEdit *field : fields) {
        const int before = line.highPriorityIndex();
        QVERIFY(calculate(field, QStringLiteral("1+2")));
        // The line's own rule of who is high then is tested with the line.
        ZelQtTripleCalcVarInput expected;
        expected.setHighPriorityIndex(before);
        expected.setHighPriorityWidget(
            expected.findChildren<ZelQtValueEdit *>().at(fields.indexOf(field)));
        QCOMPARE(line.highPriorityIndex(), expected.highPriorityIndex());
    }
}

void tst_zelQtFormeleingabe::lineWithoutPriorityStaysWithout()
{
    ZelQtDoubleCalcVarInput line;
    QCOMPARE(line.highPriorityIndex(), -1);
    QVERIFY(showAndActivate(&line));
    QVERIFY(calculate(line.findChild<ZelQtValueEdit *>(), QStringLiteral("1+2")));
    QCOMPARE(line.highPriorityIndex(), -1);
}

void tst_zelQtFormeleingabe::labelFollowsTheLanguage()
{
    class English : public QTranslator
    {
    public:
        bool isEmpty() const override { return false; }
        QString translate(const char *context, const char *text, const char *, int) const override
        {
            return qstrcmp(context, "ZelQtFormeleingabe") == 0
                    && qstrcmp(text, "Formeleingabe:") == 0
                ? QStringLiteral("Formula:")
                : QString();
        }
    };
    ZelQtValueEdit field;
    ZelQtFormeleingabe popup(&field, QString());
    English english;
    QCoreApplication::installTranslator(&english);
    QEvent event(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&popup, &event);
    const QString text = popup.findChild<QLabel *>()->text();
    QCoreApplication::removeTranslator(&english);
    QCOMPARE(text, QStringLiteral("Formula:"));
}

QTEST_MAIN(tst_zelQtFormeleingabe)
#include "tst_zelQtFormeleingabe.moc"
