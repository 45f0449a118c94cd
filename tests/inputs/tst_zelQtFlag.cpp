#include "zelQtFlag.h"

#include "meta.h"
#include "recorder.h"
#include "zelUIVarKinds.h"

#include <QtTest>

namespace {

const QStringList clickWithHost{
    QStringLiteral("host valueChanged"), QStringLiteral("flag valueChanged"),
    QStringLiteral("host valueConfirmed"), QStringLiteral("flag valueConfirmed")};

// A flag in a host, bound to a variable of a store, under a model line that gives its state.
struct Mask
{
    Mask()
        : mVariable(mMeta.add<ZelUIVarBool>(L"modified"))
        , mFlag(new ZelQtFlag(&mPage))
    {
        mVariable->mText.setText(L"Modifiziert");
        mFlag->setModelParent(&mLine);
        mFlag->setup(mVariable, mAttributes);
        mFlag->retranslate();
        mPage.mRecorder.recordProtocol(mFlag, QStringLiteral("flag"));
    }

    void refresh()
    {
        mFlag->updateState(&mMeta, 0);
        mFlag->setData(&mMeta, 0);
        mFlag->updateState(&mMeta, 0);
    }

    Meta mMeta;
    ZelUIObject mLine;
    AttrMap mAttributes;
    RecordedPage mPage;
    ZelUIVarBool *mVariable;
    ZelQtFlag *mFlag;
};

void click(QWidget *widget)
{
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, QPoint(8, widget->height() / 2));
}

} // namespace

class tst_zelQtFlag : public QObject
{
    Q_OBJECT

private slots:
    void startsAsACheckBoxOfFixedHeight();
    void sizeIsThatOfThePlainText();
    void setupNamesTheWidget();
    void setupByATableNamesTheWidget();
    void oneClickIsOneChangeAndOneConfirmationHostFirst();
    void disabledChangeLeavesTheConfirmation();
    void updateBlockingVariableChangesNothingOnPurpose();
    void setDataChecksSilently();
    void getDataWritesTheCheckMark();
    void disabledFlagLosesTextAndMark();
    void disabledFlagWritesNothing();
    void enabledFlagGetsItsTextBack();
    void retranslateGivesTheTextBack();
    void readOnlyFlagIsDisabledButKeepsItsMark();
    void followsVisibility();
};

