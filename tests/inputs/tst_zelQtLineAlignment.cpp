#include "openLine.h"
#include "window.h"
#include "zelQtAdvancedLabel.h"
#include "zelQtCustomButtons.h"
#include "zelQtEditButton.h"
#include "zelQtFormulaLabel.h"
#include "zelQtSingleCalcVarInput.h"
#include "zelQtTextHelpers.h"
#include "zelQtUnitLabel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtTest>

using Line = OpenLine<ZelQtCalcVarInput>;

/// Tells how often it was invalidated.
class CountingLayout : public QVBoxLayout
{
public:
    using QVBoxLayout::QVBoxLayout;
    void invalidate() override
    {
        ++mInvalidated;
        QVBoxLayout::invalidate();
    }
    int mInvalidated = 0;
};

class tst_zelQtLineAlignment : public QObject
{
    Q_OBJECT

private slots:
    // one line
    void buttonAreaIsThatOfTheShownButtons();
    void buttonAreaCountsTheExternalWidget();
    void externalWidgetMayGoFirst();
    void spacerFillsTheButtonArea_data();
    void spacerFillsTheButtonArea();
    void spacerTakenOutStaysOutOnPurpose();
    void lineWithoutSpacerCanBeDeleted();
    void columnWithoutWidthIsHidden();
    void promptWidthIsPreferredOnly();

    // checkSize
    void widestLineSetsTheColumns();
    void columnsComeInOrderAndLeaveThePromptOnPurpose();
    void missingInputsCountAHundredOnPurpose();
    void formulaColumnHasRoomForTheWidestFormula();
    void columnWithoutFormulaTakesNoRoom();
    void unitColumnHasRoomForAllUnitsOfTheDimension();
    void nestedWidgetIsAGroupOfItsOwn();
    void globallyAllLinesAreOneGroup();
    void parentIsLaidOutAnew();
    void layoutsWithoutLinesAreLeftAlone();
    void widgetWithoutChildrenIsLeftAlone();
    void secondRunChangesNothing();

    // checkVBoxSize
    void listIsAlignedWithPrompts();
    void listIsAlignedWithoutPrompts();
    void linesUnderAHeaderLeaveRoomForItsWidget();
    void headerTakesTheColumnsLeftOfTheUnit();
    void wideButtonsWinOverTheWidgetOfTheHeader();
    void widgetWithoutLayoutHasNoSpacing();
};

void tst_zelQtLineAlignment::buttonAreaIsThatOfTheShownButtons()
{
    Line line;
    QCOMPARE(line.buttonAreaWidth(), 0);
    line.showPlusButton(true);
    const int plus = line.mPlusButton->sizeHint().width();
    QVERIFY(plus > 0);
    QCOMPARE(line.buttonAreaWidth(), plus);
    line.showOfferButton(true);
    const int both = plus + 6 + line.mOfferButton->sizeHint().width();
    QCOMPARE(line.buttonAreaWidth(), both);
    line.setEditButtonType(ZelQtCalcVarInput::CHECKBOX);
    QCOMPARE(line.buttonAreaWidth(), line.mEditButton->sizeHint().width() + 6 + both);
    line.mEditButton->hide();
    line.showPlusButton(false);
    QCOMPARE(line.buttonAreaWidth(), line.mOfferButton->sizeHint().width());
}

void tst_zelQtLineAlignment::buttonAreaCountsTheExternalWidget()
{
    Line line;
    QLabel external(QStringLiteral("outside"));
    line.setExternal(&external);
    QCOMPARE(line.buttonAreaWidth(), external.sizeHint().width());
    line.showSizeButton(true);
    QCOMPARE(line.buttonAreaWidth(),
             line.mSizeButton->sizeHint().width() + 6 + external.sizeHint().width());
    line.setExternal(nullptr);
    QCOMPARE(line.buttonAreaWidth(), line.mSizeButton->sizeHint().width());
}

void tst_zelQtLineAlignment::externalWidgetMayGoFirst()
{
    Line line;
    {
        const QScopedPointer<QLabel> external(new QLabel(QStringLiteral("outside")));
        line.setExternal(external.data());
    }
    QCOMPARE(line.buttonAreaWidth(), 0);
}

