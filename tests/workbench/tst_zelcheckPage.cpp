#include "documentPage.h"
#include "springModule.h"
#include "zelModuleRegistry.h"
#include "zelcheckConsole.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

/// What docs/zelcheck.md says zelcheck prints and returns.
class tst_zelcheckPage : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void consoleShowsWhatZelcheckPrints_data();
    void consoleShowsWhatZelcheckPrints();
    void exitCodes_data();
    void exitCodes();

private:
    QTemporaryDir mFolder;
    QString mFormerFolder;
    QVector<PageBlock> mBlocks;
    ZelModuleRegistry mRegistry;
};

// The files of values that the page shows, beside the modules of the workbench.
void tst_zelcheckPage::initTestCase()
{
    mBlocks = pageBlocks(DOCS_DIR "/zelcheck.md");
    registerSpringModule(mRegistry);
    mFormerFolder = QDir::currentPath();
    QVERIFY(QDir::setCurrent(mFolder.path()));
    QVERIFY(QFile::link(SOURCE_DIR "/workbench", "workbench"));
    int files = 0;
    for (const PageBlock &block : qAsConst(mBlocks)) {
        if (!block.mLabel.endsWith(".values"))
            continue;
        QFile file(block.mLabel);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(block.mText.toUtf8());
        ++files;
    }
    QCOMPARE(files, 2);
}

void tst_zelcheckPage::cleanupTestCase()
{
    QVERIFY(QDir::setCurrent(mFormerFolder));
}

void tst_zelcheckPage::consoleShowsWhatZelcheckPrints_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("expected");
    int calls = 0;
    for (const PageBlock &block : qAsConst(mBlocks)) {
        if (block.mLanguage != "console")
            continue;
        for (const ZelcheckCall &call : zelcheckCalls(block.mText)) {
            QTest::addRow("line %d", block.mLine) << call.mArguments << call.mExpected;
            ++calls;
        }
    }
    QCOMPARE(calls, 6);
}

void tst_zelcheckPage::consoleShowsWhatZelcheckPrints()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, expected);
    const QString printed = zelcheckPrints(arguments, mRegistry);
    QVERIFY2(printsAsExpected(expected, printed), qPrintable("it prints\n" + printed));
}

void tst_zelcheckPage::exitCodes_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    const QString spring = "workbench/modules/spring/spring.xml";
    const QString example = "workbench/modules/spring/examples/S2.values";
    QTest::newRow("no faults") << QStringList{spring} << 0;
    QTest::newRow("success") << QStringList{"--calculate", example, spring} << 0;
    QTest::newRow("missing texts") << QStringList{"--texts", "--language", "fr", spring} << 0;
    QTest::newRow("refused") << QStringList{"--calculate", "short.values", spring} << 1;
    QTest::newRow("faulty values") << QStringList{"--calculate", "faulty.values", spring} << 1;
    QTest::newRow("bad call") << QStringList{"--unknown"} << 2;
    QTest::newRow("no such file") << QStringList{"none.xml"} << 2;
}

void tst_zelcheckPage::exitCodes()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, code);
    std::vector<std::string> plain;
    for (const QString &argument : arguments)
        plain.push_back(argument.toStdString());
    std::ostringstream out;
    std::ostringstream err;
    QCOMPARE(zelCheckMain(plain, out, err, mRegistry), code);
    // Faults go to standard error, results to standard output.
    if (arguments.contains("faulty.values")) {
        QVERIFY(QString::fromStdString(err.str()).startsWith("faulty.values:1:7: error: "));
        QVERIFY(QString::fromStdString(out.str()).startsWith("Inputs\n"));
    }
}

QTEST_GUILESS_MAIN(tst_zelcheckPage)
#include "tst_zelcheckPage.moc"