void tst_zelQtFlag::startsAsACheckBoxOfFixedHeight()
{
    const ZelQtFlag flag;
    QCOMPARE(flag.mFlagType, ZelUIFlagType::CheckBox);
    QCOMPARE(flag.sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(flag.sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
}

void tst_zelQtFlag::sizeIsThatOfThePlainText()
{
    ZelQtFlag flag;
    flag.setText(QStringLiteral("x<sub>1</sub> modifiziert"));
    const QFontMetrics metrics = flag.fontMetrics();
    QCOMPARE(flag.sizeHint().width(),
             metrics.horizontalAdvance(QStringLiteral("x1 modifiziert"))
                 + 4 * metrics.averageCharWidth());
    QCOMPARE(flag.sizeHint().height(), metrics.height() + metrics.lineSpacing() / 2);
}

void tst_zelQtFlag::setupNamesTheWidget()
{
    const Mask mask;
    QCOMPARE(mask.mFlag->objectName(), QStringLiteral("modified"));
    QCOMPARE(mask.mFlag->whatsThis(), QStringLiteral("modified"));
    QCOMPARE(mask.mFlag->text(), QStringLiteral("Modifiziert"));
}

void tst_zelQtFlag::setupByATableNamesTheWidget()
{
    ZelUIVarTable table(L"loads");
    AttrMap attributes;
    ZelQtFlag flag;
    flag.setup(&table, attributes);
    QCOMPARE(flag.objectName(), QStringLiteral("loads_flag"));
    QCOMPARE(flag.whatsThis(), QStringLiteral("loads"));
}

void tst_zelQtFlag::oneClickIsOneChangeAndOneConfirmationHostFirst()
{
    Mask mask;
    mask.refresh();
    mask.mPage.show();
    click(mask.mFlag);
    QVERIFY(mask.mFlag->isChecked());
    QCOMPARE(mask.mPage.take(), clickWithHost);
}

void tst_zelQtFlag::disabledChangeLeavesTheConfirmation()
{
    Mask mask;
    mask.refresh();
    mask.mPage.show();
    mask.mFlag->disableValueChanged();
    click(mask.mFlag);
    QCOMPARE(mask.mPage.take(),
             QStringList(
                 {QStringLiteral("host valueConfirmed"), QStringLiteral("flag valueConfirmed")}));
}

void tst_zelQtFlag::updateBlockingVariableChangesNothingOnPurpose()
{
    Mask mask;
    mask.mVariable->mUpdateBlocking = true;
    mask.mFlag->setup(mask.mVariable, mask.mAttributes);
    mask.refresh();
    mask.mPage.show();
    click(mask.mFlag);
    QCOMPARE(mask.mPage.take(), clickWithHost);
}

void tst_zelQtFlag::setDataChecksSilently()
{
    Mask mask;
    mask.mMeta.setBoolean(*mask.mVariable, 0, true, ZelOrigin::Load);
    mask.refresh();
    QVERIFY(mask.mFlag->isChecked());
    QCOMPARE(mask.mPage.take(), QStringList());
}

void tst_zelQtFlag::getDataWritesTheCheckMark()
{
    Mask mask;
    mask.refresh();
    mask.mFlag->click();
    QVERIFY(!mask.mMeta.boolean(*mask.mVariable, 0));
    mask.mFlag->getData(&mask.mMeta, 0);
    QVERIFY(mask.mFlag->mChecked);
    QVERIFY(mask.mMeta.boolean(*mask.mVariable, 0));
}

void tst_zelQtFlag::disabledFlagLosesTextAndMark()
{
    Mask mask;
    mask.mMeta.setBoolean(*mask.mVariable, 0, true, ZelOrigin::Load);
    mask.mLine.mEnabled = false;
    mask.mFlag->updateState(&mask.mMeta, 0);
    QVERIFY(!mask.mFlag->isEnabled());
    QVERIFY(!mask.mFlag->isCheckable());
    QCOMPARE(mask.mFlag->text(), QStringLiteral("Modifiziert"));
    mask.mFlag->setData(&mask.mMeta, 0);
    QCOMPARE(mask.mFlag->text(), QString());
    QVERIFY(!mask.mFlag->isChecked());
}

void tst_zelQtFlag::disabledFlagWritesNothing()
{
    Mask mask;
    mask.mMeta.setBoolean(*mask.mVariable, 0, true, ZelOrigin::Load);
    mask.mLine.mEnabled = false;
    mask.refresh();
    QVERIFY(!mask.mFlag->isChecked());
    mask.mFlag->getData(&mask.mMeta, 0);
    QVERIFY(mask.mMeta.boolean(*mask.mVariable, 0));
}

void tst_zelQtFlag::enabledFlagGetsItsTextBack()
{
    Mask mask;
    mask.mMeta.setBoolean(*mask.mVariable, 0, true, ZelOrigin::Load);
    mask.mLine.mEnabled = false;
    mask.refresh();
    QCOMPARE(mask.mFlag->text(), QString());
    mask.mLine.mEnabled = true;
    mask.refresh();
    QCOMPARE(mask.mFlag->text(), QStringLiteral("Modifiziert"));
    QVERIFY(mask.mFlag->isEnabled());
    QVERIFY(mask.mFlag->isChecked());
}

void tst_zelQtFlag::retranslateGivesTheTextBack()
{
    Mask mask;
    mask.mLine.mEnabled = false;
    mask.refresh();
    QCOMPARE(mask.mFlag->text(), QString());
    mask.mFlag->retranslate();
    QCOMPARE(mask.mFlag->text(), QStringLiteral("Modifiziert"));
}

void tst_zelQtFlag::readOnlyFlagIsDisabledButKeepsItsMark()
{
    Mask mask;
    mask.mMeta.setBoolean(*mask.mVariable, 0, true, ZelOrigin::Load);
    mask.mLine.mReadOnly = true;
    mask.refresh();
    QVERIFY(!mask.mFlag->isEnabled());
    QVERIFY(mask.mFlag->isCheckable());
    QVERIFY(mask.mFlag->isChecked());
    QCOMPARE(mask.mFlag->text(), QStringLiteral("Modifiziert"));
}

void tst_zelQtFlag::followsVisibility()
{
    Mask mask;
    mask.mLine.mVisible = false;
    mask.mFlag->updateState(&mask.mMeta, 0);
    QVERIFY(mask.mFlag->isHidden());
    mask.mLine.mVisible = true;
    mask.mFlag->updateState(&mask.mMeta, 0);
    QVERIFY(!mask.mFlag->isHidden());
}

QTEST_MAIN(tst_zelQtFlag)
#include "tst_zelQtFlag.moc"
