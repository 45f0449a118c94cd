#include "zelQtTopLayout.h"

#include "zelQtModelParts_p.h"
#include "zelUIBoard.h"
#include "zelUITabContainer.h"

ZelQtTopLayout::ZelQtTopLayout(QWidget *parent)
    : QGridLayout(parent)
{
}

ZelQtTopLayout::~ZelQtTopLayout() = default;

void ZelQtTopLayout::setRowStretchView(int row)
{
    setRowStretch(row, 100);
}

void ZelQtTopLayout::addLayoutItem(ZelUILayoutItem *item)
{
    ZelUITopLayout::addLayoutItem(item);
    placeLayoutItem(this, item);
}

void ZelQtTopLayout::finishLayout()
{
    ZelUITopLayout::finishLayout();
    setRowStretch(rowCount(), 1);
}

void ZelQtTopLayout::setData(Meta *meta, int64_t id)
{
    ZelUITopLayout::setData(meta, id);
    for (ZelUILayoutItem *item : mItems) {
        if (dynamic_cast<ZelUITabContainer *>(item))
            changeRowStretch(this, item->row(), item->state().mVisible ? 100 : 0);
        else if (auto *board = dynamic_cast<ZelUIBoard *>(item))
            changeRowStretch(this, board->row(), boardStretch(*board));
    }
}
