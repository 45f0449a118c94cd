#pragma once

#include "zeltypes_export.h"

/// The nine languages of the language menu; the value is the column of the text tables.
enum class ZelLanguage {
    German = 0,
    English = 1,
    French = 2,
    Italian = 3,
    Spanish = 4,
    Russian = 5,
    Portuguese = 6,
    Chinese = 7,
    Japanese = 8
};

constexpr int zelLanguageCount = 9;

/// The language of all model texts of the process, German at start.
ZELTYPES_EXPORT ZelLanguage zelLanguage();
ZELTYPES_EXPORT void setZelLanguage(ZelLanguage language);
