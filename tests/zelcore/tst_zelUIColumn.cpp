#include "mask.h"
#include "zelUIButtonBox.h"
#include "zelUIColumn.h"
#include "zelUIComboBox.h"
#include "zelUIFlag.h"
#include "zelUIFlagElement.h"
#include "zelUIImageElement.h"
#include "zelUILubElement.h"
#include "zelUIMatElement.h"
#include "zelUIMultiVar.h"
#include "zelUINotepad.h"
#include "zelUINotepadElement.h"
#include "zelUIOutputElement.h"
#include "zelUIPushButton.h"
#include "zelUIStdElement.h"
#include "zelUITable.h"
#include "zelUITableElement.h"
#include "zelUITextElement.h"
#include "zelUITextLabel.h"
#include "zelUIVarLists.h"

#include <QtTest>

namespace {

// Writes down what is added, in order.
class Column : public ZelUIColumn
{
public:
    void addStdElement(ZelUIStdElement *element) override
    {
        ZelUIColumn::addStdElement(element);
        mCalls << "line " + toText(element->getName());
    }
    void addMatElement(ZelUIMatElement *element) override
    {
        ZelUIColumn::addMatElement(element);
        mCalls << "material";
    }
    void addLubElement(ZelUILubElement *element) override
    {
        ZelUIColumn::addLubElement(element);
        mCalls << "lubricant";
    }
    void addTextElement(ZelUITextElement *element) override
    {
        ZelUIColumn::addTextElement(element);
        const ZelUITextLabel *label = element->mLabel;
        mCalls << QString("text %1 %2")
                      .arg(label ? toText(label->getText()) : "-")
                      .arg(label ? int(label->getAlignment()) : -1);
    }
    void addFlagElement(ZelUIFlagElement *element) override
    {
        ZelUIColumn::addFlagElement(element);
        mCalls << "flag " + toText(element->mFlag->getText());
    }
    void addTableElement(ZelUITableElement *element, bool expanding, int span) override
    {
        ZelUIColumn::addTableElement(element, expanding, span);
        mCalls << QString("table %1 %2").arg(expanding).arg(span);
    }
    void addViewElement(ZelUIViewElement *element, bool expanding, int span) override
    {
        ZelUIColumn::addViewElement(element, expanding, span);
        mCalls << QString("view %1 %2 %3").arg(toText(element->getName())).arg(expanding).arg(span);
    }
    void addNotepadElement(ZelUINotepadElement *element, bool expanding, int span) override
    {
        ZelUIColumn::addNotepadElement(element, expanding, span);
        mCalls << QString("notes %1 %2").arg(expanding).arg(span);
    }
    void addButtonElement(ZelUIButtonBox *element) override
    {
        ZelUIColumn::addButtonElement(element);
        mCalls << QString("button %1 %2")
                      .arg(toText(element->getSingleButton()->buttonText()))
                      .arg(int(element->getAlignment()));
    }
    void finishLayout() override
    {
        ZelUIColumn::finishLayout();
        mCalls << "finish";
    }
    QStringList mCalls;
};

struct Setup
{
    explicit Setup(const char *xml)
    {
        add<ZelUIMultiVar>(L"d", L"Draht");
        add<ZelUIVarBool>(L"on", L"Ein");
        add<ZelUIVarMultilineString>(L"notes", L"Notizen");
        add<ZelUIVarText>(L"remark", L"Hinweis");
        add<ZelUIVarTextButton>(L"go", L"Los");
        add<ZelUIVarList>(L"list", L"Liste");
        add<ZelUIVarDBList>(L"bearing", L"Lager");
        add<ZelUIVarFuncText>(L"title", L"Titel");
        add<ZelUIVarImage>(L"picture", L"Bild");
        add<ZelUIVarTable>(L"loads", L"Kollektiv");
        add<ZelUIVarMatList>(L"material", L"Werkstoff");
        add<ZelUIVarLubList>(L"lubricant", L"Schmierstoff");
        build(xml);
    }
    template <class Variable> void add(const wchar_t *name, const wchar_t *text)
    {
        mMask.mMeta.add<Variable>(name)->mText.setText(text);
    }
    void build(const char *xml)
    {
        mMask.mDocument = ZelDomDocument::fromText(xml, "mask.xml", mMask.mFaults);
        ZelUiBuild build(mMask.mMeta, mMask.mFactory, mMask.mFaults, "mask.xml");
        mColumn = std::make_unique<Column>();
        mColumn->setup(mMask.mDocument.root());
    }
    Mask mMask;
    std::unique_ptr<Column> mColumn;
};

} // namespace

