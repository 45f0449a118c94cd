#include "zelQtSpinBox.h"

#include "meta.h"
#include "recorder.h"
#include "window.h"
#include "zelUIMultiVar.h"

#include <QtTest>

namespace {

const QStringList editWithHost{
    QStringLiteral("host valueChanged"), QStringLiteral("box valueChanged"),
    QStringLiteral("host valueConfirmed"), QStringLiteral("box valueConfirmed")};

// A spin box of a number of teeth in a host, under a model line that gives its state.
struct Mask
{
    Mask()
        : mVariable(mMeta.add<ZelUIMultiVar>(L"z"))
        , mBox(new ZelQtSpinBox(&mPage))
    {
        mVariable->mDecimals = 1;
        mVariable->mHasBottom = true;
        mVariable->mBottom = 5;
        mVariable->mHasTop = true;
        mVariable->mTop = 200;
        mVariable->mInitial[0] = 17;
        mBox->setModelParent(&mLine);
        mPage.mRecorder.recordProtocol(mBox, QStringLiteral("box"));
    }

    void setup(double step = 1)
    {
        mBox->setup(mVariable, mAttributes, 0, step);
        mBox->updateState(&mMeta, 0);
        mBox->setData(&mMeta, 0);
    }

    Meta mMeta;
    ZelUIObject mLine;
    AttrMap mAttributes;
    RecordedPage mPage;
    ZelUIMultiVar *mVariable;
    ZelQtSpinBox *mBox;
};

} // namespace

class tst_zelQtSpinBox : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void valueOfTheConstructor();
    void valueOfTheConstructorIsRoundedBeforeTheDecimalsOnPurpose();
    void setupTakesDecimalsRangeStepAndName();
    void setupIsSilentWhereTheRangeMovesTheNumber();
    void aStepIsOneChangeAndOneConfirmationHostFirst();
    void theWheelStepsToo();
    void everyKeystrokeConfirmsOnPurpose();
    void stepStopsAtTheRangeInSilence();
    void withoutHostItTellsItsOwnListeners();
    void updateBlockingVariableChangesNothingOnPurpose();
    void setWertTellsNothing();
    void setWertKeepsWhatARangeForbidsToShow();
    void setDataTellsNothing();
    void getDataWritesTheNumber();
    void getWertTruncates_data();
    void getWertTruncates();
    void getWertStopsAtTheLimitsOfTheType();
    void disabledChangeLeavesTheConfirmation();
    void disabledConfirmationLeavesTheChange();
    void updateWertBringsBothBackOnPurpose();
    void setRangeReachesTheBox();
    void setRangeTellsNothing();
    void setRangeOfQtLeavesTheModel();
    void bottomAndTopMissTheBoxOnPurpose();
    void setStepReachesTheBox();
    void modelEnablesAndHides();
    void hasNoReadOnlyState();
    void hasTheHeightOfEveryOneLineWidget();
    void standardWidthOffIsPreferred();
    void maximumWidthWinsAndLeavesThePolicy();

private:
    QLocale mLocale;
};

// A box writes its number by the locale that is the default when it is made.
void tst_zelQtSpinBox::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_zelQtSpinBox::cleanupTestCase()
{
    QLocale::setDefault(mLocale);
}

void tst_zelQtSpinBox::valueOfTheConstructor()
{
    const ZelQtSpinBox empty;
    QCOMPARE(empty.value(), 0.0);
    QCOMPARE(empty.mValue, 0.0);
    QCOMPARE(empty.decimals(), 4);
    const ZelQtSpinBox box(nullptr, 12.5);
    QCOMPARE(box.value(), 12.5);
    QCOMPARE(box.mValue, 12.5);
    QCOMPARE(box.decimals(), 4);
}

void tst_zelQtSpinBox::valueOfTheConstructorIsRoundedBeforeTheDecimalsOnPurpose()
{
    const ZelQtSpinBox box(nullptr, 12.3456);
    QCOMPARE(box.mValue, 12.3456);
    QCOMPARE(box.value(), 12.35);
}

