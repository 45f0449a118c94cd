#include "calculationDialog.h"
#include "formulaEvaluator.h"
#include "messagePanel.h"
#include "modal.h"
#include "workbenchFixture.h"
#include "zelQtConversions.h"
#include "zelQtDialogButtonBox.h"
#include "zelQtFormeleingabe.h"
#include "zelQtMessageBox.h"
#include "zelQtUnitLabel.h"
#include "zelTextForm.h"

#include <QFile>
#include <QMessageBox>
#include <QStatusBar>
#include <QTemporaryDir>

#include <cmath>

namespace {

struct Typed
{
    const char *mName;
    const char *mText;
};

// The worked examples as an engineer types them; forces in S1, lengths in S2.
const std::vector<Typed> typedS1{{"d", "7"},     {"D", "42"},    {"n", "8"},      {"nt", "10"},
                                 {"L0", "110"},  {"G", "81370"}, {"E", "206000"}, {"rho", "7.85"},
                                 {"Rm", "1090"}, {"F1", "400"},  {"F2", "1250"}};
const std::vector<Typed> typedS2{{"d", "2.5"}, {"D", "20"},  {"n", "7,5"}, {"nt", "9.5"},
                                 {"L0", "70"}, {"L1", "62"}, {"L2", "46"}, {"T", "20"}};

constexpr int ownValues = 0; // rows of the lists
constexpr int gradeSH = 3;
constexpr int dynamicLoad = 1;
constexpr int guidedAndTilting = 2;

void typeS1(WorkbenchFixture &fixture)
{
    QVERIFY(fixture.choose("grade", ownValues));
    QVERIFY(fixture.check("nt"));
    for (const Typed &typed : typedS1)
        QVERIFY2(fixture.type(typed.mName, typed.mText), typed.mName);
}

void typeS2(WorkbenchFixture &fixture)
{
    QVERIFY(fixture.choose("grade", gradeSH));
    QVERIFY(fixture.choose("load", dynamicLoad));
    QVERIFY(fixture.choose("nu", guidedAndTilting));
    QVERIFY(fixture.check("nt"));
    for (const Typed &typed : typedS2)
        QVERIFY2(fixture.type(typed.mName, typed.mText), typed.mName);
}

// Every expected value against the text on the screen: it agrees within the last digit that shows.
void compareScreen(const WorkbenchFixture &fixture, const QString &example)
{
    QFile file(dataFolder() + QStringLiteral("/modules/spring/examples/%1.expected").arg(example));
    QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
    int compared = 0;
    while (!file.atEnd()) {
        const QStringList parts = QString::fromUtf8(file.readLine()).trimmed().split('\t');
        if (parts.size() < 3 || parts.front().startsWith('#'))
            continue;
        const auto *field = fixture.find<ZelQtValueEdit>(parts.at(0));
        QVERIFY2(field, qPrintable(parts.at(0)));
        if (parts.at(2) == "none") {
            QVERIFY2(field->text().isEmpty(), qPrintable(parts.at(0) + ' ' + field->text()));
            continue;
        }
        if (!field->isVisibleTo(fixture.mPage) && field->isHidden())
            continue; // a quantity that this example's mask doesn't show
        const double expected = parts.at(2).toDouble();
        const auto inExpectedUnit = [&](double number) {
            return ZelDimensions::changeUnit(number, field->ZelUIValueEdit::currentUnit(),
                                             stringToUnit(parts.at(1)));
        };
        const double shown = inExpectedUnit(field->text().toDouble());
        const double lastDigit = inExpectedUnit(std::pow(10.0, -field->defaultDecimals()));
        QVERIFY2(std::abs(shown - expected) <= 0.51 * lastDigit + 1e-5 * std::abs(expected),
                 qPrintable(parts.at(0) + ": " + field->text() + " instead of " + parts.at(2)));
        ++compared;
    }
    QVERIFY(compared >= 25);
}

std::string storedBits(const WorkbenchFixture &fixture)
{
    return zelWriteValues(fixture.mPage->mask()->meta(), true);
}

} // namespace

