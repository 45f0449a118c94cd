#pragma once

#include "zelDimensions.h"
#include "zelWString.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Values of attributes as a description writes them, independent of locale. Nothing for a text that
// is none.

/// "." as decimal sign; neither infinite nor NaN.
std::optional<double> zelParseNumber(const zelWString &text);
std::optional<long> zelParseInteger(const zelWString &text);
/// "true" or "false".
std::optional<bool> zelParseBool(const zelWString &text);
/// Numbers with blanks between them.
std::optional<std::vector<double>> zelParseNumbers(const zelWString &text);
/// "2" or "1..2", from 1 to 3.
std::optional<int> zelParseComponents(const zelWString &text);
/// A display text or a text for files; an empty text is NoUnit.
std::optional<ZelDimensions::Unit> zelParseUnit(const zelWString &text);

/// What stands between blanks, and between commas when `commas` is true.
std::vector<zelWString> zelWords(const zelWString &text, bool commas = false);
/// ASCII letters, digits and "_", not a digit first.
bool zelIsName(const zelWString &text);
