#pragma once

#include "zelUIObject.h"

/// Holds the edit column open in a line without edit button.
class ZELCORE_EXPORT ZelUISpacer : public ZelUIObject
{
public:
    ZelUISpacer();
    ~ZelUISpacer() override;

    using ZelUIObject::updateState;
    /// Takes the flags of the element it belongs to.
    virtual void updateState(ZelUIState state);
};
