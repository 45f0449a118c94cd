#pragma once

#include <QString>

#include <algorithm>
#include <string_view>

/// Whether a widget shows the text of its model already: without converting that, which refreshes
/// of large masks would pay for every line. May answer no to the same text with characters beyond
/// 16 bits.
inline bool isSameText(const QString &shown, std::wstring_view text)
{
    return static_cast<size_t>(shown.size()) == text.size()
        && std::equal(text.begin(), text.end(), shown.begin(), [](wchar_t c, QChar other) {
               return static_cast<uint>(c) == other.unicode();
           });
}
