#include "zelQtStackedWidget.h"

ZelQtStackedWidget::ZelQtStackedWidget(QWidget *parent)
    : QStackedWidget(parent)
{
}

ZelQtStackedWidget::ZelQtStackedWidget(bool sizeHintFlag, QWidget *parent)
    : QStackedWidget(parent)
    , mSizeHintFlag(sizeHintFlag)
{
}

ZelQtStackedWidget::~ZelQtStackedWidget() = default;

QSize ZelQtStackedWidget::sizeHint() const
{
    return mSizeHintFlag ? currentWidget()->sizeHint() : QFrame::sizeHint();
}

QSize ZelQtStackedWidget::minimumSizeHint() const
{
    return mSizeHintFlag ? currentWidget()->minimumSizeHint() : QWidget::minimumSizeHint();
}
