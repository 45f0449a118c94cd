#include "zelQtFormulaLabel.h"

#include "zelQtConversions.h"
#include "zelQtFormelanzeige.h"
#include "zelQtLabelState_p.h"
#include "zelQtOwnPopup_p.h"
#include "zelQtSameText_p.h"
#include "zelQtWidgetHelpers_p.h"

#include <QContextMenuEvent>

ZelQtFormulaLabel::ZelQtFormulaLabel(QWidget *parent)
    : ZelQtLabel(parent)
{
}

ZelQtFormulaLabel::ZelQtFormulaLabel(const QString &text, QWidget *parent)
    : ZelQtLabel(text, parent)
{
}

ZelQtFormulaLabel::~ZelQtFormulaLabel() = default;

int ZelQtFormulaLabel::formulaWidth() const
{
    return plainTextWidth(toQString(getFormula()));
}

QSize ZelQtFormulaLabel::sizeHint() const
{
    QSize hint = naturalSize();
    hint.setHeight(standardHeight(this));
    return hint;
}

void ZelQtFormulaLabel::setup(ZelUIMultiVar *variable, AttrMap &attributes)
{
    ZelUIFormulaLabel::setup(variable, attributes);
    applyElementName(this, nullptr);
    setText(toQString(getFormula()));
}

void ZelQtFormulaLabel::updateState(Meta *meta, int64_t id)
{
    updateLabelState(this, meta, id);
}

void ZelQtFormulaLabel::setData(Meta *meta, int64_t id)
{
    ZelUIFormulaLabel::setData(meta, id);
    if (!isSameText(text(), getFormula().view()))
        setText(toQString(getFormula()));
}

void ZelQtFormulaLabel::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() == QContextMenuEvent::Mouse
        && !execOwnPopup(new ZelQtFormelanzeige(this), event->globalPos())) {
        event->accept(); // else Qt asks the label, which is gone, for its parent
        return;
    }
    // The parent receives the event as well.
    QWidget::contextMenuEvent(event);
}
