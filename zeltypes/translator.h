#pragma once

#include "zelLanguage.h"
#include "zelWString.h"
#include "zeltypes_export.h"

#include <array>
#include <map>

/// A pool of texts by number, one column per language. A text that is missing in a language falls
/// back to English, then to German; an unknown number is an empty text.
class ZELTYPES_EXPORT Translator
{
public:
    using Row = std::array<zelWString, zelLanguageCount>;

    Translator() = default;
    /// Reads lines of a number and up to nine texts, separated by tabs, UTF-8. Empty lines and
    /// lines that begin with "#" are passed over; a line without number is reported to
    /// internMessage. In a text, "\n" and "\t" stand for line break and tab.
    explicit Translator(std::string_view table);

    /// The text in the current language.
    zelWString GetString(int id) const;

    /// Adds the rows of another table; a number that is already there is reported to internMessage
    /// and keeps its first texts. Modules and applications add their own blocks of numbers so.
    void add(std::string_view table);

    const std::map<int, Row> &rows() const { return mRows; }

private:
    std::map<int, Row> mRows;
};

/// Messages and model texts.
ZELTYPES_EXPORT extern Translator pool;
/// Texts of the user interface.
ZELTYPES_EXPORT extern Translator poolUi;
