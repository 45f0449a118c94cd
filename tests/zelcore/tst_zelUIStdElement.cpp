#include "mask.h"
#include "zelUIColumn.h"
#include "zelUIEditButton.h"
#include "zelUIFormulaLabel.h"
#include "zelUIMultiVar.h"
#include "zelUIPushButton.h"
#include "zelUISpacer.h"
#include "zelUISpinBox.h"
#include "zelUIStdButtonBox.h"
#include "zelUIStdElement.h"
#include "zelUITextEdit.h"
#include "zelUITextLabel.h"
#include "zelUIUnitLabel.h"
#include "zelUIVarChoice.h"

#include <QtTest>

namespace {

ZelUIMultiVar *number(Mask &mask, const wchar_t *name,
                      ZelDimensions::Unit unit = ZelDimensions::Millimetre, int components = 1)
{
    auto *variable = mask.mMeta.add<ZelUIMultiVar>(name, unit, components);
    variable->mText.setText(std::wstring(L"Text ") + name);
    variable->mFormula = name;
    return variable;
}

// The first element of the first column of a page with this column content.
ZelUIStdElement *line(Mask &mask, const QString &content)
{
    const QString xml = "<page><board><column>" + content + "</column></board></page>";
    mask.build(xml.toUtf8().constData());
    const auto &board = *mask.mPage->modelContainers().front();
    const auto &column = *board.modelContainers().front();
    return column.modelElements().empty()
        ? nullptr
        : dynamic_cast<ZelUIStdElement *>(column.modelElements().front());
}

// The parts of a line in a few letters: Label, Formula, Input, eDit button, Spacer, Unit, Box.
QString parts(const ZelUIStdElement &element)
{
    QString text;
    text += element.mLabel ? "L" : "";
    text += element.mFormulaLabel ? "F" : "";
    text += QString(int(element.mInputs.size()), 'I');
    text += QString(int(element.mEditButtons.size()), 'D');
    text += element.mSpacer ? "S" : "";
    text += element.mUnitLabel ? "U" : "";
    text += element.mIconBox ? "B" : "";
    return text;
}

int code(ZelFaultCode code)
{
    return static_cast<int>(code);
}

} // namespace

class tst_zelUIStdElement : public QObject
{
    Q_OBJECT
private slots:
    void partsOfALine_data();
    void partsOfALine();
    void promptOfTheNodeBeatsThatOfTheVariable();
    void inputsAreTheComponents();
    void numberWithStepIsASpinBox();
    void lineOfSeveralVariables();
    void editButtonsStandInPairs();
    void unlikeUnitsAreAFault();
    void unknownVariableLeavesTheLineOut();
    void conditionsOfTheNodes();
    void lineGoesWithItsLastVariable();
    void hiddenLineDoesNotShowInBetween();
    void elementHandsItsStateToSpacerAndBox();
    void elementWalksItsParts();
    void iconButtons();
    void tipsOfTheIconButtonsNameThePrompt_data();
    void tipsOfTheIconButtonsNameThePrompt();
    void infoButtonFallsBackToTheHelpCode();
    void partWithoutFactoryIsLeftOut();
};

void tst_zelUIStdElement::partsOfALine_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("parts");
    QTest::newRow("number") << "<var name='d'/>"
                            << "LFISU";
    QTest::newRow("number without unit") << "<var name='x'/>"
                                         << "LFIS";
    QTest::newRow("optional") << "<var name='opt'/>"
                              << "LFIDU";
    QTest::newRow("member of a choice") << "<var name='c1'/>"
                                        << "LFIDU";
    QTest::newRow("pair") << "<var name='pair'/>"
                          << "LFIISU";
    QTest::newRow("optional pair") << "<var name='optpair'/>"
                                   << "LFIIDU";
    QTest::newRow("without text") << "<var name='d' text=''/>"
                                  << "FISU";
    QTest::newRow("text") << "<var name='note'/>"
                          << "LIS";
    QTest::newRow("list") << "<var name='list'/>"
                          << "LIS";
    QTest::newRow("buttons") << "<var name='d' buttons='info'/>"
                             << "LFISUB";
    QTest::newRow("line") << "<line text='a'><var name='d'/><var name='d2'/></line>"
                          << "LFIISU";
    QTest::newRow("line without text") << "<line><var name='d'/><var name='d2'/></line>"
                                       << "FIISU";
    QTest::newRow("line with one switch") << "<line><var name='d'/><var name='opt'/></line>"
                                          << "FIIDU";
    QTest::newRow("line with two switches") << "<line><var name='opt2'/><var name='opt'/></line>"
                                            << "FIIDDU";
    QTest::newRow("line with three inputs, two switches")
        << "<line><var name='opt2'/><var name='d'/><var name='opt'/></line>"
        << "FIIIDDDU";
}

