#pragma once

#include "customwidgets_export.h"

#include <QItemDelegate>

/// Root of the delegates of the library: paints the cells of tables, trees and lists. With
/// rendering on a text may hold tags and stands at the left, whatever the alignment of the cell.
class CUSTOMWIDGETS_EXPORT ZelQtItemDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    explicit ZelQtItemDelegate(QObject *parent = nullptr);
    ~ZelQtItemDelegate() override;

    /// Rich rendering from now on; there is no way back.
    void initRendering();
    /// Least width of the size hint in pixels; below 1 for none.
    void setMinWidth(int width);
    /// What a cell shows for the model's text.
    virtual QString renderDisplay(const QString &text) const;

    // QItemDelegate
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected Q_SLOTS:
    /// For a signal of an editor: commits it.
    void emitCommitData();
    /// The same for a signal of an editor or of a part of it that is no widget; closes it too.
    void emitCommitDataAndCloseEditor();

protected:
    // QItemDelegate
    void drawDisplay(QPainter *painter, const QStyleOptionViewItem &option, const QRect &rect,
                     const QString &text) const override;

private:
    int mMinWidth = 0;
    bool mRendering = false;
};
