#include "zelFault.h"

#include <QtTest>

class tst_zelFault : public QObject
{
    Q_OBJECT

private slots:
    void aFaultIsALineAsCompilersWriteIt_data();
    void aFaultIsALineAsCompilersWriteIt();
    void aReportHasALineForEachFault();
    void aReportCountsWhatIsBeyondItsLimit_data();
    void aReportCountsWhatIsBeyondItsLimit();
};

namespace {

ZelFault makeFault(const char *file, int line, int column, const char *text)
{
    ZelFault fault;
    fault.mFile = file;
    fault.mLine = line;
    fault.mColumn = column;
    fault.mText = text;
    return fault;
}

} // namespace

void tst_zelFault::aFaultIsALineAsCompilersWriteIt_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<bool>("isWarning");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("printed");
    QTest::newRow("error") << 4 << false << ""
                           << "a.xml:4:52: error: unknown unit \"kp\"";
    QTest::newRow("warning") << 4 << true << ""
                             << "a.xml:4:52: warning: unknown unit \"kp\"";
    QTest::newRow("with what was expected") << 4 << false << "N, kN"
                                            << "a.xml:4:52: error: unknown unit \"kp\" (N, kN)";
    QTest::newRow("without place") << 0 << false << ""
                                   << "a.xml: error: unknown unit \"kp\"";
}

void tst_zelFault::aFaultIsALineAsCompilersWriteIt()
{
    QFETCH(int, line);
    QFETCH(bool, isWarning);
    QFETCH(QString, expected);
    ZelFault fault = makeFault("a.xml", line, 52, "unknown unit \"kp\"");
    fault.mSeverity = isWarning ? ZelFaultSeverity::Warning : ZelFaultSeverity::Error;
    fault.mExpected = expected.toStdString();
    QTEST(QString::fromStdString(fault.toString()), "printed");
}

void tst_zelFault::aReportHasALineForEachFault()
{
    const ZelFaultList faults = {makeFault("a.xml", 1, 2, "one"), makeFault("a.xml", 3, 4, "two")};
    QCOMPARE(QString::fromStdString(zelFaultReport(faults)),
             QString("a.xml:1:2: error: one\na.xml:3:4: error: two\n"));
    QCOMPARE(zelFaultReport({}), std::string());
}

void tst_zelFault::aReportCountsWhatIsBeyondItsLimit_data()
{
    QTest::addColumn<int>("limit");
    QTest::addColumn<int>("lines");
    QTest::addColumn<QString>("last");
    QTest::newRow("none is left out") << 3 << 3 << "a.xml:3:1: error: fault";
    QTest::newRow("one is left out") << 2 << 3 << "and 1 more";
    QTest::newRow("all are left out") << 0 << 1 << "and 3 more";
}

void tst_zelFault::aReportCountsWhatIsBeyondItsLimit()
{
    QFETCH(int, limit);
    QFETCH(int, lines);
    ZelFaultList faults;
    for (int line = 1; line <= 3; ++line)
        faults.push_back(makeFault("a.xml", line, 1, "fault"));
    const QString report =
        QString::fromStdString(zelFaultReport(faults, static_cast<size_t>(limit)));
    QVERIFY(report.endsWith('\n'));
    const QStringList printed = report.chopped(1).split('\n');
    QCOMPARE(printed.size(), lines);
    QTEST(printed.last(), "last");
}

QTEST_APPLESS_MAIN(tst_zelFault)
#include "tst_zelFault.moc"
