#include "faults.h"
#include "translator.h"
#include "zelDomDocument.h"
#include "zelTextTable.h"
#include "zelUITextHandler.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

const QByteArray description = R"(<?xml version="1.0" encoding="UTF-8"?>
<!-- Wälzlager -->
<module id="bearing" class="BearingModule">
 <variables>
  <real name="C" text="Tragzahl" formula="C" unit="N" readonly="bearing != 'own'"/>
  <list name="lube" text="Schmierung &amp; Öl" initial="grease">
   <entry id="1" name="grease" text="Fett"/><entry id="2" name="oil" text="Öl"/>
  </list>
 </variables>
 <page name='input' text='Eingabe "1"'>
  <label>  Länge &#252;ber <![CDATA[<alles>]]>
  </label>
 </page>
</module>
)";

ZelDomDocument read(const QByteArray &bytes, ZelFaultList &faults)
{
    return ZelDomDocument::fromText(bytes.toStdString(), "bearing.xml", faults);
}

QString toText(const zelWString &text)
{
    return QString::fromStdWString(text);
}

// The tree in one line: name(attribute=value ...)[child child] and content in quotes.
QString outline(const ZelDomNode *node)
{
    if (!node)
        return "null";
    QString text = toText(node->name());
    QStringList parts;
    for (const auto &[name, value] : node->attributes())
        parts << toText(name) + "=" + toText(value);
    if (!parts.isEmpty())
        text += "(" + parts.join(" ") + ")";
    if (!node->content().empty())
        text += "\"" + toText(node->content()) + "\"";
    QStringList children;
    for (const ZelDomNode *child = node->firstChild(); child; child = child->nextSibling())
        children << outline(child);
    if (!children.isEmpty())
        text += "[" + children.join(" ") + "]";
    return text;
}

QString place(ZelPlace place)
{
    return QString("%1:%2").arg(place.mLine).arg(place.mColumn);
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

} // namespace

class tst_zelDomDocument : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { setZelLanguage(ZelLanguage::German); }

    void nodeOfItsOwn();
    void childrenAreSiblings();
    void removedChildLeavesTheOthersInOrder();
    void textsReachAllNodes();

    void readsADescription();
    void nodesKnowTheirPlaces();
    void columnsCountCharacters();
    void byteOrderMarkCountsForNothing();
    void contentJoinsTextAndSections();

    void faultsHaveCodeAndPlace_data();
    void faultsHaveCodeAndPlace();
    void treeBeforeAFaultIsKept_data();
    void treeBeforeAFaultIsKept();
    void entitiesOfXmlAreKnown();
    void instructionsAndDocumentTypeCountForNothing();

    void thirtyTwoLevelsAreAccepted();
    void deeperLevelsAreLeftOut();
    void deepNestingEnds_data();
    void deepNestingEnds();
    void fourMebibytesAreAccepted();
    void largerFilesAreRefused();
    void longLineWithManyFaultsEnds();

    void readsAFileWithItsTranslations();
    void translationsMayBeMissing();
    void faultsOfTranslationsNameTheirFile();
    void fileThatCannotBeReadIsReported_data();
    void fileThatCannotBeReadIsReported();

    void survivesTruncationAtEveryByte();
    void survivesEveryByteFlipped();
    void documentMoves();
};

void tst_zelDomDocument::nodeOfItsOwn()
{
    ZelDomNode node(L"real");
    QVERIFY(node.name() == L"real");
    QVERIFY(!node.parentNode());
    QVERIFY(!node.nextSibling());
    QVERIFY(!node.nextSibling(L"real"));
    QVERIFY(!node.firstChild());
    QVERIFY(!node.hasAttribute(L"name"));
    QVERIFY(node.attribute(L"name").empty());
    node.setPlace({3, 4});
    node.setAttribute(L"name", L"C", {3, 9});
    node.setAttribute(L"unit", L"N");
    QVERIFY(node.hasAttribute(L"name"));
    QVERIFY(node.attribute(L"name") == L"C");
    QCOMPARE(place(node.attributePlace(L"name")), QString("3:9"));
    QCOMPARE(place(node.attributePlace(L"unit")), QString("3:4"));
    QCOMPARE(place(node.attributePlace(L"none")), QString("3:4"));
    node.removeAttribute(L"name");
    QVERIFY(!node.hasAttribute(L"name"));
    QCOMPARE(place(node.attributePlace(L"name")), QString("3:4"));
    node.removeAttribute(L"name");
}

