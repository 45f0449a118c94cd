#include "zelQtWidget.h"

ZelQtWidget::ZelQtWidget(QWidget *parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
{
}

ZelQtWidget::~ZelQtWidget() = default;
