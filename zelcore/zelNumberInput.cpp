#include "zelNumberInput_p.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

std::optional<double> zelReadNumber(const zelWString &text)
{
    std::string plain = text.toUtf8();
    const auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; };
    plain.erase(plain.begin(), std::find_if_not(plain.begin(), plain.end(), isBlank));
    plain.erase(std::find_if_not(plain.rbegin(), plain.rend(), isBlank).base(), plain.end());
    std::replace(plain.begin(), plain.end(), ',', '.');
    // from_chars knows no plus sign.
    if (plain.size() > 1 && plain[0] == '+' && plain[1] != '-')
        plain.erase(0, 1);

    double number = 0;
    const char *const end = plain.data() + plain.size();
    const auto [stop, error] = std::from_chars(plain.data(), end, number);
    if (error != std::errc() || stop != end || !std::isfinite(number))
        return std::nullopt;
    return number;
}

zelWString zelFixedText(double value, int decimals)
{
    // The largest double has 309 digits before the point.
    char buffer[400];
    const int places = std::clamp(decimals, 0, 60);
    const auto [end, error] =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, places);
    return error == std::errc() ? zelWString(std::wstring(buffer, end)) : zelWString();
}

int64_t zelToInteger(double value)
{
    // 2^63 is the first double beyond the range.
    constexpr double limit = 9223372036854775808.0;
    if (std::isnan(value))
        return 0;
    if (value >= limit)
        return std::numeric_limits<int64_t>::max();
    if (value < -limit)
        return std::numeric_limits<int64_t>::min();
    return std::llround(value);
}
