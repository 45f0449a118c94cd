#include "zelQtParentWidget.h"

#include "zelQtCalcVarInput.h"
#include "zelQtHostServices_p.h"
#include "zelQtWidgetHelpers_p.h"

#include <QKeyEvent>

ZelQtParentWidget::ZelQtParentWidget(QWidget *parent)
    : QWidget(parent)
{
}

ZelQtParentWidget::ZelQtParentWidget(int authorItCode, QWidget *parent)
    : QWidget(parent)
    , ZelQtAuthorItInterface(authorItCode)
{
}

ZelQtParentWidget::~ZelQtParentWidget() = default;

void ZelQtParentWidget::updateUnitSystem(bool keepDefault)
{
    updateLineUnits(this, keepDefault);
}

void ZelQtParentWidget::setAuthorItCodes()
{
}

void ZelQtParentWidget::resizeLayout()
{
    ZelQtCalcVarInput::checkSize(this);
}

void ZelQtParentWidget::retranslateStrings()
{
    retranslateLines(this);
}

void ZelQtParentWidget::keyPressEvent(QKeyEvent *event)
{
    // With any modifiers, unlike a dialog: Shift+F1 gives help on a page.
    if (event->key() == Qt::Key_F1)
        Q_EMIT helpChanged(helpFileOfFocusWidget());
    QWidget::keyPressEvent(event);
}

void ZelQtParentWidget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslateStrings();
        resizeLayout();
    }
    QWidget::changeEvent(event);
}

void ZelQtParentWidget::alignLines()
{
    const ZelQtLayoutGuard guard(mAligning);
    if (guard.isFirst())
        resizeLayout();
}

void ZelQtParentWidget::showEvent(QShowEvent *event)
{
    alignLines();
    if (!event->spontaneous())
        resizeUnsizedWindow(this);
    QWidget::showEvent(event);
}

void ZelQtParentWidget::resizeEvent(QResizeEvent *event)
{
    alignLines();
    QWidget::resizeEvent(event);
}

void ZelQtParentWidget::emitValueChanged()
{
    Q_EMIT valueChanged();
}

void ZelQtParentWidget::emitValueConfirmed()
{
    Q_EMIT valueConfirmed();
}

void ZelQtParentWidget::emitInfoChanged(int id)
{
    Q_EMIT infoChanged(id);
}

void ZelQtParentWidget::emitInfoChanged(QString file)
{
    Q_EMIT infoChanged(file);
}

void ZelQtParentWidget::emitHelpChanged(QString file)
{
    Q_EMIT helpChanged(file);
}
