#include "mask.h"
#include "zelUIFlag.h"

#include <QtTest>

namespace {

class Flag : public ZelUIFlag
{
public:
    using ZelUIFlag::setup;
    void setup(ZelUIVar *variable, AttrMap &attributes) override
    {
        ZelUIFlag::setup(variable, attributes);
        ++mNamed;
    }
    void retranslate() override { ++mRetranslated; }
    int mNamed = 0;
    int mRetranslated = 0;
};

} // namespace

class tst_zelUIFlag : public QObject
{
    Q_OBJECT
private slots:
    void valueGoesThereAndBack();
    void retranslatesWhenItBecomesEnabledAgain();
    void flagOfATableEndsInThePlainSetup();
    void flagOfATableHasNoValue();
    void givenTextBeatsThatOfTheVariable();
    void tellsItself();
};

void tst_zelUIFlag::valueGoesThereAndBack()
{
    Meta meta;
    auto *on = meta.add<ZelUIVarBool>(L"on");
    AttrMap attributes;
    ZelUIFlag flag;
    flag.setup(on, attributes);
    flag.setData(&meta, 0);
    QVERIFY(!flag.mChecked);
    flag.mChecked = true;
    flag.getData(&meta, 0);
    QVERIFY(meta.boolean(*on, 0));
    flag.setData(&meta, 0);
    QVERIFY(flag.mChecked);
    flag.mEnabled = false;
    flag.mChecked = false;
    flag.getData(&meta, 0);
    QVERIFY(meta.boolean(*on, 0));
}

void tst_zelUIFlag::retranslatesWhenItBecomesEnabledAgain()
{
    Meta meta;
    auto *on = meta.add<ZelUIVarBool>(L"on");
    auto *other = meta.add<ZelUIVarBool>(L"other");
    other->mEnabledIf = condition(L"on", meta);
    AttrMap attributes;
    Flag flag;
    flag.setup(other, attributes);
    flag.updateState(&meta, 0);
    QVERIFY(!flag.mEnabled);
    QCOMPARE(flag.mRetranslated, 0);
    meta.setBoolean(*on, 0, true, ZelOrigin::User);
    flag.updateState(&meta, 0);
    QVERIFY(flag.mEnabled);
    QCOMPARE(flag.mRetranslated, 1);
    flag.updateState(&meta, 0);
    QCOMPARE(flag.mRetranslated, 1);
}

void tst_zelUIFlag::flagOfATableEndsInThePlainSetup()
{
    ZelUIVarTable table(L"loads");
    table.mText.setText(L"Lastkollektiv");
    AttrMap attributes;
    Flag flag;
    flag.setup(&table, attributes);
    QCOMPARE(flag.mNamed, 1);
    QCOMPARE(toText(flag.getText()), QString("Lastkollektiv"));
    QCOMPARE(toText(flag.getItemName()), QString("loads_flag"));
    ZelUIVarBool on(L"on");
    Flag plain;
    plain.setup(&on, attributes);
    QCOMPARE(plain.mNamed, 0);
}

void tst_zelUIFlag::flagOfATableHasNoValue()
{
    Meta meta;
    auto *table = meta.add<ZelUIVarTable>(L"loads");
    AttrMap attributes;
    ZelUIFlag flag;
    flag.setup(table, attributes);
    flag.mChecked = true;
    flag.setData(&meta, 0);
    QVERIFY(flag.mChecked);
    flag.getData(&meta, 0);
}

void tst_zelUIFlag::givenTextBeatsThatOfTheVariable()
{
    ZelUIVarBool on(L"on");
    on.mText.setText(L"Modifiziert");
    AttrMap attributes;
    ZelUIFlag flag;
    ZelUITextHandler text;
    text.setText(L"Angepasst");
    flag.setModelText(text);
    flag.setup(&on, attributes);
    QCOMPARE(toText(flag.getText()), QString("Angepasst"));
}

void tst_zelUIFlag::tellsItself()
{
    ZelUIVarBool on(L"on");
    AttrMap attributes;
    ZelUIFlag flag(ZelUIFlagType::None);
    flag.setup(&on, attributes);
    flag.mChecked = true;
    flag.mVisible = false;
    QVERIFY(flag.mFlagType == ZelUIFlagType::None);
    flag.setFlagType(ZelUIFlagType::CheckBox);
    QVERIFY(flag.mFlagType == ZelUIFlagType::CheckBox);
    const ZelUIFlagStruct told = flag.toFlagStruct();
    QVERIFY(told.mName == L"on" && told.mChecked);
    QVERIFY((told.mState == ZelUIState{true, false, false}));
}

QTEST_GUILESS_MAIN(tst_zelUIFlag)
#include "tst_zelUIFlag.moc"