void tst_zelDomDocument::childrenAreSiblings()
{
    ZelDomNode node(L"column");
    ZelDomNode *first = node.addChild(L"var");
    ZelDomNode *second = node.addChild(L"table");
    ZelDomNode *third = node.addChild(L"var");
    QCOMPARE(node.firstChild(), first);
    QCOMPARE(node.firstChild(L"table"), second);
    QVERIFY(!node.firstChild(L"line"));
    QCOMPARE(first->nextSibling(), second);
    QCOMPARE(first->nextSibling(L"var"), third);
    QVERIFY(!second->nextSibling(L"table"));
    QVERIFY(!third->nextSibling());
    QCOMPARE(second->parentNode(), &node);
}

void tst_zelDomDocument::removedChildLeavesTheOthersInOrder()
{
    ZelDomNode node(L"column");
    ZelDomNode *first = node.addChild(L"a");
    ZelDomNode *second = node.addChild(L"b");
    node.addChild(L"c");
    second->addChild(L"x");
    node.removeChild(second);
    QCOMPARE(outline(&node), QString("column[a c]"));
    node.removeChild(nullptr);
    ZelDomNode other(L"other");
    other.removeChild(first);
    QCOMPARE(outline(&node), QString("column[a c]"));
    node.removeChild(first);
    QCOMPARE(outline(&node), QString("column[c]"));
}

void tst_zelDomDocument::textsReachAllNodes()
{
    const auto texts = std::make_shared<const ZelTextTable>();
    ZelDomNode node(L"a");
    ZelDomNode *before = node.addChild(L"b")->addChild(L"c");
    node.setTexts(texts);
    QCOMPARE(before->texts(), texts);
    QCOMPARE(before->addChild(L"d")->texts(), texts);
}

void tst_zelDomDocument::readsADescription()
{
    ZelFaultList faults;
    const ZelDomDocument document = read(description, faults);
    QCOMPARE(faultPlaces(faults), QStringList());
    QCOMPARE(document.fileName(), std::string("bearing.xml"));
    QCOMPARE(outline(document.root()),
             QString("module(class=BearingModule id=bearing)[variables["
                     "real(formula=C name=C readonly=bearing != 'own' text=Tragzahl unit=N) "
                     "list(initial=grease name=lube text=Schmierung & Öl)["
                     "entry(id=1 name=grease text=Fett) entry(id=2 name=oil text=Öl)]] "
                     "page(name=input text=Eingabe \"1\")[label\"Länge über <alles>\"]]"));
}

void tst_zelDomDocument::nodesKnowTheirPlaces()
{
    ZelFaultList faults;
    const ZelDomDocument document = read(description, faults);
    const ZelDomNode *root = document.root();
    QVERIFY(root);
    QCOMPARE(place(root->place()), QString("3:2"));
    QCOMPARE(place(root->attributePlace(L"id")), QString("3:9"));
    QCOMPARE(place(root->attributePlace(L"class")), QString("3:22"));
    const ZelDomNode *page = root->firstChild(L"page");
    QVERIFY(page);
    QCOMPARE(place(page->place()), QString("10:3"));
    QCOMPARE(place(page->attributePlace(L"text")), QString("10:21"));
    QCOMPARE(place(page->attributePlace(L"none")), QString("10:3"));
}

void tst_zelDomDocument::columnsCountCharacters()
{
    ZelFaultList faults;
    const ZelDomDocument document = read("<a\n  t=\"Öl ≥ 𝜏\"\tx = '1'><b/>äöü<c/></a>", faults);
    QCOMPARE(faultPlaces(faults), QStringList());
    QCOMPARE(place(document.root()->attributePlace(L"t")), QString("2:3"));
    QCOMPARE(place(document.root()->attributePlace(L"x")), QString("2:14"));
    QCOMPARE(place(document.root()->firstChild(L"b")->place()), QString("2:23"));
    QCOMPARE(place(document.root()->firstChild(L"c")->place()), QString("2:30"));
}

