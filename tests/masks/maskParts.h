#pragma once

#include <QBoxLayout>
#include <QGridLayout>
#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <vector>

/// A part of a line: any widget with any model class, made without parent as a factory makes it.
template <class Widget, class Model> class Part : public Widget, public Model
{
};

/// Makes named widgets and deletes those that nobody deleted before.
class PartOwner
{
public:
    PartOwner() = default;
    PartOwner(const PartOwner &) = delete;
    PartOwner &operator=(const PartOwner &) = delete;
    ~PartOwner()
    {
        // Parents go with their children, hence the guards.
        for (const QPointer<QWidget> &widget : mWidgets)
            delete widget.data();
    }

    template <class Widget> Widget *make(const QString &name)
    {
        auto *widget = new Widget;
        widget->setObjectName(name);
        mWidgets.emplace_back(widget);
        return widget;
    }

private:
    std::vector<QPointer<QWidget>> mWidgets;
};

QString describeItem(QLayoutItem *item);

/// What lies in a box: "[a b]" side by side, "[a/b]" below each other, "*" for a spacer.
inline QString describeBox(const QBoxLayout *box)
{
    QStringList items;
    for (int i = 0; i < box->count(); ++i)
        items.append(describeItem(box->itemAt(i)));
    const bool below = box->direction() == QBoxLayout::TopToBottom;
    return '[' + items.join(below ? '/' : ' ') + ']';
}

inline QString describeItem(QLayoutItem *item)
{
    if (const QWidget *widget = item->widget())
        return widget->objectName().isEmpty() ? widget->metaObject()->className()
                                              : widget->objectName();
    if (auto *box = qobject_cast<QBoxLayout *>(item->layout()))
        return describeBox(box);
    if (item->layout())
        return item->layout()->objectName();
    return QStringLiteral("*");
}

inline QString describeAlignment(Qt::Alignment alignment)
{
    QString text;
    if (alignment & Qt::AlignLeft)
        text += QStringLiteral(" left");
    if (alignment & Qt::AlignRight)
        text += QStringLiteral(" right");
    if (alignment & Qt::AlignHCenter)
        text += QStringLiteral(" centre");
    if (alignment & Qt::AlignVertical_Mask)
        text += QStringLiteral(" vertical");
    return text;
}

/// The items of a grid in the order of adding: "row,column 1xspan name alignment", without span for
/// a single cell.
inline QStringList describeGrid(const QGridLayout *grid)
{
    QStringList items;
    for (int i = 0; i < grid->count(); ++i) {
        int row = 0;
        int column = 0;
        int rowSpan = 0;
        int columnSpan = 0;
        grid->getItemPosition(i, &row, &column, &rowSpan, &columnSpan);
        QString text = QStringLiteral("%1,%2").arg(row).arg(column);
        if (rowSpan != 1 || columnSpan != 1)
            text += QStringLiteral(" %1x%2").arg(rowSpan).arg(columnSpan);
        text += ' ' + describeItem(grid->itemAt(i));
        items.append(text + describeAlignment(grid->itemAt(i)->alignment()));
    }
    return items;
}
