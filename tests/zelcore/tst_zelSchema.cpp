#include "zelSchema.h"

#include "zelDomDocument.h"
#include "zelDomNode.h"

#include <QtTest>

Q_DECLARE_METATYPE(ZelFaultCode)

namespace {

// The marker stands where the fault is expected.
const std::string marker = "¦";

struct Source
{
    std::string mText;
    int mLine = 0;
    int mColumn = 0;
};

Source withoutMarker(std::string text)
{
    Source source;
    const size_t at = text.find(marker);
    if (at != std::string::npos) {
        const std::string before = text.substr(0, at);
        source.mLine = 1 + static_cast<int>(std::count(before.begin(), before.end(), '\n'));
        const size_t lineStart = before.rfind('\n') + 1; // npos + 1 is 0
        source.mColumn = 1 + QString::fromStdString(before.substr(lineStart)).size();
        text.erase(at, marker.size());
    }
    source.mText = text;
    return source;
}

std::string module(const QString &variables, const QString &lines)
{
    return "<module id=\"m\">\n<variables>\n" + variables.toStdString()
        + "\n</variables>\n<page>\n<board><column>\n" + lines.toStdString()
        + "\n</column></board>\n</page>\n</module>\n";
}

// Tag, attributes and children, enough to see what was taken out.
QString written(const ZelDomNode *node)
{
    QString text = QString::fromStdString(node->name().toUtf8());
    QStringList parts;
    for (const auto &[name, value] : node->attributes())
        parts += QString::fromStdString(name.toUtf8() + "=" + value.toUtf8());
    if (!node->content().empty())
        parts += QString::fromStdString(node->content().toUtf8());
    for (const ZelDomNode *child = node->firstChild(); child; child = child->nextSibling())
        parts += written(child);
    return parts.isEmpty() ? text : text + "(" + parts.join(" ") + ")";
}

QString childrenOf(const ZelDomNode *node)
{
    QStringList parts;
    for (const ZelDomNode *child = node->firstChild(); child; child = child->nextSibling())
        parts += written(child);
    return parts.join(" ");
}

} // namespace

class tst_zelSchema : public QObject
{
    Q_OBJECT
private slots:
    void theFullExampleHasNoFault();
    void faultIsPrintedWithPlaceOfTheValue();
    void faultOfVariable_data();
    void faultOfVariable();
    void faultOfLine_data();
    void faultOfLine();
    void faultOfFrame_data();
    void faultOfFrame();
    void usesOfWhatIsLeftOutAreNoFurtherFaults();
    void faultsStandInTheOrderOfTheFile();
    void faultsBeyondTheLimitAreCounted();
    void manyFaultyTagsTakeNoQuadraticTime();

private:
    void checkOne(const std::string &source, ZelFaultCode code, const QString &message);
    ZelDomDocument mDocument;
};

void tst_zelSchema::checkOne(const std::string &source, ZelFaultCode code, const QString &message)
{
    const Source expected = withoutMarker(source);
    QVERIFY2(expected.mLine > 0, "the row has no marker");
    ZelFaultList faults;
    mDocument = ZelDomDocument::fromText(expected.mText, "m.xml", faults);
    QVERIFY(faults.empty());

    zelCheckDescription(mDocument, faults);

    QVERIFY(!faults.empty());
    const QString report = QString::fromStdString(zelFaultReport(faults));
    QVERIFY2(faults.size() == 1, qPrintable(report));
    QCOMPARE(QString::fromStdString(faults[0].mText + " (" + faults[0].mExpected + ")"), message);
    QCOMPARE(static_cast<int>(faults[0].mCode), static_cast<int>(code));
    QCOMPARE(faults[0].mLine, expected.mLine);
    QCOMPARE(faults[0].mColumn, expected.mColumn);
    QCOMPARE(faults[0].mFile, std::string("m.xml"));
}

void tst_zelSchema::theFullExampleHasNoFault()
{
    ZelFaultList faults;
    ZelDomDocument document = ZelDomDocument::fromFile(TEST_DATA_DIR "/bearing.xml", faults);
    QVERIFY(document.root());
    zelCheckDescription(document, faults);
    QCOMPARE(QString::fromStdString(zelFaultReport(faults)), QString());
    QVERIFY(document.root()->firstChild(L"page")->firstChild(L"external"));
}

