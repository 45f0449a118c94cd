#include "zelQtComboBox.h"

#include "fieldOnPage.h"
#include "zelQtItemDelegate.h"

#include <QAbstractItemView>
#include <QAction>
#include <QStandardItemModel>
#include <QStatusTipEvent>
#include <QStringListModel>
#include <QTranslator>
#include <QWheelEvent>

// The box itself: how a person chooses, what is told to whom, the fixed index, and widths. What the
// model brings into it has a test of its own.
class tst_zelQtComboBox : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
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
    void f1RaisesTheHelpOfTheHost();
    void shortcutOfTheWindowFiresOverAnEditableBox();
    void typedLetterFindsItsEntry();
    void pressOnAFixedBoxIsOnlyReported();
    void fixedBoxReactsToTheArrowKeysAndThatIsMeant();
    void freedBoxOpensAgain();
    void fixedBoxHasTheGroundOfAWindow();
    void disabledBoxIgnoresAFixedIndexAndThatIsMeant();
    void wheelTurnsAFocusedBox();
    void wheelOverABoxWithoutFocusLeavesTheIndex();
    void wheelOverAFixedBoxDoesNothing();
    void statusTipIsTheCurrentEntry();
    void statusBarFollowsTheOpenList();
    void currentDataIsThatOfTheEntry();
    void setCurrentDataFallsBackWhenAsked_data();
    void setCurrentDataFallsBackWhenAsked();
    void dataIsFoundByNumberWhateverItsType();
    void undefinedEntryHasIconTextAndId();
    void undefinedEntryFollowsTheLanguage();
    void iconsAreNoticed();
    void emptyBoxHasNoTextWidth();
    void textWidthIsThatOfTheWidestEntryWithoutTags();
    void inputWidthGoesByTheFlags();
    void sizeHintIsOneLineHigh();
    void standardWidthFixesThePolicyAndFreesIt();
    void leastWidthIsTheStandardWidthUnlessSwitchedOff();
    void openListIsAsWideAsItsEntries();
    void disabledEntryIsGreyAndCannotBeChosen();
    void disabledEntriesOfAForeignModelStay();
    void emptySetLeavesDisabledEntries();

private:
    int mDoubleClickInterval = 0;
};

using Fixture = FieldOnPage<ZelQtComboBox>;

static const QStringList wholeEdit = changedEvents + confirmedEvents;

// All events of one kind that reach a widget.
class EventWatch : public QObject
{
public:
    EventWatch(QObject *watched, QEvent::Type type)
        : mType(type)
    {
        watched->installEventFilter(this);
    }
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != mType)
            return false;
        if (mType == QEvent::StatusTip)
            mSeen.append(static_cast<QStatusTipEvent *>(event)->tip());
        else
            mSeen.append(QString::number(static_cast<QKeyEvent *>(event)->key()));
        return false;
    }
    QStringList mSeen;

private:
    QEvent::Type mType;
};

static void addThree(ZelQtComboBox &box)
{
    box.addItem("one", 1);
    box.addItem("two", 2);
    box.addItem("three", 3);
}

static void clickInList(ZelQtComboBox &box, int row)
{
    const QModelIndex index = box.model()->index(row, 0);
    QWidget *viewport = box.view()->viewport();
    const QPoint at = box.view()->visualRect(index).center();
    QTest::mouseMove(viewport, at);
    QTest::mouseClick(viewport, Qt::LeftButton, Qt::NoModifier, at);
}

