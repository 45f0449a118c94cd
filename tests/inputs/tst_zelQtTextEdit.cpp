#include "zelQtTextEdit.h"

#include "fieldOnPage.h"
#include "meta.h"
#include "zelUIVarKinds.h"

#include <QtTest>

class tst_zelQtTextEdit : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void setupNamesTheField();
    void setupTakesAFunctionTextToo();
    void updateBlockingVariableSpeaksAtConfirmationOnly_data();
    void updateBlockingVariableSpeaksAtConfirmationOnly();
    void setupOfAnotherVariableIsNoWayBackOnPurpose();
    void stateOfTheElement_data();
    void stateOfTheElement();
    void setDataShowsTheTextOfTheModelSilently();
    void disabledFieldShowsNeitherTextNorPlaceholder();
    void placeholderFollowsTheElement();
    void getDataWritesWhatTheUserTyped();
    void disabledFieldDoesNotWipeTheData();
    void fieldWithoutVariableKeepsItsText();
    void takesATextAtConstruction();
};

using Fixture = FieldOnPage<ZelQtTextEdit>;

void tst_zelQtTextEdit::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_zelQtTextEdit::setupNamesTheField()
{
    ZelUIVarString variable(L"remark");
    variable.mHelpCode = 12;
    AttrMap attributes;
    ZelQtTextEdit field;
    field.setup(&variable, attributes, 0);
    QCOMPARE(field.objectName(), QStringLiteral("remark"));
    QCOMPARE(field.whatsThis(), QStringLiteral("remark"));
    QCOMPARE(field.getAuthorItCode(), 12);
    QCOMPARE(field.sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed));
}

void tst_zelQtTextEdit::setupTakesAFunctionTextToo()
{
    ZelUIVarFuncText variable(L"result");
    AttrMap attributes;
    ZelQtTextEdit field;
    field.setup(&variable, attributes, 0);
    QCOMPARE(field.objectName(), QStringLiteral("result"));
    QCOMPARE(field.sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed));
}

void tst_zelQtTextEdit::updateBlockingVariableSpeaksAtConfirmationOnly_data()
{
    QTest::addColumn<bool>("blocking");
    QTest::addColumn<bool>("function");
    QTest::newRow("text") << false << false;
    QTest::newRow("blocking text") << true << false;
    QTest::newRow("function text") << false << true;
    QTest::newRow("blocking function text") << true << true;
}

void tst_zelQtTextEdit::updateBlockingVariableSpeaksAtConfirmationOnly()
{
    QFETCH(bool, blocking);
    QFETCH(bool, function);
    ZelUIVarString string(L"s");
    ZelUIVarFuncText functionText(L"f");
    string.mUpdateBlocking = functionText.mUpdateBlocking = blocking;
    AttrMap attributes;
    Fixture fixture;
    if (function)
        fixture.mField.setup(&functionText, attributes, 0);
    else
        fixture.mField.setup(&string, attributes, 0);
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, Qt::Key_A);
    QCOMPARE(fixture.take(), blocking ? QStringList() : changedEvents);
    QVERIFY(fixture.leave());
    QCOMPARE(fixture.take(), confirmedEvents);
}

void tst_zelQtTextEdit::setupOfAnotherVariableIsNoWayBackOnPurpose()
{
    ZelUIVarString blocking(L"s");
    blocking.mUpdateBlocking = true;
    ZelUIVarString open(L"t");
    AttrMap attributes;
    Fixture fixture;
    fixture.mField.setup(&blocking, attributes, 0);
    fixture.mField.setup(&open, attributes, 0);
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, Qt::Key_A);
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtTextEdit::stateOfTheElement_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("visible");
    QTest::addColumn<bool>("readOnly");
    QTest::addColumn<bool>("shownReadOnly");
    QTest::newRow("open") << true << true << false << false;
    QTest::newRow("read-only") << true << true << true << true;
    QTest::newRow("hidden") << true << false << false << false;
    QTest::newRow("disabled") << false << true << false << false;
    QTest::newRow("read-only counts while enabled only") << false << true << true << false;
}

