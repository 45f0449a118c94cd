#include "meta.h"
#include "zelUIMultiVar.h"
#include "zelUIVarChoice.h"
#include "zelUIVarKinds.h"

#include <QtTest>
#include <limits>

namespace {

bool usCustomary = false;

QString toText(const zelWString &text)
{
    return QString::fromStdWString(text);
}

// "variable[component]@id old -> new (origin)", with what changed besides a value in front.
struct Recorder
{
    explicit Recorder(Meta &meta)
    {
        meta.setObserver([this](const ZelValueChange &change) {
            static const char *const origins[] = {"User", "Module", "Load"};
            mLines << QString("%1%2[%3]@%4 %5 -> %6 (%7)")
                          .arg(change.mOption ? "option " : "", toText(change.mVariable->name()))
                          .arg(change.mComponent)
                          .arg(change.mId)
                          .arg(toText(change.mOld), toText(change.mNew),
                               origins[int(change.mOrigin)]);
        });
        meta.setChoiceObserver([this](const ZelUIVarChoice &choice, int64_t id, short former,
                                      short current, ZelOrigin) {
            mLines << QString("choice %1@%2 %3 -> %4")
                          .arg(toText(choice.name()))
                          .arg(id)
                          .arg(former)
                          .arg(current);
        });
    }
    QStringList take() { return std::exchange(mLines, QStringList()); }
    QStringList mLines;
};

ZelListEntry entry(short id, const wchar_t *name)
{
    ZelListEntry entry;
    entry.mId = id;
    entry.mName = name;
    return entry;
}

// A gear pair: two of centre distance and profile shifts are entered.
struct GearPair
{
    Meta mMeta;
    ZelUIMultiVar *mA = mMeta.add<ZelUIMultiVar>(L"a", ZelDimensions::Millimetre);
    ZelUIMultiVar *mX1 = mMeta.add<ZelUIMultiVar>(L"x1");
    ZelUIMultiVar *mX2 = mMeta.add<ZelUIMultiVar>(L"x2");
    ZelUIVarChoice *mShift = mMeta.add<ZelUIVarChoice>(L"shift");

    explicit GearPair(ZelUIVarChoice::By by)
    {
        mShift->mBy = by;
        mShift->mEntries = {entry(1, L"both"), entry(2, L"first"), entry(3, L"second")};
        mShift->mAlternatives = {{mX1, mX2}, {mA, mX1}, {mA, mX2}};
    }
    int64_t alternative(int64_t id = 0) const { return mMeta.integer(*mShift, id); }
};

} // namespace

// A pair with a check box.
struct Optional
{
    Meta mMeta;
    ZelUIMultiVar *mVariable = mMeta.add<ZelUIMultiVar>(L"Cu", ZelDimensions::Newton, 2);

    Optional()
    {
        mVariable->mOptional = true;
        mVariable->mInitial = {30, 40, 0};
    }
    void check(bool checked) { mMeta.setOptionChecked(*mVariable, 0, checked, ZelOrigin::User); }
};

class tst_meta : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { usCustomary = false; }

    void variablesGetDenseIndices();
    void secondVariableOfANameIsRefused();
    void unknownNameIsNull();

    void readsInitialValuesBeforeTheFirstWrite();
    void initialValuesMayBeGivenAfterAdding();
    void firstWriteMakesTheObject();
    void objectsAreIndependentAndAscending();
    void componentsAreIndependent();
    void variableAddedAfterTheFirstWriteHasItsInitialValue();
    void wrongComponentReadsAsNothing_data();
    void wrongComponentReadsAsNothing();
    void variableOfAnotherMetaReadsAsNothingAndWritesNothing();
    void otherKindReadsAsNothingAndWritesNothing();
    void textViewSeesTheStoredText();

    void integersReadAndWriteAsReals();
    void realsReadAndWriteAsIntegers();
    void realsRoundAndSaturateAsIntegers_data();
    void realsRoundAndSaturateAsIntegers();
    void numberThatIsNoneLeavesAnInteger();

    void sameValueTellsNobody_data();
    void sameValueTellsNobody();
    void negativeZeroIsAChange();
    void nanIsEqualToItself();
    void observerHearsOldAndNewInTheTextForm();
    void observerSeesTheNewValueInTheStore();
    void observerMayWrite();
    void observerMayReplaceItself();

    void resultIsUnsetUntilWritten();
    void sameValueSetsAnUnsetResult();
    void unsetTellsTheObserverOnce();
    void unsetTakesAllComponents();
    void unsetResultsLeavesInputs();
    void inputIsSetFromTheStart();
    void resetRestoresInitialValues();
    void resetOfAnObjectThatIsNotThereDoesNothing();

    void currentUnitFollowsTheUnitSystemUntilChosen();
    void currentUnitIsKeptByObject();
    void noUnitForgetsTheChoiceOfUnit();
    void unitOfAnotherDimensionIsRefused();
    void quantityWithoutUnitHasNone();
    void choosingAUnitMakesNoObject();

    void optionalVariableIsEnteredWhileChecked();
    void uncheckedOptionIsUnsetUntilComputed();
    void checkingAnOptionSetsTheInitialValue();
    void checkingAnOptionTakesOverWhatWasComputed();
    void uncheckingAnOptionUnsetsAndKeepsItForTheNextCheck();
    void refusedCalculationUnsetsUncheckedOptionsOnly();
    void resetOfAnUncheckedOptionForgetsItsFormerValue();
    void optionIsOnlyForOptionalVariables();
    void resultIsNeverEntered();

    void choiceStartsWithItsFirstAlternative();
    void membersOfOtherAlternativesAreNotEntered();
    void pickTellsObserverThenChoiceObserver();
    void pickOfTheSameAlternativeTellsNobody();
    void pickOfAnUnknownAlternativeChangesNothing_data();
    void pickOfAnUnknownAlternativeChangesNothing();
    void writingTheChoiceIsAPick();
    void choiceOfAVariable();
    void typingPicksTheAlternativeWhoseOthersWereTypedLast_data();
    void typingPicksTheAlternativeWhoseOthersWereTypedLast();
    void typingInTheActiveAlternativeOnlyCounts();
    void typingByObject();
    void typingDoesNotPickInAChoiceBySwitch();
    void typingComparesAllOtherMembers();
    void lastTypedIsForgottenByAPick();
    void enteredAndComputedValuesShareTheSlot();

    void functionsAnswerByIndex();
    void unknownFunctionFailsAndTheOthersRun();
    void throwingFunctionFails();
    void moduleIdIsBuiltIn();
    void functionMayReplaceItself();
    void secondCallForgetsTheFirstResults();

    void messageStatesStandByVariableAndObject();
};

