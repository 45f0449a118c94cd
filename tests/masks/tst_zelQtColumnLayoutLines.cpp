#include "zelQtColumnLayout.h"

#include "maskParts.h"
#include "zelQtSpacer.h"
#include "zelQtStdButtonBox.h"
#include "zelUIButtonBox.h"
#include "zelUIEditButton.h"
#include "zelUIFileElement.h"
#include "zelUIFlag.h"
#include "zelUIFlagElement.h"
#include "zelUIFormulaLabel.h"
#include "zelUIInput.h"
#include "zelUINotepad.h"
#include "zelUINotepadElement.h"
#include "zelUIPushButton.h"
#include "zelUIStdElement.h"
#include "zelUITextElement.h"
#include "zelUITextLabel.h"
#include "zelUIUnitLabel.h"
#include "zelUIViewElement.h"

#include <QtTest>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>

Q_DECLARE_METATYPE(ZelUIAlignment)

namespace {

class Label : public QLabel, public ZelUITextLabel
{
public:
    explicit Label(ZelUIAlignment alignment = ZelUIAlignment::Left)
        : ZelUITextLabel(alignment)
    {
    }
};
using Symbol = Part<QLabel, ZelUIFormulaLabel>;
using Input = Part<QLineEdit, ZelUIInput>;
using EditButton = Part<QCheckBox, ZelUIEditButton>;
using Unit = Part<QLabel, ZelUIUnitLabel>;
using Button = Part<QPushButton, ZelUIPushButton>;
using Flag = Part<QCheckBox, ZelUIFlag>;
using Notepad = Part<QTextEdit, ZelUINotepad>;
using View = Part<QFrame, ZelUIViewElement>;

/// A window with a column in it, the elements in the column, and their parts.
struct Mask
{
    PartOwner mParts;
    QWidget mWindow;
    ZelQtColumnLayout *mColumn = new ZelQtColumnLayout(&mWindow);

    QStringList grid() const { return describeGrid(mColumn); }
};

// The parts of a line by their names: "label in1 in2 edit1 file1 spacer unit icons" and so on.
template <class Element> void fillLine(Element &element, PartOwner &parts, const QString &recipe)
{
    for (const QString &name : recipe.split(' ', Qt::SkipEmptyParts)) {
        if (name == "label")
            element.mLabel = parts.make<Label>(name);
        else if (name == "symbol")
            element.mFormulaLabel = parts.make<Symbol>(name);
        else if (name.startsWith("in"))
            element.mInputs.push_back(parts.make<Input>(name));
        else if (name.startsWith("edit"))
            element.mEditButtons.push_back(parts.make<EditButton>(name));
        else if (name == "spacer")
            element.mSpacer = parts.make<ZelQtSpacer>(name);
        else if (name == "unit")
            element.mUnitLabel = parts.make<Unit>(name);
        else if (name == "icons")
            element.mIconBox = parts.make<ZelQtStdButtonBox>(name);
        else
            qFatal("unknown part %s", qPrintable(name));
    }
}

} // namespace

class tst_zelQtColumnLayoutLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void standardElement_data();
    void standardElement();
    void fileElement_data();
    void fileElement();
    void textElement_data();
    void textElement();
    void textAlignmentTakesItsSpan_data();
    void textAlignmentTakesItsSpan();
    void flagElement_data();
    void flagElement();
    void viewSpansWhatTheModelSays();
    void notepadSpansWhatTheModelSays();
    void expandingViewStretchesTheColumnBehindTheGrid();
    void buttonElementSpansTheWholeLine_data();
    void buttonElementSpansTheWholeLine();
    void buttonElementStandsInRowOneOfAnEmptyColumnAsMeant();
    void buttonElementWithoutButtonPlacesNothing();
    void iconButtonsStandInARowOfTheirBox();
    void emptyIconBoxKeepsItsColumn();
    void iconButtonsCanStandFurtherRight();
    void partThatIsNoWidgetIsSkipped();
    void partsBelongToTheWindowAfterwards();
};

