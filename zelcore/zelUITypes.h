#pragma once

#include "zelWString.h"

// Small enumerations and values of the model classes. The numbers are part of the interface.

enum class ZelUIAlignment : int { Left = 0, Right = 1, Center = 2 };

/// LABEL shows nothing, HIDDEN is not there at all.
enum class ZelUIEditButtonType : int { LABEL = 0, CHECKBOX = 1, RADIOBUTTON = 2, HIDDEN = 3 };

enum class ZelUIFlagType : int { None = 0, CheckBox = 1 };

/// 8 is free.
enum class ZelUIPushButtonType : int {
    Push = 0,
    Size = 1,
    Convert = 2,
    Plus = 3,
    Info = 4,
    Offer = 5,
    Database = 6,
    Settings = 7,
    File = 9
};

/// A call of a module function with its argument.
struct ZelUICallFunc
{
    zelWString mFunction;
    zelWString mArgument;
};
