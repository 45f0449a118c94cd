#include "zelDescription.h"

#include "meta.h"
#include "zelCondition.h"
#include "zelDomNode.h"
#include "zelLanguage.h"
#include "zelSchema.h"
#include "zelUIMultiVar.h"
#include "zelUIVarChoice.h"
#include "zelUIVarLists.h"

#include <QtTest>

namespace {

QString report(const ZelFaultList &faults)
{
    return QString::fromStdString(zelFaultReport(faults));
}

// A tag's variables inside a module, described to a Meta.
struct Described
{
    explicit Described(const QString &variables, const QString &rest = {})
    {
        const QString source = "<module id=\"m\" class=\"C\"><variables>" + variables
            + "</variables>" + rest + "</module>";
        mDescription = ZelDescription::fromText(source.toStdString(), "m.xml", mFaults);
        mDescription.describe(mMeta, mFaults);
    }
    template <class Variable> Variable *variable(const wchar_t *name) const
    {
        return dynamic_cast<Variable *>(mMeta.variable(name));
    }

    ZelFaultList mFaults;
    Meta mMeta;
    ZelDescription mDescription;
};

} // namespace

class tst_zelDescription : public QObject
{
    Q_OBJECT
private slots:
    void cleanup() { setZelLanguage(ZelLanguage::German); }

    void kindOfEachTag_data();
    void kindOfEachTag();
    void everyTagOfAVariableHasAKind();
    void realNumberTakesItsAttributes();
    void wholeNumberShowsNoDecimals();
    void tripleHasThreeComponents();
    void listStartsWithItsInitialEntry();
    void listWithoutInitialStartsWithTheFirst();
    void numberEntryWithoutTextShowsNumberAndUnit();
    void choiceHoldsVariablesThatStandBehindIt();
    void overlappingAlternativesAreNotDisjoint();
    void textFollowsTheLanguage();
    void writtenTextIsALabel();
    void conditionsAreCompiled();
    void badConditionLeavesTheDefault();
    void unknownUnitLeavesAPlainNumber();
    void moduleWithoutIdIsNamedAfterItsFile();
    void missingFileIsOneFaultAndAnEmptyDescription();
    void brokenXmlKeepsWhatStandsBefore();
    void functionsAreLookedUpOnRequest();
    void springHasNoFault();
    void noCutOfAFileCrashes();
    void noSwappedByteCrashes();
};

void tst_zelDescription::kindOfEachTag_data()
{
    QTest::addColumn<QString>("variable");
    QTest::addColumn<QString>("type");
    const auto row = [](const char *variable, const std::type_info &type) {
        QTest::newRow(variable) << QString(variable) << QString(type.name());
    };
    row("<real name=\"v\"/>", typeid(ZelUIMultiVar));
    row("<int name=\"v\"/>", typeid(ZelUIMultiVar));
    row("<bool name=\"v\"/>", typeid(ZelUIVarBool));
    row("<text name=\"v\"/>", typeid(ZelUIVarString));
    row("<text name=\"v\" role=\"result\"/>", typeid(ZelUIVarText));
    row("<notes name=\"v\"/>", typeid(ZelUIVarMultilineString));
    row("<functext name=\"v\" function=\"f\"/>", typeid(ZelUIVarFuncText));
    row("<button name=\"v\" function=\"f\"/>", typeid(ZelUIVarTextButton));
    row("<image name=\"v\"/>", typeid(ZelUIVarImage));
    row("<list name=\"v\"/>", typeid(ZelUIVarList));
    row("<reallist name=\"v\"/>", typeid(ZelUIVarRealList));
    row("<funclist name=\"v\" function=\"f\"/>", typeid(ZelUIVarFuncList));
    row("<funclist name=\"v\" function=\"f\" dynamic=\"true\"/>", typeid(ZelUIVarFuncListDynamic));
    row("<realfunclist name=\"v\" function=\"f\"/>", typeid(ZelUIVarRealFuncList));
    row("<dblist name=\"v\" table=\"t\"/>", typeid(ZelUIVarDBList));
    row("<dblist name=\"v\" table=\"t\" function=\"f\"/>", typeid(ZelUIVarDBFuncList));
    row("<material name=\"v\"/>", typeid(ZelUIVarMatList));
    row("<lubricant name=\"v\"/>", typeid(ZelUIVarLubList));
    row("<choice name=\"v\"/>", typeid(ZelUIVarChoice));
    row("<table name=\"v\"/>", typeid(ZelUIVarTable));
}

