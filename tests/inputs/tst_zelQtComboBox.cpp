#include "zelQtComboBox.h"

#include "comboBoxOnPage.h"
#include "zelQtItemDelegate.h"

// The box itself: how a person chooses, and what is told to whom. What the model brings into it has
// a test of its own.
class tst_zelQtComboBox : public QObject
{
    Q_OBJECT

private slots:
    void constructorsTellTheModelItsSource_data();
    void constructorsTellTheModelItsSource();
    void propertiesReachTheModel();
    void freshBoxHasPoliciesAndDelegate();
    void clickInTheOpenListIsAWholeEditHostFirst();
    void arrowKeyIsAWholeEditHostFirst();
    void programChangesTheIndexInSilence();
    void boxWithoutHostSpeaksAllTheSame();
    void disableValueChangedLeavesTheConfirmation();
    void disableValueConfirmedLeavesTheChange();
    void typedTextGivesValueChangedAlone();
    void choiceInAnEditableBoxTellsItsTextToo();
    void editableBoxReportsTheTextOfAProgramAndThatIsMeant();
    void silencedEditableBoxTellsNothingOfTyping();
    void keyGoesToTheParent_data();
    void keyGoesToTheParent();

private:
    const QuickRelease mQuickRelease;
};

struct Source
{
    zelWString mDatabase;
    zelWString mTable;
    zelWString mIdColumn;
    uint64_t mKey;
    std::set<short> mExcluded;
};
Q_DECLARE_METATYPE(Source)
using MakeBox = std::function<ZelQtComboBox *(QWidget *)>;
Q_DECLARE_METATYPE(MakeBox)

void tst_zelQtComboBox::constructorsTellTheModelItsSource_data()
{
    QTest::addColumn<MakeBox>("make");
    QTest::addColumn<Source>("source");
    const QString db = "db";
    const QString table = "t";
    const zelWString wideDb = L"db";
    const zelWString wideTable = L"t";
    const std::set<short> ids{4, 7};
    const auto row = [](const char *name, const MakeBox &make, const Source &source) {
        QTest::newRow(name) << make << source;
    };
    row("plain", [](QWidget *w) { return new ZelQtComboBox(w); }, {L"", L"", L"ID", 0, {}});
    row("strings", [=](QWidget *w) { return new ZelQtComboBox(db, table, w); },
        {L"db", L"t", L"ID", 0, {}});
    row("wide strings", [=](QWidget *w) { return new ZelQtComboBox(wideDb, wideTable, w); },
        {L"db", L"t", L"ID", 0, {}});
    row("column", [=](QWidget *w) { return new ZelQtComboBox(wideDb, wideTable, L"NR", w); },
        {L"db", L"t", L"NR", 0, {}});
    row("excluded", [=](QWidget *w) { return new ZelQtComboBox(db, table, ids, w); },
        {L"db", L"t", L"ID", 0, ids});
    row("wide excluded", [=](QWidget *w) { return new ZelQtComboBox(wideDb, wideTable, ids, w); },
        {L"db", L"t", L"ID", 0, ids});
    row("key", [=](QWidget *w) { return new ZelQtComboBox(db, table, 5000000000, ids, w); },
        {L"db", L"t", L"ID", 5000000000, ids});
    row("wide key",
        [=](QWidget *w) { return new ZelQtComboBox(wideDb, wideTable, 5000000000, ids, w); },
        {L"db", L"t", L"ID", 5000000000, ids});
}

void tst_zelQtComboBox::constructorsTellTheModelItsSource()
{
    QFETCH(MakeBox, make);
    QFETCH(Source, source);
    QWidget parent;
    const ZelQtComboBox *box = make(&parent);
    QCOMPARE(box->parentWidget(), &parent);
    QVERIFY(box->mDatabase == source.mDatabase);
    QVERIFY(box->mTable == source.mTable);
    QVERIFY(box->mIdColumn == source.mIdColumn);
    QCOMPARE(box->mListKey, source.mKey);
    QVERIFY(box->mExcludedIDs == source.mExcluded);
    QVERIFY(box->itemDelegate() && box->itemDelegate()->parent() == box);
}

void tst_zelQtComboBox::propertiesReachTheModel()
{
    ZelQtComboBox box;
    QVERIFY(box.setProperty("database", "db"));
    QVERIFY(box.setProperty("table", "t"));
    QVERIFY(box.setProperty("indexFixed", true));
    QVERIFY(box.mDatabase == L"db");
    QVERIFY(box.mTable == L"t");
    QVERIFY(box.isIndexFixed());
    QVERIFY(box.mReadOnly);
    QCOMPARE(box.property("database").toString(), QStringLiteral("db"));
    QCOMPARE(box.property("table").toString(), QStringLiteral("t"));
    QCOMPARE(box.property("indexFixed").toBool(), true);
}

void tst_zelQtComboBox::freshBoxHasPoliciesAndDelegate()
{
    const ZelQtComboBox box;
    QCOMPARE(box.sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed));
    QCOMPARE(box.focusPolicy(), Qt::StrongFocus);
    QVERIFY(qobject_cast<ZelQtItemDelegate *>(box.itemDelegate()));
    QVERIFY(!box.isIndexFixed());
}

void tst_zelQtComboBox::clickInTheOpenListIsAWholeEditHostFirst()
{
    Fixture fixture;
    addThree(fixture.mField);
    QVERIFY(fixture.enter());
    QTest::mousePress(&fixture.mField, Qt::LeftButton);
    QVERIFY(fixture.mField.view()->isVisible());
    QTest::mouseRelease(&fixture.mField, Qt::LeftButton);
    clickInList(fixture.mField, 2);
    QVERIFY(!fixture.mField.view()->isVisible());
    QCOMPARE(fixture.mField.currentIndex(), 2);
    QCOMPARE(fixture.take(), wholeEdit);
}