class tst_springWindow : public QObject
{
    Q_OBJECT

private slots:
    void exampleS1TypedAndReadFromTheScreen();
    void exampleS2TypedAndReadFromTheScreen();
    void languageAndUnitSystemLeaveEveryStoredBit();
    void typedInUsUnitsTheStoredValueIsMetric();
    void aChangeMakesTheResultsInconsistent();
    void refusedCalculationEmptiesTheResultsAndSaysWhy();
    void messageLeadsToItsField();
    void forcesAreTypedAfterLengthsAndBecomeTheInput();
    void radioButtonPicksTheOtherPair();
    void formulaIsEnteredThroughThePopup();
    void unitMenuChangesTheLineAlone();
    void calculatingDialogAcceptsOnlyCalculatedValues();
    void handBuiltFormSharesTheValuesOfTheMask();
    void statusBarShowsThePrompt();
    void helpKeyTellsTheTopicOfTheField();
    void valuesAreSavedAndLoaded();
    void closingAsksForChanges();
    void brokenDescriptionTellsItsFaultsAndShowsTheRest();
    void missingDescriptionIsToldOnce();
};

void tst_springWindow::exampleS1TypedAndReadFromTheScreen()
{
    WorkbenchFixture fixture;
    QVERIFY(fixture.open());
    typeS1(fixture);
    fixture.calculate();
    QVERIFY(fixture.mPage->isConsistent());
    QCOMPARE(fixture.mPage->lastResult().mMessages.size(), size_t(0));
    compareScreen(fixture, "S1");
}

void tst_springWindow::exampleS2TypedAndReadFromTheScreen()
{
    WorkbenchFixture fixture;
    QVERIFY(fixture.open());
    typeS2(fixture);
    fixture.calculate();
    QVERIFY(fixture.mPage->isConsistent());
    compareScreen(fixture, "S2");
    const auto *panel = fixture.mPage->findChild<MessagePanel *>();
    QVERIFY(panel->isVisible());
    QCOMPARE(panel->count(), 1);
    QVERIFY(panel->item(0)->text().contains("Hülse"));
}

void tst_springWindow::languageAndUnitSystemLeaveEveryStoredBit()
{
    WorkbenchFixture fixture;
    QVERIFY(fixture.open());
    typeS2(fixture);
    fixture.calculate();
    const std::string before = storedBits(fixture);
    const QString metric = fixture.text("F2");
    for (int i = 0; i < 3; ++i) {
        fixture.mUnits.setUsCustomary(true);
        fixture.mLanguage.setLanguage(ZelLanguage::English);
        QCoreApplication::sendPostedEvents();
        QVERIFY(fixture.text("F2") != metric);
        QCOMPARE(fixture.mWindow.windowTitle(), QString("Tarvex Workbench"));
        QCOMPARE(storedBits(fixture), before);
        // Confirming a field without having changed it writes nothing either.
        QVERIFY(focus(fixture.find<ZelQtValueEdit>("L0")));
        QTest::keyClick(fixture.find<ZelQtValueEdit>("L0"), Qt::Key_Return);
        QCOMPARE(storedBits(fixture), before);
        fixture.mUnits.setUsCustomary(false);
        fixture.mLanguage.setLanguage(ZelLanguage::German);
        QCoreApplication::sendPostedEvents();
    }
    QCOMPARE(storedBits(fixture), before);
    QCOMPARE(fixture.text("F2"), metric);
    fixture.calculate();
    QCOMPARE(storedBits(fixture), before);
}

void tst_springWindow::typedInUsUnitsTheStoredValueIsMetric()
{
    WorkbenchFixture fixture;
    QVERIFY(fixture.open());
    fixture.mUnits.setUsCustomary(true);
    QCOMPARE(fixture.find<ZelQtUnitLabel>("L0_unit")->currentUnit(), QString("in"));
    QVERIFY(fixture.type("L0", "2"));
    const Meta &meta = fixture.mPage->mask()->meta();
    QCOMPARE(meta.real(*meta.variable(L"L0"), 0), 50.8);
    fixture.mUnits.setUsCustomary(false);
    QCOMPARE(fixture.text("L0").toDouble(), 50.8);
}

