#pragma once

#include "zelUIContainer.h"

struct ZelUILayoutItemStruct
{
    zelWString mName;
    int mRow = 0;
    int mColumn = 0;
    int mRowSpan = 1;
    int mColumnSpan = 1;
};

/// Something with a place in the grid of a page: attributes row, column, rowspan, colspan.
class ZELCORE_EXPORT ZelUILayoutItem : public ZelUIContainer
{
public:
    ZelUILayoutItem();
    ~ZelUILayoutItem() override;

    using ZelUIContainer::setup;
    void setup(const ZelDomNode *node) override;
    /// The caller owns the result.
    virtual ZelUILayoutItemStruct *toLayoutItemStruct() const;

    int row() const { return mRow; }
    int column() const { return mColumn; }
    int rowSpan() const { return mRowSpan; }
    int columnSpan() const { return mColumnSpan; }
    void setModelPlace(int row, int column, int rowSpan = 1, int columnSpan = 1);

private:
    int mRow = 0;
    int mColumn = 0;
    int mRowSpan = 1;
    int mColumnSpan = 1;
};
