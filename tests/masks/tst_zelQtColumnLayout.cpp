#include "zelQtColumnLayout.h"

#include "maskParts.h"
#include "meta.h"
#include "zelUIFileElement.h"
#include "zelUIFlag.h"
#include "zelUIFlagElement.h"
#include "zelUIInput.h"
#include "zelUILSElement.h"
#include "zelUIMatElement.h"
#include "zelUINotepad.h"
#include "zelUINotepadElement.h"
#include "zelUIStdElement.h"
#include "zelUITable.h"
#include "zelUITableElement.h"
#include "zelUITextElement.h"
#include "zelUITextLabel.h"
#include "zelUIViewElement.h"

#include <QtTest>

#include <QCheckBox>
#include <QGraphicsView>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QTextEdit>

namespace {

using Label = Part<QLabel, ZelUITextLabel>;
using Flag = Part<QCheckBox, ZelUIFlag>;
using Table = Part<QTableView, ZelUITable>;
using Notepad = Part<QTextEdit, ZelUINotepad>;
using View = Part<QFrame, ZelUIViewElement>;

/// Tells what the walk of the model reached.
class Input : public QLineEdit, public ZelUIInput
{
public:
    using ZelUIInput::setData;
    void setData(Meta *, int64_t id) override { mIds.push_back(id); }

    std::vector<int64_t> mIds;
};

class CountingColumn : public ZelQtColumnLayout
{
public:
    void invalidate() override
    {
        ++mInvalidations;
        ZelQtColumnLayout::invalidate();
    }

    int mInvalidations = 0;
};

struct Mask
{
    PartOwner mParts;
    QWidget mWindow;
    CountingColumn *mColumn = new CountingColumn;

    Mask() { mWindow.setLayout(mColumn); }
    QStringList grid() const { return describeGrid(mColumn); }
    QSpacerItem *bottomSpacer() const
    {
        return mColumn->count() ? mColumn->itemAt(mColumn->count() - 1)->spacerItem() : nullptr;
    }
    QSizePolicy::Policy bottomPolicy() const
    {
        return bottomSpacer()->sizePolicy().verticalPolicy();
    }
};

/// An element of a kind with one part, whose name it takes.
class AnyElement
{
public:
    static QStringList kinds()
    {
        return {"standard",         "file",  "text", "flag",   "material",
                "list with number", "table", "view", "notepad"};
    }
    // Gives the column, the span and the name of the part as the grid must have them.
    QString addTo(Mask &mask, const QString &kind, const QString &name)
    {
        ZelQtColumnLayout &column = *mask.mColumn;
        if (kind == "standard") {
            mStandard.mInputs.push_back(mask.mParts.make<Input>(name));
            column.addStdElement(&mStandard);
            return "0 1x3 " + name;
        }
        if (kind == "file") {
            mFile.mInputs.push_back(mask.mParts.make<Input>(name));
            column.addFileElement(&mFile);
            return "0 1x3 " + name;
        }
        if (kind == "text") {
            mText.mLabel = mask.mParts.make<Label>(name);
            column.addTextElement(&mText);
            return "0 1x6 " + name + " left";
        }
        if (kind == "flag") {
            mFlag.mFlag = mask.mParts.make<Flag>(name);
            column.addFlagElement(&mFlag);
            return "0 1x5 " + name;
        }
        if (kind == "material") {
            mMaterial.mLabel1 = mask.mParts.make<Label>(name);
            column.addMatElement(&mMaterial);
            return "0 " + name;
        }
        if (kind == "list with number") {
            mListWithNumber.mLabel1 = mask.mParts.make<Label>(name);
            column.addLSElement(&mListWithNumber);
            return "0 " + name;
        }
        return addView(mask, kind, name);
    }

private:
    QString addView(Mask &mask, const QString &kind, const QString &name)
    {
        ZelQtColumnLayout &column = *mask.mColumn;
        if (kind == "table") {
            mTable.mTable = mask.mParts.make<Table>(name);
            column.addTableElement(&mTable, false, 6);
        } else if (kind == "notepad") {
            mNotepad.mNotepad = mask.mParts.make<Notepad>(name);
            column.addNotepadElement(&mNotepad, true, 6);
        } else {
            column.addViewElement(mask.mParts.make<View>(name), true, 6);
        }
        return "0 1x6 " + name;
    }

