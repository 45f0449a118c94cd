#include "zelTextTable.h"

#include "zelSourceText_p.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace {

constexpr std::array<std::string_view, zelLanguageCount> languageNames{
    "German",  "English",    "French",  "Italian", "Spanish",
    "Russian", "Portuguese", "Chinese", "Japanese"};

constexpr size_t keyColumn = zelLanguageCount;

std::vector<std::string_view> cellsOf(std::string_view line)
{
    std::vector<std::string_view> cells;
    for (size_t end = line.find('\t'); end != std::string_view::npos; end = line.find('\t')) {
        cells.push_back(line.substr(0, end));
        line.remove_prefix(end + 1);
    }
    cells.push_back(line);
    return cells;
}

// "\n" and "\t" stand for line break and tab.
zelWString textOf(std::string_view cell)
{
    std::string text;
    for (size_t i = 0; i < cell.size(); ++i) {
        const char next = i + 1 < cell.size() ? cell[i + 1] : '\0';
        const bool escape = cell[i] == '\\' && (next == 'n' || next == 't');
        if (escape)
            text += cell[++i] == 'n' ? '\n' : '\t';
        else
            text += cell[i];
    }
    return zelWString::fromUtf8(text);
}

std::string languageList()
{
    std::string list = "key";
    for (const std::string_view name : languageNames)
        list += ", " + std::string(name);
    return list;
}

class TableReader
{
public:
    TableReader(std::string_view bytes, const std::string &fileName, ZelFaultList &faults)
        : mBytes(bytes)
        , mFileName(fileName)
        , mFaults(faults)
        , mPlaces(bytes)
    {
    }

    void read(std::map<zelWString, Translator::Row> &rows);

private:
    void add(ZelFaultCode code, const char *at, std::string text, std::string expected = {});
    bool readHeader(std::string_view line);
    void readRow(std::string_view line, std::map<zelWString, Translator::Row> &rows);
    bool isUtf8(std::string_view line);

    std::string_view mBytes;
    const std::string &mFileName;
    ZelFaultList &mFaults;
    ZelPlaceFinder mPlaces;
    std::vector<size_t> mColumns; // what each column holds: a language or keyColumn
};

void TableReader::add(ZelFaultCode code, const char *at, std::string text, std::string expected)
{
    const ZelPlace place = mPlaces.place(static_cast<size_t>(at - mBytes.data()));
    mFaults.push_back({ZelFaultSeverity::Error, code, mFileName, place.mLine, place.mColumn,
                       std::move(text), std::move(expected)});
}

bool TableReader::isUtf8(std::string_view line)
{
    const size_t bad = zelFindInvalidUtf8(line);
    if (bad != std::string_view::npos)
        add(ZelFaultCode::NotUtf8, line.data() + bad, "a byte that is not UTF-8",
            "a file in UTF-8");
    return bad == std::string_view::npos;
}

bool TableReader::readHeader(std::string_view line)
{
    for (const std::string_view cell : cellsOf(line)) {
        const auto name = std::find(languageNames.begin(), languageNames.end(), cell);
        const bool key = cell == "key" && mColumns.empty();
        if (name == languageNames.end() && !key) {
            add(ZelFaultCode::UnknownName, cell.data(),
                "no column is named \"" + std::string(cell) + "\"", languageList());
            return false;
        }
        const auto column = static_cast<size_t>(name - languageNames.begin());
        if (std::find(mColumns.begin(), mColumns.end(), column) != mColumns.end()) {
            add(ZelFaultCode::DuplicateName, cell.data(),
                "column \"" + std::string(cell) + "\" stands twice");
            return false;
        }
        mColumns.push_back(column);
    }
    if (std::find(mColumns.begin(), mColumns.end(), 0) != mColumns.end())
        return true;
    add(ZelFaultCode::MissingAttribute, line.data(), "there is no column \"German\"",
        languageList());
    return false;
}

void TableReader::readRow(std::string_view line, std::map<zelWString, Translator::Row> &rows)
{
    const std::vector<std::string_view> cells = cellsOf(line);
    if (cells.size() > mColumns.size()) {
        add(ZelFaultCode::Syntax, cells[mColumns.size()].data(), "more cells than columns",
            std::to_string(mColumns.size()) + " cells");
        return;
    }
    Translator::Row row;
    zelWString key;
    for (size_t i = 0; i < cells.size(); ++i)
        (mColumns[i] == keyColumn ? key : row[mColumns[i]]) = textOf(cells[i]);
    const zelWString &name = key.empty() ? row[0] : key;
    if (name.empty())
        add(ZelFaultCode::Syntax, line.data(), "a line without German text");
    else if (rows.find(name) != rows.end())
        add(ZelFaultCode::DuplicateName, line.data(), "\"" + name.toUtf8() + "\" stands twice");
    else
        rows.emplace(name, std::move(row));
}

void TableReader::read(std::map<zelWString, Translator::Row> &rows)
{
    bool header = false;
    for (size_t begin = 0; begin < mBytes.size();) {
        const size_t end = std::min(mBytes.find('\n', begin), mBytes.size());
        std::string_view line = mBytes.substr(begin, end - begin);
        begin = end + 1;
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        if (line.empty() || line.front() == '#' || !isUtf8(line))
            continue;
        if (header)
            readRow(line, rows);
        else if (!readHeader(line))
            return;
        header = true;
    }
    if (!header)
        add(ZelFaultCode::Syntax, mBytes.data(), "the table has no header", languageList());
}

} // namespace

ZelTextTable ZelTextTable::fromText(std::string_view bytes, const std::string &fileName,
                                    ZelFaultList &faults)
{
    ZelTextTable table;
    TableReader(zelWithoutMark(bytes), fileName, faults).read(table.mRows);
    return table;
}

zelWString ZelTextTable::text(const zelWString &german, const zelWString &key,
                              ZelLanguage language) const
{
    const auto found = mRows.find(key.empty() ? german : key);
    // The description is the source of the German text, a column of the table only repeats it.
    if (found == mRows.end() || language == ZelLanguage::German)
        return german;
    for (const ZelLanguage candidate : {language, ZelLanguage::English}) {
        const zelWString &text = found->second[static_cast<size_t>(candidate)];
        if (!text.empty())
            return text;
    }
    return german;
}

bool ZelTextTable::contains(const zelWString &germanOrKey) const
{
    return mRows.find(germanOrKey) != mRows.end();
}

bool ZelTextTable::isTranslated(const zelWString &germanOrKey, ZelLanguage language) const
{
    const auto found = mRows.find(germanOrKey);
    return found != mRows.end() && !found->second[static_cast<size_t>(language)].empty();
}
