#include "zelDescription.h"

#include "meta.h"
#include "zelSchemaPasses_p.h"

#include <filesystem>

ZelDescription::ZelDescription() = default;
ZelDescription::~ZelDescription() = default;
ZelDescription::ZelDescription(ZelDescription &&) noexcept = default;
ZelDescription &ZelDescription::operator=(ZelDescription &&) noexcept = default;

ZelDescription::ZelDescription(ZelDomDocument document)
    : mDocument(std::move(document))
{
    if (!isEmpty()) {
        mModuleId = root()->attribute(L"id");
        mClassName = root()->attribute(L"class");
    }
    if (mModuleId.empty())
        mModuleId = zelWString::fromUtf8(std::filesystem::path(fileName()).stem().string());
}

ZelDescription ZelDescription::fromFile(const std::string &path, ZelFaultList &faults)
{
    return ZelDescription(ZelDomDocument::fromFile(path, faults));
}

ZelDescription ZelDescription::fromText(std::string_view bytes, const std::string &fileName,
                                        ZelFaultList &faults)
{
    return ZelDescription(ZelDomDocument::fromText(bytes, fileName, faults));
}

void ZelDescription::describe(Meta &meta, ZelFaultList &faults, bool withFunctions)
{
    if (!root())
        return;
    meta.setModuleId(mModuleId);
    ZelCheckReport report(fileName(), faults);
    if (zelCheckSchema(*root(), report)) {
        zelCheckNames(*root(), report);
        if (withFunctions)
            zelCheckFunctions(*root(), meta, report);
        zelMakeVariables(*root(), meta);
        zelCheckConditions(*root(), meta, report);
    }
    report.sort();
}

bool ZelDescription::isEmpty() const
{
    return !root() || !(root()->name() == L"module");
}

std::vector<ZelDomNode *> ZelDescription::pages() const
{
    std::vector<ZelDomNode *> pages;
    if (isEmpty())
        return pages;
    for (ZelDomNode *page = root()->firstChild(L"page"); page; page = page->nextSibling(L"page"))
        pages.push_back(page);
    return pages;
}

ZelDescription zelLoadDescription(const std::string &path, Meta &meta, ZelFaultList &faults)
{
    ZelDescription description = ZelDescription::fromFile(path, faults);
    description.describe(meta, faults);
    return description;
}
