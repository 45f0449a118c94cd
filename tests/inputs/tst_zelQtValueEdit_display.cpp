#include "fieldOnPage.h"
#include "meta.h"
#include "zelQtValueEdit.h"
#include "zelUIMultiVar.h"
#include "zelUIVarChoice.h"

#include <QtTest>

// What a value edit shows: the text of the number, and its colour.

using Fixture = FieldOnPage<ZelQtValueEdit>;

Q_DECLARE_METATYPE(std::function<void(ZelQtValueEdit &)>)

class tst_zelQtValueEdit_display : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    // text
    void numberIsCutInTheTextOnly();
    void decimals_data();
    void decimals();
    void integerModeRoundsTheTextAndTruncatesTheNumberOnPurpose_data();
    void integerModeRoundsTheTextAndTruncatesTheNumberOnPurpose();
    void scientificNotationShowsAnExponent();
    void scientificNotationTakesTheDecimalsOfTheProcessOnPurpose();
    void newDecimalsEndScientificNotation();
    void integerFieldKnowsNeitherDecimalsNorNotation();
    void propertiesOfTheNumberForm();
    void theSameTextAgainEndsWhatTheUserDid_data();
    void theSameTextAgainEndsWhatTheUserDid();
    void theSameTextAgainTellsNobody();

    // disabled
    void disabledFieldShowsNothing();
    void overrideShowsTheNumberOfADisabledField();
    void fieldInADisabledParentIsEmptyOnPurpose();
    void inactiveFieldShowsItsNumberAtTheNextUpdate();
    void enabledFieldFillsAtTheNextSetData();

    // colour
    void lowPriorityIsGray();
    void defaultColorIsThatOfANewLineEdit();
    void messageState_data();
    void messageState();
    void messageColorStaysUntilTheNextCall();
    void setDataTouchesTheColorWithAPriorityNameOnly();
    void setPriorityTakesTheColorFromTheChoice();
    void theSameColorAgainIsNoNewPalette();
    void aColorOnceSetStaysWhenThePaletteOfTheApplicationChanges();

    void doubleClickSelectsTheWholeNumber();
    void doubleClickOfOtherButtonsDoesNothing();
};

static QColor color(const ZelQtValueEdit &field)
{
    return field.palette().color(QPalette::Active, QPalette::Text);
}

void tst_zelQtValueEdit_display::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_zelQtValueEdit_display::numberIsCutInTheTextOnly()
{
    ZelQtValueEdit field;
    field.setWert(1.234567, QString());
    QCOMPARE(field.text(), QStringLiteral("1.2346"));
    double value = 0;
    field.getWert(value, QString());
    QCOMPARE(value, 1.234567);
}

void tst_zelQtValueEdit_display::decimals_data()
{
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << 0 << 2.6 << "3";
    QTest::newRow("two") << 2 << 2.0 << "2.00";
    QTest::newRow("more than the default") << 6 << 0.1234567 << "0.123457";
    QTest::newRow("negative number") << 1 << -2.26 << "-2.3";
    QTest::newRow("large number keeps its form") << 1 << 123456789.0 << "123456789.0";
}

void tst_zelQtValueEdit_display::decimals()
{
    QFETCH(int, decimals);
    QFETCH(double, value);
    QFETCH(QString, text);
    ZelQtValueEdit field;
    field.setDefaultDecimals(decimals);
    QCOMPARE(field.defaultDecimals(), decimals);
    field.setWert(value, QString());
    QCOMPARE(field.text(), text);
}

void tst_zelQtValueEdit_display::integerModeRoundsTheTextAndTruncatesTheNumberOnPurpose_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");
    QTest::newRow("half away from zero") << 2.5 << "3" << 2;
    QTest::newRow("below half") << 2.4 << "2" << 2;
    QTest::newRow("negative half") << -2.5 << "-3" << -2;
    QTest::newRow("no negative zero") << -0.2 << "0" << 0;
    QTest::newRow("beyond int") << 3e9 << "3000000000" << 2147483647;
}

void tst_zelQtValueEdit_display::integerModeRoundsTheTextAndTruncatesTheNumberOnPurpose()
{
    QFETCH(double, value);
    QFETCH(QString, text);
    ZelQtValueEdit field;
    field.setTypeToInteger(true);
    field.setWert(value, QString());
    QCOMPARE(field.text(), text);
    int number = -1;
    field.getWert(number, QString());
    QTEST(number, "number");
}

