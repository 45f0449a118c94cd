#include "sumModule.h"
#include "zelCheck.h"

#include <QtTest>

#include <sstream>

/// The pages of documentation that zelcheck prints lie in docs/ as well, where people read them.
class tst_referencePages : public QObject
{
    Q_OBJECT
private slots:
    void pageIsWhatZelcheckPrints_data();
    void pageIsWhatZelcheckPrints();
    void everyUnitHasARow();
    void baseOfADimensionHasTheFactorOne();
    void everyDimensionHasItsDefaults();
    void factorsAndOffsetsLeadToTheBase_data();
    void factorsAndOffsetsLeadToTheBase();
};

namespace {

struct Outcome
{
    int mCode = -1;
    QString mOut;
};

Outcome print(const std::string &option)
{
    std::ostringstream out;
    std::ostringstream err;
    const int code = zelCheckMain({option}, out, err, sumRegistry());
    return {code, QString::fromStdString(out.str())};
}

// The cells of the table of units, a row for each unit.
QVector<QStringList> unitRows()
{
    QVector<QStringList> rows;
    for (const QString &line : print("--units").mOut.split('\n')) {
        QStringList cells = line.split('|');
        if (cells.size() != 9 || line.contains("---") || line.contains("SI base"))
            continue;
        for (QString &cell : cells)
            cell = cell.remove('`').trimmed();
        rows.append(cells.mid(1, 7));
    }
    return rows;
}

enum Column { Dimension, Base, Text, InFiles, Factor, Offset, Default };

} // namespace

void tst_referencePages::pageIsWhatZelcheckPrints_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("page");
    QTest::newRow("descriptions") << "--schema"
                                  << "description-format.md";
    QTest::newRow("units") << "--units"
                           << "units.md";
}

void tst_referencePages::pageIsWhatZelcheckPrints()
{
    QFETCH(QString, option);
    QFETCH(QString, page);
    QFile file(DOCS_DIR "/" + page);
    QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
    const QString kept = QString::fromUtf8(file.readAll());
    const Outcome printed = print(option.toStdString());
    QCOMPARE(printed.mCode, 0);
    const QStringList keptLines = kept.split('\n');
    const QStringList printedLines = printed.mOut.split('\n');
    int line = 0;
    while (line < keptLines.size() && line < printedLines.size()
           && keptLines.at(line) == printedLines.at(line))
        ++line;
    const QString renew = QStringLiteral("docs/%1 is out of date from line %2 on; renew it by "
                                         "build/dev/bin/zelcheck %3 > docs/%1")
                              .arg(page)
                              .arg(line + 1)
                              .arg(option);
    QVERIFY2(kept == printed.mOut, qPrintable(renew));
}

void tst_referencePages::everyUnitHasARow()
{
    const QVector<QStringList> rows = unitRows();
    QCOMPARE(rows.size(), int(ZelDimensions::DynamicUnit));
    for (int i = 0; i < rows.size(); ++i) {
        const auto unit = static_cast<ZelDimensions::Unit>(i);
        QCOMPARE(rows.at(i).at(Text), QString::fromStdWString(ZelDimensions::getString(unit)));
        QCOMPARE(rows.at(i).at(InFiles),
                 QString::fromStdWString(ZelDimensions::getEnumString(unit)));
        const auto type = ZelDimensions::getType(unit);
        QCOMPARE(rows.at(i).at(Dimension),
                 QString::fromStdWString(ZelDimensions::getTypeString(type)));
    }
}

// Guards against a base in the place of another dimension: where it is a unit itself, it shows.
void tst_referencePages::baseOfADimensionHasTheFactorOne()
{
    int compared = 0;
    for (const QStringList &row : unitRows()) {
        if (row.at(Base) != row.at(Text))
            continue;
        QCOMPARE(row.at(Factor), QString("1"));
        QCOMPARE(row.at(Offset), QString());
        ++compared;
    }
    QVERIFY2(compared >= 30, qPrintable(QString::number(compared)));
}

void tst_referencePages::everyDimensionHasItsDefaults()
{
    QMap<QString, QStringList> defaults;
    for (const QStringList &row : unitRows()) {
        if (!row.at(Default).isEmpty())
            defaults[row.at(Dimension)].append(row.at(Default));
    }
    QCOMPARE(defaults.size(), int(ZelDimensions::NoType));
    for (QStringList &found : defaults) {
        found.sort();
        QVERIFY(found == QStringList{"both"} || found == (QStringList{"US", "metric"}));
    }
}

void tst_referencePages::factorsAndOffsetsLeadToTheBase_data()
{
    QTest::addColumn<QString>("unit");
    QTest::addColumn<double>("number");
    QTest::addColumn<double>("base");
    QTest::newRow("force of a pound") << "lbf" << 1.0 << 4.4482216152605;
    QTest::newRow("freezing") << "°F" << 32.0 << 273.15;
    QTest::newRow("right angle") << "°" << 90.0 << 1.5707963267948966;
    QTest::newRow("turns") << "1/min" << 60.0 << 6.283185307179586;
}

void tst_referencePages::factorsAndOffsetsLeadToTheBase()
{
    QFETCH(QString, unit);
    QFETCH(double, number);
    QFETCH(double, base);
    for (const QStringList &row : unitRows()) {
        if (row.at(Text) != unit)
            continue;
        QCOMPARE((number + row.at(Offset).toDouble()) * row.at(Factor).toDouble(), base);
        return;
    }
    QFAIL("the unit has no row");
}

QTEST_GUILESS_MAIN(tst_referencePages)
#include "tst_referencePages.moc"