void tst_meta::initTestCase()
{
    ZelDimensions::setUnitSystemQuery([]() { return usCustomary; });
}

void tst_meta::variablesGetDenseIndices()
{
    Meta meta;
    QCOMPARE(meta.add<ZelUIMultiVar>(L"a")->index(), 0);
    QCOMPARE(meta.add<ZelUIVarTable>(L"b")->index(), 1);
    QCOMPARE(meta.add<ZelUIVarString>(L"c")->index(), 2);
    QCOMPARE(meta.variables().size(), size_t(3));
}

void tst_meta::secondVariableOfANameIsRefused()
{
    Meta meta;
    ZelUIVar *first = meta.add<ZelUIMultiVar>(L"a");
    QVERIFY(!meta.add<ZelUIVarBool>(L"a"));
    QVERIFY(!meta.add(std::unique_ptr<ZelUIVar>()));
    QCOMPARE(meta.variable(L"a"), first);
    QCOMPARE(meta.variables().size(), size_t(1));
}

void tst_meta::unknownNameIsNull()
{
    Meta meta;
    meta.add<ZelUIMultiVar>(L"a");
    QVERIFY(!meta.variable(L"b"));
    QVERIFY(!meta.variable(L""));
}

void tst_meta::readsInitialValuesBeforeTheFirstWrite()
{
    Meta meta;
    auto *number = meta.add<ZelUIMultiVar>(L"n");
    number->mInitial[0] = 2.5;
    auto *flag = meta.add<ZelUIVarBool>(L"f");
    flag->mInitial = true;
    auto *text = meta.add<ZelUIVarString>(L"t");
    text->mInitial = L"Text";
    auto *list = meta.add<ZelUIVarList>(L"l");
    list->mInitial = 4;
    QCOMPARE(meta.real(*number, 3), 2.5);
    QCOMPARE(meta.boolean(*flag, 3), true);
    QVERIFY(meta.text(*text, 3) == L"Text");
    QCOMPARE(meta.integer(*list, 3), int64_t(4));
    QVERIFY(meta.objects().empty());
}

void tst_meta::initialValuesMayBeGivenAfterAdding()
{
    Meta meta;
    auto *number = meta.add<ZelUIMultiVar>(L"n");
    auto *other = meta.add<ZelUIMultiVar>(L"o");
    other->mInitial[0] = 7;
    meta.setReal(*number, 0, 0, 1, ZelOrigin::User);
    QCOMPARE(meta.real(*other, 0), 7.0);
}

void tst_meta::firstWriteMakesTheObject()
{
    Meta meta;
    auto *number = meta.add<ZelUIMultiVar>(L"n");
    meta.setReal(*number, 5, 0, 1, ZelOrigin::User);
    QCOMPARE(meta.objects(), std::vector<int64_t>{5});
}

void tst_meta::objectsAreIndependentAndAscending()
{
    Meta meta;
    auto *number = meta.add<ZelUIMultiVar>(L"n");
    for (const int64_t id : {7, -2, 0, 3})
        meta.setReal(*number, id, 0, double(id) * 10, ZelOrigin::User);
    QCOMPARE(meta.objects(), (std::vector<int64_t>{-2, 0, 3, 7}));
    for (const int64_t id : {-2, 0, 3, 7})
        QCOMPARE(meta.real(*number, id), double(id) * 10);
    QCOMPARE(meta.real(*number, 4), 0.0);
}

void tst_meta::componentsAreIndependent()
{
    Meta meta;
    auto *triple = meta.add<ZelUIMultiVar>(L"F", ZelDimensions::Newton, 3);
    auto *behind = meta.add<ZelUIMultiVar>(L"n");
    for (int component = 0; component < 3; ++component)
        meta.setReal(*triple, 0, component, component + 1, ZelOrigin::User);
    meta.setReal(*behind, 0, 0, 9, ZelOrigin::User);
    QCOMPARE(meta.real(*triple, 0, 0), 1.0);
    QCOMPARE(meta.real(*triple, 0, 1), 2.0);
    QCOMPARE(meta.real(*triple, 0, 2), 3.0);
    QCOMPARE(meta.real(*behind, 0), 9.0);
}

void tst_meta::variableAddedAfterTheFirstWriteHasItsInitialValue()
{
    Meta meta;
    auto *first = meta.add<ZelUIVarString>(L"s");
    meta.setText(*first, 0, L"eins", ZelOrigin::User);
    auto *number = meta.add<ZelUIMultiVar>(L"n");
    number->mInitial[0] = 3;
    auto *second = meta.add<ZelUIVarString>(L"t");
    second->mInitial = L"zwei";
    auto *result = meta.add<ZelUIMultiVar>(L"r");
    result->mResult = true;
    QCOMPARE(meta.real(*number, 0), 3.0);
    QVERIFY(meta.text(*second, 0) == L"zwei");
    QVERIFY(!meta.isSet(*result, 0));
    meta.setReal(*number, 0, 0, 4, ZelOrigin::User);
    QVERIFY(meta.text(*first, 0) == L"eins");
    QVERIFY(meta.text(*second, 0) == L"zwei");
    QVERIFY(!meta.isSet(*result, 0));
}

void tst_meta::wrongComponentReadsAsNothing_data()
{
    QTest::addColumn<int>("component");
    QTest::newRow("negative") << -1;
    QTest::newRow("behind the last") << 2;
    QTest::newRow("far behind") << 1000000;
}

void tst_meta::wrongComponentReadsAsNothing()
{
    QFETCH(int, component);
    Meta meta;
    auto *pair = meta.add<ZelUIMultiVar>(L"F", ZelDimensions::Newton, 2);
    pair->mInitial = {1, 2, 3};
    meta.add<ZelUIMultiVar>(L"n")->mInitial[0] = 5;
    meta.setReal(*pair, 0, component, 8, ZelOrigin::User);
    QVERIFY(meta.objects().empty());
    QCOMPARE(meta.real(*pair, 0, component), 0.0);
    QCOMPARE(meta.integer(*pair, 0, component), int64_t(0));
    QVERIFY(!meta.isSet(*pair, 0, component));
}