static bool turnWheelDown(QWidget &widget)
{
    const QPointF at(widget.rect().center());
    QWheelEvent event(at, widget.mapToGlobal(at.toPoint()), {}, QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    event.setAccepted(true);
    static_cast<QObject &>(widget).event(&event); // at it alone, not at its parents
    return event.isAccepted();
}

void tst_zelQtComboBox::initTestCase()
{
    QLocale::setDefault(QLocale::c());
    // Qt takes a release soon after the press that opened the list for the end of that press.
    mDoubleClickInterval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(0);
}

void tst_zelQtComboBox::cleanupTestCase()
{
    QApplication::setDoubleClickInterval(mDoubleClickInterval);
}

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

void tst_zelQtComboBox::f1RaisesTheHelpOfTheHost()
{
    Fixture fixture;
    fixture.mField.setAuthorItCode(42);
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, Qt::Key_F1);
    QCOMPARE(fixture.take(), QStringList("host helpChanged(42.htm)"));
}

void tst_zelQtComboBox::shortcutOfTheWindowFiresOverAnEditableBox()
{
    Fixture fixture;
    fixture.mField.setEditable(true);
    QAction undo(&fixture.mPage);
    undo.setShortcut(QKeySequence("Ctrl+Z"));
    fixture.mPage.addAction(&undo);
    QSignalSpy undone(&undo, &QAction::triggered);
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, 'x');
    QTest::keyClick(&fixture.mField, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(undone.size(), 1);
    QCOMPARE(fixture.mField.currentText(), QStringLiteral("x"));
}

void tst_zelQtComboBox::typedLetterFindsItsEntry()
{
    Fixture fixture;
    addThree(fixture.mField);
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, 't');
    QCOMPARE(fixture.mField.currentText(), QStringLiteral("two"));
}

void tst_zelQtComboBox::pressOnAFixedBoxIsOnlyReported()
{
    Fixture fixture;
    addThree(fixture.mField);
    fixture.mField.setIndexFixed(true);
    fixture.mPage.mRecorder.record(&fixture.mField, &ZelQtComboBox::changeOfFixedIndexAttempted,
                                   "attempt");
    QVERIFY(fixture.enter());
    QTest::mouseClick(&fixture.mField, Qt::LeftButton);
    QVERIFY(!fixture.mField.view()->isVisible());
    QCOMPARE(fixture.mField.currentIndex(), 0);
    QCOMPARE(fixture.take(), QStringList("attempt"));
}

void tst_zelQtComboBox::fixedBoxReactsToTheArrowKeysAndThatIsMeant()
{
    Fixture fixture;
    addThree(fixture.mField);
    fixture.mField.setIndexFixed(true);
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, Qt::Key_Down);
    QCOMPARE(fixture.mField.currentIndex(), 1);
    QCOMPARE(fixture.take(), wholeEdit);
}

void tst_zelQtComboBox::freedBoxOpensAgain()
{
    Fixture fixture;
    addThree(fixture.mField);
    fixture.mField.setIndexNotFixed(false);
    QVERIFY(fixture.mField.isIndexFixed());
    fixture.mField.setIndexNotFixed(true);
    QVERIFY(!fixture.mField.isIndexFixed());
    QVERIFY(!fixture.mField.mReadOnly);
    QVERIFY(fixture.enter());
    QTest::mousePress(&fixture.mField, Qt::LeftButton);
    QVERIFY(fixture.mField.view()->isVisible());
    fixture.mField.hidePopup();
}

void tst_zelQtComboBox::fixedBoxHasTheGroundOfAWindow()
{
    const QPalette application = QApplication::palette();
    ZelQtComboBox box;
    box.setIndexFixed(true);
    QCOMPARE(box.palette().brush(QPalette::Base), application.window());
    QCOMPARE(box.palette().brush(QPalette::Window), application.dark());
    box.setIndexFixed(false);
    QCOMPARE(box.palette().brush(QPalette::Base), application.base());
    QCOMPARE(box.palette().brush(QPalette::Window), application.window());
    QVERIFY(application.window() != application.base());
}

