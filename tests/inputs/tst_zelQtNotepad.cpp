#include "zelQtNotepad.h"

#include "fieldOnPage.h"
#include "meta.h"
#include "zelUIVarKinds.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QtTest>

class tst_zelQtNotepad : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void typingIsReportedAndLeavingConfirmsOnceHostFirst();
    void tabLeavesTheField();
    void ensuringDeliversAPendingChangeOnce();
    void contextMenuConfirmsOnPurpose();
    void setupNamesAndSizesTheField();
    void geometryAttributesHaveNoEffectOnPurpose();
    void updateBlockingVariableHasNoEffectOnPurpose();
    void stateOfTheElement_data();
    void stateOfTheElement();
    void setDataReportsAChangedTextOnPurpose();
    void setDataOfTheSameTextIsSilent();
    void disabledFieldIsEmptiedAndReportsIt();
    void emptyFieldIsNotEmptiedAgain();
    void textWithTagsIsReportedAtEverySetDataOnPurpose();
    void getDataWritesTheLines();
};

using Fixture = FieldOnPage<ZelQtNotepad>;

void tst_zelQtNotepad::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_zelQtNotepad::typingIsReportedAndLeavingConfirmsOnceHostFirst()
{
    Fixture fixture;
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, Qt::Key_A);
    QCOMPARE(fixture.take(), changedEvents);
    QTest::keyClick(&fixture.mField, Qt::Key_Return); // a line break, no confirmation
    QCOMPARE(fixture.mField.toPlainText(), QStringLiteral("a\n"));
    QCOMPARE(fixture.take(), changedEvents);
    QVERIFY(fixture.leave());
    QCOMPARE(fixture.take(), confirmedEvents);
    QVERIFY(fixture.enter());
    QVERIFY(fixture.leave());
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtNotepad::tabLeavesTheField()
{
    Fixture fixture;
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, Qt::Key_Tab);
    QVERIFY(fixture.mNeighbour.hasFocus());
    QCOMPARE(fixture.mField.toPlainText(), QString());
}

void tst_zelQtNotepad::ensuringDeliversAPendingChangeOnce()
{
    Fixture fixture;
    fixture.mField.ensureValueConfirmed();
    QCOMPARE(fixture.take(), QStringList());
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, Qt::Key_A);
    fixture.take();
    fixture.mField.ensureValueConfirmed();
    QCOMPARE(fixture.take(), confirmedEvents);
    fixture.mField.ensureValueConfirmed();
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtNotepad::contextMenuConfirmsOnPurpose()
{
    Fixture fixture;
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, Qt::Key_A);
    fixture.take();
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5),
                            fixture.mField.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(fixture.mField.viewport(), &event);
    QWidget *menu = QApplication::activePopupWidget();
    QVERIFY(qobject_cast<QMenu *>(menu));
    QCOMPARE(fixture.take(), confirmedEvents);
    menu->close();
}

void tst_zelQtNotepad::setupNamesAndSizesTheField()
{
    ZelUIVarMultilineString variable(L"notes");
    AttrMap attributes;
    ZelQtNotepad field;
    field.setup(&variable, attributes);
    QVERIFY(field.objectName().startsWith(QStringLiteral("notes")));
    QCOMPARE(field.whatsThis(), QStringLiteral("notes"));
    QCOMPARE(field.minimumSize(), QSize(100, 100));
    QCOMPARE(field.sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));
}

void tst_zelQtNotepad::geometryAttributesHaveNoEffectOnPurpose()
{
    ZelUIVarMultilineString variable(L"notes");
    AttrMap attributes{{L"width", L"333"}, {L"height", L"222"}, {L"natural", L"true"}};
    ZelQtNotepad field;
    field.setup(&variable, attributes);
    QCOMPARE(field.minimumSize(), QSize(100, 100));
    QCOMPARE(field.maximumSize(), ZelQtNotepad().maximumSize());
    QCOMPARE(field.sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));
}

void tst_zelQtNotepad::updateBlockingVariableHasNoEffectOnPurpose()
{
    ZelUIVarMultilineString variable(L"notes");
    variable.mUpdateBlocking = true;
    AttrMap attributes;
    Fixture fixture;
    fixture.mField.setup(&variable, attributes);
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, Qt::Key_A);
    QCOMPARE(fixture.take(), changedEvents);
}

