#include "documentPage.h"
#include "leverWindow.h"
#include "loadForm.h"
#include "modal.h"
#include "recorder.h"
#include "settings.h"
#include "trialDialog.h"
#include "window.h"
#include "zelQtDialogButtonBox.h"
#include "zelQtFormeleingabe.h"
#include "zelQtSingleCalcVarInput.h"
#include "zelQtUnitLabel.h"
#include "zelQtValueEdit.h"

#include <QContextMenuEvent>
#include <QDir>
#include <QGroupBox>
#include <QMessageBox>
#include <QTemporaryDir>

/// docs/application-developer.md shows the code of docs/examples/application, and that code does
/// what the page says.
class tst_applicationDeveloperPage : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void pageShowsTheCode_data();
    void pageShowsTheCode();
    void everyBlockOfThePageIsCode();
    void maskShowsAndCalculates();
    void typedValueCountsWhenF5IsPressed();
    void hostTellsBeforeTheFieldDoes();
    void refusedCalculationIsToldAndColoured();
    void formByHandSharesTheData();
    void dialogAcceptsOnlyCalculatedValues();
    void dialogConvertsUnits();
    void formulaPopupTakesFractions();
    void unitSystemAndLanguageLeaveTheValues();

private:
    QString mDescription;
    QTemporaryDir mFolder;
    QMap<QString, QString> mCode;
};

static QString contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s can't be read", qPrintable(path));
    return QString::fromUtf8(file.readAll());
}

// The pieces between two lines "//! [name]" of all files.
static QMap<QString, QString> codePieces()
{
    const QDir folder(DOCS_DIR "/examples/application");
    const QRegularExpression mark("^\\s*//! \\[(\\w+)\\]$");
    QMap<QString, QString> pieces;
    for (const QString &name : folder.entryList({"*.h", "*.cpp"}, QDir::Files)) {
        QString current;
        for (const QString &line : contentOf(folder.filePath(name)).split('\n')) {
            const QString marked = mark.match(line).captured(1);
            if (!marked.isEmpty())
                current = current == marked ? QString() : marked;
            else if (!current.isEmpty())
                pieces[current] += line + '\n';
        }
    }
    return pieces;
}

// The lever with the form in its mask.
void tst_applicationDeveloperPage::initTestCase()
{
    mCode = codePieces();
    QString description = contentOf(DOCS_DIR "/examples/lever/lever.xml");
    description.replace(" </page>", "  <external class=\"LoadForm\"/>\n </page>");
    mDescription = mFolder.filePath("lever.xml");
    QFile file(mDescription);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(description.toUtf8());
    QVERIFY(QFile::copy(DOCS_DIR "/examples/lever/lever.tsv", mFolder.filePath("lever.tsv")));
}

void tst_applicationDeveloperPage::pageShowsTheCode_data()
{
    QTest::addColumn<QString>("piece");
    for (const QString &piece : mCode.keys())
        QTest::newRow(qPrintable(piece)) << piece;
    QVERIFY(mCode.size() >= 10);
}

void tst_applicationDeveloperPage::pageShowsTheCode()
{
    QFETCH(QString, piece);
    const auto blocks = pageBlocks(DOCS_DIR "/application-developer.md");
    QCOMPARE(pageBlock(blocks, "cpp", piece), mCode.value(piece));
}

void tst_applicationDeveloperPage::everyBlockOfThePageIsCode()
{
    for (const PageBlock &block : pageBlocks(DOCS_DIR "/application-developer.md"))
        QVERIFY2(block.mLanguage == "cmake" || mCode.contains(block.mLabel),
                 qPrintable(QString::number(block.mLine)));
}

static ZelQtValueEdit *field(const QWidget &window, const QString &name)
{
    auto *found = window.findChild<ZelQtValueEdit *>(name);
    if (!found)
        qFatal("no field %s", qPrintable(name));
    return found;
}

static ZelQtValueEdit *fieldOfLine(const QWidget &window, const QString &name)
{
    const auto *line = window.findChild<ZelQtSingleCalcVarInput *>(name);
    if (!line)
        qFatal("no line %s", qPrintable(name));
    return line->findChild<ZelQtValueEdit *>();
}

static bool typeInto(ZelQtValueEdit *edit, const QString &text)
{
    if (!focus(edit))
        return false;
    edit->selectAll();
    QTest::keyClicks(edit, text);
    return true;
}

static bool enter(ZelQtValueEdit *edit, const QString &text)
{
    const bool typed = typeInto(edit, text);
    QTest::keyClick(edit, Qt::Key_Tab);
    return typed;
}

void tst_applicationDeveloperPage::maskShowsAndCalculates()
{
    LeverWindow window(mDescription);
    QCOMPARE(QString::fromStdString(zelFaultReport(window.faults())), QString());
    QVERIFY(showAndActivate(&window));
    QVERIFY(enter(field(window, "l"), "350"));
    window.calculate();
    QCOMPARE(field(window, "M")->text(), QString("35.00"));
}

void tst_applicationDeveloperPage::typedValueCountsWhenF5IsPressed()
{
    LeverWindow window(mDescription);
    QVERIFY(showAndActivate(&window));
    QVERIFY(typeInto(field(window, "l"), "500"));
    QTest::keyClick(field(window, "l"), Qt::Key_F5);
    QCOMPARE(field(window, "M")->text(), QString("50.00"));
}

