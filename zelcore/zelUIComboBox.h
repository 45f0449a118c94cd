#pragma once

#include "zelUIInput.h"
#include "zelUITextHandler.h"

#include <optional>
#include <set>
#include <utility>

class ZelUIVarChoice;
class ZelUIVarDBFuncList;
class ZelUIVarDBList;
class ZelUIVarFuncList;
class ZelUIVarFuncListDynamic;
class ZelUIVarList;
class ZelUIVarLS;
class ZelUIVarLubList;
class ZelUIVarMatList;
class ZelUIVarRealFuncList;
class ZelUIVarRealList;

/// A choice from a list: of the description, of a function of the module, or of a table of the
/// database. Entries of lists of numbers are numbered from 1.
class ZELCORE_EXPORT ZelUIComboBox : public ZelUIInput
{
public:
    using TextList = std::vector<std::pair<zelWString, short>>;
    using DynamicList = std::vector<std::pair<zelWString, int64_t>>;

    ZelUIComboBox();
    ~ZelUIComboBox() override;

    using ZelUIInput::setup;

    virtual void setup(ZelUIVarLS *variable, AttrMap &attributes, int component);
    /// The flags tell of which of the two lists of a lubricant line this is: types, lubricants.
    virtual void setup(ZelUIVarLubList *variable, AttrMap &attributes, bool types, bool lubricants);
    /// `types` for the list of types, else that of materials. Lists of types come from setTextList
    /// and leave the value of the variable alone.
    virtual void setup(ZelUIVarMatList *variable, AttrMap &attributes, bool types);
    virtual void setup(ZelUIVarRealFuncList *variable, AttrMap &attributes, int component);
    virtual void setup(ZelUIVarRealList *variable, AttrMap &attributes, int component);
    virtual void setup(ZelUIVarDBFuncList *variable, AttrMap &attributes, int component);
    virtual void setup(ZelUIVarDBList *variable, AttrMap &attributes, int component);
    virtual void setup(ZelUIVarFuncListDynamic *variable, AttrMap &attributes, int component);
    virtual void setup(ZelUIVarFuncList *variable, AttrMap &attributes, int component);
    virtual void setup(ZelUIVarList *variable, AttrMap &attributes, int component);
    /// For one of two lists that depend on each other: `key` is what the other one chose (0 for
    /// all), and `currentId` becomes the value. Another key calls retranslate().
    virtual void setData(Meta *meta, int64_t id, short key, short currentId);
    /// The id of the value.
    virtual void getData(short &currentId);

    /// A list that a function yields is asked for anew; when it is another one than before,
    /// retranslate() is called, which fills the widget.
    void setData(Meta *meta, int64_t id) override;
    /// Writes only an id that the list holds, excluded ones included, or that the database knows.
    void getData(Meta *meta, int64_t id) override;
    /// Takes the text or the name of an entry that is not disabled.
    bool setUserInput(Meta *meta, int64_t id, const zelWString &text, bool &changed) override;
    zelWString getRenderedData() override;
    /// Lists of the database are read anew.
    void retranslate() override;

    /// Entries given by a program; texts are taken as they stand.
    void setTextList(std::vector<std::pair<zelWString, short>> list);
    void setDisabledIDs(const std::set<short> &ids) { mDisabledIDs = ids; }
    void setExcludedIDs(const std::set<short> &ids);
    /// Texts in the current language with their ids, without the excluded ones. Valid until the
    /// next call.
    const TextList &list();
    const DynamicList &dynamicList() const { return mDynamicList; }

    zelWString mDatabase;
    zelWString mTable;
    zelWString mIdColumn = L"ID";
    uint64_t mListKey = 0;
    short mCurrentId = 0;
    int64_t mCurrentId64 = 0;
    std::set<short> mDisabledIDs;
    std::set<short> mExcludedIDs;
    std::set<int64_t> mDynamicDisabledIDs;

protected:
    /// The text of an identifier in the database of this list, whether the list shows it or not.
    /// Nothing for a list of another kind.
    std::optional<zelWString> modelDatabaseName(short id) const;

private:
    enum Source { NoSource, Entries, Numbers, Function, NumberFunction, Dynamic };

    /// False for a null variable: the box has no list then.
    bool take(ZelUIVar *variable, AttrMap &attributes, int component, Source source);
    void takeDatabase(const zelWString &database, const zelWString &table,
                      const zelWString &idColumn, const ZelUITextHandler &own);
    void refreshFunctionList(Meta &meta, int64_t id);
    TextList allTexts();
    TextList databaseTexts();
    bool isDisabled(short id) const { return mDisabledIDs.count(id) > 0; }
    short storedId(const Meta &meta, int64_t id) const;
    void writeId(Meta &meta, int64_t id);
    bool holds(short id);
    bool holdsDynamic(int64_t id) const;

    Source mSource = NoSource;
    zelWString mFunction;
    ZelUITextHandler mOwn;
    const ZelUIVarChoice *mChoice = nullptr;
    TextList mGiven;
    TextList mShown;
    DynamicList mDynamicList;
    std::vector<double> mNumbers;
    /// Ids of a database list that its function allows.
    std::set<short> mAllowedIDs;
    /// What was read from the database since the last retranslate().
    std::optional<TextList> mRows;
    /// Materials are read by type.
    bool mMaterials = false;
    /// False for lists of types: the variable's value is what the other list chooses.
    bool mHoldsValue = true;
    short mLoadedId = 0;
    int64_t mLoadedId64 = 0;
};
