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

std::string place(const ZelUIVar &variable, int component)
{
    std::string text = variable.name().toUtf8();
    if (component > 0)
        text += '[' + std::to_string(component + 1) + ']';
    return text;
}

std::string atObject(int64_t id)
{
    return id == 0 ? "" : '@' + std::to_string(id);
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

std::string zelWriteValues(const Meta &meta, bool withResults)
{
    std::vector<int64_t> ids = meta.objects();
    // A store that nobody wrote to still has values, the initial ones.
    if (ids.empty())
        ids.push_back(0);
    std::string text;
    for (const int64_t id : ids) {
        for (const auto &variable : meta.variables()) {
            if (variable->storage() == ZelVarStorage::None || (variable->mResult && !withResults))
                continue;
            if (variable->mOptional && !variable->mResult) {
                const bool checked = meta.isOptionChecked(*variable, id);
                text += "entered(" + variable->name().toUtf8() + ')' + atObject(id) + " = "
                    + (checked ? "true\n" : "false\n");
                if (!checked && !withResults)
                    continue;
            }
            for (int component = 0; component < variable->componentCount(); ++component) {
                const std::string value = zelValueText(meta, *variable, id, component);
                if (!value.empty())
                    text += place(*variable, component) + atObject(id) + " = " + value + '\n';
            }
        }
    }
    return text;
}