void tst_zelSchema::faultIsPrintedWithPlaceOfTheValue()
{
    const std::string source = "<module id=\"bearing\">\n"
                               " <variables>\n"
                               "  <bool name=\"modified\"/>\n"
                               "  <real name=\"C\" text=\"Tragzahl\" formula=\"C\" unit=\"kp\"/>\n"
                               " </variables>\n"
                               "</module>\n";
    ZelFaultList faults;
    ZelDomDocument document = ZelDomDocument::fromText(source, "bearing.xml", faults);
    zelCheckDescription(document, faults);
    QCOMPARE(QString::fromStdString(zelFaultReport(faults)),
             QString("bearing.xml:4:52: error: unknown unit \"kp\" of <real name=\"C\"> "
                     "(force: N, daN, kN, MN, ...)\n"));
}

void tst_zelSchema::faultOfVariable_data()
{
    QTest::addColumn<QString>("variables");
    QTest::addColumn<ZelFaultCode>("code");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("left");

    const auto row = [](const char *name, const char *variables, ZelFaultCode code,
                        const char *message, const char *left) {
        QTest::newRow(name) << QString(variables) << code << QString(message) << QString(left);
    };
    using enum ZelFaultCode;

    row("misspelt tag takes its subtree",
        R"(<bool name="b"/><¦lst name="a"><entry id="1" name="x"/></lst>)", UnknownElement,
        R"(unknown tag <lst> (did you mean <list>?))", "bool(name=b)");
    row("unknown tag", R"(<bool name="b"/><¦wheel name="a"/>)", UnknownElement,
        "unknown tag <wheel> (<real>, <int>, <bool>, <text>, <notes>, <functext>, <button>, "
        "<image>, <list>, <reallist>, <funclist>, <realfunclist>, <dblist>, <material>, "
        "<lubricant>, <choice>, "
        "<table>)",
        "bool(name=b)");
    row("misplaced tag", R"(<bool name="b"/><¦entry id="1" name="x"/>)", MisplacedElement,
        "<entry> may not stand in <variables> (in <list>, <reallist>)", "bool(name=b)");
    row("misspelt attribute takes itself", R"(<real name="d" ¦initail="4"/>)", UnknownAttribute,
        R"(unknown attribute "initail" of <real name="d"> (did you mean "initial"?))",
        "real(name=d)");
    row("attribute of another tag", R"(<bool name="b" ¦decimals="2"/>)", UnknownAttribute,
        "unknown attribute \"decimals\" of <bool name=\"b\"> (name, text, key, formula, status, "
        "help, role, blocking, initial, enabled, visible, readonly)",
        "bool(name=b)");
    row("missing name", R"(<bool name="b"/><¦real unit="mm"/>)", MissingAttribute,
        R"(<real> has no "name" (a name of letters, digits and "_"))", "bool(name=b)");
    row("bad name", R"(<real name="¦2d"/>)", BadName,
        R"(bad name "2d" of <real name="2d"> (a name of letters, digits and "_"))", "");
    row("name with umlaut", R"(<real name="¦dÜ"/>)", BadName,
        R"(bad name "dÜ" of <real name="dÜ"> (a name of letters, digits and "_"))", "");
    row("word of conditions as name", R"(<real name="¦rows"/>)", BadName,
        R"(bad name <real name="rows"> (no word of conditions))", "");
    row("unknown unit", R"(<real name="d" unit="¦furlong"/>)", UnknownUnit,
        R"(unknown unit "furlong" of <real name="d"> (a unit such as mm, N or N/mm²))",
        "real(name=d)");
    row("unit without superscript", R"(<real name="d" unit="¦N/mm^2"/>)", UnknownUnit,
        R"(unknown unit "N/mm^2" of <real name="d"> (stress: N/mm², MPa, GPa, kgf/mm², ...))",
        "real(name=d)");
    row("unit in capitals", R"(<real name="d" unit="¦MM"/>)", UnknownUnit,
        R"(unknown unit "MM" of <real name="d"> (length: mm, cm, m, km, ...))", "real(name=d)");
    row("decimal comma", R"(<real name="d" bottom="¦0,5"/>)", BadValue,
        R"(bad value "0,5" of "bottom" of <real name="d"> (a number with decimal point))",
        "real(name=d)");
    row("infinite number", R"(<real name="d" top="¦inf"/>)", BadValue,
        R"(bad value "inf" of "top" of <real name="d"> (a number with decimal point))",
        "real(name=d)");
    row("trailing characters", R"(<real name="d" bottom="¦1 mm"/>)", BadValue,
        R"(bad value "1 mm" of "bottom" of <real name="d"> (a number with decimal point))",
        "real(name=d)");
    row("top below bottom", R"(<real name="d" bottom="3" top="¦2"/>)", BadValue,
        R"(bad value "2" of "top" of <real name="d"> (at least the bottom))",
        "real(bottom=3 name=d)");
    row("initial outside the limits", R"(<real name="d" bottom="3" initial="¦2"/>)", BadValue,
        R"(bad value "2" of "initial" of <real name="d"> (a number inside the limits))",
        "real(bottom=3 name=d)");
    row("initial with too few components", R"(<real name="d" components="1..3" initial="¦2 3"/>)",
        BadValue, R"(bad value "2 3" of "initial" of <real name="d"> (3 numbers))",
        "real(components=1..3 name=d)");
    row("initial of a whole number", R"(<int name="z" initial="¦2.5"/>)", BadValue,
        R"(bad value "2.5" of "initial" of <int name="z"> (a whole number))", "int(name=z)");
    row("too many components", R"(<real name="d" components="¦4"/>)", BadValue,
        R"(bad value "4" of "components" of <real name="d"> (1, 2, 3, 1..2 or 1..3))",
        "real(name=d)");
    row("decimals beyond the limit", R"(<real name="d" decimals="¦16"/>)", BadValue,
        R"(bad value "16" of "decimals" of <real name="d"> (a whole number from 0 to 15))",
        "real(name=d)");
    row("neither true nor false", R"(<real name="d" optional="¦yes"/>)", BadValue,
        R"(bad value "yes" of "optional" of <real name="d"> (true or false))", "real(name=d)");
    row("word outside an enumeration", R"(<real name="d" role="¦output"/>)", BadValue,
        R"(bad value "output" of "role" of <real name="d"> (one of input, result))",
        "real(name=d)");
    row("negative help code", R"(<real name="d" help="¦-1"/>)", BadValue,
        R"(bad value "-1" of "help" of <real name="d"> (the number of a help topic))",
        "real(name=d)");
    row("optional result", R"(<real name="d" role="result" optional="¦true"/>)", BadValue,
        R"(bad value "true" of "optional" of <real name="d"> (no check box, since it is a result))",
        "real(name=d role=result)");
    row("second variable of a name goes", "<real name=\"d\"/>\n<int name=\"¦d\"/>", DuplicateName,
        R"(second variable "d" (another name, since line 3 has this one))", "real(name=d)");
    row("second entry of a name goes",
        R"(<list name="a"><entry id="1" name="x"/><entry id="2" name="¦x"/></list>)", DuplicateName,
        R"(second "x" in <list name="a"> (another name))", "list(name=a entry(id=1 name=x))");
    row("second entry of an id goes",
        R"(<list name="a"><entry id="1" name="x"/><entry id="¦1" name="y"/></list>)", DuplicateName,
        R"(second "1" in <list name="a"> (another id))", "list(name=a entry(id=1 name=x))");
    row("entry without id", R"(<list name="a"><¦entry name="x"/></list>)", MissingAttribute,
        R"(<entry name="x"> has no "id" (a whole number))", "list(name=a)");
    row("id beyond 16 bits", R"(<list name="a"><entry id="¦40000" name="x"/></list>)", BadValue,
        R"(bad value "40000" of "id" of <entry name="x"> (a whole number from -32768 to 32767))",
        "list(name=a)");
    row("unknown initial entry",
        R"(<list name="a" initial="¦y"><entry id="1" name="x"/><entry id="2" name="z"/></list>)",
        UnknownName, R"(unknown entry "y" of <list name="a"> (x, z))",
        "list(name=a entry(id=1 name=x) entry(id=2 name=z))");
    row("initial number of no entry",
        R"(<reallist name="a" initial="¦2"><entry number="1"/></reallist>)", BadValue,
        R"(bad value "2" of "initial" of <reallist name="a"> (the number of an entry))",
        "reallist(name=a entry(number=1))");
    row("unknown variable of an alternative",
        R"(<real name="L1"/><choice name="r"><alternative name="l" vars="L1 ¦L2"/></choice>)",
        UnknownName, R"(unknown variable "L2" (did you mean "L1"?))",
        "real(name=L1) choice(name=r alternative(name=l vars=L1))");
    row("result in an alternative",
        R"(<real name="L" role="result"/><real name="F"/><choice name="r"><alternative name="l" vars="¦L"/>)"
        R"(<alternative name="f" vars="F"/></choice>)",
        WrongKind, R"(<real name="L"> in <alternative name="l"> (numbers that can be entered))",
        "real(name=L role=result) real(name=F) choice(name=r alternative(name=f vars=F))");
    row("flag in an alternative",
        R"(<bool name="b"/><real name="F"/><choice name="r"><alternative name="l" vars="F ¦b"/></choice>)",
        WrongKind, R"(<bool name="b"> in <alternative name="l"> (numbers that can be entered))",
        "bool(name=b) real(name=F) choice(name=r alternative(name=l vars=F))");
    row("variable of two choices",
        R"(<real name="F"/><real name="L"/><choice name="r"><alternative name="a" vars="F"/></choice>)"
        R"(<choice name="s"><alternative name="b" vars="¦F L"/></choice>)",
        DuplicateName,
        R"(<real name="F"> in <alternative name="b"> (a variable that <choice name="r"> does not hold))",
        "real(name=F) real(name=L) choice(name=r alternative(name=a vars=F)) "
        "choice(name=s alternative(name=b vars=L))");
    row("unknown initial alternative",
        R"(<real name="F"/><choice name="r" initial="¦l"><alternative name="f" vars="F"/></choice>)",
        UnknownName, R"(unknown alternative "l" of <choice name="r"> (f))",
        "real(name=F) choice(name=r alternative(name=f vars=F))");
    row("second column of a name goes",
        R"(<table name="t"><column name="q" type="real"/><column name="¦q" type="int"/></table>)",
        DuplicateName, R"(second "q" in <table name="t"> (another name))",
        "table(name=t column(name=q type=real))");
    row("column without type", R"(<table name="t"><¦column name="q"/></table>)", MissingAttribute,
        "<column name=\"q\"> has no \"type\" (one of int, real, pair, vector, text, file, bool, "
        "list, longlist, celllist, dblist, material, info, exec)",
        "table(name=t)");
    row("column with a list that is none",
        R"(<bool name="b"/><table name="t"><column name="q" type="list" list="¦b"/></table>)",
        WrongKind, R"(<bool name="b"> as the list of <column name="q"> (a list))",
        "bool(name=b) table(name=t column(name=q type=list))");
    row("sorted by an unknown column",
        R"(<table name="t" sortcolumn="¦x"><column name="q" type="real"/></table>)", UnknownName,
        R"(unknown column "x" of <table name="t"> (q))", "table(name=t column(name=q type=real))");
    row("function list without function", R"(<¦funclist name="f"/>)", MissingAttribute,
        R"(<funclist name="f"> has no "function" (the name of a function))", "");
    row("text between tags", R"(<¦bool name="b">yes</bool>)", BadValue,
        R"(text inside <bool name="b"> (texts in attributes))", "bool(name=b)");
}