class tst_zelUIColumn : public QObject
{
    Q_OBJECT
private slots:
    void gridConstants();
    void kindOfTheVariablePicksTheElement();
    void materialsAndLubricantsHaveLinesOfTheirOwn();
    void textsAreAligned();
    void textsOfTheNodes();
    void viewsTakeSpanAndRoom();
    void unknownNodesAreSkipped();
    void kindsThatTheFactoryDoesNotKnowAreLeftOut();
    void faultsHavePlaces();
    void viewsAreCounted();
    void contentIsVisibleWhileAnElementIs();
    void factoryMayDieBeforeTheColumn();
    void columnMayDieBeforeTheFactory();
    void tellsItself();
};

void tst_zelUIColumn::gridConstants()
{
    static_assert(ZelUIColumn::mFormulaCol == 1 && ZelUIColumn::mInputCol == 2
                  && ZelUIColumn::mEditCol == 3 && ZelUIColumn::mUnitCol == 4
                  && ZelUIColumn::mIconCol == 5 && ZelUIColumn::mColSpan == 6);
}

void tst_zelUIColumn::kindOfTheVariablePicksTheElement()
{
    const Setup setup("<column>"
                      "<var name='d'/><var name='on'/><var name='notes'/><var name='remark'/>"
                      "<var name='go'/><var name='list'/><var name='bearing'/><var name='title'/>"
                      "<var name='picture'/><var name='loads'/>"
                      "<line><var name='d'/></line>"
                      "</column>");
    QCOMPARE(setup.mColumn->mCalls,
             QStringList({"line d", "flag Ein", "notes 0 6", "text Hinweis 0", "button Los 0",
                          "line list", "line bearing", "line title", "view picture 0 6",
                          "table 0 6", "line ", "finish"}));
    QCOMPARE(setup.mColumn->modelElements().size(), size_t(11));
    QCOMPARE(setup.mMask.faultPlaces(), QStringList());
}

void tst_zelUIColumn::materialsAndLubricantsHaveLinesOfTheirOwn()
{
    const Setup setup("<column><var name='material' buttons='database info'/>"
                      "<var name='lubricant' buttons='database info' text='Öl'/></column>");
    QCOMPARE(setup.mColumn->mCalls, QStringList({"material", "lubricant", "finish"}));
    const auto &elements = setup.mColumn->modelElements();
    const auto *material = dynamic_cast<ZelUIMatElement *>(elements[0]);
    QVERIFY(material && material->mCombo2 && material->mLabel1 && material->mButton2);
    QVERIFY(!material->mCombo1 && !material->mButton1 && !material->mLabel2);
    QCOMPARE(toText(material->mLabel1->getText()), QString("Werkstoff"));
    QCOMPARE(toText(material->mButton2->tooltip()), QString("Datenbank bearbeiten"));
    QCOMPARE(material->modelItems().size(), size_t(3));
    const auto *lubricant = dynamic_cast<ZelUILubElement *>(elements[1]);
    QVERIFY(lubricant && lubricant->mCombo2 && lubricant->mButton2 && lubricant->mButton3);
    QCOMPARE(toText(lubricant->mLabel->getText()), QString("Öl"));
    QCOMPARE(toText(lubricant->mButton3->tooltip()), QString("Zusatzinfo"));
    QCOMPARE(lubricant->modelItems().size(), size_t(4));
}

void tst_zelUIColumn::textsAreAligned()
{
    const Setup setup("<column><text>links</text><text align='right'>rechts</text>"
                      "<text align='center' text='mitte'/><text align='nix'>x</text>"
                      "<var name='go' align='center'/></column>");
    QCOMPARE(setup.mColumn->mCalls,
             QStringList({"text links 0", "text rechts 1", "text mitte 2", "text x 0",
                          "button Los 2", "finish"}));
}

void tst_zelUIColumn::textsOfTheNodes()
{
    const Setup setup("<column><var name='on' text='Aus'/><var name='go' text='Weiter'/>"
                      "<button text='Halt' function='Stop'/></column>");
    QCOMPARE(setup.mColumn->mCalls,
             QStringList({"flag Aus", "button Weiter 0", "button Halt 0", "finish"}));
}

void tst_zelUIColumn::viewsTakeSpanAndRoom()
{
    const Setup setup("<column><table name='loads' span='4' expand='true'/>"
                      "<image name='picture' span='3' expand='true'/>"
                      "<image file='a.png'/>"
                      "<output name='page' function='Page' expand='true'/>"
                      "<var name='notes' expand='true' span='2'/></column>");
    QCOMPARE(setup.mColumn->mCalls,
             QStringList({"table 1 4", "view picture 1 3", "view  0 6", "view page 1 6",
                          "notes 1 2", "finish"}));
}

void tst_zelUIColumn::unknownNodesAreSkipped()
{
    const Setup setup("<column><nix/><var name='d'/><var/><page/></column>");
    QCOMPARE(setup.mColumn->mCalls, QStringList({"line d", "finish"}));
    QCOMPARE(setup.mMask.faultPlaces(), QStringList());
}

