#include "zelDatabase.h"

#include <algorithm>
#include <string_view>

namespace {

// Callers hand in a buffer of this size.
constexpr size_t nameBufferSize = 1024;

ZelDatabaseProvider &provider()
{
    static ZelDatabaseProvider current;
    return current;
}

zelWString fromLatin1(const char *text)
{
    std::wstring wide;
    for (const char c : std::string_view(text ? text : ""))
        wide += static_cast<wchar_t>(static_cast<unsigned char>(c));
    return wide;
}

} // namespace

void zelSetDatabaseProvider(ZelDatabaseProvider newProvider)
{
    provider() = std::move(newProvider);
}

ZelDatabaseProvider::Rows zelDatabaseRows(const zelWString &database, const zelWString &table,
                                          const zelWString &idColumn, uint64_t key)
{
    const auto &read = provider().mRows;
    return read ? read(database, table, idColumn, key) : ZelDatabaseProvider::Rows();
}

int GetDBName(const char *database, const char *table, short, long &id, long &, wchar_t *name)
{
    const auto &read = provider().mName;
    const auto found = read ? read(fromLatin1(database), fromLatin1(table), id) : std::nullopt;
    if (!found)
        return 0;
    const size_t length = std::min(found->size(), nameBufferSize - 1);
    std::copy_n(found->data(), length, name);
    name[length] = L'\0';
    return 1;
}

std::map<short, zelWString> DBreadmap(const zelWString &database, const zelWString &table,
                                      const zelWString &column)
{
    std::map<short, zelWString> texts;
    for (const auto &[text, id] : zelDatabaseRows(database, table, column))
        texts.emplace(id, text);
    return texts;
}

std::vector<std::pair<zelWString, short>> DBreadmatlist(const zelWString &table, int type)
{
    const auto &read = provider().mMaterials;
    return read ? read(table, type) : ZelDatabaseProvider::Rows();
}