void tst_zelDescription::kindOfEachTag()
{
    QFETCH(QString, variable);
    const Described described(variable);
    QCOMPARE(report(described.mFaults), QString());
    const ZelUIVar *made = described.mMeta.variable(L"v");
    QVERIFY(made);
    QTEST(QString(typeid(*made).name()), "type");
}

void tst_zelDescription::everyTagOfAVariableHasAKind()
{
    for (const ZelSchemaTag &tag : zelSchemaTags()) {
        if (!tag.isVariable())
            continue;
        const QString name = QString::fromUtf8(tag.mTag.data(), int(tag.mTag.size()));
        const Described described(
            "<" + name + " name=\"v\" "
            + (tag.attribute("function") && name != "dblist" ? "function=\"f\" " : "")
            + (tag.attribute("table") ? "table=\"t\" " : "") + "/>");
        QCOMPARE(report(described.mFaults), QString());
        QVERIFY2(described.mMeta.variable(L"v"), qPrintable(name));
    }
}

void tst_zelDescription::realNumberTakesItsAttributes()
{
    const Described described(
        R"(<real name="tau_k2" text="Spannung" formula="tau_k2" unit="N/mm²" decimals="1" )"
        R"(bottom="0.5" top="1e3" initial="2.5" help="12" status="Tipp" blocking="true" )"
        R"(optional="true"/>)");
    QCOMPARE(report(described.mFaults), QString());
    const auto *v = described.variable<ZelUIMultiVar>(L"tau_k2");
    QVERIFY(v);
    QCOMPARE(QString::fromStdWString(v->mText.getText()), QString("Spannung"));
    QCOMPARE(QString::fromStdWString(v->mStatusTip.getText()), QString("Tipp"));
    QCOMPARE(QString::fromStdWString(v->mFormula), QString("τ<sub>k2</sub>"));
    QCOMPARE(int(v->mDefaultUnit), int(ZelDimensions::NewtonPerSquareMillimetre));
    QCOMPARE(v->mDecimals, short(1));
    QVERIFY(v->mHasBottom && v->mHasTop);
    QCOMPARE(v->mBottom, 0.5);
    QCOMPARE(v->mTop, 1000.0);
    QCOMPARE(described.mMeta.real(*v, 0), 2.5);
    QCOMPARE(v->mHelpCode, 12);
    QCOMPARE(v->mValueKind, 0);
    QVERIFY(v->IsUpdateBlocking());
    QVERIFY(v->mOptional);
    QVERIFY(!v->mResult);
}

void tst_zelDescription::wholeNumberShowsNoDecimals()
{
    const Described described(R"(<int name="z" initial="17" bottom="1"/>)");
    const auto *z = described.variable<ZelUIMultiVar>(L"z");
    QVERIFY(z);
    QCOMPARE(z->mValueKind, 1);
    QCOMPARE(z->mDecimals, short(0));
    QCOMPARE(described.mMeta.integer(*z, 0), int64_t(17));
    QVERIFY(!z->mHasTop);
    QCOMPARE(int(z->mDefaultUnit), int(ZelDimensions::NoUnit));
}

void tst_zelDescription::tripleHasThreeComponents()
{
    const Described described(R"(<real name="p" unit="mm" components="1..3" initial="1 2.5 -3"/>)");
    const auto *p = described.variable<ZelUIMultiVar>(L"p");
    QVERIFY(p);
    QCOMPARE(p->componentCount(), 3);
    QCOMPARE(described.mMeta.real(*p, 0, 1), 2.5);
    QCOMPARE(described.mMeta.real(*p, 0, 2), -3.0);
}

