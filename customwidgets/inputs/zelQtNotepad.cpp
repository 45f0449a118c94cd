#include "zelQtNotepad.h"

#include "zelQtConfirmation_p.h"
#include "zelQtConversions.h"

ZelQtNotepad::ZelQtNotepad(QWidget *parent)
    : QTextEdit(parent)
{
    setTabChangesFocus(true);
    connect(this, &QTextEdit::textChanged, this, &ZelQtNotepad::emitValueChanged);
}

ZelQtNotepad::~ZelQtNotepad() = default;

void ZelQtNotepad::setup(ZelUIVarMultilineString *variable, AttrMap &attributes)
{
    ZelUINotepad::setup(variable, attributes);
    applyElementName(this, nullptr);
    // The geometry attributes of a description have no effect here: a notepad fills what it gets.
    setMinimumSize(100, 100);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ZelQtNotepad::updateState(Meta *meta, int64_t id)
{
    ZelUIObject::updateState(meta, id);
    setEnabled(mEnabled);
    setVisible(mVisible);
    setReadOnly(mEnabled && mReadOnly);
}

void ZelQtNotepad::setData(Meta *meta, int64_t id)
{
    ZelUINotepad::setData(meta, id);
    // Only a real change: textChanged reports an edit, and every refresh would be one.
    const QString text = mEnabled ? toQString(mText) : QString();
    if (text != toPlainText())
        setText(text);
    retranslate();
}

void ZelQtNotepad::getData(Meta *meta, int64_t id)
{
    mText = toPlainText().toStdWString();
    ZelUINotepad::getData(meta, id);
}

void ZelQtNotepad::ensureValueConfirmed()
{
    emitValueConfirmed();
}

void ZelQtNotepad::needsToBeConfirmed()
{
    mNeedsConfirm = true;
}

void ZelQtNotepad::emitValueChanged()
{
    mNeedsConfirm = true;
    tellValueChanged(this);
}

void ZelQtNotepad::emitValueConfirmed()
{
    if (!mNeedsConfirm)
        return;
    mNeedsConfirm = false;
    tellValueConfirmed(this);
}

void ZelQtNotepad::focusOutEvent(QFocusEvent *event)
{
    const QPointer<ZelQtNotepad> guard(this); // a listener may delete the field
    emitValueConfirmed();
    if (guard)
        QTextEdit::focusOutEvent(event);
}
