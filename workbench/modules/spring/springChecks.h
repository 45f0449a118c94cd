#pragma once

#include "springCalculation.h"

// The checks of calculateSpring, apart from the formulas.

/// What is usual; a spring beyond it is calculated with a warning. Lengths in mm, temperatures in
/// °C.
struct SpringLimits
{
    double mSmallestIndex = 0; ///< w
    double mLargestIndex = 0;
    double mFewestActiveCoils = 0; ///< n
    double mSmallestWire = 0; ///< d
    double mLargestWire = 0;

    // Cold coiled springs only. A hot coiled spring of thick wire is always wider: three times a
    // wire of 100 mm is 300 mm.
    static constexpr double largestCoil = 200; ///< D
    static constexpr double largestFreeLength = 630; ///< L_0

    static constexpr double smallestSeating = 0.5; ///< ν
    static constexpr double largestSeating = 2;
    static constexpr double lowestTemperature = -40; ///< T
    static constexpr double highestTemperature = 120;
};

SpringLimits springLimits(SpringCoiling coiling);

/// Errors of the input alone. With an empty list all values are finite and the formulas of geometry
/// and rate divide by nothing that is 0.
std::vector<SpringFinding> checkSpringInput(const SpringInput &input);

/// Errors that need the solid length, the working range among them.
std::vector<SpringFinding> checkSpringLengths(const SpringInput &input, const SpringValues &values);

/// Whether all results are numbers that can be shown.
bool springValuesFinite(const SpringValues &values);

/// What the user should know about a spring that could be calculated.
std::vector<SpringFinding> springWarnings(const SpringInput &input, const SpringValues &values);