void tst_zelSchema::faultOfVariable()
{
    QFETCH(QString, variables);
    QFETCH(ZelFaultCode, code);
    QFETCH(QString, message);
    checkOne(module(variables, ""), code, message);
    if (!QTest::currentTestFailed())
        QTEST(childrenOf(mDocument.root()->firstChild(L"variables")), "left");
}

void tst_zelSchema::faultOfLine_data()
{
    QTest::addColumn<QString>("lines");
    QTest::addColumn<ZelFaultCode>("code");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("left");

    const auto row = [](const char *name, const char *lines, ZelFaultCode code, const char *message,
                        const char *left) {
        QTest::newRow(name) << QString(lines) << code << QString(message) << QString(left);
    };
    using enum ZelFaultCode;

    row("unknown variable takes its line", R"(<var name="b"/><var name="¦Cx"/>)", UnknownName,
        R"(unknown variable "Cx" (did you mean "C"?))", "var(name=b)");
    row("unknown variable of a common line",
        R"(<line><var name="C"/><var name="¦nonsense"/></line>)", UnknownName,
        R"(unknown variable "nonsense" (the name of a variable))", "line(var(name=C))");
    row("common line without any variable", R"(<line><var name="¦nonsense"/></line>)", UnknownName,
        R"(unknown variable "nonsense" (the name of a variable))", "");
    row("unlike units in one line", R"(<line><var name="C"/><var name="¦d"/></line>)", UnlikeUnits,
        R"(<real name="d"> with the unit "mm" in a line with "N" (units of one dimension))",
        "line(var(name=C))");
    row("plain number beside a unit", R"(<line><var name="C"/><var name="¦z"/></line>)",
        UnlikeUnits,
        R"(<int name="z"> with the unit "" in a line with "N" (units of one dimension))",
        "line(var(name=C))");
    row("table as a line", R"(<var name="¦t"/>)", WrongKind,
        R"(<table name="t"> in a <var> of a page (<table>))", "");
    row("number as a table", R"(<table name="¦C"/>)", WrongKind,
        R"(<real name="C"> in a <table> of a page (<var>))", "");
    row("notes in a common line", R"(<line><var name="¦n"/></line>)", WrongKind,
        R"(<notes name="n"> in a <var> of a page (a line of its own))", "");
    row("unknown button", R"(<var name="C" buttons="¦info,databse"/>)", BadValue,
        "bad value \"info,databse\" of \"buttons\" of <var name=\"C\"> (some of size, convert, "
        "plus, info, offer, database, settings, file)",
        "var(name=C)");
    row("span beyond the grid", R"(<table name="t" span="¦7"/>)", BadValue,
        R"(bad value "7" of "span" of <table name="t"> (a whole number from 1 to 6))",
        "table(name=t)");
    row("page in a column", R"(<var name="C"/><¦page name="p"/>)", MisplacedElement,
        "<page> may not stand in <column> (in <module>, <tabs>)", "var(name=C)");
    row("line without variable", R"(<¦var buttons="info"/>)", MissingAttribute,
        R"(<var> has no "name" (the name of a variable))", "");
}

