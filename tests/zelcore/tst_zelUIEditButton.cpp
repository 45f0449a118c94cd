#include "mask.h"
#include "zelUIEditButton.h"
#include "zelUIMultiVar.h"
#include "zelUIVarChoice.h"

#include <QtTest>

Q_DECLARE_METATYPE(ZelUIEditButtonType)

namespace {

struct Spring
{
    explicit Spring(ZelUIVarChoice::By by)
    {
        mRange->mBy = by;
        mRange->mAlternatives = {{mL1, mL2}, {mF1, mF2}};
        mMeta.pick(*mRange, 0, 1, ZelOrigin::Load);
    }
    ZelUIEditButton *button(ZelUIMultiVar *variable)
    {
        auto button = std::make_unique<ZelUIEditButton>(ZelUIEditButtonType::RADIOBUTTON);
        AttrMap attributes;
        button->setup(variable, attributes, 0);
        button->setData(&mMeta, 0);
        mButtons.push_back(std::move(button));
        return mButtons.back().get();
    }

    Meta mMeta;
    ZelUIMultiVar *mL1 = mMeta.add<ZelUIMultiVar>(L"L1");
    ZelUIMultiVar *mL2 = mMeta.add<ZelUIMultiVar>(L"L2");
    ZelUIMultiVar *mF1 = mMeta.add<ZelUIMultiVar>(L"F1");
    ZelUIMultiVar *mF2 = mMeta.add<ZelUIMultiVar>(L"F2");
    ZelUIVarChoice *mRange = mMeta.add<ZelUIVarChoice>(L"range");
    std::vector<std::unique_ptr<ZelUIEditButton>> mButtons;
};

} // namespace

class tst_zelUIEditButton : public QObject
{
    Q_OBJECT
private slots:
    void typeComesFromTheVariable_data();
    void typeComesFromTheVariable();
    void setupAsksForTheTypeDuringABuild();
    void hiddenIsNeverVisible();
    void staysOpenWhenTheValueIsComputed();
    void checkBoxWritesTheOption();
    void radioButtonPicksItsAlternative();
    void staleRadioButtonsDoNotPickBack();
    void uncheckingARadioButtonIsNoChoice();
    void labelAndHiddenNeverWrite_data();
    void labelAndHiddenNeverWrite();
    void readOnlyConditionForbidsTheSwitch();
};

void tst_zelUIEditButton::typeComesFromTheVariable_data()
{
    QTest::addColumn<bool>("result");
    QTest::addColumn<bool>("optional");
    QTest::addColumn<int>("choice"); // 0 none, 1 by switch, 2 by typing, 3 by typing and shared
    QTest::addColumn<int>("type");
    QTest::newRow("plain") << false << false << 0 << 0;
    QTest::newRow("optional") << false << true << 0 << 1;
    QTest::newRow("result") << true << false << 0 << 0;
    QTest::newRow("optional result") << true << true << 0 << 0;
    QTest::newRow("choice by switch") << false << false << 1 << 2;
    QTest::newRow("choice by typing") << false << false << 2 << 2;
    QTest::newRow("choice by typing with shared members") << false << false << 3 << 0;
    QTest::newRow("optional in a choice") << false << true << 1 << 1;
}

void tst_zelUIEditButton::typeComesFromTheVariable()
{
    QFETCH(bool, result);
    QFETCH(bool, optional);
    QFETCH(int, choice);
    Meta meta;
    auto *a = meta.add<ZelUIMultiVar>(L"a");
    auto *b = meta.add<ZelUIMultiVar>(L"b");
    a->mResult = result;
    a->mOptional = optional;
    if (choice > 0) {
        auto *variable = meta.add<ZelUIVarChoice>(L"choice");
        variable->mBy = choice == 1 ? ZelUIVarChoice::Switch : ZelUIVarChoice::Typing;
        variable->mAlternatives = {{a}, {b}};
        if (choice == 3)
            variable->mAlternatives = {{a, b}, {a}};
    }
    QTEST(static_cast<int>(ZelUIEditButton::modelTypeFor(*a, meta)), "type");
}

void tst_zelUIEditButton::setupAsksForTheTypeDuringABuild()
{
    Mask mask;
    auto *d = mask.mMeta.add<ZelUIMultiVar>(L"d");
    d->mOptional = true;
    AttrMap attributes;
    ZelUIEditButton before(ZelUIEditButtonType::RADIOBUTTON);
    before.setup(d, attributes, 0);
    QVERIFY(before.editType() == ZelUIEditButtonType::RADIOBUTTON);
    ZelUiBuild build(mask.mMeta, mask.mFactory, mask.mFaults, "");
    ZelUIEditButton during(ZelUIEditButtonType::RADIOBUTTON);
    during.setup(d, attributes, 0);
    QVERIFY(during.editType() == ZelUIEditButtonType::CHECKBOX);
}

