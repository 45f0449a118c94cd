#include "zelQtComboBox.h"

#include "comboBoxOfModel.h"
#include "zelLanguage.h"
#include "zelUIVarChoice.h"

// Where the entries come from: choices, numbers, functions, the database, a form.
class tst_zelQtComboBoxItems_sources : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void pickedAlternativeReachesTheChoice();
    void numbersAreFoundByTheirEntry();
    void chosenNumberReachesTheStore();
    void functionFillsTheList();
    void newAnswerOfTheFunctionFillsItAnew();
    void numbersOfAFunctionAreFoundByTheirEntry();
    void dynamicListCarriesLongIds();
    void dynamicListFallsBackToItsFirstEntry();
    void dynamicListDisablesByLongIds();
    void emptyDynamicListLeavesTheBoxEmpty();
    void rowsOfTheDatabaseFillTheList();
    void missingIdIsFetchedOnceAndStaysUntilRetranslate();
    void missingIdThatTheDatabaseLacksShowsTheFirstEntry();
    void missingIdWithoutDatabaseShowsTheFirstEntry();
    void excludedIdShowsWithItsName();
    void fetchedEntryCanBeChosenAgain();
    void boxOfAFormFillsFromItsTable();
    void boxOfAFormListsTheEntriesItIsGiven();
    void dependentListShowsItsIdOrTheFirstEntry();
    void dependentListHandsOutTheChosenId();
    void noEntryReadsAsZero();
};

void tst_zelQtComboBoxItems_sources::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_zelQtComboBoxItems_sources::init()
{
    provideDatabase();
}

void tst_zelQtComboBoxItems_sources::cleanup()
{
    zelSetDatabaseProvider({});
    setZelLanguage(ZelLanguage::German);
}

void tst_zelQtComboBoxItems_sources::pickedAlternativeReachesTheChoice()
{
    BoundBox<ZelUIVarChoice> fixture;
    fixture.mVariable->mEntries = {entry(1, L"lengths", L"Längen"), entry(2, L"forces", L"Kräfte")};
    fixture.mVariable->mAlternatives.resize(2);
    fixture.mVariable->mInitial = 1;
    fixture.build();
    QCOMPARE(fixture.mField.currentText(), QStringLiteral("Längen"));
    QStringList picks;
    fixture.mMeta.setChoiceObserver(
        [&picks](const ZelUIVarChoice &, int64_t, short former, short current, ZelOrigin) {
            picks << QString("%1 to %2").arg(former).arg(current);
        });
    QVERIFY(fixture.chooseByKey(Qt::Key_Down));
    QCOMPARE(picks, QStringList("1 to 2"));
}

class SupportBox : public BoundBox<ZelUIVarRealList>
{
public:
    SupportBox()
    {
        mVariable->mEntries = {entry(0, L"", L"", 0.5), entry(0, L"", L"gelenkig", 1),
                               entry(0, L"", L"frei", 2)};
        mVariable->mInitial = 1;
    }
};

void tst_zelQtComboBoxItems_sources::numbersAreFoundByTheirEntry()
{
    SupportBox fixture;
    fixture.build();
    QCOMPARE(texts(fixture.mField), QStringList({"0.5", "gelenkig", "frei"}));
    QCOMPARE(fixture.mField.currentText(), QStringLiteral("gelenkig"));
    fixture.mMeta.setReal(*fixture.mVariable, 0, 0, 2 * (1 + 1e-14), ZelOrigin::Load);
    fixture.refresh();
    QCOMPARE(fixture.mField.currentText(), QStringLiteral("frei"));
}

void tst_zelQtComboBoxItems_sources::chosenNumberReachesTheStore()
{
    SupportBox fixture;
    fixture.build();
    QVERIFY(fixture.chooseByKey(Qt::Key_Up));
    QCOMPARE(fixture.mMeta.real(*fixture.mVariable, 0), 0.5);
}

void tst_zelQtComboBoxItems_sources::functionFillsTheList()
{
    BoundBox<ZelUIVarFuncList> fixture;
    fixture.answer(L"10\tRad 1\n20\tRad 2");
    fixture.mVariable->mInitial = 20;
    fixture.build();
    QCOMPARE(texts(fixture.mField), QStringList({"Rad 1", "Rad 2"}));
    QCOMPARE(fixture.mField.currentIndex(), 1);
    QVERIFY(fixture.chooseByKey(Qt::Key_Up));
    QCOMPARE(fixture.stored(), int64_t(10));
}

