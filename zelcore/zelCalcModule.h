#pragma once

#include "meta.h"
#include "tarvexModule.h"
#include "zelCalcRun.h"
#include "zelFault.h"
#include "zelVarHandles.h"

class ZelDescription;

/// A calculation: its data, and the function that computes results from inputs. A module derives
/// from it, has its variables as handles in its members and knows nothing of masks:
///
///     class SpringModule : public ZelCalcModule {
///         ZelRealVar mWire{*this, "d", "mm"};
///         ZelResultVar mRate{*this, "R", "N/mm"};
///         void calculate(ZelCalcRun &run) override;
///     };
///
/// Functions that the description names are given to meta() in the constructor.
class ZELCORE_EXPORT ZelCalcModule : public TarvexModule
{
public:
    ZelCalcModule();
    ~ZelCalcModule() override;

    Meta &meta() { return mMeta; }
    const Meta &meta() const { return mMeta; }

    /// Reads inputs and writes results. Errors are told to the run; an exception counts as one.
    virtual void calculate(ZelCalcRun &run) = 0;
    /// The user picked another alternative: converts the values that are entered now from those
    /// that were entered before. Does nothing here, which keeps what was computed last.
    virtual void choiceChanged(const ZelUIVarChoice &choice, short former, short current,
                               int64_t id);

    /// Binds the handles to the variables of a description. One that is missing, of another kind or
    /// in another unit is a fault and switches the calculation off; masks show all the same.
    void bindHandles(const ZelDescription &description, ZelFaultList &faults);
    bool canCalculate() const { return mCanCalculate; }
    /// Runs the calculation for an object: clears messages, and unsets results when it is refused.
    ZelCalcResult run(int64_t id);

private:
    friend class ZelVarHandle;
    void convert(const ZelUIVarChoice &choice, short former, short current, int64_t id);
    void addHandleFault(const ZelVarHandle &handle, ZelVarHandle::Mismatch mismatch,
                        const ZelDescription &description, ZelFaultList &faults) const;

    Meta mMeta;
    std::vector<ZelVarHandle *> mHandles;
    std::shared_ptr<const ZelTextTable> mTexts;
    bool mCanCalculate = false;
};
