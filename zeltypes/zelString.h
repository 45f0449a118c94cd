#pragma once

#include "zeltypes_export.h"

#include <string>

/// Narrow string value of the model layer, UTF-8 where it holds more than ASCII.
class ZELTYPES_EXPORT zelString
{
public:
    zelString() = default;
    zelString(const char *text);
    zelString(std::string text);
    ~zelString();
    zelString(const zelString &) = default;
    zelString(zelString &&) noexcept = default;
    zelString &operator=(const zelString &) = default;
    zelString &operator=(zelString &&) noexcept = default;

    operator std::string() const { return mText; }
    /// Valid as long as this object is and is not changed.
    operator const char *() const { return mText.c_str(); }
    bool contains(const char *part) const;

private:
    std::string mText;
};
