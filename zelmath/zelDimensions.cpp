#include "zelDimensions.h"

#include "zelDimensionsTable_p.h"

#include <array>
#include <cmath>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace {

using namespace zelDimensionsTable;
using Unit = ZelDimensions::Unit;
using Type = ZelDimensions::Type;

constexpr bool isUnit(Unit unit)
{
    return unit >= 0 && unit < unitCount;
}

constexpr bool isType(Type type)
{
    return type >= 0 && type < typeCount;
}

// Where the units of a dimension stand in the table, and its conversions in theirs.
struct Block
{
    int mFirst = 0;
    int mCount = 0;
    int mConversions = 0;
};

constexpr std::array<Block, typeCount> makeBlocks()
{
    std::array<Block, typeCount> blocks;
    for (int i = 0; i < unitCount; ++i) {
        Block &block = blocks[static_cast<size_t>(units[i].mType)];
        if (block.mCount++ == 0)
            block.mFirst = i;
    }
    for (size_t i = 1; i < typeCount; ++i)
        blocks[i].mConversions =
            blocks[i - 1].mConversions + blocks[i - 1].mCount * blocks[i - 1].mCount;
    return blocks;
}

constexpr std::array<Block, typeCount> blocks = makeBlocks();
constexpr int conversionCount =
    blocks.back().mConversions + blocks.back().mCount * blocks.back().mCount;

constexpr bool tableIsInOrder()
{
    for (int i = 0; i < unitCount; ++i) {
        const Block &block = blocks[static_cast<size_t>(units[i].mType)];
        if (units[i].mUnit != i || i < block.mFirst || i >= block.mFirst + block.mCount)
            return false;
    }
    for (int i = 0; i < typeCount; ++i) {
        if (types[i].mType != i || units[types[i].mMetric].mType != i
            || units[types[i].mUsCustomary].mType != i)
            return false;
    }
    return true;
}

static_assert(std::size(units) == unitCount && unitCount == ZelDimensions::DynamicUnit);
static_assert(std::size(types) == typeCount && typeCount == ZelDimensions::NoType);
static_assert(tableIsInOrder(), "a row is out of place, or a default is of another dimension");

// From the greater unit to the smaller one by multiplication, the other way round by division. Both
// ways use the same number, which keeps a round trip within 2 ulp, and where it is exact (25.4,
// 1000), the result is the double next to the true one.
struct Conversion
{
    double mRatio = 1;
    bool mMultiply = false;
    bool mHasShift = false; // between scales of different zero
};

constexpr Conversion conversion(const UnitRow &from, const UnitRow &to)
{
    const bool multiply = from.mFactor >= to.mFactor;
    const long double ratio = multiply ? from.mFactor / to.mFactor : to.mFactor / from.mFactor;
    return {static_cast<double>(ratio), multiply, from.mOffset != to.mOffset};
}

// A number of the greater degree is number * ratio + shift of the smaller one. By the definitions
// of the scales all shifts are whole hundredths: 32, 273.15, 459.67.
long double shiftBetween(const UnitRow &greater, const UnitRow &smaller)
{
    const long double ratio = greater.mFactor / smaller.mFactor;
    return std::round(100 * (greater.mOffset * ratio - smaller.mOffset)) / 100;
}

// A number of one scale in another one. In double each step would show in the last digit: 37 °C are
// 98.6 °F. Absolute zero, which is no double in °C and °F, must not end a trace above zero kelvin.
double changeScale(double value, const UnitRow &from, const UnitRow &to)
{
    if (value == 0 - static_cast<double>(from.mOffset))
        return 0 - static_cast<double>(to.mOffset);
    const long double number = value;
    return static_cast<double>(from.mFactor >= to.mFactor
                                   ? number * (from.mFactor / to.mFactor) + shiftBetween(from, to)
                                   : (number - shiftBetween(to, from))
                                       / (to.mFactor / from.mFactor));
}

