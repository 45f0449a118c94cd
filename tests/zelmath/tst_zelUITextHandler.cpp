#include "translator.h"
#include "zelDomNode.h"
#include "zelTextTable.h"
#include "zelUITextHandler.h"

#include <QtTest>

namespace {

QString textOf(const ZelUITextHandler &handler)
{
    return QString::fromStdWString(handler.getText());
}

std::shared_ptr<const ZelTextTable> makeTexts()
{
    ZelFaultList faults;
    auto texts = std::make_shared<const ZelTextTable>(
        ZelTextTable::fromText("key\tGerman\tEnglish\tFrench\n"
                               "\tLager\tBearing\tRoulement\n"
                               "\tTragzahl\tLoad rating\t\n"
                               "store\tLager\tStore\tEntrepôt\n",
                               "bearing.tsv", faults));
    Q_ASSERT(faults.empty());
    return texts;
}

} // namespace

class tst_zelUITextHandler : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { setZelLanguage(ZelLanguage::German); }
    void startsEmpty();
    void numberIsLookedUpInThePool();
    void numberFollowsTheLanguage();
    void unknownNumberIsEmptyText();
    void hashWithDigitsIsANumber_data();
    void hashWithDigitsIsANumber();
    void nodeGivesItsTextAttribute();
    void nodeWithoutTextAttributeGivesItsContent();
    void nodeTextIsTranslatedByTheTableOfItsFile();
    void keyPicksTheRowOfAHomonym();
    void otherAttributeIgnoresTheKey();
    void missingOtherAttributeIsEmpty();
    void nullNodeClears();
    void missingTranslationFallsBackToEnglishThenGerman();
    void copyIsIndependent();
    void clearForgetsEverything();
};

void tst_zelUITextHandler::startsEmpty()
{
    QVERIFY(ZelUITextHandler().empty());
    QVERIFY(ZelUITextHandler().getText().empty());
}

void tst_zelUITextHandler::numberIsLookedUpInThePool()
{
    ZelUITextHandler handler;
    handler.setTextId(8460);
    QVERIFY(!handler.empty());
    QVERIFY(!textOf(handler).isEmpty());
    QCOMPARE(textOf(handler), QString::fromStdWString(pool.GetString(8460)));
}

void tst_zelUITextHandler::numberFollowsTheLanguage()
{
    ZelUITextHandler handler;
    handler.setTextId(8460);
    const QString german = textOf(handler);
    setZelLanguage(ZelLanguage::English);
    QVERIFY(textOf(handler) != german);
}

void tst_zelUITextHandler::unknownNumberIsEmptyText()
{
    ZelUITextHandler handler;
    handler.setTextId(-77);
    QVERIFY(!handler.empty());
    QVERIFY(handler.getText().empty());
}

void tst_zelUITextHandler::hashWithDigitsIsANumber_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<bool>("number");
    QTest::newRow("number") << "#8460" << true;
    QTest::newRow("hash alone") << "#" << false;
    QTest::newRow("with blank") << "# 8460" << false;
    QTest::newRow("with letters") << "#8460a" << false;
    QTest::newRow("hash behind") << "8460#" << false;
    QTest::newRow("negative") << "#-8460" << false;
}

void tst_zelUITextHandler::hashWithDigitsIsANumber()
{
    QFETCH(QString, source);
    QFETCH(bool, number);
    ZelUITextHandler handler;
    handler.setText(zelWString(source.toStdWString()));
    QCOMPARE(textOf(handler), number ? QString::fromStdWString(pool.GetString(8460)) : source);
}

void tst_zelUITextHandler::nodeGivesItsTextAttribute()
{
    ZelDomNode node(L"real");
    node.setAttribute(L"text", L"Tragzahl");
    node.setContent(L"Inhalt");
    ZelUITextHandler handler;
    handler.setup(&node);
    QCOMPARE(textOf(handler), QString("Tragzahl"));
}

void tst_zelUITextHandler::nodeWithoutTextAttributeGivesItsContent()
{
    ZelDomNode node(L"label");
    node.setContent(L"Inhalt");
    ZelUITextHandler handler;
    handler.setup(&node);
    QCOMPARE(textOf(handler), QString("Inhalt"));
}

void tst_zelUITextHandler::nodeTextIsTranslatedByTheTableOfItsFile()
{
    ZelDomNode node(L"real");
    node.setTexts(makeTexts());
    node.setAttribute(L"text", L"Lager");
    ZelUITextHandler handler;
    handler.setup(&node);
    QCOMPARE(textOf(handler), QString("Lager"));
    setZelLanguage(ZelLanguage::French);
    QCOMPARE(textOf(handler), QString("Roulement"));
}

void tst_zelUITextHandler::keyPicksTheRowOfAHomonym()
{
    ZelDomNode node(L"real");
    node.setTexts(makeTexts());
    node.setAttribute(L"text", L"Lager");
    node.setAttribute(L"key", L"store");
    ZelUITextHandler handler;
    handler.setup(&node);
    setZelLanguage(ZelLanguage::English);
    QCOMPARE(textOf(handler), QString("Store"));
}

void tst_zelUITextHandler::otherAttributeIgnoresTheKey()
{
    ZelDomNode node(L"real");
    node.setTexts(makeTexts());
    node.setAttribute(L"key", L"store");
    node.setAttribute(L"status", L"Lager");
    ZelUITextHandler handler;
    handler.setup(&node, L"status");
    setZelLanguage(ZelLanguage::English);
    QCOMPARE(textOf(handler), QString("Bearing"));
}

void tst_zelUITextHandler::missingOtherAttributeIsEmpty()
{
    ZelDomNode node(L"real");
    node.setContent(L"Inhalt");
    ZelUITextHandler handler;
    handler.setup(&node, L"status");
    QVERIFY(handler.empty());
}

void tst_zelUITextHandler::nullNodeClears()
{
    ZelUITextHandler handler;
    handler.setText(L"alt");
    handler.setup(nullptr);
    QVERIFY(handler.empty());
    handler.setText(L"alt");
    handler.setup(nullptr, L"status");
    QVERIFY(handler.empty());
}

void tst_zelUITextHandler::missingTranslationFallsBackToEnglishThenGerman()
{
    ZelUITextHandler handler;
    handler.setText(L"Tragzahl", makeTexts());
    setZelLanguage(ZelLanguage::French);
    QCOMPARE(textOf(handler), QString("Load rating"));
    handler.setText(L"Unbekannt", makeTexts());
    QCOMPARE(textOf(handler), QString("Unbekannt"));
}

void tst_zelUITextHandler::copyIsIndependent()
{
    ZelUITextHandler first;
    first.setText(L"eins");
    ZelUITextHandler second(first);
    first.setText(L"zwei");
    QCOMPARE(textOf(second), QString("eins"));
    second = first;
    QCOMPARE(textOf(second), QString("zwei"));
}

void tst_zelUITextHandler::clearForgetsEverything()
{
    ZelUITextHandler handler;
    handler.setTextId(8460);
    handler.clear();
    QVERIFY(handler.empty());
    handler.setText(L"Lager", makeTexts(), L"store");
    handler.clear();
    QVERIFY(handler.empty());
    setZelLanguage(ZelLanguage::English);
    QVERIFY(handler.getText().empty());
}

QTEST_APPLESS_MAIN(tst_zelUITextHandler)
#include "tst_zelUITextHandler.moc"