void tst_zelDescription::listStartsWithItsInitialEntry()
{
    const Described described(R"(<list name="a" initial="y"><entry id="4" name="x" text="Ix"/>)"
                              R"(<entry id="-7" name="y" text="Ypsilon"/></list>)");
    const auto *a = described.variable<ZelUIVarList>(L"a");
    QVERIFY(a);
    QCOMPARE(described.mMeta.integer(*a, 0), int64_t(-7));
    QCOMPARE(QString::fromStdWString(a->entry(L"y")->mText.getText()), QString("Ypsilon"));
}

void tst_zelDescription::listWithoutInitialStartsWithTheFirst()
{
    const Described described(
        R"(<list name="a"><entry id="4" name="x"/><entry id="1" name="y"/></list>)");
    QCOMPARE(described.mMeta.integer(*described.mMeta.variable(L"a"), 0), int64_t(4));
}

void tst_zelDescription::numberEntryWithoutTextShowsNumberAndUnit()
{
    const Described described(
        R"(<reallist name="m" unit="mm" decimals="2" initial="1.25">)"
        R"(<entry number="1"/><entry number="1.25" text="eins"/></reallist>)");
    const auto *m = described.variable<ZelUIVarRealList>(L"m");
    QVERIFY(m);
    QCOMPARE(QString::fromStdWString(m->mEntries[0].mText.getText()), QString("1.00 mm"));
    QCOMPARE(QString::fromStdWString(m->mEntries[1].mText.getText()), QString("eins"));
    QCOMPARE(described.mMeta.real(*m, 0), 1.25);
}

void tst_zelDescription::choiceHoldsVariablesThatStandBehindIt()
{
    const Described described(
        R"(<choice name="r" by="typing" initial="f"><alternative name="l" vars="L1  L2"/>)"
        R"(<alternative name="f" vars="F1"/></choice>)"
        R"(<real name="L1"/><real name="L2"/><real name="F1"/>)");
    QCOMPARE(report(described.mFaults), QString());
    const auto *r = described.variable<ZelUIVarChoice>(L"r");
    QVERIFY(r);
    QCOMPARE(int(r->mBy), int(ZelUIVarChoice::Typing));
    QVERIFY(r->contains(1, described.mMeta.variable(L"L2")));
    QVERIFY(!r->contains(2, described.mMeta.variable(L"L2")));
    QVERIFY(r->isDisjoint());
    QCOMPARE(described.mMeta.choiceOf(*described.mMeta.variable(L"F1")), r);
    QVERIFY(described.mMeta.isEntered(*described.mMeta.variable(L"F1"), 0));
    QVERIFY(!described.mMeta.isEntered(*described.mMeta.variable(L"L1"), 0));
}

void tst_zelDescription::overlappingAlternativesAreNotDisjoint()
{
    const Described described(
        R"(<real name="a"/><real name="x1"/><real name="x2"/><choice name="r">)"
        R"(<alternative name="p" vars="x1 x2"/>)"
        R"(<alternative name="q" vars="a x1"/></choice>)");
    QCOMPARE(report(described.mFaults), QString());
    QVERIFY(!described.variable<ZelUIVarChoice>(L"r")->isDisjoint());
}

void tst_zelDescription::textFollowsTheLanguage()
{
    QTemporaryDir folder;
    const auto write = [&folder](const QString &name, const QByteArray &bytes) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    };
    write("m.xml",
          "<module id=\"m\"><variables><real name=\"d\" text=\"Länge\"/></variables>"
          "</module>");
    write("m.tsv", "German\tEnglish\nLänge\tLength\n");
    ZelFaultList faults;
    Meta meta;
    const ZelDescription description =
        zelLoadDescription(folder.filePath("m.xml").toStdString(), meta, faults);
    QCOMPARE(report(faults), QString());
    QCOMPARE(meta.moduleId(), zelWString(L"m"));
    QCOMPARE(QString::fromStdWString(meta.variable(L"d")->mText.getText()), QString("Länge"));
    setZelLanguage(ZelLanguage::English);
    QCOMPARE(QString::fromStdWString(meta.variable(L"d")->mText.getText()), QString("Length"));
}

