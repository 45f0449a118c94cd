#include "meta.h"
#include "zelDatabase.h"
#include "zelUIComboBox.h"
#include "zelUIVarKinds.h"
#include "zelUIVarLists.h"

#include <QtTest>

// Lists of the database without a widget: what they show, and what they write.
class tst_zelUIComboBoxDatabase : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void listWithoutDatabaseNameReadsTheMainOne();
    void rowsAreReadAnewAtRetranslate();
    void ownEntryStandsFirst();
    void functionNarrowsTheRows();
    void excludedIdIsStillWritten();
    void idThatOnlyTheDatabaseKnowsIsWritten();
    void unknownIdIsNotWritten();
    void renderedTextOfAnUnlistedIdComesFromTheDatabase();
    void userInputTakesNoDisabledEntry();
    void userInputTakesNoDisabledDynamicEntry();
    void keyNarrowsAListThatDependsOnAnother();
    void materialsAreThoseOfTheType();
    void listOfTypesLeavesTheValueAlone();
    void numberOfAListIsWrittenByItsEntry();
};

static int readings;
static zelWString readDatabase;

static bool holdsName(const ZelUIComboBox::TextList &list, size_t at, const wchar_t *name)
{
    return at < list.size() && list[at].first == name;
}

void tst_zelUIComboBoxDatabase::init()
{
    readings = 0;
    readDatabase = zelWString();
    ZelDatabaseProvider provider;
    provider.mRows = [](const zelWString &database, const zelWString &, const zelWString &,
                        uint64_t key) {
        ++readings;
        readDatabase = database;
        if (key == 2)
            return ZelDatabaseProvider::Rows{{L"VG 68", 5}};
        return ZelDatabaseProvider::Rows{{L"6205", 1}, {L"6206", 2}, {L"6303", 3}};
    };
    provider.mName = [](const zelWString &, const zelWString &,
                        long id) -> std::optional<zelWString> {
        return id == 9 ? std::optional<zelWString>(L"6409") : std::nullopt;
    };
    provider.mMaterials = [](const zelWString &, int type) {
        return type == 1 ? ZelDatabaseProvider::Rows{{L"C45", 11}, {L"42CrMo4", 12}}
                         : ZelDatabaseProvider::Rows{{L"GJL-250", 21}};
    };
    zelSetDatabaseProvider(provider);
}

void tst_zelUIComboBoxDatabase::cleanup()
{
    zelSetDatabaseProvider({});
}

// A list of bearings over the store.
struct BearingList
{
    BearingList()
    {
        mVariable->mTable = L"bearing";
        mVariable->mInitial = 1;
    }
    void setup() { mBox.setup(mVariable, mAttributes, 0); }

    Meta mMeta;
    ZelUIVarDBList *mVariable = mMeta.add<ZelUIVarDBList>(L"bearing");
    AttrMap mAttributes;
    ZelUIComboBox mBox;
};

void tst_zelUIComboBoxDatabase::listWithoutDatabaseNameReadsTheMainOne()
{
    BearingList list;
    list.setup();
    QCOMPARE(list.mBox.list().size(), size_t(3));
    QVERIFY(readDatabase == zelMainDatabase);
    QVERIFY(list.mBox.mDatabase == zelMainDatabase);

    BearingList other;
    other.mVariable->mDatabase = L"own";
    other.setup();
    other.mBox.list();
    QVERIFY(readDatabase == L"own");
}

void tst_zelUIComboBoxDatabase::rowsAreReadAnewAtRetranslate()
{
    BearingList list;
    list.setup();
    list.mBox.list();
    list.mBox.list();
    QCOMPARE(readings, 1);
    list.mBox.retranslate();
    QVERIFY(holdsName(list.mBox.list(), 0, L"6205"));
    QCOMPARE(readings, 2);
}

