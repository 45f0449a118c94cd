#pragma once

#include "fieldOnPage.h"
#include "zelQtComboBox.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QStatusTipEvent>
#include <QWheelEvent>

/// A box on a page whose signals are written down.
using Fixture = FieldOnPage<ZelQtComboBox>;

/// While it lives, a release counts though it follows soon after the press that opened the list:
/// otherwise Qt takes it for the end of that press.
class QuickRelease
{
public:
    QuickRelease()
        : mInterval(QApplication::doubleClickInterval())
    {
        QApplication::setDoubleClickInterval(0);
    }
    ~QuickRelease() { QApplication::setDoubleClickInterval(mInterval); }
    QuickRelease(const QuickRelease &) = delete;
    QuickRelease &operator=(const QuickRelease &) = delete;

private:
    int mInterval;
};

inline const QStringList wholeEdit = changedEvents + confirmedEvents;

// All events of one kind that reach a widget.
class EventWatch : public QObject
{
public:
    EventWatch(QObject *watched, QEvent::Type type)
        : mType(type)
    {
        watched->installEventFilter(this);
    }
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != mType)
            return false;
        if (mType == QEvent::StatusTip)
            mSeen.append(static_cast<QStatusTipEvent *>(event)->tip());
        else
            mSeen.append(QString::number(static_cast<QKeyEvent *>(event)->key()));
        return false;
    }
    QStringList mSeen;

private:
    QEvent::Type mType;
};

inline void addThree(ZelQtComboBox &box)
{
    box.addItem("one", 1);
    box.addItem("two", 2);
    box.addItem("three", 3);
}

inline void clickInList(ZelQtComboBox &box, int row)
{
    const QModelIndex index = box.model()->index(row, 0);
    QWidget *viewport = box.view()->viewport();
    const QPoint at = box.view()->visualRect(index).center();
    QTest::mouseMove(viewport, at);
    QTest::mouseClick(viewport, Qt::LeftButton, Qt::NoModifier, at);
}

inline bool turnWheelDown(QWidget &widget)
{
    const QPointF at(widget.rect().center());
    QWheelEvent event(at, widget.mapToGlobal(at.toPoint()), {}, QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    event.setAccepted(true);
    static_cast<QObject &>(widget).event(&event); // at it alone, not at its parents
    return event.isAccepted();
}
