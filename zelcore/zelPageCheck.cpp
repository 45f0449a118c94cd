#include "zelNameCheck_p.h"

#include <algorithm>
#include <array>

namespace {

class PageCheck
{
public:
    explicit PageCheck(ZelNameTable &names)
        : mNames(names)
        , mReport(names.report())
    {
    }
    void check(ZelDomNode &page);

private:
    bool visit(ZelDomNode &node);
    void checkPageName(ZelDomNode &page);
    bool hasVariable(const ZelDomNode &node);
    bool fitsInto(const ZelNamedVariable &variable, const ZelDomNode &node);
    void wrongKind(const ZelNamedVariable &variable, const ZelDomNode &node,
                   const std::string &expected);
    bool checkLine(ZelDomNode &line);

    ZelNameTable &mNames;
    ZelCheckReport &mReport;
};

bool isOneOf(const std::string &kind, std::initializer_list<const char *> kinds)
{
    return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

void PageCheck::wrongKind(const ZelNamedVariable &variable, const ZelDomNode &node,
                          const std::string &expected)
{
    mReport.add(ZelFaultCode::WrongKind, node.attributeValuePlace(L"name"),
                zelNodeText(*variable.mNode) + " in a <" + node.name().toUtf8() + "> of a page",
                expected);
}

bool PageCheck::fitsInto(const ZelNamedVariable &variable, const ZelDomNode &node)
{
    const std::string tag = node.name().toUtf8();
    const bool view = isOneOf(variable.mKind, {"table", "image"});
    if (tag == "var" && view) {
        wrongKind(variable, node, "<" + variable.mKind + ">");
        return false;
    }
    if (tag != "var" && variable.mKind != tag) {
        wrongKind(variable, node, view ? "<" + variable.mKind + ">" : "<var>");
        return false;
    }
    if (node.parentNode()->name() == L"line" && isOneOf(variable.mKind, {"notes", "button"})) {
        wrongKind(variable, node, "a line of its own");
        return false;
    }
    return true;
}

bool PageCheck::hasVariable(const ZelDomNode &node)
{
    const zelWString name = node.attribute(L"name");
    const ZelNamedVariable *variable = mNames.find(name, node.attributeValuePlace(L"name"));
    return variable && fitsInto(*variable, node);
}

// All fields of a line share one unit label.
bool PageCheck::checkLine(ZelDomNode &line)
{
    const ZelNamedVariable *first = nullptr;
    zelWalk(line, [&](ZelDomNode &node) {
        if (!hasVariable(node))
            return false;
        const ZelPlace place = node.attributeValuePlace(L"name");
        const ZelNamedVariable *variable = mNames.find(node.attribute(L"name"), place);
        if (!variable->isNumber())
            return true;
        first = first ? first : variable;
        if (variable->dimension() == first->dimension())
            return true;
        mReport.add(ZelFaultCode::UnlikeUnits, place,
                    zelNodeText(*variable->mNode) + " with the unit \""
                        + variable->mNode->attribute(L"unit").toUtf8() + "\" in a line with \""
                        + first->mNode->attribute(L"unit").toUtf8() + '"',
                    "units of one dimension");
        return false;
    });
    return line.firstChild() != nullptr;
}

void PageCheck::checkPageName(ZelDomNode &page)
{
    const zelWString name = page.attribute(L"name");
    if (name.empty() || mNames.takePage(name))
        return;
    mReport.add(ZelFaultCode::DuplicateName, page.attributeValuePlace(L"name"),
                "second page \"" + name.toUtf8() + '"', "another name");
    page.removeAttribute(L"name");
}

bool PageCheck::visit(ZelDomNode &node)
{
    const std::string tag = node.name().toUtf8();
    if (tag == "page")
        checkPageName(node);
    // The fields of a line are looked at with the line, when it is visited first.
    const bool inLine = node.parentNode() && node.parentNode()->name() == L"line";
    if (tag == "line")
        return checkLine(node);
    const bool refers =
        isOneOf(tag, {"var", "table"}) || (tag == "image" && node.hasAttribute(L"name"));
    return inLine || !refers || hasVariable(node);
}

void PageCheck::check(ZelDomNode &page)
{
    visit(page);
    zelWalk(page, [this](ZelDomNode &node) { return visit(node); });
}

} // namespace

void zelCheckPage(ZelDomNode &page, ZelNameTable &names)
{
    PageCheck(names).check(page);
}
