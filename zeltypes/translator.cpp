#include "translator.h"

#include "internMessage.h"
#include "translatorTables.h"

#include <charconv>

namespace {

ZelLanguage currentLanguage = ZelLanguage::German;

// The part before the first separator; the rest stays in `text`.
std::string_view takeUntil(std::string_view &text, char separator)
{
    const size_t end = text.find(separator);
    const std::string_view part = text.substr(0, end);
    text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
    return part;
}

std::string unescaped(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        const bool escape =
            text[i] == '\\' && i + 1 < text.size() && (text[i + 1] == 'n' || text[i + 1] == 't');
        if (escape)
            result += text[++i] == 'n' ? '\n' : '\t';
        else
            result += text[i];
    }
    return result;
}

const zelWString &textOf(const Translator::Row &row, ZelLanguage language)
{
    for (const ZelLanguage candidate : {language, ZelLanguage::English, ZelLanguage::German}) {
        const zelWString &text = row[static_cast<size_t>(candidate)];
        if (!text.empty())
            return text;
    }
    return row[0];
}

} // namespace

ZelLanguage zelLanguage()
{
    return currentLanguage;
}

void setZelLanguage(ZelLanguage language)
{
    currentLanguage = language;
}

Translator pool{zelPoolTable()};
Translator poolUi{zelPoolUiTable()};

Translator::Translator(std::string_view table)
{
    add(table);
}

void Translator::add(std::string_view table)
{
    while (!table.empty()) {
        std::string_view line = takeUntil(table, '\n');
        if (!line.empty() && line.back() == '\r')
            line.remove_suffix(1);
        if (line.empty() || line.front() == '#')
            continue;
        const std::string_view number = takeUntil(line, '\t');
        int id = 0;
        const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), id);
        if (error != std::errc() || end != number.data() + number.size()) {
            internMessage(__FILE__, __LINE__,
                          "a line of a text table does not begin with a number");
            continue;
        }
        Row row;
        for (zelWString &text : row)
            text = zelWString::fromUtf8(unescaped(takeUntil(line, '\t')));
        if (!mRows.emplace(id, std::move(row)).second)
            internMessage(__FILE__, __LINE__, "a text number is used twice");
    }
}

zelWString Translator::GetString(int id) const
{
    const auto row = mRows.find(id);
    return row == mRows.end() ? zelWString() : textOf(row->second, currentLanguage);
}