    ZelUIStdElement mStandard;
    ZelUIFileElement mFile;
    ZelUITextElement mText;
    ZelUIFlagElement mFlag;
    ZelUIMatElement mMaterial;
    ZelUILSElement mListWithNumber;
    ZelUITableElement mTable;
    ZelUINotepadElement mNotepad;
};

} // namespace

class tst_zelQtColumnLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void layoutWithParentInstallsItself();
    void firstElementStandsInRowZeroAndTheSecondInRowOne_data();
    void firstElementStandsInRowZeroAndTheSecondInRowOne();
    void finishLayoutAddsABottomSpacer();
    void finishLayoutOfAnEmptyColumnStillAddsIt();
    void setDataReachesTheInputs();
    void setDataBeforeFinishLayoutIsHarmless();
    void columnWithATableLetsItTakeTheHeight();
    void setDataInvalidatesOnlyWhenTheSpacerChanged();
    void columnWithoutViewsSticksToTheTop();
    void graphicsViewCountsAsView();
    void graphicsViewsThatComeAndGoAreNoticed();
    void graphicsViewMakesTheContentVisibleWhileItShows();
    void elementsMakeTheContentVisible();
};

void tst_zelQtColumnLayout::layoutWithParentInstallsItself()
{
    QWidget window;
    auto *column = new ZelQtColumnLayout(&window);
    QCOMPARE(window.layout(), column);
    QVERIFY(!ZelQtColumnLayout().parentWidget());
}

void tst_zelQtColumnLayout::firstElementStandsInRowZeroAndTheSecondInRowOne_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    for (const QString &first : AnyElement::kinds()) {
        for (const QString &second : AnyElement::kinds())
            QTest::newRow(qPrintable(first + ", " + second)) << first << second;
    }
}

void tst_zelQtColumnLayout::firstElementStandsInRowZeroAndTheSecondInRowOne()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    AnyElement elements[2];
    Mask mask;
    const QString upper = elements[0].addTo(mask, first, "upper");
    const QString lower = elements[1].addTo(mask, second, "lower");
    QCOMPARE(mask.grid(), QStringList({"0," + upper, "1," + lower}));
}

