#pragma once

#include "zeltypes_export.h"

#include <functional>

/// Report of a fault inside the program, for developers: source path, line, short text.
ZELTYPES_EXPORT void internMessage(const char *file, long line, const char *text);

using ZelInternMessageSink = std::function<void(const char *file, long line, const char *text)>;

/// Takes the reports from now on and returns the former sink; an empty one writes to standard
/// error.
ZELTYPES_EXPORT ZelInternMessageSink setInternMessageSink(ZelInternMessageSink sink);
