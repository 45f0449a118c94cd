#include "mask.h"
#include "tarvexModule.h"
#include "zelUIMultiVar.h"
#include "zelUIValueEdit.h"
#include "zelUIVarChoice.h"

#include <QtTest>
#include <limits>

namespace {

struct Changes
{
    explicit Changes(Meta &meta)
    {
        meta.setObserver([this](const ZelValueChange &change) {
            mLines << QString("%1[%2]@%3 %4")
                          .arg(toText(change.mVariable->name()))
                          .arg(change.mComponent)
                          .arg(change.mId)
                          .arg(change.mOrigin == ZelOrigin::User ? "User" : "other");
        });
    }
    QStringList mLines;
};

} // namespace

class tst_zelUIValueEdit : public QObject
{
    Q_OBJECT
private slots:
    void cleanup() { TarvexModule::Setup = nullptr; }

    void startsWithFourDecimalsAndNoUnit();
    void constructorsTakeUnits();
    void setupTakesEverythingOfTheVariable();
    void setupFollowsTheUnitSystem();
    void setupNamesTheChoiceByTyping();
    void defaultUnitOfAnotherDimensionTakesTheCurrentOneAlong();
    void currentUnitOfAnotherDimensionChangesNothing();
    void rangeInCurrentUnitIsStoredInDefaultUnit();
    void limitsAreSetOneByOne();
    void setDataTakesValueAndUnit();
    void setDataWithoutMetaOrVariableLeavesTheValue();
    void getDataWritesOnce();
    void getDataIsSilent_data();
    void getDataIsSilent();
    void getDataWritesTheSmallestDifference();
    void numberBeyondTheLimitsIsStoredAsTheLimit_data();
    void numberBeyondTheLimitsIsStoredAsTheLimit();
    void valueOfTheModuleBeyondTheLimitsStays();
    void untouchedFieldDoesNotWriteAnOldValue();
    void getDataCopiesToAnotherObject();
    void typingPicksTheAlternative();
    void integersAreStoredAsSuch();
    void userInput_data();
    void userInput();
    void userInputIsRefusedWhileReadOnly();
    void rendersAsShown_data();
    void rendersAsShown();
};

void tst_zelUIValueEdit::startsWithFourDecimalsAndNoUnit()
{
    const ZelUIValueEdit edit;
    QCOMPARE(edit.mDecimals, short(4));
    QCOMPARE(edit.mValueKind, 0);
    QCOMPARE(edit.defaultUnit(), ZelDimensions::NoUnit);
    QCOMPARE(edit.currentUnit(), ZelDimensions::NoUnit);
    QVERIFY(!edit.mHasBottom && !edit.mHasTop);
    QCOMPARE(edit.mValue, 0.0);
}

void tst_zelUIValueEdit::constructorsTakeUnits()
{
    const ZelUIValueEdit one(ZelDimensions::Millimetre);
    QCOMPARE(one.mCurrentUnit, ZelDimensions::Millimetre);
    const ZelUIValueEdit two(ZelDimensions::Millimetre, ZelDimensions::Inch);
    QCOMPARE(two.mDefaultUnit, ZelDimensions::Millimetre);
    QCOMPARE(toText(two.getCurrentUnitString()), QString("in"));
}

void tst_zelUIValueEdit::setupTakesEverythingOfTheVariable()
{
    ZelUIMultiVar variable(L"F", ZelDimensions::Kilonewton);
    variable.mDecimals = 2;
    variable.mValueKind = 2;
    variable.mHasTop = true;
    variable.mTop = 7;
    variable.mHasBottom = true;
    variable.mBottom = -7;
    AttrMap attributes;
    ZelUIValueEdit edit;
    edit.setup(&variable, attributes, 0);
    QCOMPARE(edit.mDefaultUnit, ZelDimensions::Kilonewton);
    QCOMPARE(edit.mCurrentUnit, ZelDimensions::defaultUnit(ZelDimensions::Kilonewton, true));
    QCOMPARE(edit.mDecimals, short(2));
    QCOMPARE(edit.mValueKind, 2);
    QVERIFY(edit.mHasTop && edit.mHasBottom);
    QCOMPARE(edit.top(), 7.0);
    QCOMPARE(edit.bottom(), -7.0);
    QVERIFY(edit.mPriorityName.empty());
}

