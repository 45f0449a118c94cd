#pragma once

#include "zelUILayoutItem.h"

class ZelUIColumn;

/// Columns side by side, with a head above and a foot below them. Columns are not owned.
class ZELCORE_EXPORT ZelUIBoard : public ZelUILayoutItem
{
public:
    ZelUIBoard();
    ~ZelUIBoard() override;

    using ZelUILayoutItem::setup;
    /// Builds the columns by the factory of the build under way.
    void setup(const ZelDomNode *node) override;
    /// With `pack` the content keeps its natural width and stands left. Does nothing here.
    virtual void makeLayout(bool pack);
    /// Takes `pack` from the node and calls the other form.
    virtual void makeLayout(const ZelDomNode *node);
    /// What the description said of pack.
    bool modelPack() const { return mPack; }

    /// Of any of its columns.
    bool containsExpandingViews(bool visibleOnly) const;
    /// Makes head, columns and foot that were put in by hand known to the walks.
    void modelAdoptColumns();

    ZelUIColumn *mHead = nullptr;
    std::vector<ZelUIColumn *> mColumns;
    ZelUIColumn *mFoot = nullptr;

protected:
    void modelForget(ZelUIObject *child) override;

private:
    bool mPack = false;
};