void tst_meta::variableOfAnotherMetaReadsAsNothingAndWritesNothing()
{
    Meta meta;
    meta.add<ZelUIMultiVar>(L"n")->mInitial[0] = 5;
    Meta other;
    auto *foreign = other.add<ZelUIMultiVar>(L"n");
    foreign->mInitial[0] = 5;
    const ZelUIMultiVar loose(L"n");
    for (const ZelUIVar *variable :
         {static_cast<const ZelUIVar *>(foreign), static_cast<const ZelUIVar *>(&loose)}) {
        meta.setReal(*variable, 0, 0, 8, ZelOrigin::User);
        meta.setMessageState(*variable, 0, 1);
        meta.setCurrentUnit(*variable, 0, ZelDimensions::Inch);
        QVERIFY(meta.objects().empty());
        QCOMPARE(meta.real(*variable, 0), 0.0);
        QVERIFY(!meta.isSet(*variable, 0));
        QVERIFY(!meta.isEntered(*variable, 0));
        QCOMPARE(meta.messageState(*variable, 0), 0);
        QVERIFY(meta.currentUnit(*variable, 0) == ZelDimensions::NoUnit);
        QVERIFY(!meta.choiceOf(*variable));
    }
}

void tst_meta::otherKindReadsAsNothingAndWritesNothing()
{
    Meta meta;
    auto *text = meta.add<ZelUIVarString>(L"t");
    text->mInitial = L"Text";
    auto *flag = meta.add<ZelUIVarBool>(L"f");
    auto *table = meta.add<ZelUIVarTable>(L"tab");
    meta.setReal(*text, 0, 0, 1, ZelOrigin::User);
    meta.setBoolean(*text, 0, true, ZelOrigin::User);
    meta.setInteger(*flag, 0, 0, 1, ZelOrigin::User);
    meta.setText(*flag, 0, L"true", ZelOrigin::User);
    meta.setReal(*table, 0, 0, 1, ZelOrigin::User);
    QVERIFY(meta.objects().empty());
    QCOMPARE(meta.real(*text, 0), 0.0);
    QVERIFY(!meta.boolean(*text, 0));
    QCOMPARE(meta.integer(*flag, 0), int64_t(0));
    QVERIFY(meta.text(*flag, 0).empty());
    QVERIFY(meta.text(*table, 0).empty());
}

void tst_meta::textViewSeesTheStoredText()
{
    Meta meta;
    auto *text = meta.add<ZelUIVarString>(L"t");
    text->mInitial = L"vorher";
    QVERIFY(meta.textView(*text, 0) == L"vorher");
    meta.setText(*text, 0, L"nachher", ZelOrigin::User);
    QVERIFY(meta.textView(*text, 0) == L"nachher");
    QVERIFY(meta.textView(*text, 1) == L"vorher");
}

void tst_meta::integersReadAndWriteAsReals()
{
    Meta meta;
    auto *teeth = meta.add<ZelUIMultiVar>(L"z");
    teeth->mValueKind = 1;
    teeth->mInitial[0] = 17;
    QCOMPARE(meta.real(*teeth, 0), 17.0);
    QCOMPARE(meta.integer(*teeth, 0), int64_t(17));
    meta.setReal(*teeth, 0, 0, 23.0, ZelOrigin::User);
    QCOMPARE(meta.integer(*teeth, 0), int64_t(23));
    meta.setInteger(*teeth, 0, 0, -5, ZelOrigin::User);
    QCOMPARE(meta.real(*teeth, 0), -5.0);
}

void tst_meta::realsReadAndWriteAsIntegers()
{
    Meta meta;
    auto *number = meta.add<ZelUIMultiVar>(L"n");
    meta.setReal(*number, 0, 0, 2.5, ZelOrigin::User);
    QCOMPARE(meta.integer(*number, 0), int64_t(3));
    meta.setInteger(*number, 0, 0, 8, ZelOrigin::User);
    QCOMPARE(meta.real(*number, 0), 8.0);
}

void tst_meta::realsRoundAndSaturateAsIntegers_data()
{
    QTest::addColumn<double>("real");
    QTest::addColumn<qlonglong>("integer");
    QTest::newRow("down") << 2.4 << 2LL;
    QTest::newRow("half") << 2.5 << 3LL;
    QTest::newRow("negative half") << -2.5 << -3LL;
    QTest::newRow("beyond the top") << 1e19 << std::numeric_limits<qlonglong>::max();
    QTest::newRow("beyond the bottom") << -1e300 << std::numeric_limits<qlonglong>::min();
    QTest::newRow("just beyond the top") << 0x1p63 << std::numeric_limits<qlonglong>::max();
    QTest::newRow("the bottom") << -0x1p63 << std::numeric_limits<qlonglong>::min();
}

void tst_meta::realsRoundAndSaturateAsIntegers()
{
    QFETCH(double, real);
    Meta meta;
    auto *teeth = meta.add<ZelUIMultiVar>(L"z");
    teeth->mValueKind = 1;
    meta.setReal(*teeth, 0, 0, real, ZelOrigin::User);
    QTEST(qlonglong(meta.integer(*teeth, 0)), "integer");
}

void tst_meta::numberThatIsNoneLeavesAnInteger()
{
    Meta meta;
    auto *teeth = meta.add<ZelUIMultiVar>(L"z");
    teeth->mValueKind = 1;
    meta.setInteger(*teeth, 0, 0, 17, ZelOrigin::User);
    meta.setReal(*teeth, 0, 0, std::numeric_limits<double>::quiet_NaN(), ZelOrigin::User);
    meta.setReal(*teeth, 0, 0, std::numeric_limits<double>::infinity(), ZelOrigin::User);
    QCOMPARE(meta.integer(*teeth, 0), int64_t(17));
}

void tst_meta::sameValueTellsNobody_data()
{
    QTest::addColumn<bool>("written");
    QTest::newRow("the initial one") << false;
    QTest::newRow("a written one") << true;
}

void tst_meta::sameValueTellsNobody()
{
    QFETCH(bool, written);
    Meta meta;
    auto *number = meta.add<ZelUIMultiVar>(L"n");
    auto *flag = meta.add<ZelUIVarBool>(L"f");
    auto *text = meta.add<ZelUIVarString>(L"t");
    auto *list = meta.add<ZelUIVarList>(L"l");
    const auto write = [&]() {
        meta.setReal(*number, 0, 0, written ? 0.1 : 0, ZelOrigin::User);
        meta.setBoolean(*flag, 0, written, ZelOrigin::User);
        meta.setText(*text, 0, written ? L"Text" : L"", ZelOrigin::User);
        meta.setInteger(*list, 0, 0, written ? 3 : 0, ZelOrigin::User);
    };
    if (written)
        write();
    Recorder recorder(meta);
    write();
    QCOMPARE(recorder.take(), QStringList());
}