void tst_zelQtComboBox::disabledBoxIgnoresAFixedIndexAndThatIsMeant()
{
    ZelQtComboBox box;
    const QPalette before = box.palette();
    box.setEnabled(false);
    box.setIndexFixed(true);
    QVERIFY(!box.isIndexFixed());
    QCOMPARE(box.palette().brush(QPalette::Active, QPalette::Base),
             before.brush(QPalette::Active, QPalette::Base));
    box.setEnabled(true);
    box.setIndexFixed(true);
    box.setEnabled(false);
    box.setIndexFixed(false);
    QVERIFY(box.isIndexFixed());
}

void tst_zelQtComboBox::wheelTurnsAFocusedBox()
{
    Fixture fixture;
    addThree(fixture.mField);
    QVERIFY(fixture.enter());
    EventWatch tips(&fixture.mField, QEvent::StatusTip);
    QVERIFY(turnWheelDown(fixture.mField));
    QCOMPARE(fixture.mField.currentIndex(), 1);
    QCOMPARE(tips.mSeen, QStringList("two"));
    QCOMPARE(fixture.take(), wholeEdit);
}

void tst_zelQtComboBox::wheelOverABoxWithoutFocusLeavesTheIndex()
{
    Fixture fixture;
    addThree(fixture.mField);
    QVERIFY(fixture.enter());
    QVERIFY(fixture.leave());
    EventWatch tips(&fixture.mField, QEvent::StatusTip);
    QVERIFY2(!turnWheelDown(fixture.mField), "the page may scroll");
    QCOMPARE(fixture.mField.currentIndex(), 0);
    QCOMPARE(tips.mSeen, QStringList("one"));
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtComboBox::wheelOverAFixedBoxDoesNothing()
{
    Fixture fixture;
    addThree(fixture.mField);
    fixture.mField.setIndexFixed(true);
    QVERIFY(fixture.enter());
    EventWatch tips(&fixture.mField, QEvent::StatusTip);
    QVERIFY(!turnWheelDown(fixture.mField));
    QCOMPARE(fixture.mField.currentIndex(), 0);
    QCOMPARE(tips.mSeen, QStringList());
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtComboBox::statusTipIsTheCurrentEntry()
{
    ZelQtComboBox box;
    addThree(box);
    QCOMPARE(box.statusTip(), QStringLiteral("one"));
    box.setCurrentIndex(2);
    QCOMPARE(box.statusTip(), QStringLiteral("three"));
    box.setCurrentIndex(-1);
    QCOMPARE(box.statusTip(), QString());
}

void tst_zelQtComboBox::statusBarFollowsTheOpenList()
{
    Fixture fixture;
    addThree(fixture.mField);
    QVERIFY(fixture.enter());
    fixture.mField.showPopup();
    EventWatch tips(&fixture.mField, QEvent::StatusTip);
    QTest::keyClick(fixture.mField.view(), Qt::Key_Down);
    QTest::keyClick(fixture.mField.view(), Qt::Key_Down);
    QCOMPARE(tips.mSeen, QStringList({"two", "three"}));
    QCOMPARE(fixture.mField.statusTip(), QStringLiteral("one"));
    fixture.mField.hidePopup();
}

void tst_zelQtComboBox::currentDataIsThatOfTheEntry()
{
    ZelQtComboBox box;
    QVERIFY(!box.currentData().isValid());
    addThree(box);
    box.setCurrentIndex(1);
    QCOMPARE(box.currentData(), QVariant(2));
}

void tst_zelQtComboBox::setCurrentDataFallsBackWhenAsked_data()
{
    QTest::addColumn<int>("data");
    QTest::addColumn<bool>("fallback");
    QTest::addColumn<bool>("found");
    QTest::addColumn<int>("index");
    QTest::newRow("known") << 3 << false << true << 2;
    QTest::newRow("known, with fallback") << 3 << true << true << 2;
    QTest::newRow("unknown") << 9 << false << false << -1;
    QTest::newRow("unknown, with fallback") << 9 << true << false << 0;
}

void tst_zelQtComboBox::setCurrentDataFallsBackWhenAsked()
{
    QFETCH(int, data);
    QFETCH(bool, fallback);
    ZelQtComboBox box;
    addThree(box);
    box.setCurrentIndex(1);
    QTEST(box.setCurrentData(data, fallback), "found");
    QTEST(box.currentIndex(), "index");
}

void tst_zelQtComboBox::dataIsFoundByNumberWhateverItsType()
{
    ZelQtComboBox box;
    box.addItem("short", 2);
    box.addItem("long", qlonglong(5000000000));
    QVERIFY(box.setCurrentData(qlonglong(5000000000), false));
    QCOMPARE(box.currentText(), QStringLiteral("long"));
    QVERIFY(box.setCurrentData(qlonglong(2), false));
    QCOMPARE(box.currentText(), QStringLiteral("short"));
}

void tst_zelQtComboBox::undefinedEntryHasIconTextAndId()
{
    ZelQtComboBox box;
    box.addUndefinedItem(-1);
    QCOMPARE(box.itemText(0), QStringLiteral("nicht definiert"));
    QCOMPARE(box.itemData(0), QVariant(-1));
    QVERIFY(!box.itemIcon(0).pixmap(16).isNull());
}

class OneText : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const bool known =
            qstrcmp(context, "ZelQtComboBox") == 0 && qstrcmp(source, "nicht definiert") == 0;
        return known ? QStringLiteral("not defined") : QString();
    }
    bool isEmpty() const override { return false; }
};

