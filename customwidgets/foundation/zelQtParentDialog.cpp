#include "zelQtParentDialog.h"

#include "zelQtWidgetHelpers_p.h"

#include <QKeyEvent>

ZelQtParentDialog::ZelQtParentDialog(QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
{
    restoreAllOverrideCursors();
}

ZelQtParentDialog::~ZelQtParentDialog() = default;

void ZelQtParentDialog::updateUnitSystem(bool)
{
}

void ZelQtParentDialog::calculate()
{
}

void ZelQtParentDialog::createProtokoll()
{
}

void ZelQtParentDialog::setAuthorItCodes()
{
}

void ZelQtParentDialog::resizeLayout()
{
}

void ZelQtParentDialog::retranslateStrings()
{
}

void ZelQtParentDialog::keyPressEvent(QKeyEvent *event)
{
    // Without modifiers only, unlike a page.
    if (event->modifiers() == Qt::NoModifier) {
        if (event->key() == Qt::Key_F1)
            Q_EMIT helpChanged(helpFileOfFocusWidget());
        else if (event->key() == Qt::Key_F5)
            calculate();
    }
    QDialog::keyPressEvent(event);
}

void ZelQtParentDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslateStrings();
        resizeLayout();
    }
    QDialog::changeEvent(event);
}

void ZelQtParentDialog::emitValueChanged()
{
    Q_EMIT valueChanged();
}

void ZelQtParentDialog::emitValueConfirmed()
{
    Q_EMIT valueConfirmed();
}

void ZelQtParentDialog::emitInfoChanged(int id)
{
    Q_EMIT infoChanged(id);
}

void ZelQtParentDialog::emitInfoChanged(QString file)
{
    Q_EMIT infoChanged(file);
}

void ZelQtParentDialog::emitHelpChanged(QString file)
{
    Q_EMIT helpChanged(file);
}
