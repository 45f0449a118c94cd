#pragma once

#include "zelUITypes.h"
#include "zelWString.h"

// Tips of the icon buttons of fixed kinds, in the current language. The same texts as those of the
// widgets, which no model text reaches in a mask that is built by hand.

/// `quantity` is the text of what the button belongs to. Empty for kinds without a tip, and where
/// the tip is nothing without a quantity.
zelWString zelButtonToolTip(ZelUIPushButtonType type, const zelWString &quantity);
/// Empty for kinds without a status tip.
zelWString zelButtonStatusTip(ZelUIPushButtonType type);
