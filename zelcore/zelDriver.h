#pragma once

#include "zelCalcRun.h"
#include "zelFault.h"
#include "zelcore_export.h"

#include <cstdint>
#include <string>
#include <vector>

class Meta;
class ZelCalcModule;
class ZelDomNode;
class ZelUITabPage;
class ZelUiFactory;

// The steps of a mask's life, over its pages. `id` is the object whose values show. Pages belong to
// whoever made the factory.

/// Builds a page of a description: set-up, layout, texts. Null when the factory makes no pages.
ZELCORE_EXPORT ZelUITabPage *zelBuild(const ZelDomNode &page, Meta &meta, ZelUiFactory &factory,
                                      ZelFaultList &faults, const std::string &fileName);

/// Shows the data: states, values, states again, so that what becomes enabled by it fills at once.
ZELCORE_EXPORT void zelRefresh(const std::vector<ZelUITabPage *> &pages, Meta &meta, int64_t id);
/// Takes over what the user entered. All inputs show their priority afterwards.
ZELCORE_EXPORT void zelCollect(const std::vector<ZelUITabPage *> &pages, Meta &meta, int64_t id);
/// Collects, runs the calculation, shows its results and tells the buttons of the pages how it
/// ended.
ZELCORE_EXPORT ZelCalcResult zelCalculate(const std::vector<ZelUITabPage *> &pages,
                                          ZelCalcModule &module, int64_t id);
/// Follows a change of language. Lists lose their entries by it and are filled again.
ZELCORE_EXPORT void zelRetranslate(const std::vector<ZelUITabPage *> &pages, Meta &meta,
                                   int64_t id);
/// Every line goes to the unit of the current unit system, or with `keepDefault` to its default
/// unit. No stored value changes.
ZELCORE_EXPORT void zelUpdateUnitSystem(const std::vector<ZelUITabPage *> &pages,
                                        bool keepDefault = false);