void tst_zelQtValueEdit_display::scientificNotationShowsAnExponent()
{
    ZelQtValueEdit field;
    QVERIFY(!field.isScientificNotation());
    field.setScientificNotation(true);
    QVERIFY(field.isScientificNotation());
    field.setWert(12345.678, QString());
    QCOMPARE(field.text(), QStringLiteral("1.2346e+04"));
    field.setScientificNotation(false);
    field.updateWert();
    QCOMPARE(field.text(), QStringLiteral("12345.6780"));
}

void tst_zelQtValueEdit_display::scientificNotationTakesTheDecimalsOfTheProcessOnPurpose()
{
    ZelQtValueEdit field;
    field.setDefaultDecimals(1);
    field.setScientificNotation(true);
    QCOMPARE(field.defaultDecimals(), int(ZelQtValueEdit::mDefaultDecimals));
    QCOMPARE(int(ZelQtValueEdit::mDefaultDecimals), 4);
}

void tst_zelQtValueEdit_display::newDecimalsEndScientificNotation()
{
    ZelQtValueEdit field;
    field.setScientificNotation(true);
    field.setDefaultDecimals(2);
    QVERIFY(!field.isScientificNotation());
    QCOMPARE(field.defaultDecimals(), 2);
}

void tst_zelQtValueEdit_display::integerFieldKnowsNeitherDecimalsNorNotation()
{
    ZelQtValueEdit field;
    field.setTypeToInteger(true);
    field.setDefaultDecimals(2);
    field.setScientificNotation(true);
    QVERIFY(field.isOfTypeInteger());
    QCOMPARE(field.defaultDecimals(), 0);
    QVERIFY(!field.isScientificNotation());
}

void tst_zelQtValueEdit_display::propertiesOfTheNumberForm()
{
    ZelQtValueEdit field;
    QCOMPARE(field.property("integer").toBool(), false);
    QCOMPARE(field.property("decimals").toInt(), 4);
    QVERIFY(field.setProperty("decimals", 2));
    QCOMPARE(field.defaultDecimals(), 2);
    QVERIFY(field.setProperty("integer", true));
    QVERIFY(field.isOfTypeInteger());
    QVERIFY(field.setProperty("integer", false));
    // The way back takes the decimals of the element, which a plain field never changed.
    QCOMPARE(field.property("decimals").toInt(), 4);
}

void tst_zelQtValueEdit_display::theSameTextAgainEndsWhatTheUserDid_data()
{
    using Act = std::function<void(ZelQtValueEdit &)>;
    QTest::addColumn<Act>("act");
    QTest::newRow("nothing") << Act([](ZelQtValueEdit &) {});
    QTest::newRow("selection") << Act([](ZelQtValueEdit &field) { field.selectAll(); });
    QTest::newRow("cursor") << Act([](ZelQtValueEdit &field) { field.setCursorPosition(2); });
    QTest::newRow("typed") << Act([](ZelQtValueEdit &field) {
        QTest::keyClick(&field, Qt::Key_Backspace);
        QTest::keyClick(&field, Qt::Key_0);
    });
    QTest::newRow("undone") << Act([](ZelQtValueEdit &field) {
        QTest::keyClick(&field, Qt::Key_Backspace);
        field.undo();
    });
    QTest::newRow("modified") << Act([](ZelQtValueEdit &field) { field.setModified(true); });
}

void tst_zelQtValueEdit_display::theSameTextAgainEndsWhatTheUserDid()
{
    QFETCH(std::function<void(ZelQtValueEdit &)>, act);
    for (const bool focused : {false, true}) {
        Fixture fixture;
        ZelQtValueEdit &field = fixture.mField;
        if (focused)
            QVERIFY(fixture.enter());
        field.setWert(2.5, QString());
        act(field);
        QCOMPARE(field.text(), QStringLiteral("2.5000"));
        field.setWert(2.5, QString());
        QCOMPARE(field.text(), QStringLiteral("2.5000"));
        QVERIFY(!field.hasSelectedText());
        QVERIFY(!field.isModified());
        QVERIFY(!field.isUndoAvailable());
        QVERIFY(!field.isRedoAvailable());
        QCOMPARE(field.cursorPosition(), 6);
    }
}

void tst_zelQtValueEdit_display::theSameTextAgainTellsNobody()
{
    ZelQtValueEdit field;
    field.setWert(2.5, QString());
    const QSignalSpy changed(&field, &QLineEdit::textChanged);
    const QSignalSpy moved(&field, &QLineEdit::cursorPositionChanged);
    field.setWert(2.5, QString());
    QCOMPARE(changed.count(), 0);
    QCOMPARE(moved.count(), 0);
    field.setWert(2.6, QString());
    QCOMPARE(changed.count(), 1);
}

