#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

/// One grade of spring wire: the diameters it is drawn in, its smallest tensile strength over the
/// diameter and its elastic properties at 20 °C. Lengths in mm, stresses in N/mm².
struct WireGrade
{
    std::string mName;
    double mTensileA = 0; ///< strength at 1 mm
    double mTensileB = 0; ///< loss of strength per decade of the diameter
    double mSmallestDiameter = 0;
    double mLargestDiameter = 0;
    std::optional<double> mTensileCap; ///< the strength does not rise above it
    double mShearModulus = 0;
    double mElasticModulus = 0;
    double mDensity = 0; ///< kg/dm³

    /// Smallest tensile strength R_m = A - B lg d in N/mm², not above the cap. The diameter must be
    /// positive; whether the grade is drawn in it is not looked at.
    double tensileStrength(double diameter) const;

    /// Whether the grade is drawn in this diameter, both ends of the range included.
    bool availableFor(double diameter) const;
};

/// The patented cold drawn wires SL, SM, SH, DM and DH of EN 10270-1. The strength formulas follow
/// the stepped tables of the standard; for SH and DH they lie up to 15 N/mm² below, on the safe
/// side.
std::span<const WireGrade> wireTable();

/// The grade of that name, null if the table has none.
const WireGrade *findWireGrade(std::span<const WireGrade> table, std::string_view name);
