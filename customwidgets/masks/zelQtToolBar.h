#pragma once

#include "customwidgets_export.h"

#include <QToolBar>

/// One group of elements in an element box: a tool bar that stays where it is.
class CUSTOMWIDGETS_EXPORT ZelQtToolBar : public QToolBar
{
    Q_OBJECT

public:
    explicit ZelQtToolBar(QWidget *parent = nullptr);
    ~ZelQtToolBar() override;
};
