#pragma once

#include <algorithm>
#include <cmath>

/// The model's test for a changed number: true when the two differ by more than 1e-12 of the larger
/// one. Two NaN count as equal, a NaN and a number as different.
inline bool isDifferent(double a, double b)
{
    if (a == b || (std::isnan(a) && std::isnan(b)))
        return false;
    if (!std::isfinite(a) || !std::isfinite(b))
        return true;
    return std::abs(a - b) > 1e-12 * std::max(std::abs(a), std::abs(b));
}
