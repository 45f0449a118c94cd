#pragma once

#include <cmath>
#include <limits>

/// `value` truncated toward zero; beyond the range of the type its ends, 0 for NaN. A plain cast is
/// undefined there.
template <class Integer> Integer saturate(double value)
{
    using Limits = std::numeric_limits<Integer>;
    if (std::isnan(value))
        return 0;
    // The highest number plus one is a power of two and so exact as a double.
    if (value >= std::ldexp(1.0, Limits::digits))
        return Limits::max();
    if (value <= static_cast<double>(Limits::lowest()))
        return Limits::lowest();
    return static_cast<Integer>(value);
}
