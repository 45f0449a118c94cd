#pragma once

#include "zelCalcModule.h"
#include "zelDescription.h"

#include <functional>
#include <map>
#include <memory>

/// The calculations of an application by the names of their classes.
class ZELCORE_EXPORT ZelModuleRegistry
{
public:
    using Maker = std::function<std::unique_ptr<ZelCalcModule>()>;

    ZelModuleRegistry();
    ~ZelModuleRegistry();

    void add(const zelWString &className, Maker maker);
    /// The same by the class: add<SpringModule>(L"SpringModule").
    template <class Module> void add(const zelWString &className)
    {
        add(className, [] { return std::make_unique<Module>(); });
    }
    /// Null for a class that isn't there.
    std::unique_ptr<ZelCalcModule> make(const zelWString &className) const;
    /// In alphabetical order.
    std::vector<zelWString> classNames() const;

private:
    std::map<zelWString, Maker> mMakers;
};

/// A module with its description. Masks that are built from it must go before it.
struct ZELCORE_EXPORT ZelLoadedModule
{
    /// Never null; a description without class has one that calculates nothing and refuses nothing.
    std::unique_ptr<ZelCalcModule> mModule;
    ZelDescription mDescription;

    Meta &meta() const { return mModule->meta(); }
};

/// Reads a description and makes its module. Faults are appended; what is left shows.
ZELCORE_EXPORT std::unique_ptr<ZelLoadedModule>
zelLoadModule(const std::string &path, const ZelModuleRegistry &registry, ZelFaultList &faults);
/// The same for a description that was read already.
ZELCORE_EXPORT std::unique_ptr<ZelLoadedModule>
zelLoadModule(ZelDescription description, const ZelModuleRegistry &registry, ZelFaultList &faults);