void tst_zelQtColumnLayoutLines::standardElement_data()
{
    QTest::addColumn<QString>("parts");
    QTest::addColumn<QStringList>("grid");
    QTest::newRow("all parts, one input") << "label symbol in1 edit1 unit icons"
                                          << QStringList({"0,0 label", "0,1 symbol", "0,2 in1",
                                                          "0,3 edit1", "0,4 unit", "0,5 icons"});
    QTest::newRow("spacer instead of the edit button")
        << "label in1 spacer" << QStringList({"0,0 label", "0,2 in1", "0,3 spacer"});
    QTest::newRow("edit button before the spacer")
        << "label in1 edit1 spacer" << QStringList({"0,0 label", "0,2 in1", "0,3 edit1"});
    QTest::newRow("symbol without label") << "symbol in1" << QStringList({"0,1 symbol", "0,2 in1"});
    QTest::newRow("one input alone starts at the left edge") << "in1" << QStringList("0,0 1x3 in1");
    QTest::newRow("one input without prompt, with the rest")
        << "in1 edit1 unit icons"
        << QStringList({"0,0 1x3 in1", "0,3 edit1", "0,4 unit", "0,5 icons"});
    QTest::newRow("one input, two edit buttons: only the spacer")
        << "label in1 edit1 edit2 spacer" << QStringList({"0,0 label", "0,2 in1", "0,3 spacer"});
    QTest::newRow("two inputs") << "label in1 in2 unit"
                                << QStringList({"0,0 label", "0,2 [in1 in2]", "0,4 unit"});
    QTest::newRow("two inputs without prompt stay in their column")
        << "in1 in2" << QStringList("0,2 [in1 in2]");
    QTest::newRow("two inputs, one edit button")
        << "label in1 in2 edit1 spacer" << QStringList({"0,0 label", "0,2 [in1 in2]", "0,3 edit1"});
    QTest::newRow("two inputs with spacer")
        << "label in1 in2 spacer" << QStringList({"0,0 label", "0,2 [in1 in2]", "0,3 spacer"});
    QTest::newRow("two inputs, two edit buttons: no spacer")
        << "label in1 in2 edit1 edit2 spacer unit icons"
        << QStringList({"0,0 label", "0,2 [in1 edit1 in2 edit2]", "0,4 unit", "0,5 icons"});
    QTest::newRow("three inputs, three edit buttons")
        << "in1 in2 in3 edit1 edit2 edit3" << QStringList("0,2 [in1 edit1 in2 edit2 in3 edit3]");
    QTest::newRow("three inputs, two edit buttons")
        << "in1 in2 in3 edit1 edit2" << QStringList("0,2 [in1 edit1 in2 edit2 in3]");
    QTest::newRow("two inputs, three edit buttons")
        << "in1 in2 edit1 edit2 edit3" << QStringList("0,2 [in1 edit1 in2 edit2]");
    QTest::newRow("no input") << "label unit" << QStringList({"0,0 label", "0,2 []", "0,4 unit"});
}

void tst_zelQtColumnLayoutLines::standardElement()
{
    QFETCH(QString, parts);
    Mask mask;
    ZelUIStdElement element;
    fillLine(element, mask.mParts, parts);
    mask.mColumn->addStdElement(&element);
    QTEST(mask.grid(), "grid");
}

void tst_zelQtColumnLayoutLines::fileElement_data()
{
    QTest::addColumn<QString>("parts");
    QTest::addColumn<int>("fileButtons");
    QTest::addColumn<QStringList>("grid");
    QTest::newRow("one input: its file button is not placed, as meant")
        << "label in1 edit1 icons" << 1
        << QStringList({"0,0 label", "0,2 in1", "0,3 edit1", "0,5 icons"});
    QTest::newRow("one input without label") << "in1" << 1 << QStringList("0,0 1x3 in1");
    QTest::newRow("symbol, unit and spacer have no place")
        << "symbol in1 unit spacer" << 1 << QStringList("0,2 in1");
    QTest::newRow("one input, two edit buttons")
        << "label in1 edit1 edit2" << 1 << QStringList({"0,0 label", "0,2 in1"});
    QTest::newRow("two inputs") << "label in1 in2 icons" << 2
                                << QStringList(
                                       {"0,0 label", "0,2 [in1 file1 in2 file2]", "0,5 icons"});
    QTest::newRow("two inputs, one edit button")
        << "label in1 in2 edit1" << 2
        << QStringList({"0,0 label", "0,2 [in1 file1 in2 file2]", "0,3 edit1"});
    QTest::newRow("two inputs, two edit buttons")
        << "label in1 in2 edit1 edit2 spacer" << 2
        << QStringList({"0,0 label", "0,2 [in1 file1 edit1 in2 file2 edit2]"});
    QTest::newRow("a file button missing") << "in1 in2" << 1 << QStringList("0,2 [in1 file1 in2]");
}

void tst_zelQtColumnLayoutLines::fileElement()
{
    QFETCH(QString, parts);
    QFETCH(int, fileButtons);
    Mask mask;
    ZelUIFileElement element;
    fillLine(element, mask.mParts, parts);
    for (int i = 1; i <= fileButtons; ++i)
        element.mFileButtons.push_back(mask.mParts.make<Button>(QString("file%1").arg(i)));
    mask.mColumn->addFileElement(&element);
    QTEST(mask.grid(), "grid");
}

