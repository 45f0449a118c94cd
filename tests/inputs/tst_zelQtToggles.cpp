#include "recorder.h"
#include "window.h"
#include "zelQtCheckBox.h"
#include "zelQtRadioButton.h"

#include <QtTest>

// The check box and the radio button behave alike, so each test runs for both.
class tst_zelQtToggles : public QObject
{
    Q_OBJECT

private slots:
    void hasNoHelpTopicAtFirst_data() { bothToggles(); }
    void hasNoHelpTopicAtFirst();
    void startsActiveAndWithTheStyle_data() { bothToggles(); }
    void startsActiveAndWithTheStyle();
    void oneClickIsOneChangeAndOneConfirmationHostFirst_data() { bothToggles(); }
    void oneClickIsOneChangeAndOneConfirmationHostFirst();
    void aKeyIsAClick_data() { bothToggles(); }
    void aKeyIsAClick();
    void withoutHostItTellsItsOwnListeners_data() { bothToggles(); }
    void withoutHostItTellsItsOwnListeners();
    void disabledChangeLeavesTheConfirmation_data() { bothToggles(); }
    void disabledChangeLeavesTheConfirmation();
    void disablingTwiceChangesNothingMore_data() { bothToggles(); }
    void disablingTwiceChangesNothingMore();
    void checkingByCodeTellsNothing_data() { bothToggles(); }
    void checkingByCodeTellsNothing();
    void inactiveStaysEnabledButIsNotCheckable_data() { bothToggles(); }
    void inactiveStaysEnabledButIsNotCheckable();
    void editableIsEnabled_data() { bothToggles(); }
    void editableIsEnabled();
    void styleIsJustAFlag_data() { bothToggles(); }
    void styleIsJustAFlag();
    void stateIsNoPropertyOnPurpose_data() { bothToggles(); }
    void stateIsNoPropertyOnPurpose();
    void hasNoWayToSilenceTheConfirmationOnPurpose_data() { bothToggles(); }
    void hasNoWayToSilenceTheConfirmationOnPurpose();
    void tagsTakeNoRoom_data() { bothToggles(); }
    void tagsTakeNoRoom();
    void plainTextKeepsTheSizeOfQt_data() { bothToggles(); }
    void plainTextKeepsTheSizeOfQt();
    void aClickOnTheGroupUnchecksTheCheckBox();

private:
    static void bothToggles();
};

namespace {

// What the two classes offer alike, so that a test is written once.
struct Toggle
{
    virtual ~Toggle() = default;
    virtual QAbstractButton *button() = 0;
    virtual ZelQtAuthorItInterface *help() = 0;
    virtual void record(EventRecorder &recorder) = 0;
    virtual void disableValueChanged() = 0;
    virtual bool isActive() const = 0;
    virtual void setActive(bool active) = 0;
    virtual bool isEditable() const = 0;
    virtual void setEditable(bool editable) = 0;
    virtual bool useTarvexStyle() const = 0;
    virtual void setTarvexStyle(bool tarvex) = 0;
    virtual QSize qtSizeHint() const = 0;
};

template <class Widget, class Base> struct ToggleOf : Toggle
{
    ToggleOf(const QString &text, QWidget *parent)
        : mWidget(new Widget(text, parent))
    {
    }
    ~ToggleOf() override { delete mWidget; }
    QAbstractButton *button() override { return mWidget; }
    ZelQtAuthorItInterface *help() override { return mWidget; }
    void record(EventRecorder &recorder) override
    {
        recorder.recordProtocol(mWidget.data(), QStringLiteral("toggle"));
    }
    void disableValueChanged() override { mWidget->disableValueChanged(); }
    bool isActive() const override { return mWidget->isActive(); }
    void setActive(bool active) override { mWidget->setActive(active); }
    bool isEditable() const override { return mWidget->isEditable(); }
    void setEditable(bool editable) override { mWidget->setEditable(editable); }
    bool useTarvexStyle() const override { return mWidget->useTarvexStyle(); }
    void setTarvexStyle(bool tarvex) override { mWidget->setTarvexStyle(tarvex); }
    QSize qtSizeHint() const override { return mWidget->Base::sizeHint(); }

    QPointer<Widget> mWidget;
};

std::unique_ptr<Toggle> make(const QString &text = {}, QWidget *parent = nullptr)
{
    QFETCH(bool, radio);
    if (radio)
        return std::make_unique<ToggleOf<ZelQtRadioButton, QRadioButton>>(text, parent);
    return std::make_unique<ToggleOf<ZelQtCheckBox, QCheckBox>>(text, parent);
}

const QStringList clickWithHost{
    QStringLiteral("host valueChanged"), QStringLiteral("toggle valueChanged"),
    QStringLiteral("host valueConfirmed"), QStringLiteral("toggle valueConfirmed")};

// The indicator lies at the left; the middle of a wide toggle misses it.
void click(QAbstractButton *button)
{
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(8, button->height() / 2));
}

} // namespace

