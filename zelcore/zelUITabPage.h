#pragma once

#include "zelUITextHandler.h"
#include "zelUITopLayout.h"

struct ZelUITabStruct
{
    zelWString mName;
    zelWString mTitle;
};

/// One page of a mask.
class ZELCORE_EXPORT ZelUITabPage : public ZelUITopLayout
{
public:
    ZelUITabPage();
    ~ZelUITabPage() override;

    using ZelUITopLayout::setup;
    void setup(const ZelDomNode *node) override;
    /// Makes the layout of every board and of every page below this one.
    virtual void makeLayout();
    /// The caller owns the result.
    virtual ZelUITabStruct *toTabStruct() const;
    zelWString getTitle() const { return mTitle.getText(); }

    ZelUITextHandler mTitle;
};
