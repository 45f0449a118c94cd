#include "zelDescriptionFormat_p.h"
#include "zelSchema.h"

#include <algorithm>

namespace {

// Calls `take` for each of the words between blanks.
template <class Take> void forEachWord(std::string_view words, Take take)
{
    for (size_t at = 0; at < words.size();) {
        const size_t end = std::min(words.find(' ', at), words.size());
        if (end > at)
            take(words.substr(at, end - at));
        at = end + 1;
    }
}

std::string joined(std::string_view words)
{
    std::string text;
    forEachWord(words, [&text](std::string_view word) {
        text += text.empty() ? "" : ", ";
        text += word;
    });
    return text;
}

// With "|" a cell of a table would end.
std::string cell(std::string text)
{
    for (size_t at = text.find('|'); at != std::string::npos; at = text.find('|', at + 2))
        text.insert(at, "\\");
    return text;
}

std::string attributeRow(const ZelSchemaAttribute &attribute)
{
    std::string row = "| `" + std::string(attribute.mName) + "` | ";
    row += cell(zelSchemaTypeText(attribute)) + " | ";
    row += cell(std::string(attribute.mExplanation));
    row += attribute.mRequired ? "; required |\n" : " |\n";
    return row;
}

std::string section(const ZelSchemaTag &tag)
{
    std::string text = "\n## `<" + std::string(tag.mTag) + ">`";
    if (!tag.mParents.empty()) {
        std::string parents;
        forEachWord(tag.mParents, [&parents](std::string_view parent) {
            parents += (parents.empty() ? "`<" : ", `<")
                + std::string(parent.substr(0, parent.find('.'))) + ">`";
        });
        text += " in " + parents;
    }
    text += "\n\n" + std::string(tag.mExplanation) + ".\n";
    bool first = true;
    for (const auto &group : tag.mGroups) {
        for (const ZelSchemaAttribute &attribute : group) {
            text += first ? "\n| Attribute | Value | Meaning |\n|---|---|---|\n" : "";
            text += attributeRow(attribute);
            first = false;
        }
    }
    return text;
}

} // namespace

const ZelSchemaAttribute *ZelSchemaTag::attribute(std::string_view name) const
{
    for (const auto &group : mGroups) {
        for (const ZelSchemaAttribute &attribute : group) {
            if (attribute.mName == name)
                return &attribute;
        }
    }
    return nullptr;
}

bool ZelSchemaTag::mayStandIn(const ZelSchemaTag *parent) const
{
    if (!parent)
        return mParents.empty();
    bool found = false;
    forEachWord(mParents, [&](std::string_view key) { found = found || key == parent->mKey; });
    return found;
}

std::string zelSchemaTypeText(const ZelSchemaAttribute &attribute)
{
    switch (attribute.mType) {
    case ZelSchemaType::Text:
        return "a text";
    case ZelSchemaType::Value:
        return "a text that is not translated";
    case ZelSchemaType::Key:
        return "a key";
    case ZelSchemaType::NewName:
        return "a name of letters, digits and \"_\"";
    case ZelSchemaType::Variable:
        return "the name of a variable";
    case ZelSchemaType::Variables:
        return "names of variables";
    case ZelSchemaType::Entry:
        return "the name of an entry";
    case ZelSchemaType::Unit:
        return "a unit";
    case ZelSchemaType::Number:
        return "a number with decimal point";
    case ZelSchemaType::Numbers:
        return "a number for each component";
    case ZelSchemaType::Integer:
        return "a whole number";
    case ZelSchemaType::Integers:
        return "whole numbers";
    case ZelSchemaType::Bool:
        return "true or false";
    case ZelSchemaType::Condition:
        return "a condition";
    case ZelSchemaType::Enumeration:
        return "one of " + joined(attribute.mWords);
    case ZelSchemaType::Buttons:
        return "some of " + joined(attribute.mWords);
    case ZelSchemaType::Components:
        return "1, 2, 3, 1..2 or 1..3";
    case ZelSchemaType::Formula:
        return "a formula symbol";
    case ZelSchemaType::HelpCode:
        return "the number of a help topic";
    case ZelSchemaType::ClassName:
        return "the name of a class";
    case ZelSchemaType::Function:
        return "the name of a function";
    case ZelSchemaType::Word:
        return "a name";
    }
    return {};
}

std::string zelSchemaMarkdown()
{
    std::string text(zelDescriptionFormatText());
    text += "\n# Tags\n\nAttributes that are not marked as required may be left out.\n";
    for (const ZelSchemaTag &tag : zelSchemaTags())
        text += section(tag);
    return text;
}
