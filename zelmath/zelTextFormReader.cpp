#include "zelTextForm.h"

#include "zelSourceText_p.h"
#include "zelUIMultiVar.h"
#include "zelUIVarChoice.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace {

// A damaged file could have a fault in every line.
constexpr size_t maxFaults = 1000;
constexpr std::string_view blanks = " \t";

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isNameCharacter(char c)
{
    return isDigit(c) || c == '_' || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

template <class Number> std::optional<Number> wholeNumber(std::string_view text)
{
    Number number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = !text.empty() && error == std::errc() && end == text.data() + text.size();
    return whole ? std::optional<Number>(number) : std::nullopt;
}

// from_chars also takes "infinity", "NAN" and the like; only what is written reads back.
std::optional<double> realNumber(std::string_view text)
{
    const std::string_view digits = text.substr(text.starts_with('-') ? 1 : 0);
    const bool digit = !digits.empty() && (isDigit(digits[0]) || digits[0] == '.');
    return digit || digits == "inf" || digits == "nan" ? wholeNumber<double>(text) : std::nullopt;
}

std::string joined(const std::vector<zelWString> &names)
{
    std::string list;
    for (const zelWString &name : names)
        list += (list.empty() ? "" : ", ") + name.toUtf8();
    return list;
}

std::string unitList(ZelDimensions::Unit unit)
{
    std::vector<zelWString> names;
    for (const ZelDimensions::Unit like : ZelDimensions::getList(ZelDimensions::getType(unit)))
        names.emplace_back(ZelDimensions::getEnumString(like));
    return names.empty() ? "no unit" : joined(names);
}

// What the entries of other kinds are, only the database or the module knows.
bool isEntry(const ZelUIVar &variable, int64_t id)
{
    if (const auto *choice = dynamic_cast<const ZelUIVarChoice *>(&variable)) {
        // A choice whose alternatives were all faulty holds 0.
        const int64_t first = choice->mAlternatives.empty() ? 0 : 1;
        return id >= first && id <= static_cast<int64_t>(choice->mAlternatives.size());
    }
    const auto *list = dynamic_cast<const ZelUIVarList *>(&variable);
    // 0 is a list in which nothing was chosen.
    return !list || id == 0
        || std::any_of(list->mEntries.begin(), list->mEntries.end(),
                       [id](const ZelListEntry &entry) { return entry.mId == id; });
}

class ValueReader
{
public:
    ValueReader(Meta &meta, std::string_view bytes, const std::string &fileName,
                ZelFaultList &faults, ZelOrigin origin)
        : mMeta(meta)
        , mBytes(bytes)
        , mFileName(fileName)
        , mFaults(faults)
        , mFirstFault(faults.size())
        , mOrigin(origin)
        , mPlaces(bytes)
    {
    }

    int read();

private:
    struct Fault
    {
        ZelFaultCode mCode;
        const char *mAt;
        std::string mText;
        std::string mExpected;
    };

    // These throw a Fault, which takes out the line.
    void readLine();
    void readOption();
    const ZelUIVar &readName();
    int64_t readObject();
    void readEquals();
    void readValue(const ZelUIVar &variable, int component, int64_t id);
    void readReal(const ZelUIVar &variable, int component, int64_t id);
    void readInteger(const ZelUIVar &variable, int component, int64_t id);
    void readEntry(const ZelUIVar &variable, int component, int64_t id);
    ZelDimensions::Unit readUnit(const ZelUIVar &variable);
    bool readFlag();
    zelWString readText();

    std::string_view takeWord();
    void skipBlanks();
    bool take(char sign);
    [[noreturn]] void fail(ZelFaultCode code, const char *at, std::string text,
                           std::string expected = {}) const;
    void add(const Fault &fault);

    Meta &mMeta;
    std::string_view mBytes;
    const std::string &mFileName;
    ZelFaultList &mFaults;
    size_t mFirstFault;
    ZelOrigin mOrigin;
    ZelPlaceFinder mPlaces;
    std::string_view mRest; // of the line
};

void ValueReader::fail(ZelFaultCode code, const char *at, std::string text,
                       std::string expected) const
{
    throw Fault{code, at, std::move(text), std::move(expected)};
}

void ValueReader::add(const Fault &fault)
{
    if (mFaults.size() - mFirstFault >= maxFaults)
        return;
    const ZelPlace place = mPlaces.place(static_cast<size_t>(fault.mAt - mBytes.data()));
    mFaults.push_back({ZelFaultSeverity::Error, fault.mCode, mFileName, place.mLine, place.mColumn,
                       fault.mText, fault.mExpected});
}

int ValueReader::read()
{
    int count = 0;
    for (size_t begin = 0; begin < mBytes.size();) {
        const size_t end = std::min(mBytes.find('\n', begin), mBytes.size());
        mRest = mBytes.substr(begin, end - begin);
        begin = end + 1;
        if (mRest.ends_with('\r'))
            mRest.remove_suffix(1);
        const size_t last = mRest.find_last_not_of(blanks);
        mRest = mRest.substr(0, last == std::string_view::npos ? 0 : last + 1);
        skipBlanks();
        if (mRest.empty() || mRest.front() == '#')
            continue;
        try {
            readLine();
            ++count;
        } catch (const Fault &fault) {
            add(fault);
        }
    }
    return count;
}

void ValueReader::skipBlanks()
{
    mRest.remove_prefix(std::min(mRest.find_first_not_of(blanks), mRest.size()));
}

bool ValueReader::take(char sign)
{
    if (!mRest.starts_with(sign))
        return false;
    mRest.remove_prefix(1);
    return true;
}

std::string_view ValueReader::takeWord()
{
    const std::string_view word = mRest.substr(0, mRest.find_first_of(blanks));
    mRest.remove_prefix(word.size());
    skipBlanks();
    return word;
}

void ValueReader::readLine()
{
    const size_t bad = zelFindInvalidUtf8(mRest);
    if (bad != std::string_view::npos)
        fail(ZelFaultCode::NotUtf8, mRest.data() + bad, "a byte that is not UTF-8", "UTF-8");
    if (mRest.starts_with("entered(")) {
        readOption();
        return;
    }
    const ZelUIVar &variable = readName();
    int component = 0;
    const char *const at = mRest.data();
    if (take('[')) {
        const size_t end = std::min(mRest.find(']'), mRest.size());
        const std::optional<int> number = wholeNumber<int>(mRest.substr(0, end));
        if (!number || *number < 1 || *number > variable.componentCount() || end == mRest.size())
            fail(ZelFaultCode::UnknownName, at, variable.name().toUtf8() + " has no such component",
                 variable.componentCount() == 1
                     ? "[1]"
                     : "[1] to [" + std::to_string(variable.componentCount()) + "]");
        component = *number - 1;
        mRest.remove_prefix(end + 1);
    }
    const int64_t id = readObject();
    readEquals();
    readValue(variable, component, id);
}

void ValueReader::readOption()
{
    mRest.remove_prefix(std::string_view("entered(").size());
    const char *const at = mRest.data();
    const ZelUIVar &variable = readName();
    if (!variable.mOptional)
        fail(ZelFaultCode::WrongKind, at, variable.name().toUtf8() + " is not optional",
             "an optional variable");
    if (!take(')'))
        fail(ZelFaultCode::Syntax, mRest.data(), "the parenthesis does not end", "\")\"");
    const int64_t id = readObject();
    readEquals();
    mMeta.setOptionChecked(variable, id, readFlag(), mOrigin);
}

const ZelUIVar &ValueReader::readName()
{
    const auto end = std::find_if_not(mRest.begin(), mRest.end(), isNameCharacter);
    const std::string_view name = mRest.substr(0, static_cast<size_t>(end - mRest.begin()));
    if (name.empty())
        fail(ZelFaultCode::Syntax, mRest.data(), "a line without name",
             "name[component]@id = value unit");
    const ZelUIVar *variable = mMeta.variable(zelWString::fromUtf8(name));
    if (!variable)
        fail(ZelFaultCode::UnknownName, mRest.data(),
             "there is no variable \"" + std::string(name) + '"', "a variable of the module");
    if (variable->mResult)
        fail(ZelFaultCode::WrongKind, mRest.data(), std::string(name) + " is a result", "an input");
    if (variable->storage() == ZelVarStorage::None)
        fail(ZelFaultCode::WrongKind, mRest.data(), std::string(name) + " has no value",
             "a variable with a value");
    mRest.remove_prefix(name.size());
    return *variable;
}

int64_t ValueReader::readObject()
{
    if (!take('@'))
        return 0;
    const std::string_view text = mRest.substr(0, mRest.find_first_of(" \t="));
    const std::optional<int64_t> id = wholeNumber<int64_t>(text);
    if (!id)
        fail(ZelFaultCode::BadValue, mRest.data(), "the number of an object is missing",
             "a whole number");
    mRest.remove_prefix(text.size());
    return *id;
}

void ValueReader::readEquals()
{
    skipBlanks();
    if (!take('='))
        fail(ZelFaultCode::Syntax, mRest.data(), "\"=\" is missing",
             "name[component]@id = value unit");
    skipBlanks();
}

void ValueReader::readValue(const ZelUIVar &variable, int component, int64_t id)
{
    switch (variable.storage()) {
    case ZelVarStorage::Real:
        readReal(variable, component, id);
        break;
    case ZelVarStorage::Integer:
        if (dynamic_cast<const ZelUIMultiVar *>(&variable))
            readInteger(variable, component, id);
        else
            readEntry(variable, component, id);
        break;
    case ZelVarStorage::Boolean:
        mMeta.setBoolean(variable, id, readFlag(), mOrigin);
        break;
    case ZelVarStorage::Text:
        mMeta.setText(variable, id, readText(), mOrigin);
        break;
    case ZelVarStorage::None:
        break;
    }
}

void ValueReader::readReal(const ZelUIVar &variable, int component, int64_t id)
{
    const char *const at = mRest.data();
    const std::optional<double> number = realNumber(takeWord());
    if (!number)
        fail(ZelFaultCode::BadValue, at, "this is no number", "a number with decimal point");
    const auto *multi = dynamic_cast<const ZelUIMultiVar *>(&variable);
    const ZelDimensions::Unit unit = readUnit(variable);
    const double value =
        multi ? ZelDimensions::changeUnit(*number, unit, multi->mDefaultUnit) : *number;
    mMeta.setReal(variable, id, component, value, mOrigin);
}

void ValueReader::readInteger(const ZelUIVar &variable, int component, int64_t id)
{
    const char *const at = mRest.data();
    const std::optional<int64_t> number = wholeNumber<int64_t>(takeWord());
    if (!number)
        fail(ZelFaultCode::BadValue, at, "this is no whole number", "a whole number");
    const ZelDimensions::Unit defaultUnit =
        dynamic_cast<const ZelUIMultiVar &>(variable).mDefaultUnit;
    const ZelDimensions::Unit unit = readUnit(variable);
    if (unit == defaultUnit)
        mMeta.setInteger(variable, id, component, *number, mOrigin);
    else
        mMeta.setReal(variable, id, component,
                      ZelDimensions::changeUnit(static_cast<double>(*number), unit, defaultUnit),
                      mOrigin);
}

// The rest of the line is the unit; a quantity with one must have it there.
ZelDimensions::Unit ValueReader::readUnit(const ZelUIVar &variable)
{
    const auto *multi = dynamic_cast<const ZelUIMultiVar *>(&variable);
    ZelDimensions::Unit defaultUnit = multi ? multi->mDefaultUnit : ZelDimensions::NoUnit;
    const bool without = ZelDimensions::getType(defaultUnit) == ZelDimensions::NoType;
    if (mRest.empty() && without)
        return defaultUnit;
    const std::string expected = unitList(defaultUnit);
    if (mRest.empty())
        fail(ZelFaultCode::UnknownUnit, mRest.data(), "the unit is missing", expected);
    const std::wstring text = zelWString::fromUtf8(mRest);
    ZelDimensions::Unit unit = ZelDimensions::fromEnumString(text);
    // Texts for files and for people may name the same thing differently; the dimension decides.
    if (ZelDimensions::getType(unit) != ZelDimensions::getType(defaultUnit)
        || unit == ZelDimensions::NoUnit) {
        const ZelDimensions::Unit shown = ZelDimensions::getUnit(text);
        unit = shown == ZelDimensions::NoUnit ? unit : shown;
    }
    if (unit == ZelDimensions::NoUnit)
        fail(ZelFaultCode::UnknownUnit, mRest.data(), "unknown unit \"" + std::string(mRest) + '"',
             expected);
    if (ZelDimensions::getType(unit) != ZelDimensions::getType(defaultUnit))
        fail(ZelFaultCode::UnlikeUnits, mRest.data(),
             "\"" + std::string(mRest) + "\" is a unit of another dimension", expected);
    return unit;
}

void ValueReader::readEntry(const ZelUIVar &variable, int component, int64_t id)
{
    std::optional<int64_t> entry = variable.entryId(zelWString::fromUtf8(mRest));
    if (!entry)
        entry = wholeNumber<int64_t>(mRest);
    if (!entry || !isEntry(variable, *entry)) {
        const std::vector<zelWString> names = variable.entryNames();
        fail(ZelFaultCode::BadValue, mRest.data(),
             "this is no entry of " + variable.name().toUtf8(),
             names.empty() ? "the number of an entry" : joined(names));
    }
    mMeta.setInteger(variable, id, component, *entry, mOrigin);
}

bool ValueReader::readFlag()
{
    if (mRest != "true" && mRest != "false")
        fail(ZelFaultCode::BadValue, mRest.data(), "this is neither true nor false",
             "true or false");
    return mRest == "true";
}

zelWString ValueReader::readText()
{
    if (!take('"'))
        fail(ZelFaultCode::BadValue, mRest.data(), "a text begins with a double quote", "\"text\"");
    std::string text;
    while (!mRest.empty() && mRest.front() != '"') {
        char character = mRest.front();
        if (character == '\\') {
            const char escape = mRest.size() > 1 ? mRest[1] : '\0';
            if (escape != '"' && escape != '\\' && escape != 'n')
                fail(ZelFaultCode::BadValue, mRest.data(), "unknown escape", "\\\" \\\\ \\n");
            character = escape == 'n' ? '\n' : escape;
            mRest.remove_prefix(1);
        }
        text += character;
        mRest.remove_prefix(1);
    }
    if (!take('"'))
        fail(ZelFaultCode::BadValue, mRest.data(), "the text does not end", "a double quote");
    skipBlanks();
    if (!mRest.empty())
        fail(ZelFaultCode::BadValue, mRest.data(), "something stands behind the text",
             "the end of the line");
    return zelWString::fromUtf8(text);
}

} // namespace

int zelReadValues(Meta &meta, std::string_view bytes, const std::string &fileName,
                  ZelFaultList &faults, ZelOrigin origin)
{
    return ValueReader(meta, zelWithoutMark(bytes), fileName, faults, origin).read();
}
