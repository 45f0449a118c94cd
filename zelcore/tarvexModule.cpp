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
    ~UnitSystemLink()
    {
        // One that somebody installed later stays.
        const auto installed = ZelDimensions::setUnitSystemQuery(nullptr);
        if (installed != &usesUSCustomaryUnits)
            ZelDimensions::setUnitSystemQuery(installed);
    }
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
    Meldung &message = variant == Meldung::Notice ? mNotice : mQuestion;
    message.mVariant = variant;
    message.mType = type;
    return &message;
}

Meldung::Meldung(MeldungsVar variant, MeldungsTyp type)
    : mVariant(variant)
    , mType(type)
{
}

void Meldung::setText(const zelWString &text)
{
    mText = text;
    if (mVariant == Notice && mType != Hold)
        show();
}

int Meldung::answer()
{
    return mVariant == Notice ? 0 : show();
}

int Meldung::show() const
{
    if (messageHandler)
        return messageHandler(mVariant, mType, mText);
    internMessage(__FILE__, __LINE__, mText.toUtf8().c_str());
    return mVariant == Notice ? 0 : 1;
}

void Meldung::setHandler(Handler handler)
{
    messageHandler = std::move(handler);
}
