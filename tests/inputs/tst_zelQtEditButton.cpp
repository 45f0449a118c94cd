#include "zelQtEditButton.h"

#include "meta.h"
#include "recorder.h"
#include "zelQtCheckBox.h"
#include "zelQtRadioButton.h"
#include "zelUIMultiVar.h"

#include <QLabel>
#include <QtTest>

namespace {

using Type = ZelUIEditButtonType;

enum Page { LabelPage, CheckBoxPage, RadioButtonPage };

void recordOwn(EventRecorder &recorder, ZelQtEditButton *button)
{
    recorder.recordProtocol(button, QStringLiteral("button"));
    recorder.record(button, &ZelQtEditButton::clicked, QStringLiteral("clicked"));
    recorder.recordArguments(button, &ZelQtEditButton::toggled, QStringLiteral("toggled"));
    recorder.recordArguments(button, &ZelQtEditButton::checkBoxClicked,
                             QStringLiteral("checkBoxClicked"));
    recorder.recordArguments(button, &ZelQtEditButton::checkBoxToggled,
                             QStringLiteral("checkBoxToggled"));
    recorder.recordArguments(button, &ZelQtEditButton::radioButtonClicked,
                             QStringLiteral("radioButtonClicked"));
    recorder.recordArguments(button, &ZelQtEditButton::radioButtonToggled,
                             QStringLiteral("radioButtonToggled"));
}

void click(QWidget *widget)
{
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, QPoint(8, widget->height() / 2));
}

// An edit button of an optional number in a host, under a model line that gives its state.
struct Mask
{
    explicit Mask(Type type)
        : mVariable(mMeta.add<ZelUIMultiVar>(L"Cu"))
        , mButton(new ZelQtEditButton(type, &mPage))
    {
        mVariable->mOptional = true;
        mButton->setModelParent(&mLine);
        mButton->setup(mVariable, mAttributes, 0);
        recordOwn(mPage.mRecorder, mButton);
    }

    void refresh()
    {
        mButton->updateState(&mMeta, 0);
        mButton->setData(&mMeta, 0);
        mButton->updateState(&mMeta, 0);
    }

    Meta mMeta;
    ZelUIObject mLine;
    AttrMap mAttributes;
    RecordedPage mPage;
    ZelUIMultiVar *mVariable;
    ZelQtEditButton *mButton;
};

} // namespace

Q_DECLARE_METATYPE(ZelUIEditButtonType)

class tst_zelQtEditButton : public QObject
{
    Q_OBJECT

private slots:
    void startsAsCheckBoxTypeOnTheEmptyPage();
    void holdsAnEmptyLabelACheckBoxAndARadioButton();
    void tabPassesOverItsButtons();
    void sizeIsThatOfAFrame();
    void typeOfTheConstructorIsOnShow();
    void typeShowsItsPage_data();
    void typeShowsItsPage();
    void typesNumbersAreFixed();
    void setupNamesTheWidget();
    void oneClickOnTheCheckBoxIsToldInOrder();
    void oneClickOnTheRadioButtonIsToldInOrder();
    void hostHearsAClickTwiceOnPurpose();
    void disabledChangeLeavesTheConfirmation_data();
    void disabledChangeLeavesTheConfirmation();
    void disabledConfirmationLeavesTheChange();
    void updateBlockingVariableIsConfirmedAlone();
    void checkingByCodeTellsTheTogglingAlone();
    void emptyPageIsUncheckedAndStaysSo();
    void radioButtonsOfSeveralLinesDoNotExcludeEachOther();
    void disabledButtonShowsNothingAndComesBack_data();
    void disabledButtonShowsNothingAndComesBack();
    void enablingLeavesAPageThatIsOnShow();
    void labelTypeStaysEmptyWhenEnabled();
    void hiddenButtonIsInvisibleAndStoresFalse();
    void followsVisibility();
    void setDataChecksTheButtonOnShow();
    void getDataWritesTheButtonOnShow();
    void hasDefaultTips();
    void tipsCanBeSwitchedOffAndOn();
    void languageChangeSetsTheTips();
};

