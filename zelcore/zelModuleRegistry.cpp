#include "zelModuleRegistry.h"

#include "zelDomNode.h"
#include "zelNearest_p.h"
#include "zelSchemaPasses_p.h"

namespace {

// Stands for a description without class: there is nothing to compute.
class NoCalculation : public ZelCalcModule
{
public:
    void calculate(ZelCalcRun &) override { }
};

void addUnknownClass(const ZelDescription &description, const ZelModuleRegistry &registry,
                     ZelFaultList &faults)
{
    const std::string name = description.className().toUtf8();
    std::vector<std::string> known;
    for (const zelWString &className : registry.classNames())
        known.push_back(className.toUtf8());
    const std::string nearest = zelNearest(name, known);
    ZelCheckReport(description.fileName(), faults)
        .add(ZelFaultCode::UnknownName, description.root()->attributeValuePlace(L"class"),
             "unknown calculation \"" + name + '"',
             nearest.empty() ? "the class of a calculation" : "did you mean \"" + nearest + "\"?");
}

} // namespace

ZelModuleRegistry::ZelModuleRegistry() = default;
ZelModuleRegistry::~ZelModuleRegistry() = default;

void ZelModuleRegistry::add(const zelWString &className, Maker maker)
{
    mMakers[className] = std::move(maker);
}

std::unique_ptr<ZelCalcModule> ZelModuleRegistry::make(const zelWString &className) const
{
    const auto found = mMakers.find(className);
    return found == mMakers.end() ? nullptr : found->second();
}

std::vector<zelWString> ZelModuleRegistry::classNames() const
{
    std::vector<zelWString> names;
    for (const auto &[name, maker] : mMakers)
        names.push_back(name);
    return names;
}

std::unique_ptr<ZelLoadedModule>
zelLoadModule(const std::string &path, const ZelModuleRegistry &registry, ZelFaultList &faults)
{
    return zelLoadModule(ZelDescription::fromFile(path, faults), registry, faults);
}

std::unique_ptr<ZelLoadedModule>
zelLoadModule(ZelDescription description, const ZelModuleRegistry &registry, ZelFaultList &faults)
{
    auto loaded = std::make_unique<ZelLoadedModule>();
    loaded->mDescription = std::move(description);
    loaded->mModule = registry.make(loaded->mDescription.className());
    const bool known = loaded->mModule != nullptr;
    if (!known)
        loaded->mModule = std::make_unique<NoCalculation>();
    loaded->mDescription.describe(loaded->meta(), faults, known);
    if (known || loaded->mDescription.className().empty())
        loaded->mModule->bindHandles(loaded->mDescription, faults);
    else
        addUnknownClass(loaded->mDescription, registry, faults);
    return loaded;
}
