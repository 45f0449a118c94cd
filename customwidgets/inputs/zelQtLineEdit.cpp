#include "zelQtLineEdit.h"

#include "zelQtConfirmation_p.h"

#include <QKeyEvent>

namespace {

// Undo belongs to the application; with further modifiers the keys mean something else.
bool isUndoKey(const QKeyEvent *event)
{
    return event->modifiers() == Qt::ControlModifier
        && (event->key() == Qt::Key_Z || event->key() == Qt::Key_Y);
}

} // namespace

ZelQtLineEdit::ZelQtLineEdit(QWidget *parent)
    : QLineEdit(parent)
{
    init();
}

ZelQtLineEdit::ZelQtLineEdit(const QString &text, QWidget *parent)
    : QLineEdit(text, parent)
{
    init();
}

ZelQtLineEdit::~ZelQtLineEdit() = default;

void ZelQtLineEdit::init()
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    // Before the connections of derived classes: what they do with a text comes after the report.
    connect(this, &QLineEdit::textEdited, this, &ZelQtLineEdit::emitValueChanged);
    connect(this, &QLineEdit::editingFinished, this, &ZelQtLineEdit::emitValueConfirmed);
}

void ZelQtLineEdit::setActive(bool active)
{
    setEnabled(active);
    if (!active)
        setText(QString());
}

void ZelQtLineEdit::setOurStdWidth(bool use)
{
    mOurStdWidth = use;
    setSizePolicy(use ? QSizePolicy::Fixed : QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void ZelQtLineEdit::setOurMaxWidth(bool use)
{
    mOurMaxWidth = use;
}

QSize ZelQtLineEdit::sizeHint() const
{
    QSize size = QLineEdit::sizeHint();
    size.setHeight(standardHeight(this));
    if (mOurMaxWidth)
        size.setWidth(::maximumWidth(this));
    else if (mOurStdWidth)
        size.setWidth(standardWidth(this));
    return size;
}

void ZelQtLineEdit::disableValueChanged()
{
    disconnect(this, &QLineEdit::textEdited, this, &ZelQtLineEdit::emitValueChanged);
    connect(this, &QLineEdit::textEdited, this, &ZelQtLineEdit::needsToBeConfirmed,
            Qt::UniqueConnection);
}

void ZelQtLineEdit::disableValueConfirmed()
{
    disconnect(this, &QLineEdit::editingFinished, this, &ZelQtLineEdit::emitValueConfirmed);
}

void ZelQtLineEdit::ensureValueConfirmed()
{
    emitValueConfirmed();
}

void ZelQtLineEdit::needsToBeConfirmed()
{
    mNeedsConfirm = true;
}

void ZelQtLineEdit::emitValueChanged()
{
    mNeedsConfirm = true;
    tellValueChanged(this);
}

void ZelQtLineEdit::emitValueConfirmed()
{
    if (!mNeedsConfirm)
        return;
    mNeedsConfirm = false;
    tellValueConfirmed(this);
}

bool ZelQtLineEdit::event(QEvent *event)
{
    // QLineEdit claims the keys of its own undo here, and the application's action would never
    // fire.
    if (event->type() == QEvent::ShortcutOverride && isUndoKey(static_cast<QKeyEvent *>(event))) {
        event->ignore();
        return true;
    }
    return QLineEdit::event(event);
}

void ZelQtLineEdit::keyPressEvent(QKeyEvent *event)
{
    if (isUndoKey(event))
        event->ignore();
    else
        QLineEdit::keyPressEvent(event);
}