void tst_zelUIColumn::kindsThatTheFactoryDoesNotKnowAreLeftOut()
{
    Mask mask;
    ZelUiFactory factory;
    mask.mMeta.add<ZelUIMultiVar>(L"d");
    mask.mMeta.add<ZelUIVarBool>(L"on");
    mask.mMeta.add<ZelUIVarTable>(L"loads");
    mask.mMeta.add<ZelUIVarImage>(L"picture");
    mask.mMeta.add<ZelUIVarMultilineString>(L"notes");
    mask.mMeta.add<ZelUIVarText>(L"remark");
    mask.mMeta.add<ZelUIVarTextButton>(L"go");
    const auto document = ZelDomDocument::fromText(
        "<column><var name='d'/><var name='on'/><var name='loads'/><var name='picture'/>"
        "<var name='notes'/><var name='remark'/><var name='go'/><text>a</text>"
        "<output name='o' function='f'/><line><var name='d'/></line></column>",
        "", mask.mFaults);
    ZelUiBuild build(mask.mMeta, factory, mask.mFaults, "");
    Column column;
    column.setup(document.root());
    QCOMPARE(column.mCalls, QStringList("finish"));
    QVERIFY(mask.mFaults.empty());
}

void tst_zelUIColumn::faultsHavePlaces()
{
    const Setup setup("<column>\n"
                      "  <var name='nix'/>\n"
                      "  <var name='d' enabled='d >'/>\n"
                      "  <table name='nix'/>\n"
                      "  <var name='on' visible='nix'/>\n"
                      "</column>");
    QCOMPARE(setup.mColumn->mCalls, QStringList({"line d", "flag Ein", "finish"}));
    QCOMPARE(setup.mMask.faultPlaces(),
             QStringList({QString("%1 at 2:14").arg(int(ZelFaultCode::UnknownName)),
                          QString("%1 at 3:29").arg(int(ZelFaultCode::BadCondition)),
                          QString("%1 at 4:16").arg(int(ZelFaultCode::UnknownName)),
                          QString("%1 at 5:27").arg(int(ZelFaultCode::BadCondition))}));
    setup.mColumn->updateState(const_cast<Meta *>(&setup.mMask.mMeta), 0);
    for (const ZelUIElement *element : setup.mColumn->modelElements())
        QVERIFY((element->state() == ZelUIState{true, true, false}));
}

void tst_zelUIColumn::viewsAreCounted()
{
    ZelUIColumn column;
    QVERIFY(!column.containsViews(false));
    ZelUITableElement table;
    column.addTableElement(&table, false, 6);
    QVERIFY(column.containsViews(true) && column.containsViews(false));
    QVERIFY(!column.containsExpandingViews(false));
    table.mVisible = false;
    QVERIFY(!column.containsViews(true) && column.containsViews(false));
    {
        ZelUIViewElement view;
        column.addViewElement(&view, true, 6);
        QVERIFY(column.containsExpandingViews(true));
        view.mVisible = false;
        QVERIFY(!column.containsExpandingViews(true) && column.containsExpandingViews(false));
    }
    QVERIFY(!column.containsExpandingViews(false));
    ZelUINotepadElement notes;
    column.addNotepadElement(&notes, true, 6);
    QVERIFY(column.containsExpandingViews(true));
}

void tst_zelUIColumn::contentIsVisibleWhileAnElementIs()
{
    ZelUIColumn column;
    QVERIFY(!column.isContentVisible());
    ZelUIStdElement element;
    column.addStdElement(&element);
    QVERIFY(column.isContentVisible());
    element.mVisible = false;
    QVERIFY(!column.isContentVisible());
}

void tst_zelUIColumn::factoryMayDieBeforeTheColumn()
{
    Meta meta;
    meta.add<ZelUIVarBool>(L"on");
    meta.add<ZelUIVarImage>(L"picture");
    ZelFaultList faults;
    Column column;
    {
        ZelUiPlainFactory factory;
        const auto document = ZelDomDocument::fromText(
            "<column><var name='on'/><var name='picture'/></column>", "", faults);
        ZelUiBuild build(meta, factory, faults, "");
        column.setup(document.root());
        QCOMPARE(column.modelElements().size(), size_t(2));
    }
    QCOMPARE(column.modelElements().size(), size_t(1));
    QVERIFY(!column.containsViews(false));
    column.updateState(&meta, 0);
    column.setData(&meta, 0);
}

void tst_zelUIColumn::columnMayDieBeforeTheFactory()
{
    Setup setup("<column><var name='d'/><var name='picture'/></column>");
    setup.mColumn.reset();
    QVERIFY(!setup.mColumn);
}

void tst_zelUIColumn::tellsItself()
{
    const Setup setup("<column name='left'><var name='d'/></column>");
    const std::unique_ptr<ZelUIColumnStruct> told(setup.mColumn->toColumnStruct());
    QVERIFY(told->mName == L"left");
    QCOMPARE(told->mElementCount, 1);
}

QTEST_GUILESS_MAIN(tst_zelUIColumn)
#include "tst_zelUIColumn.moc"
