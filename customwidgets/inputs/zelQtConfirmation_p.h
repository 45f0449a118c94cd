#pragma once

#include "zelQtWidgetHelpers_p.h"

#include <QPointer>

// What every editing widget tells: the host hears each event before the widget's own listeners do,
// and a widget without host tells them all the same. A listener may delete the widget, with a mask
// that is built anew for example; then nobody is told any more.
//
// Widgets in which one action of the user is complete in itself tell a change and its confirmation
// at once, without a pending flag.

template <class Widget> void tellValueChanged(Widget *widget)
{
    const QPointer<Widget> guard(widget);
    notifyHostValueChanged(widget);
    if (guard)
        Q_EMIT widget->valueChanged();
}

template <class Widget> void tellValueConfirmed(Widget *widget)
{
    const QPointer<Widget> guard(widget);
    notifyHostValueConfirmed(widget);
    if (guard)
        Q_EMIT widget->valueConfirmed();
}
