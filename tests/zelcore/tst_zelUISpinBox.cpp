#include "zelUIMultiVar.h"
#include "zelUISpinBox.h"

#include <QtTest>

namespace {

class Box : public ZelUISpinBox
{
public:
    using ZelUISpinBox::setup;
    void setRange(double bottom, double top, bool inCurrentUnit) override
    {
        ZelUISpinBox::setRange(bottom, top, inCurrentUnit);
        mCalls << QString("range %1 %2").arg(bottom).arg(top);
    }
    void setStep(double step) override
    {
        ZelUISpinBox::setStep(step);
        mCalls << QString("step %1").arg(step);
    }
    QStringList mCalls;
};

} // namespace

class tst_zelUISpinBox : public QObject
{
    Q_OBJECT
private slots:
    void setupSetsRangeAndStep_data();
    void setupSetsRangeAndStep();
};

void tst_zelUISpinBox::setupSetsRangeAndStep_data()
{
    QTest::addColumn<bool>("hasBottom");
    QTest::addColumn<bool>("hasTop");
    QTest::addColumn<QString>("range");
    QTest::newRow("both") << true << true << "range 2 8";
    QTest::newRow("bottom") << true << false << "range 2 999999";
    QTest::newRow("top") << false << true << "range -999999 8";
    QTest::newRow("none") << false << false << "range -999999 999999";
}

void tst_zelUISpinBox::setupSetsRangeAndStep()
{
    QFETCH(bool, hasBottom);
    QFETCH(bool, hasTop);
    QFETCH(QString, range);
    ZelUIMultiVar variable(L"z");
    variable.mHasBottom = hasBottom;
    variable.mHasTop = hasTop;
    variable.mBottom = 2;
    variable.mTop = 8;
    AttrMap attributes;
    Box box;
    box.setup(&variable, attributes, 0, 0.5);
    QCOMPARE(box.mCalls, QStringList({range, "step 0.5"}));
    QCOMPARE(box.mStep, 0.5);
}

QTEST_GUILESS_MAIN(tst_zelUISpinBox)
#include "tst_zelUISpinBox.moc"
