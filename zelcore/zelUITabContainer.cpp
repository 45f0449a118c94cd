#include "zelUITabContainer.h"

#include "zelDomNode.h"
#include "zelUITabPage.h"
#include "zelUiBuild.h"
#include "zelUiFactory.h"
#include "zelUiParts_p.h"

ZelUITabContainer::ZelUITabContainer() = default;
ZelUITabContainer::~ZelUITabContainer() = default;

void ZelUITabContainer::setup(const ZelDomNode *node)
{
    ZelUILayoutItem::setup(node);
    ZelUiBuild *build = ZelUiBuild::current();
    if (!build || !node)
        return;
    for (const ZelDomNode *child = node->firstChild(L"page"); child;
         child = child->nextSibling(L"page")) {
        ZelUITabPage *page = build->factory().makeTabPage();
        if (!page)
            continue;
        page->setup(child);
        addTab(page);
    }
}

void ZelUITabContainer::addTab(ZelUITabPage *page)
{
    if (!page || std::find(mPages.begin(), mPages.end(), page) != mPages.end())
        return;
    mPages.push_back(page);
    modelAddContainer(page);
}

void ZelUITabContainer::modelForget(ZelUIObject *child)
{
    zelForget(mPages, child);
    ZelUILayoutItem::modelForget(child);
}