void tst_zelQtColumnLayout::finishLayoutAddsABottomSpacer()
{
    Mask mask;
    ZelUIFlagElement flag;
    flag.mFlag = mask.mParts.make<Flag>("flag");
    mask.mColumn->addFlagElement(&flag);

    mask.mColumn->finishLayout();

    QCOMPARE(mask.grid(), QStringList({"0,0 1x5 flag", "1,0 *"}));
    QCOMPARE(mask.bottomSpacer()->sizeHint(), QSize(20, 0));
    QCOMPARE(mask.bottomSpacer()->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(mask.bottomPolicy(), QSizePolicy::Expanding);
}

void tst_zelQtColumnLayout::finishLayoutOfAnEmptyColumnStillAddsIt()
{
    Mask mask;
    mask.mColumn->finishLayout();
    QCOMPARE(mask.grid(), QStringList("1,0 *"));
}

void tst_zelQtColumnLayout::setDataReachesTheInputs()
{
    Mask mask;
    ZelUIStdElement element;
    auto *input = mask.mParts.make<Input>("in1");
    element.mInputs.push_back(input);
    element.modelAdoptParts();
    mask.mColumn->addStdElement(&element);
    mask.mColumn->finishLayout();
    Meta meta;

    mask.mColumn->setData(&meta, 7);
    mask.mColumn->setData(&meta, 8);

    QCOMPARE(input->mIds, std::vector<int64_t>({7, 8}));
}

void tst_zelQtColumnLayout::setDataBeforeFinishLayoutIsHarmless()
{
    Mask mask;
    mask.mColumn->setData(nullptr, 0);
    QCOMPARE(mask.grid(), QStringList());
}

void tst_zelQtColumnLayout::columnWithATableLetsItTakeTheHeight()
{
    Mask mask;
    ZelUITableElement table;
    table.mTable = mask.mParts.make<Table>("table");
    mask.mColumn->addTableElement(&table, false, 6);
    mask.mColumn->finishLayout();
    QCOMPARE(mask.bottomPolicy(), QSizePolicy::Expanding);

    mask.mColumn->setData(nullptr, 0);
    QCOMPARE(mask.bottomPolicy(), QSizePolicy::Fixed);
    QCOMPARE(mask.bottomSpacer()->sizeHint(), QSize(20, 0));

    table.mVisible = false;
    mask.mColumn->setData(nullptr, 0);
    QCOMPARE(mask.bottomPolicy(), QSizePolicy::Expanding);
}

void tst_zelQtColumnLayout::setDataInvalidatesOnlyWhenTheSpacerChanged()
{
    Mask mask;
    ZelUITableElement table;
    table.mTable = mask.mParts.make<Table>("table");
    mask.mColumn->addTableElement(&table, false, 6);
    mask.mColumn->finishLayout();
    mask.mColumn->mInvalidations = 0;

    mask.mColumn->setData(nullptr, 0);
    QCOMPARE(mask.mColumn->mInvalidations, 1);
    mask.mColumn->setData(nullptr, 0);
    QCOMPARE(mask.mColumn->mInvalidations, 1);
    table.mVisible = false;
    mask.mColumn->setData(nullptr, 0);
    QCOMPARE(mask.mColumn->mInvalidations, 2);
}

void tst_zelQtColumnLayout::columnWithoutViewsSticksToTheTop()
{
    Mask mask;
    ZelUIFlagElement flag;
    flag.mFlag = mask.mParts.make<Flag>("flag");
    mask.mColumn->addFlagElement(&flag);
    mask.mColumn->finishLayout();
    mask.mColumn->mInvalidations = 0;

    mask.mColumn->setData(nullptr, 0);

    QCOMPARE(mask.bottomPolicy(), QSizePolicy::Expanding);
    QCOMPARE(mask.mColumn->mInvalidations, 0);
    QVERIFY(!mask.mColumn->containsViews(false));
    QVERIFY(!mask.mColumn->containsExpandingViews(false));
}

void tst_zelQtColumnLayout::graphicsViewCountsAsView()
{
    Mask mask;
    mask.mColumn->addWidget(new QLabel, 0, 0);
    mask.mColumn->addWidget(new QGraphicsView, 1, 0);
    mask.mColumn->finishLayout();
    for (const bool visibleOnly : {false, true}) {
        QVERIFY(mask.mColumn->containsViews(visibleOnly));
        QVERIFY(mask.mColumn->containsExpandingViews(visibleOnly));
    }
    mask.mColumn->setData(nullptr, 0);
    QCOMPARE(mask.bottomPolicy(), QSizePolicy::Fixed);
}

void tst_zelQtColumnLayout::graphicsViewsThatComeAndGoAreNoticed()
{
    Mask mask;
    ZelQtColumnLayout &column = *mask.mColumn;
    column.addWidget(new QLabel, 0, 0);
    QVERIFY(!column.containsViews(true));
    auto *view = new QGraphicsView;
    column.addWidget(view, 1, 0);
    QVERIFY(column.containsViews(true));
    column.removeWidget(view);
    QVERIFY(!column.containsExpandingViews(true));
    column.addWidget(view, 1, 0);
    QVERIFY(column.containsExpandingViews(true));
    delete view;
    QVERIFY(!column.containsViews(true));

    view = new QGraphicsView;
    column.addWidget(view, 1, 0);
    QVERIFY(column.containsViews(true));
    delete column.takeAt(1);
    column.addWidget(new QLabel, 1, 0); // as many items as before
    QVERIFY(!column.containsViews(true));
    delete view;
}

void tst_zelQtColumnLayout::graphicsViewMakesTheContentVisibleWhileItShows()
{
    Mask mask;
    auto *view = new QGraphicsView;
    mask.mColumn->addWidget(view, 0, 0);
    view->show();
    QVERIFY(!view->isVisible()); // the window is not open, which must not matter
    QVERIFY(mask.mColumn->isContentVisible());
    view->hide();
    QVERIFY(!mask.mColumn->isContentVisible());
}

void tst_zelQtColumnLayout::elementsMakeTheContentVisible()
{
    Mask mask;
    QVERIFY(!mask.mColumn->isContentVisible());
    ZelUIFlagElement flag;
    flag.mFlag = mask.mParts.make<Flag>("flag");
    mask.mColumn->addFlagElement(&flag);
    QVERIFY(mask.mColumn->isContentVisible());
    flag.mVisible = false;
    QVERIFY(!mask.mColumn->isContentVisible());
}

QTEST_MAIN(tst_zelQtColumnLayout)
#include "tst_zelQtColumnLayout.moc"