void tst_zelQtEditButton::startsAsCheckBoxTypeOnTheEmptyPage()
{
    QWidget window;
    const ZelQtEditButton button(&window);
    QCOMPARE(button.editType(), Type::CHECKBOX);
    QCOMPARE(button.currentIndex(), int(LabelPage));
    QVERIFY(!button.isChecked());
    QCOMPARE(button.sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
}

void tst_zelQtEditButton::holdsAnEmptyLabelACheckBoxAndARadioButton()
{
    const ZelQtEditButton button;
    QCOMPARE(button.count(), 3);
    const auto *label = qobject_cast<QLabel *>(button.widget(LabelPage));
    QVERIFY(label);
    QCOMPARE(label->text(), QString());
    QCOMPARE(button.widget(CheckBoxPage), static_cast<QWidget *>(button.checkBoxWidget()));
    QCOMPARE(button.widget(RadioButtonPage), static_cast<QWidget *>(button.radioButtonWidget()));
    QVERIFY(!button.radioButtonWidget()->autoExclusive());
}

void tst_zelQtEditButton::tabPassesOverItsButtons()
{
    const ZelQtEditButton button;
    QCOMPARE(button.checkBoxWidget()->focusPolicy(), Qt::ClickFocus);
    QCOMPARE(button.radioButtonWidget()->focusPolicy(), Qt::ClickFocus);
}

void tst_zelQtEditButton::sizeIsThatOfAFrame()
{
    const ZelQtEditButton button;
    QCOMPARE(button.sizeHint(), button.QFrame::sizeHint());
}

void tst_zelQtEditButton::typeOfTheConstructorIsOnShow()
{
    QWidget window;
    const ZelQtEditButton button(Type::RADIOBUTTON, &window);
    QCOMPARE(button.editType(), Type::RADIOBUTTON);
    QCOMPARE(button.currentIndex(), int(RadioButtonPage));
}

void tst_zelQtEditButton::typeShowsItsPage_data()
{
    QTest::addColumn<Type>("type");
    QTest::addColumn<int>("page");
    QTest::addColumn<bool>("hidden");
    QTest::newRow("label") << Type::LABEL << int(LabelPage) << false;
    QTest::newRow("check box") << Type::CHECKBOX << int(CheckBoxPage) << false;
    QTest::newRow("radio button") << Type::RADIOBUTTON << int(RadioButtonPage) << false;
    QTest::newRow("hidden") << Type::HIDDEN << int(LabelPage) << true;
    QTest::newRow("any other") << static_cast<Type>(9) << int(LabelPage) << true;
}

void tst_zelQtEditButton::typeShowsItsPage()
{
    QFETCH(Type, type);
    QWidget window;
    ZelQtEditButton button(&window);
    // From a page that differs, hidden before, so that both have to change.
    button.setEditType(type == Type::CHECKBOX ? Type::RADIOBUTTON : Type::CHECKBOX);
    button.setVisible(false);
    button.setEditType(type);
    QCOMPARE(button.editType(), type);
    QTEST(button.currentIndex(), "page");
    QTEST(button.isHidden(), "hidden");
    const ZelQtEditButton made(type, &window);
    QTEST(made.currentIndex(), "page");
    QTEST(made.isHidden(), "hidden");
}

void tst_zelQtEditButton::typesNumbersAreFixed()
{
    QCOMPARE(int(Type::LABEL), 0);
    QCOMPARE(int(Type::CHECKBOX), 1);
    QCOMPARE(int(Type::RADIOBUTTON), 2);
    QCOMPARE(int(Type::HIDDEN), 3);
}

void tst_zelQtEditButton::setupNamesTheWidget()
{
    const Mask mask(Type::CHECKBOX);
    QCOMPARE(mask.mButton->objectName(), QStringLiteral("Cu_edit"));
    QCOMPARE(mask.mButton->whatsThis(), QStringLiteral("Cu"));
}

void tst_zelQtEditButton::oneClickOnTheCheckBoxIsToldInOrder()
{
    Mask mask(Type::CHECKBOX);
    mask.mPage.show();
    mask.mPage.mRecorder.recordProtocol(mask.mButton->checkBoxWidget(), QStringLiteral("box"));
    click(mask.mButton->checkBoxWidget());
    QVERIFY(mask.mButton->isChecked());
    QCOMPARE(
        mask.mPage.take(),
        QStringList({QStringLiteral("checkBoxToggled(true)"), QStringLiteral("toggled(true)"),
                     QStringLiteral("host valueChanged"), QStringLiteral("box valueChanged"),
                     QStringLiteral("host valueConfirmed"), QStringLiteral("box valueConfirmed"),
                     QStringLiteral("host valueChanged"), QStringLiteral("button valueChanged"),
                     QStringLiteral("host valueConfirmed"), QStringLiteral("button valueConfirmed"),
                     QStringLiteral("checkBoxClicked(true)"), QStringLiteral("clicked")}));
}

void tst_zelQtEditButton::oneClickOnTheRadioButtonIsToldInOrder()
{
    Mask mask(Type::RADIOBUTTON);
    mask.mPage.show();
    mask.mPage.mRecorder.recordProtocol(mask.mButton->radioButtonWidget(), QStringLiteral("radio"));
    click(mask.mButton->radioButtonWidget());
    QVERIFY(mask.mButton->isChecked());
    QCOMPARE(
        mask.mPage.take(),
        QStringList({QStringLiteral("radioButtonToggled(true)"), QStringLiteral("toggled(true)"),
                     QStringLiteral("host valueChanged"), QStringLiteral("radio valueChanged"),
                     QStringLiteral("host valueConfirmed"), QStringLiteral("radio valueConfirmed"),
                     QStringLiteral("host valueChanged"), QStringLiteral("button valueChanged"),
                     QStringLiteral("host valueConfirmed"), QStringLiteral("button valueConfirmed"),
                     QStringLiteral("radioButtonClicked(true)"), QStringLiteral("clicked")}));
}

void tst_zelQtEditButton::hostHearsAClickTwiceOnPurpose()
{
    Mask mask(Type::CHECKBOX);
    mask.mPage.show();
    click(mask.mButton->checkBoxWidget());
    const QStringList events = mask.mPage.take();
    QCOMPARE(events.count(QStringLiteral("host valueChanged")), 2);
    QCOMPARE(events.count(QStringLiteral("host valueConfirmed")), 2);
    QCOMPARE(events.count(QStringLiteral("button valueChanged")), 1);
    QCOMPARE(events.count(QStringLiteral("button valueConfirmed")), 1);
}

void tst_zelQtEditButton::disabledChangeLeavesTheConfirmation_data()
{
    QTest::addColumn<Type>("type");
    QTest::newRow("check box") << Type::CHECKBOX;
    QTest::newRow("radio button") << Type::RADIOBUTTON;
}

void tst_zelQtEditButton::disabledChangeLeavesTheConfirmation()
{
    QFETCH(Type, type);
    Mask mask(type);
    mask.mPage.show();
    mask.mButton->disableValueChanged();
    click(mask.mButton->currentWidget());
    const QStringList events = mask.mPage.take();
    QCOMPARE(events.count(QStringLiteral("button valueChanged")), 0);
    QCOMPARE(events.count(QStringLiteral("button valueConfirmed")), 1);
    // The button on the page takes part in the protocol itself and is not silenced.
    QCOMPARE(events.count(QStringLiteral("host valueChanged")), 1);
    QCOMPARE(events.count(QStringLiteral("host valueConfirmed")), 2);
}

void tst_zelQtEditButton::disabledConfirmationLeavesTheChange()
{
    Mask mask(Type::RADIOBUTTON);
    mask.mPage.show();
    mask.mButton->disableValueConfirmed();
    click(mask.mButton->radioButtonWidget());
    const QStringList events = mask.mPage.take();
    QCOMPARE(events.count(QStringLiteral("button valueChanged")), 1);
    QCOMPARE(events.count(QStringLiteral("button valueConfirmed")), 0);
    QCOMPARE(events.count(QStringLiteral("host valueConfirmed")), 1);
}

void tst_zelQtEditButton::updateBlockingVariableIsConfirmedAlone()
{
    Mask mask(Type::CHECKBOX);
    mask.mVariable->mUpdateBlocking = true;
    mask.mButton->setup(mask.mVariable, mask.mAttributes, 0);
    mask.mPage.show();
    click(mask.mButton->checkBoxWidget());
    const QStringList events = mask.mPage.take();
    QCOMPARE(events.count(QStringLiteral("button valueChanged")), 0);
    QCOMPARE(events.count(QStringLiteral("button valueConfirmed")), 1);
}

void tst_zelQtEditButton::checkingByCodeTellsTheTogglingAlone()
{
    Mask mask(Type::CHECKBOX);
    mask.mButton->setChecked(true);
    QCOMPARE(
        mask.mPage.take(),
        QStringList({QStringLiteral("checkBoxToggled(true)"), QStringLiteral("toggled(true)")}));
    mask.mButton->setEditType(Type::RADIOBUTTON);
    QVERIFY(!mask.mButton->isChecked());
    mask.mButton->setChecked(true);
    QCOMPARE(
        mask.mPage.take(),
        QStringList({QStringLiteral("radioButtonToggled(true)"), QStringLiteral("toggled(true)")}));
}

void tst_zelQtEditButton::emptyPageIsUncheckedAndStaysSo()
{
    Mask mask(Type::LABEL);
    mask.mButton->setChecked(true);
    QVERIFY(!mask.mButton->isChecked());
    QVERIFY(!mask.mButton->checkBoxWidget()->isChecked());
    QVERIFY(!mask.mButton->radioButtonWidget()->isChecked());
    QCOMPARE(mask.mPage.take(), QStringList());
}

void tst_zelQtEditButton::radioButtonsOfSeveralLinesDoNotExcludeEachOther()
{
    QWidget window;
    auto *first = new ZelQtEditButton(Type::RADIOBUTTON, &window);
    auto *second = new ZelQtEditButton(Type::RADIOBUTTON, &window);
    window.show();
    click(first->radioButtonWidget());
    click(second->radioButtonWidget());
    QVERIFY(first->isChecked());
    QVERIFY(second->isChecked());
    click(first->radioButtonWidget());
    QVERIFY(!first->isChecked());
}

void tst_zelQtEditButton::disabledButtonShowsNothingAndComesBack_data()
{
    QTest::addColumn<Type>("type");
    QTest::addColumn<int>("page");
    QTest::newRow("check box") << Type::CHECKBOX << int(CheckBoxPage);
    QTest::newRow("radio button") << Type::RADIOBUTTON << int(RadioButtonPage);
}

void tst_zelQtEditButton::disabledButtonShowsNothingAndComesBack()
{
    QFETCH(Type, type);
    Mask mask(type);
    mask.mLine.mEnabled = false;
    mask.mButton->updateState(&mask.mMeta, 0);
    QVERIFY(!mask.mButton->isEnabled());
    QCOMPARE(mask.mButton->currentIndex(), int(LabelPage));
    QVERIFY(!mask.mButton->isHidden());
    mask.mLine.mEnabled = true;
    mask.mButton->updateState(&mask.mMeta, 0);
    QVERIFY(mask.mButton->isEnabled());
    QTEST(mask.mButton->currentIndex(), "page");
}

void tst_zelQtEditButton::enablingLeavesAPageThatIsOnShow()
{
    Mask mask(Type::CHECKBOX);
    mask.mButton->setCurrentIndex(RadioButtonPage);
    mask.mButton->updateState(&mask.mMeta, 0);
    QCOMPARE(mask.mButton->currentIndex(), int(RadioButtonPage));
}

void tst_zelQtEditButton::labelTypeStaysEmptyWhenEnabled()
{
    Mask mask(Type::LABEL);
    mask.mButton->updateState(&mask.mMeta, 0);
    QCOMPARE(mask.mButton->currentIndex(), int(LabelPage));
    QVERIFY(!mask.mButton->isHidden());
}

void tst_zelQtEditButton::hiddenButtonIsInvisibleAndStoresFalse()
{
    Mask mask(Type::CHECKBOX);
    mask.mMeta.setOptionChecked(*mask.mVariable, 0, true, ZelOrigin::Load);
    mask.refresh();
    QVERIFY(mask.mButton->isChecked());
    mask.mButton->setEditType(Type::HIDDEN);
    QVERIFY(mask.mButton->isHidden());
    mask.mButton->updateState(&mask.mMeta, 0);
    QVERIFY(mask.mButton->isHidden());
    mask.mButton->getData(&mask.mMeta, 0);
    QVERIFY(!mask.mButton->mChecked);
    // It isn't written: the data keep what was chosen before.
    QVERIFY(mask.mMeta.isOptionChecked(*mask.mVariable, 0));
}

void tst_zelQtEditButton::followsVisibility()
{
    Mask mask(Type::CHECKBOX);
    mask.mLine.mVisible = false;
    mask.mButton->updateState(&mask.mMeta, 0);
    QVERIFY(mask.mButton->isHidden());
    mask.mLine.mVisible = true;
    mask.mButton->updateState(&mask.mMeta, 0);
    QVERIFY(!mask.mButton->isHidden());
}

void tst_zelQtEditButton::setDataChecksTheButtonOnShow()
{
    Mask mask(Type::CHECKBOX);
    mask.mMeta.setOptionChecked(*mask.mVariable, 0, true, ZelOrigin::Load);
    mask.refresh();
    QVERIFY(mask.mButton->checkBoxWidget()->isChecked());
    QVERIFY(!mask.mButton->radioButtonWidget()->isChecked());
    const QStringList events = mask.mPage.take();
    QVERIFY(!events.contains(QStringLiteral("button valueChanged")));
    QVERIFY(!events.contains(QStringLiteral("host valueChanged")));
}

void tst_zelQtEditButton::getDataWritesTheButtonOnShow()
{
    Mask mask(Type::CHECKBOX);
    mask.refresh();
    const bool before = mask.mMeta.isOptionChecked(*mask.mVariable, 0);
    mask.mPage.show();
    click(mask.mButton->checkBoxWidget());
    mask.mButton->getData(&mask.mMeta, 0);
    QCOMPARE(mask.mButton->mChecked, !before);
    QCOMPARE(mask.mMeta.isOptionChecked(*mask.mVariable, 0), !before);
}

namespace {

QStringList tips(const ZelQtEditButton &button)
{
    return {button.checkBoxWidget()->toolTip(), button.checkBoxWidget()->statusTip(),
            button.radioButtonWidget()->toolTip(), button.radioButtonWidget()->statusTip()};
}

const QStringList defaultTips{
    QStringLiteral("eingeben/berechnen"),
    QStringLiteral("Legt fest ob dieser Wert eingegeben oder berechnet werden soll"),
    QStringLiteral("eingeben/berechnen"),
    QStringLiteral(
        "Legt fest welche Werte dieser Gruppe eingegeben und welche berechnet werden sollen")};

} // namespace

void tst_zelQtEditButton::hasDefaultTips()
{
    QCOMPARE(tips(ZelQtEditButton()), defaultTips);
}

void tst_zelQtEditButton::tipsCanBeSwitchedOffAndOn()
{
    ZelQtEditButton button;
    button.enableDefaultToolTip(false);
    QCOMPARE(tips(button), QStringList({QString(), QString(), QString(), QString()}));
    button.enableDefaultToolTip(true);
    QCOMPARE(tips(button), defaultTips);
}

void tst_zelQtEditButton::languageChangeSetsTheTips()
{
    QWidget window;
    ZelQtEditButton button(&window);
    button.checkBoxWidget()->setToolTip(QStringLiteral("enter/calculate"));
    QEvent event(QEvent::LanguageChange);
    QApplication::sendEvent(&window, &event);
    QCOMPARE(tips(button), defaultTips);
}

QTEST_MAIN(tst_zelQtEditButton)
#include "tst_zelQtEditButton.moc"
