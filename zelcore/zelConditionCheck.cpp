#include "meta.h"
#include "zelCondition.h"
#include "zelNearest_p.h"
#include "zelSchema.h"
#include "zelSchemaPasses_p.h"

#include <array>

namespace {

using Condition = std::shared_ptr<const ZelCondition>;

struct Kind
{
    const wchar_t *mAttribute;
    Condition ZelUIVar::*mMember;
};

constexpr std::array kinds{
    Kind{L"enabled", &ZelUIVar::mEnabledIf},
    Kind{L"visible", &ZelUIVar::mVisibleIf},
    Kind{L"readonly", &ZelUIVar::mReadOnlyIf},
};

bool isNameLetter(wchar_t c)
{
    return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || (c >= L'0' && c <= L'9')
        || c == L'_';
}

// A condition over something that was left out goes without a further fault.
bool namesGone(const zelWString &text, const ZelCheckReport &report, const Meta &meta)
{
    const std::wstring_view view = text.view();
    bool quoted = false;
    for (size_t at = 0; at < view.size();) {
        size_t end = at;
        while (end < view.size() && isNameLetter(view[end]))
            ++end;
        if (end == at) {
            quoted = view[at] == L'\'' ? !quoted : quoted;
            ++at;
            continue;
        }
        const zelWString word(std::wstring(view.substr(at, end - at)));
        if (report.mGone.contains(word) && (quoted || !meta.variable(word)))
            return true;
        at = end;
    }
    return false;
}

// In the file "<" and "&" of a value take more characters than one.
int sourceColumns(const zelWString &text, int length)
{
    int columns = 0;
    for (const wchar_t c : text.view().substr(0, static_cast<size_t>(std::max(length, 0))))
        columns += c == L'<' ? 4 : c == L'&' ? 5 : 1;
    return columns;
}

Condition compile(const ZelDomNode &node, const zelWString &attribute, const Meta &meta,
                  ZelCheckReport &report)
{
    const zelWString text = node.attribute(attribute);
    ZelCondition::Fault fault;
    Condition condition = ZelCondition::compile(text, meta, fault);
    if (condition || namesGone(text, report, meta))
        return condition;
    ZelPlace place = node.attributeValuePlace(attribute);
    place.mColumn += sourceColumns(text, fault.mAt);
    report.add(ZelFaultCode::BadCondition, place,
               "bad condition \"" + attribute.toUtf8() + "\" of " + zelNodeText(node) + ": "
                   + fault.mText,
               fault.mExpected);
    return nullptr;
}

ZelUIVar *describedVariable(const ZelDomNode &node, const Meta &meta)
{
    const bool describes = node.parentNode() && node.parentNode()->name() == L"variables";
    return describes ? meta.variable(node.attribute(L"name")) : nullptr;
}

} // namespace

void zelCheckConditions(ZelDomNode &root, Meta &meta, ZelCheckReport &report)
{
    zelWalk(root, [&](ZelDomNode &node) {
        ZelUIVar *variable = describedVariable(node, meta);
        for (const Kind &kind : kinds) {
            if (!node.hasAttribute(kind.mAttribute))
                continue;
            Condition condition = compile(node, kind.mAttribute, meta, report);
            if (!condition)
                node.removeAttribute(kind.mAttribute);
            if (variable)
                variable->*kind.mMember = std::move(condition);
        }
        return true;
    });
}

void zelCheckFunctions(ZelDomNode &root, const Meta &meta, ZelCheckReport &report)
{
    const auto check = [&](ZelDomNode &node, const zelWString &attribute) {
        const zelWString name = node.attribute(attribute);
        if (name.empty() || meta.hasFunction(name))
            return;
        report.add(ZelFaultCode::UnknownFunction, node.attributeValuePlace(attribute),
                   "unknown function \"" + name.toUtf8() + "\" of " + zelNodeText(node),
                   "a function of the module");
        node.removeAttribute(attribute);
    };
    zelWalk(root, [&](ZelDomNode &node) {
        for (const auto &[attribute, value] : node.attributes()) {
            if (attribute.view().ends_with(L"function"))
                check(node, attribute);
        }
        return true;
    });
}
