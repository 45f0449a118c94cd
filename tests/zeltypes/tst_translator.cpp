#include "translator.h"

#include "internMessage.h"

#include <QtTest>

#include <string>
#include <vector>

class tst_translator : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theLanguageIsGermanAtStart();
    void aTextComesInTheCurrentLanguage_data();
    void aTextComesInTheCurrentLanguage();
    void aMissingTextFallsBackToEnglishThenGerman_data();
    void aMissingTextFallsBackToEnglishThenGerman();
    void anUnknownNumberIsAnEmptyText();
    void emptyLinesAndRemarksArePassedOver();
    void aTextMayHoldLineBreaksAndTabs();
    void aLineMayEndAsOnWindows();
    void aLineWithoutNumberIsReported_data();
    void aLineWithoutNumberIsReported();
    void aSecondTextOfANumberIsReportedAndTheFirstStays();
    void aModuleAddsItsOwnTexts();
    void thePoolsHoldGermanAndEnglishForEveryNumber_data();
    void thePoolsHoldGermanAndEnglishForEveryNumber();

private:
    std::vector<std::string> mReports;
    ZelInternMessageSink mFormerSink;
};

namespace {

QString text(const zelWString &text)
{
    return QString::fromStdWString(text);
}

} // namespace

void tst_translator::init()
{
    mReports.clear();
    mFormerSink = setInternMessageSink(
        [this](const char *, long, const char *report) { mReports.push_back(report); });
}

void tst_translator::cleanup()
{
    setInternMessageSink(mFormerSink);
    setZelLanguage(ZelLanguage::German);
}

void tst_translator::theLanguageIsGermanAtStart()
{
    QCOMPARE(zelLanguage(), ZelLanguage::German);
}

void tst_translator::aTextComesInTheCurrentLanguage_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("expected");
    const char *const names[] = {"German",  "English",    "French",  "Italian", "Spanish",
                                 "Russian", "Portuguese", "Chinese", "Japanese"};
    const char *const texts[] = {"Feder",   "spring", "ressort", "molla", "muelle",
                                 "пружина", "mola",   "弹簧",    "ばね"};
    for (int i = 0; i < zelLanguageCount; ++i)
        QTest::newRow(names[i]) << i << QString::fromUtf8(texts[i]);
}

void tst_translator::aTextComesInTheCurrentLanguage()
{
    QFETCH(int, language);
    const Translator translator(
        "7\tFeder\tspring\tressort\tmolla\tmuelle\tпружина\tmola\t弹簧\tばね\n");
    setZelLanguage(static_cast<ZelLanguage>(language));
    QTEST(text(translator.GetString(7)), "expected");
}

void tst_translator::aMissingTextFallsBackToEnglishThenGerman_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("expected");
    const int french = static_cast<int>(ZelLanguage::French);
    const int english = static_cast<int>(ZelLanguage::English);
    const int german = static_cast<int>(ZelLanguage::German);
    QTest::newRow("French to English") << "1\tWelle\tshaft" << french << "shaft";
    QTest::newRow("French to German") << "1\tWelle" << french << "Welle";
    QTest::newRow("English to German") << "1\tWelle" << english << "Welle";
    QTest::newRow("German to English") << "1\t\tshaft" << german << "shaft";
    QTest::newRow("not to a third language") << "1\t\t\tarbre" << german << "";
    QTest::newRow("number alone") << "1" << german << "";
}

void tst_translator::aMissingTextFallsBackToEnglishThenGerman()
{
    QFETCH(QString, line);
    QFETCH(int, language);
    const Translator translator(line.toStdString());
    setZelLanguage(static_cast<ZelLanguage>(language));
    QTEST(text(translator.GetString(1)), "expected");
}

void tst_translator::anUnknownNumberIsAnEmptyText()
{
    const Translator translator("1\tWelle\tshaft");
    QVERIFY(translator.GetString(2).empty());
    QVERIFY(translator.GetString(-1).empty());
    QVERIFY(Translator().GetString(1).empty());
    QVERIFY(mReports.empty());
}