void tst_zelDomDocument::byteOrderMarkCountsForNothing()
{
    ZelFaultList faults;
    const ZelDomDocument document = read("\xEF\xBB\xBF<a x='1'/>", faults);
    QCOMPARE(faultPlaces(faults), QStringList());
    QCOMPARE(outline(document.root()), QString("a(x=1)"));
    QCOMPARE(place(document.root()->place()), QString("1:2"));
    QCOMPARE(place(document.root()->attributePlace(L"x")), QString("1:4"));
}

void tst_zelDomDocument::contentJoinsTextAndSections()
{
    ZelFaultList faults;
    const ZelDomDocument document =
        read("<a>\r\n eins <b>drin</b><!-- nicht --> zwei&lt;<![CDATA[ & ]]>\t</a>", faults);
    QCOMPARE(faultPlaces(faults), QStringList());
    QCOMPARE(outline(document.root()), QString("a\"eins  zwei< &\"[b\"drin\"]"));
}

void tst_zelDomDocument::faultsHaveCodeAndPlace_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("places");
    const auto row = [](const char *name, const QByteArray &bytes, const QStringList &places) {
        QTest::newRow(name) << bytes << places;
    };
    row("empty file", "", {"1:1 Syntax"});
    row("byte order mark alone", "\xEF\xBB\xBF", {"1:1 Syntax"});
    row("blanks", " \n ", {"1:1 Syntax"});
    row("comment alone", "<!-- a -->", {"1:1 Syntax"});
    row("UTF-16 little endian", QByteArray("\xFF\xFE<\0a\0/\0>\0", 10), {"1:1 NotUtf8"});
    row("UTF-16 big endian", QByteArray("\xFE\xFF\0<\0a\0/\0>", 10), {"1:1 NotUtf8"});
    row("text alone", "kein XML", {"1:1 Syntax", "1:1 Syntax"});
    row("Latin-1", "<a>\n <b t=\"Öl, L\xE4nge, W\xE4rme\"/></a>", {"2:13 NotUtf8"});
    row("overlong bytes", "<a t=\"\xC0\xAF\"/>", {"1:7 NotUtf8"});
    row("surrogate", "<a t=\"\xED\xA0\x80\"/>", {"1:7 NotUtf8"});
    row("cut-off character", "<a/>\xE2\x82", {"1:5 NotUtf8", "1:5 Syntax"});
    row("control character", "<a t=\"x\x01\"/>", {"1:8 Syntax"});
    row("zero byte", QByteArray("<a>\0</a>", 8), {"1:4 Syntax"});
    row("end tag of another name", "<a>\n <b>\n </c>\n</a>", {"3:4 Syntax"});
    row("end tags crossed", "<a><b></a></b>", {"1:9 Syntax"});
    row("end tag without start", "<a/></b>", {"1:7 Syntax"});
    row("element that does not end", "<a>\n<b/>\n", {"3:1 Syntax"});
    row("tag that does not end", "<a>\n<b", {"2:2 Syntax"});
    row("attribute without value", "<a>\n<b x/></a>", {"2:6 Syntax"});
    row("attribute without quotes", "<a>\n<b x=1/></a>", {"2:6 Syntax"});
    row("attribute that does not end", "<a>\n<b x=\"1/></a>", {"2:7 Syntax"});
    row("attributes without blank", "<a x='1'y='2'/>", {"1:9 Syntax"});
    row("comment that does not end", "<a>\n<!-- b </a>", {"2:11 Syntax"});
    row("section that does not end", "<a><![CDATA[ b </a>", {"1:13 Syntax"});
    row("name that is none", "<a><1/></a>", {"1:5 Syntax"});
    row("lone less-than sign", "<a>1 < 2</a>", {"1:7 Syntax"});
    row("second root", "<a/>\n <b x='1'/>\n<c/>", {"2:3 SecondRoot", "3:2 SecondRoot"});
    row("text before the root", "\n hallo <a/>", {"2:2 Syntax"});
    row("text behind the root", "<a/>\n hallo", {"2:2 Syntax"});
    row("attribute twice", "<a x='1' y='2'\n x='3'/>", {"2:2 DuplicateAttribute"});
    row("attribute three times", "<a x='1' x='2' x='3'/>",
        {"1:10 DuplicateAttribute", "1:16 DuplicateAttribute"});
    row("unknown entity in a text", "<a>\n ä &auml; b</a>", {"2:4 UnknownEntity"});
    row("unknown entity in an attribute", "<a x='&nbsp;'/>", {"1:7 UnknownEntity"});
    row("lone ampersand", "<a x='a & b'>c & d</a>", {"1:9 UnknownEntity", "1:16 UnknownEntity"});
    row("ampersands of a condition", "<a x='a && b'/>",
        {"1:9 UnknownEntity", "1:10 UnknownEntity"});
    row("number that is no character",
        "<a>&#0;&#xD800;&#x110000;&#x;&#a;&#99999999999999999999;</a>",
        {"1:4 UnknownEntity", "1:8 UnknownEntity", "1:16 UnknownEntity", "1:26 UnknownEntity",
         "1:30 UnknownEntity", "1:34 UnknownEntity"});
    row("entity that does not end", "<a>&amp</a>", {"1:4 UnknownEntity"});
    row("entity of a document type", "<!DOCTYPE a [<!ENTITY e 'x'>]>\n<a>&e;</a>",
        {"2:4 UnknownEntity"});
    row("faults in the order of the file", "<a x='&u;' x='1'>&v;<b y='&w;'/>&x;</a><c/>",
        {"1:7 UnknownEntity", "1:12 DuplicateAttribute", "1:18 UnknownEntity", "1:27 UnknownEntity",
         "1:33 UnknownEntity", "1:41 SecondRoot"});
}

