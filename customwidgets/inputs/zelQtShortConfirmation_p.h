#pragma once

#include "zelQtWidgetHelpers_p.h"

#include <QtGlobal>

// The short form of the confirmation protocol, for widgets in which one action of the user is
// complete in itself: no pending flag, a change and its confirmation at once. The host hears each
// before the widget's own listeners do, and a widget without host tells them all the same.

template <class Widget> void tellValueChanged(Widget *widget)
{
    notifyHostValueChanged(widget);
    Q_EMIT widget->valueChanged();
}

template <class Widget> void tellValueConfirmed(Widget *widget)
{
    notifyHostValueConfirmed(widget);
    Q_EMIT widget->valueConfirmed();
}
