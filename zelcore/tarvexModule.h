#pragma once

#include "zelWString.h"
#include "zelcore_export.h"

#include <functional>
#include <memory>

/// Settings of the user that reach down to the model. The first member is one byte and is read as
/// such.
struct TarvexSetup
{
    /// Not zero for US customary units.
    unsigned char mUSCustomaryUnits = 0;
};

enum class MeldungsTyp : int { Information = 0, Warning = 1, Error = 2, Question = 3 };
enum class MeldungsVar : int { Ok = 0, YesNo = 1, YesNoCancel = 2 };

/// A message of the active module to the user: text in, number of the pressed button out.
class ZELCORE_EXPORT Meldung
{
public:
    /// Shows a text and yields 0 for Ok and Yes, 1 for No, 2 for Cancel.
    using Handler = std::function<int(MeldungsVar, MeldungsTyp, const zelWString &)>;

    Meldung(MeldungsVar variant, MeldungsTyp type);
    /// 0 without a handler.
    int show(const zelWString &text) const;
    /// How messages show in this process; an empty handler writes to internMessage and answers 0.
    static void setHandler(Handler handler);

    MeldungsVar mVariant;
    MeldungsTyp mType;
};

/// A calculation module as the frame sees it.
class ZELCORE_EXPORT TarvexModule
{
public:
    TarvexModule();
    virtual ~TarvexModule();
    TarvexModule(const TarvexModule &) = delete;
    TarvexModule &operator=(const TarvexModule &) = delete;

    /// The module the user works in; null when none is open. A module that is given becomes it
    /// first.
    static TarvexModule *GetActiveModule(TarvexModule *module = nullptr);
    /// Forgets the active module if it is this one.
    void deactivate();
    /// Owned by the module and valid until the next call.
    Meldung *GetMeldung(MeldungsVar variant, MeldungsTyp type, bool modal) const;

    /// Null at start, which means metric units. Set and owned by the application.
    static TarvexSetup *Setup;

private:
    mutable std::unique_ptr<Meldung> mMeldung;
};
