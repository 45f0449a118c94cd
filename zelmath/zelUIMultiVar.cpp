#include "zelUIMultiVar.h"

ZelUIMultiVar::ZelUIMultiVar(zelWString name, ZelDimensions::Unit defaultUnit, int componentCount)
    : ZelUIVar(std::move(name), ZelVarStorage::Real, componentCount)
    , mDefaultUnit(defaultUnit)
{
}

ZelUIMultiVar::~ZelUIMultiVar() = default;

ZelVarStorage ZelUIMultiVar::storage() const
{
    return mValueKind == 0 ? ZelVarStorage::Real : ZelVarStorage::Integer;
}

double ZelUIMultiVar::initialNumber(int component) const
{
    const bool exists = component >= 0 && component < componentCount();
    return exists ? mInitial[static_cast<size_t>(component)] : 0;
}
