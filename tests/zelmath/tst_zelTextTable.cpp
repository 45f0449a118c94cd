#include "faults.h"
#include "zelTextTable.h"

#include <QtTest>

namespace {

ZelTextTable read(const QByteArray &bytes, ZelFaultList *faults = nullptr)
{
    ZelFaultList own;
    return ZelTextTable::fromText(bytes.toStdString(), "bearing.tsv", faults ? *faults : own);
}

} // namespace

class tst_zelTextTable : public QObject
{
    Q_OBJECT

private slots:
    void findsTheTextOfALanguage();
    void columnsMayStandInAnyOrderAndBeMissing();
    void missingTextFallsBackToEnglishThenGerman();
    void germanComesFromTheSource();
    void keySeparatesHomonyms();
    void unknownKeyGivesTheGermanText();
    void tellsWhatIsTranslated();
    void passesOverCommentsAndEmptyLines();
    void acceptsByteOrderMarkAndCarriageReturns();
    void escapesStandForLineBreakAndTab();
    void faultsHaveCodeAndPlace_data();
    void faultsHaveCodeAndPlace();
    void faultyLineTakesOutItselfOnly();
    void survivesDamage();
};

void tst_zelTextTable::findsTheTextOfALanguage()
{
    ZelFaultList faults;
    const ZelTextTable table =
        read("German\tEnglish\tFrench\tItalian\tSpanish\tRussian\tPortuguese\tChinese\tJapanese\n"
             "Lager\ta\tb\tc\td\te\tf\tg\th\n",
             &faults);
    QCOMPARE(faultPlaces(faults), QStringList());
    const QString expected = "abcdefgh";
    for (int i = 1; i < zelLanguageCount; ++i)
        QCOMPARE(QString::fromStdWString(table.text(L"Lager", L"", ZelLanguage(i))),
                 QString(expected[i - 1]));
}

void tst_zelTextTable::columnsMayStandInAnyOrderAndBeMissing()
{
    const ZelTextTable table = read("Japanese\tGerman\n軸受\tLager\n");
    QVERIFY(table.text(L"Lager", L"", ZelLanguage::Japanese) == L"軸受");
    QVERIFY(table.text(L"Lager", L"", ZelLanguage::English) == L"Lager");
}

void tst_zelTextTable::missingTextFallsBackToEnglishThenGerman()
{
    const ZelTextTable table =
        read("German\tEnglish\tFrench\nLager\tBearing\t\nWelle\nRad\t\tRoue");
    QVERIFY(table.text(L"Lager", L"", ZelLanguage::French) == L"Bearing");
    QVERIFY(table.text(L"Welle", L"", ZelLanguage::French) == L"Welle");
    QVERIFY(table.text(L"Rad", L"", ZelLanguage::French) == L"Roue");
    QVERIFY(table.text(L"Rad", L"", ZelLanguage::English) == L"Rad");
    QVERIFY(table.text(L"Zahn", L"", ZelLanguage::English) == L"Zahn");
}

void tst_zelTextTable::germanComesFromTheSource()
{
    const ZelTextTable table = read("key\tGerman\tEnglish\nk\tAlter Text\tText\n");
    QVERIFY(table.text(L"Neuer Text", L"k", ZelLanguage::German) == L"Neuer Text");
    QVERIFY(table.text(L"Neuer Text", L"k", ZelLanguage::English) == L"Text");
}

void tst_zelTextTable::keySeparatesHomonyms()
{
    const ZelTextTable table =
        read("key\tGerman\tEnglish\n\tLager\tBearing\nstore\tLager\tStore\n");
    QVERIFY(table.text(L"Lager", L"", ZelLanguage::English) == L"Bearing");
    QVERIFY(table.text(L"Lager", L"store", ZelLanguage::English) == L"Store");
}

void tst_zelTextTable::unknownKeyGivesTheGermanText()
{
    const ZelTextTable table = read("key\tGerman\tEnglish\n\tLager\tBearing\n");
    QVERIFY(table.text(L"Lager", L"camp", ZelLanguage::English) == L"Lager");
}

void tst_zelTextTable::tellsWhatIsTranslated()
{
    const ZelTextTable table = read("key\tGerman\tEnglish\n\tLager\tBearing\nstore\tLager\t\n");
    QVERIFY(table.contains(L"Lager"));
    QVERIFY(table.contains(L"store"));
    QVERIFY(!table.contains(L"Welle"));
    QVERIFY(table.isTranslated(L"Lager", ZelLanguage::German));
    QVERIFY(table.isTranslated(L"Lager", ZelLanguage::English));
    QVERIFY(!table.isTranslated(L"Lager", ZelLanguage::French));
    QVERIFY(!table.isTranslated(L"store", ZelLanguage::English));
    QVERIFY(!table.isTranslated(L"Welle", ZelLanguage::English));
}