void tst_zelQtComboBox::arrowKeyIsAWholeEditHostFirst()
{
    Fixture fixture;
    addThree(fixture.mField);
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, Qt::Key_Down);
    QCOMPARE(fixture.mField.currentIndex(), 1);
    QCOMPARE(fixture.take(), wholeEdit);
    QTest::keyClick(&fixture.mField, Qt::Key_Down);
    QTest::keyClick(&fixture.mField, Qt::Key_Down); // the end of the list
    QCOMPARE(fixture.mField.currentIndex(), 2);
    QCOMPARE(fixture.take(), wholeEdit);
    QVERIFY(fixture.leave()); // nothing was pending
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtComboBox::programChangesTheIndexInSilence()
{
    Fixture fixture;
    addThree(fixture.mField);
    fixture.mField.setCurrentIndex(2);
    fixture.mField.setCurrentData(2, true);
    fixture.mField.clear();
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtComboBox::boxWithoutHostSpeaksAllTheSame()
{
    ZelQtComboBox box;
    addThree(box);
    EventRecorder recorder;
    recorder.recordProtocol(&box, "field");
    QTest::keyClick(&box, Qt::Key_Down);
    QCOMPARE(recorder.take(), QStringList({"field valueChanged", "field valueConfirmed"}));
}

void tst_zelQtComboBox::disableValueChangedLeavesTheConfirmation()
{
    Fixture fixture;
    addThree(fixture.mField);
    fixture.mField.disableValueChanged();
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, Qt::Key_Down);
    QCOMPARE(fixture.take(), confirmedEvents);
}

void tst_zelQtComboBox::disableValueConfirmedLeavesTheChange()
{
    Fixture fixture;
    addThree(fixture.mField);
    fixture.mField.disableValueConfirmed();
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, Qt::Key_Down);
    QCOMPARE(fixture.take(), changedEvents);
}

void tst_zelQtComboBox::typedTextGivesValueChangedAlone()
{
    Fixture fixture;
    addThree(fixture.mField);
    fixture.mField.setEditable(true);
    QVERIFY(fixture.enter());
    fixture.take();
    QTest::keyClick(&fixture.mField, Qt::Key_End);
    QTest::keyClick(&fixture.mField, 'x');
    QCOMPARE(fixture.mField.currentText(), QStringLiteral("onex"));
    QCOMPARE(fixture.take(), changedEvents);
    QTest::keyClick(&fixture.mField, 'y');
    QCOMPARE(fixture.take(), changedEvents);
    QVERIFY(fixture.leave());
    QCOMPARE(fixture.take(), QStringList());
}

// The new text of the line edit is a change of its own, before the choice.
void tst_zelQtComboBox::choiceInAnEditableBoxTellsItsTextToo()
{
    Fixture fixture;
    addThree(fixture.mField);
    fixture.mField.setEditable(true);
    QVERIFY(fixture.enter());
    fixture.take();
    QTest::keyClick(&fixture.mField, Qt::Key_Down);
    QCOMPARE(fixture.take(), changedEvents + wholeEdit);
}

void tst_zelQtComboBox::editableBoxReportsTheTextOfAProgramAndThatIsMeant()
{
    Fixture fixture;
    addThree(fixture.mField);
    fixture.mField.setEditable(true);
    fixture.take();
    fixture.mField.setEditText("12.5");
    QCOMPARE(fixture.take(), changedEvents);
}

void tst_zelQtComboBox::silencedEditableBoxTellsNothingOfTyping()
{
    Fixture fixture;
    fixture.mField.setEditable(true);
    fixture.mField.disableValueChanged();
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, 'x');
    QCOMPARE(fixture.mField.currentText(), QStringLiteral("x"));
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtComboBox::keyGoesToTheParent_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<bool>("editable");
    QTest::addColumn<bool>("parentHears");
    const int control = Qt::ControlModifier;
    for (const bool editable : {false, true}) {
        const auto row = [&](const char *name, int key, int modifiers, bool hears) {
            QTest::addRow("%s%s", name, editable ? ", editable" : "")
                << key << modifiers << editable << hears;
        };
        row("F1", Qt::Key_F1, Qt::NoModifier, true);
        row("Shift+F1", Qt::Key_F1, Qt::ShiftModifier, true);
        row("Ctrl+Down", Qt::Key_Down, control, true);
        row("Ctrl+Z", Qt::Key_Z, control, true);
        row("Ctrl+C", Qt::Key_C, control, true);
        row("Down", Qt::Key_Down, Qt::NoModifier, false);
        row("Ctrl+Shift+Down", Qt::Key_Down, control | Qt::ShiftModifier, false);
    }
}

void tst_zelQtComboBox::keyGoesToTheParent()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(bool, editable);
    QFETCH(bool, parentHears);
    Fixture fixture;
    addThree(fixture.mField);
    fixture.mField.setEditable(editable);
    QVERIFY(fixture.enter());
    EventWatch watch(&fixture.mPage, QEvent::KeyPress);
    QTest::keyClick(&fixture.mField, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    // The modifiers are keys of their own.
    QCOMPARE(watch.mSeen.contains(QString::number(key)), parentHears);
    if (parentHears)
        QCOMPARE(fixture.mField.currentIndex(), 0);
}

QTEST_MAIN(tst_zelQtComboBox)
#include "tst_zelQtComboBox.moc"
