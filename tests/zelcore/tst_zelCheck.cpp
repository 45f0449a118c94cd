#include "sumModule.h"
#include "zelCheck.h"
#include "zelLanguage.h"

#include <QtTest>

#include <sstream>

namespace {

const QString sumFile = TEST_DATA_DIR "/sum.xml";

struct Outcome
{
    int mCode = -1;
    QString mOut;
    QString mErr;
};

Outcome check(const QStringList &arguments)
{
    std::vector<std::string> plain;
    for (const QString &argument : arguments)
        plain.push_back(argument.toStdString());
    std::ostringstream out;
    std::ostringstream err;
    Outcome outcome;
    outcome.mCode = zelCheckMain(plain, out, err, sumRegistry());
    outcome.mOut = QString::fromStdString(out.str());
    outcome.mErr = QString::fromStdString(err.str());
    return outcome;
}

QString executable()
{
    return QCoreApplication::applicationDirPath() + "/zelcheck";
}

} // namespace

class tst_zelCheck : public QObject
{
    Q_OBJECT
private slots:
    void descriptionWithoutFaultGivesNothing();
    void faultsGoToErrWithTheirPlaces();
    void badCallSaysWhyAndHowToCall_data();
    void badCallSaysWhyAndHowToCall();
    void helpIsNoFault();
    void missingFileIsABadCall();
    void missingValuesAreABadCall();
    void calculatesAndPrints();
    void printsInAnotherLanguageAndUnitSystem();
    void enteredAlternativeIsAnInput();
    void optionalValueIsEnteredWhenItsBoxIsChecked();
    void refusedCalculationIsExitOne();
    void exceptionIsAMessage();
    void faultyLineOfValuesIsToldAndTheRestCounts();
    void eachObjectIsCalculated();
    void faultyDescriptionCalculatesWhatIsLeft();
    void missingTextsAreListed();
    void missingTextsWithoutAnyTranslation();
    void surroundingsAreRestored();
    void executableLinksNoQt();
    void executableRunsWithoutADisplay();

private:
    QString write(const QString &name, const QByteArray &bytes);
    QTemporaryDir mFolder;
};

QString tst_zelCheck::write(const QString &name, const QByteArray &bytes)
{
    QFile file(mFolder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("the test can't write");
    return file.fileName();
}

void tst_zelCheck::descriptionWithoutFaultGivesNothing()
{
    const Outcome outcome = check({sumFile});
    QCOMPARE(outcome.mErr, QString());
    QCOMPARE(outcome.mOut, QString());
    QCOMPARE(outcome.mCode, 0);
}

void tst_zelCheck::faultsGoToErrWithTheirPlaces()
{
    const QString file = write("m.xml",
                               "<module id=\"m\">\n<variables>\n<real name=\"d\" "
                               "unit=\"kp\"/>\n</variables><page>\n<board><column>"
                               "<var name=\"D\"/></column></board></page></module>");
    const Outcome outcome = check({file});
    QCOMPARE(outcome.mCode, 1);
    QCOMPARE(outcome.mOut, QString());
    QCOMPARE(outcome.mErr,
             file
                 + ":3:22: error: unknown unit \"kp\" of <real name=\"d\"> (force: N, daN, kN, MN, "
                   "...)\n"
                 + file + ":5:27: error: unknown variable \"D\" (the name of a variable)\n");
}

void tst_zelCheck::badCallSaysWhyAndHowToCall_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    QTest::newRow("nothing") << QStringList() << "no file";
    QTest::newRow("option alone") << QStringList{"--us"} << "no file";
    QTest::newRow("unknown option") << QStringList{"--fast", sumFile} << "unknown option --fast";
    QTest::newRow("two files") << QStringList{sumFile, sumFile} << "more than one file";
    QTest::newRow("no values") << QStringList{sumFile, "--calculate"}
                               << "--calculate wants a value";
    QTest::newRow("no language") << QStringList{sumFile, "--language"}
                                 << "--language wants a value";
    QTest::newRow("unknown language")
        << QStringList{"--language", "xx", sumFile} << "unknown language \"xx\"";
}

void tst_zelCheck::badCallSaysWhyAndHowToCall()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, reason);
    const Outcome outcome = check(arguments);
    QCOMPARE(outcome.mCode, 2);
    QCOMPARE(outcome.mOut, QString());
    QVERIFY2(outcome.mErr.startsWith("zelcheck: " + reason + "\nusage: zelcheck "),
             qPrintable(outcome.mErr));
}

void tst_zelCheck::helpIsNoFault()
{
    const Outcome outcome = check({"--help"});
    QCOMPARE(outcome.mCode, 0);
    QVERIFY(outcome.mOut.startsWith("usage: zelcheck "));
    QCOMPARE(outcome.mErr, QString());
}

void tst_zelCheck::missingFileIsABadCall()
{
    const Outcome outcome = check({"/nowhere/m.xml"});
    QCOMPARE(outcome.mCode, 2);
    QVERIFY2(outcome.mErr.startsWith("/nowhere/m.xml: error: "), qPrintable(outcome.mErr));
    QCOMPARE(check({mFolder.path()}).mCode, 2);
}

