#include "zelQtParentDialog.h"

#include "zelQtCalcVarInput.h"
#include "zelQtDialogButtonBox.h"
#include "zelQtHostServices_p.h"
#include "zelQtLineEdit.h"
#include "zelQtNotepad.h"
#include "zelQtWidgetHelpers_p.h"

#include <QApplication>
#include <QKeyEvent>

namespace {

void reportIfPermitted(ZelQtParentDialog *dialog)
{
    const auto *box = dialog->findChild<ZelQtDialogButtonBox *>();
    if (box && box->isReportPermitted())
        dialog->createProtokoll();
}

} // namespace

ZelQtParentDialog::ZelQtParentDialog(QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
{
    restoreAllOverrideCursors();
}

ZelQtParentDialog::~ZelQtParentDialog() = default;

void ZelQtParentDialog::updateUnitSystem(bool keepDefault)
{
    updateLineUnits(this, keepDefault);
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
    ZelQtCalcVarInput::checkSize(this);
}

void ZelQtParentDialog::retranslateStrings()
{
    retranslateLines(this);
}

void ZelQtParentDialog::keyPressEvent(QKeyEvent *event)
{
    // Without modifiers only, unlike a page.
    if (event->modifiers() == Qt::NoModifier) {
        if (event->key() == Qt::Key_F1)
            Q_EMIT helpChanged(helpFileOfFocusWidget());
        else if (event->key() == Qt::Key_F5)
            calculate();
        else if (event->key() == Qt::Key_F6)
            reportIfPermitted(this);
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

void ZelQtParentDialog::alignLines()
{
    const ZelQtLayoutGuard guard(mAligning);
    if (guard.isFirst())
        resizeLayout();
}

void ZelQtParentDialog::showEvent(QShowEvent *event)
{
    alignLines();
    if (!event->spontaneous())
        resizeUnsizedWindow(this);
    QDialog::showEvent(event);
}

void ZelQtParentDialog::resizeEvent(QResizeEvent *event)
{
    alignLines();
    QDialog::resizeEvent(event);
}

void ZelQtParentDialog::mousePressEvent(QMouseEvent *event)
{
    if (auto *field = qobject_cast<ZelQtLineEdit *>(focusWidget()))
        field->ensureValueConfirmed();
    else if (auto *notepad = qobject_cast<ZelQtNotepad *>(QApplication::focusWidget()))
        notepad->ensureValueConfirmed();
    QWidget::mousePressEvent(event);
}

void ZelQtParentDialog::setupDialogButtonBox()
{
    if (const auto *box = findChild<ZelQtDialogButtonBox *>())
        box->setupConnections(this);
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
