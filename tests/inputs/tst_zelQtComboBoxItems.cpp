#include "zelQtComboBox.h"

#include "comboBoxOfModel.h"
#include "zelLanguage.h"

// What the model brings into the box: names, state, entries and the current one.
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
};

void tst_zelQtComboBoxItems::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_zelQtComboBoxItems::init()
{
    provideDatabase();
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

QTEST_MAIN(tst_zelQtComboBoxItems)
#include "tst_zelQtComboBoxItems.moc"
