#include "mask.h"
#include "zelUIFlag.h"
#include "zelUIMultiVar.h"
#include "zelUIStdElement.h"
#include "zelUITextLabel.h"
#include "zelUIValueEdit.h"
#include "zelUIVarChoice.h"

#include <QtTest>

namespace {

QString toText(const ZelUIState &state)
{
    return QString("%1%2%3").arg(state.mEnabled ? "e" : "-", state.mVisible ? "v" : "-",
                                 state.mReadOnly ? "r" : "-");
}

} // namespace

class tst_zelUIObject : public QObject
{
    Q_OBJECT
private slots:
    void startsEnabledAndVisible();
    void parentMayGoFirst();
    void childMayGoFirst();
    void elementForgetsDeadParts();
    void changingTheParentLeavesTheFormerOne();
    void takesNameAndHelpOfTheVariable();
    void takesNameAndHelpOfTheAttributes();
    void stateCombinesVariableNodeAndParent_data();
    void stateCombinesVariableNodeAndParent();
    void nullMetaLeavesTheFlags();
    void objectWithoutSourceKeepsItsFlags();
    void stateGoesDownTheTree();
    void roleOfAnInput_data();
    void roleOfAnInput();
    void labelsDoNotFollowTheRole();
    void choiceByTypingLowersPriorityOnly();
};

void tst_zelUIObject::startsEnabledAndVisible()
{
    const ZelUIObject object;
    QCOMPARE(toText(object.state()), QString("ev-"));
    QCOMPARE(object.getAuthorItCode(), -1);
    QVERIFY(object.getName().empty());
}

void tst_zelUIObject::parentMayGoFirst()
{
    ZelUIObject child;
    {
        ZelUIObject parent;
        child.setModelParent(&parent);
        QCOMPARE(parent.modelChildren().size(), size_t(1));
    }
    QVERIFY(!child.modelParent());
}

void tst_zelUIObject::childMayGoFirst()
{
    ZelUIObject parent;
    {
        ZelUIObject child;
        child.setModelParent(&parent);
    }
    QVERIFY(parent.modelChildren().empty());
}

void tst_zelUIObject::elementForgetsDeadParts()
{
    ZelUIStdElement element;
    auto label = std::make_unique<ZelUITextLabel>();
    auto edit = std::make_unique<ZelUIValueEdit>();
    element.mLabel = label.get();
    element.mInputs = {edit.get()};
    element.modelAdoptParts();
    QCOMPARE(element.modelItems().size(), size_t(2));

    edit.reset();
    QVERIFY(element.mInputs.empty());
    label.reset();
    QVERIFY(!element.mLabel);
    QVERIFY(element.modelItems().empty());
    Meta meta;
    element.setData(&meta, 0);
    element.modelSetUnit(ZelDimensions::Metre);
}

void tst_zelUIObject::changingTheParentLeavesTheFormerOne()
{
    ZelUIStdElement former;
    ZelUIStdElement other;
    ZelUITextLabel label;
    former.mLabel = &label;
    former.modelAdoptParts();
    label.setModelParent(&other);
    QVERIFY(!former.mLabel);
    QVERIFY(former.modelChildren().empty());
    QCOMPARE(label.modelParent(), static_cast<ZelUIObject *>(&other));
}

void tst_zelUIObject::takesNameAndHelpOfTheVariable()
{
    ZelUIMultiVar variable(L"d");
    variable.mHelpCode = 1201;
    AttrMap attributes{{L"name", L"other"}};
    ZelUIObject object;
    object.setup(&variable, attributes);
    QCOMPARE(::toText(object.getName()), QString("d"));
    QCOMPARE(object.getAuthorItCode(), 1201);
}

void tst_zelUIObject::takesNameAndHelpOfTheAttributes()
{
    ZelUIObject object;
    const AttrMap attributes{{L"name", L"input"}, {L"help", L"17"}};
    object.setup(attributes);
    QCOMPARE(::toText(object.getName()), QString("input"));
    QCOMPARE(object.getAuthorItCode(), 17);
}

// All combinations of the three sources for each of the three flags.
void tst_zelUIObject::stateCombinesVariableNodeAndParent_data()
{
    QTest::addColumn<bool>("ofVariable");
    QTest::addColumn<bool>("ofNode");
    QTest::addColumn<bool>("ofParent");
    for (int i = 0; i < 8; ++i)
        QTest::newRow(qPrintable(
            QString("variable %1, node %2, parent %3").arg(i & 1).arg(i >> 1 & 1).arg(i >> 2 & 1)))
            << bool(i & 1) << bool(i & 2) << bool(i & 4);
}

void tst_zelUIObject::stateCombinesVariableNodeAndParent()
{
    QFETCH(bool, ofVariable);
    QFETCH(bool, ofNode);
    QFETCH(bool, ofParent);
    Mask mask;
    auto *variable = mask.mMeta.add<ZelUIMultiVar>(L"d");
    const auto text = [](bool on) { return on ? L"true" : L"false"; };
    variable->mEnabledIf = condition(text(ofVariable), mask.mMeta);
    variable->mVisibleIf = condition(text(ofVariable), mask.mMeta);
    variable->mReadOnlyIf = condition(text(ofVariable), mask.mMeta);
    QVERIFY(variable->mEnabledIf && variable->mVisibleIf && variable->mReadOnlyIf);

    ZelUIObject parent;
    parent.mEnabled = parent.mVisible = parent.mReadOnly = ofParent;
    ZelUIObject child;
    child.setModelParent(&parent);
    child.setup(variable);
    ZelDomNode node(L"var");
    for (const wchar_t *name : {L"enabled", L"visible", L"readonly"})
        node.setAttribute(name, text(ofNode));
    {
        ZelUiBuild build(mask.mMeta, mask.mFactory, mask.mFaults, "");
        child.modelSetupNode(&node);
    }
    child.updateState(&mask.mMeta, 0);
    QCOMPARE(child.mEnabled, ofVariable && ofNode && ofParent);
    QCOMPARE(child.mVisible, ofVariable && ofNode && ofParent);
    QCOMPARE(child.mReadOnly, ofVariable || ofNode || ofParent);
}

