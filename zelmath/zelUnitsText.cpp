#include "zelUnitsText.h"

#include "zelDimensionsTable_p.h"
#include "zelTextForm.h"
#include "zelWString.h"

namespace {

using namespace zelDimensionsTable;

// The unit with the factor 1, in the order of the dimensions. Not every one is in the table.
constexpr const char *bases[] = {
    "m",     "m",        "m²",       "m³",    "m³",        "m⁴",    "m⁶",    "1/m",    "kg",
    "kg·m²", "kg/m",     "kg·m",     "kg/m³", "N",         "N·m",   "Pa",    "Pa",     "N/m",
    "N/m",   "N·m/rad",  "m/N",      "N·s/m", "N·m·s/rad", "Pa·√m", "J/m²",  "1/Pa",   "Pa·m/s",
    "s",     "Hz",       "rad/s",    "m/s",   "m/s²",      "rad",   "rad/m", "rad/s²", "m/s³",
    "W",     "W",        "J",        "J/kg",  "W/m²",      "K",     "K",     "1/K",    "W/(m·K)",
    "J/K",   "J/(kg·K)", "W/(m²·K)", "K/W",   "Pa·s",      "m²/s",  "m³/s",  "kg/s",   "V",
    "A",     "Ω",        "1",        "1",
};
static_assert(std::size(bases) == typeCount);

constexpr const char *introduction =
    "# Units\n\n"
    "Descriptions and masks name a unit by its text, files of values by its text for files; both\n"
    "are read everywhere. A text belongs to one dimension alone, so the text of a unit also tells\n"
    "the dimension: `psi` is a stress and `lbf/in²` a pressure, `mm` a length and `µm` a "
    "roughness.\n"
    "A value can be shown in any unit of its dimension, in no other one. A quantity without unit\n"
    "names none.\n\n"
    "A value in the SI base is (number + offset) · factor. Factors follow from the definitions of\n"
    "the units; what stands here is the nearest double. The last column says in which unit a\n"
    "variable shows first in the metric and in the US customary unit system. A value is stored in\n"
    "the unit of its variable, whatever it is shown in.\n\n"
    "This page is made by `zelcheck --units` from `zelmath/zelDimensionsTable_p.h`; change "
    "that.\n\n"
    "| Dimension | SI base | Text | In files | Factor | Offset | Default |\n"
    "|---|---|---|---|---|---|---|\n";

std::string utf8(const wchar_t *text)
{
    return zelWString(text).toUtf8();
}

std::string defaultText(const UnitRow &unit)
{
    const TypeRow &type = types[unit.mType];
    const bool metric = type.mMetric == unit.mUnit;
    const bool us = type.mUsCustomary == unit.mUnit;
    return metric && us ? "both" : metric ? "metric" : us ? "US" : "";
}

std::string row(const UnitRow &unit)
{
    std::string text = "| " + utf8(types[unit.mType].mName) + " | " + bases[unit.mType];
    text += " | `" + utf8(unit.mText) + "` | `" + utf8(unit.mEnumString) + "` | ";
    text += zelNumberText(static_cast<double>(unit.mFactor)) + " | ";
    text += unit.mOffset == 0 ? "" : zelNumberText(static_cast<double>(unit.mOffset));
    return text + " | " + defaultText(unit) + " |\n";
}

} // namespace

std::string zelUnitsMarkdown()
{
    std::string text = introduction;
    for (const UnitRow &unit : units)
        text += row(unit);
    return text;
}
