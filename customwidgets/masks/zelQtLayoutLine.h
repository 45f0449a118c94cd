#pragma once

#include "customwidgets_export.h"

#include <QFrame>

/// Upright line between two groups of buttons below a table.
class CUSTOMWIDGETS_EXPORT ZelQtLayoutLine : public QFrame
{
    Q_OBJECT

public:
    explicit ZelQtLayoutLine(QWidget *parent = nullptr);
    ~ZelQtLayoutLine() override;
};