void tst_zelQtColumnLayoutLines::textElement_data()
{
    QTest::addColumn<bool>("label");
    QTest::addColumn<int>("values");
    QTest::addColumn<QStringList>("grid");
    QTest::newRow("label alone") << true << 0 << QStringList("0,0 1x6 label left");
    QTest::newRow("one value") << true << 1 << QStringList({"0,0 1x6 label left", "0,2 value1"});
    QTest::newRow("several values")
        << true << 3 << QStringList({"0,0 1x6 label left", "0,2 [value1 value2 value3]"});
    QTest::newRow("values without label") << false << 2 << QStringList("0,2 [value1 value2]");
    QTest::newRow("nothing") << false << 0 << QStringList();
}

void tst_zelQtColumnLayoutLines::textElement()
{
    QFETCH(bool, label);
    QFETCH(int, values);
    Mask mask;
    ZelUITextElement element;
    if (label)
        element.mLabel = mask.mParts.make<Label>("label");
    for (int i = 1; i <= values; ++i)
        element.mValueLabels.push_back(mask.mParts.make<Label>(QString("value%1").arg(i)));
    mask.mColumn->addTextElement(&element);
    QTEST(mask.grid(), "grid");
}

void tst_zelQtColumnLayoutLines::textAlignmentTakesItsSpan_data()
{
    QTest::addColumn<ZelUIAlignment>("alignment");
    QTest::addColumn<QString>("cell");
    QTest::newRow("left") << ZelUIAlignment::Left << "0,0 1x6 label left";
    QTest::newRow("right leaves the icons free") << ZelUIAlignment::Right << "0,0 1x5 label";
    QTest::newRow("centre") << ZelUIAlignment::Center << "0,0 1x6 label centre";
    QTest::newRow("any other") << static_cast<ZelUIAlignment>(7) << "0,0 1x6 label right";
}

void tst_zelQtColumnLayoutLines::textAlignmentTakesItsSpan()
{
    QFETCH(ZelUIAlignment, alignment);
    QFETCH(QString, cell);
    Mask mask;
    ZelUITextElement element;
    auto *label = new Label(alignment);
    label->setObjectName("label");
    element.mLabel = label;
    mask.mColumn->addTextElement(&element);
    QCOMPARE(mask.grid(), QStringList(cell));
}

void tst_zelQtColumnLayoutLines::flagElement_data()
{
    QTest::addColumn<bool>("icons");
    QTest::addColumn<QStringList>("grid");
    QTest::newRow("alone") << false << QStringList("0,0 1x5 flag");
    QTest::newRow("with icon box") << true << QStringList({"0,0 1x5 flag", "0,5 icons"});
}

void tst_zelQtColumnLayoutLines::flagElement()
{
    QFETCH(bool, icons);
    Mask mask;
    ZelUIFlagElement element;
    element.mFlag = mask.mParts.make<Flag>("flag");
    if (icons)
        element.mIconBox = mask.mParts.make<ZelQtStdButtonBox>("icons");
    mask.mColumn->addFlagElement(&element);
    QTEST(mask.grid(), "grid");
}

void tst_zelQtColumnLayoutLines::viewSpansWhatTheModelSays()
{
    Mask mask;
    mask.mColumn->addViewElement(mask.mParts.make<View>("view"), false, 7);
    QCOMPARE(mask.grid(), QStringList("0,0 1x7 view"));
    QCOMPARE(mask.mColumn->columnStretch(ZelUIColumn::mColSpan), 0);
}

void tst_zelQtColumnLayoutLines::notepadSpansWhatTheModelSays()
{
    Mask mask;
    ZelUINotepadElement element;
    element.mNotepad = mask.mParts.make<Notepad>("notepad");
    mask.mColumn->addNotepadElement(&element, false, 4);
    QCOMPARE(mask.grid(), QStringList("0,0 1x4 notepad"));
    QCOMPARE(mask.mColumn->columnCount(), 4);
}

void tst_zelQtColumnLayoutLines::expandingViewStretchesTheColumnBehindTheGrid()
{
    Mask withView;
    withView.mColumn->addViewElement(withView.mParts.make<View>("view"), true, 6);
    QCOMPARE(withView.mColumn->columnStretch(6), 10);

    Mask withNotepad;
    ZelUINotepadElement element;
    element.mNotepad = withNotepad.mParts.make<Notepad>("notepad");
    withNotepad.mColumn->addNotepadElement(&element, true, 6);
    QCOMPARE(withNotepad.mColumn->columnStretch(6), 10);
}

