#pragma once

#include "zelWString.h"
#include "zelcore_export.h"

#include <functional>

/// Settings of the user that reach down to the model. The first member is one byte and is read as
/// such.
struct TarvexSetup
{
    /// Not zero for US customary units.
    unsigned char mUSCustomaryUnits = 0;
};

/// Kind of a message, see Meldung.
using MeldungsVar = int;
/// What is to be done with a message, see Meldung.
using MeldungsTyp = int;

/// A message of the active module to the user: text in, number out. A notice shows as soon as it
/// gets its text; a question holds its text until it is asked:
///
///     module->GetMeldung(Meldung::Notice, Meldung::Show, true)->setText(text);
///     module->GetMeldung(Meldung::Question, Meldung::Hold, true)->setText(text);
///     if (module->GetMeldung(Meldung::Question, Meldung::Ask, true)->answer() == 0)
class ZELCORE_EXPORT Meldung
{
public:
    // Other numbers of variants are questions too, other numbers of types act like Show.
    static constexpr MeldungsVar Notice = 0;
    static constexpr MeldungsVar Question = 2;
    static constexpr MeldungsTyp Hold = 1;
    static constexpr MeldungsTyp Show = 3;
    static constexpr MeldungsTyp Ask = 9;

    /// Shows a text and yields 0 for Ok and Yes, another number for any other answer.
    using Handler = std::function<int(MeldungsVar, MeldungsTyp, const zelWString &)>;

    Meldung(MeldungsVar variant, MeldungsTyp type);
    void setText(const zelWString &text);
    /// 0 is yes. Asks a question each time; a notice has nothing to ask and is 0.
    int answer();
    /// How messages show in this process. Without one they go to internMessage, and what nobody was
    /// asked counts as declined.
    static void setHandler(Handler handler);

private:
    friend class TarvexModule;
    int show() const;

    MeldungsVar mVariant;
    MeldungsTyp mType;
    zelWString mText;
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
    /// Owned by the module, which has one notice and one question: the last call tells what is to
    /// be done with it, its text stays.
    Meldung *GetMeldung(MeldungsVar variant, MeldungsTyp type, bool modal) const;

    /// Null at start, which means metric units. Set and owned by the application.
    static TarvexSetup *Setup;

private:
    mutable Meldung mNotice{Meldung::Notice, Meldung::Show};
    mutable Meldung mQuestion{Meldung::Question, Meldung::Ask};
};