void tst_springWindow::aChangeMakesTheResultsInconsistent()
{
    WorkbenchFixture fixture;
    QVERIFY(fixture.open());
    typeS1(fixture);
    fixture.calculate();
    QVERIFY(fixture.mPage->isConsistent());
    auto *field = fixture.find<ZelQtValueEdit>("d");
    fixture.mPage->mask()->focusVariable("d");
    QVERIFY(focus(field));
    field->selectAll();
    QTest::keyClicks(field, "7.5");
    QVERIFY(!fixture.mPage->isConsistent());
    fixture.calculate();
    QVERIFY(fixture.mPage->isConsistent());
}

void tst_springWindow::refusedCalculationEmptiesTheResultsAndSaysWhy()
{
    WorkbenchFixture fixture;
    QVERIFY(fixture.open());
    typeS1(fixture);
    fixture.calculate();
    QVERIFY(!fixture.text("R").isEmpty());
    QVERIFY(fixture.type("D", "5"));
    fixture.calculate();
    QVERIFY(!fixture.mPage->isConsistent());
    QVERIFY(fixture.text("R").isEmpty());
    QVERIFY(fixture.mPage->findChild<MessagePanel *>()->count() > 0);
    QCOMPARE(fixture.find<ZelQtValueEdit>("D")->palette().color(QPalette::Text), QColor(Qt::red));
}

void tst_springWindow::messageLeadsToItsField()
{
    WorkbenchFixture fixture;
    QVERIFY(fixture.open());
    typeS1(fixture);
    QVERIFY(fixture.type("D", "5"));
    fixture.calculate();
    fixture.find<QTabWidget>("")->setCurrentIndex(1);
    auto *panel = fixture.mPage->findChild<MessagePanel *>();
    panel->setCurrentRow(0);
    QVERIFY(focus(panel));
    QTest::keyClick(panel, Qt::Key_Return);
    QTRY_VERIFY(fixture.find<ZelQtValueEdit>("D")->hasFocus()
                || fixture.find<ZelQtValueEdit>("d")->hasFocus());
}

void tst_springWindow::forcesAreTypedAfterLengthsAndBecomeTheInput()
{
    WorkbenchFixture fixture;
    QVERIFY(fixture.open());
    typeS2(fixture);
    QVERIFY(!fixture.find<ZelQtValueEdit>("L1")->hasLowPriority());
    QVERIFY(fixture.find<ZelQtValueEdit>("F1")->hasLowPriority());
    fixture.calculate();
    QVERIFY(fixture.type("F1", "50"));
    QVERIFY(fixture.find<ZelQtValueEdit>("L1")->hasLowPriority());
    QVERIFY(!fixture.find<ZelQtValueEdit>("F1")->hasLowPriority());
    QVERIFY(!fixture.find<ZelQtValueEdit>("F2")->hasLowPriority());
    fixture.calculate();
    QVERIFY(fixture.mPage->isConsistent());
    QCOMPARE(fixture.text("F1").toDouble(), 50.0);
    // The second working point stays where it was computed.
    QVERIFY(std::abs(fixture.text("F2").toDouble() - 159.18) < 0.01);
    QVERIFY(std::abs(fixture.text("L2").toDouble() - 46) < 0.01);
}

void tst_springWindow::radioButtonPicksTheOtherPair()
{
    WorkbenchFixture fixture;
    QVERIFY(fixture.open());
    typeS2(fixture);
    fixture.calculate();
    auto *button = fixture.find<ZelQtEditButton>("F2_edit");
    QVERIFY(button);
    QVERIFY(!button->isChecked());
    button->radioButtonWidget()->click();
    QVERIFY(button->isChecked());
    QVERIFY(!fixture.find<ZelQtEditButton>("L1_edit")->isChecked());
    QVERIFY(fixture.find<ZelQtValueEdit>("L1")->hasLowPriority());
}