void tst_zelQtColumnLayoutLines::buttonElementSpansTheWholeLine_data()
{
    QTest::addColumn<ZelUIAlignment>("alignment");
    QTest::addColumn<QString>("cell");
    QTest::newRow("left") << ZelUIAlignment::Left << "1,0 1x6 button left";
    QTest::newRow("right") << ZelUIAlignment::Right << "1,0 1x6 button right";
    QTest::newRow("centre") << ZelUIAlignment::Center << "1,0 1x6 button centre";
    QTest::newRow("any other") << static_cast<ZelUIAlignment>(-1) << "1,0 1x6 button right";
}

void tst_zelQtColumnLayoutLines::buttonElementSpansTheWholeLine()
{
    QFETCH(ZelUIAlignment, alignment);
    QFETCH(QString, cell);
    Mask mask;
    ZelUIFlagElement above;
    above.mFlag = mask.mParts.make<Flag>("flag");
    mask.mColumn->addFlagElement(&above);
    ZelUIButtonBox element;
    element.mButton = mask.mParts.make<Button>("button");
    element.mAlignment = alignment;

    mask.mColumn->addButtonElement(&element);

    QCOMPARE(mask.grid(), QStringList({"0,0 1x5 flag", cell}));
}

void tst_zelQtColumnLayoutLines::buttonElementStandsInRowOneOfAnEmptyColumnAsMeant()
{
    Mask mask;
    ZelUIButtonBox element;
    element.mButton = mask.mParts.make<Button>("button");
    mask.mColumn->addButtonElement(&element);
    QCOMPARE(mask.grid(), QStringList("1,0 1x6 button left"));
}

void tst_zelQtColumnLayoutLines::buttonElementWithoutButtonPlacesNothing()
{
    Mask mask;
    ZelUIButtonBox element;
    mask.mColumn->addButtonElement(&element);
    QCOMPARE(mask.grid(), QStringList());
}

void tst_zelQtColumnLayoutLines::iconButtonsStandInARowOfTheirBox()
{
    Mask mask;
    ZelUIFlagElement element;
    element.mFlag = mask.mParts.make<Flag>("flag");
    auto *box = mask.mParts.make<ZelQtStdButtonBox>("icons");
    box->modelAddButton(mask.mParts.make<Button>("first"));
    box->modelAddButton(mask.mParts.make<Button>("second"));
    element.mIconBox = box;

    mask.mColumn->addFlagElement(&element);

    auto *line = qobject_cast<QHBoxLayout *>(box->layout());
    QVERIFY(line);
    QCOMPARE(describeBox(line), QString("[first second]"));
    QCOMPARE(line->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(line->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(line->spacing(), 1);
}

void tst_zelQtColumnLayoutLines::emptyIconBoxKeepsItsColumn()
{
    Mask mask;
    ZelUIFlagElement element;
    auto *box = mask.mParts.make<ZelQtStdButtonBox>("icons");
    element.mIconBox = box;
    mask.mColumn->addFlagElement(&element);
    QCOMPARE(mask.grid(), QStringList("0,5 icons"));
    QVERIFY(!box->layout());
}

void tst_zelQtColumnLayoutLines::iconButtonsCanStandFurtherRight()
{
    struct Column : ZelQtColumnLayout
    {
        using ZelQtColumnLayout::addIconButtons;
    };
    PartOwner parts;
    QWidget window;
    auto *column = new Column;
    window.setLayout(column);
    column->addIconButtons(3, 1, parts.make<ZelQtStdButtonBox>("icons"));
    column->addIconButtons(4, 0, nullptr);
    QCOMPARE(describeGrid(column), QStringList("3,6 icons"));
}

// A program without a display fills the same column with plain model objects.
void tst_zelQtColumnLayoutLines::partThatIsNoWidgetIsSkipped()
{
    Mask mask;
    ZelUIStdElement element;
    ZelUITextLabel label;
    element.mLabel = &label;
    fillLine(element, mask.mParts, "in1");
    mask.mColumn->addStdElement(&element);
    QCOMPARE(mask.grid(), QStringList("0,2 in1"));
}

void tst_zelQtColumnLayoutLines::partsBelongToTheWindowAfterwards()
{
    Mask mask;
    ZelUIStdElement element;
    fillLine(element, mask.mParts, "label symbol in1 in2 edit1 edit2 unit icons");
    mask.mColumn->addStdElement(&element);
    for (const char *name : {"label", "symbol", "in1", "in2", "edit1", "edit2", "unit", "icons"})
        QVERIFY2(mask.mWindow.findChild<QWidget *>(name, Qt::FindDirectChildrenOnly), name);
}

QTEST_MAIN(tst_zelQtColumnLayoutLines)
#include "tst_zelQtColumnLayoutLines.moc"
