#pragma once

#include "customwidgets_export.h"

class QSpacerItem;

// The three spacers that all layouts of a mask share. Each call makes a new item for the caller to
// hand to a layout, which then owns it.

/// Pushes the content of a column upward.
CUSTOMWIDGETS_EXPORT QSpacerItem *vSpacerItem();
/// The gap between two columns, at most 80 pixels wide.
CUSTOMWIDGETS_EXPORT QSpacerItem *hMidSpacerItem();
/// Pushes a row to the left.
CUSTOMWIDGETS_EXPORT QSpacerItem *hRightSpacerItem();
