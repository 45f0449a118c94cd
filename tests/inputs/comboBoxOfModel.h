#pragma once

#include "fieldOnPage.h"
#include "meta.h"
#include "zelCondition.h"
#include "zelDatabase.h"
#include "zelQtComboBox.h"
#include "zelTextTable.h"
#include "zelUIVarKinds.h"
#include "zelUIVarLists.h"

/// A box on a page whose signals are written down.
using Fixture = FieldOnPage<ZelQtComboBox>;

inline QStringList texts(const ZelQtComboBox &box)
{
    QStringList list;
    for (int row = 0; row < box.count(); ++row)
        list << box.itemText(row);
    return list;
}

inline bool isSelectable(const ZelQtComboBox &box, int row)
{
    return box.model()->flags(box.model()->index(row, 0)) & Qt::ItemIsEnabled;
}

inline ZelListEntry entry(short id, const wchar_t *name, const wchar_t *german, double number = 0,
                          std::shared_ptr<const ZelTextTable> table = nullptr)
{
    ZelListEntry result;
    result.mId = id;
    result.mName = name;
    result.mText.setText(german, std::move(table));
    result.mNumber = number;
    return result;
}

// A box over a variable of a store, filled and shown as the driver of a mask does it.
template <class Variable> class BoundBox : public Fixture
{
public:
    BoundBox() { mVariable = mMeta.add<Variable>(L"v"); }

    void build()
    {
        mField.setup(mVariable, mAttributes, 0);
        mField.retranslate();
        refresh();
        take();
    }
    void refresh()
    {
        mField.updateState(&mMeta, 0);
        mField.setData(&mMeta, 0);
    }
    [[nodiscard]] bool chooseByKey(Qt::Key key)
    {
        if (!enter())
            return false;
        QTest::keyClick(&mField, key);
        mField.getData(&mMeta, 0);
        return true;
    }
    int64_t stored() const { return mMeta.integer(*mVariable, 0); }
    void store(int64_t id) { mMeta.setInteger(*mVariable, 0, 0, id, ZelOrigin::Load); }
    void setCondition(std::shared_ptr<const ZelCondition> ZelUIVar::*kind, const wchar_t *text)
    {
        ZelCondition::Fault fault;
        mVariable->*kind = ZelCondition::compile(text, mMeta, fault);
        QVERIFY2(mVariable->*kind, fault.mText.c_str());
    }
    void answer(const wchar_t *lines)
    {
        mVariable->mFunction = L"entries";
        mMeta.setFunction(L"entries", [lines](const zelWString &, zelWString &result) {
            result = lines;
            return true;
        });
    }

    Meta mMeta;
    AttrMap mAttributes;
    Variable *mVariable = nullptr;
};

class LubricantBox : public BoundBox<ZelUIVarList>
{
public:
    LubricantBox()
    {
        ZelFaultList faults;
        const auto table = std::make_shared<const ZelTextTable>(ZelTextTable::fromText(
            "German\tEnglish\tFrench\tItalian\tSpanish\tRussian\tPortuguese\tChinese\tJapanese\n"
            "Fett\tGrease\t\t\t\t\t\t\t\n"
            "Öl\tOil\t\t\t\t\t\t\t\n",
            "lubricant.tsv", faults));
        mVariable->mEntries = {entry(1, L"grease", L"Fett", 0, table),
                               entry(2, L"oil", L"Öl", 0, table),
                               entry(5, L"none", L"keine", 0, table)};
        mVariable->mInitial = 2;
    }
};

class BearingBox : public BoundBox<ZelUIVarDBList>
{
public:
    BearingBox()
    {
        mVariable->mTable = L"bearing";
        mVariable->mInitial = 2;
    }
};

/// A database in which the table "bearing" knows two names.
inline void provideDatabase()
{
    ZelDatabaseProvider provider;
    provider.mRows = [](const zelWString &, const zelWString &, const zelWString &, uint64_t key) {
        if (key == 7)
            return ZelDatabaseProvider::Rows{{L"VG 68", 4}, {L"VG 100", 5}};
        return ZelDatabaseProvider::Rows{{L"6303", 3}, {L"6205", 1}, {L"6206", 2}};
    };
    provider.mName = [](const zelWString &, const zelWString &table,
                        long id) -> std::optional<zelWString> {
        if (!(table == L"bearing"))
            return std::nullopt;
        if (id == 9)
            return L"6409";
        return id == 2 ? std::optional<zelWString>(L"6206") : std::nullopt;
    };
    zelSetDatabaseProvider(provider);
}
