#pragma once

#include "zelWString.h"

#include <cstdint>
#include <optional>

/// A number as a user types it: blanks around it, comma or point. Nothing for another text and for
/// one that is not finite.
std::optional<double> zelReadNumber(const zelWString &text);

/// With a fixed count of decimals and a point, whatever the locale.
zelWString zelFixedText(double value, int decimals);

/// Rounded; numbers beyond the range give its end, NaN gives 0.
int64_t zelToInteger(double value);
