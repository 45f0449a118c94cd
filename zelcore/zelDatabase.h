#pragma once

#include "zelWString.h"
#include "zelcore_export.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <utility>
#include <vector>

/// Name of the database that comes with the application, for lists that name none.
inline constexpr const wchar_t *zelMainDatabase = L"main";

/// How this process reads its database; whoever has one sets it at start. Texts come in the current
/// language. A function that is missing finds nothing, and so does every reading without a
/// provider.
struct ZELCORE_EXPORT ZelDatabaseProvider
{
    using Rows = std::vector<std::pair<zelWString, short>>;

    /// The text of one row, nothing for an unknown id.
    std::function<std::optional<zelWString>(const zelWString &database, const zelWString &table,
                                            long id)>
        mName;
    /// Text and id of the rows of a table, in the order to show. `key` narrows them in a way of the
    /// table's own; 0 stands for all.
    std::function<Rows(const zelWString &database, const zelWString &table,
                       const zelWString &idColumn, uint64_t key)>
        mRows;
    /// The same for the materials of a type.
    std::function<Rows(const zelWString &table, int type)> mMaterials;
};

ZELCORE_EXPORT void zelSetDatabaseProvider(ZelDatabaseProvider provider);

/// Text and id of the rows of a table, in the order to show.
ZELCORE_EXPORT ZelDatabaseProvider::Rows zelDatabaseRows(const zelWString &database,
                                                         const zelWString &table,
                                                         const zelWString &idColumn,
                                                         uint64_t key = 0);

/// Writes the text of the row `id` to `name`: at most 1023 characters and a terminator. Names of
/// database and table are Latin-1. 0 when nothing was found; `name` is left alone then. The two
/// further numbers are not looked at.
ZELCORE_EXPORT int GetDBName(const char *database, const char *table, short kind, long &id,
                             long &key, wchar_t *name);
/// The texts of a table by id.
ZELCORE_EXPORT std::map<short, zelWString>
DBreadmap(const zelWString &database, const zelWString &table, const zelWString &column);
/// The materials of a type, in the order to show.
ZELCORE_EXPORT std::vector<std::pair<zelWString, short>> DBreadmatlist(const zelWString &table,
                                                                       int type);
