#pragma once

#include "customwidgets_export.h"
#include "zelDimensions.h"

#include <QColor>
#include <QString>

class QFontMetrics;
class QPoint;

// Rich text, colours and units as texts, and the one-shot unit menu. GUI thread only.

/// Colour of a stored text "{r|g|b|a;RGBA}"; "r|g|b" does as well. Gray for a text of any other
/// form, an invalid colour for numbers beyond 255.
CUSTOMWIDGETS_EXPORT QColor colorFromString(const QString &text);
/// Storage form of a colour: "{r|g|b|a;RGBA}".
CUSTOMWIDGETS_EXPORT QString colorToString(const QColor &color);

/// Rich text flattened for a display of one line: "mm<sup>2</sup>" becomes "mm^2", entities vanish.
CUSTOMWIDGETS_EXPORT QString simpleText(const QString &text);
/// Rich text reduced for measuring: tags vanish, an entity keeps the room of one character.
CUSTOMWIDGETS_EXPORT QString plainText(const QString &text);
/// Width of a rich text in pixels with half a "w" in reserve; 0 for a text that shows nothing.
CUSTOMWIDGETS_EXPORT int plainTextWidth(const QString &text);
CUSTOMWIDGETS_EXPORT int plainTextWidth(const QString &text, const QFontMetrics &metrics);
/// True when the text holds neither a tag without attributes nor a named entity.
CUSTOMWIDGETS_EXPORT bool isPlainText(const QString &text);

/// Lets the user choose a unit of the dimension of `unit`, in a menu at the global position `pos`.
/// NoUnit without a choice, and at once for a unit without dimension.
CUSTOMWIDGETS_EXPORT ZelDimensions::Unit execUnitMenu(const ZelDimensions::Unit &unit,
                                                      const QPoint &pos);
/// The same by the texts of the units; empty without a choice.
CUSTOMWIDGETS_EXPORT QString execUnitMenu(const QString &unit, const QPoint &pos);
