#include "zelUIVarLists.h"

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
