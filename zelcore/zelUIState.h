#pragma once

#include "zelcore_export.h"

/// State of a model element. Read-only counts only while enabled.
struct ZelUIState
{
    bool mEnabled = true;
    bool mVisible = true;
    bool mReadOnly = false;

    bool operator==(const ZelUIState &) const = default;
};
