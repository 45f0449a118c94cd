#include "zelUIComboBox.h"

#include "isDifferent.h"
#include "meta.h"
#include "zelDatabase.h"
#include "zelFunctionText_p.h"
#include "zelUIVarChoice.h"
#include "zelUIVarLists.h"
#include "zelUiListText_p.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace {

zelWString numberText(double number)
{
    char buffer[32];
    const auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, number);
    return error == std::errc() ? zelWString(std::wstring(buffer, end)) : zelWString();
}

template <class Entry, class Id> bool containsId(const std::vector<Entry> &list, Id id)
{
    return std::any_of(list.begin(), list.end(),
                       [id](const Entry &entry) { return entry.second == id; });
}

// Names of databases and tables go to the database as Latin-1.
std::string toLatin1(const zelWString &text)
{
    std::string narrow;
    for (const wchar_t c : text.view())
        narrow += c > 0 && c < 0x100 ? static_cast<char>(c) : '?';
    return narrow;
}

} // namespace

ZelUIComboBox::ZelUIComboBox() = default;
ZelUIComboBox::~ZelUIComboBox() = default;

bool ZelUIComboBox::take(ZelUIVar *variable, AttrMap &attributes, int component, Source source)
{
    ZelUIObject::setup(variable, attributes);
    setModelComponent(component);
    mSource = variable ? source : NoSource;
    modelTakePriorityName();
    return variable != nullptr;
}

void ZelUIComboBox::takeDatabase(const zelWString &database, const zelWString &table,
                                 const zelWString &idColumn, const ZelUITextHandler &own)
{
    mDatabase = database.empty() ? zelWString(zelMainDatabase) : database;
    mTable = table;
    mIdColumn = idColumn;
    mOwn = own;
}

void ZelUIComboBox::setup(ZelUIVarLS *variable, AttrMap &attributes, int component)
{
    if (take(variable, attributes, component, Function))
        mFunction = variable->mFunction;
    // The widgets override the general form alone for this kind and the two below.
    setup(static_cast<ZelUIVar *>(variable), attributes);
}

void ZelUIComboBox::setup(ZelUIVarLubList *variable, AttrMap &attributes, bool types,
                          bool lubricants)
{
    const bool taken = take(variable, attributes, 0, NoSource);
    mHoldsValue = lubricants || !types;
    if (taken && mHoldsValue)
        takeDatabase({}, L"lubricant", L"ID", variable->mOwn);
    setup(static_cast<ZelUIVar *>(variable), attributes);
}

void ZelUIComboBox::setup(ZelUIVarMatList *variable, AttrMap &attributes, bool types)
{
    const bool taken = take(variable, attributes, 0, NoSource);
    mHoldsValue = !types;
    mMaterials = !types;
    if (taken && mHoldsValue)
        takeDatabase({}, L"material", L"ID", variable->mOwn);
    setup(static_cast<ZelUIVar *>(variable), attributes);
}

void ZelUIComboBox::setup(ZelUIVarRealFuncList *variable, AttrMap &attributes, int component)
{
    if (take(variable, attributes, component, NumberFunction))
        mFunction = variable->mFunction;
}

void ZelUIComboBox::setup(ZelUIVarRealList *variable, AttrMap &attributes, int component)
{
    mNumbers.clear();
    if (!take(variable, attributes, component, Numbers))
        return;
    for (const ZelListEntry &entry : variable->mEntries)
        mNumbers.push_back(entry.mNumber);
}

void ZelUIComboBox::setup(ZelUIVarDBFuncList *variable, AttrMap &attributes, int component)
{
    if (!take(variable, attributes, component, NoSource))
        return;
    takeDatabase(variable->mDatabase, variable->mTable, variable->mIdColumn, variable->mOwn);
    mFunction = variable->mFunction;
}

void ZelUIComboBox::setup(ZelUIVarDBList *variable, AttrMap &attributes, int component)
{
    if (!take(variable, attributes, component, NoSource))
        return;
    takeDatabase(variable->mDatabase, variable->mTable, variable->mIdColumn, variable->mOwn);
}

void ZelUIComboBox::setup(ZelUIVarFuncListDynamic *variable, AttrMap &attributes, int component)
{
    if (take(variable, attributes, component, Dynamic))
        mFunction = variable->mFunction;
}

void ZelUIComboBox::setup(ZelUIVarFuncList *variable, AttrMap &attributes, int component)
{
    if (take(variable, attributes, component, Function))
        mFunction = variable->mFunction;
}

