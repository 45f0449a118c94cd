#include "mask.h"
#include "zelUIComboBox.h"
#include "zelUIVarChoice.h"
#include "zelUIVarLists.h"

#include <QtTest>

namespace {

ZelListEntry entry(short id, const wchar_t *name, const wchar_t *text)
{
    ZelListEntry entry;
    entry.mId = id;
    entry.mName = name;
    entry.mText.setText(text);
    return entry;
}

QStringList texts(ZelUIComboBox &box)
{
    QStringList lines;
    for (const auto &[text, id] : box.list())
        lines << QString("%1 %2").arg(id).arg(toText(text));
    return lines;
}

class Box : public ZelUIComboBox
{
public:
    using ZelUIComboBox::setup;
    void retranslate() override { ++mRetranslated; }
    int mRetranslated = 0;
};

struct Lubrication
{
    Lubrication()
    {
        mList->mEntries = {entry(1, L"grease", L"Fett"), entry(2, L"oil", L"Öl")};
        mList->mInitial = 1;
        mBox.setup(mList, mAttributes, 0);
        mBox.setData(&mMeta, 0);
    }
    Meta mMeta;
    ZelUIVarList *mList = mMeta.add<ZelUIVarList>(L"lube");
    AttrMap mAttributes;
    Box mBox;
};

} // namespace

class tst_zelUIComboBox : public QObject
{
    Q_OBJECT
private slots:
    void startsWithIdColumnID();
    void listOfTheDescription();
    void excludedEntriesAreNotInTheList();
    void writesOnlyWhatTheListHolds_data();
    void writesOnlyWhatTheListHolds();
    void disabledListIsNotWritten();
    void choiceIsPicked();
    void numbersAreChosenByPosition();
    void functionFillsTheListAgainWhenItChanged();
    void numbersOfAFunction();
    void dynamicListHas64BitIds();
    void databaseListWithoutDatabaseIsEmpty();
    void textsOfAProgram();
    void twoListsThatDependOnEachOther();
    void userInputByTextAndByName();
    void rendersTheCurrentEntry();
    void nullVariableGivesAnEmptyList();
};

void tst_zelUIComboBox::startsWithIdColumnID()
{
    const ZelUIComboBox box;
    QCOMPARE(toText(box.mIdColumn), QString("ID"));
    QCOMPARE(box.mCurrentId, short(0));
    QCOMPARE(box.mListKey, uint64_t(0));
}

void tst_zelUIComboBox::listOfTheDescription()
{
    Lubrication lube;
    QCOMPARE(texts(lube.mBox), QStringList({"1 Fett", "2 Öl"}));
    QCOMPARE(lube.mBox.mCurrentId, short(1));
    lube.mBox.mCurrentId = 2;
    lube.mBox.getData(&lube.mMeta, 0);
    QCOMPARE(lube.mMeta.integer(*lube.mList, 0), int64_t(2));
}

void tst_zelUIComboBox::excludedEntriesAreNotInTheList()
{
    Lubrication lube;
    lube.mBox.setExcludedIDs({1});
    lube.mBox.setDisabledIDs({2});
    QCOMPARE(texts(lube.mBox), QStringList({"2 Öl"}));
}

void tst_zelUIComboBox::writesOnlyWhatTheListHolds_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("stored");
    QTest::newRow("entry") << 2 << 2;
    QTest::newRow("no entry") << 3 << 1;
    QTest::newRow("box without entry") << 0 << 1;
    QTest::newRow("negative") << -1 << 1;
}

void tst_zelUIComboBox::writesOnlyWhatTheListHolds()
{
    QFETCH(int, id);
    Lubrication lube;
    lube.mBox.mCurrentId = static_cast<short>(id);
    lube.mBox.getData(&lube.mMeta, 0);
    QTEST(int(lube.mMeta.integer(*lube.mList, 0)), "stored");
}

void tst_zelUIComboBox::disabledListIsNotWritten()
{
    Lubrication lube;
    lube.mBox.mEnabled = false;
    lube.mBox.mCurrentId = 2;
    lube.mBox.getData(&lube.mMeta, 0);
    QCOMPARE(lube.mMeta.integer(*lube.mList, 0), int64_t(1));
}