void tst_meta::negativeZeroIsAChange()
{
    Meta meta;
    auto *number = meta.add<ZelUIMultiVar>(L"n");
    Recorder recorder(meta);
    meta.setReal(*number, 0, 0, -0.0, ZelOrigin::User);
    QCOMPARE(recorder.take(), QStringList("n[0]@0 0 -> -0 (User)"));
}

void tst_meta::nanIsEqualToItself()
{
    Meta meta;
    auto *number = meta.add<ZelUIMultiVar>(L"n");
    Recorder recorder(meta);
    meta.setReal(*number, 0, 0, std::numeric_limits<double>::quiet_NaN(), ZelOrigin::Module);
    QCOMPARE(recorder.take(), QStringList("n[0]@0 0 -> nan (Module)"));
    meta.setReal(*number, 0, 0, std::numeric_limits<double>::quiet_NaN(), ZelOrigin::Module);
    QCOMPARE(recorder.take(), QStringList());
}

void tst_meta::observerHearsOldAndNewInTheTextForm()
{
    Meta meta;
    auto *pair = meta.add<ZelUIMultiVar>(L"F", ZelDimensions::Newton, 2);
    auto *flag = meta.add<ZelUIVarBool>(L"f");
    auto *text = meta.add<ZelUIVarString>(L"t");
    auto *list = meta.add<ZelUIVarList>(L"l");
    list->mEntries = {entry(1, L"grease"), entry(2, L"oil")};
    list->mInitial = 1;
    auto *optional = meta.add<ZelUIMultiVar>(L"o");
    optional->mOptional = true;
    Recorder recorder(meta);
    meta.setReal(*pair, 2, 1, 0.1, ZelOrigin::User);
    meta.setBoolean(*flag, 0, true, ZelOrigin::Load);
    meta.setText(*text, 0, L"a \"b\"\n\\", ZelOrigin::User);
    meta.setInteger(*list, 0, 0, 2, ZelOrigin::User);
    meta.setInteger(*list, 0, 0, 9, ZelOrigin::Module);
    meta.setOptionChecked(*optional, 0, true, ZelOrigin::User);
    QCOMPARE(recorder.take(),
             (QStringList{"F[1]@2 0 N -> 0.1 N (User)", "f[0]@0 false -> true (Load)",
                          "t[0]@0 \"\" -> \"a \\\"b\\\"\\n\\\\\" (User)",
                          "l[0]@0 grease -> oil (User)", "l[0]@0 oil -> 9 (Module)",
                          "option o[0]@0 false -> true (User)", "o[0]@0  -> 0 (User)"}));
}

void tst_meta::observerSeesTheNewValueInTheStore()
{
    Meta meta;
    auto *number = meta.add<ZelUIMultiVar>(L"n");
    double seen = 0;
    meta.setObserver([&](const ZelValueChange &change) {
        seen = meta.real(*change.mVariable, change.mId, change.mComponent);
    });
    meta.setReal(*number, 0, 0, 6, ZelOrigin::User);
    QCOMPARE(seen, 6.0);
}

void tst_meta::observerMayWrite()
{
    Meta meta;
    auto *number = meta.add<ZelUIMultiVar>(L"n");
    QStringList heard;
    meta.setObserver([&](const ZelValueChange &change) {
        heard << toText(change.mNew) + "@" + QString::number(change.mId);
        // Other objects and other variables come into being while the first write is under way.
        if (change.mId < 40) {
            meta.add<ZelUIMultiVar>(zelWString(L"n" + std::to_wstring(change.mId)));
            meta.setReal(*number, change.mId + 1, 0, 1, ZelOrigin::Module);
        }
    });
    meta.setReal(*number, 0, 0, 1, ZelOrigin::User);
    QCOMPARE(heard.size(), 41);
    QCOMPARE(heard.last(), QString("1@40"));
    QCOMPARE(meta.objects().size(), size_t(41));
    QCOMPARE(meta.real(*number, 0), 1.0);
}

void tst_meta::observerMayReplaceItself()
{
    Meta meta;
    auto *number = meta.add<ZelUIMultiVar>(L"n");
    QString marker = "kept alive by the closure";
    QString seen;
    meta.setObserver([&meta, &seen, marker](const ZelValueChange &) {
        meta.setObserver({});
        seen = marker;
    });
    meta.setReal(*number, 0, 0, 1, ZelOrigin::User);
    QCOMPARE(seen, marker);
    seen.clear();
    meta.setReal(*number, 0, 0, 2, ZelOrigin::User);
    QVERIFY(seen.isEmpty());
}

void tst_meta::resultIsUnsetUntilWritten()
{
    Meta meta;
    auto *input = meta.add<ZelUIMultiVar>(L"n");
    auto *result = meta.add<ZelUIMultiVar>(L"r");
    result->mResult = true;
    QVERIFY(!meta.isSet(*result, 0));
    meta.setReal(*input, 0, 0, 1, ZelOrigin::User);
    QVERIFY(!meta.isSet(*result, 0));
    meta.setReal(*result, 0, 0, 1, ZelOrigin::Module);
    QVERIFY(meta.isSet(*result, 0));
    QVERIFY(!meta.isSet(*result, 1));
}

void tst_meta::sameValueSetsAnUnsetResult()
{
    Meta meta;
    auto *result = meta.add<ZelUIMultiVar>(L"r", ZelDimensions::Hour);
    result->mResult = true;
    Recorder recorder(meta);
    meta.setReal(*result, 0, 0, 0, ZelOrigin::Module);
    QVERIFY(meta.isSet(*result, 0));
    QCOMPARE(recorder.take(), QStringList("r[0]@0  -> 0 h (Module)"));
}

void tst_meta::unsetTellsTheObserverOnce()
{
    Meta meta;
    auto *result = meta.add<ZelUIMultiVar>(L"r");
    result->mResult = true;
    meta.setReal(*result, 0, 0, 5, ZelOrigin::Module);
    Recorder recorder(meta);
    meta.unset(*result, 0);
    meta.unset(*result, 0);
    QCOMPARE(recorder.take(), QStringList("r[0]@0 5 ->  (Module)"));
    QCOMPARE(meta.real(*result, 0), 0.0);
}

