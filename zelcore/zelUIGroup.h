#pragma once

#include "zelUIBoard.h"
#include "zelUITextHandler.h"

/// A board with a frame and a title.
class ZELCORE_EXPORT ZelUIGroup : public ZelUIBoard
{
public:
    ZelUIGroup();
    ~ZelUIGroup() override;

    using ZelUIBoard::setup;
    void setup(const ZelDomNode *node) override;
    zelWString getTitle() const { return mTitle.getText(); }

    ZelUITextHandler mTitle;
    bool mFlat = false;
};