void tst_zelDescription::writtenTextIsALabel()
{
    const Described described(R"(<text name="t" role="result" initial="offen"/>)");
    const auto *t = described.variable<ZelUIVarText>(L"t");
    QVERIFY(t);
    QVERIFY(t->mResult);
}

void tst_zelDescription::conditionsAreCompiled()
{
    Described described("<real name=\"C\" initial=\"2\"/><bool name=\"b\" enabled=\"C > 1\" "
                        "visible=\"C > 3\" readonly=\"not (C == 2)\"/>");
    QCOMPARE(report(described.mFaults), QString());
    const ZelUIVar *b = described.mMeta.variable(L"b");
    QVERIFY(b->mEnabledIf && b->mVisibleIf && b->mReadOnlyIf);
    QVERIFY(b->mEnabledIf->evaluate(described.mMeta, 0));
    QVERIFY(!b->mVisibleIf->evaluate(described.mMeta, 0));
    QVERIFY(!b->mReadOnlyIf->evaluate(described.mMeta, 0));
}

void tst_zelDescription::badConditionLeavesTheDefault()
{
    const Described described(
        "<bool name=\"b\"/>\n<real name=\"C\" enabled=\"b and D &lt; 1 and X\"/>",
        "<page><board visible=\"b ==\"/></page>");
    QCOMPARE(described.mFaults.size(), size_t(2));
    QCOMPARE(int(described.mFaults[0].mCode), int(ZelFaultCode::BadCondition));
    // The unknown name is the fourth character block: the place inside the condition counts.
    QCOMPARE(described.mFaults[0].mLine, 2);
    QCOMPARE(described.mFaults[0].mColumn, 31);
    QCOMPARE(int(described.mFaults[1].mCode), int(ZelFaultCode::BadCondition));
    QVERIFY(!described.mMeta.variable(L"C")->mEnabledIf);
    const ZelDomNode *board = described.mDescription.pages().at(0)->firstChild();
    QVERIFY(!board->hasAttribute(L"visible"));
}

void tst_zelDescription::unknownUnitLeavesAPlainNumber()
{
    const Described described(R"(<real name="d" unit="kp" initial="3"/>)");
    QCOMPARE(described.mFaults.size(), size_t(1));
    const auto *d = described.variable<ZelUIMultiVar>(L"d");
    QVERIFY(d);
    QCOMPARE(int(d->mDefaultUnit), int(ZelDimensions::NoUnit));
    QCOMPARE(described.mMeta.real(*d, 0), 3.0);
}

void tst_zelDescription::moduleWithoutIdIsNamedAfterItsFile()
{
    ZelFaultList faults;
    const auto description = ZelDescription::fromText("<module/>", "folder/gear.xml", faults);
    QCOMPARE(description.moduleId(), zelWString(L"gear"));
    QVERIFY(description.className().empty());
    QVERIFY(faults.empty());
}

void tst_zelDescription::missingFileIsOneFaultAndAnEmptyDescription()
{
    ZelFaultList faults;
    Meta meta;
    const ZelDescription description = zelLoadDescription("/nowhere/spring.xml", meta, faults);
    QCOMPARE(faults.size(), size_t(1));
    QCOMPARE(int(faults[0].mCode), int(ZelFaultCode::FileMissing));
    QVERIFY(description.isEmpty());
    QVERIFY(description.pages().empty());
    QVERIFY(meta.variables().empty());
}

