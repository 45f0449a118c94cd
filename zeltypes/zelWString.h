#pragma once

#include "zeltypes_export.h"

#include <compare>
#include <map>
#include <string>
#include <string_view>

/// Wide string value of the model layer. It converts to std::wstring alone: a second implicit
/// conversion would make calls ambiguous. Bytes from files go through fromUtf8 and toUtf8.
class ZELTYPES_EXPORT zelWString
{
public:
    zelWString() = default;
    zelWString(const wchar_t *text);
    zelWString(std::wstring text);
    /// The number as decimal text.
    zelWString(int number);

    zelWString &operator=(const wchar_t *text);

    operator std::wstring() const { return mText; }
    std::wstring getWStringData() const { return mText; }
    const wchar_t *data() const { return mText.c_str(); }
    size_t size() const { return mText.size(); }
    bool empty() const { return mText.empty(); }
    /// The leading decimal number, as std::wcstol reads it; 0 for a text that is none and for a
    /// number beyond int.
    int toInt() const;

    /// The characters without a copy.
    std::wstring_view view() const { return mText; }

    /// Invalid bytes become U+FFFD.
    static zelWString fromUtf8(std::string_view bytes);
    std::string toUtf8() const;

    bool operator==(const wchar_t *text) const { return mText == text; }
    bool operator==(const zelWString &other) const { return mText == other.mText; }
    bool operator<(const zelWString &other) const { return mText < other.mText; }

private:
    std::wstring mText;
};

/// Attributes of a model element, by name.
using AttrMap = std::map<zelWString, zelWString>;
