#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

/// Top left corner of a floating label of `size` for the position `pos`: below and right of it, on
/// the other side where the screen ends, and never past the screen's edges but for a label that is
/// larger than the screen. Edges are x + width, not QRect::right().
inline QPoint floatingLabelPlace(const QPoint &pos, const QSize &size, const QRect &screen)
{
    const int screenRight = screen.x() + screen.width();
    const int screenBottom = screen.y() + screen.height();
    QPoint place = pos + QPoint(2, 16);
    if (place.x() + size.width() > screenRight)
        place.rx() -= size.width() + 4;
    if (place.y() + size.height() > screenBottom)
        place.ry() -= size.height() + 24;
    if (place.y() < screen.y())
        place.setY(screen.y());
    if (place.x() + size.width() > screenRight)
        place.setX(screenRight - size.width());
    if (place.x() < screen.x())
        place.setX(screen.x());
    if (place.y() + size.height() > screenBottom)
        place.setY(screenBottom - size.height());
    return place;
}
