#include "zelQtComboBox.h"

#include "fieldOnPage.h"
#include "meta.h"
#include "zelCondition.h"
#include "zelDatabase.h"
#include "zelLanguage.h"
#include "zelTextTable.h"
#include "zelUIVarChoice.h"
#include "zelUIVarLists.h"

// What the model brings into the box: kinds of lists, state, values, texts.
class tst_zelQtComboBoxItems : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void setupNamesTheBox_data();
    void setupNamesTheBox();
    void layoutAttributeSetsTheSize_data();
    void layoutAttributeSetsTheSize();
    void updateBlockingVariableOnlyConfirms();
    void stateOfTheElement_data();
    void stateOfTheElement();
    void readOnlyOnADisabledBoxLeavesItsIndexFreeAndThatIsMeant();
    void entriesComeWithTheirIdsInOrder();
    void textsFollowTheLanguageAtRetranslate();
    void retranslateDropsTheCurrentEntryUntilTheNextData();
    void dataOfTheModelShowInSilence();
    void choiceOfTheUserReachesTheStore();
    void untouchedBoxWritesNothing();
    void readOnlyBoxWritesNothing();
    void disabledElementShowsNothingAndWritesNothing();
    void enabledAgainItShowsItsEntry();
    void unknownIdShowsTheFirstEntry();
    void boxWithoutEntriesStaysEmpty();
    void excludedEntryIsNotListed();
    void disabledEntryStaysDisabledAfterRetranslate();
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

using Fixture = FieldOnPage<ZelQtComboBox>;

static QStringList texts(const ZelQtComboBox &box)
{
    QStringList list;
    for (int row = 0; row < box.count(); ++row)
        list << box.itemText(row);
    return list;
}

static bool isSelectable(const ZelQtComboBox &box, int row)
{
    return box.model()->flags(box.model()->index(row, 0)) & Qt::ItemIsEnabled;
}

static ZelListEntry entry(short id, const wchar_t *name, const wchar_t *german, double number = 0,
                          std::shared_ptr<const ZelTextTable> table = nullptr)
{
    ZelListEntry result;
    result.mId = id;
    result.mName = name;
    result.mText.setText(german, std::move(table));
    result.mNumber = number;
    return result;
}

// A box over a variable of a store, filled and shown as the driver of a mask does it.
template <class Variable> class BoundBox : public Fixture
{
public:
    BoundBox() { mVariable = mMeta.add<Variable>(L"v"); }

    void build()
    {
        mField.setup(mVariable, mAttributes, 0);
        mField.retranslate();
        refresh();
        take();
    }
    void refresh()
    {
        mField.updateState(&mMeta, 0);
        mField.setData(&mMeta, 0);
    }
    [[nodiscard]] bool chooseByKey(Qt::Key key)
    {
        if (!enter())
            return false;
        QTest::keyClick(&mField, key);
        mField.getData(&mMeta, 0);
        return true;
    }
    int64_t stored() const { return mMeta.integer(*mVariable, 0); }
    void store(int64_t id) { mMeta.setInteger(*mVariable, 0, 0, id, ZelOrigin::Load); }
    void setCondition(std::shared_ptr<const ZelCondition> ZelUIVar::*kind, const wchar_t *text)
    {
        ZelCondition::Fault fault;
        mVariable->*kind = ZelCondition::compile(text, mMeta, fault);
        QVERIFY2(mVariable->*kind, fault.mText.c_str());
    }
    void answer(const wchar_t *lines)
    {
        mVariable->mFunction = L"entries";
        mMeta.setFunction(L"entries", [lines](const zelWString &, zelWString &result) {
            result = lines;
            return true;
        });
    }

    Meta mMeta;
    AttrMap mAttributes;
    Variable *mVariable = nullptr;
};

class LubricantBox : public BoundBox<ZelUIVarList>
{
public:
    LubricantBox()
    {
        ZelFaultList faults;
        const auto table = std::make_shared<const ZelTextTable>(ZelTextTable::fromText(
            "German\tEnglish\tFrench\tItalian\tSpanish\tRussian\tPortuguese\tChinese\tJapanese\n"
            "Fett\tGrease\t\t\t\t\t\t\t\n"
            "Öl\tOil\t\t\t\t\t\t\t\n",
            "lubricant.tsv", faults));
        mVariable->mEntries = {entry(1, L"grease", L"Fett", 0, table),
                               entry(2, L"oil", L"Öl", 0, table),
                               entry(5, L"none", L"keine", 0, table)};
        mVariable->mInitial = 2;
    }
};

