#pragma once

#include "zelUIVar.h"

#include <cstdint>
#include <optional>
#include <vector>

// The kinds of variables that are no numbers. They carry little more than their type, by which a
// mask picks the element, so they stand together.

/// Yes or no.
class ZELMATH_EXPORT ZelUIVarBool : public ZelUIVar
{
public:
    explicit ZelUIVarBool(zelWString name);
    ~ZelUIVarBool() override;
    double initialNumber(int component) const override;
    bool mInitial = false;
};

/// One line of text to enter.
class ZELMATH_EXPORT ZelUIVarString : public ZelUIVar
{
public:
    explicit ZelUIVarString(zelWString name);
    ~ZelUIVarString() override;
    const zelWString &initialText() const override;
    zelWString mInitial;
    ZelUITextHandler mPlaceholder;
};

/// One line of text that a function of the module yields: its result 0 for the function's name.
class ZELMATH_EXPORT ZelUIVarFuncText : public ZelUIVar
{
public:
    explicit ZelUIVarFuncText(zelWString name);
    ~ZelUIVarFuncText() override;
    zelWString mFunction;
};

/// A text that the module writes and a label shows.
class ZELMATH_EXPORT ZelUIVarText : public ZelUIVar
{
public:
    explicit ZelUIVarText(zelWString name);
    ~ZelUIVarText() override;
    const zelWString &initialText() const override;
    zelWString mInitial;
};

/// Text of several lines to enter; it holds no tags.
class ZELMATH_EXPORT ZelUIVarMultilineString : public ZelUIVar
{
public:
    explicit ZelUIVarMultilineString(zelWString name);
    ~ZelUIVarMultilineString() override;
    const zelWString &initialText() const override;
    zelWString mInitial;
};

/// A push button that runs a function of the module.
class ZELMATH_EXPORT ZelUIVarTextButton : public ZelUIVar
{
public:
    explicit ZelUIVarTextButton(zelWString name);
    ~ZelUIVarTextButton() override;
    zelWString mFunction;
};

/// A picture; the value is its path.
class ZELMATH_EXPORT ZelUIVarImage : public ZelUIVar
{
public:
    explicit ZelUIVarImage(zelWString name);
    ~ZelUIVarImage() override;
    const zelWString &initialText() const override;
    zelWString mInitial;
};

/// One entry of a fixed list.
struct ZelListEntry
{
    short mId = 0;
    zelWString mName;
    ZelUITextHandler mText;
    /// The number of an entry of a list of numbers, in the variable's unit.
    double mNumber = 0;
};

/// A choice from fixed entries; the value is the entry's id.
class ZELMATH_EXPORT ZelUIVarList : public ZelUIVar
{
public:
    explicit ZelUIVarList(zelWString name);
    ~ZelUIVarList() override;
    // ZelUIVar
    double initialNumber(int component) const override;
    std::vector<zelWString> entryNames() const override;
    std::optional<int64_t> entryId(const zelWString &name) const override;
    zelWString entryName(int64_t id) const override;

    /// Null for a name that is no entry's.
    const ZelListEntry *entry(const zelWString &name) const;
    const ZelListEntry *entry(short id) const;

    std::vector<ZelListEntry> mEntries;
    short mInitial = 0;
};

/// A choice from fixed numbers; the value is the number.
class ZELMATH_EXPORT ZelUIVarRealList : public ZelUIVar
{
public:
    explicit ZelUIVarRealList(zelWString name);
    ~ZelUIVarRealList() override;
    double initialNumber(int component) const override;
    std::vector<ZelListEntry> mEntries;
    double mInitial = 0;
};

/// Where the rows of a table come from.
enum class DataSource { User = 0, Calculation = 1, Database = 2, Filtered = 3 };

/// A table of the module.
class ZELMATH_EXPORT ZelUIVarTable : public ZelUIVar
{
public:
    explicit ZelUIVarTable(zelWString name);
    ~ZelUIVarTable() override;
    DataSource GetDataSource() const { return mDataSource; }
    bool HasRemoveRowsButtons() const { return mRemoveRowsButtons; }
    DataSource mDataSource = DataSource::User;
    bool mRemoveRowsButtons = true;
};