void tst_zelDomDocument::faultsHaveCodeAndPlace()
{
    QFETCH(QByteArray, bytes);
    ZelFaultList faults;
    read(bytes, faults);
    QTEST(faultPlaces(faults), "places");
    for (const ZelFault &fault : faults) {
        QCOMPARE(fault.mFile, std::string("bearing.xml"));
        QVERIFY(!fault.mText.empty());
    }
}

void tst_zelDomDocument::treeBeforeAFaultIsKept_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("tree");
    const auto row = [](const char *name, const QByteArray &bytes, const char *tree) {
        QTest::newRow(name) << bytes << QString(tree);
    };
    row("end tag of another name", "<a><b x='1'/><c></d><e/></a>", "a[b(x=1) c]");
    row("attribute without value", "<a><b x='1'/><c y='2' z/><e/></a>", "a[b(x=1) c(y=2)]");
    row("attribute that does not end", "<a><b x='1'/><c y='2' z='3/></a>", "a[b(x=1) c(y=2)]");
    row("element that does not end", "<a x='1'><b>", "a(x=1)[b]");
    row("second root", "<a/><b/>", "a");
    row("attribute twice: the first one holds", "<a x='1' x='2'/>", "a(x=1)");
    row("unknown entity stays as written", "<a x='&uuml;'>&b;</a>", "a(x=&uuml;)\"&b;\"");
    row("bad bytes become question marks", "<a x='L\xE4nge'/>", "a(x=L?nge)");
    row("nothing of UTF-16", QByteArray("\xFF\xFE<\0a\0/\0>\0", 10), "null");
    row("nothing of text", "kein XML", "null");
}

void tst_zelDomDocument::treeBeforeAFaultIsKept()
{
    QFETCH(QByteArray, bytes);
    ZelFaultList faults;
    const ZelDomDocument document = read(bytes, faults);
    QVERIFY(!faults.empty());
    QTEST(outline(document.root()), "tree");
}

void tst_zelDomDocument::entitiesOfXmlAreKnown()
{
    ZelFaultList faults;
    const ZelDomDocument document =
        read("<a x='&lt;&gt;&amp;&quot;&apos;&#9;&#xE4;&#x1D70F;'><![CDATA[&x;]]><!-- &y; --></a>",
             faults);
    QCOMPARE(faultPlaces(faults), QStringList());
    QCOMPARE(outline(document.root()), QString("a(x=<>&\"'\tä𝜏)\"&x;\""));
}