void tst_zelUIValueEdit::setupFollowsTheUnitSystem()
{
    TarvexSetup setup{1};
    TarvexModule::Setup = &setup;
    ZelUIMultiVar variable(L"d", ZelDimensions::Millimetre);
    AttrMap attributes;
    ZelUIValueEdit edit;
    edit.setup(&variable, attributes, 0);
    QCOMPARE(edit.mCurrentUnit, ZelDimensions::Inch);
    QCOMPARE(edit.mDefaultUnit, ZelDimensions::Millimetre);
}

void tst_zelUIValueEdit::setupNamesTheChoiceByTyping()
{
    Mask mask;
    auto *a = mask.mMeta.add<ZelUIMultiVar>(L"a");
    auto *choice = mask.mMeta.add<ZelUIVarChoice>(L"shift");
    choice->mBy = ZelUIVarChoice::Typing;
    choice->mAlternatives = {{a}};
    ZelUiBuild build(mask.mMeta, mask.mFactory, mask.mFaults, "");
    AttrMap attributes;
    ZelUIValueEdit edit;
    edit.setup(a, attributes, 0);
    QCOMPARE(toText(edit.mPriorityName), QString("shift"));
}

void tst_zelUIValueEdit::defaultUnitOfAnotherDimensionTakesTheCurrentOneAlong()
{
    ZelUIValueEdit edit(ZelDimensions::Millimetre, ZelDimensions::Inch);
    edit.mValue = 5;
    edit.setDefaultUnit(ZelDimensions::Metre);
    QCOMPARE(edit.mCurrentUnit, ZelDimensions::Inch);
    QCOMPARE(edit.mValue, 5.0);
    edit.setDefaultUnit(ZelDimensions::Newton);
    QCOMPARE(edit.mCurrentUnit, ZelDimensions::Newton);
}

void tst_zelUIValueEdit::currentUnitOfAnotherDimensionChangesNothing()
{
    ZelUIValueEdit edit(ZelDimensions::Millimetre);
    edit.setCurrentUnit(ZelDimensions::Newton);
    QCOMPARE(edit.mCurrentUnit, ZelDimensions::Millimetre);
    edit.setCurrentUnit(ZelDimensions::Metre);
    QCOMPARE(edit.mCurrentUnit, ZelDimensions::Metre);
    edit.mValue = 1500;
    QCOMPARE(edit.valueInCurrentUnit(), 1.5);
}

void tst_zelUIValueEdit::rangeInCurrentUnitIsStoredInDefaultUnit()
{
    ZelUIValueEdit edit(ZelDimensions::Millimetre, ZelDimensions::Metre);
    edit.setRange(1, 2, true);
    QCOMPARE(edit.bottom(), 1000.0);
    QCOMPARE(edit.top(), 2000.0);
    edit.setRange(1, 2, false);
    QCOMPARE(edit.bottom(), 1.0);
    QCOMPARE(edit.top(), 2.0);
}

void tst_zelUIValueEdit::limitsAreSetOneByOne()
{
    ZelUIValueEdit edit;
    edit.setBottom(3);
    QVERIFY(edit.mHasBottom && !edit.mHasTop);
    edit.setTop(4);
    QVERIFY(edit.mHasTop);
    QCOMPARE(edit.bottom(), 3.0);
    QCOMPARE(edit.top(), 4.0);
}

void tst_zelUIValueEdit::setDataTakesValueAndUnit()
{
    Meta meta;
    auto *d = meta.add<ZelUIMultiVar>(L"d", ZelDimensions::Millimetre, 2);
    meta.setReal(*d, 7, 1, 12.5, ZelOrigin::Load);
    meta.setCurrentUnit(*d, 7, ZelDimensions::Centimetre);
    AttrMap attributes;
    ZelUIValueEdit edit;
    edit.setup(d, attributes, 1);
    edit.setData(&meta, 7);
    QCOMPARE(edit.mValue, 12.5);
    QCOMPARE(edit.mCurrentUnit, ZelDimensions::Centimetre);
    edit.setData(&meta, 8);
    QCOMPARE(edit.mValue, 0.0);
}

