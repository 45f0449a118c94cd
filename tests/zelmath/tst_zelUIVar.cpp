#include "metaParam.h"
#include "zelUIMultiVar.h"
#include "zelUIVarChoice.h"
#include "zelUIVarKinds.h"
#include "zelUIVarLists.h"

#include <QtTest>

namespace {

ZelListEntry entry(short id, const wchar_t *name)
{
    ZelListEntry entry;
    entry.mId = id;
    entry.mName = name;
    return entry;
}

} // namespace

class tst_zelUIVar : public QObject
{
    Q_OBJECT

private slots:
    void hasTheDefaultsOfAPlainInput();
    void componentCountStaysWithinOneAndThree_data();
    void componentCountStaysWithinOneAndThree();
    void kindsStoreWhatTheyHold();
    void valueKindDecidesBetweenRealAndInteger();
    void initialNumbersGoByComponent();
    void initialTexts();
    void listFindsEntriesByNameAndId();
    void idBeyondSixteenBitsIsNoEntry();
    void listOfTheDatabaseNamesItsOwnEntry();
    void choiceKnowsItsMembers();
    void choiceWithASharedVariableIsNotDisjoint();
    void choiceStartsWithItsFirstAlternative();
    void paramResultsGoByIndex();
};

void tst_zelUIVar::hasTheDefaultsOfAPlainInput()
{
    const ZelUIMultiVar variable(L"d");
    QVERIFY(variable.name() == L"d");
    QCOMPARE(variable.index(), -1);
    QCOMPARE(variable.componentCount(), 1);
    QCOMPARE(variable.mHelpCode, -1);
    QVERIFY(!variable.IsUpdateBlocking());
    QVERIFY(!variable.mResult);
    QVERIFY(!variable.mOptional);
    QCOMPARE(int(variable.mDefaultUnit), 213);
    QCOMPARE(int(variable.mDecimals), 4);
}

void tst_zelUIVar::componentCountStaysWithinOneAndThree_data()
{
    QTest::addColumn<int>("asked");
    QTest::addColumn<int>("count");
    QTest::newRow("none") << 0 << 1;
    QTest::newRow("one") << 1 << 1;
    QTest::newRow("three") << 3 << 3;
    QTest::newRow("four") << 4 << 3;
}

void tst_zelUIVar::componentCountStaysWithinOneAndThree()
{
    QFETCH(int, asked);
    QTEST(ZelUIMultiVar(L"x", ZelDimensions::NoUnit, asked).componentCount(), "count");
}

void tst_zelUIVar::kindsStoreWhatTheyHold()
{
    QVERIFY(ZelUIMultiVar(L"a").storage() == ZelVarStorage::Real);
    QVERIFY(ZelUIVarRealList(L"a").storage() == ZelVarStorage::Real);
    QVERIFY(ZelUIVarList(L"a").storage() == ZelVarStorage::Integer);
    QVERIFY(ZelUIVarChoice(L"a").storage() == ZelVarStorage::Integer);
    QVERIFY(ZelUIVarBool(L"a").storage() == ZelVarStorage::Boolean);
    QVERIFY(ZelUIVarString(L"a").storage() == ZelVarStorage::Text);
    QVERIFY(ZelUIVarText(L"a").storage() == ZelVarStorage::Text);
    QVERIFY(ZelUIVarMultilineString(L"a").storage() == ZelVarStorage::Text);
    QVERIFY(ZelUIVarImage(L"a").storage() == ZelVarStorage::Text);
    QVERIFY(ZelUIVarFuncText(L"a").storage() == ZelVarStorage::None);
    QVERIFY(ZelUIVarTextButton(L"a").storage() == ZelVarStorage::None);
    QVERIFY(ZelUIVarTable(L"a").storage() == ZelVarStorage::None);
}

void tst_zelUIVar::valueKindDecidesBetweenRealAndInteger()
{
    ZelUIMultiVar variable(L"z");
    variable.mValueKind = 1;
    QVERIFY(variable.storage() == ZelVarStorage::Integer);
    variable.mValueKind = 2;
    QVERIFY(variable.storage() == ZelVarStorage::Integer);
    variable.mValueKind = 0;
    QVERIFY(variable.storage() == ZelVarStorage::Real);
}

void tst_zelUIVar::initialNumbersGoByComponent()
{
    ZelUIMultiVar pair(L"F", ZelDimensions::NoUnit, 2);
    pair.mInitial = {1.5, 2.5, 3.5};
    QCOMPARE(pair.initialNumber(0), 1.5);
    QCOMPARE(pair.initialNumber(1), 2.5);
    QCOMPARE(pair.initialNumber(2), 0.0);
    QCOMPARE(pair.initialNumber(-1), 0.0);
    ZelUIVarBool yes(L"b");
    yes.mInitial = true;
    QCOMPARE(yes.initialNumber(0), 1.0);
    ZelUIVarList list(L"l");
    list.mInitial = 7;
    QCOMPARE(list.initialNumber(0), 7.0);
    ZelUIVarRealList numbers(L"n");
    numbers.mInitial = 0.25;
    QCOMPARE(numbers.initialNumber(0), 0.25);
    QVERIFY(numbers.initialText().empty());
}

