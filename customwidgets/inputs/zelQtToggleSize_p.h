#pragma once

#include "zelQtTextHelpers.h"

#include <QAbstractButton>
#include <QFontMetrics>

/// Size hint of a toggle whose text may hold tags: they take no room.
inline QSize withoutTags(QSize hint, const QAbstractButton *button)
{
    const QString text = button->text();
    const QString plain = plainText(text);
    if (plain != text) {
        const QFontMetrics metrics = button->fontMetrics();
        hint.rwidth() -= metrics.horizontalAdvance(text) - metrics.horizontalAdvance(plain);
    }
    return hint;
}
