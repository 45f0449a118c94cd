#include "zelUiListText_p.h"

#include "zelNumberInput_p.h"
#include "zelUiParser.h"

#include <limits>
#include <sstream>

namespace {

template <class Take> void forEachLine(const zelWString &lines, Take take)
{
    std::wistringstream stream{std::wstring(lines)};
    for (std::wstring line; std::getline(stream, line);) {
        const size_t tab = line.find(L'\t');
        const std::wstring head = line.substr(0, tab);
        const auto number = zelReadNumber(head);
        if (number)
            take(*number, head, tab == std::wstring::npos ? head : line.substr(tab + 1));
    }
}

} // namespace

std::vector<std::pair<zelWString, int64_t>> zelReadIdLines(const zelWString &lines)
{
    std::vector<std::pair<zelWString, int64_t>> list;
    forEachLine(lines, [&list](double, const std::wstring &head, const std::wstring &text) {
        // The number again, since a double does not hold all ids.
        list.emplace_back(text, std::wcstoll(head.c_str(), nullptr, 10));
    });
    return list;
}

std::vector<std::pair<zelWString, double>> zelReadNumberLines(const zelWString &lines)
{
    std::vector<std::pair<zelWString, double>> list;
    forEachLine(lines, [&list](double number, const std::wstring &, const std::wstring &text) {
        list.emplace_back(text, number);
    });
    return list;
}

std::set<short> zelReadIds(const zelWString &ids)
{
    std::set<short> result;
    for (const zelWString &word : ZelUiParser::words(ids))
        result.insert(zelToShort(word.toInt()));
    return result;
}

short zelToShort(int64_t id)
{
    using Limits = std::numeric_limits<short>;
    return id < Limits::min() || id > Limits::max() ? short(0) : static_cast<short>(id);
}