class BearingBox : public BoundBox<ZelUIVarDBList>
{
public:
    BearingBox()
    {
        mVariable->mTable = L"bearing";
        mVariable->mInitial = 2;
    }
};

void tst_zelQtComboBoxItems::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_zelQtComboBoxItems::init()
{
    ZelDatabaseProvider provider;
    provider.mRows = [](const zelWString &, const zelWString &, const zelWString &, uint64_t key) {
        if (key == 7)
            return ZelDatabaseProvider::Rows{{L"VG 68", 4}, {L"VG 100", 5}};
        return ZelDatabaseProvider::Rows{{L"6303", 3}, {L"6205", 1}, {L"6206", 2}};
    };
    provider.mName = [](const zelWString &, const zelWString &table,
                        long id) -> std::optional<zelWString> {
        if (!(table == L"bearing"))
            return std::nullopt;
        if (id == 9)
            return L"6409";
        return id == 2 ? std::optional<zelWString>(L"6206") : std::nullopt;
    };
    zelSetDatabaseProvider(provider);
}

void tst_zelQtComboBoxItems::cleanup()
{
    zelSetDatabaseProvider({});
    setZelLanguage(ZelLanguage::German);
}

using Setup = std::function<void(ZelQtComboBox &, AttrMap &)>;
Q_DECLARE_METATYPE(Setup)

template <class Variable> static Setup setupOf()
{
    static Variable variable(L"choice");
    return [](ZelQtComboBox &box, AttrMap &attributes) { box.setup(&variable, attributes, 0); };
}

void tst_zelQtComboBoxItems::setupNamesTheBox_data()
{
    QTest::addColumn<Setup>("setup");
    QTest::newRow("list") << setupOf<ZelUIVarList>();
    QTest::newRow("function") << setupOf<ZelUIVarFuncList>();
    QTest::newRow("dynamic") << setupOf<ZelUIVarFuncListDynamic>();
    QTest::newRow("database") << setupOf<ZelUIVarDBList>();
    QTest::newRow("database by function") << setupOf<ZelUIVarDBFuncList>();
    QTest::newRow("numbers") << setupOf<ZelUIVarRealList>();
    QTest::newRow("numbers by function") << setupOf<ZelUIVarRealFuncList>();
    QTest::newRow("list and number") << setupOf<ZelUIVarLS>();
    static ZelUIVarLubList lubricant(L"choice");
    QTest::newRow("lubricant") << Setup([](ZelQtComboBox &box, AttrMap &attributes) {
        box.setup(&lubricant, attributes, false, true);
    });
    static ZelUIVarMatList material(L"choice");
    QTest::newRow("material") << Setup(
        [](ZelQtComboBox &box, AttrMap &attributes) { box.setup(&material, attributes, false); });
}

void tst_zelQtComboBoxItems::setupNamesTheBox()
{
    QFETCH(Setup, setup);
    ZelQtComboBox box;
    AttrMap attributes;
    setup(box, attributes);
    QCOMPARE(box.objectName(), QStringLiteral("choice"));
    QCOMPARE(box.whatsThis(), QStringLiteral("choice"));
    QCOMPARE(box.sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed));
}

void tst_zelQtComboBoxItems::layoutAttributeSetsTheSize_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<int>("policy");
    QTest::addColumn<bool>("wide");
    QTest::newRow("none") << QString() << int(QSizePolicy::Minimum) << false;
    QTest::newRow("table") << "table" << int(QSizePolicy::Expanding) << false;
    QTest::newRow("another one") << "narrow" << int(QSizePolicy::Minimum) << false;
    // The policy of a fresh box stays, and that is meant.
    QTest::newRow("wide") << "wide" << int(QSizePolicy::Preferred) << true;
}

void tst_zelQtComboBoxItems::layoutAttributeSetsTheSize()
{
    QFETCH(QString, layout);
    QFETCH(int, policy);
    QFETCH(bool, wide);
    LubricantBox fixture;
    if (!layout.isEmpty())
        fixture.mAttributes[L"layout"] = layout.toStdWString();
    fixture.build();
    const ZelQtComboBox &box = fixture.mField;
    QCOMPARE(box.sizePolicy(), QSizePolicy(QSizePolicy::Policy(policy), QSizePolicy::Fixed));
    const int character = box.fontMetrics().averageCharWidth();
    const int narrow = box.absTextWidth() + 4 * character;
    QVERIFY(narrow < 50 * character);
    QCOMPARE(box.sizeHint().width(), wide ? 50 * character : narrow);
}

