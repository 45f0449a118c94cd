#include "zelUIVarLists.h"

namespace {

std::vector<zelWString> ownNames(const ZelUITextHandler &own)
{
    return own.empty() ? std::vector<zelWString>() : std::vector<zelWString>{L"own"};
}

std::optional<int64_t> ownId(const ZelUITextHandler &own, const zelWString &name)
{
    return !own.empty() && name == L"own" ? std::optional<int64_t>(0) : std::nullopt;
}

zelWString ownName(const ZelUITextHandler &own, int64_t id)
{
    return !own.empty() && id == 0 ? zelWString(L"own") : zelWString();
}

} // namespace

ZelUIVarFuncList::ZelUIVarFuncList(zelWString name)
    : ZelUIVar(std::move(name), ZelVarStorage::Integer)
{
}

ZelUIVarFuncList::~ZelUIVarFuncList() = default;

double ZelUIVarFuncList::initialNumber(int) const
{
    return mInitial;
}

ZelUIVarFuncListDynamic::ZelUIVarFuncListDynamic(zelWString name)
    : ZelUIVar(std::move(name), ZelVarStorage::Integer)
{
}

ZelUIVarFuncListDynamic::~ZelUIVarFuncListDynamic() = default;

double ZelUIVarFuncListDynamic::initialNumber(int) const
{
    return static_cast<double>(mInitial);
}

ZelUIVarRealFuncList::ZelUIVarRealFuncList(zelWString name)
    : ZelUIVar(std::move(name), ZelVarStorage::Real)
{
}

ZelUIVarRealFuncList::~ZelUIVarRealFuncList() = default;

double ZelUIVarRealFuncList::initialNumber(int) const
{
    return mInitial;
}

ZelUIVarDBList::ZelUIVarDBList(zelWString name)
    : ZelUIVar(std::move(name), ZelVarStorage::Integer)
{
}

ZelUIVarDBList::~ZelUIVarDBList() = default;

double ZelUIVarDBList::initialNumber(int) const
{
    return mInitial;
}

ZelUIVarDBFuncList::ZelUIVarDBFuncList(zelWString name)
    : ZelUIVar(std::move(name), ZelVarStorage::Integer)
{
}

ZelUIVarDBFuncList::~ZelUIVarDBFuncList() = default;

double ZelUIVarDBFuncList::initialNumber(int) const
{
    return mInitial;
}

ZelUIVarMatList::ZelUIVarMatList(zelWString name)
    : ZelUIVar(std::move(name), ZelVarStorage::Integer)
{
}

ZelUIVarMatList::~ZelUIVarMatList() = default;

double ZelUIVarMatList::initialNumber(int) const
{
    return mInitial;
}

ZelUIVarLubList::ZelUIVarLubList(zelWString name)
    : ZelUIVar(std::move(name), ZelVarStorage::Integer)
{
}

ZelUIVarLubList::~ZelUIVarLubList() = default;

double ZelUIVarLubList::initialNumber(int) const
{
    return mInitial;
}

ZelUIVarLS::ZelUIVarLS(zelWString name)
    : ZelUIVar(std::move(name), ZelVarStorage::Integer, 2)
{
}

ZelUIVarLS::~ZelUIVarLS() = default;

double ZelUIVarLS::initialNumber(int component) const
{
    return component == 0 ? mInitial : mInitialNumber;
}

std::vector<zelWString> ZelUIVarDBList::entryNames() const
{
    return ownNames(mOwn);
}

std::optional<int64_t> ZelUIVarDBList::entryId(const zelWString &name) const
{
    return ownId(mOwn, name);
}

zelWString ZelUIVarDBList::entryName(int64_t id) const
{
    return ownName(mOwn, id);
}

std::vector<zelWString> ZelUIVarDBFuncList::entryNames() const
{
    return ownNames(mOwn);
}

std::optional<int64_t> ZelUIVarDBFuncList::entryId(const zelWString &name) const
{
    return ownId(mOwn, name);
}

zelWString ZelUIVarDBFuncList::entryName(int64_t id) const
{
    return ownName(mOwn, id);
}

std::vector<zelWString> ZelUIVarMatList::entryNames() const
{
    return ownNames(mOwn);
}

std::optional<int64_t> ZelUIVarMatList::entryId(const zelWString &name) const
{
    return ownId(mOwn, name);
}

zelWString ZelUIVarMatList::entryName(int64_t id) const
{
    return ownName(mOwn, id);
}

std::vector<zelWString> ZelUIVarLubList::entryNames() const
{
    return ownNames(mOwn);
}

std::optional<int64_t> ZelUIVarLubList::entryId(const zelWString &name) const
{
    return ownId(mOwn, name);
}

zelWString ZelUIVarLubList::entryName(int64_t id) const
{
    return ownName(mOwn, id);
}