void tst_translator::emptyLinesAndRemarksArePassedOver()
{
    const Translator translator("# number\tGerman\n\n1\tWelle\n\n#2\tLager\n");
    QCOMPARE(translator.rows().size(), size_t{1});
    QCOMPARE(text(translator.GetString(1)), QString("Welle"));
    QVERIFY(mReports.empty());
}

void tst_translator::aTextMayHoldLineBreaksAndTabs()
{
    const Translator translator("1\tzwei\\nZeilen\ta\\tb\n2\tC:\\dir\\\t");
    QCOMPARE(text(translator.GetString(1)), QString("zwei\nZeilen"));
    QCOMPARE(text(translator.GetString(2)), QString("C:\\dir\\"));
    setZelLanguage(ZelLanguage::English);
    QCOMPARE(text(translator.GetString(1)), QString("a\tb"));
}

void tst_translator::aLineMayEndAsOnWindows()
{
    const Translator translator("1\tWelle\r\n2\tLager\r\n");
    QCOMPARE(text(translator.GetString(1)), QString("Welle"));
    QCOMPARE(text(translator.GetString(2)), QString("Lager"));
}

void tst_translator::aLineWithoutNumberIsReported_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("text") << "Welle\tshaft";
    QTest::newRow("number with a rest") << "12a\tWelle";
    QTest::newRow("blank") << " 12\tWelle";
    QTest::newRow("no number at all") << "\tWelle";
    QTest::newRow("beyond int") << "99999999999\tWelle";
}

void tst_translator::aLineWithoutNumberIsReported()
{
    QFETCH(QString, line);
    const Translator translator(line.toStdString() + "\n3\tLager\n");
    QCOMPARE(mReports.size(), size_t{1});
    QCOMPARE(QString::fromStdString(mReports[0]),
             QString("a line of a text table does not begin with a number"));
    QCOMPARE(translator.rows().size(), size_t{1});
    QCOMPARE(text(translator.GetString(3)), QString("Lager"));
}

void tst_translator::aSecondTextOfANumberIsReportedAndTheFirstStays()
{
    Translator translator("1\tWelle\tshaft\n1\tAchse\taxle\n");
    QCOMPARE(mReports, std::vector<std::string>{"a text number is used twice"});
    QCOMPARE(text(translator.GetString(1)), QString("Welle"));
    translator.add("1\tBolzen\tbolt\n");
    QCOMPARE(mReports.size(), size_t{2});
    QCOMPARE(text(translator.GetString(1)), QString("Welle"));
}

void tst_translator::aModuleAddsItsOwnTexts()
{
    Translator translator("1\tWelle\n");
    translator.add("100001\tFeder\n");
    QCOMPARE(text(translator.GetString(1)), QString("Welle"));
    QCOMPARE(text(translator.GetString(100001)), QString("Feder"));
    QVERIFY(mReports.empty());
}

void tst_translator::thePoolsHoldGermanAndEnglishForEveryNumber_data()
{
    QTest::addColumn<bool>("isPoolUi");
    QTest::newRow("pool") << false;
    QTest::newRow("poolUi") << true;
}

void tst_translator::thePoolsHoldGermanAndEnglishForEveryNumber()
{
    QFETCH(bool, isPoolUi);
    const Translator &translator = isPoolUi ? poolUi : pool;
    QVERIFY(!translator.rows().empty());
    for (const auto &[id, row] : translator.rows()) {
        for (const ZelLanguage language : {ZelLanguage::German, ZelLanguage::English}) {
            const zelWString &entry = row[static_cast<size_t>(language)];
            QVERIFY2(!entry.empty(), QByteArray::number(id));
            QVERIFY2(!text(entry).contains(QChar(0xFFFD)), QByteArray::number(id));
        }
    }
}

QTEST_APPLESS_MAIN(tst_translator)
#include "tst_translator.moc"