void tst_zelUIEditButton::hiddenIsNeverVisible()
{
    Meta meta;
    auto *d = meta.add<ZelUIMultiVar>(L"d");
    AttrMap attributes;
    ZelUIEditButton button;
    button.setup(d, attributes, 0);
    button.updateState(&meta, 0);
    QVERIFY(button.mVisible);
    button.setEditType(ZelUIEditButtonType::HIDDEN);
    button.updateState(&meta, 0);
    QVERIFY(!button.mVisible);
}

void tst_zelUIEditButton::staysOpenWhenTheValueIsComputed()
{
    Meta meta;
    auto *d = meta.add<ZelUIMultiVar>(L"d");
    d->mOptional = true;
    meta.unset(*d, 0);
    AttrMap attributes;
    ZelUIEditButton button;
    button.setup(d, attributes, 0);
    button.updateState(&meta, 0);
    QVERIFY(button.mEnabled);
    QVERIFY(!button.mReadOnly);
}

void tst_zelUIEditButton::checkBoxWritesTheOption()
{
    Meta meta;
    auto *d = meta.add<ZelUIMultiVar>(L"d");
    d->mOptional = true;
    AttrMap attributes;
    ZelUIEditButton button;
    button.setup(d, attributes, 0);
    button.setData(&meta, 3);
    QVERIFY(!button.mChecked);
    button.mChecked = true;
    button.getData(&meta, 3);
    QVERIFY(meta.isOptionChecked(*d, 3));
    QVERIFY(!meta.isOptionChecked(*d, 0));
    button.setData(&meta, 3);
    QVERIFY(button.mChecked);
    button.mChecked = false;
    button.getData(&meta, 3);
    QVERIFY(!meta.isOptionChecked(*d, 3));
}

void tst_zelUIEditButton::radioButtonPicksItsAlternative()
{
    for (const ZelUIVarChoice::By by : {ZelUIVarChoice::Switch, ZelUIVarChoice::Typing}) {
        Spring spring(by);
        ZelUIEditButton *f2 = spring.button(spring.mF2);
        QVERIFY(spring.button(spring.mL2)->mChecked);
        QVERIFY(!f2->mChecked);
        f2->mChecked = true;
        f2->getData(&spring.mMeta, 0);
        QCOMPARE(spring.mMeta.integer(*spring.mRange, 0), int64_t(2));
    }
}

// The buttons of a mask are read in order, and those of the former alternative are still checked.
void tst_zelUIEditButton::staleRadioButtonsDoNotPickBack()
{
    Spring spring(ZelUIVarChoice::Switch);
    ZelUIEditButton *f1 = spring.button(spring.mF1);
    ZelUIEditButton *l1 = spring.button(spring.mL1);
    ZelUIEditButton *l2 = spring.button(spring.mL2);
    f1->mChecked = true;
    for (ZelUIEditButton *button : {f1, l1, l2})
        button->getData(&spring.mMeta, 0);
    QCOMPARE(spring.mMeta.integer(*spring.mRange, 0), int64_t(2));
    for (ZelUIEditButton *button : {f1, l1, l2})
        button->setData(&spring.mMeta, 0);
    QVERIFY(f1->mChecked && !l1->mChecked && !l2->mChecked);
}

void tst_zelUIEditButton::uncheckingARadioButtonIsNoChoice()
{
    Spring spring(ZelUIVarChoice::Switch);
    ZelUIEditButton *l1 = spring.button(spring.mL1);
    l1->mChecked = false;
    l1->getData(&spring.mMeta, 0);
    QCOMPARE(spring.mMeta.integer(*spring.mRange, 0), int64_t(1));
    l1->setData(&spring.mMeta, 0);
    QVERIFY(l1->mChecked);
}

void tst_zelUIEditButton::labelAndHiddenNeverWrite_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("writes");
    QTest::newRow("label") << 0 << false;
    QTest::newRow("check box") << 1 << true;
    QTest::newRow("radio button") << 2 << false; // an optional variable is in no choice
    QTest::newRow("hidden") << 3 << false;
}

void tst_zelUIEditButton::labelAndHiddenNeverWrite()
{
    QFETCH(int, type);
    Meta meta;
    auto *d = meta.add<ZelUIMultiVar>(L"d");
    d->mOptional = true;
    AttrMap attributes;
    ZelUIEditButton button(static_cast<ZelUIEditButtonType>(type));
    button.setup(d, attributes, 0);
    button.setData(&meta, 0);
    button.mChecked = true;
    button.getData(&meta, 0);
    QTEST(meta.isOptionChecked(*d, 0), "writes");
}

void tst_zelUIEditButton::readOnlyConditionForbidsTheSwitch()
{
    Meta meta;
    auto *d = meta.add<ZelUIMultiVar>(L"d");
    d->mOptional = true;
    d->mReadOnlyIf = condition(L"true", meta);
    AttrMap attributes;
    ZelUIEditButton button;
    button.setup(d, attributes, 0);
    button.updateState(&meta, 0);
    button.setData(&meta, 0);
    button.mChecked = true;
    button.getData(&meta, 0);
    QVERIFY(!meta.isOptionChecked(*d, 0));
}

QTEST_GUILESS_MAIN(tst_zelUIEditButton)
#include "tst_zelUIEditButton.moc"