void tst_zelCheck::missingValuesAreABadCall()
{
    const Outcome outcome = check({"--calculate", "/nowhere/values.txt", sumFile});
    QCOMPARE(outcome.mCode, 2);
    QVERIFY(outcome.mErr.startsWith("/nowhere/values.txt: error: "));
    QCOMPARE(outcome.mOut, QString());
    QCOMPARE(check({"--calculate", mFolder.path(), sumFile}).mCode, 2);
}

void tst_zelCheck::calculatesAndPrints()
{
    const QString values = write("values.txt",
                                 "a = 1 m\nb = 250.0000001 mm\nmode = plain\n"
                                 "doubled = true\nnote = \"zwei\"\n");
    const Outcome outcome = check({"--calculate", values, sumFile});
    QCOMPARE(outcome.mErr, QString());
    QCOMPARE(outcome.mOut,
             QString("Inputs\n"
                     "  Seite a, a = 1000 mm\n"
                     "  Seite b, b = 250.0000001 mm\n"
                     "  Anzahl = 4\n"
                     "  Doppelt = true\n"
                     "  Art = einfach\n"
                     "  Notiz = zwei\n"
                     "Results\n"
                     "  Fläche, A = 250000 mm²\n"
                     "  Zuschlag, Δ_s = 0.5 mm\n"
                     "  Summe, s = 2501 mm\n"
                     "Messages\n"
                     "  warning: Die Seite b ist mit 250 mm sehr lang.\n"
                     "  note: Gerechnet.\n"));
    QCOMPARE(outcome.mCode, 0);
}

void tst_zelCheck::printsInAnotherLanguageAndUnitSystem()
{
    const QString values = write("values.txt", "a = 25.4 mm\nb = 254 mm\n");
    const Outcome outcome = check({"--us", "--language", "en", "--calculate", values, sumFile});
    QCOMPARE(outcome.mErr, QString());
    QVERIFY(outcome.mOut.contains("  Side a, a = 1 in\n"));
    QVERIFY(outcome.mOut.contains("  Area, A = 10 in²\n"));
    QVERIFY(outcome.mOut.contains("  Kind = plain\n"));
    QVERIFY2(outcome.mOut.contains("  warning: Side b is very long: 10 in.\n"),
             qPrintable(outcome.mOut));
    QCOMPARE(outcome.mCode, 0);
}

void tst_zelCheck::enteredAlternativeIsAnInput()
{
    // Not converted: the file brings both.
    const QString values = write("values.txt", "a = 4 mm\nA = 20 mm²\ngiven = area\n");
    const Outcome outcome = check({"--calculate", values, sumFile});
    const QStringList parts = outcome.mOut.split("Results\n");
    QCOMPARE(parts.size(), 2);
    QVERIFY(parts[0].contains("  Fläche, A = 20 mm²\n"));
    QVERIFY2(parts[1].contains("  Seite b, b = 5 mm\n"), qPrintable(outcome.mOut));
}

void tst_zelCheck::optionalValueIsEnteredWhenItsBoxIsChecked()
{
    const QString values = write("values.txt", "entered(offset) = true\noffset = 7 mm\n");
    const Outcome outcome = check({"--calculate", values, sumFile});
    QCOMPARE(outcome.mErr, QString());
    const QStringList parts = outcome.mOut.split("Results\n");
    QVERIFY2(parts.value(0).contains("  Zuschlag, Δ_s = 7 mm\n"), qPrintable(outcome.mOut));
    QVERIFY(parts.value(1).contains("  Summe, s = 12 mm\n"));
}

void tst_zelCheck::refusedCalculationIsExitOne()
{
    const QString values = write("values.txt", "a = -4 mm\n");
    const Outcome outcome = check({"--calculate", values, sumFile});
    QCOMPARE(outcome.mCode, 1);
    QCOMPARE(outcome.mErr, QString());
    QVERIFY(outcome.mOut.contains("  Summe, s = -\n"));
    QVERIFY2(outcome.mOut.endsWith("Messages\n"
                                   "  error: Die Seite a muss größer als 0 mm sein.\n"
                                   "The calculation was refused.\n"),
             qPrintable(outcome.mOut));
}

void tst_zelCheck::exceptionIsAMessage()
{
    const QString values = write("values.txt", "mode = throw\n");
    const Outcome outcome = check({"--language", "en", "--calculate", values, sumFile});
    QCOMPARE(outcome.mCode, 1);
    QVERIFY(outcome.mOut.contains("  error: Internal error of the calculation: überall\n"));
}