void tst_zelDomDocument::instructionsAndDocumentTypeCountForNothing()
{
    ZelFaultList faults;
    const ZelDomDocument document =
        read("<?xml version='1.0'?><!DOCTYPE a><?style x?><a><?go?><b/></a><!-- end -->", faults);
    QCOMPARE(faultPlaces(faults), QStringList());
    QCOMPARE(outline(document.root()), QString("a[b]"));
}

void tst_zelDomDocument::thirtyTwoLevelsAreAccepted()
{
    ZelFaultList faults;
    const ZelDomDocument document =
        read(QByteArray("<a>").repeated(32) + QByteArray("</a>").repeated(32), faults);
    QCOMPARE(faultPlaces(faults), QStringList());
    int levels = 0;
    for (const ZelDomNode *node = document.root(); node; node = node->firstChild())
        ++levels;
    QCOMPARE(levels, 32);
}

void tst_zelDomDocument::deeperLevelsAreLeftOut()
{
    ZelFaultList faults;
    const ZelDomDocument document =
        read(QByteArray("<a>").repeated(32) + "<b><c/></b><d/>" + QByteArray("</a>").repeated(32),
             faults);
    QCOMPARE(faultPlaces(faults), (QStringList{"1:98 TooDeep", "1:109 TooDeep"}));
    QVERIFY(document.root());
    QVERIFY(!outline(document.root()).contains('b'));
}

void tst_zelDomDocument::deepNestingEnds_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("places");
    QTest::newRow("closed") << QByteArray("<a>").repeated(100000)
            + QByteArray("</a>").repeated(100000)
                            << QStringList{"1:98 TooDeep"};
    QTest::newRow("open") << QByteArray("<a>").repeated(100000)
                          << QStringList{"1:98 TooDeep", "1:300001 Syntax"};
    QTest::newRow("open tags only")
        << QByteArray("<a ").repeated(100000) << QStringList{"1:4 Syntax"};
}

void tst_zelDomDocument::deepNestingEnds()
{
    QFETCH(QByteArray, bytes);
    ZelFaultList faults;
    const ZelDomDocument document = read(bytes, faults);
    QVERIFY(document.root());
    QTEST(faultPlaces(faults), "places");
}

void tst_zelDomDocument::fourMebibytesAreAccepted()
{
    ZelFaultList faults;
    const QByteArray bytes = "<a>" + QByteArray(4 * 1024 * 1024 - 7, 'x') + "</a>";
    const ZelDomDocument document = read(bytes, faults);
    QCOMPARE(faultPlaces(faults), QStringList());
    QCOMPARE(document.root()->content().size(), size_t(4 * 1024 * 1024 - 7));
}

void tst_zelDomDocument::largerFilesAreRefused()
{
    ZelFaultList faults;
    const ZelDomDocument document =
        read("<a>" + QByteArray(10 * 1024 * 1024, 'x') + "</a>", faults);
    QCOMPARE(faultPlaces(faults), QStringList{"0:0 FileTooLarge"});
    QVERIFY(!document.root());
    faults.clear();
    read("<a>" + QByteArray(4 * 1024 * 1024 - 6, 'x') + "</a>", faults);
    QCOMPARE(faultPlaces(faults), QStringList{"0:0 FileTooLarge"});
}

// Looking for each place from the beginning of the line would take longer than a test may.
void tst_zelDomDocument::longLineWithManyFaultsEnds()
{
    ZelFaultList faults;
    read("<a>" + QByteArray("<b x='&'/>").repeated(400000) + "</a>", faults);
    QVERIFY(faults.size() >= zelFaultLimit);
    QVERIFY(faults.size() <= 1000);
}

