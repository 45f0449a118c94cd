#pragma once

#include "customwidgets_export.h"
#include "zelUIBoard.h"

#include <QHBoxLayout>

/// The columns of a board side by side. A board without a frame has neither head nor foot; they are
/// the group box's matter.
class CUSTOMWIDGETS_EXPORT ZelQtBoardLayout : public QHBoxLayout, public ZelUIBoard
{
    Q_OBJECT

public:
    using ZelUIBoard::makeLayout; // the form that takes the flag from the node

    explicit ZelQtBoardLayout(QWidget *parent = nullptr);
    ~ZelQtBoardLayout() override;

    // ZelUIBoard
    /// With `addRightSpacer` the columns keep their natural width and stand left.
    void makeLayout(bool addRightSpacer) override;
};
