#include "zelParse_p.h"

#include <charconv>
#include <cmath>

namespace {

// The text as ASCII; empty when it holds anything else, which no number does.
std::string ascii(const zelWString &text)
{
    std::string bytes;
    for (const wchar_t c : text.view()) {
        if (c <= L' ' || c >= 0x7f)
            return {};
        bytes += static_cast<char>(c);
    }
    return bytes;
}

template <class Number> std::optional<Number> parse(const zelWString &text)
{
    const std::string bytes = ascii(text);
    Number number{};
    const char *end = bytes.data() + bytes.size();
    const auto [stop, error] = std::from_chars(bytes.data(), end, number);
    if (bytes.empty() || error != std::errc() || stop != end)
        return std::nullopt;
    return number;
}

bool isLetter(wchar_t c)
{
    return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || c == L'_';
}

} // namespace

std::optional<double> zelParseNumber(const zelWString &text)
{
    const auto number = parse<double>(text);
    return number && std::isfinite(*number) ? number : std::nullopt;
}

std::optional<long> zelParseInteger(const zelWString &text)
{
    return parse<long>(text);
}

std::optional<bool> zelParseBool(const zelWString &text)
{
    if (text == L"true")
        return true;
    if (text == L"false")
        return false;
    return std::nullopt;
}

std::optional<std::vector<double>> zelParseNumbers(const zelWString &text)
{
    std::vector<double> numbers;
    for (const zelWString &word : zelWords(text)) {
        const auto number = zelParseNumber(word);
        if (!number)
            return std::nullopt;
        numbers.push_back(*number);
    }
    return numbers;
}

std::optional<int> zelParseComponents(const zelWString &text)
{
    const std::wstring_view view = text.view();
    const bool range = view.size() == 4 && view.starts_with(L"1..");
    const wchar_t count = view.empty() ? L'0' : view.back();
    if ((!range && view.size() != 1) || count < L'1' || count > L'3')
        return std::nullopt;
    return static_cast<int>(count - L'0');
}

std::optional<ZelDimensions::Unit> zelParseUnit(const zelWString &text)
{
    if (text.empty())
        return ZelDimensions::NoUnit;
    const ZelDimensions::Unit shown = ZelDimensions::getUnit(text);
    if (shown != ZelDimensions::NoUnit)
        return shown;
    const ZelDimensions::Unit stored = ZelDimensions::fromEnumString(text);
    return stored == ZelDimensions::NoUnit ? std::nullopt : std::optional(stored);
}

std::vector<zelWString> zelWords(const zelWString &text, bool commas)
{
    const std::wstring_view separators = commas ? L" \t\r\n," : L" \t\r\n";
    const std::wstring_view view = text.view();
    std::vector<zelWString> words;
    for (size_t at = view.find_first_not_of(separators); at != view.npos;) {
        const size_t end = std::min(view.find_first_of(separators, at), view.size());
        words.emplace_back(std::wstring(view.substr(at, end - at)));
        at = view.find_first_not_of(separators, end);
    }
    return words;
}

bool zelIsName(const zelWString &text)
{
    const std::wstring_view view = text.view();
    if (view.empty() || !isLetter(view.front()))
        return false;
    for (const wchar_t c : view) {
        if (!isLetter(c) && !(c >= L'0' && c <= L'9'))
            return false;
    }
    return true;
}
