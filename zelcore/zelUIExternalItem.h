#pragma once

#include "zelUILayoutItem.h"

/// A form written by hand that stands in a mask; it fills and reads itself.
class ZELCORE_EXPORT ZelUIExternalItem : public ZelUILayoutItem
{
public:
    ZelUIExternalItem();
    ~ZelUIExternalItem() override;
};
