#pragma once

#include "customwidgets_export.h"
#include "zelUITopLayout.h"

#include <QGridLayout>

/// The rows of a page: boards, groups, tab containers and forms, each at the place it asks for.
/// Rows with something that grows get the stretch, and what is left goes below the last row.
class CUSTOMWIDGETS_EXPORT ZelQtTopLayout : public QGridLayout, public ZelUITopLayout
{
    Q_OBJECT

public:
    explicit ZelQtTopLayout(QWidget *parent = nullptr);
    ~ZelQtTopLayout() override;

    /// The row takes the height that is left.
    void setRowStretchView(int row);

    // ZelUITopLayout
    /// A hidden tab container, and a board that is hidden or without views, loses its stretch.
    void setData(Meta *meta, int64_t id) override;
    void addLayoutItem(ZelUILayoutItem *item) override;
    void finishLayout() override;
};
