#include "zelUIBoard.h"

#include "zelDomNode.h"
#include "zelUIColumn.h"
#include "zelUiBuild.h"
#include "zelUiFactory.h"
#include "zelUiParser.h"
#include "zelUiParts_p.h"

#include <utility>

ZelUIBoard::ZelUIBoard() = default;
ZelUIBoard::~ZelUIBoard() = default;

void ZelUIBoard::setup(const ZelDomNode *node)
{
    ZelUILayoutItem::setup(node);
    ZelUiBuild *build = ZelUiBuild::current();
    if (!build || !node)
        return;
    mPack = ZelUiParser::isTrue(node->attribute(L"pack"));
    const auto make = [&](const ZelDomNode *child) {
        ZelUIColumn *column = build->factory().makeColumn();
        if (column) {
            modelAddContainer(column);
            column->setup(child);
        }
        return column;
    };
    for (const ZelDomNode *child = node->firstChild(); child; child = child->nextSibling()) {
        if (child->name() == L"column") {
            if (ZelUIColumn *column = make(child))
                mColumns.push_back(column);
        } else if (child->name() == L"head" && !mHead) {
            mHead = make(child);
        } else if (child->name() == L"foot" && !mFoot) {
            mFoot = make(child);
        }
    }
    // A foot below nothing has no place in a layout; it shows as the only column.
    if (mFoot && !mHead && mColumns.empty())
        mColumns.push_back(std::exchange(mFoot, nullptr));
}

void ZelUIBoard::makeLayout(bool)
{
}

void ZelUIBoard::makeLayout(const ZelDomNode *node)
{
    if (node)
        mPack = ZelUiParser::isTrue(node->attribute(L"pack"));
    makeLayout(mPack);
}

bool ZelUIBoard::containsExpandingViews(bool visibleOnly) const
{
    const auto contains = [visibleOnly](const ZelUIColumn *column) {
        return column && column->containsExpandingViews(visibleOnly);
    };
    return contains(mHead) || contains(mFoot)
        || std::any_of(mColumns.begin(), mColumns.end(), contains);
}

void ZelUIBoard::modelAdoptColumns()
{
    modelAddContainer(mHead);
    for (ZelUIColumn *column : mColumns)
        modelAddContainer(column);
    modelAddContainer(mFoot);
}

void ZelUIBoard::modelForget(ZelUIObject *child)
{
    zelForget(mHead, child);
    zelForget(mColumns, child);
    zelForget(mFoot, child);
    ZelUILayoutItem::modelForget(child);
}