void tst_zelQtValueEdit_display::disabledFieldShowsNothing()
{
    ZelQtValueEdit field;
    field.setWert(5, QString());
    field.setEnabled(false);
    field.updateWert();
    QCOMPARE(field.text(), QString());
    field.setWert(6, QString());
    QCOMPARE(field.text(), QString());
    double value = 0;
    field.getWert(value, QString());
    QCOMPARE(value, 6.0);
}

void tst_zelQtValueEdit_display::overrideShowsTheNumberOfADisabledField()
{
    ZelQtValueEdit field;
    field.setEnabledOverride(true);
    field.setEnabled(false);
    field.setWert(5, QString());
    QCOMPARE(field.text(), QStringLiteral("5.0000"));
    field.setEnabledOverride(false);
    field.updateWert();
    QCOMPARE(field.text(), QString());
}

void tst_zelQtValueEdit_display::fieldInADisabledParentIsEmptyOnPurpose()
{
    QWidget parent;
    ZelQtValueEdit field(&parent);
    parent.setEnabled(false);
    field.setWert(5, QString());
    QCOMPARE(field.text(), QString());
}

void tst_zelQtValueEdit_display::inactiveFieldShowsItsNumberAtTheNextUpdate()
{
    ZelQtValueEdit field;
    field.setWert(5, QString());
    field.setActive(false);
    field.updateWert();
    QCOMPARE(field.text(), QString());
    field.setActive(true);
    QCOMPARE(field.text(), QString()); // the old text does not come back by itself
    field.updateWert();
    QCOMPARE(field.text(), QStringLiteral("5.0000"));
}

void tst_zelQtValueEdit_display::enabledFieldFillsAtTheNextSetData()
{
    ZelQtValueEdit field;
    field.mValue = 5;
    field.mEnabled = false;
    field.updateState(nullptr, 1);
    field.setData(nullptr, 1);
    QCOMPARE(field.text(), QString());
    field.mEnabled = true;
    field.updateState(nullptr, 1);
    field.setData(nullptr, 1);
    QCOMPARE(field.text(), QStringLiteral("5.0000"));
}

void tst_zelQtValueEdit_display::lowPriorityIsGray()
{
    ZelQtValueEdit field;
    QVERIFY(!field.hasLowPriority());
    field.setLowPriority(true);
    QVERIFY(field.hasLowPriority());
    QCOMPARE(color(field), QColor(Qt::gray));
    field.setLowPriority(false);
    QCOMPARE(color(field), QLineEdit().palette().color(QPalette::Text));
}

void tst_zelQtValueEdit_display::defaultColorIsThatOfANewLineEdit()
{
    const QPalette before = QApplication::palette();
    QPalette colors = before;
    colors.setColor(QPalette::Text, Qt::blue);
    QApplication::setPalette(colors);
    ZelQtValueEdit field;
    field.setLowPriority(true);
    field.setLowPriority(false);
    const QColor shown = color(field);
    const QColor plain = QLineEdit().palette().color(QPalette::Text);
    QApplication::setPalette(before);
    QCOMPARE(plain, QColor(Qt::blue));
    QCOMPARE(shown, plain);
}

void tst_zelQtValueEdit_display::messageState_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("low");
    QTest::addColumn<QColor>("expected");
    const QColor plain = QLineEdit().palette().color(QPalette::Text);
    QTest::newRow("error") << 1 << false << QColor(Qt::red);
    QTest::newRow("error of a gray field") << 1 << true << QColor(Qt::red);
    QTest::newRow("warning") << 2 << false << QColor(255, 120, 100, 255);
    QTest::newRow("none") << 0 << false << plain;
    QTest::newRow("none of a gray field") << 0 << true << QColor(Qt::gray);
    QTest::newRow("unknown state") << 3 << false << plain;
}

void tst_zelQtValueEdit_display::messageState()
{
    QFETCH(int, state);
    QFETCH(bool, low);
    ZelQtValueEdit field;
    field.setLowPriority(low);
    field.setMessageState(state == 1 ? 2 : 1);
    field.setMessageState(state);
    QTEST(color(field), "expected");
}

void tst_zelQtValueEdit_display::messageColorStaysUntilTheNextCall()
{
    FieldOnPage<ZelQtValueEdit> fixture;
    fixture.mField.setMessageState(1);
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, Qt::Key_1);
    fixture.mField.setWert(5, QString());
    fixture.mField.setData(nullptr, 1);
    QCOMPARE(color(fixture.mField), QColor(Qt::red));
}