void tst_zelUIValueEdit::setDataWithoutMetaOrVariableLeavesTheValue()
{
    Meta meta;
    ZelUIValueEdit edit;
    edit.mValue = 3;
    edit.setData(nullptr, 0);
    QCOMPARE(edit.mValue, 3.0);
    edit.setData(&meta, 0);
    QCOMPARE(edit.mValue, 3.0);
    edit.getData(&meta, 0);
}

void tst_zelUIValueEdit::getDataWritesOnce()
{
    Meta meta;
    auto *d = meta.add<ZelUIMultiVar>(L"d", ZelDimensions::Millimetre);
    AttrMap attributes;
    ZelUIValueEdit edit;
    edit.setup(d, attributes, 0);
    edit.setData(&meta, 4);
    Changes changes(meta);
    edit.getData(&meta, 4);
    QCOMPARE(changes.mLines, QStringList());
    edit.mValue = 2.5;
    edit.getData(&meta, 4);
    edit.getData(&meta, 4);
    QCOMPARE(changes.mLines, QStringList({"d[0]@4 User"}));
    QCOMPARE(meta.real(*d, 4), 2.5);
}

void tst_zelUIValueEdit::getDataIsSilent_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("readOnly");
    QTest::newRow("disabled") << false << false;
    QTest::newRow("read-only") << true << true;
    QTest::newRow("both") << false << true;
}

void tst_zelUIValueEdit::getDataIsSilent()
{
    QFETCH(bool, enabled);
    QFETCH(bool, readOnly);
    Meta meta;
    auto *d = meta.add<ZelUIMultiVar>(L"d");
    meta.setReal(*d, 0, 0, 9, ZelOrigin::Load);
    AttrMap attributes;
    ZelUIValueEdit edit;
    edit.setup(d, attributes, 0);
    edit.setData(&meta, 0);
    edit.mEnabled = enabled;
    edit.mReadOnly = readOnly;
    edit.mValue = 0;
    edit.getData(&meta, 0);
    QCOMPARE(meta.real(*d, 0), 9.0);
}

void tst_zelUIValueEdit::getDataWritesTheSmallestDifference()
{
    Meta meta;
    auto *d = meta.add<ZelUIMultiVar>(L"d");
    meta.setReal(*d, 0, 0, 1, ZelOrigin::Load);
    AttrMap attributes;
    ZelUIValueEdit edit;
    edit.setup(d, attributes, 0);
    edit.setData(&meta, 0);
    const double next = std::nextafter(1.0, 2.0);
    edit.mValue = next;
    edit.getData(&meta, 0);
    QVERIFY(meta.real(*d, 0) == next);
    edit.mValue = 0.0;
    edit.getData(&meta, 0);
    edit.mValue = -0.0;
    edit.getData(&meta, 0);
    QVERIFY(std::signbit(meta.real(*d, 0)));
}

// The same variable may stand in two places of a mask, and a module may compute meanwhile.
void tst_zelUIValueEdit::numberBeyondTheLimitsIsStoredAsTheLimit_data()
{
    QTest::addColumn<double>("typed");
    QTest::addColumn<double>("stored");
    QTest::newRow("above") << 10.5 << 10.0;
    QTest::newRow("below") << -3.0 << 2.0;
    QTest::newRow("at the limit") << 10.0 << 10.0;
    QTest::newRow("within") << 9.5 << 9.5;
}

void tst_zelUIValueEdit::numberBeyondTheLimitsIsStoredAsTheLimit()
{
    QFETCH(double, typed);
    Meta meta;
    auto *d = meta.add<ZelUIMultiVar>(L"d", ZelDimensions::Millimetre);
    meta.setReal(*d, 0, 0, 5, ZelOrigin::Load);
    d->mHasBottom = d->mHasTop = true;
    d->mBottom = 2;
    d->mTop = 10;
    AttrMap attributes;
    ZelUIValueEdit edit;
    edit.setup(d, attributes, 0);
    edit.setData(&meta, 0);
    edit.mValue = typed;
    edit.getData(&meta, 0);
    QTEST(meta.real(*d, 0), "stored");
    QTEST(edit.mValue, "stored");
}