void tst_zelQtComboBox::undefinedEntryFollowsTheLanguage()
{
    ZelQtComboBox box;
    box.addItem("nicht definiert", 4); // an entry of the application that happens to read the same
    box.addUndefinedItem(-1);
    OneText translator;
    QCoreApplication::installTranslator(&translator);
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&box, &change);
    QCOMPARE(box.itemText(0), QStringLiteral("nicht definiert"));
    QCOMPARE(box.itemText(1), QStringLiteral("not defined"));
    QCOMPARE(box.itemData(1), QVariant(-1));
    QCoreApplication::removeTranslator(&translator);
}

void tst_zelQtComboBox::iconsAreNoticed()
{
    ZelQtComboBox box;
    QVERIFY(!box.hasIcons());
    addThree(box);
    QVERIFY(!box.hasIcons());
    box.addUndefinedItem(0);
    QVERIFY(box.hasIcons());
}

void tst_zelQtComboBox::emptyBoxHasNoTextWidth()
{
    QCOMPARE(ZelQtComboBox().absTextWidth(), 0);
}

void tst_zelQtComboBox::textWidthIsThatOfTheWidestEntryWithoutTags()
{
    const QFontMetrics metrics = QApplication::fontMetrics();
    const double reserve = 0.5 * metrics.horizontalAdvance('w');
    const auto width = [&](const QString &text) {
        return int(metrics.horizontalAdvance(text) + reserve);
    };
    ZelQtComboBox box;
    box.addItem("wide entry");
    box.addItem("<b>i</b><sub>i</sub>");
    QCOMPARE(box.absTextWidth(), width("wide entry"));
    box.addItem("a still wider entry<sup>2</sup>");
    QCOMPARE(box.absTextWidth(), width("a still wider entry2"));
}

void tst_zelQtComboBox::inputWidthGoesByTheFlags()
{
    ZelQtComboBox box;
    addThree(box);
    const int character = box.fontMetrics().averageCharWidth();
    QCOMPARE(box.inputWidth(), box.absTextWidth() + 4 * character);
    box.setOurMaxWidth(true);
    QCOMPARE(box.inputWidth(), 50 * character);
    box.setOurStdWidth(true); // wins
    QCOMPARE(box.inputWidth(), 16 * character);
    box.setOurMaxWidth(false);
    QCOMPARE(box.inputWidth(), 16 * character);
}

void tst_zelQtComboBox::sizeHintIsOneLineHigh()
{
    ZelQtComboBox box;
    addThree(box);
    const QFontMetrics metrics = box.fontMetrics();
    QCOMPARE(box.sizeHint(), QSize(box.inputWidth(), metrics.height() + metrics.lineSpacing() / 2));
}