void tst_zelQtValueEdit_display::setDataTouchesTheColorWithAPriorityNameOnly()
{
    ZelQtValueEdit field;
    field.mLowPriority = true;
    field.setData(nullptr, 1);
    QVERIFY(color(field) != QColor(Qt::gray));
    field.mPriorityName = L"range";
    field.setData(nullptr, 1);
    QCOMPARE(color(field), QColor(Qt::gray));
}

void tst_zelQtValueEdit_display::setPriorityTakesTheColorFromTheChoice()
{
    Meta meta;
    auto *length = meta.add<ZelUIMultiVar>(L"L", ZelDimensions::Millimetre);
    auto *force = meta.add<ZelUIMultiVar>(L"F", ZelDimensions::Newton);
    auto *choice = meta.add<ZelUIVarChoice>(L"range");
    choice->mBy = ZelUIVarChoice::Typing;
    choice->mEntries.resize(2);
    choice->mEntries[0].mId = 1;
    choice->mEntries[1].mId = 2;
    choice->mAlternatives = {{length}, {force}};
    AttrMap attributes;
    ZelQtValueEdit field;
    field.setup(force, attributes, 0);
    meta.pick(*choice, 1, 2, ZelOrigin::User);
    field.setData(&meta, 1);
    QVERIFY(!field.hasLowPriority());
    meta.pick(*choice, 1, 1, ZelOrigin::User);
    field.setPriority(&meta);
    QVERIFY(field.hasLowPriority());
    QCOMPARE(color(field), QColor(Qt::gray));
    meta.pick(*choice, 1, 2, ZelOrigin::User);
    field.setPriority(&meta);
    QVERIFY(color(field) != QColor(Qt::gray));
}

// A new palette goes through the whole application, and refreshes set the state of every field.
void tst_zelQtValueEdit_display::theSameColorAgainIsNoNewPalette()
{
    class Counter : public ZelQtValueEdit
    {
    public:
        int mPalettes = 0;

    protected:
        void changeEvent(QEvent *event) override
        {
            mPalettes += event->type() == QEvent::PaletteChange ? 1 : 0;
            ZelQtValueEdit::changeEvent(event);
        }
    };
    Counter field;
    field.setMessageState(1);
    const int afterFirst = field.mPalettes;
    QVERIFY(afterFirst > 0);
    field.setMessageState(1);
    QCOMPARE(field.mPalettes, afterFirst);
    field.setMessageState(2);
    QVERIFY(field.mPalettes > afterFirst);
}

void tst_zelQtValueEdit_display::aColorOnceSetStaysWhenThePaletteOfTheApplicationChanges()
{
    const QPalette former = QApplication::palette();
    const QColor own = former.color(QPalette::Text);
    ZelQtValueEdit untouched;
    ZelQtValueEdit touched;
    touched.setMessageState(0); // the default colour, but from now on the field's own
    QPalette other = former;
    other.setColor(QPalette::Text, Qt::blue);
    QApplication::setPalette(other);
    const QColor colorOfUntouched = color(untouched);
    const QColor colorOfTouched = color(touched);
    QApplication::setPalette(former);
    QCOMPARE(colorOfUntouched, QColor(Qt::blue));
    QCOMPARE(colorOfTouched, own);
}

void tst_zelQtValueEdit_display::doubleClickSelectsTheWholeNumber()
{
    FieldOnPage<ZelQtValueEdit> fixture;
    fixture.mField.resize(fixture.mField.sizeHint());
    fixture.mField.setWert(-12.5, QString());
    QVERIFY(fixture.enter());
    QTest::mouseDClick(&fixture.mField, Qt::LeftButton);
    QCOMPARE(fixture.mField.selectedText(), QStringLiteral("-12.5000"));
}

void tst_zelQtValueEdit_display::doubleClickOfOtherButtonsDoesNothing()
{
    FieldOnPage<ZelQtValueEdit> fixture;
    fixture.mField.resize(fixture.mField.sizeHint());
    fixture.mField.setWert(-12.5, QString());
    QVERIFY(fixture.enter());
    fixture.mField.deselect();
    QMouseEvent event(QEvent::MouseButtonDblClick, QPointF(5, 5), Qt::RightButton, Qt::RightButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&fixture.mField, &event);
    QCOMPARE(fixture.mField.selectedText(), QString());
}

QTEST_MAIN(tst_zelQtValueEdit_display)
#include "tst_zelQtValueEdit_display.moc"