void tst_zelQtComboBoxItems::updateBlockingVariableOnlyConfirms()
{
    LubricantBox fixture;
    fixture.mVariable->mUpdateBlocking = true;
    fixture.build();
    QVERIFY(fixture.chooseByKey(Qt::Key_Up));
    QCOMPARE(fixture.take(), confirmedEvents);
}

void tst_zelQtComboBoxItems::stateOfTheElement_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("visible");
    QTest::addColumn<bool>("readOnly");
    for (const bool enabled : {false, true})
        for (const bool visible : {false, true})
            for (const bool readOnly : {false, true})
                QTest::addRow("%d %d %d", enabled, visible, readOnly)
                    << enabled << visible << readOnly;
}

void tst_zelQtComboBoxItems::stateOfTheElement()
{
    QFETCH(bool, enabled);
    QFETCH(bool, visible);
    QFETCH(bool, readOnly);
    LubricantBox fixture;
    fixture.setCondition(&ZelUIVar::mEnabledIf, enabled ? L"true" : L"false");
    fixture.setCondition(&ZelUIVar::mVisibleIf, visible ? L"true" : L"false");
    fixture.setCondition(&ZelUIVar::mReadOnlyIf, readOnly ? L"true" : L"false");
    fixture.build();
    QCOMPARE(fixture.mField.isEnabled(), enabled);
    QCOMPARE(fixture.mField.isHidden(), !visible);
    QCOMPARE(fixture.mField.isIndexFixed(), enabled && readOnly);
}

void tst_zelQtComboBoxItems::readOnlyOnADisabledBoxLeavesItsIndexFreeAndThatIsMeant()
{
    LubricantBox fixture;
    fixture.build();
    fixture.setCondition(&ZelUIVar::mEnabledIf, L"false");
    fixture.setCondition(&ZelUIVar::mReadOnlyIf, L"true");
    fixture.refresh();
    QVERIFY(fixture.mField.mReadOnly);
    QVERIFY(!fixture.mField.isIndexFixed());
    fixture.mVariable->mEnabledIf = nullptr;
    fixture.refresh();
    QVERIFY(fixture.mField.isIndexFixed());
}

void tst_zelQtComboBoxItems::entriesComeWithTheirIdsInOrder()
{
    LubricantBox fixture;
    fixture.build();
    QCOMPARE(texts(fixture.mField), QStringList({"Fett", "Öl", "keine"}));
    QCOMPARE(fixture.mField.itemData(0), QVariant(1));
    QCOMPARE(fixture.mField.itemData(2), QVariant(5));
    QCOMPARE(fixture.mField.itemData(2).type(), QVariant::Int);
}