void tst_meta::unsetTakesAllComponents()
{
    Meta meta;
    auto *result = meta.add<ZelUIMultiVar>(L"r", ZelDimensions::NoUnit, 2);
    result->mResult = true;
    meta.setReal(*result, 0, 0, 5, ZelOrigin::Module);
    QVERIFY(!meta.isSet(*result, 0, 1));
    meta.setReal(*result, 0, 1, 6, ZelOrigin::Module);
    meta.unset(*result, 0);
    QVERIFY(!meta.isSet(*result, 0, 0));
    QVERIFY(!meta.isSet(*result, 0, 1));
}

void tst_meta::unsetResultsLeavesInputs()
{
    Meta meta;
    auto *input = meta.add<ZelUIMultiVar>(L"n");
    auto *number = meta.add<ZelUIMultiVar>(L"r");
    auto *text = meta.add<ZelUIVarText>(L"t");
    number->mResult = true;
    text->mResult = true;
    text->mInitial = L"-";
    meta.setReal(*input, 0, 0, 1, ZelOrigin::User);
    meta.setReal(*number, 0, 0, 2, ZelOrigin::Module);
    meta.setText(*text, 0, L"fertig", ZelOrigin::Module);
    meta.setReal(*number, 1, 0, 3, ZelOrigin::Module);
    meta.unsetResults(0);
    QVERIFY(meta.isSet(*input, 0));
    QVERIFY(!meta.isSet(*number, 0));
    QVERIFY(!meta.isSet(*text, 0));
    QVERIFY(meta.text(*text, 0) == L"-");
    QVERIFY(meta.isSet(*number, 1));
}

void tst_meta::inputIsSetFromTheStart()
{
    Meta meta;
    auto *input = meta.add<ZelUIMultiVar>(L"n");
    QVERIFY(meta.isSet(*input, 0));
    QVERIFY(!meta.isSet(*input, 0, 1));
    QVERIFY(meta.isSet(*meta.add<ZelUIVarTable>(L"t"), 0));
}

void tst_meta::resetRestoresInitialValues()
{
    GearPair pair(ZelUIVarChoice::Switch);
    Meta &meta = pair.mMeta;
    pair.mA->mInitial[0] = 100;
    auto *result = meta.add<ZelUIMultiVar>(L"r");
    result->mResult = true;
    auto *text = meta.add<ZelUIVarString>(L"t");
    text->mInitial = L"leer";
    auto *optional = meta.add<ZelUIMultiVar>(L"o");
    optional->mOptional = true;
    meta.setReal(*pair.mA, 0, 0, 1, ZelOrigin::User);
    meta.setReal(*result, 0, 0, 5, ZelOrigin::Module);
    meta.setText(*text, 0, L"voll", ZelOrigin::User);
    meta.setOptionChecked(*optional, 0, true, ZelOrigin::User);
    meta.setMessageState(*pair.mA, 0, 1);
    meta.pick(*pair.mShift, 0, 2, ZelOrigin::User);
    meta.setCurrentUnit(*pair.mA, 0, ZelDimensions::Inch);
    Recorder recorder(meta);
    meta.reset(0);
    QCOMPARE(recorder.take(),
             (QStringList{"a[0]@0 1 mm -> 100 mm (Load)", "shift[0]@0 first -> both (Load)",
                          "r[0]@0 5 ->  (Load)", "t[0]@0 \"voll\" -> \"leer\" (Load)",
                          "option o[0]@0 true -> false (Load)", "o[0]@0 0 ->  (Load)"}));
    QCOMPARE(meta.messageState(*pair.mA, 0), 0);
    QVERIFY(meta.currentUnit(*pair.mA, 0) == ZelDimensions::Inch);
    meta.reset(0);
    QCOMPARE(recorder.take(), QStringList());
}

void tst_meta::resetOfAnObjectThatIsNotThereDoesNothing()
{
    Meta meta;
    meta.add<ZelUIMultiVar>(L"n");
    meta.reset(3);
    QVERIFY(meta.objects().empty());
}

void tst_meta::currentUnitFollowsTheUnitSystemUntilChosen()
{
    Meta meta;
    auto *length = meta.add<ZelUIMultiVar>(L"d", ZelDimensions::Millimetre, 2);
    QVERIFY(meta.currentUnit(*length, 0)
            == ZelDimensions::defaultUnit(ZelDimensions::Millimetre, true));
    usCustomary = true;
    const ZelDimensions::Unit customary =
        ZelDimensions::defaultUnit(ZelDimensions::Millimetre, true);
    QVERIFY(customary != ZelDimensions::Millimetre);
    QVERIFY(meta.currentUnit(*length, 0) == customary);
    meta.setCurrentUnit(*length, 0, ZelDimensions::Metre);
    QVERIFY(meta.currentUnit(*length, 0) == ZelDimensions::Metre);
    usCustomary = false;
    QVERIFY(meta.currentUnit(*length, 0) == ZelDimensions::Metre);
}

void tst_meta::currentUnitIsKeptByObject()
{
    Meta meta;
    auto *length = meta.add<ZelUIMultiVar>(L"d", ZelDimensions::Millimetre);
    meta.setCurrentUnit(*length, 1, ZelDimensions::Inch);
    QVERIFY(meta.currentUnit(*length, 1) == ZelDimensions::Inch);
    QVERIFY(meta.currentUnit(*length, 2) == ZelDimensions::Millimetre);
}

void tst_meta::noUnitForgetsTheChoiceOfUnit()
{
    Meta meta;
    auto *length = meta.add<ZelUIMultiVar>(L"d", ZelDimensions::Millimetre);
    meta.setCurrentUnit(*length, 0, ZelDimensions::Inch);
    meta.setCurrentUnit(*length, 0, ZelDimensions::NoUnit);
    QVERIFY(meta.currentUnit(*length, 0) == ZelDimensions::Millimetre);
}

void tst_meta::unitOfAnotherDimensionIsRefused()
{
    Meta meta;
    auto *length = meta.add<ZelUIMultiVar>(L"d", ZelDimensions::Millimetre);
    meta.setCurrentUnit(*length, 0, ZelDimensions::Inch);
    meta.setCurrentUnit(*length, 0, ZelDimensions::Newton);
    QVERIFY(meta.currentUnit(*length, 0) == ZelDimensions::Inch);
}

