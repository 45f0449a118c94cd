#include "zelNearest_p.h"
#include "zelSchema.h"
#include "zelSchemaPasses_p.h"

#include <algorithm>

namespace {

class SchemaCheck
{
public:
    explicit SchemaCheck(ZelCheckReport &report)
        : mReport(report)
    {
    }

    /// False when the node can't be used.
    bool check(ZelDomNode &node, const ZelSchemaTag &tag);

private:
    const ZelSchemaTag *rowOf(const ZelDomNode &child, const ZelSchemaTag &parent);
    void checkChildren(ZelDomNode &node, const ZelSchemaTag &tag);
    void checkAttribute(ZelDomNode &node, const ZelSchemaTag &tag, const zelWString &name);
    void forget(const ZelDomNode &node);
    bool hasRequired(const ZelDomNode &node, const ZelSchemaTag &tag);

    ZelCheckReport &mReport;
    // Attributes of the node at hand whose bad values were told; they need not be told missing too.
    std::vector<std::string> mBad;
};

std::string allowedIn(const ZelSchemaTag &parent)
{
    std::string list;
    for (const ZelSchemaTag &tag : zelSchemaTags()) {
        if (tag.mayStandIn(&parent))
            list += (list.empty() ? "<" : ", <") + std::string(tag.mTag) + ">";
    }
    return list.empty() ? "nothing in <" + std::string(parent.mTag) + ">" : list;
}

std::string nearestTag(const std::string &name, const ZelSchemaTag &parent)
{
    std::vector<std::string> names;
    for (const ZelSchemaTag &tag : zelSchemaTags()) {
        if (tag.mayStandIn(&parent))
            names.emplace_back(tag.mTag);
    }
    const std::string nearest = zelNearest(name, names);
    return nearest.empty() ? nearest : "did you mean <" + nearest + ">?";
}

std::string placesOf(std::string_view name)
{
    std::string list;
    for (const ZelSchemaTag &tag : zelSchemaTags()) {
        for (const ZelSchemaTag &parent : zelSchemaTags()) {
            if (tag.mTag == name && tag.mayStandIn(&parent))
                list += (list.empty() ? "in <" : ", <") + std::string(parent.mTag) + ">";
        }
    }
    return list.empty() ? "as the root of the file" : list;
}

std::string expectedAttribute(const std::string &name, const ZelSchemaTag &tag)
{
    std::vector<std::string> names;
    for (const auto &group : tag.mGroups) {
        for (const ZelSchemaAttribute &attribute : group)
            names.emplace_back(attribute.mName);
    }
    const std::string nearest = zelNearest(name, names);
    if (!nearest.empty())
        return "did you mean \"" + nearest + "\"?";
    std::string list;
    for (const std::string &known : names)
        list += (list.empty() ? "" : ", ") + known;
    return list.empty() ? "no attribute" : list;
}

const ZelSchemaTag *SchemaCheck::rowOf(const ZelDomNode &child, const ZelSchemaTag &parent)
{
    const std::string name = child.name().toUtf8();
    if (const ZelSchemaTag *row = zelSchemaTag(name, &parent))
        return row;
    const auto tags = zelSchemaTags();
    const bool known = std::any_of(tags.begin(), tags.end(),
                                   [&name](const ZelSchemaTag &tag) { return tag.mTag == name; });
    if (known) {
        mReport.add(ZelFaultCode::MisplacedElement, child.place(),
                    "<" + name + "> may not stand in <" + std::string(parent.mTag) + ">",
                    placesOf(name));
        return nullptr;
    }
    const std::string nearest = mReport.isFull() ? std::string() : nearestTag(name, parent);
    mReport.add(ZelFaultCode::UnknownElement, child.place(), "unknown tag <" + name + ">",
                nearest.empty() ? allowedIn(parent) : nearest);
    return nullptr;
}

void SchemaCheck::checkAttribute(ZelDomNode &node, const ZelSchemaTag &tag, const zelWString &name)
{
    const std::string text = name.toUtf8();
    const ZelSchemaAttribute *attribute = tag.attribute(text);
    if (!attribute) {
        mReport.add(ZelFaultCode::UnknownAttribute, node.attributePlace(name),
                    "unknown attribute \"" + text + "\" of " + zelNodeText(node),
                    mReport.isFull() ? std::string() : expectedAttribute(text, tag));
        node.removeAttribute(name);
        return;
    }
    const auto fault = zelCheckValue(*attribute, node.attribute(name));
    if (!fault)
        return;
    mReport.add(fault->mCode, node.attributeValuePlace(name),
                fault->mText + " of " + zelNodeText(node), fault->mExpected);
    mBad.push_back(text);
    node.removeAttribute(name);
}

bool SchemaCheck::hasRequired(const ZelDomNode &node, const ZelSchemaTag &tag)
{
    bool complete = true;
    for (const auto &group : tag.mGroups) {
        for (const ZelSchemaAttribute &attribute : group) {
            const zelWString name = zelWString::fromUtf8(attribute.mName);
            if (!attribute.mRequired || node.hasAttribute(name))
                continue;
            complete = false;
            if (std::find(mBad.begin(), mBad.end(), attribute.mName) == mBad.end())
                mReport.add(ZelFaultCode::MissingAttribute, node.place(),
                            zelNodeText(node) + " has no \"" + std::string(attribute.mName) + '"',
                            zelSchemaTypeText(attribute));
        }
    }
    return complete;
}

// Uses of a variable that is left out are no further faults, even when its tag is not known.
void SchemaCheck::forget(const ZelDomNode &node)
{
    if (node.hasAttribute(L"name"))
        mReport.mGone.insert(node.attribute(L"name"));
    for (const ZelDomNode *child = node.firstChild(); child; child = child->nextSibling())
        forget(*child);
}

void SchemaCheck::checkChildren(ZelDomNode &node, const ZelSchemaTag &tag)
{
    node.removeChildren([this, &tag](ZelDomNode &child) {
        const ZelSchemaTag *row = rowOf(child, tag);
        const bool stays = row && check(child, *row);
        if (!stays)
            forget(child);
        return !stays;
    });
}

bool SchemaCheck::check(ZelDomNode &node, const ZelSchemaTag &tag)
{
    mBad.clear();
    for (const auto &[name, value] : node.attributes())
        checkAttribute(node, tag, name);
    if (!node.content().empty() && !tag.mContent) {
        mReport.add(ZelFaultCode::BadValue, node.place(), "text inside " + zelNodeText(node),
                    "texts in attributes");
        node.setContent({});
    }
    const bool complete = hasRequired(node, tag);
    checkChildren(node, tag);
    return complete;
}

} // namespace

bool zelCheckSchema(ZelDomNode &root, ZelCheckReport &report)
{
    const ZelSchemaTag *tag = zelSchemaTag(root.name().toUtf8(), nullptr);
    if (tag)
        return SchemaCheck(report).check(root, *tag);
    report.add(ZelFaultCode::UnknownElement, root.place(),
               "unknown root element <" + root.name().toUtf8() + ">", "<module>");
    zelWalk(root, [](ZelDomNode &) { return false; });
    return false;
}
