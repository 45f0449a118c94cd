#include "mask.h"
#include "meta.h"
#include "tarvexModule.h"
#include "zelUIMultiVar.h"
#include "zelUIStdElement.h"
#include "zelUIUnitLabel.h"
#include "zelUIValueEdit.h"

#include <QtTest>

namespace {

// Writes down what the unit label tells it.
class Field : public ZelUIValueEdit
{
public:
    using ZelUIValueEdit::setup;
    void setCurrentUnit(ZelDimensions::Unit unit) override
    {
        ZelUIValueEdit::setCurrentUnit(unit);
        mCalls << "unit " + QString::fromStdWString(ZelDimensions::getString(unit));
    }
    void setRange(double bottom, double top, bool inCurrentUnit) override
    {
        ZelUIValueEdit::setRange(bottom, top, inCurrentUnit);
        mCalls << QString("range %1 %2 %3").arg(bottom).arg(top).arg(inCurrentUnit);
    }
    void setBottom(double bottom) override
    {
        ZelUIValueEdit::setBottom(bottom);
        mCalls << QString("bottom %1").arg(bottom);
    }
    void setTop(double top) override
    {
        ZelUIValueEdit::setTop(top);
        mCalls << QString("top %1").arg(top);
    }
    QStringList mCalls;
};

struct Line
{
    Line()
    {
        AttrMap attributes;
        mFirst.setup(mA, attributes, 0);
        mSecond.setup(mB, attributes, 0);
        mUnit.setup(mA, attributes);
        mElement.mInputs = {&mFirst, &mSecond};
        mElement.mUnitLabel = &mUnit;
        mElement.modelAdoptParts();
        mElement.setData(&mMeta, 5);
    }
    Meta mMeta;
    ZelUIMultiVar *mA = mMeta.add<ZelUIMultiVar>(L"a", ZelDimensions::Millimetre);
    ZelUIMultiVar *mB = mMeta.add<ZelUIMultiVar>(L"b", ZelDimensions::Millimetre);
    Field mFirst;
    Field mSecond;
    ZelUIUnitLabel mUnit;
    ZelUIStdElement mElement;
};

} // namespace

class tst_zelUIUnitLabel : public QObject
{
    Q_OBJECT
private slots:
    void cleanup() { TarvexModule::Setup = nullptr; }

    void outsideAnElementEveryUnitIsTaken();
    void unknownUnitIsRefused();
    void unitsOfTheListAreThoseOfTheCurrentDimension();
    void dynamicUnitShowsItsText();
    void inAnElementAnotherDimensionIsRefused();
    void allInputsHearTheUnitAndThenTheirLimits();
    void unitIsRememberedForAllVariablesOfTheLine();
    void defaultUnitFollowsOnlyWhenAsked();
    void elementBringsTheLabelInLineWithMeta();
    void elementWithTwoUnitsInMetaShowsOne();
    void unitSystemChangesTheLine();
    void keepingTheDefaultGivesTheDefaultUnit();
};

void tst_zelUIUnitLabel::outsideAnElementEveryUnitIsTaken()
{
    ZelUIUnitLabel label;
    QVERIFY(label.setUnit(ZelDimensions::Millimetre, false));
    QCOMPARE(label.mDefaultUnit, ZelDimensions::Millimetre);
    QVERIFY(label.setUnit(ZelDimensions::Inch, false));
    QCOMPARE(label.mDefaultUnit, ZelDimensions::Millimetre);
    QCOMPARE(label.mCurrentUnit, ZelDimensions::Inch);
    QVERIFY(label.setUnit(ZelDimensions::Newton, false));
    QCOMPARE(label.mDefaultUnit, ZelDimensions::Newton);
    QCOMPARE(toText(label.getUnitString()), QString("N"));
}

void tst_zelUIUnitLabel::unknownUnitIsRefused()
{
    ZelUIUnitLabel label;
    QVERIFY(label.setUnit(ZelDimensions::NoUnit, false));
    QVERIFY(label.setUnit(ZelDimensions::Millimetre, false));
    QVERIFY(!label.setUnit(ZelDimensions::NoUnit, false));
    QCOMPARE(label.mCurrentUnit, ZelDimensions::Millimetre);
}

void tst_zelUIUnitLabel::unitsOfTheListAreThoseOfTheCurrentDimension()
{
    ZelUIUnitLabel label;
    QVERIFY(label.getUnitStringList().empty());
    label.setUnit(ZelDimensions::Inch, false);
    const auto expected = ZelDimensions::getStringList(ZelDimensions::Length);
    const auto list = label.getUnitStringList();
    QCOMPARE(list.size(), expected.size());
    for (size_t i = 0; i < list.size(); ++i)
        QVERIFY(list[i] == expected[i].c_str());
}

void tst_zelUIUnitLabel::dynamicUnitShowsItsText()
{
    ZelUIUnitLabel label;
    label.mDynamicText = L"Stück";
    QVERIFY(label.getUnitString().empty());
    QVERIFY(label.setUnit(ZelDimensions::DynamicUnit, true));
    QCOMPARE(toText(label.getUnitString()), QString("Stück"));
}

void tst_zelUIUnitLabel::inAnElementAnotherDimensionIsRefused()
{
    Line line;
    QVERIFY(!line.mUnit.setUnit(ZelDimensions::Newton, false));
    QVERIFY(!line.mUnit.setUnit(ZelDimensions::NoUnit, false));
    QCOMPARE(line.mUnit.mCurrentUnit, ZelDimensions::Millimetre);
    QCOMPARE(line.mFirst.mCalls, QStringList());
}

