#include "leverModule.h"

#include "zelModuleRegistry.h"

#include <cmath>
#include <numbers>

static constexpr double millimetresPerMetre = 1000;
static constexpr double radiansPerDegree = std::numbers::pi / 180;

LeverModule::LeverModule() = default;
LeverModule::~LeverModule() = default;

void LeverModule::calculate(ZelCalcRun &run)
{
    const int64_t id = run.id();
    if (mArm.get(id) <= 0) {
        run.error("arm", {mArm}, "Der Hebelarm muss größer als %1 sein.", {{0.0, "mm"}});
        return;
    }
    const double arm = mArm.get(id) / millimetresPerMetre;
    const double angle = mDirection.is("oblique", id) ? mAngle.get(id) : 90;
    const double moment = mForce.get(id) * arm * std::sin(angle * radiansPerDegree);
    mMoment.set(moment, id);
    if (!mPermitted.isEntered(id))
        mPermitted.unset(id);
    else if (moment > mPermitted.get(id))
        run.warning("permitted", {mPermitted}, "Das Moment %1 ist größer als das zulässige, %2.",
                    {{moment, "N·m"}, {mPermitted.get(id), "N·m"}});
}

void registerLeverModule(ZelModuleRegistry &registry)
{
    registry.add<LeverModule>(L"LeverModule");
}
