#include "zelQtCalcVarInput.h"

#include "openLine.h"
#include "zelQtAdvancedLabel.h"
#include "zelQtCheckBox.h"
#include "zelQtCustomButtons.h"
#include "zelQtEditButton.h"
#include "zelQtFormulaLabel.h"
#include "zelQtRadioButton.h"
#include "zelQtUnitLabel.h"

#include <QHBoxLayout>
#include <QtTest>

using Line = OpenLine<ZelQtCalcVarInput>;
using Type = ZelQtCalcVarInput::EditButtonType;
Q_DECLARE_METATYPE(Type)

class tst_zelQtCalcVarInput : public QObject
{
    Q_OBJECT

private slots:
    // construction
    void standsInOrder();
    void spacerStartsWithoutWidth();
    void growsSidewaysOnly();
    void freshLineShowsPromptFormulaAndUnitAndNoButton();
    void tabSkipsTheButtons();
    void baseHasNoInput();

    // connections
    void clickRaisesTheSignalOfTheButton_data();
    void clickRaisesTheSignalOfTheButton();
    void infoButtonReportsToTheHost();
    void clickOnTheEditButtonComesInThisOrder_data();
    void clickOnTheEditButtonComesInThisOrder();
    void unitOfTheLabelReachesTheInput();
    void currentUnitReachesTheInputBeforeTheLabel();
    void disabledChangeSilencesTheEditButton();
    void disabledConfirmationSilencesTheEditButton();

    // edit button
    void setEditableBringsTheCheckMarkIntoLine_data();
    void setEditableBringsTheCheckMarkIntoLine();
    void setEditableIsSilent();
    void setEditableKeepsAFormerBlock();
    void setEditableOnTheLabelPageLeavesTheCheckMarks();
    void readOnlyIsTheOpposite();
    void toggleOpensOrClosesTheInput_data();
    void toggleOpensOrClosesTheInput();
    void toggleByTheProgramWorksLikeTheUsersWithoutClick();
    void typePicksThePage_data();
    void typePicksThePage();
    void typeBringsTheCheckMarkIntoLine();
    void modeBringsTheCheckMarkIntoLine();
    void ownToolTipReplacesTheDefaultOnes();
    void editButtonCanBeDisabled();
    void radioButtonIsThatOfTheEditButton();
};

