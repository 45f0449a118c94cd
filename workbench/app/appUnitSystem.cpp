#include "appUnitSystem.h"

AppUnitSystem::AppUnitSystem(QObject *parent)
    : QObject(parent)
{
    TarvexModule::Setup = &mSetup;
}

AppUnitSystem::~AppUnitSystem()
{
    if (TarvexModule::Setup == &mSetup)
        TarvexModule::Setup = nullptr;
}

void AppUnitSystem::setUsCustomary(bool us)
{
    if (us == isUsCustomary())
        return;
    mSetup.mUSCustomaryUnits = us ? 1 : 0;
    Q_EMIT changed();
}
