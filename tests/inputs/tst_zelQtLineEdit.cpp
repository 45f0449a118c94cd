#include "zelQtLineEdit.h"

#include "fieldOnPage.h"

#include <QAction>
#include <QtTest>

class tst_zelQtLineEdit : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    // confirmation protocol
    void keystrokeIsReportedAndLeavingConfirmsOnceHostFirst();
    void everyKeystrokeIsReported();
    void returnConfirmsAndLeavingThenAddsNothing();
    void deletingIsAChangeToo();
    void withoutHostTheOwnSignalsStillCome();
    void hostHearsBeforeAnyListenerOfTheField();
    void disabledChangeIsReportedAtConfirmationOnly();
    void disablingTheChangeTwiceIsAsOnce();
    void disabledConfirmationStaysPendingUntilEnsured();
    void bothDisabledOnlyEnsuringSpeaks();
    void textSetByTheProgramIsNoEdit();
    void ensuringACleanFieldIsSilent();
    void ensuringDeliversOnce();

    // state
    void inactiveFieldIsEmptyAndStaysSoOnPurpose();
    void editableIsTheOppositeOfReadOnly();
    void takesATextAtConstruction();

    // size
    void sizeHint_data();
    void sizeHint();
    void heightFollowsTheFont();
    void sizePolicyFollowsTheStandardWidth();
    void maximumWidthLeavesTheSizePolicyOnPurpose();

    // undo keys
    void undoKeysReachTheApplication_data();
    void undoKeysReachTheApplication();
    void undoKeysAreIgnoredByTheField_data();
    void undoKeysAreIgnoredByTheField();
    void undoKeysWithFurtherModifiersStayWithTheField();
};

using Fixture = FieldOnPage<ZelQtLineEdit>;

void tst_zelQtLineEdit::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_zelQtLineEdit::keystrokeIsReportedAndLeavingConfirmsOnceHostFirst()
{
    Fixture fixture;
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, Qt::Key_A);
    QCOMPARE(fixture.take(), changedEvents);
    QVERIFY(fixture.leave());
    QCOMPARE(fixture.take(), confirmedEvents);
    QVERIFY(fixture.enter());
    QVERIFY(fixture.leave());
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtLineEdit::everyKeystrokeIsReported()
{
    Fixture fixture;
    QVERIFY(fixture.enter());
    QTest::keyClicks(&fixture.mField, QStringLiteral("ab"));
    QCOMPARE(fixture.take(), changedEvents + changedEvents);
}

void tst_zelQtLineEdit::returnConfirmsAndLeavingThenAddsNothing()
{
    Fixture fixture;
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, Qt::Key_A);
    fixture.take();
    QTest::keyClick(&fixture.mField, Qt::Key_Return);
    QCOMPARE(fixture.take(), confirmedEvents);
    QVERIFY(fixture.leave());
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtLineEdit::deletingIsAChangeToo()
{
    Fixture fixture;
    fixture.mField.setText(QStringLiteral("ab"));
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, Qt::Key_Backspace);
    QCOMPARE(fixture.mField.text(), QStringLiteral("a"));
    QCOMPARE(fixture.take(), changedEvents);
}

void tst_zelQtLineEdit::withoutHostTheOwnSignalsStillCome()
{
    ZelQtLineEdit field;
    EventRecorder recorder;
    recorder.recordProtocol(&field, QStringLiteral("field"));
    QVERIFY(showAndActivate(&field) && focus(&field));
    QTest::keyClick(&field, Qt::Key_A);
    QTest::keyClick(&field, Qt::Key_Return);
    QCOMPARE(recorder.take(),
             QStringList(
                 {QStringLiteral("field valueChanged"), QStringLiteral("field valueConfirmed")}));
}

void tst_zelQtLineEdit::hostHearsBeforeAnyListenerOfTheField()
{
    // The field's listener is connected first and still comes second.
    ZelQtLineEdit field;
    EventRecorder recorder;
    recorder.recordProtocol(&field, QStringLiteral("field"));
    ZelQtParentDialog dialog;
    recorder.recordProtocol(&dialog, QStringLiteral("host"));
    field.setParent(&dialog);
    QTest::keyClick(&field, Qt::Key_A);
    field.ensureValueConfirmed();
    QCOMPARE(recorder.take(), changedEvents + confirmedEvents);
    field.setParent(nullptr);
}

