#include "zelNameCheck_p.h"

#include "zelNearest_p.h"
#include "zelParse_p.h"
#include "zelSchema.h"

#include <algorithm>
#include <array>

namespace {

// Words of the language of conditions, in which a variable couldn't be named.
constexpr std::array<std::wstring_view, 8> words{L"or",    L"and", L"not",     L"true",
                                                 L"false", L"set", L"entered", L"rows"};

} // namespace

ZelDimensions::Type ZelNamedVariable::dimension() const
{
    const auto unit = zelParseUnit(mNode->attribute(L"unit"));
    return ZelDimensions::getType(unit.value_or(ZelDimensions::NoUnit));
}

bool ZelNameTable::add(ZelDomNode &node)
{
    const zelWString name = node.attribute(L"name");
    const ZelPlace place = node.attributeValuePlace(L"name");
    if (std::find(words.begin(), words.end(), name.view()) != words.end()) {
        mReport.add(ZelFaultCode::BadName, place, "bad name " + zelNodeText(node),
                    "no word of conditions");
        mReport.mGone.insert(name);
        return false;
    }
    const std::string kind = node.name().toUtf8();
    const auto [former, added] = mVariables.emplace(name, ZelNamedVariable{&node, kind, {}});
    if (!added) {
        const int line = former->second.mNode->place().mLine;
        mReport.add(ZelFaultCode::DuplicateName, place, "second variable \"" + name.toUtf8() + '"',
                    "another name, since line " + std::to_string(line) + " has this one");
        return false;
    }
    return true;
}

ZelNamedVariable *ZelNameTable::find(const zelWString &name, ZelPlace place)
{
    const auto found = mVariables.find(name);
    if (found != mVariables.end())
        return &found->second;
    if (mReport.mGone.contains(name))
        return nullptr;
    std::string nearest;
    if (!mReport.isFull()) {
        std::vector<std::string> names;
        for (const auto &[known, variable] : mVariables)
            names.push_back(known.toUtf8());
        nearest = zelNearest(name.toUtf8(), names);
    }
    mReport.add(ZelFaultCode::UnknownName, place, "unknown variable \"" + name.toUtf8() + '"',
                nearest.empty() ? "the name of a variable" : "did you mean \"" + nearest + "\"?");
    return nullptr;
}

void zelCheckNames(ZelDomNode &root, ZelCheckReport &report)
{
    ZelNameTable names(report);
    std::vector<ZelDomNode *> variables;
    zelWalk(root, [&](ZelDomNode &node) {
        if (!(node.parentNode()->name() == L"variables"))
            return true;
        const bool taken = names.add(node);
        if (taken)
            variables.push_back(&node);
        return taken;
    });
    for (ZelDomNode *variable : variables)
        zelCheckVariable(*variable, names);
    for (ZelDomNode *page = root.firstChild(L"page"); page; page = page->nextSibling(L"page"))
        zelCheckPage(*page, names);
}