void tst_springWindow::formulaIsEnteredThroughThePopup()
{
    WorkbenchFixture fixture;
    QVERIFY(fixture.open());
    auto *field = fixture.find<ZelQtValueEdit>("L0");
    ZelQtFormeleingabe::setEvalFuncPnt(evaluateFormulaForField);
    const auto popup = onPopup<ZelQtFormeleingabe>([](ZelQtFormeleingabe *menu) {
        auto *line = menu->findChild<QLineEdit *>("mFormel");
        QTest::keyClicks(line, "max(1,5;2,5)*20");
        QTest::keyClick(line, Qt::Key_Return);
    });
    const QPoint center = field->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, center, field->mapToGlobal(center));
    QCoreApplication::sendEvent(field, &event);
    ZelQtFormeleingabe::setEvalFuncPnt(nullptr);
    QVERIFY(popup.ran());
    QCOMPARE(field->text().toDouble(), 50.0);
}

void tst_springWindow::unitMenuChangesTheLineAlone()
{
    WorkbenchFixture fixture;
    QVERIFY(fixture.open());
    typeS2(fixture);
    const std::string before = storedBits(fixture);
    auto *label = fixture.find<ZelQtUnitLabel>("L0_unit");
    const auto popup = onPopup<QMenu>([](QMenu *menu) {
        const auto actions = menu->actions();
        for (QAction *action : actions) {
            if (action->text() == "cm")
                menu->setActiveAction(action);
        }
        QTest::keyClick(menu, Qt::Key_Return);
    });
    const QPoint center = label->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, center, label->mapToGlobal(center));
    QCoreApplication::sendEvent(label, &event);
    QVERIFY(popup.ran());
    QCOMPARE(label->currentUnit(), QString("cm"));
    QCOMPARE(fixture.text("L0").toDouble(), 7.0);
    QCOMPARE(fixture.text("D").toDouble(), 20.0);
    QCOMPARE(storedBits(fixture), before);
}

void tst_springWindow::calculatingDialogAcceptsOnlyCalculatedValues()
{
    WorkbenchFixture fixture;
    QVERIFY(fixture.open());
    typeS1(fixture);
    bool greyAtFirst = false;
    bool openAfterwards = false;
    bool greyAgain = false;
    const auto dialog = onModal<CalculationDialog>([&](CalculationDialog *box) {
        QPushButton *accept = box->buttonBox()->acceptButton();
        greyAtFirst = !accept->isEnabled();
        QTest::keyClick(box, Qt::Key_F5);
        openAfterwards = accept->isEnabled();
        auto *field = box->findChild<ZelQtValueEdit *>("d");
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, "7.5");
        greyAgain = !accept->isEnabled();
        QTest::keyClick(box, Qt::Key_F5);
        accept->click();
    });
    fixture.mPage->calculateInDialog();
    QVERIFY(dialog.ran());
    QVERIFY(greyAtFirst);
    QVERIFY(openAfterwards);
    QVERIFY(greyAgain);
    QCOMPARE(fixture.text("d").toDouble(), 7.5);
    QVERIFY(fixture.mPage->isConsistent());
}

void tst_springWindow::handBuiltFormSharesTheValuesOfTheMask()
{
    WorkbenchFixture fixture;
    QVERIFY(fixture.open());
    typeS2(fixture);
    fixture.mPage->mask()->focusVariable("lengths");
    auto *line = fixture.find<QWidget>("lengths");
    QVERIFY(line && line->isVisible());
    const auto fields = line->findChildren<ZelQtValueEdit *>();
    QCOMPARE(fields.size(), 2);
    QCOMPARE(fields.front()->text().toDouble(), 62.0);
    QVERIFY(focus(fields.front()));
    fields.front()->selectAll();
    QTest::keyClicks(fields.front(), "60");
    QTest::keyClick(fields.front(), Qt::Key_Tab);
    QCOMPARE(fixture.text("L1").toDouble(), 60.0);
    QVERIFY(!fixture.mPage->isConsistent());
}

void tst_springWindow::statusBarShowsThePrompt()
{
    WorkbenchFixture fixture;
    QVERIFY(fixture.open());
    auto *label = fixture.find<QWidget>("d_label");
    QVERIFY(label);
    QStatusTipEvent tip(label->statusTip());
    QCoreApplication::sendEvent(label, &tip);
    QCOMPARE(fixture.mWindow.statusBar()->currentMessage(), QString("Drahtdurchmesser"));
}

