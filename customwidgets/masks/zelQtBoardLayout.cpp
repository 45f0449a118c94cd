#include "zelQtBoardLayout.h"

#include "zelQtModelParts_p.h"
#include "zelQtSpacerItems.h"
#include "zelUIColumn.h"

ZelQtBoardLayout::ZelQtBoardLayout(QWidget *parent)
    : QHBoxLayout(parent)
{
}

ZelQtBoardLayout::~ZelQtBoardLayout() = default;

void ZelQtBoardLayout::makeLayout(bool addRightSpacer)
{
    ZelUIBoard::makeLayout(addRightSpacer);
    if (mColumns.empty())
        return;
    appendColumns(this, mColumns);
    if (addRightSpacer)
        addItem(hRightSpacerItem());
}
