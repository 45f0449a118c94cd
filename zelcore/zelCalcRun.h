#pragma once

#include "zelDimensions.h"
#include "zelUITextHandler.h"
#include "zelVarHandles.h"
#include "zelcore_export.h"

#include <string>
#include <string_view>
#include <vector>

class ZelTextTable;

enum class ZelMessageSeverity { Note, Warning, Error };

/// What stands for "%1" in a message: a text, or a number that follows language and unit system.
class ZELCORE_EXPORT ZelMessageArgument
{
public:
    ZelMessageArgument(const char *utf8);
    ZelMessageArgument(zelWString text);
    ZelMessageArgument(int number);
    /// `value` counts in `unit` (empty for a plain number); at most `decimals` show.
    ZelMessageArgument(double value, std::string_view unit = {}, int decimals = 3);

    /// In the current language and unit system.
    zelWString text() const;

private:
    zelWString mText;
    double mValue = 0;
    ZelDimensions::Unit mUnit = ZelDimensions::NoUnit;
    int mDecimals = -1; // below 0 for a text
};

/// A message of a calculation.
struct ZELCORE_EXPORT ZelCalcMessage
{
    ZelMessageSeverity mSeverity = ZelMessageSeverity::Note;
    /// Tells messages apart for programs and tests.
    std::string mCode;
    ZelUITextHandler mText;
    std::vector<ZelMessageArgument> mArguments;
    /// Whom it is about, by name.
    std::vector<zelWString> mVariables;

    /// The text in the current language, arguments filled in.
    zelWString text() const;
};

/// How a calculation ended.
struct ZELCORE_EXPORT ZelCalcResult
{
    /// False when it was refused: an error, an exception, or no calculation at all.
    bool mSucceeded = false;
    std::vector<ZelCalcMessage> mMessages;
};

/// One run of a calculation for one object. It collects messages and colours the fields they are
/// about. A run with an error is refused: its results don't show.
class ZELCORE_EXPORT ZelCalcRun
{
public:
    using Arguments = std::vector<ZelMessageArgument>;

    /// Both must outlive the run. `texts` are the translations of the description.
    ZelCalcRun(Meta &meta, int64_t id, std::shared_ptr<const ZelTextTable> texts);

    /// The object that is calculated.
    int64_t id() const { return mId; }

    /// `text` is German, UTF-8, with %1 to %9, or "#8460" for a number of the pool.
    void error(std::string_view code, const ZelVarHandles &variables, std::string_view text,
               Arguments arguments = {});
    void warning(std::string_view code, const ZelVarHandles &variables, std::string_view text,
                 Arguments arguments = {});
    void note(std::string_view code, const ZelVarHandles &variables, std::string_view text,
              Arguments arguments = {});

    bool hasErrors() const { return mHasErrors; }
    const std::vector<ZelCalcMessage> &messages() const { return mMessages; }

private:
    void add(ZelMessageSeverity severity, std::string_view code, const ZelVarHandles &variables,
             std::string_view text, Arguments arguments);

    Meta &mMeta;
    int64_t mId;
    std::shared_ptr<const ZelTextTable> mTexts;
    std::vector<ZelCalcMessage> mMessages;
    bool mHasErrors = false;
};