void tst_zelQtComboBox::standardWidthFixesThePolicyAndFreesIt()
{
    ZelQtComboBox box;
    box.setOurStdWidth(true);
    QCOMPARE(box.sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    box.setOurStdWidth(false);
    QCOMPARE(box.sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed));
    box.setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    box.setOurMaxWidth(true); // leaves it
    QCOMPARE(box.sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed));
}

void tst_zelQtComboBox::leastWidthIsTheStandardWidthUnlessSwitchedOff()
{
    ZelQtComboBox box;
    box.addItem("an entry that is much wider than the standard width of a field");
    const int standard = 16 * box.fontMetrics().averageCharWidth();
    QCOMPARE(box.minimumSizeHint().width(), standard);
    box.setOurMinWidth(false);
    QVERIFY(box.minimumSizeHint().width() > standard);
}

void tst_zelQtComboBox::openListIsAsWideAsItsEntries()
{
    ZelQtComboBox box;
    box.addItem("an entry that is much wider than the box");
    box.resize(60, box.sizeHint().height());
    const int width = box.absTextWidth() + 5 * box.fontMetrics().averageCharWidth();
    QVERIFY(showAndActivate(&box));
    box.showPopup();
    QCOMPARE(box.view()->minimumWidth(), width);
    QVERIFY(box.view()->width() >= width);
    box.hidePopup();

    box.addUndefinedItem(0);
    box.showPopup();
    QCOMPARE(box.view()->minimumWidth(), width + box.iconSize().width());
    box.hidePopup();
}

void tst_zelQtComboBox::disabledEntryIsGreyAndCannotBeChosen()
{
    Fixture fixture;
    ZelQtComboBox &box = fixture.mField;
    addThree(box);
    box.mDisabledIDs = {2};
    box.applyDisabledIDs();
    QCOMPARE(box.count(), 3);
    QVERIFY(!(box.model()->flags(box.model()->index(1, 0)) & Qt::ItemIsEnabled));
    QVERIFY(fixture.enter());

    QTest::mousePress(&box, Qt::LeftButton);
    QTest::mouseRelease(&box, Qt::LeftButton);
    clickInList(box, 1);
    QVERIFY(box.view()->isVisible()); // the click is no choice of the current entry either
    QCOMPARE(box.currentIndex(), 0);
    QCOMPARE(fixture.take(), QStringList());
    box.hidePopup();

    QTest::keyClick(&box, Qt::Key_Down);
    QCOMPARE(box.currentIndex(), 2);
    QCOMPARE(fixture.take(), wholeEdit);

    box.mDisabledIDs = {1};
    box.applyDisabledIDs(); // the others are free again
    QTest::keyClick(&box, Qt::Key_Up);
    QCOMPARE(box.currentIndex(), 1);
    QTest::keyClick(&box, Qt::Key_Up);
    QCOMPARE(box.currentIndex(), 1);
}

void tst_zelQtComboBox::disabledEntriesOfAForeignModelStay()
{
    ZelQtComboBox box;
    QStringListModel model({"one", "two"});
    box.setModel(&model);
    box.mDisabledIDs = {0};
    box.applyDisabledIDs();
    QVERIFY(model.flags(model.index(0)) & Qt::ItemIsEnabled);
}

void tst_zelQtComboBox::emptySetLeavesDisabledEntries()
{
    ZelQtComboBox box;
    addThree(box);
    box.mDisabledIDs = {2};
    box.applyDisabledIDs();
    box.mDisabledIDs.clear();
    box.applyDisabledIDs();
    QVERIFY(!(box.model()->flags(box.model()->index(1, 0)) & Qt::ItemIsEnabled));
}

QTEST_MAIN(tst_zelQtComboBox)
#include "tst_zelQtComboBox.moc"