void tst_zelQtSpinBox::setupTakesDecimalsRangeStepAndName()
{
    Mask mask;
    mask.setup(0.5);
    QCOMPARE(mask.mBox->decimals(), 1);
    QCOMPARE(mask.mBox->minimum(), 5.0);
    QCOMPARE(mask.mBox->maximum(), 200.0);
    QCOMPARE(mask.mBox->singleStep(), 0.5);
    QCOMPARE(mask.mBox->objectName(), QStringLiteral("z"));
    QCOMPARE(mask.mBox->whatsThis(), QStringLiteral("z"));
    QCOMPARE(mask.mBox->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(mask.mBox->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
}

void tst_zelQtSpinBox::setupIsSilentWhereTheRangeMovesTheNumber()
{
    Mask mask;
    QCOMPARE(mask.mBox->value(), 0.0);
    mask.mBox->setup(mask.mVariable, mask.mAttributes, 0, 1);
    QCOMPARE(mask.mBox->value(), 5.0);
    QCOMPARE(mask.mPage.take(), QStringList());
}

void tst_zelQtSpinBox::aStepIsOneChangeAndOneConfirmationHostFirst()
{
    Mask mask;
    mask.setup();
    QVERIFY(showAndActivate(&mask.mPage));
    QVERIFY(focus(mask.mBox));
    QTest::keyClick(mask.mBox, Qt::Key_Up);
    QCOMPARE(mask.mBox->value(), 18.0);
    QCOMPARE(mask.mPage.take(), editWithHost);
    QTest::keyClick(mask.mBox, Qt::Key_Down);
    QCOMPARE(mask.mBox->value(), 17.0);
    QCOMPARE(mask.mPage.take(), editWithHost);
}

void tst_zelQtSpinBox::theWheelStepsToo()
{
    Mask mask;
    mask.setup();
    QVERIFY(showAndActivate(&mask.mPage));
    QVERIFY(focus(mask.mBox));
    const QPoint pos = mask.mBox->rect().center();
    QWheelEvent event(pos, mask.mBox->mapToGlobal(pos), QPoint(), QPoint(0, 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(mask.mBox, &event);
    QCOMPARE(mask.mBox->value(), 18.0);
    QCOMPARE(mask.mPage.take(), editWithHost);
}

void tst_zelQtSpinBox::everyKeystrokeConfirmsOnPurpose()
{
    Mask mask;
    mask.setup();
    QVERIFY(showAndActivate(&mask.mPage));
    QVERIFY(focus(mask.mBox));
    mask.mBox->selectAll();
    QTest::keyClick(mask.mBox, Qt::Key_8);
    QCOMPARE(mask.mPage.take(), editWithHost);
    QTest::keyClick(mask.mBox, Qt::Key_3);
    QCOMPARE(mask.mPage.take(), editWithHost);
    QCOMPARE(mask.mBox->value(), 83.0);
    mask.mBox->clearFocus();
    QCOMPARE(mask.mPage.take(), QStringList());
}

void tst_zelQtSpinBox::stepStopsAtTheRangeInSilence()
{
    Mask mask;
    mask.setup();
    mask.mBox->setWert(200);
    QVERIFY(showAndActivate(&mask.mPage));
    QVERIFY(focus(mask.mBox));
    QTest::keyClick(mask.mBox, Qt::Key_Up);
    QCOMPARE(mask.mBox->value(), 200.0);
    QCOMPARE(mask.mPage.take(), QStringList());
}

void tst_zelQtSpinBox::withoutHostItTellsItsOwnListeners()
{
    ZelQtSpinBox box;
    EventRecorder recorder;
    recorder.recordProtocol(&box, QStringLiteral("box"));
    QTest::keyClick(&box, Qt::Key_Up);
    QCOMPARE(
        recorder.take(),
        QStringList({QStringLiteral("box valueChanged"), QStringLiteral("box valueConfirmed")}));
}

void tst_zelQtSpinBox::updateBlockingVariableChangesNothingOnPurpose()
{
    Mask mask;
    mask.mVariable->mUpdateBlocking = true;
    mask.setup();
    QTest::keyClick(mask.mBox, Qt::Key_Up);
    QCOMPARE(mask.mPage.take(), editWithHost);
}

void tst_zelQtSpinBox::setWertTellsNothing()
{
    Mask mask;
    mask.setup();
    mask.mBox->setWert(42);
    QCOMPARE(mask.mBox->value(), 42.0);
    QCOMPARE(mask.mBox->mValue, 42.0);
    QCOMPARE(mask.mPage.take(), QStringList());
}

void tst_zelQtSpinBox::setWertKeepsWhatARangeForbidsToShow()
{
    ZelQtSpinBox box;
    box.setWert(500);
    QCOMPARE(box.mValue, 500.0);
    QCOMPARE(box.value(), 99.99);
}

void tst_zelQtSpinBox::setDataTellsNothing()
{
    Mask mask;
    mask.setup();
    QCOMPARE(mask.mBox->value(), 17.0);
    mask.mMeta.setReal(*mask.mVariable, 0, 0, 33.5, ZelOrigin::Load);
    mask.mBox->setData(&mask.mMeta, 0);
    QCOMPARE(mask.mBox->value(), 33.5);
    QCOMPARE(mask.mPage.take(), QStringList());
}

void tst_zelQtSpinBox::getDataWritesTheNumber()
{
    Mask mask;
    mask.setup();
    QTest::keyClick(mask.mBox, Qt::Key_Up);
    QCOMPARE(mask.mMeta.real(*mask.mVariable, 0), 17.0);
    mask.mBox->getData(&mask.mMeta, 0);
    QCOMPARE(mask.mBox->mValue, 18.0);
    QCOMPARE(mask.mMeta.real(*mask.mVariable, 0), 18.0);
}

void tst_zelQtSpinBox::getWertTruncates_data()
{
    QTest::addColumn<double>("shown");
    QTest::addColumn<int>("whole");
    QTest::newRow("whole") << 7.0 << 7;
    QTest::newRow("just below the next") << 7.9 << 7;
    QTest::newRow("negative") << -7.9 << -7;
}

void tst_zelQtSpinBox::getWertTruncates()
{
    QFETCH(double, shown);
    QFETCH(int, whole);
    ZelQtSpinBox box;
    box.setRange(-1000, 1000, false);
    box.setValue(shown);
    short shortValue = 0;
    int intValue = 0;
    double doubleValue = 0;
    box.getWert(shortValue);
    box.getWert(intValue);
    box.getWert(doubleValue);
    QCOMPARE(int(shortValue), whole);
    QCOMPARE(intValue, whole);
    QCOMPARE(doubleValue, shown);
}

void tst_zelQtSpinBox::getWertStopsAtTheLimitsOfTheType()
{
    ZelQtSpinBox box;
    box.setRange(-1e12, 1e12, false);
    box.setValue(1e11);
    short shortValue = 0;
    int intValue = 0;
    box.getWert(shortValue);
    box.getWert(intValue);
    QCOMPARE(shortValue, std::numeric_limits<short>::max());
    QCOMPARE(intValue, std::numeric_limits<int>::max());
    box.setValue(-1e11);
    box.getWert(intValue);
    QCOMPARE(intValue, std::numeric_limits<int>::min());
}

void tst_zelQtSpinBox::disabledChangeLeavesTheConfirmation()
{
    Mask mask;
    mask.setup();
    mask.mBox->disableValueChanged();
    QTest::keyClick(mask.mBox, Qt::Key_Up);
    QCOMPARE(
        mask.mPage.take(),
        QStringList({QStringLiteral("host valueConfirmed"), QStringLiteral("box valueConfirmed")}));
}

void tst_zelQtSpinBox::disabledConfirmationLeavesTheChange()
{
    Mask mask;
    mask.setup();
    mask.mBox->disableValueConfirmed();
    QTest::keyClick(mask.mBox, Qt::Key_Up);
    QCOMPARE(
        mask.mPage.take(),
        QStringList({QStringLiteral("host valueChanged"), QStringLiteral("box valueChanged")}));
}

void tst_zelQtSpinBox::updateWertBringsBothBackOnPurpose()
{
    Mask mask;
    mask.setup();
    mask.mBox->disableValueChanged();
    mask.mBox->disableValueConfirmed();
    QTest::keyClick(mask.mBox, Qt::Key_Up);
    QCOMPARE(mask.mPage.take(), QStringList());
    mask.mBox->updateWert();
    QTest::keyClick(mask.mBox, Qt::Key_Up);
    QCOMPARE(mask.mPage.take(), editWithHost);
}

void tst_zelQtSpinBox::setRangeReachesTheBox()
{
    ZelQtSpinBox box;
    ZelUIValueEdit *model = &box;
    model->setRange(-3, 250, false);
    QCOMPARE(box.minimum(), -3.0);
    QCOMPARE(box.maximum(), 250.0);
    QCOMPARE(box.mBottom, -3.0);
    QCOMPARE(box.mTop, 250.0);
}

void tst_zelQtSpinBox::setRangeTellsNothing()
{
    Mask mask;
    mask.setup();
    mask.mBox->setRange(50, 60, false);
    QCOMPARE(mask.mBox->value(), 50.0);
    QCOMPARE(mask.mPage.take(), QStringList());
    QTest::keyClick(mask.mBox, Qt::Key_Up);
    QCOMPARE(mask.mPage.take(), editWithHost);
}

void tst_zelQtSpinBox::setRangeOfQtLeavesTheModel()
{
    ZelQtSpinBox box;
    box.setRange(-3, 250);
    QCOMPARE(box.maximum(), 250.0);
    QVERIFY(!box.mHasTop);
}

void tst_zelQtSpinBox::bottomAndTopMissTheBoxOnPurpose()
{
    ZelQtSpinBox box;
    box.setBottom(10);
    box.setTop(20);
    QCOMPARE(box.mBottom, 10.0);
    QCOMPARE(box.mTop, 20.0);
    QCOMPARE(box.minimum(), 0.0);
    QCOMPARE(box.maximum(), 99.99);
}

void tst_zelQtSpinBox::setStepReachesTheBox()
{
    ZelQtSpinBox box;
    ZelUISpinBox *model = &box;
    model->setStep(0.25);
    QCOMPARE(box.singleStep(), 0.25);
    QCOMPARE(box.mStep, 0.25);
    QTest::keyClick(&box, Qt::Key_Up);
    QCOMPARE(box.value(), 0.25);
}

void tst_zelQtSpinBox::modelEnablesAndHides()
{
    Mask mask;
    mask.setup();
    mask.mLine.mEnabled = false;
    mask.mLine.mVisible = false;
    mask.mBox->updateState(&mask.mMeta, 0);
    QVERIFY(!mask.mBox->isEnabled());
    QVERIFY(mask.mBox->isHidden());
    mask.mLine.mEnabled = true;
    mask.mLine.mVisible = true;
    mask.mBox->updateState(&mask.mMeta, 0);
    QVERIFY(mask.mBox->isEnabled());
    QVERIFY(!mask.mBox->isHidden());
}

void tst_zelQtSpinBox::hasNoReadOnlyState()
{
    Mask mask;
    mask.mLine.mReadOnly = true;
    mask.setup();
    QVERIFY(mask.mBox->mReadOnly);
    QVERIFY(!mask.mBox->isReadOnly());
    QVERIFY(mask.mBox->isEnabled());
}

void tst_zelQtSpinBox::hasTheHeightOfEveryOneLineWidget()
{
    const ZelQtSpinBox box;
    const QFontMetrics metrics = box.fontMetrics();
    QCOMPARE(box.sizeHint().height(), metrics.height() + metrics.lineSpacing() / 2);
    QCOMPARE(box.sizeHint().width(), box.QAbstractSpinBox::sizeHint().width());
}

void tst_zelQtSpinBox::standardWidthOffIsPreferred()
{
    ZelQtSpinBox box;
    box.setOurStdWidth(true);
    QCOMPARE(box.sizeHint().width(), 16 * box.fontMetrics().averageCharWidth());
    QCOMPARE(box.sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(box.sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    box.setOurStdWidth(false);
    QCOMPARE(box.sizeHint().width(), box.QAbstractSpinBox::sizeHint().width());
    QCOMPARE(box.sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(box.sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
}

void tst_zelQtSpinBox::maximumWidthWinsAndLeavesThePolicy()
{
    ZelQtSpinBox box;
    const QSizePolicy before = box.sizePolicy();
    box.setOurMaxWidth(true);
    QCOMPARE(box.sizePolicy(), before);
    box.setOurStdWidth(true);
    QCOMPARE(box.sizeHint().width(), 50 * box.fontMetrics().averageCharWidth());
}

QTEST_MAIN(tst_zelQtSpinBox)
#include "tst_zelQtSpinBox.moc"
