#include "zelQtConversions.h"

#include "zelLanguage.h"

#include <QtTest>

// The operations are called through their types: exactly these overloads are exported.
static_assert(std::is_same_v<decltype(&toQStringFromPool), QString (*)(int)>);
static_assert(std::is_same_v<decltype(&toQStringFromPoolUi), QString (*)(int)>);
static_assert(std::is_same_v<decltype(&stringToUnit), ZelDimensions::Unit (*)(const QString &)>);
static_assert(std::is_same_v<decltype(&unitToString), QString (*)(ZelDimensions::Unit)>);

class tst_zelQtConversions : public QObject
{
    Q_OBJECT
private slots:
    void cleanup();
    void wideTextsKeepEveryCharacter_data();
    void wideTextsKeepEveryCharacter();
    void oddCharactersGoTheWayOfQt();
    void narrowTextsAreUtf8();
    void textsOfThePoolsFollowTheLanguage();
    void unknownNumberIsAnEmptyText();
    void everyUnitGoesThroughItsText();
    void textsThatAreNoUnitGiveNoUnit();
};

void tst_zelQtConversions::cleanup()
{
    setZelLanguage(ZelLanguage::German);
}

void tst_zelQtConversions::wideTextsKeepEveryCharacter_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("plain") << "mm";
    QTest::newRow("beyond Latin-1") << QString::fromUtf8("τ ≤ 日本");
    QTest::newRow("beyond 16 bits") << QString::fromUtf8("\U0001D6D5");
    QTest::newRow("with a zero inside") << QString("a") + QChar(0) + "b";
    QTest::newRow("below the byte order mark") << QStringLiteral("a\ufefe");
}

// As QString::fromWCharArray() takes them, which is not asked for every text.
void tst_zelQtConversions::oddCharactersGoTheWayOfQt()
{
    const std::wstring texts[] = {L"\xfeff"
                                  L"a",
                                  L"a\xfeff",
                                  L"\xffff",
                                  L"\xd800",
                                  L"a\xdfff"
                                  L"b",
                                  L"\x10ffff"};
    for (const std::wstring &text : texts)
        QCOMPARE(toQString(zelWString(text)), QString::fromStdWString(text));
}

void tst_zelQtConversions::wideTextsKeepEveryCharacter()
{
    QFETCH(QString, text);
    QCOMPARE(toQString(zelWString(text.toStdWString())), text);
}

void tst_zelQtConversions::narrowTextsAreUtf8()
{
    QCOMPARE(toQString(zelString("L\xC3\xA4nge")), QString::fromUtf8("Länge"));
    QCOMPARE(toQString(zelString(std::string("a\0b", 3))), QString("a") + QChar(0) + "b");
}

void tst_zelQtConversions::textsOfThePoolsFollowTheLanguage()
{
    QCOMPARE(toQStringFromPool(5589), QString::fromUtf8("ungültig"));
    QCOMPARE(toQStringFromPoolUi(1218), QString("Einheit"));
    setZelLanguage(ZelLanguage::English);
    QCOMPARE(toQStringFromPool(5589), QString("invalid"));
    QCOMPARE(toQStringFromPoolUi(1218), QString("Unit"));
}

void tst_zelQtConversions::unknownNumberIsAnEmptyText()
{
    QCOMPARE(toQStringFromPool(0), QString());
    QCOMPARE(toQStringFromPoolUi(-1), QString());
    QCOMPARE(toQStringFromPoolUi(5589), QString()); // a number of the other pool
}

void tst_zelQtConversions::everyUnitGoesThroughItsText()
{
    for (int i = 0; i < ZelDimensions::DynamicUnit; ++i) {
        const auto unit = static_cast<ZelDimensions::Unit>(i);
        const QString text = unitToString(unit);
        QVERIFY2(!text.isEmpty(), qPrintable(QString::number(i)));
        QCOMPARE(stringToUnit(text), unit);
    }
}

void tst_zelQtConversions::textsThatAreNoUnitGiveNoUnit()
{
    QCOMPARE(stringToUnit(""), ZelDimensions::NoUnit);
    QCOMPARE(stringToUnit("quaste"), ZelDimensions::NoUnit);
    QCOMPARE(unitToString(ZelDimensions::NoUnit), QString());
    QCOMPARE(unitToString(ZelDimensions::DynamicUnit), QString());
}

QTEST_APPLESS_MAIN(tst_zelQtConversions)
#include "tst_zelQtConversions.moc"