void tst_zelQtComboBoxItems_sources::newAnswerOfTheFunctionFillsItAnew()
{
    BoundBox<ZelUIVarFuncList> fixture;
    fixture.answer(L"10\tRad 1\n20\tRad 2");
    fixture.mVariable->mInitial = 20;
    fixture.build();
    fixture.answer(L"20\tRad 2\n30\tRad 3\n40\tRad 4");
    fixture.refresh();
    QCOMPARE(texts(fixture.mField), QStringList({"Rad 2", "Rad 3", "Rad 4"}));
    QCOMPARE(fixture.mField.currentIndex(), 0);
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtComboBoxItems_sources::numbersOfAFunctionAreFoundByTheirEntry()
{
    BoundBox<ZelUIVarRealFuncList> fixture;
    fixture.answer(L"2\t2\n2.5\t2,5\n3\t3");
    fixture.mVariable->mInitial = 2.5;
    fixture.build();
    QCOMPARE(fixture.mField.currentText(), QStringLiteral("2,5"));
    QVERIFY(fixture.chooseByKey(Qt::Key_Down));
    QCOMPARE(fixture.mMeta.real(*fixture.mVariable, 0), 3.0);
}

static const int64_t longId = 5000000000;

void tst_zelQtComboBoxItems_sources::dynamicListCarriesLongIds()
{
    BoundBox<ZelUIVarFuncListDynamic> fixture;
    fixture.answer(L"5000000000\tRad 1\n5000000001\tRad 2");
    fixture.mVariable->mInitial = longId + 1;
    fixture.build();
    QCOMPARE(texts(fixture.mField), QStringList({"Rad 1", "Rad 2"}));
    QCOMPARE(fixture.mField.itemData(0), QVariant(qlonglong(longId)));
    QCOMPARE(fixture.mField.itemData(0).type(), QVariant::LongLong);
    QCOMPARE(fixture.mField.currentIndex(), 1);
    QVERIFY(fixture.chooseByKey(Qt::Key_Up));
    QCOMPARE(fixture.mField.mCurrentId64, longId);
    QCOMPARE(fixture.stored(), longId);
    QCOMPARE(fixture.take(), changedEvents + confirmedEvents);
}

void tst_zelQtComboBoxItems_sources::dynamicListFallsBackToItsFirstEntry()
{
    BoundBox<ZelUIVarFuncListDynamic> fixture;
    fixture.answer(L"5000000000\tRad 1\n5000000001\tRad 2");
    fixture.mVariable->mInitial = 3;
    fixture.build();
    QCOMPARE(fixture.mField.currentIndex(), 0);
}

void tst_zelQtComboBoxItems_sources::dynamicListDisablesByLongIds()
{
    BoundBox<ZelUIVarFuncListDynamic> fixture;
    fixture.answer(L"5000000000\tRad 1\n5000000001\tRad 2");
    fixture.mField.mDynamicDisabledIDs = {longId + 1};
    fixture.build();
    QVERIFY(isSelectable(fixture.mField, 0));
    QVERIFY(!isSelectable(fixture.mField, 1));
}

void tst_zelQtComboBoxItems_sources::emptyDynamicListLeavesTheBoxEmpty()
{
    BoundBox<ZelUIVarFuncListDynamic> fixture;
    fixture.answer(L"5000000000\tRad 1");
    fixture.build();
    QCOMPARE(fixture.mField.count(), 1);
    fixture.answer(L"");
    fixture.refresh();
    QCOMPARE(fixture.mField.count(), 0);
}

void tst_zelQtComboBoxItems_sources::rowsOfTheDatabaseFillTheList()
{
    BearingBox fixture;
    fixture.mVariable->mOwn.setText(L"eigene Werte");
    fixture.build();
    QCOMPARE(texts(fixture.mField), QStringList({"eigene Werte", "6303", "6205", "6206"}));
    QCOMPARE(fixture.mField.currentText(), QStringLiteral("6206"));
    QVERIFY(fixture.chooseByKey(Qt::Key_Home));
    QCOMPARE(fixture.stored(), int64_t(0));
}

void tst_zelQtComboBoxItems_sources::missingIdIsFetchedOnceAndStaysUntilRetranslate()
{
    BearingBox fixture;
    fixture.mVariable->mInitial = 9;
    fixture.build();
    const QStringList fetched{"6303", "6205", "6206", "6409"};
    QCOMPARE(texts(fixture.mField), fetched);
    QCOMPARE(fixture.mField.currentText(), QStringLiteral("6409"));
    QCOMPARE(fixture.mField.currentData(), QVariant(9));
    fixture.refresh();
    QCOMPARE(texts(fixture.mField), fetched);
    fixture.mField.getData(&fixture.mMeta, 0);
    QCOMPARE(fixture.stored(), int64_t(9));
    fixture.store(1);
    fixture.refresh();
    QCOMPARE(texts(fixture.mField), fetched);
    fixture.mField.retranslate();
    QCOMPARE(texts(fixture.mField), QStringList({"6303", "6205", "6206"}));
}

void tst_zelQtComboBoxItems_sources::missingIdThatTheDatabaseLacksShowsTheFirstEntry()
{
    BearingBox fixture;
    fixture.mVariable->mInitial = 77;
    fixture.build();
    QCOMPARE(fixture.mField.count(), 3);
    QCOMPARE(fixture.mField.currentIndex(), 0);
}

void tst_zelQtComboBoxItems_sources::missingIdWithoutDatabaseShowsTheFirstEntry()
{
    BearingBox fixture;
    fixture.mVariable->mInitial = 9;
    fixture.build();
    fixture.mField.retranslate();
    fixture.mField.setDatabase(QString());
    fixture.refresh();
    QCOMPARE(fixture.mField.count(), 3);
    QCOMPARE(fixture.mField.currentIndex(), 0);
}

void tst_zelQtComboBoxItems_sources::excludedIdShowsWithItsName()
{
    BearingBox fixture;
    fixture.mField.setExcludedIDs({2});
    fixture.build();
    QCOMPARE(texts(fixture.mField), QStringList({"6303", "6205", "6206"})); // at the end
    QCOMPARE(fixture.mField.currentIndex(), 2);
    fixture.store(1);
    fixture.mField.retranslate();
    fixture.refresh();
    QCOMPARE(texts(fixture.mField), QStringList({"6303", "6205"}));
}

void tst_zelQtComboBoxItems_sources::fetchedEntryCanBeChosenAgain()
{
    BearingBox fixture;
    fixture.mVariable->mInitial = 9;
    fixture.build();
    QVERIFY(fixture.chooseByKey(Qt::Key_Up));
    QCOMPARE(fixture.stored(), int64_t(2));
    QVERIFY(fixture.chooseByKey(Qt::Key_Down));
    QCOMPARE(fixture.stored(), int64_t(9));
}

void tst_zelQtComboBoxItems_sources::boxOfAFormFillsFromItsTable()
{
    ZelQtComboBox box(QString("db"), QString("bearing"), std::set<short>{1});
    QCOMPARE(box.count(), 0);
    box.setDisabledIDs({3});
    box.retranslate();
    QCOMPARE(texts(box), QStringList({"6303", "6206"}));
    QVERIFY(!isSelectable(box, 0));
    ZelQtComboBox narrowed(QString("db"), QString("lubricant"), uint64_t(7), {});
    narrowed.retranslate();
    QCOMPARE(texts(narrowed), QStringList({"VG 68", "VG 100"}));
}

void tst_zelQtComboBoxItems_sources::boxOfAFormListsTheEntriesItIsGiven()
{
    ZelQtComboBox box;
    box.setTextList({{L"b", 2}, {L"a", 1}, {L"c", 3}});
    box.setDisabledIDs({1});
    box.setExcludedIDs({3});
    box.retranslate();
    QCOMPARE(texts(box), QStringList({"b", "a"}));
    QVERIFY(!isSelectable(box, 1));
    box.mCurrentId = 1;
    box.setData(nullptr, 0); // without a store the id of the box counts
    QCOMPARE(box.currentText(), QStringLiteral("a"));
}

void tst_zelQtComboBoxItems_sources::dependentListShowsItsIdOrTheFirstEntry()
{
    Meta meta;
    auto *variable = meta.add<ZelUIVarLubList>(L"oil");
    AttrMap attributes;
    ZelQtComboBox box;
    EventRecorder recorder;
    recorder.recordProtocol(&box, "field");
    box.setup(variable, attributes, false, true);
    box.setData(&meta, 0, 7, 5);
    QCOMPARE(texts(box), QStringList({"VG 68", "VG 100"}));
    QCOMPARE(box.currentText(), QStringLiteral("VG 100"));
    box.setData(&meta, 0, 7, 77);
    QCOMPARE(box.currentIndex(), 0);
    QCOMPARE(recorder.take(), QStringList());
}

void tst_zelQtComboBoxItems_sources::dependentListHandsOutTheChosenId()
{
    ZelQtComboBox box;
    box.setTextList({{L"Stahl", 1}, {L"Guss", 3}});
    box.retranslate();
    QTest::keyClick(&box, Qt::Key_Down);
    short id = 0;
    box.getData(id);
    QCOMPARE(id, short(3));
    QCOMPARE(box.mCurrentId, short(3));
}

void tst_zelQtComboBoxItems_sources::noEntryReadsAsZero()
{
    ZelQtComboBox box;
    box.setTextList({{L"a", 4}});
    box.retranslate();
    box.setCurrentIndex(-1);
    box.mCurrentId = 4;
    box.mCurrentId64 = 4;
    box.getData(nullptr, 0);
    QCOMPARE(box.mCurrentId, short(0));
    QCOMPARE(box.mCurrentId64, int64_t(0));
    short id = 4;
    box.getData(id);
    QCOMPARE(id, short(0));
}

QTEST_MAIN(tst_zelQtComboBoxItems_sources)
#include "tst_zelQtComboBoxItems_sources.moc"
