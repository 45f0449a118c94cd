#pragma once

#include "zelcore_export.h"

#include <iosfwd>
#include <string>
#include <vector>

class ZelModuleRegistry;

/// The program zelcheck: lists the faults of a description, and calculates it without a display.
///
///     zelcheck [--calculate VALUES] [--language de|en|...] [--us] [--texts] FILE
///     zelcheck --schema | --units | --help
///
/// `arguments` are those behind the program's name. Faults go to `err`, everything else to `out`.
/// The answer is the exit code: 0; 1 when there are faults or the calculation refuses; 2 for a bad
/// call or a file that can't be read. Language and unit system of the process are the former ones
/// afterwards.
ZELCORE_EXPORT int zelCheckMain(const std::vector<std::string> &arguments, std::ostream &out,
                                std::ostream &err, const ZelModuleRegistry &registry);
