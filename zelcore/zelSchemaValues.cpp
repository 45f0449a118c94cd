#include "zelParse_p.h"
#include "zelSchema.h"
#include "zelSchemaPasses_p.h"

#include <algorithm>
#include <array>

namespace {

using Type = ZelSchemaType;

// Spellings that authors try, with a unit of the dimension they mean.
struct Habit
{
    std::wstring_view mText;
    ZelDimensions::Unit mUnit;
};

constexpr std::array habits{
    Habit{L"kp", ZelDimensions::Newton},        Habit{L"lbs", ZelDimensions::Kilogram},
    Habit{L"sec", ZelDimensions::Second},       Habit{L"sek", ZelDimensions::Second},
    Habit{L"grad", ZelDimensions::DegreeAngle}, Habit{L"Grad", ZelDimensions::DegreeAngle},
    Habit{L"deg", ZelDimensions::DegreeAngle},  Habit{L"C", ZelDimensions::Celsius},
    Habit{L"degC", ZelDimensions::Celsius},     Habit{L"U/min", ZelDimensions::PerMinute},
    Habit{L"upm", ZelDimensions::PerMinute},    Habit{L"um", ZelDimensions::Micrometre},
    Habit{L"my", ZelDimensions::Micrometre},    Habit{L"PS", ZelDimensions::Watt},
};

char lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// "N/mm2" and "N/mm^2" for "N/mm²", "Nm" for "N·m".
std::string plainUnit(const std::wstring &text)
{
    std::wstring plain;
    for (const wchar_t c : text) {
        const std::wstring_view powers = L"⁰¹²³⁴⁵⁶⁷⁸⁹";
        const size_t power = powers.find(c);
        if (power != powers.npos)
            plain += static_cast<wchar_t>(L'0' + static_cast<int>(power));
        else if (c != L'^' && c != L'·' && c != L'*' && c != L' ')
            plain += c == L'μ' ? L'µ' : c;
    }
    return zelWString(plain).toUtf8();
}

template <class Visit> void forEachUnit(Visit visit)
{
    for (int type = 0; type < ZelDimensions::NoType; ++type) {
        for (const ZelDimensions::Unit unit : ZelDimensions::getList(ZelDimensions::Type(type)))
            visit(unit);
    }
}

// A unit of the dimension that the author may have meant.
ZelDimensions::Unit likelyUnit(const zelWString &text)
{
    for (const Habit &habit : habits) {
        if (text.view() == habit.mText)
            return habit.mUnit;
    }
    const std::string wanted = plainUnit(text);
    std::string wantedLower = wanted;
    std::transform(wanted.begin(), wanted.end(), wantedLower.begin(), lower);
    auto likely = ZelDimensions::NoUnit;
    auto likelyByLetters = ZelDimensions::NoUnit;
    forEachUnit([&](ZelDimensions::Unit unit) {
        std::string known = plainUnit(ZelDimensions::getString(unit));
        if (likely == ZelDimensions::NoUnit && known == wanted)
            likely = unit;
        std::transform(known.begin(), known.end(), known.begin(), lower);
        if (likelyByLetters == ZelDimensions::NoUnit && known == wantedLower)
            likelyByLetters = unit;
    });
    return likely != ZelDimensions::NoUnit ? likely : likelyByLetters;
}

// "LinearStiffness" as "linear stiffness".
std::string dimensionText(ZelDimensions::Type type)
{
    std::string text;
    for (const char c : zelWString(ZelDimensions::getTypeString(type)).toUtf8()) {
        if (lower(c) != c && !text.empty())
            text += ' ';
        text += lower(c);
    }
    return text;
}

std::string expectedUnits(const zelWString &text)
{
    constexpr size_t shown = 4;
    const ZelDimensions::Type type = ZelDimensions::getType(likelyUnit(text));
    const auto units = ZelDimensions::getStringList(type);
    if (units.empty())
        return "a unit such as mm, N or N/mm²";
    std::string expected = dimensionText(type) + ": ";
    for (size_t i = 0; i < std::min(shown, units.size()); ++i)
        expected += (i > 0 ? ", " : "") + zelWString(units[i]).toUtf8();
    return expected + (units.size() > shown ? ", ..." : "");
}

bool isWordOf(std::string_view words, const std::string &word)
{
    const auto all = zelWords(zelWString::fromUtf8(words));
    return std::any_of(all.begin(), all.end(),
                       [&word](const zelWString &known) { return known.toUtf8() == word; });
}

bool isInside(const ZelSchemaAttribute &attribute, double number)
{
    return number >= attribute.mBottom && number <= attribute.mTop;
}

bool isGoodInteger(const ZelSchemaAttribute &attribute, const zelWString &value)
{
    const auto number = zelParseInteger(value);
    return number && isInside(attribute, static_cast<double>(*number));
}

bool isHelpCode(const zelWString &value)
{
    const auto code = zelParseInteger(value);
    return code && *code >= 0 && *code <= 2147483647L;
}

bool areIntegers(const zelWString &value)
{
    const auto words = zelWords(value, true);
    return !words.empty() && std::all_of(words.begin(), words.end(), isHelpCode);
}

bool isGood(const ZelSchemaAttribute &attribute, const zelWString &value)
{
    switch (attribute.mType) {
    case Type::NewName:
        return zelIsName(value);
    case Type::Unit:
        return zelParseUnit(value).has_value();
    case Type::Number: {
        const auto number = zelParseNumber(value);
        return number && isInside(attribute, *number);
    }
    case Type::Numbers: {
        const auto numbers = zelParseNumbers(value);
        return numbers && !numbers->empty();
    }
    case Type::Integer:
        return isGoodInteger(attribute, value);
    case Type::HelpCode:
        return isHelpCode(value);
    case Type::Integers:
        return areIntegers(value);
    case Type::Bool:
        return zelParseBool(value).has_value();
    case Type::Components:
        return zelParseComponents(value).has_value();
    case Type::Enumeration:
        return isWordOf(attribute.mWords, value.toUtf8());
    case Type::Buttons: {
        const auto words = zelWords(value, true);
        return std::all_of(words.begin(), words.end(), [&attribute](const zelWString &word) {
            return isWordOf(attribute.mWords, word.toUtf8());
        });
    }
    case Type::ClassName:
    case Type::Function:
    case Type::Word:
        return !value.empty();
    default:
        return true; // texts are free, names of other things are looked up later
    }
}

std::string expectedValue(const ZelSchemaAttribute &attribute)
{
    std::string expected = zelSchemaTypeText(attribute);
    if (attribute.mType == Type::Integer)
        expected += " from " + std::to_string(static_cast<long>(attribute.mBottom)) + " to "
            + std::to_string(static_cast<long>(attribute.mTop));
    return expected;
}

} // namespace

std::optional<ZelValueFault> zelCheckValue(const ZelSchemaAttribute &attribute,
                                           const zelWString &value)
{
    if (isGood(attribute, value))
        return std::nullopt;
    const std::string quoted = '"' + value.toUtf8() + '"';
    if (attribute.mType == Type::Unit)
        return ZelValueFault{ZelFaultCode::UnknownUnit, "unknown unit " + quoted,
                             expectedUnits(value)};
    if (attribute.mType == Type::NewName)
        return ZelValueFault{ZelFaultCode::BadName, "bad name " + quoted, expectedValue(attribute)};
    return ZelValueFault{ZelFaultCode::BadValue,
                         "bad value " + quoted + " of \"" + std::string(attribute.mName) + '"',
                         expectedValue(attribute)};
}