void tst_zelQtNotepad::stateOfTheElement_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("visible");
    QTest::addColumn<bool>("readOnly");
    QTest::addColumn<bool>("shownReadOnly");
    QTest::newRow("open") << true << true << false << false;
    QTest::newRow("read-only") << true << true << true << true;
    QTest::newRow("hidden") << true << false << false << false;
    QTest::newRow("read-only counts while enabled only") << false << true << true << false;
}

void tst_zelQtNotepad::stateOfTheElement()
{
    QFETCH(bool, enabled);
    QFETCH(bool, visible);
    QFETCH(bool, readOnly);
    QFETCH(bool, shownReadOnly);
    QWidget window;
    ZelQtNotepad field(&window);
    field.mEnabled = enabled;
    field.mVisible = visible;
    field.mReadOnly = readOnly;
    field.updateState(nullptr, 1);
    QCOMPARE(field.isEnabled(), enabled);
    QCOMPARE(!field.isHidden(), visible);
    QCOMPARE(field.isReadOnly(), shownReadOnly);
}

void tst_zelQtNotepad::setDataReportsAChangedTextOnPurpose()
{
    Meta meta;
    auto *variable = meta.add<ZelUIVarMultilineString>(L"notes");
    meta.setText(*variable, 1, L"eins\nzwei", ZelOrigin::Load);
    AttrMap attributes;
    Fixture fixture;
    fixture.mField.setup(variable, attributes);
    fixture.mField.setData(&meta, 1);
    QCOMPARE(fixture.mField.toPlainText(), QStringLiteral("eins\nzwei"));
    QCOMPARE(fixture.take(), changedEvents);
}

void tst_zelQtNotepad::setDataOfTheSameTextIsSilent()
{
    Fixture fixture;
    fixture.mField.mText = L"eins\nzwei";
    fixture.mField.setData(nullptr, 1);
    fixture.take();
    fixture.mField.setData(nullptr, 1);
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtNotepad::disabledFieldIsEmptiedAndReportsIt()
{
    Fixture fixture;
    fixture.mField.mText = L"abc";
    fixture.mField.setData(nullptr, 1);
    fixture.take();
    fixture.mField.mEnabled = false;
    fixture.mField.setData(nullptr, 1);
    QCOMPARE(fixture.mField.toPlainText(), QString());
    QCOMPARE(fixture.take(), changedEvents);
    QVERIFY(fixture.mField.mText == L"abc");
}

void tst_zelQtNotepad::emptyFieldIsNotEmptiedAgain()
{
    Fixture fixture;
    fixture.mField.mText = L"abc";
    fixture.mField.mEnabled = false;
    fixture.mField.setData(nullptr, 1);
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtNotepad::textWithTagsIsReportedAtEverySetDataOnPurpose()
{
    // Notepad variables hold no tags: Qt takes them for rich text and drops them.
    Fixture fixture;
    fixture.mField.mText = L"<b>abc</b>";
    fixture.mField.setData(nullptr, 1);
    QCOMPARE(fixture.mField.toPlainText(), QStringLiteral("abc"));
    fixture.take();
    fixture.mField.setData(nullptr, 1);
    QVERIFY(fixture.take().contains(QStringLiteral("field valueChanged")));
}

void tst_zelQtNotepad::getDataWritesTheLines()
{
    Meta meta;
    auto *variable = meta.add<ZelUIVarMultilineString>(L"notes");
    AttrMap attributes;
    Fixture fixture;
    fixture.mField.setup(variable, attributes);
    fixture.mField.setData(&meta, 1);
    QVERIFY(fixture.enter());
    QTest::keyClicks(&fixture.mField, QStringLiteral("ab"));
    QTest::keyClick(&fixture.mField, Qt::Key_Return);
    QTest::keyClicks(&fixture.mField, QStringLiteral("c"));
    fixture.mField.getData(&meta, 1);
    QVERIFY(meta.text(*variable, 1) == L"ab\nc");
}

QTEST_MAIN(tst_zelQtNotepad)
#include "tst_zelQtNotepad.moc"