void tst_applicationDeveloperPage::hostTellsBeforeTheFieldDoes()
{
    LeverWindow window(mDescription);
    QVERIFY(showAndActivate(&window));
    ZelQtValueEdit *force = field(window, "F");
    ZelQtParentWidget *host = nullptr;
    for (QWidget *above = force; above && !host; above = above->parentWidget())
        host = qobject_cast<ZelQtParentWidget *>(above);
    QVERIFY(host);
    EventRecorder recorder;
    recorder.recordProtocol(host, "host");
    recorder.recordProtocol(force, "field");
    QVERIFY(typeInto(force, "7"));
    QTest::keyClick(force, Qt::Key_Return);
    QCOMPARE(recorder.take(),
             (QStringList{"host valueChanged", "field valueChanged", "host valueConfirmed",
                          "field valueConfirmed"}));
}

void tst_applicationDeveloperPage::refusedCalculationIsToldAndColoured()
{
    LeverWindow window(mDescription);
    QVERIFY(showAndActivate(&window));
    const QColor usual = field(window, "l")->palette().color(QPalette::Text);
    QString text;
    const auto box = onModal<QMessageBox>([&text](QMessageBox *shown) { text = shown->text(); });
    window.calculate();
    QVERIFY(box.ran());
    QVERIFY(text.contains("Der Hebelarm muss größer als 0 mm sein."));
    QCOMPARE(field(window, "M")->text(), QString());
    QVERIFY(field(window, "l")->palette().color(QPalette::Text) != usual);
}

void tst_applicationDeveloperPage::formByHandSharesTheData()
{
    LeverWindow window(mDescription);
    QVERIFY(showAndActivate(&window));
    QVERIFY(window.findChild<LoadForm *>());
    QVERIFY(enter(fieldOfLine(window, "mass"), "10"));
    QCOMPARE(field(window, "F")->text(), QString("98.1"));
    QVERIFY(enter(field(window, "F"), "196.1"));
    QCOMPARE(fieldOfLine(window, "mass")->text(), QString("19.997"));
}

void tst_applicationDeveloperPage::dialogAcceptsOnlyCalculatedValues()
{
    TrialDialog dialog;
    QVERIFY(showAndActivate(&dialog));
    const auto *box = dialog.findChild<ZelQtDialogButtonBox *>();
    QVERIFY(!box->acceptButton()->isEnabled());
    QVERIFY(enter(fieldOfLine(dialog, "force"), "40"));
    QVERIFY(enter(fieldOfLine(dialog, "arm"), "250"));
    QTest::keyClick(&dialog, Qt::Key_F5);
    QVERIFY(box->acceptButton()->isEnabled());
    QVERIFY(typeInto(fieldOfLine(dialog, "arm"), "3"));
    QVERIFY(!box->acceptButton()->isEnabled());
    QVERIFY(enter(fieldOfLine(dialog, "arm"), "0"));
    QTest::mouseClick(box->calcButton(), Qt::LeftButton);
    QVERIFY(!box->acceptButton()->isEnabled());
}

void tst_applicationDeveloperPage::dialogConvertsUnits()
{
    TrialDialog dialog;
    QVERIFY(showAndActivate(&dialog));
    dialog.findChild<ZelQtSingleCalcVarInput *>("arm")->setCurrentUnit("cm");
    QVERIFY(enter(fieldOfLine(dialog, "force"), "40"));
    QVERIFY(enter(fieldOfLine(dialog, "arm"), "25"));
    QTest::keyClick(&dialog, Qt::Key_F5);
    QCOMPARE(fieldOfLine(dialog, "moment")->text(), QString("10.00"));
}

void tst_applicationDeveloperPage::formulaPopupTakesFractions()
{
    const Settings settings;
    LeverWindow window(mDescription);
    QVERIFY(showAndActivate(&window));
    ZelQtValueEdit *arm = field(window, "l");
    QVERIFY(focus(arm));
    QStringList open;
    const auto popup = onPopup<ZelQtFormeleingabe>([&open](ZelQtFormeleingabe *shown) {
        auto *formula = shown->findChild<QLineEdit *>();
        formula->setText("3/0");
        QTest::keyClick(formula, Qt::Key_Return);
        open << (shown->isVisible() ? "open" : "closed");
        formula->setText("3/16");
        QTest::keyClick(formula, Qt::Key_Return);
        open << (shown->isVisible() ? "open" : "closed");
    });
    const QPoint place = arm->rect().center();
    QContextMenuEvent click(QContextMenuEvent::Mouse, place, arm->mapToGlobal(place));
    QCoreApplication::sendEvent(arm, &click);
    QVERIFY(popup.ran());
    QCOMPARE(open, (QStringList{"open", "closed"}));
    QCOMPARE(arm->text(), QString("0.19"));
}

void tst_applicationDeveloperPage::unitSystemAndLanguageLeaveTheValues()
{
    Settings settings;
    LeverWindow window(mDescription);
    QVERIFY(showAndActivate(&window));
    QVERIFY(enter(field(window, "l"), "254"));
    settings.setUsCustomary(true, {&window});
    QCOMPARE(field(window, "l")->text(), QString("10.00"));
    QCOMPARE(window.findChild<ZelQtUnitLabel *>("l_unit")->currentUnit(), QString("in"));
    settings.setLanguage(ZelLanguage::English, "en", TRANSLATIONS_DIR);
    QCoreApplication::sendPostedEvents();
    const auto boards = window.findChildren<QGroupBox *>();
    QStringList titles;
    for (const QGroupBox *board : boards)
        titles << board->title();
    QCOMPARE(titles, (QStringList{"Input", "Result"}));
    settings.setLanguage(ZelLanguage::German, "de", TRANSLATIONS_DIR);
    settings.setUsCustomary(false, {&window});
    QCoreApplication::sendPostedEvents();
    QCOMPARE(field(window, "l")->text(), QString("254.00"));
    QCOMPARE(window.meta().real(*window.meta().variable(L"l"), 0), 254.0);
}

QTEST_MAIN(tst_applicationDeveloperPage)
#include "tst_applicationDeveloperPage.moc"
