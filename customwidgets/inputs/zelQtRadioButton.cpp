#include "zelQtRadioButton.h"

#include "zelQtConfirmation_p.h"
#include "zelQtToggleSize_p.h"

ZelQtRadioButton::ZelQtRadioButton(QWidget *parent)
    : ZelQtRadioButton(QString(), parent)
{
}

ZelQtRadioButton::ZelQtRadioButton(const QString &text, QWidget *parent)
    : QRadioButton(text, parent)
{
    // In this order: the change comes before its confirmation.
    connect(this, &ZelQtRadioButton::clicked, this, &ZelQtRadioButton::emitValueChanged);
    connect(this, &ZelQtRadioButton::clicked, this, &ZelQtRadioButton::emitValueConfirmed);
}

ZelQtRadioButton::~ZelQtRadioButton() = default;

QSize ZelQtRadioButton::sizeHint() const
{
    return withoutTags(QRadioButton::sizeHint(), this);
}

void ZelQtRadioButton::setActive(bool active)
{
    mActive = active;
    setCheckable(active);
}

void ZelQtRadioButton::setEditable(bool editable)
{
    setEnabled(editable);
}

void ZelQtRadioButton::setTarvexStyle(bool tarvex)
{
    mTarvexStyle = tarvex;
}

void ZelQtRadioButton::disableValueChanged()
{
    disconnect(this, &ZelQtRadioButton::clicked, this, &ZelQtRadioButton::emitValueChanged);
}

void ZelQtRadioButton::emitValueChanged()
{
    tellValueChanged(this);
}

void ZelQtRadioButton::emitValueConfirmed()
{
    tellValueConfirmed(this);
}
