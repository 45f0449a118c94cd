#pragma once

#include <QMenu>
#include <QPointer>

/// Runs a popup that is a child of the widget that opened it, and deletes it. False when that
/// widget was deleted meanwhile, with a mask that was built anew for example. The popup then closes
/// and is left by its parent, since it may be handling the very key that a listener answered so.
inline bool execOwnPopup(QMenu *popup, const QPoint &globalPos)
{
    const QPointer<QWidget> owner(popup->parentWidget());
    const QPointer<QMenu> guard(popup);
    QObject::connect(owner, &QObject::destroyed, popup, [popup] {
        popup->hide();
        popup->setParent(nullptr);
    });
    popup->exec(globalPos);
    delete guard.data();
    return !owner.isNull();
}
