#pragma once

#include "zelUIContainer.h"

class ZelUIDialogButtonBox;
class ZelUILayoutItem;

struct ZelUILayoutStruct
{
    zelWString mName;
    int mItemCount = 0;
};

/// The boards, groups, tab containers and external items of a page in their grid. Items are not
/// owned.
class ZELCORE_EXPORT ZelUITopLayout : public ZelUIContainer
{
public:
    ZelUITopLayout();
    ~ZelUITopLayout() override;

    using ZelUIContainer::setup;
    /// Builds the items by the factory of the build under way and adds each.
    void setup(const ZelDomNode *node) override;
    /// Calls retranslate() of every descendant once. Nested pages walk their own, and buttons that
    /// the model gives no text keep the fixed texts of their class.
    void retranslate() override;
    /// The caller owns the result.
    virtual ZelUILayoutStruct *toLayoutStruct() const;
    virtual void addLayoutItem(ZelUILayoutItem *item);
    virtual void finishLayout();

    /// The row of buttons that the description gives; null without one. Whoever shows the page as a
    /// dialog places it.
    ZelUIDialogButtonBox *modelButtonBox() const { return mButtonBox; }

    std::vector<ZelUILayoutItem *> mItems;

protected:
    void modelForget(ZelUIObject *child) override;

private:
    ZelUIDialogButtonBox *mButtonBox = nullptr;
};