void tst_zelDescription::brokenXmlKeepsWhatStandsBefore()
{
    const std::string source = "<module id=\"m\">\n<variables>\n<real name=\"d\"/>\n</variables>\n"
                               "<page name=\"p\"><board><column><var name=\"d\"/>\n"
                               "</colum></board></page></module>";
    ZelFaultList faults;
    Meta meta;
    ZelDescription description = ZelDescription::fromText(source, "m.xml", faults);
    description.describe(meta, faults);
    QCOMPARE(faults.size(), size_t(1));
    QCOMPARE(int(faults[0].mCode), int(ZelFaultCode::Syntax));
    QCOMPARE(faults[0].mLine, 6);
    QVERIFY(meta.variable(L"d"));
    QCOMPARE(description.pages().size(), size_t(1));
    const ZelDomNode *column = description.pages()[0]->firstChild()->firstChild();
    QVERIFY(column->firstChild(L"var"));
}

void tst_zelDescription::functionsAreLookedUpOnRequest()
{
    const std::string source =
        "<module id=\"m\"><variables><functext name=\"a\" function=\"known\"/>\n"
        "<functext name=\"b\" function=\"unknown\"/></variables></module>";
    for (const bool request : {false, true}) {
        ZelFaultList faults;
        Meta meta;
        meta.setFunction(L"known", [](const zelWString &, zelWString &) { return true; });
        ZelDescription description = ZelDescription::fromText(source, "m.xml", faults);
        description.describe(meta, faults, request);
        QCOMPARE(faults.size(), size_t(request ? 1 : 0));
        if (request) {
            QCOMPARE(int(faults[0].mCode), int(ZelFaultCode::UnknownFunction));
            QCOMPARE(faults[0].mLine, 2);
            QCOMPARE(faults[0].mColumn, 30);
        }
        // The variable itself stays: its text is empty.
        QVERIFY(meta.variable(L"b"));
    }
}

void tst_zelDescription::springHasNoFault()
{
    ZelFaultList faults;
    Meta meta;
    const ZelDescription description = zelLoadDescription(
        TEST_DATA_DIR "/../../workbench/modules/spring/spring.xml", meta, faults);
    QCOMPARE(report(faults), QString());
    QCOMPARE(description.className(), zelWString(L"SpringModule"));
    QVERIFY(meta.variable(L"tau_k2"));
}

void tst_zelDescription::noCutOfAFileCrashes()
{
    QFile file(TEST_DATA_DIR "/bearing.xml");
    QVERIFY(file.open(QIODevice::ReadOnly));
    const std::string bytes = file.readAll().toStdString();
    size_t withFaults = 0;
    for (size_t length = 0; length < bytes.size(); ++length) {
        ZelFaultList faults;
        Meta meta;
        auto description = ZelDescription::fromText(bytes.substr(0, length), "cut.xml", faults);
        description.describe(meta, faults);
        withFaults += faults.empty() ? 0 : 1;
    }
    // Only the line feed at the end may be missed.
    QCOMPARE(withFaults, bytes.size() - 1);
}

void tst_zelDescription::noSwappedByteCrashes()
{
    QFile file(TEST_DATA_DIR "/bearing.xml");
    QVERIFY(file.open(QIODevice::ReadOnly));
    const std::string bytes = file.readAll().toStdString();
    const std::string others = std::string("\0<>\"'&/=-#x0\xff", 13);
    for (size_t at = 0; at < bytes.size(); ++at) {
        std::string changed = bytes;
        if (at + 1 < bytes.size() && at % 2 == 0)
            std::swap(changed[at], changed[at + 1]);
        else
            changed[at] = others[(at / 2) % others.size()];
        ZelFaultList faults;
        Meta meta;
        auto description = ZelDescription::fromText(changed, "swapped.xml", faults);
        description.describe(meta, faults);
        for (const ZelFault &fault : faults) {
            QVERIFY(fault.mLine >= 0 && fault.mColumn >= 0);
            QVERIFY(!fault.toString().empty());
        }
    }
}

QTEST_GUILESS_MAIN(tst_zelDescription)
#include "tst_zelDescription.moc"
