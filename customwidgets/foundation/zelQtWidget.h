#pragma once

#include "customwidgets_export.h"
#include "zelQtAuthorItInterface.h"

#include <QWidget>

/// A plain widget with a help code.
class CUSTOMWIDGETS_EXPORT ZelQtWidget : public QWidget, public ZelQtAuthorItInterface
{
    Q_OBJECT

public:
    explicit ZelQtWidget(QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~ZelQtWidget() override;
};