void tst_zelQtLineAlignment::spacerFillsTheButtonArea_data()
{
    QTest::addColumn<bool>("button");
    QTest::addColumn<int>("beyond"); // the width of the buttons
    QTest::addColumn<int>("gap");
    QTest::newRow("no button, a spacing more") << false << 30 << 36;
    QTest::newRow("wider than the buttons") << true << 30 << 30;
    QTest::newRow("as wide as the buttons") << true << 0 << 0;
    QTest::newRow("narrower than the buttons") << true << -5 << 0;
}

void tst_zelQtLineAlignment::spacerFillsTheButtonArea()
{
    QFETCH(bool, button);
    QFETCH(int, beyond);
    QFETCH(int, gap);
    Line line;
    line.showSizeButton(button);
    line.mSpacer->changeSize(77, 5, QSizePolicy::Expanding, QSizePolicy::Fixed);
    line.adjustButtonAreaWidth(line.buttonAreaWidth() + beyond);
    QCOMPARE(line.mSpacer->sizeHint(), QSize(gap, 10));
    QCOMPARE(line.mSpacer->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(line.mSpacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
    QVERIFY(line.mLayout->indexOf(line.mSpacer) != -1);
}

void tst_zelQtLineAlignment::spacerTakenOutStaysOutOnPurpose()
{
    Line line;
    line.adjustButtonAreaWidth(0);
    QCOMPARE(line.mLayout->indexOf(line.mSpacer), -1);
    line.adjustButtonAreaWidth(30);
    QCOMPARE(line.mLayout->indexOf(line.mSpacer), -1);
}

void tst_zelQtLineAlignment::lineWithoutSpacerCanBeDeleted()
{
    // A leak or a second deletion is the leak checker's to find.
    auto line = std::make_unique<Line>();
    line->adjustButtonAreaWidth(0);
    const QPointer<QWidget> guard(line.get());
    line.reset();
    QVERIFY(!guard);
}

void tst_zelQtLineAlignment::columnWithoutWidthIsHidden()
{
    Line line;
    line.adjustFormulaWidth(40);
    line.adjustUnitWidth(50);
    QVERIFY(!line.mFormula->isHidden() && !line.mUnit->isHidden());
    QCOMPARE(line.mFormula->minimumWidth(), 40);
    QCOMPARE(line.mFormula->maximumWidth(), 40);
    QCOMPARE(line.mUnit->minimumWidth(), 50);
    QCOMPARE(line.mUnit->maximumWidth(), 50);
    line.adjustPromptWidth(0);
    line.adjustFormulaWidth(0);
    line.adjustUnitWidth(0);
    QVERIFY(line.mPrompt->isHidden() && line.mFormula->isHidden() && line.mUnit->isHidden());
    line.adjustFormulaWidth(40);
    QVERIFY(!line.mFormula->isHidden());
}

void tst_zelQtLineAlignment::promptWidthIsPreferredOnly()
{
    Line line;
    line.adjustPromptWidth(200);
    QVERIFY(!line.mPrompt->isHidden());
    QCOMPARE(line.mPrompt->sizeHint().width(), 200);
    QVERIFY(line.mPrompt->minimumSizeHint().width() < 200);
    QCOMPARE(line.mPrompt->maximumWidth(), QWIDGETSIZE_MAX);
}

static QStringList columns(int formula, int input, int unit, int buttons)
{
    return {QStringLiteral("formula %1").arg(formula), QStringLiteral("input %1").arg(input),
            QStringLiteral("unit %1").arg(unit), QStringLiteral("buttons %1").arg(buttons)};
}

static int formulaWidth(const ProbeLine &line)
{
    return plainTextWidth(line.formula(), line.mFormula->fontMetrics());
}

static int promptWidth(const ProbeLine &line)
{
    return plainTextWidth(line.prompt(), line.mPrompt->fontMetrics());
}

/// Two lines of which each is the wider one in two columns.
struct TwoLines
{
    explicit TwoLines(QWidget *parent)
        : mFirst(parent)
        , mSecond(parent)
    {
        mFirst.setPrompt(QStringLiteral("short"));
        mFirst.setFormula(QStringLiteral("F<sub>max, total</sub>"));
        mFirst.mInputWidth = 80;
        mFirst.setCurrentUnit(QStringLiteral("N"));
        mSecond.setPrompt(QStringLiteral("much longer prompt"));
        mSecond.setFormula(QStringLiteral("l"));
        mSecond.mInputWidth = 120;
        mSecond.setCurrentUnit(QStringLiteral("mm"));
        mSecond.showSizeButton(true);
        mFirst.take();
        mSecond.take();
    }
    int formula() const { return qMax(formulaWidth(mFirst), formulaWidth(mSecond)); }
    int prompt() const { return qMax(promptWidth(mFirst), promptWidth(mSecond)); }
    int unit() const { return qMax(mFirst.mUnit->absUnitWidth(), mSecond.mUnit->absUnitWidth()); }
    int buttons() const { return mSecond.buttonAreaWidth(); }
    QStringList expected() const { return columns(formula(), 120, unit(), buttons()); }

    ProbeLine mFirst;
    ProbeLine mSecond;
};

void tst_zelQtLineAlignment::widestLineSetsTheColumns()
{
    QWidget page;
    TwoLines lines(&page);
    ZelQtCalcVarInput::checkSize(&page);
    QCOMPARE(lines.mFirst.take(), lines.expected());
    QCOMPARE(lines.mSecond.take(), lines.expected());
    QCOMPARE(lines.mFirst.mFormula->maximumWidth(), lines.mSecond.mFormula->maximumWidth());
    QCOMPARE(lines.mFirst.mUnit->maximumWidth(), lines.mSecond.mUnit->maximumWidth());
    QCOMPARE(lines.mFirst.mSpacer->sizeHint().width(), lines.buttons() + 6);
    QCOMPARE(lines.mSecond.mSpacer->sizeHint().width(), 0);
}

void tst_zelQtLineAlignment::columnsComeInOrderAndLeaveThePromptOnPurpose()
{
    QWidget page;
    ProbeLine line(&page);
    line.setPrompt(QStringLiteral("prompt"));
    const int natural = line.mPrompt->sizeHint().width();
    ZelQtCalcVarInput::checkSize(&page);
    QCOMPARE(line.take(), columns(0, 100, 0, 0));
    QCOMPARE(line.mPrompt->sizeHint().width(), natural);
}

void tst_zelQtLineAlignment::missingInputsCountAHundredOnPurpose()
{
    QWidget page;
    ProbeLine line(&page);
    ZelQtCalcVarInput::checkSize(&page);
    QVERIFY(line.take().contains(QStringLiteral("input 100")));
    ZelQtCalcVarInput::checkSizeGlobally(&page);
    QVERIFY(line.take().contains(QStringLiteral("input 100")));
    ZelQtCalcVarInput::checkVBoxSize({&line}, false);
    QVERIFY(line.take().contains(QStringLiteral("input 100")));
    line.mInputWidth = 7;
    ZelQtCalcVarInput::checkSize(&page);
    QVERIFY(line.take().contains(QStringLiteral("input 7")));
}

void tst_zelQtLineAlignment::formulaColumnHasRoomForTheWidestFormula()
{
    QWidget page;
    ProbeLine line(&page);
    line.setFormula(QStringLiteral("F<sub>max, total</sub>"));
    ZelQtCalcVarInput::checkSize(&page);
    QVERIFY(line.mFormula->maximumWidth() >= line.mFormula->sizeHint().width());
}

void tst_zelQtLineAlignment::columnWithoutFormulaTakesNoRoom()
{
    QWidget page;
    auto *layout = new QVBoxLayout(&page);
    auto *first = new OpenLine<ZelQtSingleCalcVarInput>(&page);
    auto *second = new OpenLine<ZelQtSingleCalcVarInput>(&page);
    layout->addWidget(first);
    layout->addWidget(second);
    first->setPrompt(QStringLiteral("prompt"));
    ZelQtCalcVarInput::checkSize(&page);
    page.show();
    QVERIFY(first->mFormula->isHidden() && second->mFormula->isHidden());
    const ZelQtValueEdit *field = first->fields().at(0);
    QCOMPARE(field->x(), first->mPrompt->geometry().right() + 1 + 6);
}

void tst_zelQtLineAlignment::unitColumnHasRoomForAllUnitsOfTheDimension()
{
    QWidget page;
    ProbeLine line(&page);
    line.setCurrentUnit(QStringLiteral("m"));
    ZelQtCalcVarInput::checkSize(&page);
    const int width = line.mUnit->maximumWidth();
    for (const char *unit : {"mm", "in", "ft"}) {
        line.setCurrentUnit(QLatin1String(unit));
        // The label rounds up what the measure rounds to the nearest.
        QVERIFY(line.mUnit->sizeHint().width() <= width + 1);
    }
    line.take();
    ZelQtCalcVarInput::checkSize(&page);
    QCOMPARE(line.mUnit->maximumWidth(), width);
}

void tst_zelQtLineAlignment::nestedWidgetIsAGroupOfItsOwn()
{
    QWidget page;
    QWidget box(&page);
    QWidget innerBox(&box);
    ProbeLine outer(&page);
    ProbeLine nested(&innerBox);
    outer.mInputWidth = 80;
    nested.mInputWidth = 120;
    ZelQtCalcVarInput::checkSize(&page);
    QCOMPARE(outer.take(), columns(0, 80, 0, 0));
    QCOMPARE(nested.take(), columns(0, 120, 0, 0));
}

void tst_zelQtLineAlignment::globallyAllLinesAreOneGroup()
{
    QWidget page;
    QWidget box(&page);
    QWidget innerBox(&box);
    ProbeLine outer(&page);
    ProbeLine nested(&innerBox);
    outer.mInputWidth = 80;
    nested.mInputWidth = 120;
    ZelQtCalcVarInput::checkSizeGlobally(&page);
    QCOMPARE(outer.take(), columns(0, 120, 0, 0));
    QCOMPARE(nested.take(), columns(0, 120, 0, 0));
}

void tst_zelQtLineAlignment::parentIsLaidOutAnew()
{
    QWidget page;
    auto *layout = new QVBoxLayout(&page);
    auto *first = new OpenLine<ZelQtSingleCalcVarInput>(&page);
    auto *second = new OpenLine<ZelQtSingleCalcVarInput>(&page);
    layout->addWidget(first);
    layout->addWidget(second);
    second->showSizeButton(true);
    page.resize(500, 100);
    page.show();
    QVERIFY(first->fields().at(0)->x() != second->fields().at(0)->x());
    ZelQtCalcVarInput::checkSize(&page);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(first->fields().at(0)->x(), second->fields().at(0)->x());
}

void tst_zelQtLineAlignment::layoutsWithoutLinesAreLeftAlone()
{
    QWidget page;
    auto *layout = new CountingLayout(&page);
    auto *box = new QWidget(&page);
    auto *boxLayout = new CountingLayout(box);
    layout->addWidget(box);
    boxLayout->addWidget(new QPushButton(box));
    layout->mInvalidated = boxLayout->mInvalidated = 0;
    ZelQtCalcVarInput::checkSize(&page);
    QCOMPARE(layout->mInvalidated, 0);
    QCOMPARE(boxLayout->mInvalidated, 0);
    boxLayout->addWidget(new ProbeLine(box));
    boxLayout->mInvalidated = 0;
    ZelQtCalcVarInput::checkSize(&page);
    QVERIFY(boxLayout->mInvalidated > 0);
}

void tst_zelQtLineAlignment::widgetWithoutChildrenIsLeftAlone()
{
    QWidget page;
    page.setFixedSize(50, 60);
    ZelQtCalcVarInput::checkSize(&page);
    ZelQtCalcVarInput::checkSizeGlobally(&page);
    ZelQtCalcVarInput::checkUnits(&page, true);
    QCOMPARE(page.size(), QSize(50, 60));
    QVERIFY(page.children().isEmpty());
}

void tst_zelQtLineAlignment::secondRunChangesNothing()
{
    QWidget page;
    TwoLines lines(&page);
    ZelQtCalcVarInput::checkSize(&page);
    const QSize first = lines.mFirst.sizeHint();
    const QSize second = lines.mSecond.sizeHint();
    ZelQtCalcVarInput::checkSize(&page);
    QCOMPARE(lines.mFirst.sizeHint(), first);
    QCOMPARE(lines.mSecond.sizeHint(), second);
}

void tst_zelQtLineAlignment::listIsAlignedWithPrompts()
{
    QWidget page;
    TwoLines lines(&page);
    ProbeLine outside(&page);
    outside.mInputWidth = 500;
    ZelQtCalcVarInput::checkVBoxSize({&lines.mFirst, &lines.mSecond}, true);
    const QStringList expected =
        QStringList(QStringLiteral("prompt %1").arg(lines.prompt())) + lines.expected();
    QCOMPARE(lines.mFirst.take(), expected);
    QCOMPARE(lines.mSecond.take(), expected);
    QCOMPARE(outside.take(), QStringList());
}

void tst_zelQtLineAlignment::listIsAlignedWithoutPrompts()
{
    QWidget page;
    TwoLines lines(&page);
    ZelQtCalcVarInput::checkVBoxSize({&lines.mFirst, &lines.mSecond}, false);
    QCOMPARE(lines.mFirst.take(), lines.expected());
    QCOMPARE(lines.mSecond.take(), lines.expected());
}

/// A header line and a widget at its right end, in one layout, above two lines.
struct LinesUnderAHeader
{
    explicit LinesUnderAHeader(int width)
    {
        mWidget->setMinimumWidth(width);
        mLayout->setSpacing(9);
        mLayout->addWidget(mHeader);
        mLayout->addWidget(mWidget);
        mHeader->take();
    }
    void check(bool adjustPrompt)
    {
        mWidth = mWidget->sizeHint().width();
        ZelQtCalcVarInput::checkVBoxSize(mHeader, mWidget, {&mLines.mFirst, &mLines.mSecond},
                                         adjustPrompt);
    }

    QWidget mPage;
    QWidget *mBox = new QWidget(&mPage);
    QHBoxLayout *mLayout = new QHBoxLayout(mBox);
    ProbeLine *mHeader = new ProbeLine(mBox);
    QPushButton *mWidget =
        new QPushButton(QStringLiteral("a caption that needs a lot of room"), mBox);
    TwoLines mLines{&mPage};
    int mWidth = 0;
};

void tst_zelQtLineAlignment::linesUnderAHeaderLeaveRoomForItsWidget()
{
    LinesUnderAHeader page(0);
    page.check(true);
    const TwoLines &lines = page.mLines;
    const int buttons = page.mWidth - lines.unit() - 9;
    QVERIFY(buttons > lines.buttons());
    const QStringList expected = QStringList(QStringLiteral("prompt %1").arg(lines.prompt()))
        + columns(lines.formula(), 120, lines.unit(), buttons);
    QCOMPARE(page.mLines.mFirst.take(), expected);
    QCOMPARE(page.mLines.mSecond.take(), expected);
}

void tst_zelQtLineAlignment::headerTakesTheColumnsLeftOfTheUnit()
{
    LinesUnderAHeader page(0);
    page.check(true);
    const QStringList columns = {QStringLiteral("formula %1").arg(page.mLines.formula()),
                                 QStringLiteral("input 120")};
    QCOMPARE(page.mHeader->take(),
             QStringList(QStringLiteral("prompt %1").arg(page.mLines.prompt())) + columns);
    QVERIFY(page.mHeader->mUnit->isHidden());
    page.check(false);
    QCOMPARE(page.mHeader->take(), columns);
}

void tst_zelQtLineAlignment::wideButtonsWinOverTheWidgetOfTheHeader()
{
    LinesUnderAHeader page(0);
    page.mWidget->setText(QStringLiteral("x"));
    page.mLines.mSecond.showConvertButton(true);
    page.mLines.mSecond.showPlusButton(true);
    page.mLines.mSecond.showInfoButton(true);
    page.mLines.mSecond.showOfferButton(true);
    page.check(false);
    QVERIFY(page.mWidth - page.mLines.unit() - 9 < page.mLines.buttons());
    QCOMPARE(page.mLines.mFirst.take(), page.mLines.expected());
}

void tst_zelQtLineAlignment::widgetWithoutLayoutHasNoSpacing()
{
    QWidget page;
    TwoLines lines(&page);
    ProbeLine header;
    QPushButton widget(QStringLiteral("a caption that needs a lot of room"));
    ZelQtCalcVarInput::checkVBoxSize(&header, &widget, {&lines.mFirst, &lines.mSecond}, false);
    QCOMPARE(lines.mFirst.take(),
             columns(lines.formula(), 120, lines.unit(), widget.sizeHint().width() - lines.unit()));
}

QTEST_MAIN(tst_zelQtLineAlignment)
#include "tst_zelQtLineAlignment.moc"