void tst_zelUIValueEdit::valueOfTheModuleBeyondTheLimitsStays()
{
    Meta meta;
    auto *d = meta.add<ZelUIMultiVar>(L"d", ZelDimensions::Millimetre);
    meta.setReal(*d, 0, 0, 50, ZelOrigin::Module);
    d->mHasTop = true;
    d->mTop = 10;
    AttrMap attributes;
    ZelUIValueEdit edit;
    edit.setup(d, attributes, 0);
    edit.setData(&meta, 0);
    edit.getData(&meta, 0);
    QCOMPARE(meta.real(*d, 0), 50.0);
}

void tst_zelUIValueEdit::untouchedFieldDoesNotWriteAnOldValue()
{
    Meta meta;
    auto *n = meta.add<ZelUIMultiVar>(L"n");
    AttrMap attributes;
    ZelUIValueEdit first;
    ZelUIValueEdit second;
    for (ZelUIValueEdit *edit : {&first, &second}) {
        edit->setup(n, attributes, 0);
        edit->setData(&meta, 0);
    }
    first.mValue = 1500;
    first.getData(&meta, 0);
    second.getData(&meta, 0);
    QCOMPARE(meta.real(*n, 0), 1500.0);
    QCOMPARE(second.mValue, 0.0);
}

void tst_zelUIValueEdit::getDataCopiesToAnotherObject()
{
    Meta meta;
    auto *n = meta.add<ZelUIMultiVar>(L"n");
    meta.setReal(*n, 1, 0, 42, ZelOrigin::Load);
    AttrMap attributes;
    ZelUIValueEdit edit;
    edit.setup(n, attributes, 0);
    edit.setData(&meta, 1);
    edit.getData(&meta, 2);
    QCOMPARE(meta.real(*n, 2), 42.0);
}

void tst_zelUIValueEdit::typingPicksTheAlternative()
{
    Meta meta;
    auto *length = meta.add<ZelUIMultiVar>(L"L1");
    auto *force = meta.add<ZelUIMultiVar>(L"F1");
    auto *range = meta.add<ZelUIVarChoice>(L"range");
    range->mBy = ZelUIVarChoice::Typing;
    range->mAlternatives = {{length}, {force}};
    AttrMap attributes;
    ZelUIValueEdit edit;
    edit.setup(force, attributes, 0);
    edit.updateState(&meta, 0);
    edit.setData(&meta, 0);
    QVERIFY(edit.mLowPriority);

    edit.getData(&meta, 0);
    QCOMPARE(meta.integer(*range, 0), int64_t(1));
    edit.mValue = 12;
    edit.getData(&meta, 0);
    QCOMPARE(meta.integer(*range, 0), int64_t(2));
    edit.setPriority(&meta);
    QVERIFY(!edit.mLowPriority);
}

void tst_zelUIValueEdit::integersAreStoredAsSuch()
{
    Meta meta;
    auto z = std::make_unique<ZelUIMultiVar>(L"z");
    z->mValueKind = 1;
    ZelUIMultiVar *teeth = z.get();
    QVERIFY(meta.add(std::move(z)));
    AttrMap attributes;
    ZelUIValueEdit edit;
    edit.setup(teeth, attributes, 0);
    edit.setData(&meta, 0);
    edit.mValue = 23;
    edit.getData(&meta, 0);
    QCOMPARE(meta.integer(*teeth, 0), int64_t(23));
    edit.setData(&meta, 0);
    QCOMPARE(edit.mValue, 23.0);
    edit.mValue = 1e300;
    edit.getData(&meta, 0);
    QCOMPARE(meta.integer(*teeth, 0), std::numeric_limits<int64_t>::max());
}