void tst_zelSchema::faultOfLine()
{
    const QString variables = R"(<real name="C" unit="N"/><real name="d" unit="mm"/>)"
                              R"(<int name="z"/><bool name="b"/><notes name="n"/>)"
                              R"(<table name="t"><column name="q" type="real"/></table>)";
    QFETCH(QString, lines);
    QFETCH(ZelFaultCode, code);
    QFETCH(QString, message);
    checkOne(module(variables, lines), code, message);
    if (QTest::currentTestFailed())
        return;
    const ZelDomNode *board = mDocument.root()->firstChild(L"page")->firstChild();
    QTEST(childrenOf(board->firstChild()), "left");
}

void tst_zelSchema::faultOfFrame_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<ZelFaultCode>("code");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("left");
    using enum ZelFaultCode;

    QTest::newRow("unknown root") << R"(<¦modul id="m"><page/></modul>)" << UnknownElement
                                  << "unknown root element <modul> (<module>)"
                                  << "modul(id=m)";
    QTest::newRow("misspelt page") << R"(<module id="m"><¦pag/><page name="q"/></module>)"
                                   << UnknownElement << "unknown tag <pag> (did you mean <page>?)"
                                   << "module(id=m page(name=q))";
    QTest::newRow("second page of a name loses it")
        << R"(<module id="m"><page name="p"/><page name="¦p" text="q"/></module>)" << DuplicateName
        << R"(second page "p" (another name))"
        << "module(id=m page(name=p) page(text=q))";
    QTest::newRow("nested page of a name loses it")
        << R"(<module id="m"><page name="p"><tabs><page name="¦p"/></tabs></page></module>)"
        << DuplicateName << R"(second page "p" (another name))"
        << "module(id=m page(name=p tabs(page)))";
    QTest::newRow("external without class")
        << R"(<module id="m"><page><¦external row="1"/></page></module>)" << MissingAttribute
        << R"(<external> has no "class" (the name of a class))"
        << "module(id=m page)";
    QTest::newRow("negative row")
        << R"(<module id="m"><page><board row="¦-1"/></page></module>)" << BadValue
        << R"(bad value "-1" of "row" of <board> (a whole number from 0 to 1000))"
        << "module(id=m page(board))";
    QTest::newRow("text in a page") << R"(<module id="m"><¦page>Text</page></module>)" << BadValue
                                    << "text inside <page> (texts in attributes)"
                                    << "module(id=m page)";
}