void tst_zelUIStdElement::partsOfALine()
{
    QFETCH(QString, content);
    Mask mask;
    number(mask, L"d");
    number(mask, L"d2");
    number(mask, L"x", ZelDimensions::NoUnit);
    number(mask, L"opt")->mOptional = true;
    number(mask, L"opt2")->mOptional = true;
    number(mask, L"pair", ZelDimensions::Millimetre, 2);
    number(mask, L"optpair", ZelDimensions::Millimetre, 2)->mOptional = true;
    auto *c1 = number(mask, L"c1");
    mask.mMeta.add<ZelUIVarChoice>(L"choice")->mAlternatives = {{c1}};
    mask.mMeta.add<ZelUIVarString>(L"note")->mText.setText(L"Notiz");
    mask.mMeta.add<ZelUIVarList>(L"list")->mText.setText(L"Liste");
    const ZelUIStdElement *element = line(mask, content);
    QVERIFY(element);
    QTEST(parts(*element), "parts");
    QCOMPARE(mask.faultPlaces(), QStringList());
}

void tst_zelUIStdElement::promptOfTheNodeBeatsThatOfTheVariable()
{
    Mask mask;
    number(mask, L"d");
    QCOMPARE(toText(line(mask, "<var name='d'/>")->mLabel->getText()), QString("Text d"));
    QCOMPARE(toText(line(mask, "<var name='d' text='Draht'/>")->mLabel->getText()),
             QString("Draht"));
}

void tst_zelUIStdElement::inputsAreTheComponents()
{
    Mask mask;
    number(mask, L"d", ZelDimensions::Millimetre, 3);
    const ZelUIStdElement *element = line(mask, "<var name='d'/>");
    QStringList names;
    for (ZelUIInput *input : element->mInputs)
        names << toText(input->getItemName());
    QCOMPARE(names, QStringList({"d", "d_2", "d_3"}));
}

// A spin box converts no units: a number with a unit keeps its field.
void tst_zelUIStdElement::numberWithStepIsASpinBox()
{
    Mask mask;
    for (ZelUIMultiVar *variable :
         {number(mask, L"z", ZelDimensions::NoUnit), number(mask, L"d")}) {
        variable->mStepped = true;
        variable->mStep = 2;
    }
    const auto *box = dynamic_cast<ZelUISpinBox *>(line(mask, "<var name='z'/>")->mInputs.front());
    QVERIFY(box);
    QCOMPARE(box->mStep, 2.0);
    QVERIFY(!dynamic_cast<ZelUISpinBox *>(line(mask, "<var name='d'/>")->mInputs.front()));
}

void tst_zelUIStdElement::lineOfSeveralVariables()
{
    Mask mask;
    number(mask, L"C", ZelDimensions::Newton);
    number(mask, L"Cu", ZelDimensions::Kilonewton);
    const ZelUIStdElement *element =
        line(mask, "<line name='loads' text='Lasten'><var name='C'/><var name='Cu'/></line>");
    QCOMPARE(toText(element->getName()), QString("loads"));
    QCOMPARE(toText(element->mLabel->getText()), QString("Lasten"));
    QCOMPARE(toText(element->mFormulaLabel->getFormula()), QString("C, Cu"));
    QCOMPARE(element->mUnitLabel->mDefaultUnit, ZelDimensions::Newton);
    QCOMPARE(mask.faultPlaces(), QStringList());
}

