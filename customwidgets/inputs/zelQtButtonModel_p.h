#pragma once

#include "zelQtConversions.h"
#include "zelUIPushButton.h"

#include <QAbstractButton>

// What the tool buttons and the push buttons of the model share; they have no base in common that
// could hold it.

/// State of the model base on the Qt side.
template <class Button> void applyButtonState(Button *button)
{
    button->setEnabled(button->mEnabled);
    button->setVisible(button->mVisible);
}

/// Tips of the model base on the Qt side.
template <class Button> void applyButtonTips(Button *button)
{
    button->setToolTip(toQString(button->tooltip()));
    button->setStatusTip(toQString(button->statustip()));
}
