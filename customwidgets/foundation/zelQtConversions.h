#pragma once

#include "customwidgets_export.h"
#include "zelDimensions.h"
#include "zelString.h"
#include "zelWString.h"

#include <QString>

// The one road from the strings and units of the model layer to Qt's.

CUSTOMWIDGETS_EXPORT QString toQString(const zelString &text);
CUSTOMWIDGETS_EXPORT QString toQString(const zelWString &text);
/// Text number `id` of the pool of messages and model texts.
CUSTOMWIDGETS_EXPORT QString toQStringFromPool(int id);
/// Text number `id` of the pool of user interface texts.
CUSTOMWIDGETS_EXPORT QString toQStringFromPoolUi(int id);
/// NoUnit for an unknown text.
CUSTOMWIDGETS_EXPORT ZelDimensions::Unit stringToUnit(const QString &unit);
CUSTOMWIDGETS_EXPORT QString unitToString(ZelDimensions::Unit unit);
