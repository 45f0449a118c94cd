#pragma once

#include "zelCalcModule.h"

class ZelModuleRegistry;

/// The moment of a force on a lever.
class LeverModule : public ZelCalcModule
{
public:
    LeverModule();
    ~LeverModule() override;

    void calculate(ZelCalcRun &run) override;

private:
    ZelRealVar mForce{*this, "F", "N"};
    ZelRealVar mArm{*this, "l", "mm"};
    ZelListVar mDirection{*this, "direction"};
    ZelRealVar mAngle{*this, "angle", "°"};
    ZelRealVar mPermitted{*this, "Mmax", "N·m"};
    ZelResultVar mMoment{*this, "M", "N·m"};
};

void registerLeverModule(ZelModuleRegistry &registry);
