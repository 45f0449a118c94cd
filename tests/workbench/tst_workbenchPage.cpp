#include "formulaEvaluator.h"
#include "workbenchFixture.h"

#include <QAction>
#include <QDirIterator>
#include <QRegularExpression>

/// What docs/workbench.md quotes and promises.
class tst_workbenchPage : public QObject
{
    Q_OBJECT
private slots:
    void quotedTextsAreThoseOfTheProgram_data();
    void quotedTextsAreThoseOfTheProgram();
    void keysAreThoseOfTheMenus_data();
    void keysAreThoseOfTheMenus();
    void formulasGiveTheirResults_data();
    void formulasGiveTheirResults();
    void namedFunctionsAreKnown_data();
    void namedFunctionsAreKnown();
    void controlTabGoesThroughThePages();
    void returnConfirmsAndStays();
    void numberBeyondTheLimitBecomesTheLimit();
    void aSecondTabHasValuesOfItsOwn();
};

static QString contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s can't be read", qPrintable(path));
    return QString::fromUtf8(file.readAll());
}

static QString page()
{
    return contentOf(DOCS_DIR "/workbench.md");
}

// Every match of the first group in a text.
static QStringList matches(const QString &pattern, const QString &text)
{
    QStringList found;
    const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
    for (auto match = expression.globalMatch(text); match.hasNext();)
        found.append(match.next().captured(1));
    return found;
}

static QString sources()
{
    QString all;
    for (const char *folder : {SOURCE_DIR "/workbench/app", SOURCE_DIR "/customwidgets"}) {
        QDirIterator files(folder, {"*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            all += contentOf(files.next());
    }
    return all.remove('&');
}

void tst_workbenchPage::quotedTextsAreThoseOfTheProgram_data()
{
    QTest::addColumn<QString>("text");
    QStringList texts = matches("\"([^\"\\n]{2,})\"", page());
    texts.removeDuplicates();
    QVERIFY(texts.size() > 20);
    for (const QString &text : qAsConst(texts))
        QTest::newRow(qPrintable(text)) << text;
}

// The whole text, or the text with an argument at its end.
void tst_workbenchPage::quotedTextsAreThoseOfTheProgram()
{
    QFETCH(QString, text);
    static const QString all = sources();
    QVERIFY(all.contains("(\"" + text + "\")") || all.contains("(\"" + text + "\"),")
            || all.contains("(\"" + text + " %1\")"));
}

void tst_workbenchPage::keysAreThoseOfTheMenus_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("text");
    const QRegularExpression row("^\\| `([^`]+)` \\| \"([^\"]+)\" \\|$",
                                 QRegularExpression::MultilineOption);
    int rows = 0;
    const QString text = page();
    for (auto match = row.globalMatch(text); match.hasNext(); ++rows) {
        const auto found = match.next();
        QTest::newRow(qPrintable(found.captured(1))) << found.captured(1) << found.captured(2);
    }
    QCOMPARE(rows, 4);
}

void tst_workbenchPage::keysAreThoseOfTheMenus()
{
    QFETCH(QString, key);
    QFETCH(QString, text);
    const WorkbenchFixture fixture;
    for (const QAction *action : fixture.mWindow.findChildren<QAction *>()) {
        if (QString(action->text()).remove('&') != text)
            continue;
        QCOMPARE(action->shortcut(), QKeySequence(key));
        return;
    }
    QFAIL("no menu has that text");
}

void tst_workbenchPage::formulasGiveTheirResults_data()
{
    QTest::addColumn<QString>("formula");
    QTest::addColumn<double>("expected");
    const QRegularExpression row("^\\| `([^`]+)` \\| ([0-9.]+) \\|$",
                                 QRegularExpression::MultilineOption);
    int rows = 0;
    const QString text = page();
    for (auto match = row.globalMatch(text); match.hasNext(); ++rows) {
        const auto found = match.next();
        QTest::newRow(qPrintable(found.captured(1)))
            << found.captured(1) << found.captured(2).toDouble();
    }
    QCOMPARE(rows, 10);
}

void tst_workbenchPage::formulasGiveTheirResults()
{
    QFETCH(QString, formula);
    QFETCH(double, expected);
    const FormulaResult result = evaluateFormula(formula);
    QVERIFY2(result.mValid, qPrintable(result.mRefusal));
    QCOMPARE(result.mValue, expected);
}

void tst_workbenchPage::namedFunctionsAreKnown_data()
{
    QTest::addColumn<QString>("name");
    const QString text = page();
    QStringList names;
    for (const QString &list : matches("^- `((?:sqrt|sin) [^`]*)`", text))
        names += list.split(' ');
    QCOMPARE(names.size(), 24);
    for (const QString &name : qAsConst(names))
        QTest::newRow(qPrintable(name)) << name;
}

void tst_workbenchPage::namedFunctionsAreKnown()
{
    QFETCH(QString, name);
    const QString arguments = name == "atan2" ? "(0.5; 2)" : "(0.5)";
    const FormulaResult result = evaluateFormula(name + arguments);
    QVERIFY2(result.mValid, qPrintable(result.mRefusal));
    QVERIFY(!evaluateFormula("log(2)").mValid);
}

void tst_workbenchPage::controlTabGoesThroughThePages()
{
    WorkbenchFixture fixture;
    QVERIFY(fixture.open());
    const auto *pages = fixture.mPage->findChild<QTabWidget *>();
    auto *field = fixture.find<ZelQtValueEdit>("d");
    QVERIFY(pages && focus(field));
    QTest::keyClick(field, Qt::Key_Tab, Qt::ControlModifier);
    QCOMPARE(pages->currentIndex(), 1);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab,
                    Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(pages->currentIndex(), 0);
}

void tst_workbenchPage::returnConfirmsAndStays()
{
    WorkbenchFixture fixture;
    QVERIFY(fixture.open());
    auto *field = fixture.find<ZelQtValueEdit>("d");
    QVERIFY(focus(field));
    field->selectAll();
    QTest::keyClicks(field, "2,25");
    QCOMPARE(field->text(), QString("2.25"));
    QTest::keyClick(field, Qt::Key_Return);
    QVERIFY(field->hasFocus());
    const Meta &meta = fixture.mPage->mask()->meta();
    QCOMPARE(meta.real(*meta.variable(L"d"), 0), 2.25);
}

void tst_workbenchPage::numberBeyondTheLimitBecomesTheLimit()
{
    WorkbenchFixture fixture;
    QVERIFY(fixture.open());
    QVERIFY(fixture.type("d", "250"));
    QCOMPARE(fixture.text("d"), QString("100.000"));
    const Meta &meta = fixture.mPage->mask()->meta();
    QCOMPARE(meta.real(*meta.variable(L"d"), 0), 100.0);
}

void tst_workbenchPage::aSecondTabHasValuesOfItsOwn()
{
    WorkbenchFixture fixture;
    QVERIFY(fixture.open());
    QVERIFY(fixture.type("d", "3"));
    const ModulePage *second = fixture.mWindow.openModule("spring");
    QVERIFY(second && second != fixture.mPage);
    QCOMPARE(fixture.text("d"), QString("3.000"));
    QCOMPARE(second->findChild<ZelQtValueEdit *>("d")->text(), QString("0.000"));
}

QTEST_MAIN(tst_workbenchPage)
#include "tst_workbenchPage.moc"
