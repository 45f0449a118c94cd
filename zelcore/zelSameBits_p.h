#pragma once

#include <bit>
#include <cstdint>

/// The store's test for an unchanged number: -0 differs from 0, and a NaN is the same as itself.
inline bool sameBits(double a, double b)
{
    return std::bit_cast<uint64_t>(a) == std::bit_cast<uint64_t>(b);
}
