#include "zelQtTopLayout.h"

#include "maskParts.h"
#include "zelQtBoardLayout.h"
#include "zelQtColumnLayout.h"
#include "zelQtGroupBox.h"
#include "zelQtTabContainer.h"
#include "zelUIExternalItem.h"

#include <QtTest>

#include <QGraphicsView>
#include <QLabel>

namespace {

using External = Part<QLabel, ZelUIExternalItem>;

/// A top layout in a window.
struct Mask
{
    PartOwner mParts;
    QWidget mWindow;
    ZelQtTopLayout *mTop = new ZelQtTopLayout(&mWindow);

    template <class Item> Item *add(Item *item, int row, int column = 0)
    {
        item->setModelPlace(row, column);
        mTop->addLayoutItem(item);
        return item;
    }
    ZelQtColumnLayout *addViewTo(ZelUIBoard *board)
    {
        auto *column = new ZelQtColumnLayout;
        column->addWidget(new QGraphicsView, 0, 0);
        board->mColumns.push_back(column);
        board->modelAdoptColumns();
        return column;
    }
};

} // namespace

class tst_zelQtTopLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itemsStandWhereTheyAskFor();
    void itemThatIsNeitherWidgetNorLayoutIsKeptByTheModelOnly();
    void finishLayoutGivesTheRestToTheRowBelow();
    void viewRowTakesAllStretch();
    void tabContainerTakesTheHeightWhileItShows();
    void boardWithAViewTakesTheHeightWhileItShows();
    void boardWithoutViewsTakesNoHeight();
    void otherItemsKeepTheirStretch();
};

void tst_zelQtTopLayout::itemsStandWhereTheyAskFor()
{
    Mask mask;
    auto *group = mask.mParts.make<ZelQtGroupBox>("group");
    group->setModelPlace(0, 1, 1, 2);
    auto *board = new ZelQtBoardLayout;
    board->setModelPlace(1, 0, 2, 1);

    mask.mTop->addLayoutItem(group);
    mask.mTop->addLayoutItem(board);

    QCOMPARE(describeGrid(mask.mTop), QStringList({"0,1 1x2 group", "1,0 2x1 []"}));
    QCOMPARE(mask.mTop->mItems, std::vector<ZelUILayoutItem *>({group, board}));
}

void tst_zelQtTopLayout::itemThatIsNeitherWidgetNorLayoutIsKeptByTheModelOnly()
{
    ZelUIBoard plain;
    Mask mask;
    mask.add(&plain, 0);
    QCOMPARE(mask.mTop->count(), 0);
    QCOMPARE(mask.mTop->mItems, std::vector<ZelUILayoutItem *>({&plain}));
}

void tst_zelQtTopLayout::finishLayoutGivesTheRestToTheRowBelow()
{
    Mask mask;
    mask.add(mask.mParts.make<External>("first"), 0);
    mask.add(mask.mParts.make<External>("second"), 1);
    mask.mTop->finishLayout();
    QCOMPARE(mask.mTop->rowStretch(0), 0);
    QCOMPARE(mask.mTop->rowStretch(1), 0);
    QCOMPARE(mask.mTop->rowStretch(2), 1);
}

void tst_zelQtTopLayout::viewRowTakesAllStretch()
{
    Mask mask;
    mask.mTop->setRowStretchView(3);
    QCOMPARE(mask.mTop->rowStretch(3), 100);
}

void tst_zelQtTopLayout::tabContainerTakesTheHeightWhileItShows()
{
    Mask mask;
    auto *tabs = mask.add(mask.mParts.make<ZelQtTabContainer>("tabs"), 1);
    mask.mTop->finishLayout();

    mask.mTop->setData(nullptr, 0);
    QCOMPARE(mask.mTop->rowStretch(1), 100);
    tabs->mVisible = false;
    mask.mTop->setData(nullptr, 0);
    QCOMPARE(mask.mTop->rowStretch(1), 0);
}

void tst_zelQtTopLayout::boardWithAViewTakesTheHeightWhileItShows()
{
    Mask mask;
    auto *group = mask.add(mask.mParts.make<ZelQtGroupBox>("group"), 0);
    mask.addViewTo(group);
    auto *board = mask.add(new ZelQtBoardLayout, 1);
    mask.addViewTo(board);
    group->makeLayout(false);
    board->makeLayout(false);
    mask.mTop->finishLayout();

    mask.mTop->setData(nullptr, 0);
    QCOMPARE(mask.mTop->rowStretch(0), 100);
    QCOMPARE(mask.mTop->rowStretch(1), 100);

    group->mVisible = false; // the row of a hidden board collapses
    mask.mTop->setData(nullptr, 0);
    QCOMPARE(mask.mTop->rowStretch(0), 0);
    QCOMPARE(mask.mTop->rowStretch(1), 100);
}

void tst_zelQtTopLayout::boardWithoutViewsTakesNoHeight()
{
    Mask mask;
    mask.add(mask.mParts.make<ZelQtGroupBox>("group"), 0);
    mask.mTop->setRowStretch(0, 5);
    mask.mTop->setData(nullptr, 0);
    QCOMPARE(mask.mTop->rowStretch(0), 0);
}

void tst_zelQtTopLayout::otherItemsKeepTheirStretch()
{
    Mask mask;
    mask.add(mask.mParts.make<External>("form"), 2);
    mask.mTop->setRowStretch(2, 7);
    mask.mTop->setData(nullptr, 0);
    QCOMPARE(mask.mTop->rowStretch(2), 7);
}

QTEST_MAIN(tst_zelQtTopLayout)
#include "tst_zelQtTopLayout.moc"