void tst_springWindow::helpKeyTellsTheTopicOfTheField()
{
    WorkbenchFixture fixture;
    QVERIFY(fixture.open());
    auto *field = fixture.find<ZelQtValueEdit>("d");
    QVERIFY(focus(field));
    QTest::keyClick(field, Qt::Key_F1);
    QVERIFY(fixture.mWindow.statusBar()->currentMessage().contains("1310.htm"));
}

void tst_springWindow::valuesAreSavedAndLoaded()
{
    QTemporaryDir folder;
    const QString file = folder.filePath("a.values");
    std::string saved;
    {
        WorkbenchFixture fixture;
        QVERIFY(fixture.open());
        typeS1(fixture);
        QVERIFY(fixture.mPage->saveValues(file));
        saved = zelWriteValues(fixture.mPage->mask()->meta(), false);
    }
    WorkbenchFixture fixture;
    QVERIFY(fixture.open());
    QVERIFY(fixture.mPage->loadValues(file));
    QCOMPARE(zelWriteValues(fixture.mPage->mask()->meta(), false), saved);
    QCOMPARE(fixture.text("L0").toDouble(), 110.0);

    const auto box = onModal<QMessageBox>([](QMessageBox *message) { message->accept(); });
    QVERIFY(!fixture.mPage->loadValues(folder.filePath("missing.values")));
    QVERIFY(box.ran());
    const auto failed = onModal<QMessageBox>([](QMessageBox *message) { message->accept(); });
    QVERIFY(!fixture.mPage->saveValues(folder.filePath("no/such/folder.values")));
    QVERIFY(failed.ran());
    QCOMPARE(zelWriteValues(fixture.mPage->mask()->meta(), false), saved);
}

void tst_springWindow::closingAsksForChanges()
{
    WorkbenchFixture fixture;
    QVERIFY(fixture.open());
    QVERIFY(fixture.mPage->mayClose());
    QVERIFY(fixture.type("d", "3"));
    {
        const auto box = onModal<QMessageBox>(
            [](QMessageBox *message) { message->button(QMessageBox::Cancel)->click(); });
        QVERIFY(!fixture.mWindow.close());
        QVERIFY(box.ran());
    }
    const auto box = onModal<QMessageBox>(
        [](QMessageBox *message) { message->button(QMessageBox::No)->click(); });
    QVERIFY(fixture.mWindow.close());
    QVERIFY(box.ran());
}

void tst_springWindow::brokenDescriptionTellsItsFaultsAndShowsTheRest()
{
    QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir("broken"));
    QFile file(folder.filePath("broken/broken.xml"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(
        "<module id=\"broken\">\n"
        " <variables><real name=\"a\" text=\"A\" unit=\"kp\"/><rael name=\"b\"/></variables>\n"
        " <page name=\"p\"><board><column><var name=\"a\"/><var name=\"c\"/></column></board>"
        "</page>\n</module>\n");
    file.close();
    const ZelModuleRegistry registry;
    const ModuleCatalogue catalogue(folder.path(), registry);
    QCOMPARE(catalogue.entries().size(), size_t(1));
    QString text;
    const auto box = onModal<QMessageBox>([&text](QMessageBox *message) {
        text = message->text();
        message->accept();
    });
    const std::unique_ptr<ModulePage> page = catalogue.open("broken", nullptr);
    QVERIFY(box.ran());
    QVERIFY2(text.contains("broken.xml:2:"), qPrintable(text));
    QVERIFY2(text.contains("kp"), qPrintable(text));
    QVERIFY2(text.contains("rael"), qPrintable(text));
    QVERIFY2(text.contains("broken.xml:3:"), qPrintable(text));
    QVERIFY(page);
    QVERIFY(page->findChild<ZelQtValueEdit *>("a"));
}

void tst_springWindow::missingDescriptionIsToldOnce()
{
    QTemporaryDir folder;
    const ZelModuleRegistry registry;
    const ModuleCatalogue catalogue(folder.path(), registry);
    QVERIFY(catalogue.entries().empty());
    const auto box = onModal<QMessageBox>([](QMessageBox *message) { message->accept(); });
    QVERIFY(!catalogue.open("spring", nullptr));
    QVERIFY(box.ran());
}

QTEST_MAIN(tst_springWindow)
#include "tst_springWindow.moc"
