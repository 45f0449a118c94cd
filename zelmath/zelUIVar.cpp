#include "zelUIVar.h"

#include <algorithm>
#include <utility>

ZelUIVar::ZelUIVar(zelWString name, ZelVarStorage storage, int componentCount)
    : mName(std::move(name))
    , mStorage(storage)
    , mComponentCount(std::clamp(componentCount, 1, 3))
{
}

ZelUIVar::~ZelUIVar() = default;

double ZelUIVar::initialNumber(int) const
{
    return 0;
}

const zelWString &ZelUIVar::initialText() const
{
    static const zelWString none;
    return none;
}

// What a table of the database holds is not known here; its own entry is there whatever it holds.

std::vector<zelWString> ZelUIVar::entryNames() const
{
    const zelWString own = entryName(0);
    return own.empty() ? std::vector<zelWString>() : std::vector<zelWString>{own};
}

std::optional<int64_t> ZelUIVar::entryId(const zelWString &name) const
{
    const bool own = !name.empty() && name == entryName(0);
    return own ? std::optional<int64_t>(0) : std::nullopt;
}

zelWString ZelUIVar::entryName(int64_t id) const
{
    const ZelUITextHandler *own = id == 0 ? ownEntry() : nullptr;
    return own && !own->empty() ? L"own" : L"";
}
