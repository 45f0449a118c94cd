#include "tarvexModule.h"

#include "internMessage.h"
#include "zelDimensions.h"

#include <utility>

namespace {

TarvexModule *activeModule = nullptr;
Meldung::Handler messageHandler;

bool usesUSCustomaryUnits()
{
    return TarvexModule::Setup && TarvexModule::Setup->mUSCustomaryUnits != 0;
}

// The units lie below the settings and can't ask for them: whoever loads this library links the
// two.
struct UnitSystemLink
{
    UnitSystemLink() { ZelDimensions::setUnitSystemQuery(&usesUSCustomaryUnits); }
    ~UnitSystemLink() { ZelDimensions::setUnitSystemQuery(nullptr); }
};

const UnitSystemLink unitSystemLink;

} // namespace

TarvexSetup *TarvexModule::Setup = nullptr;

TarvexModule::TarvexModule() = default;

TarvexModule::~TarvexModule()
{
    deactivate();
}

TarvexModule *TarvexModule::GetActiveModule(TarvexModule *module)
{
    if (module)
        activeModule = module;
    return activeModule;
}

void TarvexModule::deactivate()
{
    if (activeModule == this)
        activeModule = nullptr;
}

Meldung *TarvexModule::GetMeldung(MeldungsVar variant, MeldungsTyp type, bool) const
{
    mMeldung = std::make_unique<Meldung>(variant, type);
    return mMeldung.get();
}

Meldung::Meldung(MeldungsVar variant, MeldungsTyp type)
    : mVariant(variant)
    , mType(type)
{
}

int Meldung::show(const zelWString &text) const
{
    if (messageHandler)
        return messageHandler(mVariant, mType, text);
    internMessage(__FILE__, __LINE__, text.toUtf8().c_str());
    return 0;
}

void Meldung::setHandler(Handler handler)
{
    messageHandler = std::move(handler);
}