void tst_zelUIStdElement::editButtonsStandInPairs()
{
    Mask mask;
    number(mask, L"a", ZelDimensions::Millimetre, 2)->mOptional = true;
    number(mask, L"b");
    number(mask, L"c")->mOptional = true;
    const ZelUIStdElement *element =
        line(mask, "<line><var name='a'/><var name='b'/><var name='c'/></line>");
    QCOMPARE(element->mEditButtons.size(), element->mInputs.size());
    QVector<int> types;
    for (ZelUIEditButton *button : element->mEditButtons)
        types << int(button->editType());
    QCOMPARE(types, QVector<int>({1, 0, 0, 1}));
    QVERIFY(!element->mSpacer);
}

void tst_zelUIStdElement::unlikeUnitsAreAFault()
{
    Mask mask;
    number(mask, L"d");
    number(mask, L"F", ZelDimensions::Newton);
    number(mask, L"e", ZelDimensions::Metre);
    const ZelUIStdElement *element =
        line(mask, "<line><var name='d'/><var name='F'/><var name='e'/></line>");
    QCOMPARE(mask.faultPlaces(),
             QStringList(QString("%1 at 1:54").arg(code(ZelFaultCode::UnlikeUnits))));
    QCOMPARE(element->mInputs.size(), size_t(2));
}

void tst_zelUIStdElement::unknownVariableLeavesTheLineOut()
{
    Mask mask;
    number(mask, L"d");
    QVERIFY(!line(mask, "<line><var name='d'/><var name='nix'/></line>"));
    QVERIFY(!line(mask, "<var name='nix'/>"));
    QCOMPARE(mask.faultPlaces(),
             QStringList({QString("%1 at 1:54").arg(code(ZelFaultCode::UnknownName)),
                          QString("%1 at 1:33").arg(code(ZelFaultCode::UnknownName))}));
}

void tst_zelUIStdElement::conditionsOfTheNodes()
{
    Mask mask;
    number(mask, L"a", ZelDimensions::Millimetre, 2)->mOptional = true;
    number(mask, L"b");
    auto *on = mask.mMeta.add<ZelUIVarBool>(L"on");
    const ZelUIStdElement *element =
        line(mask,
             "<line enabled='on'><var name='a' readonly='on'/><var name='b' visible='on'/></line>");
    mask.refresh();
    QVERIFY(!element->mInputs[0]->mEnabled);
    QVERIFY(!element->mLabel);
    QVERIFY(!element->mUnitLabel->mEnabled);
    QVERIFY(!element->mInputs[2]->mVisible);
    mask.mMeta.setBoolean(*on, 0, true, ZelOrigin::User);
    mask.mMeta.setOptionChecked(*mask.mMeta.variable(L"a"), 0, true, ZelOrigin::User);
    mask.refresh();
    QVERIFY(element->mInputs[0]->mEnabled && element->mInputs[0]->mReadOnly);
    QVERIFY(element->mInputs[1]->mReadOnly);
    QVERIFY(element->mEditButtons[0]->mReadOnly);
    QVERIFY(!element->mInputs[2]->mReadOnly && element->mInputs[2]->mVisible);
}

void tst_zelUIStdElement::lineGoesWithItsLastVariable()
{
    Mask mask;
    auto *a = number(mask, L"a");
    auto *b = number(mask, L"b");
    auto *first = mask.mMeta.add<ZelUIVarBool>(L"first");
    auto *second = mask.mMeta.add<ZelUIVarBool>(L"second");
    a->mVisibleIf = condition(L"first", mask.mMeta);
    b->mVisibleIf = condition(L"second", mask.mMeta);
    const ZelUIStdElement *element =
        line(mask, "<line text='t' buttons='info'><var name='a'/><var name='b'/></line>");
    mask.refresh();
    QVERIFY(!element->mLabel->mVisible && !element->mSpacer->mVisible);
    QVERIFY(!element->mIconBox->mVisible && !element->mVisible);
    mask.mMeta.setBoolean(*second, 0, true, ZelOrigin::User);
    mask.refresh();
    QVERIFY(element->mLabel->mVisible && element->mSpacer->mVisible);
    QVERIFY(!element->mInputs[0]->mVisible && element->mInputs[1]->mVisible);
    mask.mMeta.setBoolean(*first, 0, true, ZelOrigin::User);
    mask.refresh();
    QVERIFY(element->mInputs[0]->mVisible);
}