void ZelUIComboBox::setup(ZelUIVarList *variable, AttrMap &attributes, int component)
{
    take(variable, attributes, component, Entries);
    mChoice = dynamic_cast<const ZelUIVarChoice *>(variable);
}

void ZelUIComboBox::setData(Meta *, int64_t, short key, short currentId)
{
    const auto newKey = static_cast<uint64_t>(std::max<short>(key, 0));
    mCurrentId = currentId;
    if (newKey == mListKey)
        return;
    mListKey = newKey;
    retranslate();
}

void ZelUIComboBox::getData(short &currentId)
{
    currentId = mCurrentId;
}

void ZelUIComboBox::setData(Meta *meta, int64_t id)
{
    ZelUIInput::setData(meta, id);
    if (!meta || !modelVariable())
        return;
    if (!mFunction.empty())
        refreshFunctionList(*meta, id);
    if (mSource == Dynamic)
        mCurrentId64 = mLoadedId64 = meta->integer(*modelVariable(), id, modelComponent());
    else if (mHoldsValue)
        mCurrentId = mLoadedId = storedId(*meta, id);
}

void ZelUIComboBox::refreshFunctionList(Meta &meta, int64_t id)
{
    const zelWString answer = zelFunctionText(meta, mFunction, id);
    bool changed = false;
    if (mSource == Dynamic) {
        DynamicList list = zelReadIdLines(answer);
        changed = !(list == mDynamicList);
        mDynamicList = std::move(list);
    } else if (!mTable.empty()) {
        std::set<short> ids = zelReadIds(answer);
        changed = ids != mAllowedIDs;
        mAllowedIDs = std::move(ids);
    } else {
        TextList list;
        std::vector<double> numbers;
        if (mSource == NumberFunction) {
            for (const auto &[text, number] : zelReadNumberLines(answer)) {
                if (numbers.size() == std::numeric_limits<short>::max())
                    break;
                numbers.push_back(number);
                list.emplace_back(text, static_cast<short>(numbers.size()));
            }
        } else {
            for (const auto &[text, entryId] : zelReadIdLines(answer))
                list.emplace_back(text, zelToShort(entryId));
        }
        changed = !(list == mGiven);
        mGiven = std::move(list);
        mNumbers = std::move(numbers);
    }
    if (changed)
        retranslate();
}

short ZelUIComboBox::storedId(const Meta &meta, int64_t id) const
{
    if (mSource != Numbers && mSource != NumberFunction)
        return zelToShort(meta.integer(*modelVariable(), id, modelComponent()));
    const double value = meta.real(*modelVariable(), id, modelComponent());
    for (size_t i = 0; i < mNumbers.size(); ++i) {
        if (!isDifferent(mNumbers[i], value))
            return static_cast<short>(i + 1);
    }
    return 0;
}

void ZelUIComboBox::writeId(Meta &meta, int64_t id)
{
    const ZelUIVar &variable = *modelVariable();
    if (mSource == Dynamic)
        meta.setInteger(variable, id, modelComponent(), mCurrentId64, ZelOrigin::User);
    else if (mSource == Numbers || mSource == NumberFunction)
        meta.setReal(variable, id, modelComponent(),
                     mNumbers.at(static_cast<size_t>(mCurrentId - 1)), ZelOrigin::User);
    else if (mChoice)
        meta.pick(*mChoice, id, mCurrentId, ZelOrigin::User);
    else
        meta.setInteger(variable, id, modelComponent(), mCurrentId, ZelOrigin::User);
    if (modelIsLoaded(&meta, id)) {
        mLoadedId = mCurrentId;
        mLoadedId64 = mCurrentId64;
    }
    modelNoteTyped(meta, id);
}

void ZelUIComboBox::getData(Meta *meta, int64_t id)
{
    if (!modelMayWrite(meta) || !mHoldsValue)
        return;
    const bool loaded = modelIsLoaded(meta, id);
    if (mSource == Dynamic) {
        const bool untouched = loaded && mCurrentId64 == mLoadedId64;
        const int64_t stored = meta->integer(*modelVariable(), id, modelComponent());
        if (!untouched && mCurrentId64 != stored && holdsDynamic(mCurrentId64))
            writeId(*meta, id);
        return;
    }
    const bool untouched = loaded && mCurrentId == mLoadedId;
    if (!untouched && mCurrentId != storedId(*meta, id) && holds(mCurrentId))
        writeId(*meta, id);
}

