#include "zelUIVarChoice.h"

#include <algorithm>

ZelUIVarChoice::ZelUIVarChoice(zelWString name)
    : ZelUIVarList(std::move(name))
{
}

ZelUIVarChoice::~ZelUIVarChoice() = default;

double ZelUIVarChoice::initialNumber(int) const
{
    const auto count = static_cast<int>(mAlternatives.size());
    const bool exists = mInitial >= 1 && mInitial <= count;
    return exists ? mInitial : std::min(1, count);
}

bool ZelUIVarChoice::contains(short alternative, const ZelUIVar *variable) const
{
    if (alternative < 1 || static_cast<size_t>(alternative) > mAlternatives.size())
        return false;
    const auto &members = mAlternatives[static_cast<size_t>(alternative) - 1];
    return std::find(members.begin(), members.end(), variable) != members.end();
}

bool ZelUIVarChoice::contains(const ZelUIVar *variable) const
{
    return std::any_of(mAlternatives.begin(), mAlternatives.end(), [variable](const auto &members) {
        return std::find(members.begin(), members.end(), variable) != members.end();
    });
}

bool ZelUIVarChoice::isDisjoint() const
{
    std::vector<const ZelUIVar *> all;
    for (const auto &members : mAlternatives)
        all.insert(all.end(), members.begin(), members.end());
    std::sort(all.begin(), all.end(), std::less<>());
    return std::adjacent_find(all.begin(), all.end()) == all.end();
}
