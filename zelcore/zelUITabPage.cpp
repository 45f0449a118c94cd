#include "zelUITabPage.h"

#include "zelUIBoard.h"
#include "zelUITabContainer.h"

ZelUITabPage::ZelUITabPage() = default;
ZelUITabPage::~ZelUITabPage() = default;

void ZelUITabPage::setup(const ZelDomNode *node)
{
    ZelUITopLayout::setup(node);
    if (node)
        mTitle.setup(node);
}

void ZelUITabPage::makeLayout()
{
    for (ZelUILayoutItem *item : mItems) {
        if (auto *board = dynamic_cast<ZelUIBoard *>(item)) {
            board->makeLayout(board->modelPack());
        } else if (auto *tabs = dynamic_cast<ZelUITabContainer *>(item)) {
            for (ZelUITabPage *page : tabs->mPages)
                page->makeLayout();
        }
    }
}

ZelUITabStruct *ZelUITabPage::toTabStruct() const
{
    return new ZelUITabStruct{getName(), getTitle()};
}
