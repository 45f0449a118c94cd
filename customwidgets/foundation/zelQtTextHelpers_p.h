#pragma once

#include <QString>

/// Order of the lists of file contents.
inline bool lessCaseInsensitive(const QString &a, const QString &b)
{
    return a.toLower() < b.toLower();
}
