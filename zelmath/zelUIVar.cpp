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

std::vector<zelWString> ZelUIVar::entryNames() const
{
    return {};
}

std::optional<int64_t> ZelUIVar::entryId(const zelWString &) const
{
    return std::nullopt;
}

zelWString ZelUIVar::entryName(int64_t) const
{
    return {};
}
