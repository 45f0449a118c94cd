#pragma once

#include "zelmath_export.h"

/// `value` rounded to `decimals` places (negative ones round before the point), halves away from
/// zero. What counts is the number as people write it, its shortest decimal form: 2.675 has a half
/// at two places and gives 2.68, though the double lies a little below. The result is the double
/// next to the rounded decimal number, and a zero is never negative. Infinities and NaN come back
/// as they are, and so does a number whose rounded value would be beyond the largest double.
ZELMATH_EXPORT double Runde(double value, short decimals);
