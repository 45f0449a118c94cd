#pragma once

#include "zelUITypes.h"

#include <Qt>

/// Alignment of the model as the grid takes it. Every unknown number counts as right.
inline Qt::Alignment qtAlignment(ZelUIAlignment alignment)
{
    switch (alignment) {
    case ZelUIAlignment::Left:
        return Qt::AlignLeft;
    case ZelUIAlignment::Center:
        return Qt::AlignHCenter;
    default:
        return Qt::AlignRight;
    }
}