void tst_zelQtComboBoxItems::textsFollowTheLanguageAtRetranslate()
{
    LubricantBox fixture;
    fixture.build();
    setZelLanguage(ZelLanguage::English);
    fixture.refresh();
    QCOMPARE(texts(fixture.mField), QStringList({"Fett", "Öl", "keine"}));
    fixture.mField.retranslate();
    fixture.refresh();
    QCOMPARE(texts(fixture.mField), QStringList({"Grease", "Oil", "keine"}));
    QCOMPARE(fixture.mField.currentText(), QStringLiteral("Oil"));
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtComboBoxItems::retranslateDropsTheCurrentEntryUntilTheNextData()
{
    LubricantBox fixture;
    fixture.build();
    QCOMPARE(fixture.mField.currentIndex(), 1);
    fixture.mField.retranslate();
    QCOMPARE(fixture.mField.currentIndex(), 0); // Qt's own, of a filled box
    fixture.refresh();
    QCOMPARE(fixture.mField.currentIndex(), 1);
}

void tst_zelQtComboBoxItems::dataOfTheModelShowInSilence()
{
    LubricantBox fixture;
    fixture.build();
    fixture.store(5);
    fixture.refresh();
    QCOMPARE(fixture.mField.currentText(), QStringLiteral("keine"));
    QCOMPARE(fixture.mField.mCurrentId, short(5));
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtComboBoxItems::choiceOfTheUserReachesTheStore()
{
    LubricantBox fixture;
    fixture.build();
    QVERIFY(fixture.chooseByKey(Qt::Key_Down));
    QCOMPARE(fixture.stored(), int64_t(5));
    QCOMPARE(fixture.take(), changedEvents + confirmedEvents);
}

void tst_zelQtComboBoxItems::untouchedBoxWritesNothing()
{
    LubricantBox fixture;
    fixture.build();
    fixture.store(5); // in another place of the mask, after the refresh
    fixture.mField.getData(&fixture.mMeta, 0);
    QCOMPARE(fixture.stored(), int64_t(5));
}

void tst_zelQtComboBoxItems::readOnlyBoxWritesNothing()
{
    LubricantBox fixture;
    fixture.setCondition(&ZelUIVar::mReadOnlyIf, L"true");
    fixture.build();
    QVERIFY(fixture.chooseByKey(Qt::Key_Down)); // moves a fixed box
    QCOMPARE(fixture.mField.currentText(), QStringLiteral("keine"));
    QCOMPARE(fixture.stored(), int64_t(2));
}

void tst_zelQtComboBoxItems::disabledElementShowsNothingAndWritesNothing()
{
    LubricantBox fixture;
    fixture.setCondition(&ZelUIVar::mEnabledIf, L"false");
    fixture.build();
    QCOMPARE(fixture.mField.currentIndex(), -1);
    QCOMPARE(fixture.mField.count(), 3);
    fixture.mField.getData(&fixture.mMeta, 0);
    QCOMPARE(fixture.mField.mCurrentId, short(0));
    QCOMPARE(fixture.stored(), int64_t(2));
}

void tst_zelQtComboBoxItems::enabledAgainItShowsItsEntry()
{
    LubricantBox fixture;
    fixture.setCondition(&ZelUIVar::mEnabledIf, L"false");
    fixture.build();
    fixture.mVariable->mEnabledIf = nullptr;
    fixture.refresh();
    QCOMPARE(fixture.mField.currentText(), QStringLiteral("Öl"));
}

void tst_zelQtComboBoxItems::unknownIdShowsTheFirstEntry()
{
    LubricantBox fixture;
    fixture.mVariable->mInitial = 77;
    fixture.build();
    QCOMPARE(fixture.mField.currentIndex(), 0);
    QCOMPARE(fixture.mField.count(), 3);
    fixture.mField.getData(&fixture.mMeta, 0); // what is on show is what counts
    QCOMPARE(fixture.stored(), int64_t(1));
}

void tst_zelQtComboBoxItems::boxWithoutEntriesStaysEmpty()
{
    BoundBox<ZelUIVarList> fixture;
    fixture.mVariable->mInitial = 4;
    fixture.build();
    QCOMPARE(fixture.mField.count(), 0);
    fixture.mField.getData(&fixture.mMeta, 0);
    QCOMPARE(fixture.stored(), int64_t(4));
}

void tst_zelQtComboBoxItems::excludedEntryIsNotListed()
{
    LubricantBox fixture;
    fixture.mField.setExcludedIDs({2});
    fixture.build();
    QCOMPARE(texts(fixture.mField), QStringList({"Fett", "keine"}));
    QCOMPARE(fixture.mField.currentIndex(), 0);
}

void tst_zelQtComboBoxItems::disabledEntryStaysDisabledAfterRetranslate()
{
    LubricantBox fixture;
    fixture.mField.setDisabledIDs({5});
    fixture.build();
    QVERIFY(isSelectable(fixture.mField, 0));
    QVERIFY(!isSelectable(fixture.mField, 2));
    fixture.mField.retranslate();
    QVERIFY(!isSelectable(fixture.mField, 2));
    fixture.refresh();
    QVERIFY(fixture.chooseByKey(Qt::Key_Down));
    QCOMPARE(fixture.stored(), int64_t(2));
}

void tst_zelQtComboBoxItems::pickedAlternativeReachesTheChoice()
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

void tst_zelQtComboBoxItems::numbersAreFoundByTheirEntry()
{
    SupportBox fixture;
    fixture.build();
    QCOMPARE(texts(fixture.mField), QStringList({"0.5", "gelenkig", "frei"}));
    QCOMPARE(fixture.mField.currentText(), QStringLiteral("gelenkig"));
    fixture.mMeta.setReal(*fixture.mVariable, 0, 0, 2 * (1 + 1e-14), ZelOrigin::Load);
    fixture.refresh();
    QCOMPARE(fixture.mField.currentText(), QStringLiteral("frei"));
}

void tst_zelQtComboBoxItems::chosenNumberReachesTheStore()
{
    SupportBox fixture;
    fixture.build();
    QVERIFY(fixture.chooseByKey(Qt::Key_Up));
    QCOMPARE(fixture.mMeta.real(*fixture.mVariable, 0), 0.5);
}

void tst_zelQtComboBoxItems::functionFillsTheList()
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

void tst_zelQtComboBoxItems::newAnswerOfTheFunctionFillsItAnew()
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

void tst_zelQtComboBoxItems::numbersOfAFunctionAreFoundByTheirEntry()
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

void tst_zelQtComboBoxItems::dynamicListCarriesLongIds()
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

void tst_zelQtComboBoxItems::dynamicListFallsBackToItsFirstEntry()
{
    BoundBox<ZelUIVarFuncListDynamic> fixture;
    fixture.answer(L"5000000000\tRad 1\n5000000001\tRad 2");
    fixture.mVariable->mInitial = 3;
    fixture.build();
    QCOMPARE(fixture.mField.currentIndex(), 0);
}

void tst_zelQtComboBoxItems::dynamicListDisablesByLongIds()
{
    BoundBox<ZelUIVarFuncListDynamic> fixture;
    fixture.answer(L"5000000000\tRad 1\n5000000001\tRad 2");
    fixture.mField.mDynamicDisabledIDs = {longId + 1};
    fixture.build();
    QVERIFY(isSelectable(fixture.mField, 0));
    QVERIFY(!isSelectable(fixture.mField, 1));
}

void tst_zelQtComboBoxItems::emptyDynamicListLeavesTheBoxEmpty()
{
    BoundBox<ZelUIVarFuncListDynamic> fixture;
    fixture.answer(L"5000000000\tRad 1");
    fixture.build();
    QCOMPARE(fixture.mField.count(), 1);
    fixture.answer(L"");
    fixture.refresh();
    QCOMPARE(fixture.mField.count(), 0);
}

void tst_zelQtComboBoxItems::rowsOfTheDatabaseFillTheList()
{
    BearingBox fixture;
    fixture.mVariable->mOwn.setText(L"eigene Werte");
    fixture.build();
    QCOMPARE(texts(fixture.mField), QStringList({"eigene Werte", "6303", "6205", "6206"}));
    QCOMPARE(fixture.mField.currentText(), QStringLiteral("6206"));
    QVERIFY(fixture.chooseByKey(Qt::Key_Home));
    QCOMPARE(fixture.stored(), int64_t(0));
}

void tst_zelQtComboBoxItems::missingIdIsFetchedOnceAndStaysUntilRetranslate()
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

void tst_zelQtComboBoxItems::missingIdThatTheDatabaseLacksShowsTheFirstEntry()
{
    BearingBox fixture;
    fixture.mVariable->mInitial = 77;
    fixture.build();
    QCOMPARE(fixture.mField.count(), 3);
    QCOMPARE(fixture.mField.currentIndex(), 0);
}

void tst_zelQtComboBoxItems::missingIdWithoutDatabaseShowsTheFirstEntry()
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

void tst_zelQtComboBoxItems::excludedIdShowsWithItsName()
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

void tst_zelQtComboBoxItems::fetchedEntryCanBeChosenAgain()
{
    BearingBox fixture;
    fixture.mVariable->mInitial = 9;
    fixture.build();
    QVERIFY(fixture.chooseByKey(Qt::Key_Up));
    QCOMPARE(fixture.stored(), int64_t(2));
    QVERIFY(fixture.chooseByKey(Qt::Key_Down));
    QCOMPARE(fixture.stored(), int64_t(9));
}

void tst_zelQtComboBoxItems::boxOfAFormFillsFromItsTable()
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

void tst_zelQtComboBoxItems::boxOfAFormListsTheEntriesItIsGiven()
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

void tst_zelQtComboBoxItems::dependentListShowsItsIdOrTheFirstEntry()
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

void tst_zelQtComboBoxItems::dependentListHandsOutTheChosenId()
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

void tst_zelQtComboBoxItems::noEntryReadsAsZero()
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

QTEST_MAIN(tst_zelQtComboBoxItems)
#include "tst_zelQtComboBoxItems.moc"