void tst_zelQtToggles::bothToggles()
{
    QTest::addColumn<bool>("radio");
    QTest::newRow("check box") << false;
    QTest::newRow("radio button") << true;
}

void tst_zelQtToggles::hasNoHelpTopicAtFirst()
{
    QCOMPARE(make()->help()->authorItCode(), -1);
}

void tst_zelQtToggles::startsActiveAndWithTheStyle()
{
    const auto toggle = make(QStringLiteral("Zahn"));
    QCOMPARE(toggle->button()->text(), QStringLiteral("Zahn"));
    QVERIFY(toggle->isActive());
    QVERIFY(toggle->isEditable());
    QVERIFY(toggle->useTarvexStyle());
    QVERIFY(toggle->button()->isCheckable());
    QVERIFY(!toggle->button()->isChecked());
}

void tst_zelQtToggles::oneClickIsOneChangeAndOneConfirmationHostFirst()
{
    RecordedPage page;
    const auto toggle = make(QStringLiteral("Zahn"), &page);
    toggle->record(page.mRecorder);
    page.show();
    click(toggle->button());
    QCOMPARE(page.take(), clickWithHost);
    QVERIFY(toggle->button()->isChecked());
}

void tst_zelQtToggles::aKeyIsAClick()
{
    RecordedDialog dialog;
    const auto toggle = make(QStringLiteral("Zahn"), &dialog);
    toggle->record(dialog.mRecorder);
    QVERIFY(showAndActivate(&dialog));
    QVERIFY(focus(toggle->button()));
    QTest::keyClick(toggle->button(), Qt::Key_Space);
    QCOMPARE(dialog.take(), clickWithHost);
    QVERIFY(toggle->button()->isChecked());
}

void tst_zelQtToggles::withoutHostItTellsItsOwnListeners()
{
    QWidget window;
    const auto toggle = make(QStringLiteral("Zahn"), &window);
    EventRecorder recorder;
    toggle->record(recorder);
    window.show();
    click(toggle->button());
    QCOMPARE(recorder.take(),
             QStringList(
                 {QStringLiteral("toggle valueChanged"), QStringLiteral("toggle valueConfirmed")}));
}

void tst_zelQtToggles::disabledChangeLeavesTheConfirmation()
{
    RecordedPage page;
    const auto toggle = make(QStringLiteral("Zahn"), &page);
    toggle->record(page.mRecorder);
    page.show();
    toggle->disableValueChanged();
    click(toggle->button());
    QCOMPARE(page.take(),
             QStringList(
                 {QStringLiteral("host valueConfirmed"), QStringLiteral("toggle valueConfirmed")}));
}

void tst_zelQtToggles::disablingTwiceChangesNothingMore()
{
    RecordedPage page;
    const auto toggle = make(QStringLiteral("Zahn"), &page);
    toggle->record(page.mRecorder);
    page.show();
    toggle->disableValueChanged();
    toggle->disableValueChanged();
    click(toggle->button());
    QCOMPARE(page.take().size(), 2);
}