void tst_zelSchema::faultOfFrame()
{
    QFETCH(QString, source);
    QFETCH(ZelFaultCode, code);
    QFETCH(QString, message);
    checkOne(source.toStdString(), code, message);
    if (!QTest::currentTestFailed())
        QTEST(written(mDocument.root()), "left");
}

void tst_zelSchema::usesOfWhatIsLeftOutAreNoFurtherFaults()
{
    const Source source = withoutMarker(
        module(R"(<¦reall name="C"/><bool name="b" enabled="C > 0"/>)"
               R"(<choice name="r"><alternative name="a" vars="C"/></choice>)",
               R"(<var name="C"/><line><var name="C"/></line><var name="b" visible="C > 1"/>)"));
    ZelFaultList faults;
    mDocument = ZelDomDocument::fromText(source.mText, "m.xml", faults);
    zelCheckDescription(mDocument, faults);
    QCOMPARE(QString::fromStdString(zelFaultReport(faults)),
             QString("m.xml:3:2: error: unknown tag <reall> (did you mean <real>?)\n"));
    QCOMPARE(childrenOf(mDocument.root()->firstChild(L"page")->firstChild()->firstChild()),
             QString("var(name=b)"));
}

void tst_zelSchema::faultsStandInTheOrderOfTheFile()
{
    // The condition is found last, the tag first.
    const std::string source = module("<bool name=\"b\" enabled=\"x\"/>\n<bool name=\"b\"/>",
                                      "<var name=\"y\"/>\n<wheel/>");
    ZelFaultList faults;
    mDocument = ZelDomDocument::fromText(source, "m.xml", faults);
    zelCheckDescription(mDocument, faults);
    std::vector<int> lines;
    for (const ZelFault &fault : faults)
        lines.push_back(fault.mLine);
    QCOMPARE(lines, (std::vector<int>{3, 4, 8, 9}));
}

