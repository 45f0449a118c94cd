#include "zelDomNode.h"
#include "zelUiParser.h"

#include <QtTest>

class tst_zelUiParser : public QObject
{
    Q_OBJECT
private slots:
    void geometry_data();
    void geometry();
    void geometryOfANode();
    void frame();
    void words();
};

void tst_zelUiParser::geometry_data()
{
    QTest::addColumn<QString>("width");
    QTest::addColumn<QString>("height");
    QTest::addColumn<QString>("natural");
    QTest::addColumn<bool>("found");
    QTest::addColumn<bool>("isNatural");
    QTest::newRow("both") << "300"
                          << "200"
                          << "" << true << false;
    QTest::newRow("width alone") << "300"
                                 << ""
                                 << "" << false << false;
    QTest::newRow("height alone") << ""
                                  << "200"
                                  << "true" << false << true;
    QTest::newRow("natural") << ""
                             << ""
                             << "true" << false << true;
    QTest::newRow("both and natural") << "300"
                                      << "200"
                                      << "1" << true << true;
    QTest::newRow("not natural") << "300"
                                 << "200"
                                 << "false" << true << false;
    QTest::newRow("zero") << "0"
                          << "200"
                          << "" << false << false;
    QTest::newRow("negative") << "300"
                              << "-1"
                              << "" << false << false;
    QTest::newRow("word") << "wide"
                          << "200"
                          << "" << false << false;
}

void tst_zelUiParser::geometry()
{
    QFETCH(QString, width);
    QFETCH(QString, height);
    QFETCH(QString, natural);
    QFETCH(bool, found);
    AttrMap attributes;
    const auto add = [&attributes](const wchar_t *name, const QString &value) {
        if (!value.isEmpty())
            attributes[name] = value.toStdWString();
    };
    add(L"width", width);
    add(L"height", height);
    add(L"natural", natural);
    bool isNatural = true;
    int w = 7;
    int h = 8;
    QCOMPARE(ZelUiParser::hasGeometryAttribute(attributes, isNatural, w, h), found);
    QTEST(isNatural, "isNatural");
    QCOMPARE(w, found ? 300 : 7);
    QCOMPARE(h, found ? 200 : 8);
}

void tst_zelUiParser::geometryOfANode()
{
    ZelDomNode node(L"image");
    node.setAttribute(L"width", L"30");
    node.setAttribute(L"height", L"20");
    bool natural = true;
    int w = 0;
    int h = 0;
    QVERIFY(ZelUiParser::hasGeometryAttribute(&node, natural, w, h));
    QVERIFY(!natural && w == 30 && h == 20);
    natural = true;
    QVERIFY(!ZelUiParser::hasGeometryAttribute(static_cast<const ZelDomNode *>(nullptr), natural, w,
                                               h));
    QVERIFY(!natural);
}

void tst_zelUiParser::frame()
{
    ZelDomNode node(L"board");
    QVERIFY(!ZelUiParser::hasFrameAttribute(nullptr));
    QVERIFY(!ZelUiParser::hasFrameAttribute(&node));
    node.setAttribute(L"frame", L"false");
    QVERIFY(!ZelUiParser::hasFrameAttribute(&node));
    node.setAttribute(L"frame", L"true");
    QVERIFY(ZelUiParser::hasFrameAttribute(&node));
}

void tst_zelUiParser::words()
{
    const auto words = ZelUiParser::words(L" info, size\tplus,,file ");
    QStringList texts;
    for (const zelWString &word : words)
        texts << QString::fromStdWString(word);
    QCOMPARE(texts, QStringList({"info", "size", "plus", "file"}));
    QVERIFY(ZelUiParser::words(L"").empty());
}

QTEST_GUILESS_MAIN(tst_zelUiParser)
#include "tst_zelUiParser.moc"
