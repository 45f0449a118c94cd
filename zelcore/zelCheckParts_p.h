#pragma once

#include "zelLanguage.h"

#include <iosfwd>
#include <string>

class ZelDescription;
class ZelMask;
struct ZelCalcResult;

// The outputs of zelcheck.

/// Inputs, results and messages of the object that the mask shows.
void zelPrintCalculation(const ZelMask &mask, const ZelCalcResult &result, std::ostream &out);
/// The texts of a description that have no translation, each once with the place of its first use.
void zelPrintMissingTexts(const ZelDescription &description, ZelLanguage language,
                          std::ostream &out);
/// "τ_k2" for "τ<sub>k2</sub>".
std::string zelPlainFormula(const std::string &richText);