void tst_zelUIComboBoxDatabase::ownEntryStandsFirst()
{
    BearingList list;
    list.mVariable->mOwn.setText(L"eigene Werte");
    list.setup();
    QVERIFY(holdsName(list.mBox.list(), 0, L"eigene Werte"));
    QCOMPARE(list.mBox.list()[0].second, short(0));
    QCOMPARE(list.mBox.list().size(), size_t(4));
}

void tst_zelUIComboBoxDatabase::functionNarrowsTheRows()
{
    Meta meta;
    auto *variable = meta.add<ZelUIVarDBFuncList>(L"bearing");
    variable->mTable = L"bearing";
    variable->mFunction = L"fitting";
    zelWString answer = L"3 1";
    meta.setFunction(L"fitting", [&answer](const zelWString &, zelWString &result) {
        result = answer;
        return true;
    });
    AttrMap attributes;
    ZelUIComboBox box;
    box.setup(variable, attributes, 0);
    box.setData(&meta, 0);
    QCOMPARE(box.list().size(), size_t(2));
    QVERIFY(holdsName(box.list(), 1, L"6303"));
    answer = L"2";
    box.setData(&meta, 0);
    QCOMPARE(box.list().size(), size_t(1));
    QVERIFY(holdsName(box.list(), 0, L"6206"));
}

void tst_zelUIComboBoxDatabase::excludedIdIsStillWritten()
{
    BearingList list;
    list.setup();
    list.mBox.setExcludedIDs({2});
    QCOMPARE(list.mBox.list().size(), size_t(2));
    list.mBox.setData(&list.mMeta, 0);
    list.mBox.mCurrentId = 2;
    list.mBox.getData(&list.mMeta, 0);
    QCOMPARE(list.mMeta.integer(*list.mVariable, 0), int64_t(2));
}

void tst_zelUIComboBoxDatabase::idThatOnlyTheDatabaseKnowsIsWritten()
{
    BearingList list;
    list.setup();
    list.mBox.setData(&list.mMeta, 0);
    list.mBox.mCurrentId = 9;
    list.mBox.getData(&list.mMeta, 0);
    QCOMPARE(list.mMeta.integer(*list.mVariable, 0), int64_t(9));
}

void tst_zelUIComboBoxDatabase::unknownIdIsNotWritten()
{
    BearingList list;
    list.setup();
    list.mBox.setData(&list.mMeta, 0);
    list.mBox.mCurrentId = 77;
    list.mBox.getData(&list.mMeta, 0);
    QCOMPARE(list.mMeta.integer(*list.mVariable, 0), int64_t(1));
}

void tst_zelUIComboBoxDatabase::renderedTextOfAnUnlistedIdComesFromTheDatabase()
{
    BearingList list;
    list.mVariable->mInitial = 9;
    list.setup();
    list.mBox.setData(&list.mMeta, 0);
    QVERIFY(list.mBox.getRenderedData() == L"6409");
    list.mMeta.setInteger(*list.mVariable, 0, 0, 77, ZelOrigin::Load);
    list.mBox.setData(&list.mMeta, 0);
    QVERIFY(list.mBox.getRenderedData().empty());
}

void tst_zelUIComboBoxDatabase::userInputTakesNoDisabledEntry()
{
    BearingList list;
    list.setup();
    list.mBox.setDisabledIDs({2});
    list.mBox.setData(&list.mMeta, 0);
    bool changed = true;
    QVERIFY(!list.mBox.setUserInput(&list.mMeta, 0, L"6206", changed));
    QVERIFY(!changed);
    QCOMPARE(list.mMeta.integer(*list.mVariable, 0), int64_t(1));
    QVERIFY(list.mBox.setUserInput(&list.mMeta, 0, L"6303", changed));
    QVERIFY(changed);
    QCOMPARE(list.mMeta.integer(*list.mVariable, 0), int64_t(3));
}

