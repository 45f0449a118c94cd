#pragma once

#include "zelmath_export.h"

/// Kinds of files that a dialog offers. Other numbers are kinds too, once the pool of user
/// interface texts has a filter for them.
enum class ZelUIFileType : int { All = 0, Text = 2, Data = 6 };

/// Number of the filter's text in the pool of user interface texts: 9100 and the number of the
/// kind.
ZELMATH_EXPORT int FileFilter(ZelUIFileType type);
