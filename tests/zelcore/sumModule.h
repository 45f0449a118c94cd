#pragma once

#include "zelCalcModule.h"
#include "zelModuleRegistry.h"

#include <QString>

#include <stdexcept>

/// A small calculation for tests: s = a + b, and a rectangle whose side b is entered, or its area
/// A. Its description stands in tests/data/sum.xml.
class SumModule : public ZelCalcModule
{
public:
    ZelRealVar mA{*this, "a", "mm"};
    ZelRealVar mB{*this, "b", "mm"};
    ZelRealVar mArea{*this, "A", "mm²"};
    ZelResultVar mSum{*this, "s", "mm"};
    ZelIntVar mCount{*this, "n"};
    ZelBoolVar mDoubled{*this, "doubled"};
    ZelListVar mMode{*this, "mode"};
    ZelListVar mGiven{*this, "given"};
    ZelTextVar mNote{*this, "note"};
    ZelRealVar mOffset{*this, "offset", "mm"};

    void calculate(ZelCalcRun &run) override
    {
        const int64_t id = run.id();
        if (mMode.is("throw", id))
            throw std::runtime_error("überall");
        if (mMode.is("odd", id))
            throw 17;
        mSum.set(1, id); // a refused run must take this back
        if (mA.get(id) <= 0) {
            run.error("notPositive", {mA}, "Die Seite a muss größer als %1 sein.",
                      {ZelMessageArgument(0.0, "mm")});
            return;
        }
        if (mGiven.is("area", id))
            mB.set(mArea.get(id) / mA.get(id), id);
        else
            mArea.set(mA.get(id) * mB.get(id), id);
        if (mB.get(id) > 100)
            run.warning("long", {mB, mA}, "Die Seite b ist mit %1 sehr lang.",
                        {ZelMessageArgument(mB.get(id), "mm", 1)});
        if (!mOffset.isEntered(id))
            mOffset.set(0.5, id);
        const double sum = mA.get(id) + mB.get(id) + mOffset.get(id);
        mSum.set(mDoubled.get(id) ? 2 * sum : sum, id);
        run.note("done", {mSum}, "Gerechnet.");
    }

    // Converts both ways and all values, as a module would.
    void choiceChanged(const ZelUIVarChoice &, short former, short current, int64_t id) override
    {
        mConversions += QString("%1>%2@%3 ").arg(former).arg(current).arg(id);
        if (current == 2)
            mArea.set(mA.get(id) * mB.get(id), id);
        else if (mA.get(id) != 0)
            mB.set(mArea.get(id) / mA.get(id), id);
    }

    QString mConversions;
};

inline ZelModuleRegistry sumRegistry()
{
    ZelModuleRegistry registry;
    registry.add<SumModule>(L"SumModule");
    return registry;
}
