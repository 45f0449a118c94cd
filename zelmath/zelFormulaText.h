#pragma once

#include "zelWString.h"
#include "zelmath_export.h"

/// Turns a formula symbol as authors write it into rich text: "_" lowers and "^" raises the next
/// token, names of Greek letters become the letters. "C_u" gives "C<sub>u</sub>", "tau_k2"
/// "τ<sub>k2</sub>". A token is a run of letters and digits, a number with its sign ("10^-3"), or
/// what stands in braces
/// ("F_{t,max}"). Text that could be markup is escaped: authors write no tags.
ZELMATH_EXPORT zelWString zelFormulaText(const zelWString &source);
