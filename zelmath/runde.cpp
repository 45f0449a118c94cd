#include "runde.h"

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

// A positive number as 0.digits * 10^exponent with the fewest digits that mean this double.
struct Decimal
{
    std::string mDigits;
    int mExponent = 0;
};

Decimal shortestDecimal(double value)
{
    char buffer[32];
    const auto end = std::to_chars(std::begin(buffer), std::end(buffer) - 1, value,
                                   std::chars_format::scientific);
    // to_chars ends without a zero, which atoi needs.
    *end.ptr = '\0';
    const std::string_view text(buffer, static_cast<size_t>(end.ptr - buffer));
    const size_t e = text.find('e');
    Decimal decimal;
    decimal.mDigits = text.substr(0, 1);
    if (e > 1)
        decimal.mDigits += text.substr(2, e - 2);
    decimal.mExponent = std::atoi(buffer + e + 1) + 1;
    return decimal;
}

// Cuts the digits behind the first `count`, upwards from a 5 on.
void roundDigits(Decimal &decimal, size_t count)
{
    const bool up = decimal.mDigits[count] >= '5';
    decimal.mDigits.resize(count);
    if (!up)
        return;
    while (!decimal.mDigits.empty() && decimal.mDigits.back() == '9')
        decimal.mDigits.pop_back();
    if (decimal.mDigits.empty()) {
        decimal.mDigits = "1";
        ++decimal.mExponent;
    } else {
        ++decimal.mDigits.back();
    }
}

// Infinite where the number is beyond a double.
double toDouble(const Decimal &decimal)
{
    const std::string text = "0." + decimal.mDigits + 'e' + std::to_string(decimal.mExponent);
    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    return result.ec == std::errc::result_out_of_range ? HUGE_VAL : value;
}

} // namespace

double Runde(double value, short decimals)
{
    if (!std::isfinite(value))
        return value;
    // A double that is a half is written as one, so that both ways agree here. The sum takes the
    // sign from a zero.
    if (decimals == 0)
        return std::round(value) + 0.0;
    if (value == 0)
        return 0.0;
    Decimal decimal = shortestDecimal(std::abs(value));
    const int kept = decimal.mExponent + decimals;
    if (kept >= static_cast<int>(decimal.mDigits.size()))
        return value;
    if (kept < 0)
        return 0.0;
    roundDigits(decimal, static_cast<size_t>(kept));
    if (decimal.mDigits.empty())
        return 0.0;
    const double rounded = toDouble(decimal);
    return std::isfinite(rounded) ? std::copysign(rounded, value) : value;
}
