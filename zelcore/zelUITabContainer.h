#pragma once

#include "zelUILayoutItem.h"

class ZelUITabPage;

/// Pages of which one shows. Pages are not owned.
class ZELCORE_EXPORT ZelUITabContainer : public ZelUILayoutItem
{
public:
    ZelUITabContainer();
    ~ZelUITabContainer() override;

    using ZelUILayoutItem::setup;
    /// Builds the pages by the factory of the build under way and adds each.
    void setup(const ZelDomNode *node) override;
    virtual void addTab(ZelUITabPage *page);

    /// All pages in the order of the model, shown or not.
    std::vector<ZelUITabPage *> mPages;

protected:
    void modelForget(ZelUIObject *child) override;
};
