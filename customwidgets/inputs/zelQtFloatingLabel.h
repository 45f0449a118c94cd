#pragma once

#include "customwidgets_export.h"

#include <QLabel>

/// A label in the look of a tool tip that a program places where it wants, for values that follow
/// the mouse. There is one for the process; it hides itself at the next click, wheel turn or change
/// of focus or window, but not at keys.
class CUSTOMWIDGETS_EXPORT zelQtFloatingLabel : public QLabel
{
    Q_OBJECT

public:
    /// Shows `text` beside the global position `pos`, whole on the screen of the window of
    /// `widget`. An empty text hides the label. `widget` may be null: the primary screen counts
    /// then.
    static void showFloatingLabel(const QPoint &pos, const QString &text, QWidget *widget);
    static void hideFloatingLabel();
    static bool isActive();

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    zelQtFloatingLabel();
    ~zelQtFloatingLabel() override;
    static zelQtFloatingLabel *instance();
};