void tst_zelDomDocument::readsAFileWithItsTranslations()
{
    QTemporaryDir dir;
    write(dir.filePath("lager.xml"), "<a text='Lager'><b text='Öl'/></a>");
    write(dir.filePath("lager.tsv"), "German\tEnglish\nLager\tBearing\nÖl\tOil\n");
    ZelFaultList faults;
    const std::string path = dir.filePath("lager.xml").toStdString();
    const ZelDomDocument document = ZelDomDocument::fromFile(path, faults);
    QCOMPARE(faultPlaces(faults), QStringList());
    QCOMPARE(document.fileName(), path);
    QVERIFY(document.root() && document.root()->texts());
    ZelUITextHandler text;
    text.setup(document.root()->firstChild());
    QCOMPARE(toText(text.getText()), QString("Öl"));
    setZelLanguage(ZelLanguage::English);
    QCOMPARE(toText(text.getText()), QString("Oil"));
}

void tst_zelDomDocument::translationsMayBeMissing()
{
    QTemporaryDir dir;
    write(dir.filePath("lager.xml"), "<a/>");
    ZelFaultList faults;
    const ZelDomDocument document =
        ZelDomDocument::fromFile(dir.filePath("lager.xml").toStdString(), faults);
    QCOMPARE(faultPlaces(faults), QStringList());
    QVERIFY(document.root());
    QVERIFY(!document.root()->texts());
}

void tst_zelDomDocument::faultsOfTranslationsNameTheirFile()
{
    QTemporaryDir dir;
    write(dir.filePath("lager.xml"), "<a/>");
    write(dir.filePath("lager.tsv"), "German\nLager\nLager\n");
    ZelFaultList faults;
    ZelDomDocument::fromFile(dir.filePath("lager.xml").toStdString(), faults);
    QCOMPARE(faultPlaces(faults), QStringList{"3:1 DuplicateName"});
    QCOMPARE(faults[0].mFile, dir.filePath("lager.tsv").toStdString());
}

void tst_zelDomDocument::fileThatCannotBeReadIsReported_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << "none.xml";
    QTest::newRow("directory") << ".";
    QTest::newRow("in a missing directory") << "none/none.xml";
    QTest::newRow("link to itself") << "link.xml";
}

void tst_zelDomDocument::fileThatCannotBeReadIsReported()
{
    QFETCH(QString, name);
    QTemporaryDir dir;
    QFile::link(dir.filePath("link.xml"), dir.filePath("link.xml"));
    ZelFaultList faults;
    const std::string path = dir.filePath(name).toStdString();
    const ZelDomDocument document = ZelDomDocument::fromFile(path, faults);
    QVERIFY(!document.root());
    QCOMPARE(faultPlaces(faults), QStringList{"0:0 FileMissing"});
    QCOMPARE(faults[0].mFile, path);
    QCOMPARE(document.fileName(), path);
}

void tst_zelDomDocument::survivesTruncationAtEveryByte()
{
    for (int size = 0; size < description.trimmed().size(); ++size) {
        ZelFaultList faults;
        const ZelDomDocument document = read(description.left(size), faults);
        QVERIFY2(!faults.empty(), qPrintable(QString::number(size)));
        QVERIFY(outline(document.root()).size() > 0);
    }
}

void tst_zelDomDocument::survivesEveryByteFlipped()
{
    int rooted = 0;
    for (int i = 0; i < description.size(); ++i) {
        for (const char byte : {'\0', '\xFF', '\x80', '<', '>', '&', '"', '\'', '/', '\n'}) {
            QByteArray bytes = description;
            bytes[i] = byte;
            ZelFaultList faults;
            const ZelDomDocument document = read(bytes, faults);
            QVERIFY2(document.root() || !faults.empty(), qPrintable(QString::number(i)));
            for (const ZelFault &fault : faults)
                QVERIFY(fault.mLine >= 1 && fault.mLine <= description.count('\n') + 2);
            rooted += document.root() != nullptr;
        }
    }
    QVERIFY(rooted > description.size());
}

void tst_zelDomDocument::documentMoves()
{
    ZelFaultList faults;
    ZelDomDocument first = read("<a><b/></a>", faults);
    const ZelDomNode *root = first.root();
    ZelDomDocument second(std::move(first));
    QCOMPARE(second.root(), root);
    ZelDomDocument third;
    QVERIFY(!third.root());
    third = std::move(second);
    QCOMPARE(outline(third.root()), QString("a[b]"));
}

QTEST_APPLESS_MAIN(tst_zelDomDocument)
#include "tst_zelDomDocument.moc"
