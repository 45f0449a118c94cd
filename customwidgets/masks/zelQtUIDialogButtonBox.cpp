#include "zelQtUIDialogButtonBox.h"

#include "zelUIPushButton.h"

#include <QAbstractButton>

namespace {

QDialogButtonBox::ButtonRole qtRole(ZelUIDialogButtonBox::ButtonRole role)
{
    switch (role) {
    case ZelUIDialogButtonBox::Accept:
        return QDialogButtonBox::AcceptRole;
    case ZelUIDialogButtonBox::Reject:
    case ZelUIDialogButtonBox::Close:
        return QDialogButtonBox::RejectRole;
    default:
        return QDialogButtonBox::ActionRole;
    }
}

} // namespace

ZelQtUIDialogButtonBox::ZelQtUIDialogButtonBox(QWidget *parent)
    : QDialogButtonBox(parent)
{
}

ZelQtUIDialogButtonBox::~ZelQtUIDialogButtonBox() = default;

int ZelQtUIDialogButtonBox::addPushButton(ZelUIPushButton *button,
                                          ZelUIDialogButtonBox::ButtonRole role)
{
    const int index = ZelUIDialogButtonBox::addPushButton(button, role);
    if (auto *widget = dynamic_cast<QAbstractButton *>(button))
        addButton(widget, qtRole(role));
    return index;
}

void ZelQtUIDialogButtonBox::setCalcStateFailed()
{
    updateCalcState(false);
}