void tst_zelQtTextEdit::stateOfTheElement()
{
    QFETCH(bool, enabled);
    QFETCH(bool, visible);
    QFETCH(bool, readOnly);
    QFETCH(bool, shownReadOnly);
    QWidget window;
    ZelQtTextEdit field(&window);
    field.mEnabled = enabled;
    field.mVisible = visible;
    field.mReadOnly = readOnly;
    field.updateState(nullptr, 1);
    QCOMPARE(field.isEnabled(), enabled);
    QCOMPARE(!field.isHidden(), visible);
    QCOMPARE(field.isReadOnly(), shownReadOnly);
}

void tst_zelQtTextEdit::setDataShowsTheTextOfTheModelSilently()
{
    Meta meta;
    auto *variable = meta.add<ZelUIVarString>(L"remark");
    meta.setText(*variable, 1, L"Öl", ZelOrigin::Load);
    AttrMap attributes;
    Fixture fixture;
    fixture.mField.setup(variable, attributes, 0);
    fixture.mField.setData(&meta, 1);
    QCOMPARE(fixture.mField.text(), QStringLiteral("Öl"));
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtTextEdit::disabledFieldShowsNeitherTextNorPlaceholder()
{
    Meta meta;
    auto *variable = meta.add<ZelUIVarString>(L"remark");
    variable->mPlaceholder.setText(L"Bemerkung");
    meta.setText(*variable, 1, L"abc", ZelOrigin::Load);
    AttrMap attributes;
    ZelQtTextEdit field;
    field.setup(variable, attributes, 0);
    field.setData(&meta, 1);
    QCOMPARE(field.text(), QStringLiteral("abc"));
    QCOMPARE(field.placeholderText(), QStringLiteral("Bemerkung"));

    field.mEnabled = false;
    field.setData(&meta, 1);
    QCOMPARE(field.text(), QString());
    QCOMPARE(field.placeholderText(), QString());
    QVERIFY(field.mText == L"abc");
}

void tst_zelQtTextEdit::placeholderFollowsTheElement()
{
    ZelUIVarString variable(L"remark");
    variable.mPlaceholder.setText(L"Bemerkung");
    AttrMap attributes;
    ZelQtTextEdit field;
    field.setup(&variable, attributes, 0);
    field.retranslate();
    QCOMPARE(field.placeholderText(), QStringLiteral("Bemerkung"));
    field.mEnabled = false;
    field.retranslate();
    QCOMPARE(field.placeholderText(), QString());
}

void tst_zelQtTextEdit::getDataWritesWhatTheUserTyped()
{
    Meta meta;
    auto *variable = meta.add<ZelUIVarString>(L"remark");
    AttrMap attributes;
    Fixture fixture;
    fixture.mField.setup(variable, attributes, 0);
    fixture.mField.setData(&meta, 1);
    QVERIFY(fixture.enter());
    QTest::keyClicks(&fixture.mField, QStringLiteral("abc"));
    QVERIFY(meta.text(*variable, 1) == L""); // the field itself never writes
    fixture.mField.getData(&meta, 1);
    QVERIFY(meta.text(*variable, 1) == L"abc");
}

void tst_zelQtTextEdit::disabledFieldDoesNotWipeTheData()
{
    Meta meta;
    auto *variable = meta.add<ZelUIVarString>(L"remark");
    meta.setText(*variable, 1, L"abc", ZelOrigin::Load);
    AttrMap attributes;
    ZelQtTextEdit field;
    field.setup(variable, attributes, 0);
    field.mEnabled = false;
    field.setData(&meta, 1);
    field.getData(&meta, 1);
    QVERIFY(meta.text(*variable, 1) == L"abc");
}

void tst_zelQtTextEdit::fieldWithoutVariableKeepsItsText()
{
    ZelQtTextEdit field;
    field.mText = L"abc";
    field.setData(nullptr, 1);
    QCOMPARE(field.text(), QStringLiteral("abc"));
    field.setText(QStringLiteral("d"));
    field.getData(nullptr, 1);
    QVERIFY(field.mText == L"d");
}

void tst_zelQtTextEdit::takesATextAtConstruction()
{
    const ZelQtTextEdit field(QStringLiteral("abc"));
    QCOMPARE(field.text(), QStringLiteral("abc"));
}

QTEST_MAIN(tst_zelQtTextEdit)
#include "tst_zelQtTextEdit.moc"