void tst_zelUIComboBoxDatabase::userInputTakesNoDisabledDynamicEntry()
{
    Meta meta;
    auto *variable = meta.add<ZelUIVarFuncListDynamic>(L"gear");
    variable->mFunction = L"gears";
    meta.setFunction(L"gears", [](const zelWString &, zelWString &result) {
        result = L"5000000000\tRad 1\n5000000001\tRad 2";
        return true;
    });
    AttrMap attributes;
    ZelUIComboBox box;
    box.setup(variable, attributes, 0);
    box.setData(&meta, 0);
    box.mDynamicDisabledIDs = {5000000000};
    bool changed = true;
    QVERIFY(!box.setUserInput(&meta, 0, L"Rad 1", changed));
    QVERIFY(!changed);
    QVERIFY(box.setUserInput(&meta, 0, L"Rad 2", changed));
    QCOMPARE(meta.integer(*variable, 0), int64_t(5000000001));
}

void tst_zelUIComboBoxDatabase::keyNarrowsAListThatDependsOnAnother()
{
    Meta meta;
    auto *variable = meta.add<ZelUIVarLubList>(L"oil");
    AttrMap attributes;
    ZelUIComboBox box;
    box.setup(variable, attributes, false, true);
    QCOMPARE(box.list().size(), size_t(3));
    box.setData(&meta, 0, 2, 5);
    QCOMPARE(box.list().size(), size_t(1));
    QVERIFY(holdsName(box.list(), 0, L"VG 68"));
    short id = 0;
    box.getData(id);
    QCOMPARE(id, short(5));
    box.setData(&meta, 0, -1, 1);
    QCOMPARE(box.mListKey, uint64_t(0));
    QCOMPARE(box.list().size(), size_t(3));
}

void tst_zelUIComboBoxDatabase::materialsAreThoseOfTheType()
{
    Meta meta;
    auto *variable = meta.add<ZelUIVarMatList>(L"material");
    AttrMap attributes;
    ZelUIComboBox box;
    box.setup(variable, attributes, false);
    box.setData(&meta, 0, 1, 12);
    QCOMPARE(box.list().size(), size_t(2));
    QVERIFY(box.getRenderedData() == L"42CrMo4");
    box.setData(&meta, 0, 3, 21);
    QVERIFY(holdsName(box.list(), 0, L"GJL-250"));
}

void tst_zelUIComboBoxDatabase::listOfTypesLeavesTheValueAlone()
{
    Meta meta;
    auto *variable = meta.add<ZelUIVarMatList>(L"material");
    variable->mInitial = 12;
    AttrMap attributes;
    ZelUIComboBox box;
    box.setup(variable, attributes, true);
    box.setTextList({{L"Stahl", 1}, {L"Guss", 3}});
    box.mCurrentId = 3;
    box.setData(&meta, 0);
    QCOMPARE(box.mCurrentId, short(3));
    box.mCurrentId = 1;
    box.getData(&meta, 0);
    QCOMPARE(meta.integer(*variable, 0), int64_t(12));
    bool changed = true;
    QVERIFY(!box.setUserInput(&meta, 0, L"Stahl", changed));
    QCOMPARE(meta.integer(*variable, 0), int64_t(12));
}

void tst_zelUIComboBoxDatabase::numberOfAListIsWrittenByItsEntry()
{
    Meta meta;
    auto *variable = meta.add<ZelUIVarRealFuncList>(L"m");
    variable->mFunction = L"modules";
    variable->mInitial = 2.5;
    meta.setFunction(L"modules", [](const zelWString &, zelWString &result) {
        result = L"2\t2\n2.5\t2,5\n3\t3";
        return true;
    });
    AttrMap attributes;
    ZelUIComboBox box;
    box.setup(variable, attributes, 0);
    box.setData(&meta, 0);
    QCOMPARE(box.mCurrentId, short(2));
    box.mCurrentId = 3;
    box.getData(&meta, 0);
    QCOMPARE(meta.real(*variable, 0), 3.0);
    box.mCurrentId = 4; // past the end
    box.getData(&meta, 0);
    QCOMPARE(meta.real(*variable, 0), 3.0);
}

QTEST_APPLESS_MAIN(tst_zelUIComboBoxDatabase)
#include "tst_zelUIComboBoxDatabase.moc"
