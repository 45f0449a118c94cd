#pragma once

#include <QString>

class QWidget;
class ZelDomNode;

// Helpers that every widget of the library shares; not part of its interface.

/// Height of every one-line widget, in pixels.
int standardHeight(const QWidget *widget);
/// Standard width of a one-line field, in pixels.
int standardWidth(const QWidget *widget);
/// Width of a field that was given our maximum width: 50 average characters.
int maximumWidth(const QWidget *widget);

// The nearest host above the widget raises its signal; the widget itself is never a candidate.
// False when there is none.
bool notifyHostValueChanged(QWidget *widget);
bool notifyHostValueConfirmed(QWidget *widget);
/// Information requests pass over tab pages, so that they reach the page's owner.
bool notifyHostInfoChanged(QWidget *widget, const QString &file);
bool notifyHostInfoChanged(QWidget *widget, int id);

/// Names a widget after its model element, and gives it the element's help code. `node` may be
/// null.
void applyElementName(QWidget *widget, const ZelDomNode *node);

/// Help file for the focus: the first code of 1 or more from the focus widget upward; empty without
/// one.
QString helpFileOfFocusWidget();

/// Removes all override cursors, so that no busy cursor lies over a dialog.
void restoreAllOverrideCursors();