void tst_zelUIVar::initialTexts()
{
    ZelUIVarString line(L"a");
    ZelUIVarText label(L"b");
    ZelUIVarMultilineString notes(L"c");
    ZelUIVarImage image(L"d");
    line.mInitial = label.mInitial = notes.mInitial = image.mInitial = L"Text";
    for (const ZelUIVar *variable :
         std::initializer_list<ZelUIVar *>{&line, &label, &notes, &image})
        QVERIFY(variable->initialText() == L"Text");
}

void tst_zelUIVar::listFindsEntriesByNameAndId()
{
    ZelUIVarList list(L"lube");
    list.mEntries = {entry(1, L"grease"), entry(5, L"oil"), entry(6, L"")};
    QCOMPARE(list.entry(L"oil"), &list.mEntries[1]);
    QCOMPARE(list.entry(short(1)), &list.mEntries[0]);
    QVERIFY(!list.entry(L"water"));
    QVERIFY(!list.entry(short(2)));
    QCOMPARE(list.entryId(L"oil").value_or(-1), int64_t(5));
    QVERIFY(!list.entryId(L"water"));
    QVERIFY(!list.entryId(L""));
    QVERIFY(list.entryName(5) == L"oil");
    QVERIFY(list.entryName(2).empty());
    QVERIFY((list.entryNames() == std::vector<zelWString>{L"grease", L"oil"}));
}

void tst_zelUIVar::idBeyondSixteenBitsIsNoEntry()
{
    ZelUIVarList list(L"lube");
    list.mEntries = {entry(1, L"grease")};
    QVERIFY(list.entryName(1) == L"grease");
    QVERIFY(list.entryName(65537).empty());
    QVERIFY(list.entryName(-70000).empty());
}

void tst_zelUIVar::listOfTheDatabaseNamesItsOwnEntry()
{
    ZelUIVarDBList bearing(L"bearing");
    ZelUIVarDBFuncList wire(L"wire");
    ZelUIVarMatList material(L"material");
    ZelUIVarLubList lubricant(L"lubricant");
    const auto check = [](auto &list) {
        const ZelUIVar &variable = list;
        const bool without = variable.entryNames().empty() && !variable.entryId(L"own")
            && !variable.entryId(L"") && variable.entryName(0).empty();
        list.mOwn.setText(L"eigene Werte");
        return without && variable.entryNames() == std::vector<zelWString>{L"own"}
        && variable.entryId(L"own") == int64_t(0) && !variable.entryId(L"6204")
            && variable.entryName(0) == L"own" && variable.entryName(1).empty();
    };
    QVERIFY(check(bearing));
    QVERIFY(check(wire));
    QVERIFY(check(material));
    QVERIFY(check(lubricant));
}

void tst_zelUIVar::choiceKnowsItsMembers()
{
    const ZelUIMultiVar first(L"L1");
    const ZelUIMultiVar second(L"F1");
    const ZelUIMultiVar other(L"d");
    ZelUIVarChoice choice(L"range");
    choice.mAlternatives = {{&first}, {&second}};
    QVERIFY(choice.contains(1, &first));
    QVERIFY(!choice.contains(2, &first));
    QVERIFY(!choice.contains(0, &first));
    QVERIFY(!choice.contains(3, &first));
    QVERIFY(choice.contains(&second));
    QVERIFY(!choice.contains(&other));
    QVERIFY(choice.isDisjoint());
}

void tst_zelUIVar::choiceWithASharedVariableIsNotDisjoint()
{
    const ZelUIMultiVar a(L"a");
    const ZelUIMultiVar x1(L"x1");
    const ZelUIMultiVar x2(L"x2");
    ZelUIVarChoice choice(L"shift");
    choice.mAlternatives = {{&x1, &x2}, {&a, &x1}, {&a, &x2}};
    QVERIFY(!choice.isDisjoint());
}

void tst_zelUIVar::choiceStartsWithItsFirstAlternative()
{
    ZelUIVarChoice choice(L"range");
    QCOMPARE(choice.initialNumber(0), 0.0);
    choice.mAlternatives = {{}, {}};
    QCOMPARE(choice.initialNumber(0), 1.0);
    choice.mInitial = 2;
    QCOMPARE(choice.initialNumber(0), 2.0);
    choice.mInitial = 3;
    QCOMPARE(choice.initialNumber(0), 1.0);
}

void tst_zelUIVar::paramResultsGoByIndex()
{
    MetaParam param;
    param.addParam(L"GetModuleId", L"");
    param.addParam(L"GetName", L"7");
    QCOMPARE(param.params().size(), size_t(2));
    QVERIFY(param.params()[1].first == L"GetName");
    QVERIFY(param.params()[1].second == L"7");
    QVERIFY(param.getResultAsString(0).empty());
    param.addResult(L"bearing");
    QVERIFY(param.getResultAsString(0) == L"bearing");
    QVERIFY(param.getResultAsString(1).empty());
    param.clearResults();
    QVERIFY(param.getResultAsString(0).empty());
}

QTEST_APPLESS_MAIN(tst_zelUIVar)
#include "tst_zelUIVar.moc"