void tst_zelUIUnitLabel::allInputsHearTheUnitAndThenTheirLimits()
{
    Line line;
    line.mFirst.mHasBottom = line.mFirst.mHasTop = true;
    line.mFirst.mBottom = 1;
    line.mFirst.mTop = 9;
    line.mSecond.mHasTop = true;
    line.mSecond.mTop = 3;
    QVERIFY(line.mUnit.setUnit(ZelDimensions::Metre, false));
    QCOMPARE(line.mFirst.mCalls, QStringList({"unit m", "range 1 9 0"}));
    QCOMPARE(line.mSecond.mCalls, QStringList({"unit m", "top 3"}));
    line.mSecond.mCalls.clear();
    line.mSecond.mHasTop = false;
    line.mSecond.mHasBottom = true;
    line.mSecond.mBottom = 2;
    QVERIFY(line.mUnit.setUnit(ZelDimensions::Inch, false));
    QCOMPARE(line.mSecond.mCalls, QStringList({"unit in", "bottom 2"}));
}

void tst_zelUIUnitLabel::unitIsRememberedForAllVariablesOfTheLine()
{
    Line line;
    line.mUnit.setUnit(ZelDimensions::Metre, false);
    QCOMPARE(line.mMeta.currentUnit(*line.mA, 5), ZelDimensions::Metre);
    QCOMPARE(line.mMeta.currentUnit(*line.mB, 5), ZelDimensions::Metre);
    QCOMPARE(line.mMeta.currentUnit(*line.mA, 6), ZelDimensions::Millimetre);
    line.mElement.setData(&line.mMeta, 6);
    QCOMPARE(line.mUnit.mCurrentUnit, ZelDimensions::Millimetre);
    line.mElement.setData(&line.mMeta, 5);
    QCOMPARE(line.mUnit.mCurrentUnit, ZelDimensions::Metre);
}

void tst_zelUIUnitLabel::defaultUnitFollowsOnlyWhenAsked()
{
    Line line;
    line.mUnit.setUnit(ZelDimensions::Metre, false);
    QCOMPARE(line.mUnit.mDefaultUnit, ZelDimensions::Millimetre);
    line.mUnit.setUnit(ZelDimensions::Metre, true);
    QCOMPARE(line.mUnit.mDefaultUnit, ZelDimensions::Metre);
    QCOMPARE(line.mFirst.mDefaultUnit, ZelDimensions::Millimetre);
}

void tst_zelUIUnitLabel::elementBringsTheLabelInLineWithMeta()
{
    Line line;
    line.mMeta.setCurrentUnit(*line.mA, 5, ZelDimensions::Inch);
    line.mMeta.setCurrentUnit(*line.mB, 5, ZelDimensions::Inch);
    line.mElement.setData(&line.mMeta, 5);
    QCOMPARE(line.mUnit.mCurrentUnit, ZelDimensions::Inch);
    QCOMPARE(line.mFirst.mCalls, QStringList({"unit in"}));
    line.mElement.setData(&line.mMeta, 5);
    QCOMPARE(line.mFirst.mCalls.size(), 1);
}

void tst_zelUIUnitLabel::elementWithTwoUnitsInMetaShowsOne()
{
    Line line;
    line.mMeta.setCurrentUnit(*line.mB, 5, ZelDimensions::Inch);
    line.mElement.setData(&line.mMeta, 5);
    QCOMPARE(line.mSecond.mCurrentUnit, ZelDimensions::Millimetre);
    QCOMPARE(line.mMeta.currentUnit(*line.mB, 5), ZelDimensions::Millimetre);
}

void tst_zelUIUnitLabel::unitSystemChangesTheLine()
{
    Line line;
    line.mUnit.setUnit(ZelDimensions::Metre, false);
    TarvexSetup setup{1};
    TarvexModule::Setup = &setup;
    line.mElement.updateUnitSystem(false);
    QCOMPARE(line.mUnit.mCurrentUnit, ZelDimensions::Inch);
    QCOMPARE(line.mSecond.mCurrentUnit, ZelDimensions::Inch);
    QCOMPARE(line.mMeta.currentUnit(*line.mB, 5), ZelDimensions::Inch);
    // What the user chose is forgotten: the line goes on following the unit system.
    setup.mUSCustomaryUnits = 0;
    line.mElement.setData(&line.mMeta, 5);
    QCOMPARE(line.mUnit.mCurrentUnit, ZelDimensions::Millimetre);
}

void tst_zelUIUnitLabel::keepingTheDefaultGivesTheDefaultUnit()
{
    TarvexSetup setup{1};
    TarvexModule::Setup = &setup;
    Line line;
    QCOMPARE(line.mUnit.mCurrentUnit, ZelDimensions::Inch);
    line.mElement.resetUnits(true);
    QCOMPARE(line.mUnit.mCurrentUnit, ZelDimensions::Millimetre);
    QCOMPARE(line.mFirst.mCurrentUnit, ZelDimensions::Millimetre);
    QCOMPARE(line.mMeta.currentUnit(*line.mA, 5), ZelDimensions::Millimetre);
}

QTEST_GUILESS_MAIN(tst_zelUIUnitLabel)
#include "tst_zelUIUnitLabel.moc"
