#include "zelQtCheckBox.h"

#include "zelQtConfirmation_p.h"
#include "zelQtToggleSize_p.h"

ZelQtCheckBox::ZelQtCheckBox(QWidget *parent)
    : ZelQtCheckBox(QString(), parent)
{
}

ZelQtCheckBox::ZelQtCheckBox(const QString &text, QWidget *parent)
    : QCheckBox(text, parent)
{
    // In this order: the change comes before its confirmation.
    connect(this, &ZelQtCheckBox::clicked, this, &ZelQtCheckBox::emitValueChanged);
    connect(this, &ZelQtCheckBox::clicked, this, &ZelQtCheckBox::emitValueConfirmed);
}

ZelQtCheckBox::~ZelQtCheckBox() = default;

QSize ZelQtCheckBox::sizeHint() const
{
    return withoutTags(QCheckBox::sizeHint(), this);
}

void ZelQtCheckBox::setActive(bool active)
{
    mActive = active;
    setCheckable(active);
}

void ZelQtCheckBox::setEditable(bool editable)
{
    setEnabled(editable);
}

void ZelQtCheckBox::setTarvexStyle(bool tarvex)
{
    mTarvexStyle = tarvex;
}

void ZelQtCheckBox::disableValueChanged()
{
    disconnect(this, &ZelQtCheckBox::clicked, this, &ZelQtCheckBox::emitValueChanged);
}

void ZelQtCheckBox::reactOnGroupClick(bool clicked)
{
    if (clicked)
        setChecked(false);
}

void ZelQtCheckBox::emitValueChanged()
{
    tellValueChanged(this);
}

void ZelQtCheckBox::emitValueConfirmed()
{
    tellValueConfirmed(this);
}
