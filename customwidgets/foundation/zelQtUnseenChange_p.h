#pragma once

#include <QPointer>
#include <QWidget>

/// False while a part of the widget lies inside all its ancestors; true in the part of a mask that
/// is scrolled out.
inline bool isScrolledOut(const QWidget *widget)
{
    QRect seen = widget->rect();
    while (!seen.isEmpty() && !widget->isWindow() && widget->parentWidget()) {
        seen.translate(widget->pos());
        widget = widget->parentWidget();
        seen &= widget->rect();
    }
    return seen.isEmpty();
}

/// Runs `change`, and does not mark a widget for painting that is scrolled out: it is painted when
/// it comes into sight anyway. Of those that are marked Qt compares each with all its siblings,
/// which takes seconds after a refresh of thousands of lines.
template <class Change> void changeMaybeUnseen(QWidget *widget, Change change)
{
    if (!widget->isVisible() || !widget->updatesEnabled() || !isScrolledOut(widget)) {
        change();
        return;
    }
    const QPointer<QWidget> guard(widget); // listeners may build the mask anew
    widget->setAttribute(Qt::WA_UpdatesDisabled, true);
    change();
    // The attribute alone: setUpdatesEnabled(true) would mark the widget after all.
    if (guard)
        widget->setAttribute(Qt::WA_UpdatesDisabled, false);
}