void tst_zelQtLineEdit::disabledChangeIsReportedAtConfirmationOnly()
{
    Fixture fixture;
    fixture.mField.disableValueChanged();
    QVERIFY(fixture.enter());
    QTest::keyClicks(&fixture.mField, QStringLiteral("ab"));
    QCOMPARE(fixture.take(), QStringList());
    QVERIFY(fixture.leave());
    QCOMPARE(fixture.take(), confirmedEvents);
}

void tst_zelQtLineEdit::disablingTheChangeTwiceIsAsOnce()
{
    Fixture fixture;
    fixture.mField.disableValueChanged();
    fixture.mField.disableValueChanged();
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, Qt::Key_A);
    QVERIFY(fixture.leave());
    QCOMPARE(fixture.take(), confirmedEvents);
}

void tst_zelQtLineEdit::disabledConfirmationStaysPendingUntilEnsured()
{
    Fixture fixture;
    fixture.mField.disableValueConfirmed();
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, Qt::Key_A);
    QCOMPARE(fixture.take(), changedEvents);
    QVERIFY(fixture.leave());
    QCOMPARE(fixture.take(), QStringList());
    fixture.mField.ensureValueConfirmed();
    QCOMPARE(fixture.take(), confirmedEvents);
}

void tst_zelQtLineEdit::bothDisabledOnlyEnsuringSpeaks()
{
    Fixture fixture;
    fixture.mField.disableValueChanged();
    fixture.mField.disableValueConfirmed();
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, Qt::Key_A);
    QVERIFY(fixture.leave());
    QCOMPARE(fixture.take(), QStringList());
    fixture.mField.ensureValueConfirmed();
    QCOMPARE(fixture.take(), confirmedEvents);
}

void tst_zelQtLineEdit::textSetByTheProgramIsNoEdit()
{
    Fixture fixture;
    QVERIFY(fixture.enter());
    fixture.mField.setText(QStringLiteral("abc"));
    QVERIFY(fixture.leave());
    QCOMPARE(fixture.mField.text(), QStringLiteral("abc"));
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtLineEdit::ensuringACleanFieldIsSilent()
{
    Fixture fixture;
    fixture.mField.ensureValueConfirmed();
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtLineEdit::ensuringDeliversOnce()
{
    Fixture fixture;
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, Qt::Key_A);
    fixture.take();
    fixture.mField.ensureValueConfirmed();
    fixture.mField.ensureValueConfirmed();
    QVERIFY(fixture.leave());
    QCOMPARE(fixture.take(), confirmedEvents);
}

void tst_zelQtLineEdit::inactiveFieldIsEmptyAndStaysSoOnPurpose()
{
    Fixture fixture;
    fixture.mField.setText(QStringLiteral("abc"));
    QVERIFY(fixture.mField.isActive());
    fixture.mField.setActive(false);
    QVERIFY(!fixture.mField.isEnabled());
    QVERIFY(!fixture.mField.isActive());
    QCOMPARE(fixture.mField.text(), QString());
    fixture.mField.setActive(true);
    QVERIFY(fixture.mField.isEnabled());
    QCOMPARE(fixture.mField.text(), QString());
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtLineEdit::editableIsTheOppositeOfReadOnly()
{
    ZelQtLineEdit field;
    QVERIFY(field.isEditable());
    QVERIFY(field.setProperty("editable", false));
    QVERIFY(field.isReadOnly());
    QVERIFY(!field.isEditable());
    field.setReadOnly(false);
    QCOMPARE(field.property("editable").toBool(), true);
}

void tst_zelQtLineEdit::takesATextAtConstruction()
{
    const ZelQtLineEdit field(QStringLiteral("abc"));
    QCOMPARE(field.text(), QStringLiteral("abc"));
    QCOMPARE(field.sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed));
}

void tst_zelQtLineEdit::sizeHint_data()
{
    QTest::addColumn<bool>("standard");
    QTest::addColumn<bool>("maximum");
    QTest::addColumn<int>("characters");
    QTest::newRow("own width of a line edit") << false << false << 0;
    QTest::newRow("standard width") << true << false << 16;
    QTest::newRow("maximum width") << false << true << 50;
    QTest::newRow("maximum width wins") << true << true << 50;
}

void tst_zelQtLineEdit::sizeHint()
{
    QFETCH(bool, standard);
    QFETCH(bool, maximum);
    QFETCH(int, characters);
    ZelQtLineEdit field;
    field.setOurStdWidth(standard);
    field.setOurMaxWidth(maximum);
    const QFontMetrics metrics = field.fontMetrics();
    QCOMPARE(field.sizeHint().height(), metrics.height() + metrics.lineSpacing() / 2);
    const int width =
        characters > 0 ? characters * metrics.averageCharWidth() : QLineEdit().sizeHint().width();
    QCOMPARE(field.sizeHint().width(), width);
}

void tst_zelQtLineEdit::heightFollowsTheFont()
{
    ZelQtLineEdit field;
    const int before = field.sizeHint().height();
    QFont font = field.font();
    font.setPixelSize(4 * field.fontMetrics().height());
    field.setFont(font);
    QVERIFY(field.sizeHint().height() > 2 * before);
}

void tst_zelQtLineEdit::sizePolicyFollowsTheStandardWidth()
{
    ZelQtLineEdit field;
    QCOMPARE(field.sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed));
    field.setOurStdWidth(true);
    QCOMPARE(field.sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    field.setOurStdWidth(false);
    QCOMPARE(field.sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed));
}