void tst_zelSchema::faultsBeyondTheLimitAreCounted()
{
    QString lines;
    for (int i = 0; i < 150; ++i)
        lines += "<wheel/>\n";
    ZelFaultList faults;
    mDocument = ZelDomDocument::fromText(module("", lines), "m.xml", faults);
    zelCheckDescription(mDocument, faults);
    QCOMPARE(faults.size(), size_t(150));
    const std::string report = zelFaultReport(faults);
    QCOMPARE(std::count(report.begin(), report.end(), '\n'), std::ptrdiff_t(101));
    QVERIFY(QString::fromStdString(report).endsWith("and 50 more\n"));
}

void tst_zelSchema::manyFaultyTagsTakeNoQuadraticTime()
{
    // Near the largest file: every other tag goes. One at a time this took minutes.
    QString lines;
    for (int i = 0; i < 150000; ++i)
        lines += "<x/><text text=\"a\"/>";
    ZelFaultList faults;
    mDocument = ZelDomDocument::fromText(module("", lines), "m.xml", faults);
    QVERIFY(faults.empty());
    zelCheckDescription(mDocument, faults);
    QCOMPARE(faults.size(), size_t(150000));
    const ZelDomNode *column = mDocument.root()->firstChild(L"page")->firstChild()->firstChild();
    QVERIFY(column->firstChild()->nextSibling()->nextSibling());
}

QTEST_GUILESS_MAIN(tst_zelSchema)
#include "tst_zelSchema.moc"