constexpr std::array<Conversion, conversionCount> makeConversions()
{
    std::array<Conversion, conversionCount> conversions;
    size_t index = 0;
    for (const Block &block : blocks) {
        for (int from = block.mFirst; from < block.mFirst + block.mCount; ++from) {
            for (int to = block.mFirst; to < block.mFirst + block.mCount; ++to)
                conversions[index++] = conversion(units[from], units[to]);
        }
    }
    return conversions;
}

constexpr std::array<Conversion, conversionCount> conversions = makeConversions();

using UnitsByText = std::unordered_map<std::wstring_view, Unit>;

UnitsByText makeUnitsByText(const wchar_t *UnitRow::*text)
{
    UnitsByText map;
    for (const UnitRow &row : units)
        map.emplace(row.*text, row.mUnit);
    return map;
}

Unit unitOf(const UnitsByText &map, const std::wstring &text)
{
    const auto entry = map.find(text);
    return entry == map.end() ? ZelDimensions::NoUnit : entry->second;
}

// Set before any constructor runs: a library above installs its query while it is loaded.
constinit ZelDimensions::UnitSystemQuery unitSystemQuery = nullptr;

} // namespace

ZelDimensions::Unit ZelDimensions::getUnit(const std::wstring &text)
{
    static const UnitsByText map = makeUnitsByText(&UnitRow::mText);
    return unitOf(map, text);
}

std::wstring ZelDimensions::getString(Unit unit)
{
    return isUnit(unit) ? units[unit].mText : L"";
}

std::wstring ZelDimensions::getEnumString(Unit unit)
{
    return isUnit(unit) ? units[unit].mEnumString : L"";
}

ZelDimensions::Unit ZelDimensions::fromEnumString(const std::wstring &text)
{
    static const UnitsByText map = makeUnitsByText(&UnitRow::mEnumString);
    return unitOf(map, text);
}

ZelDimensions::Type ZelDimensions::getType(Unit unit)
{
    return isUnit(unit) ? units[unit].mType : NoType;
}

ZelDimensions::Type ZelDimensions::getType(const std::wstring &text)
{
    return getType(getUnit(text));
}

std::wstring ZelDimensions::getTypeString(Type type)
{
    return isType(type) ? types[type].mName : L"";
}

std::vector<std::wstring> ZelDimensions::getStringList(Type type)
{
    std::vector<std::wstring> texts;
    for (const Unit unit : getList(type))
        texts.push_back(getString(unit));
    return texts;
}

std::vector<ZelDimensions::Unit> ZelDimensions::getList(Type type)
{
    std::vector<Unit> list;
    if (!isType(type))
        return list;
    const Block &block = blocks[static_cast<size_t>(type)];
    for (int i = block.mFirst; i < block.mFirst + block.mCount; ++i)
        list.push_back(units[i].mUnit);
    return list;
}

ZelDimensions::Unit ZelDimensions::defaultUnit(Unit unit, bool currentSystem)
{
    if (!isUnit(unit))
        return unit == DynamicUnit ? DynamicUnit : NoUnit;
    const TypeRow &row = types[units[unit].mType];
    return currentSystem && unitSystemQuery && unitSystemQuery() ? row.mUsCustomary : row.mMetric;
}

ZelDimensions::UnitSystemQuery ZelDimensions::setUnitSystemQuery(UnitSystemQuery usCustomary)
{
    return std::exchange(unitSystemQuery, usCustomary);
}

double ZelDimensions::changeUnit(double value, Unit from, Unit to)
{
    if (from == to || !isUnit(from) || !isUnit(to) || units[from].mType != units[to].mType)
        return value;
    const Block &block = blocks[static_cast<size_t>(units[from].mType)];
    const int index =
        block.mConversions + (from - block.mFirst) * block.mCount + (to - block.mFirst);
    const Conversion &conversion = conversions[static_cast<size_t>(index)];
    if (conversion.mHasShift)
        return changeScale(value, units[from], units[to]);
    return conversion.mMultiply ? value * conversion.mRatio : value / conversion.mRatio;
}
