#pragma once

#include <QMenu>
#include <QPointer>

/// Runs a popup that is a child of the widget that opened it, and deletes it. False when that
/// widget was deleted meanwhile, with a mask that was built anew for example: the popup has gone
/// with it, which is why it lies on the heap.
inline bool execOwnPopup(QMenu *popup, const QPoint &globalPos)
{
    const QPointer<QWidget> owner(popup->parentWidget());
    const QPointer<QMenu> guard(popup);
    popup->exec(globalPos);
    delete guard.data();
    return !owner.isNull();
}
