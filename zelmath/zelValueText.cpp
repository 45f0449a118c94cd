#include "zelTextForm.h"

#include "zelUIMultiVar.h"

#include <array>
#include <charconv>

namespace {

std::string quoted(std::wstring_view text)
{
    std::string result = "\"";
    for (const char byte : zelWString(std::wstring(text)).toUtf8()) {
        if (byte == '\n') {
            result += "\\n";
            continue;
        }
        if (byte == '"' || byte == '\\')
            result += '\\';
        result += byte;
    }
    return result + '"';
}

std::string withUnit(std::string number, const ZelUIVar &variable)
{
    const auto *multi = dynamic_cast<const ZelUIMultiVar *>(&variable);
    const std::wstring unit = multi ? ZelDimensions::getEnumString(multi->mDefaultUnit) : L"";
    return unit.empty() ? number : number + ' ' + zelWString(unit).toUtf8();
}

} // namespace

std::string zelNumberText(double value)
{
    std::array<char, 32> digits;
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), value);
    return std::string(digits.data(), result.ptr);
}

std::string zelValueText(const Meta &meta, const ZelUIVar &variable, int64_t id, int component)
{
    if (!meta.isSet(variable, id, component))
        return {};
    switch (variable.storage()) {
    case ZelVarStorage::Real:
        return withUnit(zelNumberText(meta.real(variable, id, component)), variable);
    case ZelVarStorage::Integer: {
        const int64_t number = meta.integer(variable, id, component);
        const zelWString name = variable.entryName(number);
        return name.empty() ? withUnit(std::to_string(number), variable) : name.toUtf8();
    }
    case ZelVarStorage::Boolean:
        return meta.boolean(variable, id) ? "true" : "false";
    case ZelVarStorage::Text:
        return quoted(meta.textView(variable, id));
    case ZelVarStorage::None:
        break;
    }
    return {};
}
