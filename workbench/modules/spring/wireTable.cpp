#include "wireTable.h"

#include <algorithm>
#include <array>
#include <cmath>

double WireGrade::tensileStrength(double diameter) const
{
    const double strength = mTensileA - mTensileB * std::log10(diameter);
    return mTensileCap ? std::min(strength, *mTensileCap) : strength;
}

bool WireGrade::availableFor(double diameter) const
{
    return diameter >= mSmallestDiameter && diameter <= mLargestDiameter;
}

std::span<const WireGrade> wireTable()
{
    static const std::array<WireGrade, 5> grades{{
        {"SL", 1720, 660, 1.00, 10, std::nullopt, 81500, 206000, 7.85},
        {"SM", 1980, 740, 0.30, 20, std::nullopt, 81500, 206000, 7.85},
        {"SH", 2220, 820, 0.30, 20, std::nullopt, 81500, 206000, 7.85},
        {"DM", 1980, 740, 0.30, 20, std::nullopt, 81500, 206000, 7.85},
        {"DH", 2220, 820, 0.05, 20, 2800, 81500, 206000, 7.85},
    }};
    return grades;
}

const WireGrade *findWireGrade(std::span<const WireGrade> table, std::string_view name)
{
    const auto found = std::ranges::find(table, name, &WireGrade::mName);
    return found == table.end() ? nullptr : &*found;
}
