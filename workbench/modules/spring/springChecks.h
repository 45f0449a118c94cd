#pragma once

#include "springCalculation.h"

// The checks of calculateSpring, apart from the formulas.

/// Errors of the input alone. With an empty list all values are finite and the formulas of geometry
/// and rate divide by nothing that is 0.
std::vector<SpringFinding> checkSpringInput(const SpringInput &input);

/// Errors that need the solid length, the working range among them.
std::vector<SpringFinding> checkSpringLengths(const SpringInput &input, const SpringValues &values);

/// Whether all results are numbers that can be shown.
bool springValuesFinite(const SpringValues &values);

/// What the user should know about a spring that could be calculated.
std::vector<SpringFinding> springWarnings(const SpringInput &input, const SpringValues &values);
