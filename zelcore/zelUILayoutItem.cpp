#include "zelUILayoutItem.h"

#include "zelDomNode.h"

#include <algorithm>

ZelUILayoutItem::ZelUILayoutItem() = default;
ZelUILayoutItem::~ZelUILayoutItem() = default;

void ZelUILayoutItem::setup(const ZelDomNode *node)
{
    ZelUIContainer::setup(node);
    if (!node)
        return;
    setModelPlace(node->attribute(L"row").toInt(), node->attribute(L"column").toInt(),
                  node->attribute(L"rowspan").toInt(), node->attribute(L"colspan").toInt());
}

ZelUILayoutItemStruct *ZelUILayoutItem::toLayoutItemStruct() const
{
    return new ZelUILayoutItemStruct{getName(), mRow, mColumn, mRowSpan, mColumnSpan};
}

void ZelUILayoutItem::setModelPlace(int row, int column, int rowSpan, int columnSpan)
{
    mRow = std::max(row, 0);
    mColumn = std::max(column, 0);
    mRowSpan = std::max(rowSpan, 1);
    mColumnSpan = std::max(columnSpan, 1);
}