void tst_zelUIValueEdit::userInput_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<bool>("changed");
    QTest::addColumn<double>("value");
    QTest::newRow("point") << "1.5" << 0 << true << true << 1500.0;
    QTest::newRow("comma") << "1,5" << 0 << true << true << 1500.0;
    QTest::newRow("blanks") << "  2 " << 0 << true << true << 2000.0;
    QTest::newRow("plus") << "+2" << 0 << true << true << 2000.0;
    QTest::newRow("exponent") << "1e-1" << 0 << true << true << 100.0;
    QTest::newRow("same") << "0.3" << 0 << true << false << 300.0;
    QTest::newRow("below the bottom") << "-4" << 0 << true << true << 10.0;
    QTest::newRow("above the top") << "900" << 0 << true << true << 5000.0;
    QTest::newRow("integer") << "3" << 1 << true << true << 3000.0;
    QTest::newRow("no integer") << "3.5" << 1 << false << false << 300.0;
    QTest::newRow("empty") << "" << 0 << false << false << 300.0;
    QTest::newRow("word") << "drei" << 0 << false << false << 300.0;
    QTest::newRow("rest") << "3 m" << 0 << false << false << 300.0;
    QTest::newRow("two points") << "1.2.3" << 0 << false << false << 300.0;
    QTest::newRow("signs") << "+-3" << 0 << false << false << 300.0;
    QTest::newRow("infinite") << "inf" << 0 << false << false << 300.0;
    QTest::newRow("not a number") << "nan" << 0 << false << false << 300.0;
}

void tst_zelUIValueEdit::userInput()
{
    QFETCH(QString, text);
    QFETCH(int, kind);
    Meta meta;
    auto owned = std::make_unique<ZelUIMultiVar>(L"d", ZelDimensions::Millimetre);
    owned->mValueKind = kind;
    owned->mHasBottom = owned->mHasTop = true;
    owned->mBottom = 10;
    owned->mTop = 5000;
    owned->mInitial = {300};
    ZelUIMultiVar *d = owned.get();
    QVERIFY(meta.add(std::move(owned)));
    meta.setCurrentUnit(*d, 0, ZelDimensions::Metre);
    AttrMap attributes;
    ZelUIValueEdit edit;
    edit.setup(d, attributes, 0);
    edit.setData(&meta, 0);
    bool changed = true;
    QTEST(edit.setUserInput(&meta, 0, text.toStdWString(), changed), "accepted");
    QTEST(changed, "changed");
    const double stored = kind ? double(meta.integer(*d, 0)) : meta.real(*d, 0);
    QTEST(stored, "value");
    QTEST(edit.mValue, "value");
}

void tst_zelUIValueEdit::userInputIsRefusedWhileReadOnly()
{
    Meta meta;
    auto *d = meta.add<ZelUIMultiVar>(L"d");
    AttrMap attributes;
    ZelUIValueEdit edit;
    edit.setup(d, attributes, 0);
    edit.setData(&meta, 0);
    edit.mReadOnly = true;
    bool changed = true;
    QVERIFY(!edit.setUserInput(&meta, 0, L"5", changed));
    QVERIFY(!changed);
    QCOMPARE(edit.mValue, 0.0);
}

void tst_zelUIValueEdit::rendersAsShown_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("text");
    QTest::newRow("decimals") << 1234.6 << 0 << 3 << true << "1.235";
    QTest::newRow("no decimals") << 1234.6 << 0 << 0 << true << "1";
    QTest::newRow("integer") << 2600.0 << 1 << 4 << true << "3";
    QTest::newRow("half of an integer") << 2500.0 << 1 << 4 << true << "3";
    QTest::newRow("disabled") << 1.0 << 0 << 4 << false << "";
    QTest::newRow("negative decimals") << 2000.0 << 0 << -3 << true << "2";
}

void tst_zelUIValueEdit::rendersAsShown()
{
    QFETCH(double, value);
    QFETCH(int, kind);
    QFETCH(int, decimals);
    QFETCH(bool, enabled);
    ZelUIValueEdit edit(ZelDimensions::Millimetre, ZelDimensions::Metre);
    edit.mValue = value;
    edit.mValueKind = kind;
    edit.mDecimals = static_cast<short>(decimals);
    edit.mEnabled = enabled;
    QTEST(toText(edit.getRenderedData()), "text");
}

QTEST_GUILESS_MAIN(tst_zelUIValueEdit)
#include "tst_zelUIValueEdit.moc"