void tst_meta::quantityWithoutUnitHasNone()
{
    Meta meta;
    auto *number = meta.add<ZelUIMultiVar>(L"n");
    auto *text = meta.add<ZelUIVarString>(L"t");
    auto *dynamic = meta.add<ZelUIMultiVar>(L"x", ZelDimensions::DynamicUnit);
    for (const bool system : {false, true}) {
        usCustomary = system;
        QVERIFY(meta.currentUnit(*number, 0) == ZelDimensions::NoUnit);
        QVERIFY(meta.currentUnit(*text, 0) == ZelDimensions::NoUnit);
        QVERIFY(meta.currentUnit(*dynamic, 0) == ZelDimensions::DynamicUnit);
    }
    meta.setCurrentUnit(*number, 0, ZelDimensions::Millimetre);
    QVERIFY(meta.currentUnit(*number, 0) == ZelDimensions::NoUnit);
}

void tst_meta::choosingAUnitMakesNoObject()
{
    Meta meta;
    auto *length = meta.add<ZelUIMultiVar>(L"d", ZelDimensions::Millimetre);
    length->mInitial[0] = 5;
    meta.setCurrentUnit(*length, 0, ZelDimensions::Inch);
    meta.setMessageState(*length, 0, 1);
    QVERIFY(meta.objects().empty());
    QCOMPARE(meta.real(*length, 0), 5.0);
    QVERIFY(meta.isSet(*length, 0));
}

void tst_meta::optionalVariableIsEnteredWhileChecked()
{
    Meta meta;
    auto *optional = meta.add<ZelUIMultiVar>(L"Cu");
    optional->mOptional = true;
    QVERIFY(!meta.isEntered(*optional, 0));
    meta.setOptionChecked(*optional, 0, true, ZelOrigin::User);
    QVERIFY(meta.isOptionChecked(*optional, 0));
    QVERIFY(meta.isEntered(*optional, 0));
    QVERIFY(!meta.isEntered(*optional, 1));
    meta.setOptionChecked(*optional, 0, false, ZelOrigin::User);
    QVERIFY(!meta.isEntered(*optional, 0));
}

void tst_meta::uncheckedOptionIsUnsetUntilComputed()
{
    Optional option;
    Meta &meta = option.mMeta;
    QVERIFY(!meta.isSet(*option.mVariable, 0));
    meta.setReal(*meta.add<ZelUIMultiVar>(L"n"), 0, 0, 1, ZelOrigin::User);
    QVERIFY(!meta.isSet(*option.mVariable, 0) && !meta.isSet(*option.mVariable, 0, 1));
    meta.setReal(*option.mVariable, 0, 0, 31, ZelOrigin::Module);
    QVERIFY(meta.isSet(*option.mVariable, 0));
    QVERIFY(!meta.isSet(*option.mVariable, 1));
}

void tst_meta::checkingAnOptionSetsTheInitialValue()
{
    Optional option;
    Meta &meta = option.mMeta;
    Recorder recorder(meta);
    meta.setOptionChecked(*option.mVariable, 0, true, ZelOrigin::User);
    QCOMPARE(recorder.take(),
             (QStringList{"option Cu[0]@0 false -> true (User)", "Cu[0]@0  -> 30 N (User)",
                          "Cu[1]@0  -> 40 N (User)"}));
    QVERIFY(meta.isSet(*option.mVariable, 0) && meta.isSet(*option.mVariable, 0, 1));
}

void tst_meta::checkingAnOptionTakesOverWhatWasComputed()
{
    Optional option;
    option.mMeta.setReal(*option.mVariable, 0, 0, 31, ZelOrigin::Module);
    option.check(true);
    QCOMPARE(option.mMeta.real(*option.mVariable, 0), 31.0);
    QCOMPARE(option.mMeta.real(*option.mVariable, 0, 1), 40.0);
}

void tst_meta::uncheckingAnOptionUnsetsAndKeepsItForTheNextCheck()
{
    Optional option;
    Meta &meta = option.mMeta;
    option.check(true);
    meta.setReal(*option.mVariable, 0, 0, 32, ZelOrigin::User);
    Recorder recorder(meta);
    option.check(false);
    QCOMPARE(recorder.take(),
             (QStringList{"option Cu[0]@0 true -> false (User)", "Cu[0]@0 32 N ->  (User)",
                          "Cu[1]@0 40 N ->  (User)"}));
    QVERIFY(!meta.isSet(*option.mVariable, 0));
    option.check(true);
    QCOMPARE(meta.real(*option.mVariable, 0), 32.0);
    QVERIFY(meta.isSet(*option.mVariable, 0));
}

void tst_meta::refusedCalculationUnsetsUncheckedOptionsOnly()
{
    Optional option;
    Meta &meta = option.mMeta;
    meta.setReal(*option.mVariable, 0, 0, 31, ZelOrigin::Module);
    meta.unsetResults(0);
    QVERIFY(!meta.isSet(*option.mVariable, 0));
    option.check(true);
    meta.unsetResults(0);
    QVERIFY(meta.isSet(*option.mVariable, 0));
}

void tst_meta::resetOfAnUncheckedOptionForgetsItsFormerValue()
{
    Optional option;
    option.check(true);
    option.mMeta.setReal(*option.mVariable, 0, 0, 32, ZelOrigin::User);
    option.check(false);
    option.mMeta.reset(0);
    QVERIFY(!option.mMeta.isSet(*option.mVariable, 0));
    option.check(true);
    QCOMPARE(option.mMeta.real(*option.mVariable, 0), 30.0);
}

void tst_meta::optionIsOnlyForOptionalVariables()
{
    Meta meta;
    auto *plain = meta.add<ZelUIMultiVar>(L"n");
    Recorder recorder(meta);
    meta.setOptionChecked(*plain, 0, true, ZelOrigin::User);
    QVERIFY(!meta.isOptionChecked(*plain, 0));
    QVERIFY(meta.isEntered(*plain, 0));
    QCOMPARE(recorder.take(), QStringList());
}

void tst_meta::resultIsNeverEntered()
{
    Meta meta;
    auto *result = meta.add<ZelUIMultiVar>(L"r");
    result->mResult = true;
    result->mOptional = true;
    meta.setOptionChecked(*result, 0, true, ZelOrigin::User);
    QVERIFY(!meta.isEntered(*result, 0));
}

void tst_meta::choiceStartsWithItsFirstAlternative()
{
    GearPair pair(ZelUIVarChoice::Typing);
    QCOMPARE(pair.alternative(), int64_t(1));
    QVERIFY(pair.mMeta.isEntered(*pair.mX1, 0));
    QVERIFY(pair.mMeta.isEntered(*pair.mX2, 0));
    QVERIFY(!pair.mMeta.isEntered(*pair.mA, 0));
}

