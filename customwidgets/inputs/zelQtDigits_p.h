#pragma once

#include <QLocale>

/// For validators of whole numbers: entered texts are read without a locale, and with the group
/// separators of one "1.000" would count as 1 or as nothing.
inline QLocale digitsOnly()
{
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::OmitGroupSeparator | QLocale::RejectGroupSeparator);
    return locale;
}