void tst_zelQtToggles::checkingByCodeTellsNothing()
{
    RecordedPage page;
    const auto toggle = make(QStringLiteral("Zahn"), &page);
    toggle->record(page.mRecorder);
    toggle->button()->setChecked(true);
    QVERIFY(toggle->button()->isChecked());
    QCOMPARE(page.take(), QStringList());
}

void tst_zelQtToggles::inactiveStaysEnabledButIsNotCheckable()
{
    const auto toggle = make(QStringLiteral("Zahn"));
    toggle->button()->setChecked(true);
    toggle->setActive(false);
    QVERIFY(!toggle->isActive());
    QVERIFY(toggle->button()->isEnabled());
    QVERIFY(!toggle->button()->isCheckable());
    QVERIFY(!toggle->button()->isChecked());
    toggle->button()->show();
    click(toggle->button());
    QVERIFY(!toggle->button()->isChecked());
    toggle->setActive(true);
    QVERIFY(toggle->isActive());
    QVERIFY(toggle->button()->isCheckable());
}

void tst_zelQtToggles::editableIsEnabled()
{
    const auto toggle = make();
    toggle->setEditable(false);
    QVERIFY(!toggle->isEditable());
    QVERIFY(!toggle->button()->isEnabled());
    toggle->setEditable(true);
    QVERIFY(toggle->isEditable());
    QVERIFY(toggle->button()->isEnabled());
    toggle->button()->setEnabled(false);
    QVERIFY(!toggle->isEditable());
}

void tst_zelQtToggles::styleIsJustAFlag()
{
    const auto toggle = make(QStringLiteral("Zahn"));
    const QSize hint = toggle->button()->sizeHint();
    toggle->setTarvexStyle(false);
    QVERIFY(!toggle->useTarvexStyle());
    QCOMPARE(toggle->button()->sizeHint(), hint);
}

void tst_zelQtToggles::stateIsNoPropertyOnPurpose()
{
    const auto toggle = make();
    const QMetaObject *meta = toggle->button()->metaObject();
    for (const char *name : {"active", "editable", "useTarvexStyle"})
        QCOMPARE(meta->indexOfProperty(name), -1);
}

void tst_zelQtToggles::hasNoWayToSilenceTheConfirmationOnPurpose()
{
    const auto toggle = make();
    const QMetaObject *meta = toggle->button()->metaObject();
    QVERIFY(meta->indexOfMethod("disableValueChanged()") >= 0);
    QCOMPARE(meta->indexOfMethod("disableValueConfirmed()"), -1);
}

void tst_zelQtToggles::tagsTakeNoRoom()
{
    const QString rich = QStringLiteral("x<sub>1</sub>&nbsp;mm");
    const auto toggle = make(rich);
    const QFontMetrics metrics = toggle->button()->fontMetrics();
    const int tags =
        metrics.horizontalAdvance(rich) - metrics.horizontalAdvance(QStringLiteral("x1_mm"));
    QVERIFY(tags > 0);
    const QSize hint = toggle->button()->sizeHint();
    QCOMPARE(hint.width(), toggle->qtSizeHint().width() - tags);
    QCOMPARE(hint.height(), toggle->qtSizeHint().height());
}

void tst_zelQtToggles::plainTextKeepsTheSizeOfQt()
{
    const auto toggle = make(QStringLiteral("1 < 2"));
    QCOMPARE(toggle->button()->sizeHint(), toggle->qtSizeHint());
}

void tst_zelQtToggles::aClickOnTheGroupUnchecksTheCheckBox()
{
    RecordedPage page;
    auto *box = new ZelQtCheckBox(QStringLiteral("keine"), &page);
    auto *group = new QCheckBox(QStringLiteral("alle"), &page);
    connect(group, &QCheckBox::clicked, box, &ZelQtCheckBox::reactOnGroupClick);
    box->setChecked(true);
    group->setChecked(true);
    group->click();
    QVERIFY(!group->isChecked());
    QVERIFY(box->isChecked());
    group->click();
    QVERIFY(!box->isChecked());
    QCOMPARE(page.take(), QStringList());
}

QTEST_MAIN(tst_zelQtToggles)
#include "tst_zelQtToggles.moc"