// A label that shows and hides again at each refresh would make the mask flicker.
void tst_zelUIStdElement::hiddenLineDoesNotShowInBetween()
{
    struct Label : ZelUITextLabel
    {
        void updateState(Meta *meta, int64_t id) override
        {
            ZelUITextLabel::updateState(meta, id);
            mVisibles << mVisible;
        }
        QVector<bool> mVisibles;
    };
    struct Labels : ZelUiPlainFactory
    {
        ZelUITextLabel *makeTextLabel(ZelUIAlignment) override { return &mLabel; }
        Label mLabel;
    };
    Labels factory;
    Mask mask;
    number(mask, L"a")->mVisibleIf = condition(L"false", mask.mMeta);
    ZelDomNode node(L"line");
    node.setAttribute(L"text", L"Lasten");
    node.addChild(L"var")->setAttribute(L"name", L"a");
    ZelUiBuild build(mask.mMeta, factory, mask.mFaults, "");
    ZelUIStdElement element;
    element.modelSetupLine(&node);
    element.modelMakeParts();
    element.updateState(&mask.mMeta, 0);
    element.updateState(&mask.mMeta, 0);
    QCOMPARE(factory.mLabel.mVisibles, QVector<bool>({false, false}));
}

void tst_zelUIStdElement::elementHandsItsStateToSpacerAndBox()
{
    struct Spacer : ZelUISpacer
    {
        using ZelUISpacer::updateState;
        void updateState(ZelUIState state) override
        {
            ZelUISpacer::updateState(state);
            mStates
                << QString("%1%2%3").arg(state.mEnabled).arg(state.mVisible).arg(state.mReadOnly);
        }
        QStringList mStates;
    };
    struct Box : ZelUIStdButtonBox
    {
        using ZelUIStdButtonBox::updateState;
        void updateState(bool visible) override
        {
            ZelUIStdButtonBox::updateState(visible);
            mStates << QString("%1").arg(visible);
        }
        QStringList mStates;
    };
    Meta meta;
    auto *d = meta.add<ZelUIMultiVar>(L"d");
    d->mVisibleIf = condition(L"d > 0", meta);
    d->mReadOnlyIf = condition(L"true", meta);
    Spacer spacer;
    Box box;
    ZelUIStdElement element;
    AttrMap attributes;
    element.setup(d, attributes);
    element.mSpacer = &spacer;
    element.mIconBox = &box;
    element.modelAdoptParts();
    element.updateState(&meta, 0);
    meta.setReal(*d, 0, 0, 1, ZelOrigin::User);
    element.updateState(&meta, 0);
    QCOMPARE(spacer.mStates, QStringList({"101", "111"}));
    QCOMPARE(box.mStates, QStringList({"0", "1"}));
}

void tst_zelUIStdElement::elementWalksItsParts()
{
    Mask mask;
    auto *d = number(mask, L"d");
    d->mOptional = true;
    const ZelUIStdElement *element = line(mask, "<var name='d'/>");
    mask.mMeta.setReal(*d, 2, 0, 12, ZelOrigin::Load);
    mask.refresh(2);
    auto *edit = dynamic_cast<ZelUIValueEdit *>(element->mInputs.front());
    QVERIFY(edit);
    QCOMPARE(edit->mValue, 12.0);
    element->mEditButtons.front()->mChecked = true;
    mask.mPage->getData(&mask.mMeta, 2);
    QVERIFY(mask.mMeta.isOptionChecked(*d, 2));
    mask.refresh(2);
    edit->mValue = 13;
    mask.mPage->getData(&mask.mMeta, 2);
    QCOMPARE(mask.mMeta.real(*d, 2), 13.0);
}