void tst_zelUIComboBox::choiceIsPicked()
{
    Meta meta;
    auto *choice = meta.add<ZelUIVarChoice>(L"range");
    choice->mEntries = {entry(1, L"lengths", L"Längen"), entry(2, L"forces", L"Kräfte")};
    choice->mAlternatives = {{}, {}};
    int picked = 0;
    meta.setChoiceObserver([&picked](const ZelUIVarChoice &, int64_t, short, short current,
                                     ZelOrigin) { picked = current; });
    AttrMap attributes;
    ZelUIComboBox box;
    box.setup(static_cast<ZelUIVarList *>(choice), attributes, 0);
    box.setData(&meta, 0);
    box.mCurrentId = 2;
    box.getData(&meta, 0);
    QCOMPARE(picked, 2);
}

void tst_zelUIComboBox::numbersAreChosenByPosition()
{
    Meta meta;
    auto *list = meta.add<ZelUIVarRealList>(L"m");
    ZelListEntry one;
    one.mNumber = 1.25;
    ZelListEntry two;
    two.mNumber = 2;
    two.mText.setText(L"zwei");
    list->mEntries = {one, two};
    meta.setReal(*list, 0, 0, 2.0000000000000004, ZelOrigin::Load);
    AttrMap attributes;
    ZelUIComboBox box;
    box.setup(list, attributes, 0);
    box.setData(&meta, 0);
    QCOMPARE(texts(box), QStringList({"1 1.25", "2 zwei"}));
    QCOMPARE(box.mCurrentId, short(2));
    box.getData(&meta, 0);
    QVERIFY(meta.real(*list, 0) == 2.0000000000000004);
    box.mCurrentId = 1;
    box.getData(&meta, 0);
    QCOMPARE(meta.real(*list, 0), 1.25);
    meta.setReal(*list, 0, 0, 7, ZelOrigin::Load);
    box.setData(&meta, 0);
    QCOMPARE(box.mCurrentId, short(0));
}

void tst_zelUIComboBox::functionFillsTheListAgainWhenItChanged()
{
    Meta meta;
    auto *list = meta.add<ZelUIVarFuncList>(L"gear");
    list->mFunction = L"Gears";
    std::wstring lines = L"1\tRad 1\n2\tRad 2\nno number\tx\n3";
    meta.setFunction(L"Gears", [&lines](const zelWString &, zelWString &result) {
        result = lines;
        return true;
    });
    AttrMap attributes;
    Box box;
    box.setup(list, attributes, 0);
    box.setData(&meta, 0);
    QCOMPARE(texts(box), QStringList({"1 Rad 1", "2 Rad 2", "3 3"}));
    QCOMPARE(box.mRetranslated, 1);
    box.setData(&meta, 0);
    QCOMPARE(box.mRetranslated, 1);
    lines = L"1\tRad 1";
    box.setData(&meta, 0);
    QCOMPARE(box.mRetranslated, 2);
    QCOMPARE(texts(box), QStringList({"1 Rad 1"}));
}

void tst_zelUIComboBox::numbersOfAFunction()
{
    Meta meta;
    auto *list = meta.add<ZelUIVarRealFuncList>(L"d");
    list->mFunction = L"Wires";
    meta.setFunction(L"Wires", [](const zelWString &, zelWString &result) {
        result = L"0.5\t0,50 mm\n0.8\t0,80 mm";
        return true;
    });
    AttrMap attributes;
    ZelUIComboBox box;
    box.setup(list, attributes, 0);
    box.setData(&meta, 0);
    QCOMPARE(texts(box), QStringList({"1 0,50 mm", "2 0,80 mm"}));
    box.mCurrentId = 2;
    box.getData(&meta, 0);
    QCOMPARE(meta.real(*list, 0), 0.8);
}

