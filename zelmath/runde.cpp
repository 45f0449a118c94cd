#include "runde.h"

#include <cmath>

double Runde(double value, short decimals)
{
    const double factor = std::pow(10.0, decimals);
    const double scaled = value * factor;
    // A factor that overflows would turn a number that is already exact into infinity or NaN.
    if (!std::isfinite(scaled) || factor == 0.0)
        return factor == 0.0 && std::isfinite(value) ? 0.0 : value;
    return std::round(scaled) / factor;
}