void tst_zelUIStdElement::iconButtons()
{
    Mask mask;
    number(mask, L"d");
    const ZelUIStdElement *element =
        line(mask, "<var name='d' buttons='size info,nix database' info='7 9'/>");
    QVERIFY(element->mIconBox);
    QStringList names;
    for (int i = 0; i < element->mIconBox->count(); ++i)
        names << toText(element->mIconBox->getPushButton(i)->getItemName());
    QCOMPARE(names, QStringList({"d_size", "d_info", "d_database"}));
    QVERIFY((element->mIconBox->getPushButton(1)->mInfoIds == std::vector<int>{7, 9}));
    QVERIFY(element->mIconBox->getPushButton(0)->mIconOnly);
}

void tst_zelUIStdElement::tipsOfTheIconButtonsNameThePrompt_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("toolTip");
    QTest::newRow("variable") << "<var name='d' buttons='size'/>"
                              << "Text d auslegen";
    QTest::newRow("text of the node") << "<var name='d' text='Breite' buttons='size'/>"
                                      << "Breite auslegen";
    QTest::newRow("text of the line")
        << "<line text='Breiten' buttons='size'><var name='d'/><var name='e'/></line>"
        << "Breiten auslegen";
    QTest::newRow("line without text") << "<line buttons='size'><var name='d'/></line>"
                                       << "";
    QTest::newRow("variable in a line")
        << "<line text='Breiten'><var name='d'/><var name='e' buttons='size'/></line>"
        << "Text e auslegen";
}

void tst_zelUIStdElement::tipsOfTheIconButtonsNameThePrompt()
{
    QFETCH(QString, content);
    Mask mask;
    number(mask, L"d");
    number(mask, L"e");
    const ZelUIStdElement *element = line(mask, content);
    QVERIFY(element && element->mIconBox);
    const ZelUIPushButton *button = element->mIconBox->getPushButton(0);
    QTEST(toText(button->tooltip()), "toolTip");
    QCOMPARE(toText(button->statustip()), QString("Berechnet den Wert anhand von Rechenmethoden"));
}

void tst_zelUIStdElement::infoButtonFallsBackToTheHelpCode()
{
    Mask mask;
    number(mask, L"d")->mHelpCode = 1201;
    const ZelUIStdElement *element = line(mask, "<var name='d' buttons='info size'/>");
    QCOMPARE(element->mIconBox->getPushButton(0)->currentInfoId(), 1201);
    QCOMPARE(element->mIconBox->getPushButton(1)->currentInfoId(), 0);
}

void tst_zelUIStdElement::partWithoutFactoryIsLeftOut()
{
    struct Poor : ZelUiPlainFactory
    {
        ZelUIUnitLabel *makeUnitLabel() override { return nullptr; }
        ZelUIEditButton *makeEditButton(ZelUIEditButtonType) override { return nullptr; }
        ZelUITextEdit *makeTextEdit() override { return nullptr; }
    };
    Mask mask;
    Poor factory;
    number(mask, L"d")->mOptional = true;
    mask.mMeta.add<ZelUIVarString>(L"note");
    ZelUiBuild build(mask.mMeta, factory, mask.mFaults, "");
    AttrMap attributes;
    ZelUIStdElement element;
    element.setup(mask.mMeta.variable(L"d"), attributes);
    element.modelMakeParts();
    QCOMPARE(parts(element), QString("LFI"));
    ZelUIStdElement text;
    text.setup(mask.mMeta.variable(L"note"), attributes);
    text.modelMakeParts();
    QCOMPARE(parts(text), QString());
}

QTEST_GUILESS_MAIN(tst_zelUIStdElement)
#include "tst_zelUIStdElement.moc"
