#pragma once

#include <QtTest>

#include <QWidget>

/// Shows the window of a widget and waits until it is active, so that focus and keys work.
[[nodiscard]] inline bool showAndActivate(QWidget *widget)
{
    QWidget *window = widget->window();
    window->show();
    window->activateWindow();
    return QTest::qWaitForWindowActive(window);
}

/// Gives a widget in an active window the focus, or takes it away with a neighbour.
[[nodiscard]] inline bool focus(QWidget *widget)
{
    widget->setFocus(Qt::OtherFocusReason);
    return QTest::qWaitFor([widget] { return widget->hasFocus(); });
}