void tst_zelCheck::faultyLineOfValuesIsToldAndTheRestCounts()
{
    const QString values = write("values.txt", "# a comment\na = 5 N\nb = 7 mm\nx = 1\ns = 3 mm\n");
    const Outcome outcome = check({"--calculate", values, sumFile});
    QCOMPARE(outcome.mCode, 1);
    QCOMPARE(outcome.mErr.count('\n'), 3);
    QVERIFY2(outcome.mErr.startsWith(values + ":2:"), qPrintable(outcome.mErr));
    QVERIFY(outcome.mErr.contains(values + ":4:"));
    QVERIFY(outcome.mErr.contains(values + ":5:"));
    QVERIFY(outcome.mOut.contains("  Summe, s = 9.5 mm\n"));
}

void tst_zelCheck::eachObjectIsCalculated()
{
    const QString values = write("values.txt", "a@1 = 5 mm\na@2 = 6 mm\n");
    const Outcome outcome = check({"--calculate", values, sumFile});
    QCOMPARE(outcome.mErr, QString());
    const int first = outcome.mOut.indexOf("Object 1\nInputs\n  Seite a, a = 5 mm\n");
    const int second = outcome.mOut.indexOf("Object 2\nInputs\n  Seite a, a = 6 mm\n");
    QVERIFY2(first >= 0 && second > first, qPrintable(outcome.mOut));
    QVERIFY(outcome.mOut.contains("  Summe, s = 8.5 mm\n"));
    QVERIFY(outcome.mOut.contains("  Summe, s = 9.5 mm\n"));
}

void tst_zelCheck::faultyDescriptionCalculatesWhatIsLeft()
{
    QFile original(sumFile);
    QVERIFY(original.open(QIODevice::ReadOnly));
    QByteArray bytes = original.readAll();
    bytes.replace("<var name=\"n\"/>", "<wheel/><var name=\"nn\"/>");
    const QString file = write("faulty.xml", bytes);
    const QString values = write("values.txt", "a = 5 mm\n");
    const Outcome outcome = check({"--calculate", values, file});
    QCOMPARE(outcome.mCode, 1);
    QCOMPARE(outcome.mErr.count(": error: "), 2);
    QVERIFY(outcome.mOut.contains("  Summe, s = 8.5 mm\n"));
}

void tst_zelCheck::missingTextsAreListed()
{
    QCOMPARE(check({"--texts", sumFile}).mOut, QString());
    const Outcome french = check({"--texts", "--language", "fr", sumFile});
    QCOMPARE(french.mCode, 0);
    QVERIFY(french.mOut.startsWith(sumFile + ":2:42: Summe\n" + sumFile + ":4:24: Seite a\n"));
    // Each once, however often it stands there.
    QCOMPARE(french.mOut.count(": Fläche\n"), 1);
    QCOMPARE(french.mOut.count(": Summe\n"), 1);
    // What is no text is no missing text either.
    QVERIFY(!french.mOut.contains("keine"));
    QVERIFY(!french.mOut.contains("Delta_s"));
    QCOMPARE(check({"--texts", "--language", "de", sumFile}).mOut, QString());
}

void tst_zelCheck::missingTextsWithoutAnyTranslation()
{
    const QString file = write("alone.xml",
                               "<module id=\"m\" text=\"#8460\"><page text=\"Seite\" key=\"page\">"
                               "<board><column><text>Hinweis</text></column></board></page>"
                               "</module>");
    const Outcome outcome = check({"--texts", file});
    QCOMPARE(outcome.mErr, QString());
    QCOMPARE(outcome.mOut, file + ":1:41: Seite (key page)\n" + file + ":1:75: Hinweis\n");
}

void tst_zelCheck::surroundingsAreRestored()
{
    TarvexSetup setup;
    TarvexModule::Setup = &setup;
    setZelLanguage(ZelLanguage::Italian);
    check({"--us", "--language", "en", sumFile});
    QCOMPARE(TarvexModule::Setup, &setup);
    QCOMPARE(int(zelLanguage()), int(ZelLanguage::Italian));
    QCOMPARE(int(setup.mUSCustomaryUnits), 0);
    TarvexModule::Setup = nullptr;
    setZelLanguage(ZelLanguage::German);
}

void tst_zelCheck::executableLinksNoQt()
{
    QProcess ldd;
    ldd.start("ldd", {executable()});
    QVERIFY(ldd.waitForFinished());
    QCOMPARE(ldd.exitCode(), 0);
    const QByteArray libraries = ldd.readAllStandardOutput();
    QVERIFY(libraries.contains("libzelcore"));
    QVERIFY2(!libraries.contains("libQt"), libraries.constData());
    QVERIFY(!libraries.contains("libX11"));
}

void tst_zelCheck::executableRunsWithoutADisplay()
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("DISPLAY");
    environment.remove("QT_QPA_PLATFORM");
    process.setProcessEnvironment(environment);
    const QString file = write("plain.xml", "<module id=\"m\"><page/></module>");
    process.start(executable(), {file});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
    process.start(executable(), {"--nonsense"});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 2);
    QVERIFY(process.readAllStandardError().startsWith("zelcheck: unknown option"));
}

QTEST_GUILESS_MAIN(tst_zelCheck)
#include "tst_zelCheck.moc"
