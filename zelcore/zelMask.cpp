#include "zelMask.h"

ZelMask::ZelMask(ZelLoadedModule &module, ZelUiFactory &factory, ZelFaultList &faults, int64_t id)
    : mModule(module)
    , mId(id)
{
    for (const ZelDomNode *node : module.mDescription.pages()) {
        const std::string &file = module.mDescription.fileName();
        if (ZelUITabPage *page = zelBuild(*node, module.meta(), factory, faults, file))
            mPages.push_back(page);
    }
    refresh();
}

ZelMask::~ZelMask() = default;

void ZelMask::setId(int64_t id)
{
    mId = id;
    refresh();
}

void ZelMask::refresh()
{
    zelRefresh(mPages, meta(), mId);
}

void ZelMask::collect()
{
    zelCollect(mPages, meta(), mId);
}

ZelCalcResult ZelMask::calculate()
{
    return zelCalculate(mPages, module(), mId);
}

void ZelMask::retranslate()
{
    zelRetranslate(mPages, meta(), mId);
}

void ZelMask::updateUnitSystem(bool keepDefault)
{
    zelUpdateUnitSystem(mPages, keepDefault);
}
