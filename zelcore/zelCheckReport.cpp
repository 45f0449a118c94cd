#include "zelDomDocument.h"
#include "zelSchema.h"
#include "zelSchemaPasses_p.h"

#include "meta.h"

#include <algorithm>
#include <tuple>

ZelCheckReport::ZelCheckReport(const std::string &fileName, ZelFaultList &faults)
    : mFileName(fileName)
    , mFaults(faults)
    , mFirst(faults.size())
{
}

void ZelCheckReport::add(ZelFaultCode code, ZelPlace place, std::string text, std::string expected)
{
    if (isFull()) // only counts, so its texts would be a waste for a file of nothing but faults
        mFaults.push_back({ZelFaultSeverity::Error, code, {}, place.mLine, place.mColumn, {}, {}});
    else
        mFaults.push_back({ZelFaultSeverity::Error, code, mFileName, place.mLine, place.mColumn,
                           std::move(text), std::move(expected)});
}

void ZelCheckReport::sort()
{
    const auto place = [](const ZelFault &fault) {
        // Those without text were found last and must not come before the others.
        return std::make_tuple(fault.mText.empty(), fault.mLine, fault.mColumn);
    };
    std::stable_sort(
        mFaults.begin() + static_cast<std::ptrdiff_t>(mFirst), mFaults.end(),
        [&place](const ZelFault &a, const ZelFault &b) { return place(a) < place(b); });
}

std::string zelNodeText(const ZelDomNode &node)
{
    std::string text = "<" + node.name().toUtf8();
    const zelWString name = node.attribute(node.hasAttribute(L"name") ? L"name" : L"id");
    if (!name.empty())
        text += (node.hasAttribute(L"name") ? " name=\"" : " id=\"") + name.toUtf8() + '"';
    return text + ">";
}

void zelWalk(ZelDomNode &node, const std::function<bool(ZelDomNode &)> &visit)
{
    node.removeChildren([&visit](ZelDomNode &child) {
        const bool stays = visit(child);
        if (stays)
            zelWalk(child, visit);
        return !stays;
    });
}

void zelCheckDescription(ZelDomDocument &document, ZelFaultList &faults)
{
    if (!document.root())
        return;
    ZelCheckReport report(document.fileName(), faults);
    Meta meta;
    if (zelCheckSchema(*document.root(), report)) {
        zelCheckNames(*document.root(), report);
        zelMakeVariables(*document.root(), meta);
        zelCheckConditions(*document.root(), meta, report);
    }
    report.sort();
}