void tst_meta::membersOfOtherAlternativesAreNotEntered()
{
    GearPair pair(ZelUIVarChoice::Switch);
    pair.mMeta.pick(*pair.mShift, 0, 3, ZelOrigin::User);
    QVERIFY(pair.mMeta.isEntered(*pair.mA, 0));
    QVERIFY(!pair.mMeta.isEntered(*pair.mX1, 0));
    QVERIFY(pair.mMeta.isEntered(*pair.mX2, 0));
    QVERIFY(pair.mMeta.isEntered(*pair.mShift, 0));
    QVERIFY(pair.mMeta.isEntered(*pair.mX1, 1));
}

void tst_meta::pickTellsObserverThenChoiceObserver()
{
    GearPair pair(ZelUIVarChoice::Switch);
    Recorder recorder(pair.mMeta);
    pair.mMeta.pick(*pair.mShift, 7, 3, ZelOrigin::Module);
    QCOMPARE(recorder.take(),
             (QStringList{"shift[0]@7 both -> second (Module)", "choice shift@7 1 -> 3"}));
}

void tst_meta::pickOfTheSameAlternativeTellsNobody()
{
    GearPair pair(ZelUIVarChoice::Switch);
    Recorder recorder(pair.mMeta);
    pair.mMeta.pick(*pair.mShift, 0, 1, ZelOrigin::User);
    QCOMPARE(recorder.take(), QStringList());
}

void tst_meta::pickOfAnUnknownAlternativeChangesNothing_data()
{
    QTest::addColumn<short>("alternative");
    QTest::newRow("none") << short(0);
    QTest::newRow("negative") << short(-1);
    QTest::newRow("behind the last") << short(4);
}

void tst_meta::pickOfAnUnknownAlternativeChangesNothing()
{
    QFETCH(short, alternative);
    GearPair pair(ZelUIVarChoice::Switch);
    pair.mMeta.pick(*pair.mShift, 0, 2, ZelOrigin::User);
    Recorder recorder(pair.mMeta);
    pair.mMeta.pick(*pair.mShift, 0, alternative, ZelOrigin::User);
    pair.mMeta.setInteger(*pair.mShift, 0, 0, alternative, ZelOrigin::User);
    QCOMPARE(pair.alternative(), int64_t(2));
    QCOMPARE(recorder.take(), QStringList());
}

void tst_meta::writingTheChoiceIsAPick()
{
    GearPair pair(ZelUIVarChoice::Switch);
    Recorder recorder(pair.mMeta);
    pair.mMeta.setInteger(*pair.mShift, 0, 0, 2, ZelOrigin::Load);
    pair.mMeta.setInteger(*pair.mShift, 0, 0, 65538, ZelOrigin::Load);
    QCOMPARE(recorder.take(),
             (QStringList{"shift[0]@0 both -> first (Load)", "choice shift@0 1 -> 2"}));
}

void tst_meta::choiceOfAVariable()
{
    GearPair pair(ZelUIVarChoice::Switch);
    auto *other = pair.mMeta.add<ZelUIMultiVar>(L"z");
    QCOMPARE(pair.mMeta.choiceOf(*pair.mA), pair.mShift);
    QVERIFY(!pair.mMeta.choiceOf(*other));
    QVERIFY(!pair.mMeta.choiceOf(*pair.mShift));
}

void tst_meta::typingPicksTheAlternativeWhoseOthersWereTypedLast_data()
{
    QTest::addColumn<QStringList>("typed");
    QTest::addColumn<int>("alternative");
    QTest::newRow("nothing") << QStringList{} << 1;
    QTest::newRow("member of the active one") << QStringList{"x2"} << 1;
    QTest::newRow("nothing else typed: the first that holds it") << QStringList{"a"} << 2;
    QTest::newRow("first, then distance") << QStringList{"x1", "a"} << 2;
    QTest::newRow("second, then distance") << QStringList{"x2", "a"} << 3;
    QTest::newRow("second last") << QStringList{"x1", "x2", "a"} << 3;
    QTest::newRow("first last") << QStringList{"x2", "x1", "a"} << 2;
    QTest::newRow("distance then the other shift") << QStringList{"x1", "a", "x2"} << 3;
    QTest::newRow("back to both shifts") << QStringList{"x1", "a", "x1", "x2"} << 1;
    QTest::newRow("typing twice counts once more") << QStringList{"x1", "x2", "x1", "a"} << 2;
}

void tst_meta::typingPicksTheAlternativeWhoseOthersWereTypedLast()
{
    QFETCH(QStringList, typed);
    GearPair pair(ZelUIVarChoice::Typing);
    for (const QString &name : typed)
        pair.mMeta.noteTyped(*pair.mMeta.variable(zelWString(name.toStdWString())), 0);
    QTEST(int(pair.alternative()), "alternative");
}

void tst_meta::typingInTheActiveAlternativeOnlyCounts()
{
    GearPair pair(ZelUIVarChoice::Typing);
    Recorder recorder(pair.mMeta);
    pair.mMeta.noteTyped(*pair.mX2, 0);
    QCOMPARE(recorder.take(), QStringList());
    QVERIFY(pair.mMeta.objects().empty());
    pair.mMeta.noteTyped(*pair.mA, 0);
    QCOMPARE(recorder.take(),
             (QStringList{"shift[0]@0 both -> second (User)", "choice shift@0 1 -> 3"}));
}

void tst_meta::typingByObject()
{
    GearPair pair(ZelUIVarChoice::Typing);
    pair.mMeta.noteTyped(*pair.mX2, 1);
    pair.mMeta.noteTyped(*pair.mA, 2);
    pair.mMeta.noteTyped(*pair.mA, 1);
    QCOMPARE(pair.alternative(0), int64_t(1));
    QCOMPARE(pair.alternative(1), int64_t(3));
    QCOMPARE(pair.alternative(2), int64_t(2));
}

void tst_meta::typingDoesNotPickInAChoiceBySwitch()
{
    GearPair pair(ZelUIVarChoice::Switch);
    pair.mMeta.noteTyped(*pair.mA, 0);
    QCOMPARE(pair.alternative(), int64_t(1));
}