void tst_zelUIObject::nullMetaLeavesTheFlags()
{
    Meta meta;
    auto *variable = meta.add<ZelUIMultiVar>(L"d");
    variable->mEnabledIf = condition(L"false", meta);
    ZelUIObject parent;
    ZelUIObject object;
    object.setModelParent(&parent);
    object.setup(variable);
    object.mVisible = false;
    parent.updateState(nullptr, 0);
    QCOMPARE(toText(object.state()), QString("e--"));
    parent.updateState(&meta, 0);
    QCOMPARE(toText(object.state()), QString("-v-"));
}

void tst_zelUIObject::objectWithoutSourceKeepsItsFlags()
{
    Meta meta;
    ZelUIFlag flag;
    flag.mEnabled = false;
    flag.mReadOnly = true;
    flag.updateState(&meta, 0);
    QCOMPARE(toText(flag.state()), QString("-vr"));
}

void tst_zelUIObject::stateGoesDownTheTree()
{
    Meta meta;
    auto *on = meta.add<ZelUIVarBool>(L"on");
    ZelUIObject top;
    ZelUIObject middle;
    ZelUIObject bottom;
    middle.setModelParent(&top);
    bottom.setModelParent(&middle);
    auto *variable = meta.add<ZelUIMultiVar>(L"d");
    variable->mVisibleIf = condition(L"on", meta);
    middle.setup(variable);
    top.updateState(&meta, 0);
    QCOMPARE(toText(bottom.state()), QString("e--"));
    meta.setBoolean(*on, 0, true, ZelOrigin::User);
    top.updateState(&meta, 0);
    QCOMPARE(toText(bottom.state()), QString("ev-"));
}

void tst_zelUIObject::roleOfAnInput_data()
{
    QTest::addColumn<bool>("result");
    QTest::addColumn<bool>("optional");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("set");
    QTest::addColumn<QString>("state");
    QTest::newRow("entered") << false << false << false << true << "ev-";
    QTest::newRow("result") << true << false << false << true << "evr";
    QTest::newRow("unset result") << true << false << false << false << "-vr";
    QTest::newRow("optional, entered") << false << true << true << true << "ev-";
    QTest::newRow("optional, computed") << false << true << false << true << "evr";
    QTest::newRow("optional, not computed yet") << false << true << false << false << "-vr";
}

void tst_zelUIObject::roleOfAnInput()
{
    QFETCH(bool, result);
    QFETCH(bool, optional);
    QFETCH(bool, checked);
    QFETCH(bool, set);
    Meta meta;
    auto *variable = meta.add<ZelUIMultiVar>(L"d");
    variable->mResult = result;
    variable->mOptional = optional;
    meta.setOptionChecked(*variable, 0, checked, ZelOrigin::User);
    if (set)
        meta.setReal(*variable, 0, 0, 3, ZelOrigin::Module);
    else
        meta.unset(*variable, 0);
    ZelUIValueEdit edit;
    AttrMap attributes;
    edit.setup(variable, attributes, 0);
    edit.updateState(&meta, 0);
    QTEST(toText(edit.state()), "state");
}

void tst_zelUIObject::labelsDoNotFollowTheRole()
{
    Meta meta;
    auto *variable = meta.add<ZelUIMultiVar>(L"d");
    variable->mResult = true;
    meta.unset(*variable, 0);
    ZelUITextLabel label;
    AttrMap attributes;
    static_cast<ZelUIObject &>(label).setup(variable, attributes);
    label.updateState(&meta, 0);
    QCOMPARE(toText(label.state()), QString("ev-"));
}

// The other members stay open, or nobody could pick an alternative by typing.
void tst_zelUIObject::choiceByTypingLowersPriorityOnly()
{
    for (const ZelUIVarChoice::By by : {ZelUIVarChoice::Switch, ZelUIVarChoice::Typing}) {
        Meta meta;
        auto *length = meta.add<ZelUIMultiVar>(L"L1");
        auto *force = meta.add<ZelUIMultiVar>(L"F1");
        auto *range = meta.add<ZelUIVarChoice>(L"range");
        range->mBy = by;
        range->mAlternatives = {{length}, {force}};
        meta.pick(*range, 0, 1, ZelOrigin::Load);
        ZelUIValueEdit entered;
        ZelUIValueEdit computed;
        AttrMap attributes;
        entered.setup(length, attributes, 0);
        computed.setup(force, attributes, 0);
        for (ZelUIValueEdit *edit : {&entered, &computed}) {
            edit->updateState(&meta, 0);
            edit->setData(&meta, 0);
        }
        const bool typing = by == ZelUIVarChoice::Typing;
        QCOMPARE(toText(entered.state()), QString("ev-"));
        QCOMPARE(toText(computed.state()), QString(typing ? "ev-" : "evr"));
        QCOMPARE(entered.mLowPriority, false);
        QCOMPARE(computed.mLowPriority, typing);
        QCOMPARE(::toText(computed.mPriorityName), QString(typing ? "range" : ""));
    }
}

QTEST_GUILESS_MAIN(tst_zelUIObject)
#include "tst_zelUIObject.moc"
