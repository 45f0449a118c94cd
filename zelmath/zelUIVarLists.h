#pragma once

#include "zelUIVar.h"

#include <cstdint>
#include <vector>

// The kinds of lists whose entries are not fixed in the description: a function of the module or
// the database yields them.

/// A choice from entries that a function yields: result 0, a line for each entry with id, tab,
/// text. The value is the id, 16 bits.
class ZELMATH_EXPORT ZelUIVarFuncList : public ZelUIVar
{
public:
    explicit ZelUIVarFuncList(zelWString name);
    ~ZelUIVarFuncList() override;
    double initialNumber(int component) const override;
    zelWString mFunction;
    short mInitial = 0;
};

/// The same with ids of 64 bits: objects of the module.
class ZELMATH_EXPORT ZelUIVarFuncListDynamic : public ZelUIVar
{
public:
    explicit ZelUIVarFuncListDynamic(zelWString name);
    ~ZelUIVarFuncListDynamic() override;
    double initialNumber(int component) const override;
    zelWString mFunction;
    int64_t mInitial = 0;
};

/// A choice from numbers that a function yields: result 0, a line for each with number, tab, text;
/// numbers in default units with a point. The value is the number.
class ZELMATH_EXPORT ZelUIVarRealFuncList : public ZelUIVar
{
public:
    explicit ZelUIVarRealFuncList(zelWString name);
    ~ZelUIVarRealFuncList() override;
    double initialNumber(int component) const override;
    zelWString mFunction;
    double mInitial = 0;
};

/// A choice from a table of the database; the value is the id.
class ZELMATH_EXPORT ZelUIVarDBList : public ZelUIVar
{
public:
    explicit ZelUIVarDBList(zelWString name);
    ~ZelUIVarDBList() override;
    double initialNumber(int component) const override;
    std::vector<zelWString> entryNames() const override;
    std::optional<int64_t> entryId(const zelWString &name) const override;
    zelWString entryName(int64_t id) const override;
    zelWString mDatabase;
    zelWString mTable;
    zelWString mIdColumn = L"ID";
    /// Text of the entry with id 0, "own values"; no such entry when it is empty.
    ZelUITextHandler mOwn;
    short mInitial = 0;

protected:
    const ZelUITextHandler *ownEntry() const override { return &mOwn; }
};

/// The same, but only the ids that a function yields: result 0, separated by blanks.
class ZELMATH_EXPORT ZelUIVarDBFuncList : public ZelUIVar
{
public:
    explicit ZelUIVarDBFuncList(zelWString name);
    ~ZelUIVarDBFuncList() override;
    double initialNumber(int component) const override;
    std::vector<zelWString> entryNames() const override;
    std::optional<int64_t> entryId(const zelWString &name) const override;
    zelWString entryName(int64_t id) const override;
    zelWString mDatabase;
    zelWString mTable;
    zelWString mIdColumn = L"ID";
    zelWString mFunction;
    ZelUITextHandler mOwn;
    short mInitial = 0;

protected:
    const ZelUITextHandler *ownEntry() const override { return &mOwn; }
};

/// A material of the database; the value is its id.
class ZELMATH_EXPORT ZelUIVarMatList : public ZelUIVar
{
public:
    explicit ZelUIVarMatList(zelWString name);
    ~ZelUIVarMatList() override;
    double initialNumber(int component) const override;
    std::vector<zelWString> entryNames() const override;
    std::optional<int64_t> entryId(const zelWString &name) const override;
    zelWString entryName(int64_t id) const override;
    /// Types of material to choose from; empty for all.
    std::vector<short> mTypes;
    ZelUITextHandler mOwn;
    short mInitial = 0;

protected:
    const ZelUITextHandler *ownEntry() const override { return &mOwn; }
};

/// A lubricant of the database; the value is its id.
class ZELMATH_EXPORT ZelUIVarLubList : public ZelUIVar
{
public:
    explicit ZelUIVarLubList(zelWString name);
    ~ZelUIVarLubList() override;
    double initialNumber(int component) const override;
    std::vector<zelWString> entryNames() const override;
    std::optional<int64_t> entryId(const zelWString &name) const override;
    zelWString entryName(int64_t id) const override;
    ZelUITextHandler mOwn;
    short mInitial = 0;

protected:
    const ZelUITextHandler *ownEntry() const override { return &mOwn; }
};

/// An entry of a list with a stepped number behind it, a preferred size with its class for example.
/// Component 0 is the id of the entry, component 1 the number.
class ZELMATH_EXPORT ZelUIVarLS : public ZelUIVar
{
public:
    explicit ZelUIVarLS(zelWString name);
    ~ZelUIVarLS() override;
    double initialNumber(int component) const override;
    zelWString mFunction;
    ZelUITextHandler mNumberText;
    bool mAdvancedLayout = false;
    short mInitial = 0;
    int mInitialNumber = 0;
};
