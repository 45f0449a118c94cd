#include "zelUIVarKinds.h"

#include <algorithm>
#include <limits>

ZelUIVarBool::ZelUIVarBool(zelWString name)
    : ZelUIVar(std::move(name), ZelVarStorage::Boolean)
{
}

ZelUIVarBool::~ZelUIVarBool() = default;

double ZelUIVarBool::initialNumber(int) const
{
    return mInitial ? 1 : 0;
}

ZelUIVarString::ZelUIVarString(zelWString name)
    : ZelUIVar(std::move(name), ZelVarStorage::Text)
{
}

ZelUIVarString::~ZelUIVarString() = default;

const zelWString &ZelUIVarString::initialText() const
{
    return mInitial;
}

// The function is asked anew each time the text is shown: there is nothing to store.
ZelUIVarFuncText::ZelUIVarFuncText(zelWString name)
    : ZelUIVar(std::move(name), ZelVarStorage::None)
{
}

ZelUIVarFuncText::~ZelUIVarFuncText() = default;

ZelUIVarText::ZelUIVarText(zelWString name)
    : ZelUIVar(std::move(name), ZelVarStorage::Text)
{
}

ZelUIVarText::~ZelUIVarText() = default;

const zelWString &ZelUIVarText::initialText() const
{
    return mInitial;
}

ZelUIVarMultilineString::ZelUIVarMultilineString(zelWString name)
    : ZelUIVar(std::move(name), ZelVarStorage::Text)
{
}

ZelUIVarMultilineString::~ZelUIVarMultilineString() = default;

const zelWString &ZelUIVarMultilineString::initialText() const
{
    return mInitial;
}

ZelUIVarTextButton::ZelUIVarTextButton(zelWString name)
    : ZelUIVar(std::move(name), ZelVarStorage::None)
{
}

ZelUIVarTextButton::~ZelUIVarTextButton() = default;

ZelUIVarImage::ZelUIVarImage(zelWString name)
    : ZelUIVar(std::move(name), ZelVarStorage::Text)
{
}

ZelUIVarImage::~ZelUIVarImage() = default;

const zelWString &ZelUIVarImage::initialText() const
{
    return mInitial;
}

ZelUIVarList::ZelUIVarList(zelWString name)
    : ZelUIVar(std::move(name), ZelVarStorage::Integer)
{
}

ZelUIVarList::~ZelUIVarList() = default;

double ZelUIVarList::initialNumber(int) const
{
    return mInitial;
}

const ZelListEntry *ZelUIVarList::entry(const zelWString &name) const
{
    const auto found = std::find_if(mEntries.begin(), mEntries.end(),
                                    [&](const ZelListEntry &e) { return e.mName == name; });
    return found == mEntries.end() ? nullptr : &*found;
}

const ZelListEntry *ZelUIVarList::entry(short id) const
{
    const auto found = std::find_if(mEntries.begin(), mEntries.end(),
                                    [id](const ZelListEntry &e) { return e.mId == id; });
    return found == mEntries.end() ? nullptr : &*found;
}

std::vector<zelWString> ZelUIVarList::entryNames() const
{
    std::vector<zelWString> names;
    for (const ZelListEntry &candidate : mEntries) {
        if (!candidate.mName.empty())
            names.push_back(candidate.mName);
    }
    return names;
}

std::optional<int64_t> ZelUIVarList::entryId(const zelWString &name) const
{
    const ZelListEntry *found = name.empty() ? nullptr : entry(name);
    return found ? std::optional<int64_t>(found->mId) : std::nullopt;
}

zelWString ZelUIVarList::entryName(int64_t id) const
{
    using Limits = std::numeric_limits<short>;
    if (id < Limits::min() || id > Limits::max())
        return {};
    const ZelListEntry *found = entry(static_cast<short>(id));
    return found ? found->mName : zelWString();
}

ZelUIVarRealList::ZelUIVarRealList(zelWString name)
    : ZelUIVar(std::move(name), ZelVarStorage::Real)
{
}

ZelUIVarRealList::~ZelUIVarRealList() = default;

double ZelUIVarRealList::initialNumber(int) const
{
    return mInitial;
}

ZelUIVarTable::ZelUIVarTable(zelWString name)
    : ZelUIVar(std::move(name), ZelVarStorage::None)
{
}

ZelUIVarTable::~ZelUIVarTable() = default;
