#include "zelNameCheck_p.h"
#include "zelNearest_p.h"
#include "zelParse_p.h"

#include <algorithm>
#include <cmath>

namespace {

class VariableCheck
{
public:
    VariableCheck(ZelDomNode &node, ZelNameTable &names)
        : mNode(node)
        , mNames(names)
        , mReport(names.report())
    {
    }
    void check();

private:
    void badValue(const zelWString &attribute, const std::string &expected);
    std::optional<double> number(const zelWString &attribute) const;
    std::vector<zelWString> removeDoubles(const zelWString &tag, const zelWString &attribute);
    void checkReference(const zelWString &attribute, const std::vector<zelWString> &known,
                        const std::string &what);
    void checkLimits();
    void checkInitialNumbers();
    void checkInitialOfNumberList();
    void checkAlternatives();
    zelWString goodVariables(ZelDomNode &alternative);
    bool isFree(ZelNamedVariable &variable, const ZelDomNode &alternative, ZelPlace place);
    void checkColumns();

    ZelDomNode &mNode;
    ZelNameTable &mNames;
    ZelCheckReport &mReport;
};

std::string joined(const std::vector<zelWString> &names)
{
    std::string list;
    for (const zelWString &name : names)
        list += (list.empty() ? "" : ", ") + name.toUtf8();
    return list;
}

void VariableCheck::badValue(const zelWString &attribute, const std::string &expected)
{
    mReport.add(ZelFaultCode::BadValue, mNode.attributeValuePlace(attribute),
                "bad value \"" + mNode.attribute(attribute).toUtf8() + "\" of \""
                    + attribute.toUtf8() + "\" of " + zelNodeText(mNode),
                expected);
    mNode.removeAttribute(attribute);
}

std::optional<double> VariableCheck::number(const zelWString &attribute) const
{
    return zelParseNumber(mNode.attribute(attribute));
}

// The values of an attribute of all children with a tag; a second child with the same one goes.
std::vector<zelWString> VariableCheck::removeDoubles(const zelWString &tag,
                                                     const zelWString &attribute)
{
    std::vector<zelWString> values;
    std::set<zelWString> taken;
    zelWalk(mNode, [&](ZelDomNode &child) {
        if (!(child.name() == tag) || !child.hasAttribute(attribute))
            return true;
        const zelWString value = child.attribute(attribute);
        values.push_back(value);
        if (taken.insert(value).second)
            return true;
        values.pop_back();
        mReport.add(ZelFaultCode::DuplicateName, child.attributeValuePlace(attribute),
                    "second \"" + value.toUtf8() + "\" in " + zelNodeText(mNode),
                    "another " + attribute.toUtf8());
        return false;
    });
    return values;
}

void VariableCheck::checkReference(const zelWString &attribute,
                                   const std::vector<zelWString> &known, const std::string &what)
{
    const zelWString name = mNode.attribute(attribute);
    if (!mNode.hasAttribute(attribute)
        || std::find(known.begin(), known.end(), name) != known.end())
        return;
    if (!mReport.mGone.contains(name))
        mReport.add(ZelFaultCode::UnknownName, mNode.attributeValuePlace(attribute),
                    "unknown " + what + " \"" + name.toUtf8() + "\" of " + zelNodeText(mNode),
                    mReport.isFull() ? std::string() : joined(known));
    mNode.removeAttribute(attribute);
}

void VariableCheck::checkLimits()
{
    const auto bottom = number(L"bottom");
    const auto top = number(L"top");
    if (bottom && top && *bottom > *top)
        badValue(L"top", "at least the bottom");
}

void VariableCheck::checkInitialNumbers()
{
    const auto numbers = zelParseNumbers(mNode.attribute(L"initial"));
    if (!mNode.hasAttribute(L"initial") || !numbers)
        return;
    const int components = zelParseComponents(mNode.attribute(L"components")).value_or(1);
    const auto bottom = number(L"bottom");
    const auto top = number(L"top");
    const auto isOutside = [&](double value) {
        return (bottom && value < *bottom) || (top && value > *top);
    };
    const auto isBroken = [](double value) { return value != std::trunc(value); };
    if (numbers->size() != static_cast<size_t>(components))
        badValue(L"initial",
                 std::to_string(components) + (components > 1 ? " numbers" : " number"));
    else if (mNode.name() == L"int" && std::any_of(numbers->begin(), numbers->end(), isBroken))
        badValue(L"initial", "a whole number");
    else if (std::any_of(numbers->begin(), numbers->end(), isOutside))
        badValue(L"initial", "a number inside the limits");
}

void VariableCheck::checkInitialOfNumberList()
{
    const auto initial = number(L"initial");
    if (!initial)
        return;
    for (const ZelDomNode *entry = mNode.firstChild(); entry; entry = entry->nextSibling()) {
        if (zelParseNumber(entry->attribute(L"number")) == initial)
            return;
    }
    badValue(L"initial", "the number of an entry");
}

bool VariableCheck::isFree(ZelNamedVariable &variable, const ZelDomNode &alternative,
                           ZelPlace place)
{
    const std::string text = zelNodeText(*variable.mNode) + " in " + zelNodeText(alternative);
    if (!variable.isNumber() || variable.isResult()) {
        mReport.add(ZelFaultCode::WrongKind, place, text, "numbers that can be entered");
        return false;
    }
    const zelWString choice = mNode.attribute(L"name");
    if (!variable.mChoice.empty() && !(variable.mChoice == choice)) {
        mReport.add(ZelFaultCode::DuplicateName, place, text,
                    "a variable that <choice name=\"" + variable.mChoice.toUtf8()
                        + "\"> does not hold");
        return false;
    }
    variable.mChoice = choice;
    return true;
}

// The names of an alternative without those that can't be members.
zelWString VariableCheck::goodVariables(ZelDomNode &alternative)
{
    const ZelPlace begin = alternative.attributeValuePlace(L"vars");
    const zelWString source = alternative.attribute(L"vars");
    std::wstring good;
    size_t at = 0;
    for (const zelWString &name : zelWords(source)) {
        at = source.view().find(name.view(), at);
        const ZelPlace place{begin.mLine, begin.mColumn + static_cast<int>(at)};
        at += name.size();
        ZelNamedVariable *variable = mNames.find(name, place);
        if (variable && isFree(*variable, alternative, place))
            good += (good.empty() ? L"" : L" ") + std::wstring(name);
    }
    return good;
}

void VariableCheck::checkAlternatives()
{
    zelWalk(mNode, [this](ZelDomNode &alternative) {
        const ZelPlace place = alternative.attributePlace(L"vars");
        const ZelPlace valuePlace = alternative.attributeValuePlace(L"vars");
        const zelWString good = goodVariables(alternative);
        alternative.setAttribute(L"vars", good, place, valuePlace);
        return !good.empty();
    });
}

void VariableCheck::checkColumns()
{
    const std::vector<zelWString> columns = removeDoubles(L"column", L"name");
    checkReference(L"sortcolumn", columns, "column");
    for (ZelDomNode *column = mNode.firstChild(); column; column = column->nextSibling()) {
        if (!column->hasAttribute(L"list"))
            continue;
        const ZelPlace place = column->attributeValuePlace(L"list");
        const ZelNamedVariable *list = mNames.find(column->attribute(L"list"), place);
        if (list && list->mKind != "list")
            mReport.add(ZelFaultCode::WrongKind, place,
                        zelNodeText(*list->mNode) + " as the list of " + zelNodeText(*column),
                        "a list");
        if (!list || list->mKind != "list")
            column->removeAttribute(L"list");
    }
}

void VariableCheck::check()
{
    const std::string kind = mNode.name().toUtf8();
    if (mNode.attribute(L"role") == L"result" && mNode.attribute(L"optional") == L"true")
        badValue(L"optional", "no check box, since it is a result");
    if (kind == "real" || kind == "int") {
        checkLimits();
        checkInitialNumbers();
    } else if (kind == "list") {
        removeDoubles(L"entry", L"id");
        checkReference(L"initial", removeDoubles(L"entry", L"name"), "entry");
    } else if (kind == "reallist") {
        removeDoubles(L"entry", L"name");
        removeDoubles(L"entry", L"number");
        checkInitialOfNumberList();
    } else if (kind == "choice") {
        removeDoubles(L"alternative", L"name");
        checkAlternatives();
        checkReference(L"initial", removeDoubles(L"alternative", L"name"), "alternative");
    } else if (kind == "table") {
        checkColumns();
    }
}

} // namespace

void zelCheckVariable(ZelDomNode &node, ZelNameTable &names)
{
    VariableCheck(node, names).check();
}
