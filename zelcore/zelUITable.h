#pragma once

#include "zelUIItem.h"

class ZelDomNode;
class ZelUIVarTable;

struct ZelUITableStruct
{
    zelWString mName;
    int mSelectedRow = -1;
    ZelUIState mState;
};

/// A table of a mask. This class keeps name, state and the selected row; rows and columns come with
/// the table core, so that its operations on rows and columns do nothing here and answer false.
class ZELCORE_EXPORT ZelUITable : public ZelUIItem
{
public:
    enum TableType : int { NoTable, EditTable, ListTable };

    ZelUITable();
    ~ZelUITable() override;

    using ZelUIItem::setup;
    using ZelUIItem::updateState;

    virtual void setup(Meta *meta, ZelUIVarTable *variable, AttrMap &attributes);
    virtual void setup(Meta *meta, const ZelDomNode *node);
    virtual void updateState(ZelUIState state);
    virtual void updateUnitSystem(bool keepDefault);
    virtual ZelUITableStruct toTableStruct();

protected:
    virtual void setItemModelData(Meta *meta, int64_t id);

public:
    virtual bool addRow();
    virtual bool deleteRows();
    virtual bool resetRows();
    virtual bool addColumn();
    virtual bool deleteColumns();
    virtual bool resetColumns();

    /// Calls the virtual setItemModelData.
    void setData(Meta *meta, int64_t id) override;

    TableType mTableType = NoTable;
    int mSelectedRow = -1;
};
