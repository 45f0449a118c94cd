#pragma once

#include "zelmath_export.h"

#include <string>

/// The units of ZelDimensions as a page of documentation, one row each.
ZELMATH_EXPORT std::string zelUnitsMarkdown();
