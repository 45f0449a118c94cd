#pragma once

#include "zelWString.h"

#include <cstdint>
#include <set>
#include <utility>
#include <vector>

// Lists as functions of a module yield them: a line for each entry, id or number, tab, text. Lines
// that begin with no number are passed over.

std::vector<std::pair<zelWString, int64_t>> zelReadIdLines(const zelWString &lines);
/// A line without text shows its number.
std::vector<std::pair<zelWString, double>> zelReadNumberLines(const zelWString &lines);
/// Ids that are separated by blanks or commas.
std::set<short> zelReadIds(const zelWString &ids);
/// Beyond 16 bits: 0, which is no entry's id but that of "own values".
short zelToShort(int64_t id);
