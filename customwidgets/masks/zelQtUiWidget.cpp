#include "zelQtUiWidget.h"

ZelQtUiWidget::ZelQtUiWidget(QWidget *parent)
    : ZelQtParentWidget(parent)
{
}

ZelQtUiWidget::ZelQtUiWidget(int authorItCode, QWidget *parent)
    : ZelQtParentWidget(authorItCode, parent)
{
}

ZelQtUiWidget::~ZelQtUiWidget() = default;

void ZelQtUiWidget::retranslate()
{
    retranslateStrings();
}

// Past the host's handling: the form waits for retranslate() of its mask, and that is meant.
void ZelQtUiWidget::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
}