void tst_zelUIComboBox::dynamicListHas64BitIds()
{
    Meta meta;
    auto *list = meta.add<ZelUIVarFuncListDynamic>(L"shaft");
    list->mFunction = L"Shafts";
    meta.setFunction(L"Shafts", [](const zelWString &, zelWString &result) {
        result = L"9007199254740993\tWelle 1\n5\tWelle 2";
        return true;
    });
    AttrMap attributes;
    ZelUIComboBox box;
    box.setup(list, attributes, 0);
    box.setData(&meta, 0);
    QCOMPARE(box.dynamicList().size(), size_t(2));
    QCOMPARE(box.dynamicList()[0].second, int64_t(9007199254740993));
    QVERIFY(box.list().empty());
    box.mCurrentId64 = 9007199254740993;
    box.getData(&meta, 0);
    QCOMPARE(meta.integer(*list, 0), int64_t(9007199254740993));
    QCOMPARE(toText(box.getRenderedData()), QString("Welle 1"));
    box.mCurrentId64 = 6;
    box.getData(&meta, 0);
    QCOMPARE(meta.integer(*list, 0), int64_t(9007199254740993));
}

void tst_zelUIComboBox::databaseListWithoutDatabaseIsEmpty()
{
    ZelUIComboBox box;
    box.mDatabase = L"bearings";
    box.mTable = L"ball";
    QVERIFY(box.list().empty());
}

void tst_zelUIComboBox::textsOfAProgram()
{
    ZelUIComboBox box;
    box.setTextList({{L"eins", short(1)}, {L"zwei", short(2)}});
    box.setExcludedIDs({2});
    QCOMPARE(texts(box), QStringList({"1 eins"}));
}

void tst_zelUIComboBox::twoListsThatDependOnEachOther()
{
    Meta meta;
    ZelUIComboBox box;
    box.setData(&meta, 0, 3, 17);
    QCOMPARE(box.mListKey, uint64_t(3));
    short id = 0;
    box.getData(id);
    QCOMPARE(id, short(17));
}

void tst_zelUIComboBox::userInputByTextAndByName()
{
    Lubrication lube;
    bool changed = false;
    QVERIFY(lube.mBox.setUserInput(&lube.mMeta, 0, L"Öl", changed));
    QVERIFY(changed);
    QCOMPARE(lube.mMeta.integer(*lube.mList, 0), int64_t(2));
    QVERIFY(lube.mBox.setUserInput(&lube.mMeta, 0, L"oil", changed));
    QVERIFY(!changed);
    QVERIFY(lube.mBox.setUserInput(&lube.mMeta, 0, L"grease", changed));
    QVERIFY(changed);
    QVERIFY(!lube.mBox.setUserInput(&lube.mMeta, 0, L"Wasser", changed));
    QVERIFY(!changed);
    QCOMPARE(lube.mMeta.integer(*lube.mList, 0), int64_t(1));
}

void tst_zelUIComboBox::rendersTheCurrentEntry()
{
    Lubrication lube;
    QCOMPARE(toText(lube.mBox.getRenderedData()), QString("Fett"));
    lube.mBox.mEnabled = false;
    QVERIFY(lube.mBox.getRenderedData().empty());
}

// Of every kind that brings a list with it.
void tst_zelUIComboBox::nullVariableGivesAnEmptyList()
{
    ZelUIComboBox box;
    AttrMap attributes;
    const auto checkEmpty = [&box]() {
        Meta meta;
        box.updateState(&meta, 0);
        box.setData(&meta, 0);
        box.getData(&meta, 0);
        QVERIFY(box.list().empty() && box.dynamicList().empty());
        QVERIFY(box.getRenderedData().empty());
    };
    const auto check = [&](auto *variable) {
        box.setup(variable, attributes, 0);
        checkEmpty();
    };
    check(static_cast<ZelUIVarLS *>(nullptr));
    check(static_cast<ZelUIVarRealFuncList *>(nullptr));
    check(static_cast<ZelUIVarRealList *>(nullptr));
    check(static_cast<ZelUIVarDBFuncList *>(nullptr));
    check(static_cast<ZelUIVarDBList *>(nullptr));
    check(static_cast<ZelUIVarFuncListDynamic *>(nullptr));
    check(static_cast<ZelUIVarFuncList *>(nullptr));
    check(static_cast<ZelUIVarList *>(nullptr));
    box.setup(static_cast<ZelUIVarLubList *>(nullptr), attributes, true, true);
    checkEmpty();
    box.setup(static_cast<ZelUIVarMatList *>(nullptr), attributes, false);
    checkEmpty();
}

QTEST_GUILESS_MAIN(tst_zelUIComboBox)
#include "tst_zelUIComboBox.moc"
