#include "zelQtModelParts_p.h"

#include "zelQtSpacerItems.h"
#include "zelUIBoard.h"
#include "zelUIColumn.h"
#include "zelUILayoutItem.h"

void appendColumns(QBoxLayout *row, const std::vector<ZelUIColumn *> &columns)
{
    for (size_t i = 0; i < columns.size(); ++i) {
        if (i > 0)
            row->addItem(hMidSpacerItem());
        if (auto *layout = dynamic_cast<QLayout *>(columns[i]))
            row->addLayout(layout);
    }
}

void placeLayoutItem(QGridLayout *grid, ZelUILayoutItem *item)
{
    if (auto *widget = dynamic_cast<QWidget *>(item))
        grid->addWidget(widget, item->row(), item->column(), item->rowSpan(), item->columnSpan());
    else if (auto *layout = dynamic_cast<QLayout *>(item))
        grid->addLayout(layout, item->row(), item->column(), item->rowSpan(), item->columnSpan());
}

void changeRowStretch(QGridLayout *grid, int row, int stretch)
{
    // Each call lays out the whole mask anew, and each refresh comes here.
    if (row >= grid->rowCount() || grid->rowStretch(row) != stretch)
        grid->setRowStretch(row, stretch);
}

int boardStretch(const ZelUIBoard &board)
{
    return board.mVisible && board.containsExpandingViews(true) ? 100 : 0;
}
