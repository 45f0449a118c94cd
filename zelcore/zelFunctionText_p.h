#pragma once

#include "zelWString.h"

#include <cstdint>

class Meta;

/// Result 0 of a function of the module, called with the id of the object; empty when the function
/// is unknown or fails.
zelWString zelFunctionText(Meta &meta, const zelWString &function, int64_t id);
