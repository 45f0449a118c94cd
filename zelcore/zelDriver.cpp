#include "zelDriver.h"

#include "zelCalcModule.h"
#include "zelUIDialogButtonBox.h"
#include "zelUIElement.h"
#include "zelUIInput.h"
#include "zelUITabPage.h"
#include "zelUiBuild.h"
#include "zelUiFactory.h"

namespace {

// Calls `visit` for every object of a kind below `object`.
template <class Kind, class Visit> void forEach(const ZelUIObject &object, const Visit &visit)
{
    for (ZelUIObject *child : object.modelChildren()) {
        if (auto *found = dynamic_cast<Kind *>(child))
            visit(*found);
        forEach<Kind>(*child, visit);
    }
}

} // namespace

ZelUITabPage *zelBuild(const ZelDomNode &page, Meta &meta, ZelUiFactory &factory,
                       ZelFaultList &faults, const std::string &fileName)
{
    const ZelUiBuild build(meta, factory, faults, fileName);
    ZelUITabPage *made = factory.makeTabPage();
    if (!made)
        return nullptr;
    made->setup(&page);
    made->makeLayout();
    made->retranslate();
    return made;
}

void zelRefresh(const std::vector<ZelUITabPage *> &pages, Meta &meta, int64_t id)
{
    for (ZelUITabPage *page : pages) {
        page->updateState(&meta, id);
        page->setData(&meta, id);
        page->updateState(&meta, id);
    }
}

void zelCollect(const std::vector<ZelUITabPage *> &pages, Meta &meta, int64_t id)
{
    for (ZelUITabPage *page : pages)
        page->getData(&meta, id);
    // What was typed last on one page lowers fields of another.
    for (const ZelUITabPage *page : pages)
        forEach<ZelUIInput>(*page, [&meta](ZelUIInput &input) { input.setPriority(&meta); });
}

ZelCalcResult zelCalculate(const std::vector<ZelUITabPage *> &pages, ZelCalcModule &module,
                           int64_t id)
{
    zelCollect(pages, module.meta(), id);
    ZelCalcResult result = module.run(id);
    zelRefresh(pages, module.meta(), id);
    for (const ZelUITabPage *page : pages)
        forEach<ZelUIDialogButtonBox>(*page, [&result](ZelUIDialogButtonBox &box) {
            box.updateCalcState(result.mSucceeded);
        });
    return result;
}

void zelRetranslate(const std::vector<ZelUITabPage *> &pages, Meta &meta, int64_t id)
{
    for (ZelUITabPage *page : pages)
        page->retranslate();
    zelRefresh(pages, meta, id);
}

void zelUpdateUnitSystem(const std::vector<ZelUITabPage *> &pages, bool keepDefault)
{
    for (const ZelUITabPage *page : pages)
        forEach<ZelUIElement>(
            *page, [keepDefault](ZelUIElement &element) { element.updateUnitSystem(keepDefault); });
}