void tst_zelQtCalcVarInput::standsInOrder()
{
    const Line line;
    QVector<QWidget *> expected = {line.mPrompt, line.mFormula, line.mUnit, line.mEditButton,
                                   nullptr};
    expected += line.smallButtons();
    QVector<QWidget *> found;
    for (int i = 0; i < line.mLayout->count(); ++i)
        found.append(line.mLayout->itemAt(i)->widget());
    QCOMPARE(found, expected);
    QCOMPARE(line.mLayout->itemAt(4), static_cast<QLayoutItem *>(line.mSpacer));
    QCOMPARE(line.mLayout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(line.mLayout->spacing(), 6);
}

void tst_zelQtCalcVarInput::spacerStartsWithoutWidth()
{
    const Line line;
    QCOMPARE(line.mSpacer->sizeHint(), QSize(0, 10));
    QCOMPARE(line.mSpacer->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(line.mSpacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
}

void tst_zelQtCalcVarInput::growsSidewaysOnly()
{
    QCOMPARE(Line().sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed));
}

void tst_zelQtCalcVarInput::freshLineShowsPromptFormulaAndUnitAndNoButton()
{
    Line line;
    line.show();
    QVERIFY(line.mPrompt->isVisible());
    QVERIFY(line.mFormula->isVisible());
    QVERIFY(line.mUnit->isVisible());
    QVERIFY(!line.mEditButton->isVisible());
    const auto buttons = line.smallButtons();
    for (const QWidget *button : buttons)
        QVERIFY(!button->isVisible());
    QVERIFY(!line.sizeButton());
}

void tst_zelQtCalcVarInput::tabSkipsTheButtons()
{
    const Line line;
    QVector<QWidget *> buttons = line.smallButtons();
    buttons << line.mEditButton->checkBoxWidget() << line.mEditButton->radioButtonWidget();
    for (const QWidget *button : qAsConst(buttons))
        QCOMPARE(button->focusPolicy(), Qt::ClickFocus);
}

void tst_zelQtCalcVarInput::baseHasNoInput()
{
    Line line;
    line.setDefaultUnit(QStringLiteral("mm"));
    QCOMPARE(line.defaultUnit(), QString());
    line.setEditable(true);
    QVERIFY(!line.isEditable());
    QCOMPARE(line.inputWidth(), 0);
    line.setCurrentUnit(QStringLiteral("m"));
    QCOMPARE(line.currentUnit(), QStringLiteral("m"));
    line.resize(400, line.sizeHint().height());
    line.show();
    QCOMPARE(line.unitWidth(), line.mUnit->width());
}

static void recordLine(EventRecorder &recorder, ZelQtCalcVarInput *line)
{
    using L = ZelQtCalcVarInput;
    recorder.record(line, &L::inputValueChanged, QStringLiteral("inputValueChanged"));
    recorder.record(line, &L::inputValueConfirmed, QStringLiteral("inputValueConfirmed"));
    recorder.recordArguments(line, &L::editButtonClicked, QStringLiteral("editButtonClicked"));
    recorder.record(line, &L::sizeButtonClicked, QStringLiteral("sizeButtonClicked"));
    recorder.record(line, &L::convertButtonClicked, QStringLiteral("convertButtonClicked"));
    recorder.record(line, &L::plusButtonClicked, QStringLiteral("plusButtonClicked"));
    recorder.record(line, &L::databaseButtonClicked, QStringLiteral("databaseButtonClicked"));
    recorder.record(line, &L::settingsButtonClicked, QStringLiteral("settingsButtonClicked"));
    recorder.record(line, &L::offerButtonClicked, QStringLiteral("offerButtonClicked"));
}

void tst_zelQtCalcVarInput::clickRaisesTheSignalOfTheButton_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<QStringList>("signalsOfTheLine");
    const char *names[] = {"size", "convert", "plus", "database", "settings", "info", "offer"};
    for (int i = 0; i < 7; ++i) {
        const QString name = QLatin1String(names[i]) + QStringLiteral("ButtonClicked");
        QTest::newRow(names[i]) << i << (i == 5 ? QStringList() : QStringList(name));
    }
}

void tst_zelQtCalcVarInput::clickRaisesTheSignalOfTheButton()
{
    QFETCH(int, button);
    QFETCH(QStringList, signalsOfTheLine);
    Line line;
    EventRecorder recorder;
    recordLine(recorder, &line);
    line.smallButtons().at(button)->show();
    line.show();
    QTest::mouseClick(line.smallButtons().at(button), Qt::LeftButton);
    QCOMPARE(recorder.take(), signalsOfTheLine);
}

void tst_zelQtCalcVarInput::infoButtonReportsToTheHost()
{
    RecordedPage page;
    Line line(&page);
    recordLine(page.mRecorder, &line);
    line.setInfoId(12);
    line.showInfoButton(true);
    line.resize(300, 40);
    page.show();
    QTest::mouseClick(line.mInfoButton, Qt::LeftButton);
    QCOMPARE(page.take(), QStringList(QStringLiteral("host infoChanged(12)")));
}

void tst_zelQtCalcVarInput::clickOnTheEditButtonComesInThisOrder_data()
{
    QTest::addColumn<Type>("type");
    QTest::newRow("check box") << Type::CHECKBOX;
    QTest::newRow("radio button") << Type::RADIOBUTTON;
}

static QAbstractButton *currentButton(const ZelQtEditButton *edit)
{
    return qobject_cast<QAbstractButton *>(edit->currentWidget());
}

void tst_zelQtCalcVarInput::clickOnTheEditButtonComesInThisOrder()
{
    QFETCH(Type, type);
    RecordedPage page;
    ProbeLine line(&page);
    line.setEditButtonType(type);
    recordLine(page.mRecorder, &line);
    page.mRecorder.recordProtocol(line.mEditButton, QStringLiteral("edit button"));
    connect(line.mEditButton, &ZelQtEditButton::toggled, this, [&] {
        page.mRecorder.add(line.mEditable ? QStringLiteral("open") : QStringLiteral("closed"));
    });
    page.show();
    currentButton(line.mEditButton)->click();
    // The input follows at once; button and page of it both take part in the protocol.
    QCOMPARE(page.take(),
             QStringList(
                 {QStringLiteral("open"), QStringLiteral("host valueChanged"),
                  QStringLiteral("host valueConfirmed"), QStringLiteral("host valueChanged"),
                  QStringLiteral("edit button valueChanged"), QStringLiteral("host valueConfirmed"),
                  QStringLiteral("edit button valueConfirmed"),
                  QStringLiteral("editButtonClicked(true)")}));
}

void tst_zelQtCalcVarInput::unitOfTheLabelReachesTheInput()
{
    ProbeLine line;
    line.mUnit->setCurrentUnit(QStringLiteral("mm"));
    QCOMPARE(line.take(), QStringList(QStringLiteral("unit 'mm' at 'mm'")));
    line.mUnit->setCurrentUnit(QStringLiteral("mm"));
    QCOMPARE(line.take(), QStringList());
}

void tst_zelQtCalcVarInput::currentUnitReachesTheInputBeforeTheLabel()
{
    ProbeLine line;
    line.setCurrentUnit(QStringLiteral("mm"));
    line.take();
    line.setCurrentUnit(QStringLiteral("m"));
    QCOMPARE(line.take(),
             QStringList({QStringLiteral("unit 'm' at 'mm'"), QStringLiteral("unit 'm' at 'm'")}));
    QCOMPARE(line.currentUnit(), QStringLiteral("m"));
}

void tst_zelQtCalcVarInput::disabledChangeSilencesTheEditButton()
{
    Line line;
    line.setEditButtonType(Type::CHECKBOX);
    EventRecorder recorder;
    recorder.recordProtocol(line.mEditButton, QStringLiteral("edit button"));
    line.disableValueChanged();
    line.mEditButton->checkBoxWidget()->click();
    line.mEditButton->radioButtonWidget()->click();
    const QString confirmed = QStringLiteral("edit button valueConfirmed");
    QCOMPARE(recorder.take(), QStringList({confirmed, confirmed}));
}

void tst_zelQtCalcVarInput::disabledConfirmationSilencesTheEditButton()
{
    Line line;
    line.setEditButtonType(Type::CHECKBOX);
    EventRecorder recorder;
    recorder.recordProtocol(line.mEditButton, QStringLiteral("edit button"));
    line.disableValueConfirmed();
    line.mEditButton->checkBoxWidget()->click();
    line.mEditButton->radioButtonWidget()->click();
    const QString changed = QStringLiteral("edit button valueChanged");
    QCOMPARE(recorder.take(), QStringList({changed, changed}));
}

void tst_zelQtCalcVarInput::setEditableBringsTheCheckMarkIntoLine_data()
{
    QTest::addColumn<Type>("type");
    QTest::addColumn<bool>("mode");
    QTest::addColumn<bool>("editable");
    QTest::addColumn<bool>("checked");
    for (const Type type : {Type::CHECKBOX, Type::RADIOBUTTON}) {
        const char *page = type == Type::CHECKBOX ? "check box" : "radio button";
        QTest::addRow("%s, checked is entered, open", page) << type << true << true << true;
        QTest::addRow("%s, checked is entered, closed", page) << type << true << false << false;
        QTest::addRow("%s, checked is computed, open", page) << type << false << true << false;
        QTest::addRow("%s, checked is computed, closed", page) << type << false << false << true;
    }
}

void tst_zelQtCalcVarInput::setEditableBringsTheCheckMarkIntoLine()
{
    QFETCH(Type, type);
    QFETCH(bool, mode);
    QFETCH(bool, editable);
    QFETCH(bool, checked);
    ProbeLine line;
    line.setEditButtonType(type);
    line.setEditButtonMode(mode);
    currentButton(line.mEditButton)->setChecked(!checked);
    line.take();
    line.setEditable(editable);
    QCOMPARE(line.mEditButton->isChecked(), checked);
    QCOMPARE(line.mEditable, editable);
}

void tst_zelQtCalcVarInput::setEditableIsSilent()
{
    ProbeLine line;
    line.setEditButtonType(Type::CHECKBOX);
    EventRecorder recorder;
    recordLine(recorder, &line);
    recorder.recordProtocol(line.mEditButton, QStringLiteral("edit button"));
    recorder.record(line.mEditButton, &ZelQtEditButton::toggled, QStringLiteral("toggled"));
    line.take();
    line.setEditable(true);
    QVERIFY(line.mEditButton->isChecked());
    QCOMPARE(recorder.take(), QStringList());
    // Once: the check mark doesn't come back through the slot.
    QCOMPARE(line.take(), QStringList(QStringLiteral("input open")));
}

void tst_zelQtCalcVarInput::setEditableKeepsAFormerBlock()
{
    Line line;
    line.mEditButton->blockSignals(true);
    line.setEditable(true);
    QVERIFY(line.mEditButton->signalsBlocked());
    line.mEditButton->blockSignals(false);
    line.setEditable(false);
    QVERIFY(!line.mEditButton->signalsBlocked());
}

void tst_zelQtCalcVarInput::setEditableOnTheLabelPageLeavesTheCheckMarks()
{
    ProbeLine line;
    line.setEditButtonType(Type::LABEL);
    line.setSizeButtonMode(true);
    line.mEditButton->checkBoxWidget()->setChecked(false);
    line.setEditable(true);
    QVERIFY(line.mEditable);
    QVERIFY(line.mSizeButton->isEnabled());
    QVERIFY(!line.mEditButton->checkBoxWidget()->isChecked());
    QVERIFY(!line.mEditButton->radioButtonWidget()->isChecked());
}

void tst_zelQtCalcVarInput::readOnlyIsTheOpposite()
{
    ProbeLine line;
    line.setReadOnly(false);
    QVERIFY(line.mEditable);
    line.setReadOnly(true);
    QVERIFY(!line.mEditable);
}

void tst_zelQtCalcVarInput::toggleOpensOrClosesTheInput_data()
{
    QTest::addColumn<Type>("type");
    QTest::addColumn<bool>("mode");
    for (const Type type : {Type::CHECKBOX, Type::RADIOBUTTON}) {
        const char *page = type == Type::CHECKBOX ? "check box" : "radio button";
        QTest::addRow("%s, checked is entered", page) << type << true;
        QTest::addRow("%s, checked is computed", page) << type << false;
    }
}

void tst_zelQtCalcVarInput::toggleOpensOrClosesTheInput()
{
    QFETCH(Type, type);
    QFETCH(bool, mode);
    ProbeLine line;
    line.setEditButtonType(type);
    line.setEditButtonMode(mode);
    line.setEditable(false);
    line.take();
    currentButton(line.mEditButton)->click();
    QCOMPARE(line.take(), QStringList(QStringLiteral("input open")));
    QCOMPARE(line.mEditButton->isChecked(), mode);
    currentButton(line.mEditButton)->click();
    QCOMPARE(line.take(), QStringList(QStringLiteral("input closed")));
}

void tst_zelQtCalcVarInput::toggleByTheProgramWorksLikeTheUsersWithoutClick()
{
    ProbeLine line;
    line.setEditButtonType(Type::CHECKBOX);
    EventRecorder recorder;
    recordLine(recorder, &line);
    line.take();
    line.mEditButton->checkBoxWidget()->setChecked(true);
    QCOMPARE(line.take(), QStringList(QStringLiteral("input open")));
    QCOMPARE(recorder.take(), QStringList());
}

void tst_zelQtCalcVarInput::typePicksThePage_data()
{
    QTest::addColumn<Type>("type");
    QTest::addColumn<int>("page");
    QTest::newRow("label") << Type::LABEL << 0;
    QTest::newRow("check box") << Type::CHECKBOX << 1;
    QTest::newRow("radio button") << Type::RADIOBUTTON << 2;
}

void tst_zelQtCalcVarInput::typePicksThePage()
{
    QFETCH(Type, type);
    QFETCH(int, page);
    Line line;
    line.setEditButtonType(type);
    QCOMPARE(line.mEditButton->currentIndex(), page);
    QCOMPARE(line.editButtonType(), type);
    QVERIFY(!line.mEditButton->isHidden());
}

void tst_zelQtCalcVarInput::typeBringsTheCheckMarkIntoLine()
{
    ProbeLine line;
    line.setEditable(true);
    line.setEditButtonType(Type::RADIOBUTTON);
    QVERIFY(line.mEditButton->isChecked());
    line.setEditable(false);
    line.setEditButtonType(Type::CHECKBOX);
    QVERIFY(!line.mEditButton->isChecked());
}

void tst_zelQtCalcVarInput::modeBringsTheCheckMarkIntoLine()
{
    ProbeLine line;
    line.setEditButtonType(Type::CHECKBOX);
    line.setEditable(true);
    QVERIFY(line.mEditButton->isChecked());
    line.setEditButtonMode(false);
    QVERIFY(!line.mEditButton->isChecked());
    QVERIFY(line.mEditable);
}

void tst_zelQtCalcVarInput::ownToolTipReplacesTheDefaultOnes()
{
    Line line;
    QVERIFY(!line.mEditButton->checkBoxWidget()->toolTip().isEmpty());
    line.setEditButtonToolTip(QStringLiteral("own tip"));
    QCOMPARE(line.mEditButton->toolTip(), QStringLiteral("own tip"));
    QCOMPARE(line.mEditButton->checkBoxWidget()->toolTip(), QString());
    QCOMPARE(line.mEditButton->radioButtonWidget()->toolTip(), QString());
}

void tst_zelQtCalcVarInput::editButtonCanBeDisabled()
{
    Line line;
    line.enableEditButton(false);
    QVERIFY(!line.mEditButton->isEnabled());
    line.enableEditButton(true);
    QVERIFY(line.mEditButton->isEnabled());
}

void tst_zelQtCalcVarInput::radioButtonIsThatOfTheEditButton()
{
    const Line line;
    QCOMPARE(line.radioButtonWidget(),
             static_cast<QRadioButton *>(line.mEditButton->radioButtonWidget()));
}

QTEST_MAIN(tst_zelQtCalcVarInput)
#include "tst_zelQtCalcVarInput.moc"
