#include "zelUITable.h"

#include "zelDomNode.h"
#include "zelUIVarKinds.h"

ZelUITable::ZelUITable() = default;
ZelUITable::~ZelUITable() = default;

void ZelUITable::setup(Meta *, ZelUIVarTable *variable, AttrMap &attributes)
{
    ZelUIObject::setup(variable, attributes);
    const auto use = attributes.find(L"use");
    mTableType = use != attributes.end() && use->second == L"list" ? ListTable : EditTable;
}

void ZelUITable::setup(Meta *, const ZelDomNode *node)
{
    modelSetupNode(node);
}

void ZelUITable::updateState(ZelUIState state)
{
    mEnabled = state.mEnabled;
    mVisible = state.mVisible;
    mReadOnly = state.mReadOnly;
}

void ZelUITable::updateUnitSystem(bool)
{
}

ZelUITableStruct ZelUITable::toTableStruct()
{
    return {getName(), mSelectedRow, state()};
}

void ZelUITable::setData(Meta *meta, int64_t id)
{
    ZelUIItem::setData(meta, id);
    setItemModelData(meta, id);
}

void ZelUITable::setItemModelData(Meta *, int64_t)
{
}

bool ZelUITable::addRow()
{
    return false;
}

bool ZelUITable::deleteRows()
{
    return false;
}

bool ZelUITable::resetRows()
{
    return false;
}

bool ZelUITable::addColumn()
{
    return false;
}

bool ZelUITable::deleteColumns()
{
    return false;
}

bool ZelUITable::resetColumns()
{
    return false;
}