void tst_zelTextTable::passesOverCommentsAndEmptyLines()
{
    ZelFaultList faults;
    const ZelTextTable table =
        read("# head\n\nGerman\tEnglish\n# Lager\tno\n\nLager\tBearing", &faults);
    QCOMPARE(faultPlaces(faults), QStringList());
    QVERIFY(table.text(L"Lager", L"", ZelLanguage::English) == L"Bearing");
    QVERIFY(!table.contains(L"# Lager"));
}

void tst_zelTextTable::acceptsByteOrderMarkAndCarriageReturns()
{
    ZelFaultList faults;
    const ZelTextTable table = read("\xEF\xBB\xBFGerman\tEnglish\r\nLager\tBearing\r\n", &faults);
    QCOMPARE(faultPlaces(faults), QStringList());
    QVERIFY(table.text(L"Lager", L"", ZelLanguage::English) == L"Bearing");
}

void tst_zelTextTable::escapesStandForLineBreakAndTab()
{
    const ZelTextTable table = read("German\tEnglish\na\\nb\tx\\ny\\tz\\q\\");
    QVERIFY(table.text(L"a\nb", L"", ZelLanguage::English) == L"x\ny\tz\\q\\");
}

void tst_zelTextTable::faultsHaveCodeAndPlace_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("places");
    QTest::newRow("empty file") << QByteArray("") << QStringList{"1:1 Syntax"};
    QTest::newRow("comments only") << QByteArray("# a\n") << QStringList{"1:1 Syntax"};
    QTest::newRow("unknown column")
        << QByteArray("German\tKlingon\nLager\tx\n") << QStringList{"1:8 UnknownName"};
    QTest::newRow("key not first") << QByteArray("German\tkey\n") << QStringList{"1:8 UnknownName"};
    QTest::newRow("column twice") << QByteArray("German\tEnglish\tGerman\n")
                                  << QStringList{"1:16 DuplicateName"};
    QTest::newRow("no German") << QByteArray("key\tEnglish\n")
                               << QStringList{"1:1 MissingAttribute"};
    QTest::newRow("name twice") << QByteArray("German\tEnglish\nLager\ta\nWelle\tb\nLager\tc\n")
                                << QStringList{"4:1 DuplicateName"};
    QTest::newRow("key twice") << QByteArray("key\tGerman\nk\ta\nk\tb\n")
                               << QStringList{"3:1 DuplicateName"};
    QTest::newRow("too many cells, counted in characters")
        << QByteArray("German\tEnglish\nÖl\tö\tü\n") << QStringList{"2:6 Syntax"};
    QTest::newRow("no German text")
        << QByteArray("German\tEnglish\n\tBearing\n") << QStringList{"2:1 Syntax"};
    QTest::newRow("bad byte") << QByteArray("German\tEnglish\nÖl\tO\xEFl\n")
                              << QStringList{"2:5 NotUtf8"};
    QTest::newRow("several") << QByteArray("German\n\xFF\nLager\nLager\na\tb\n")
                             << QStringList{"2:1 NotUtf8", "4:1 DuplicateName", "5:3 Syntax"};
    QTest::newRow("UTF-16") << QByteArray("\xFF\xFEG\0", 4)
                            << QStringList{"1:1 NotUtf8", "1:1 Syntax"};
}

void tst_zelTextTable::faultsHaveCodeAndPlace()
{
    QFETCH(QByteArray, bytes);
    ZelFaultList faults;
    read(bytes, &faults);
    QTEST(faultPlaces(faults), "places");
    for (const ZelFault &fault : faults)
        QCOMPARE(fault.mFile, std::string("bearing.tsv"));
}

void tst_zelTextTable::faultyLineTakesOutItselfOnly()
{
    const ZelTextTable table =
        read("German\tEnglish\nLager\tBearing\nLager\tSecond\nW\xFF\tx\nRad\tGear\n");
    QVERIFY(table.text(L"Lager", L"", ZelLanguage::English) == L"Bearing");
    QVERIFY(table.text(L"Rad", L"", ZelLanguage::English) == L"Gear");
}

void tst_zelTextTable::survivesDamage()
{
    const QByteArray valid = "key\tGerman\tEnglish\n\tÖl\tOil\nstore\tLager\tStore\\n\n";
    int faulty = 0;
    for (int i = 0; i < valid.size(); ++i) {
        for (const QByteArray &bytes :
             {valid.left(i), QByteArray(valid).replace(i, 1, "\xFF"),
              QByteArray(valid).replace(i, 1, QByteArray(1, '\0')),
              QByteArray(valid).replace(i, 1, "\t"), QByteArray(valid).replace(i, 1, "\n")}) {
            ZelFaultList faults;
            const ZelTextTable table = read(bytes, &faults);
            faulty += !faults.empty();
            QVERIFY(table.text(L"Öl", L"", ZelLanguage::German) == L"Öl");
        }
    }
    QVERIFY(faulty > valid.size());
}

QTEST_APPLESS_MAIN(tst_zelTextTable)
#include "tst_zelTextTable.moc"
