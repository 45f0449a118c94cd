#pragma once

#include "zelmath_export.h"

/// `value` rounded to `decimals` places (negative ones round before the point), halves away from
/// zero. Infinities and NaN come back as they are.
ZELMATH_EXPORT double Runde(double value, short decimals);
