#include "springModuleSupport.h"
#include "zelUIMultiVar.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using namespace SpringTest;

// The program zelcheck as it is called by a person, on the spring.
class tst_zelcheckSpring : public QObject
{
    Q_OBJECT

private slots:
    void descriptionHasNoFaults();
    void everyTextIsTranslated();
    void printsTheResultsOfTheExamples_data();
    void printsTheResultsOfTheExamples();
    void printsTheMessages();
    void printsInEnglishAndUSCustomaryUnits();
    void refusedSpring();
    void faultyValues();
    void missingFiles_data();
    void missingFiles();
    void badCalls_data();
    void badCalls();
    void linksNoQt();

private:
    struct Run
    {
        int mExitCode = -1;
        QString mOut;
        QString mErr;
    };
    static Run run(const QStringList &arguments);
    QString valuesFile(const QString &example, const QString &more);

    QTemporaryDir mFolder;
};

static const char *description = SPRING_DIR "/spring.xml";

static QString example(const QString &name)
{
    return QStringLiteral(SPRING_DIR "/examples/%1.values").arg(name);
}

tst_zelcheckSpring::Run tst_zelcheckSpring::run(const QStringList &arguments)
{
    QProcess process;
    process.start(ZELCHECK, arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        qFatal("zelcheck did not end: %s", qPrintable(process.errorString()));
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

// The inputs of an example with further lines; later ones count.
QString tst_zelcheckSpring::valuesFile(const QString &name, const QString &more)
{
    QFile file(mFolder.filePath("spring.values"));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        qFatal("no temporary file");
    file.write(fileContent(example(name)) + more.toUtf8());
    return file.fileName();
}

/// "Drahtdurchmesser, d": how a line of the output begins.
static QString label(const ZelUIVar &variable)
{
    QString symbol = toText(variable.mFormula);
    symbol.replace("<sub>", "_").remove("</sub>");
    return toText(variable.mText.getText()) + ", " + symbol;
}

/// The number behind a label in the variable's default unit, "-" for none.
static QString printed(const QString &out, const ZelUIVar &variable)
{
    for (const QString &line : out.split('\n')) {
        if (!line.startsWith("  " + label(variable) + " = "))
            continue;
        const QString text = line.section(" = ", 1);
        if (text == "-")
            return text;
        const auto &number = dynamic_cast<const ZelUIMultiVar &>(variable);
        const auto unit = ZelDimensions::getUnit(text.section(' ', 1).toStdWString());
        if (ZelDimensions::getType(unit) != ZelDimensions::getType(number.mDefaultUnit))
            return "wrong unit in " + line;
        return QString::number(ZelDimensions::changeUnit(text.section(' ', 0, 0).toDouble(), unit,
                                                         number.mDefaultUnit),
                               'g', 17);
    }
    return {};
}

static void compareResults(const QString &out, const QString &expected, const QStringList &hidden)
{
    const auto spring = load();
    for (const Expected &row : expectedResults(expected)) {
        const QString text = printed(out, variable(spring->meta(), row.mName));
        if (hidden.contains(row.mName))
            QVERIFY2(text.isEmpty(), qPrintable(row.mName));
        else if (row.mValue)
            QVERIFY2(close(text.toDouble(), *row.mValue), qPrintable(row.mName + ' ' + text));
        else
            QCOMPARE(text, QStringLiteral("-"));
    }
}

void tst_zelcheckSpring::descriptionHasNoFaults()
{
    const Run checked = run({description});
    QCOMPARE(checked.mErr, QString());
    QCOMPARE(checked.mOut, QString());
    QCOMPARE(checked.mExitCode, 0);
}

void tst_zelcheckSpring::everyTextIsTranslated()
{
    const Run checked = run({"--texts", description});
    QCOMPARE(checked.mOut, QString());
    QCOMPARE(checked.mExitCode, 0);
    // In the other languages there is nothing yet.
    QVERIFY(run({"--texts", "--language", "fr", description}).mOut.contains("Drahtdurchmesser"));
}

void tst_zelcheckSpring::printsTheResultsOfTheExamples_data()
{
    QTest::addColumn<QString>("example");
    QTest::addColumn<QString>("more");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QStringList>("hidden");
    // The corrected stresses don't show for static load.
    const QStringList corrected{"tau_k1", "tau_k2", "tau_kh"};
    QTest::newRow("S1") << "S1" << QString() << "S1" << corrected;
    QTest::newRow("S2") << "S2" << QString() << "S2" << QStringList();
    QTest::newRow("S1 Wahl") << "S1"
                             << "correction = wahl\nload = dynamic\n"
                             << "S1.wahl" << QStringList();
    QTest::newRow("S2 Wahl") << "S2"
                             << "correction = wahl\n"
                             << "S2.wahl" << QStringList();
}

void tst_zelcheckSpring::printsTheResultsOfTheExamples()
{
    QFETCH(QString, example);
    QFETCH(QString, more);
    QFETCH(QString, expected);
    QFETCH(QStringList, hidden);
    const QString file = more.isEmpty() ? ::example(example) : valuesFile(example, more);
    const Run calculated = run({"--calculate", file, description});
    QCOMPARE(calculated.mErr, QString());
    QCOMPARE(calculated.mExitCode, 0);
    compareResults(calculated.mOut, expected, hidden);
}

void tst_zelcheckSpring::printsTheMessages()
{
    const QString first = run({"--calculate", example("S1"), description}).mOut;
    QVERIFY(first.endsWith("Messages\n"));
    const QString second = run({"--calculate", example("S2"), description}).mOut;
    QVERIFY(second.endsWith("Messages\n"
                            "  warning: Die Feder kann ausknicken (s_K/s_2 = 0,783) und ist durch "
                            "einen Dorn oder eine Hülse zu führen.\n"));
}

void tst_zelcheckSpring::printsInEnglishAndUSCustomaryUnits()
{
    const Run calculated =
        run({"--us", "--language", "en", "--calculate", example("S2"), description});
    QCOMPARE(calculated.mExitCode, 0);
    QVERIFY(calculated.mOut.contains("\n  Smallest usable length, L_n = 1.15207 in\n"));
    QVERIFY(calculated.mOut.contains("\n  warning: The spring may buckle (s_K/s_2 = 0.783)"));
}

void tst_zelcheckSpring::refusedSpring()
{
    const Run refused = run({"--calculate", valuesFile("S1", "L0 = 65 mm\n"), description});
    QCOMPARE(refused.mExitCode, 1);
    QCOMPARE(refused.mErr, QString());
    QVERIFY(refused.mOut.contains("\n  error: Die Länge der unbelasteten Feder L_0 = 65 mm muss "
                                  "größer sein als die Blocklänge L_c = 70 mm.\n"));
    QVERIFY(refused.mOut.contains("\n  Federrate, R = -\n"));
    QVERIFY(refused.mOut.endsWith("The calculation was refused.\n"));
}

// The faulty lines are told with their place, the others count.
void tst_zelcheckSpring::faultyValues()
{
    const int lines = fileContent(example("S1")).count('\n');
    const QString file =
        valuesFile("S1", "d = 8 parsec\nR = 5 N/mm\nwidth = 3 mm\ngrade = XX\nL0 = long\n");
    const Run faulty = run({"--calculate", file, description});
    QCOMPARE(faulty.mExitCode, 1);
    const QStringList columns{"7", "1", "1", "9", "6"};
    for (int i = 0; i < columns.size(); ++i) {
        const int line = lines + 1 + i;
        const QString place =
            QStringLiteral("%1:%2:%3: error:").arg(file).arg(line).arg(columns[i]);
        QVERIFY2(faulty.mErr.contains(place), qPrintable(place + '\n' + faulty.mErr));
    }
    compareResults(faulty.mOut, "S1", {"tau_k1", "tau_k2", "tau_kh"});
}

void tst_zelcheckSpring::missingFiles_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("file");
    QTest::newRow("description") << QStringList{"none.xml"} << "none.xml";
    QTest::newRow("values") << QStringList{"--calculate", "none.values", description}
                            << "none.values";
    QTest::newRow("folder for values")
        << QStringList{"--calculate", SPRING_DIR, description} << SPRING_DIR;
}

void tst_zelcheckSpring::missingFiles()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, file);
    const Run missing = run(arguments);
    QCOMPARE(missing.mExitCode, 2);
    QVERIFY2(missing.mErr.startsWith(file), qPrintable(missing.mErr));
    QCOMPARE(missing.mOut, QString());
}

void tst_zelcheckSpring::badCalls_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("nothing") << QStringList();
    QTest::newRow("no values") << QStringList{description, "--calculate"};
    QTest::newRow("unknown option") << QStringList{"--what", description};
}

void tst_zelcheckSpring::badCalls()
{
    QFETCH(QStringList, arguments);
    const Run bad = run(arguments);
    QCOMPARE(bad.mExitCode, 2);
    QVERIFY(bad.mErr.contains("usage: zelcheck"));
}

void tst_zelcheckSpring::linksNoQt()
{
    QProcess ldd;
    ldd.start("ldd", {ZELCHECK});
    QVERIFY(ldd.waitForFinished());
    const QString libraries = ldd.readAllStandardOutput();
    QVERIFY2(libraries.contains("libzelcore"), qPrintable(libraries));
    QVERIFY2(!libraries.contains("libQt"), qPrintable(libraries));
}

QTEST_GUILESS_MAIN(tst_zelcheckSpring)
#include "tst_zelcheckSpring.moc"