void tst_zelQtLineEdit::maximumWidthLeavesTheSizePolicyOnPurpose()
{
    ZelQtLineEdit field;
    field.setOurMaxWidth(true);
    QCOMPARE(field.sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed));
}

void tst_zelQtLineEdit::undoKeysReachTheApplication_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("undo") << int(Qt::Key_Z);
    QTest::newRow("redo") << int(Qt::Key_Y);
}

void tst_zelQtLineEdit::undoKeysReachTheApplication()
{
    QFETCH(int, key);
    Fixture fixture;
    QAction undo;
    undo.setShortcut(QKeySequence(int(Qt::CTRL) + key));
    fixture.mPage.addAction(&undo);
    int triggered = 0;
    connect(&undo, &QAction::triggered, this, [&triggered] { ++triggered; });
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, Qt::Key_A);
    QTest::keyClick(&fixture.mField, Qt::Key(key), Qt::ControlModifier);
    QCOMPARE(triggered, 1);
    QCOMPARE(fixture.mField.text(), QStringLiteral("a"));
}

void tst_zelQtLineEdit::undoKeysAreIgnoredByTheField_data()
{
    undoKeysReachTheApplication_data();
}

void tst_zelQtLineEdit::undoKeysAreIgnoredByTheField()
{
    QFETCH(int, key);
    Fixture fixture;
    QVERIFY(fixture.enter());
    QTest::keyClicks(&fixture.mField, QStringLiteral("ab"));
    fixture.mField.undo();
    const QString before = fixture.mField.text();
    QVERIFY(fixture.mField.isUndoAvailable() || fixture.mField.isRedoAvailable());
    fixture.take();
    QKeyEvent event(QEvent::KeyPress, key, Qt::ControlModifier);
    QCoreApplication::sendEvent(&fixture.mField, &event);
    QVERIFY(!event.isAccepted());
    QCOMPARE(fixture.mField.text(), before);
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtLineEdit::undoKeysWithFurtherModifiersStayWithTheField()
{
    Fixture fixture;
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, Qt::Key_A);
    fixture.mField.undo();
    QCOMPARE(fixture.mField.text(), QString());
    QTest::keyClick(&fixture.mField, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(fixture.mField.text(), QStringLiteral("a"));
}

QTEST_MAIN(tst_zelQtLineEdit)
#include "tst_zelQtLineEdit.moc"