// A radio button picks; what was typed before it says nothing about what the user wants to keep.
void tst_meta::lastTypedIsForgottenByAPick()
{
    GearPair pair(ZelUIVarChoice::Typing);
    QVERIFY(!pair.mMeta.lastTyped(*pair.mShift, 0));
    pair.mMeta.noteTyped(*pair.mX1, 0);
    pair.mMeta.noteTyped(*pair.mA, 0); // picks another alternative itself
    QCOMPARE(pair.mMeta.lastTyped(*pair.mShift, 0), static_cast<const ZelUIVar *>(pair.mA));
    pair.mMeta.pick(*pair.mShift, 0, 1, ZelOrigin::User);
    QVERIFY(!pair.mMeta.lastTyped(*pair.mShift, 0));
    pair.mMeta.noteTyped(*pair.mX2, 0);
    QCOMPARE(pair.mMeta.lastTyped(*pair.mShift, 0), static_cast<const ZelUIVar *>(pair.mX2));
    QVERIFY(!pair.mMeta.lastTyped(*pair.mShift, 1));
}

void tst_meta::typingComparesAllOtherMembers()
{
    // Both alternatives share the member that was typed last; the next one decides.
    Meta meta;
    ZelUIMultiVar *vars[5];
    for (int i = 0; i < 5; ++i)
        vars[i] = meta.add<ZelUIMultiVar>(zelWString(std::wstring(1, wchar_t(L'a' + i))));
    auto *choice = meta.add<ZelUIVarChoice>(L"choice");
    choice->mBy = ZelUIVarChoice::Typing;
    choice->mAlternatives = {{vars[4]}, {vars[0], vars[1], vars[2]}, {vars[0], vars[1], vars[3]}};
    choice->mInitial = 1;
    auto noteWithoutPick = [&](int index) {
        meta.noteTyped(*vars[index], 0);
        meta.pick(*choice, 0, 1, ZelOrigin::User);
    };
    noteWithoutPick(2);
    noteWithoutPick(3);
    noteWithoutPick(1);
    meta.noteTyped(*vars[0], 0);
    QCOMPARE(meta.integer(*choice, 0), int64_t(3));
}

void tst_meta::enteredAndComputedValuesShareTheSlot()
{
    GearPair pair(ZelUIVarChoice::Switch);
    pair.mMeta.setReal(*pair.mA, 0, 0, 100.5, ZelOrigin::Module);
    pair.mMeta.pick(*pair.mShift, 0, 2, ZelOrigin::User);
    QVERIFY(pair.mMeta.isEntered(*pair.mA, 0));
    QCOMPARE(pair.mMeta.real(*pair.mA, 0), 100.5);
}

void tst_meta::functionsAnswerByIndex()
{
    Meta meta;
    meta.setFunction(L"Twice", [](const zelWString &argument, zelWString &result) {
        result = zelWString(argument.toInt() * 2);
        return true;
    });
    MetaParam param;
    param.addParam(L"Twice", L"4");
    param.addParam(L"Twice", L"5");
    QVERIFY(meta.hasFunction(L"Twice"));
    QVERIFY(meta.CallFunc(param));
    QVERIFY(param.getResultAsString(0) == L"8");
    QVERIFY(param.getResultAsString(1) == L"10");
    meta.setFunction(L"Twice", {});
    QVERIFY(!meta.hasFunction(L"Twice"));
}

void tst_meta::unknownFunctionFailsAndTheOthersRun()
{
    Meta meta;
    meta.setFunction(L"Fail", [](const zelWString &, zelWString &result) {
        result = L"half done";
        return false;
    });
    meta.setFunction(L"Good", [](const zelWString &, zelWString &result) {
        result = L"good";
        return true;
    });
    MetaParam param;
    param.addParam(L"Unknown", L"");
    param.addParam(L"Fail", L"");
    param.addParam(L"Good", L"");
    QVERIFY(!meta.CallFunc(param));
    QVERIFY(param.getResultAsString(0).empty());
    QVERIFY(param.getResultAsString(1).empty());
    QVERIFY(param.getResultAsString(2) == L"good");
}

void tst_meta::throwingFunctionFails()
{
    Meta meta;
    meta.setFunction(
        L"Throw", [](const zelWString &, zelWString &) -> bool { throw std::runtime_error("no"); });
    MetaParam param;
    param.addParam(L"Throw", L"");
    QVERIFY(!meta.CallFunc(param));
    QVERIFY(param.getResultAsString(0).empty());
}

void tst_meta::moduleIdIsBuiltIn()
{
    Meta meta;
    QVERIFY(meta.hasFunction(L"GetModuleId"));
    meta.setModuleId(L"bearing");
    MetaParam param;
    param.addParam(L"GetModuleId", L"");
    QVERIFY(meta.CallFunc(param));
    QVERIFY(param.getResultAsString(0) == L"bearing");
}

void tst_meta::functionMayReplaceItself()
{
    Meta meta;
    const std::wstring marker(100, L'x');
    meta.setFunction(L"Once", [&meta, marker](const zelWString &, zelWString &result) {
        meta.setFunction(L"Once", {});
        result = marker.c_str();
        return true;
    });
    MetaParam param;
    param.addParam(L"Once", L"");
    QVERIFY(meta.CallFunc(param));
    QVERIFY(param.getResultAsString(0) == marker.c_str());
    QVERIFY(!meta.CallFunc(param));
}

void tst_meta::secondCallForgetsTheFirstResults()
{
    Meta meta;
    meta.setModuleId(L"a");
    MetaParam param;
    param.addParam(L"GetModuleId", L"");
    meta.CallFunc(param);
    meta.setModuleId(L"b");
    meta.CallFunc(param);
    QVERIFY(param.getResultAsString(0) == L"b");
    QVERIFY(param.getResultAsString(1).empty());
}

void tst_meta::messageStatesStandByVariableAndObject()
{
    Meta meta;
    auto *first = meta.add<ZelUIMultiVar>(L"a");
    auto *second = meta.add<ZelUIMultiVar>(L"b");
    meta.setMessageState(*second, 0, 2);
    QCOMPARE(meta.messageState(*first, 0), 0);
    QCOMPARE(meta.messageState(*second, 0), 2);
    QCOMPARE(meta.messageState(*second, 1), 0);
    meta.clearMessageStates(1);
    QCOMPARE(meta.messageState(*second, 0), 2);
    meta.clearMessageStates(0);
    QCOMPARE(meta.messageState(*second, 0), 0);
}

QTEST_APPLESS_MAIN(tst_meta)
#include "tst_meta.moc"
