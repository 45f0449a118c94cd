#pragma once

#include "meta.h"
#include "zelFault.h"
#include "zelmath_export.h"

#include <string>
#include <string_view>

// The text form of values, one a line, as projects, batch runs and journals keep them:
//
//     name[component]@id = value unit
//
// Component (from 1) and id are left out when they are 1 and 0, the unit for quantities without
// one. Numbers have the shortest digits that give the same double back; texts stand in double
// quotes with \" \\ and \n; entries of lists by name, or by number when they have none; yes and no
// as true and false; "entered(name)@id = true" tells the check box of an optional variable. Lines
// that begin with "#" and empty lines count for nothing. Units are written by their text for files
// ("N/mm2"), that for people ("N/mm²") reads as well.

/// All inputs of all objects (or also the results that are set), in the order of the description,
/// in default units. What was computed for an unchecked optional variable is a result. A store that
/// nobody wrote to counts as one object, 0, with initial values.
ZELMATH_EXPORT std::string zelWriteValues(const Meta &meta, bool withResults);

/// Reads values; units are converted to default units. A faulty line (unknown name, unit of another
/// dimension, no number, a result) is reported with its place and changes nothing; the others
/// count. Returns the number of values read.
ZELMATH_EXPORT int zelReadValues(Meta &meta, std::string_view bytes, const std::string &fileName,
                                 ZelFaultList &faults, ZelOrigin origin = ZelOrigin::Load);

/// Shortest text that reads back as the same double, "." as decimal sign.
ZELMATH_EXPORT std::string zelNumberText(double value);

/// One value as it stands behind "=": number with unit text, quoted text, entry name, true or
/// false. Empty while it is unset.
ZELMATH_EXPORT std::string zelValueText(const Meta &meta, const ZelUIVar &variable, int64_t id,
                                        int component = 0);
