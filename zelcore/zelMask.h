#pragma once

#include "zelDriver.h"
#include "zelModuleRegistry.h"

/// The pages of a loaded module, built by a factory, for one object. It shows what the module holds
/// and brings back what the user enters. Neither module nor pages are owned: the module must
/// outlive the mask, and a mask whose pages were deleted is used no more.
class ZELCORE_EXPORT ZelMask
{
public:
    /// Builds and fills all pages. Pages that the factory does not make are left out.
    ZelMask(ZelLoadedModule &module, ZelUiFactory &factory, ZelFaultList &faults, int64_t id = 0);
    ~ZelMask();

    const std::vector<ZelUITabPage *> &pages() const { return mPages; }
    ZelCalcModule &module() const { return *mModule.mModule; }
    Meta &meta() const { return mModule.meta(); }
    int64_t id() const { return mId; }
    /// Shows another object; what was entered and not collected is lost.
    void setId(int64_t id);

    // The steps of zelDriver.h
    void refresh();
    void collect();
    ZelCalcResult calculate();
    void retranslate();
    void updateUnitSystem(bool keepDefault = false);

private:
    ZelLoadedModule &mModule;
    std::vector<ZelUITabPage *> mPages;
    int64_t mId;
};
