#include "zelQtComboBox.h"

#include "comboBoxOnPage.h"

#include <QAction>

// Keys, wheel and mouse on a box, and what its fixed index keeps from it.
class tst_zelQtComboBox_fixedIndex : public QObject
{
    Q_OBJECT

private slots:
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

private:
    const QuickRelease mQuickRelease;
};

void tst_zelQtComboBox_fixedIndex::f1RaisesTheHelpOfTheHost()
{
    Fixture fixture;
    fixture.mField.setAuthorItCode(42);
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, Qt::Key_F1);
    QCOMPARE(fixture.take(), QStringList("host helpChanged(42.htm)"));
}

void tst_zelQtComboBox_fixedIndex::shortcutOfTheWindowFiresOverAnEditableBox()
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

void tst_zelQtComboBox_fixedIndex::typedLetterFindsItsEntry()
{
    Fixture fixture;
    addThree(fixture.mField);
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, 't');
    QCOMPARE(fixture.mField.currentText(), QStringLiteral("two"));
}

void tst_zelQtComboBox_fixedIndex::pressOnAFixedBoxIsOnlyReported()
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

void tst_zelQtComboBox_fixedIndex::fixedBoxReactsToTheArrowKeysAndThatIsMeant()
{
    Fixture fixture;
    addThree(fixture.mField);
    fixture.mField.setIndexFixed(true);
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, Qt::Key_Down);
    QCOMPARE(fixture.mField.currentIndex(), 1);
    QCOMPARE(fixture.take(), wholeEdit);
}

void tst_zelQtComboBox_fixedIndex::freedBoxOpensAgain()
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

void tst_zelQtComboBox_fixedIndex::fixedBoxHasTheGroundOfAWindow()
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

void tst_zelQtComboBox_fixedIndex::disabledBoxIgnoresAFixedIndexAndThatIsMeant()
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

void tst_zelQtComboBox_fixedIndex::wheelTurnsAFocusedBox()
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

void tst_zelQtComboBox_fixedIndex::wheelOverABoxWithoutFocusLeavesTheIndex()
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

void tst_zelQtComboBox_fixedIndex::wheelOverAFixedBoxDoesNothing()
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

void tst_zelQtComboBox_fixedIndex::statusTipIsTheCurrentEntry()
{
    ZelQtComboBox box;
    addThree(box);
    QCOMPARE(box.statusTip(), QStringLiteral("one"));
    box.setCurrentIndex(2);
    QCOMPARE(box.statusTip(), QStringLiteral("three"));
    box.setCurrentIndex(-1);
    QCOMPARE(box.statusTip(), QString());
}

void tst_zelQtComboBox_fixedIndex::statusBarFollowsTheOpenList()
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

QTEST_MAIN(tst_zelQtComboBox_fixedIndex)
#include "tst_zelQtComboBox_fixedIndex.moc"
