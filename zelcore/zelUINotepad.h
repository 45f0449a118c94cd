#pragma once

#include "zelUIItem.h"

class ZelUIVarMultilineString;

/// Text of several lines.
class ZELCORE_EXPORT ZelUINotepad : public ZelUIItem
{
public:
    ZelUINotepad();
    ~ZelUINotepad() override;

    using ZelUIItem::setup;

    virtual void setup(ZelUIVarMultilineString *variable, AttrMap &attributes);
    void setData(Meta *meta, int64_t id) override;
    void getData(Meta *meta, int64_t id) override;

    zelWString mText;

private:
    zelWString mLoadedText;
};
