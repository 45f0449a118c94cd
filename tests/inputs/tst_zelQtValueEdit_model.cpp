#include "fieldOnPage.h"
#include "meta.h"
#include "zelQtValueEdit.h"
#include "zelUIMultiVar.h"

#include <QtTest>

// A value edit as a part of a mask: its variable, its state and the data of the module.

class tst_zelQtValueEdit_model : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void setupTakesNameDecimalsAndPolicy();
    void updateBlockingVariableSpeaksAtConfirmationOnly();
    void setupOfValueKindTwoLeavesTheDecimals();
    void stateOfTheElement_data();
    void stateOfTheElement();
    void setDataShowsTheNumberSilently();
    void setDataFollowsTheKindOfTheValue();
    void getDataWritesTheNumberInTheDefaultUnit();
    void shownRoundingNeverReachesTheData();
};

using Fixture = FieldOnPage<ZelQtValueEdit>;

static void type(ZelQtValueEdit &field, const QString &text)
{
    field.selectAll();
    QTest::keyClicks(&field, text);
}

void tst_zelQtValueEdit_model::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_zelQtValueEdit_model::setupTakesNameDecimalsAndPolicy()
{
    ZelUIMultiVar variable(L"F", ZelDimensions::Newton, 2);
    variable.mDecimals = 2;
    AttrMap attributes;
    ZelQtValueEdit field;
    field.setup(&variable, attributes, 1);
    QCOMPARE(field.objectName(), QStringLiteral("F_2"));
    QCOMPARE(field.whatsThis(), QStringLiteral("F"));
    QCOMPARE(field.defaultDecimals(), 2);
    QCOMPARE(field.defaultUnitString(), QStringLiteral("N"));
    QCOMPARE(field.sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed));
}

void tst_zelQtValueEdit_model::updateBlockingVariableSpeaksAtConfirmationOnly()
{
    ZelUIMultiVar variable(L"F", ZelDimensions::Newton);
    variable.mUpdateBlocking = true;
    AttrMap attributes;
    Fixture fixture;
    fixture.mField.setup(&variable, attributes, 0);
    QVERIFY(fixture.enter());
    type(fixture.mField, QStringLiteral("12"));
    QCOMPARE(fixture.take(), QStringList());
    QVERIFY(fixture.leave());
    QCOMPARE(fixture.take(), confirmedEvents);
    QCOMPARE(fixture.mField.mValue, 12.0);
}

void tst_zelQtValueEdit_model::setupOfValueKindTwoLeavesTheDecimals()
{
    ZelUIMultiVar variable(L"z");
    variable.mDecimals = 2;
    variable.mValueKind = 2;
    AttrMap attributes;
    ZelQtValueEdit field;
    field.setup(&variable, attributes, 0);
    QCOMPARE(field.defaultDecimals(), 4);
}

void tst_zelQtValueEdit_model::stateOfTheElement_data()
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

void tst_zelQtValueEdit_model::stateOfTheElement()
{
    QFETCH(bool, enabled);
    QFETCH(bool, visible);
    QFETCH(bool, readOnly);
    QFETCH(bool, shownReadOnly);
    QWidget window;
    ZelQtValueEdit field(&window);
    field.mEnabled = enabled;
    field.mVisible = visible;
    field.mReadOnly = readOnly;
    field.updateState(nullptr, 1);
    QCOMPARE(field.isEnabled(), enabled);
    QCOMPARE(!field.isHidden(), visible);
    QCOMPARE(field.isReadOnly(), shownReadOnly);
}

void tst_zelQtValueEdit_model::setDataShowsTheNumberSilently()
{
    Meta meta;
    auto *variable = meta.add<ZelUIMultiVar>(L"d", ZelDimensions::Millimetre);
    meta.setReal(*variable, 1, 0, 12.5, ZelOrigin::Load);
    meta.setCurrentUnit(*variable, 1, ZelDimensions::Centimetre);
    AttrMap attributes;
    Fixture fixture;
    fixture.mField.setup(variable, attributes, 0);
    fixture.mField.setData(&meta, 1);
    QCOMPARE(fixture.mField.text(), QStringLiteral("1.2500"));
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtValueEdit_model::setDataFollowsTheKindOfTheValue()
{
    ZelQtValueEdit field;
    field.mDecimals = 2;
    for (const int kind : {1, 2, -1}) {
        field.mValueKind = kind;
        field.setData(nullptr, 1);
        QVERIFY(field.isOfTypeInteger());
        QCOMPARE(field.defaultDecimals(), 0);
    }
    field.mValueKind = 0;
    field.setData(nullptr, 1);
    QVERIFY(!field.isOfTypeInteger());
    QCOMPARE(field.defaultDecimals(), 2);
}

void tst_zelQtValueEdit_model::getDataWritesTheNumberInTheDefaultUnit()
{
    Meta meta;
    auto *variable = meta.add<ZelUIMultiVar>(L"d", ZelDimensions::Millimetre);
    meta.setCurrentUnit(*variable, 1, ZelDimensions::Centimetre);
    AttrMap attributes;
    Fixture fixture;
    fixture.mField.setup(variable, attributes, 0);
    fixture.mField.setData(&meta, 1);
    QVERIFY(fixture.enter());
    type(fixture.mField, QStringLiteral("2.5"));
    QCOMPARE(meta.real(*variable, 1), 0.0); // the field itself never writes
    fixture.mField.getData(&meta, 1);
    QCOMPARE(meta.real(*variable, 1), 25.0);
}

void tst_zelQtValueEdit_model::shownRoundingNeverReachesTheData()
{
    Meta meta;
    auto *variable = meta.add<ZelUIMultiVar>(L"d", ZelDimensions::Millimetre);
    meta.setReal(*variable, 1, 0, 1.23456789, ZelOrigin::Load);
    AttrMap attributes;
    ZelQtValueEdit field;
    field.setup(variable, attributes, 0);
    field.setData(&meta, 1);
    field.getData(&meta, 1);
    QVERIFY(meta.real(*variable, 1) == 1.23456789);
}

QTEST_MAIN(tst_zelQtValueEdit_model)
#include "tst_zelQtValueEdit_model.moc"
