#pragma once

#include "translator.h"
#include "zelFault.h"
#include "zelmath_export.h"

#include <string>

/// Translations of the texts of one description, keyed by the German text, or by a key of its own
/// where one German word means two things. Tab-separated UTF-8, the first line names the columns:
/// German, English, French, Italian, Spanish, Russian, Portuguese, Chinese, Japanese and, optional
/// and first, "key".
class ZELMATH_EXPORT ZelTextTable
{
public:
    /// Faults (bad header, double key, bad UTF-8) carry line and column of `fileName`.
    static ZelTextTable fromText(std::string_view bytes, const std::string &fileName,
                                 ZelFaultList &faults);

    /// The text in a language; falls back to English, then to `german`. `key` is used when it is
    /// not empty, else `german`.
    zelWString text(const zelWString &german, const zelWString &key, ZelLanguage language) const;
    bool contains(const zelWString &germanOrKey) const;
    /// True when there is a text of its own for that language.
    bool isTranslated(const zelWString &germanOrKey, ZelLanguage language) const;

private:
    std::map<zelWString, Translator::Row> mRows;
};