bool ZelUIComboBox::setUserInput(Meta *meta, int64_t id, const zelWString &text, bool &changed)
{
    changed = false;
    if (!modelMayWrite(meta) || !mHoldsValue)
        return false;
    if (mSource == Dynamic) {
        const auto found = std::find_if(mDynamicList.begin(), mDynamicList.end(),
                                        [&](const auto &entry) { return entry.first == text; });
        if (found == mDynamicList.end() || mDynamicDisabledIDs.count(found->second) > 0)
            return false;
        changed = found->second != meta->integer(*modelVariable(), id, modelComponent());
        mCurrentId64 = found->second;
    } else {
        const auto named = modelVariable()->entryId(text);
        const TextList &entries = list();
        const auto found = std::find_if(entries.begin(), entries.end(), [&](const auto &entry) {
            return named ? entry.second == *named : entry.first == text;
        });
        if (found == entries.end() || isDisabled(found->second) || !holds(found->second))
            return false;
        changed = found->second != storedId(*meta, id);
        mCurrentId = found->second;
    }
    if (changed)
        writeId(*meta, id);
    return true;
}

zelWString ZelUIComboBox::getRenderedData()
{
    if (!mEnabled)
        return {};
    if (mSource == Dynamic) {
        for (const auto &[text, id] : mDynamicList) {
            if (id == mCurrentId64)
                return text;
        }
        return {};
    }
    for (const auto &[text, id] : list()) {
        if (id == mCurrentId)
            return text;
    }
    return modelDatabaseName(mCurrentId).value_or(zelWString());
}

void ZelUIComboBox::retranslate()
{
    ZelUIInput::retranslate();
    mRows.reset();
}

std::optional<zelWString> ZelUIComboBox::modelDatabaseName(short id) const
{
    if (mDatabase.empty())
        return std::nullopt;
    long row = id;
    long unused = 0;
    std::array<wchar_t, 1024> name{};
    const int found = GetDBName(toLatin1(mDatabase).c_str(), toLatin1(mTable).c_str(), 0, row,
                                unused, name.data());
    return found == 0 ? std::nullopt : std::optional(zelWString(name.data()));
}

void ZelUIComboBox::setTextList(std::vector<std::pair<zelWString, short>> list)
{
    mGiven = std::move(list);
}

void ZelUIComboBox::setExcludedIDs(const std::set<short> &ids)
{
    mExcludedIDs = ids;
}

const ZelUIComboBox::TextList &ZelUIComboBox::list()
{
    mShown = allTexts();
    std::erase_if(mShown,
                  [this](const auto &entry) { return mExcludedIDs.count(entry.second) > 0; });
    return mShown;
}

ZelUIComboBox::TextList ZelUIComboBox::allTexts()
{
    TextList texts;
    if (mSource == Entries) {
        for (const ZelListEntry &entry : static_cast<ZelUIVarList *>(modelVariable())->mEntries)
            texts.emplace_back(entry.mText.getText(), entry.mId);
        return texts;
    }
    if (mSource == Numbers) {
        short position = 0;
        for (const ZelListEntry &entry :
             static_cast<ZelUIVarRealList *>(modelVariable())->mEntries) {
            const zelWString text =
                entry.mText.empty() ? numberText(entry.mNumber) : entry.mText.getText();
            texts.emplace_back(text, ++position);
        }
        return texts;
    }
    if (!mGiven.empty() || mTable.empty())
        return mGiven;
    return databaseTexts();
}

// Rows are kept until the list is filled anew: who collects or prints a mask asks for them too.
ZelUIComboBox::TextList ZelUIComboBox::databaseTexts()
{
    if (!mRows) {
        mRows = mMaterials ? DBreadmatlist(mTable, static_cast<int>(mListKey))
                           : zelDatabaseRows(mDatabase, mTable, mIdColumn, mListKey);
    }
    TextList texts;
    if (!mOwn.empty())
        texts.emplace_back(mOwn.getText(), short(0));
    for (const auto &row : *mRows) {
        if (mFunction.empty() || mAllowedIDs.count(row.second) > 0)
            texts.push_back(row);
    }
    return texts;
}

bool ZelUIComboBox::holds(short id)
{
    if (mSource == Numbers || mSource == NumberFunction)
        return id >= 1 && static_cast<size_t>(id) <= mNumbers.size();
    return containsId(allTexts(), id) || modelDatabaseName(id).has_value();
}

bool ZelUIComboBox::holdsDynamic(int64_t id) const
{
    return containsId(mDynamicList, id);
}
