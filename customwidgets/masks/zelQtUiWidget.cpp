#include "zelQtUiWidget.h"

#include "zelQtWidgetHelpers_p.h"

ZelQtUiWidget::ZelQtUiWidget(QWidget *parent)
    : ZelQtParentWidget(parent)
{
}

ZelQtUiWidget::ZelQtUiWidget(int authorItCode, QWidget *parent)
    : ZelQtParentWidget(authorItCode, parent)
{
}

ZelQtUiWidget::~ZelQtUiWidget() = default;

void ZelQtUiWidget::setup(const ZelDomNode *node)
{
    ZelUIExternalItem::setup(node);
    const int ownCode = authorItCode();
    applyElementName(this, node);
    if (authorItCode() < 1)
        setAuthorItCode(ownCode);
}

void ZelQtUiWidget::updateState(Meta *meta, int64_t id)
{
    ZelUIExternalItem::updateState(meta, id);
    setEnabled(mEnabled);
    setVisible(mVisible);
}

void ZelQtUiWidget::retranslate()
{
    retranslateStrings();
}

// Past the host's handling: the form waits for retranslate() of its mask, and that is meant.
void ZelQtUiWidget::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
}
