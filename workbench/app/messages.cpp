#include "messages.h"

#include "tarvexModule.h"
#include "zelQtConversions.h"
#include "zelQtMessageBox.h"

namespace {

int answer(int button)
{
    switch (button) {
    case QMessageBox::No:
        return 1;
    case QMessageBox::Cancel:
        return 2;
    default:
        return 0;
    }
}

int show(MeldungsVar variant, MeldungsTyp type, const zelWString &message)
{
    const QString text = toQString(message);
    if (variant == MeldungsVar::YesNo)
        return answer(ZelQtMessageBox::question(text));
    if (variant == MeldungsVar::YesNoCancel)
        return answer(ZelQtMessageBox::questionWithCancel(text));
    switch (type) {
    case MeldungsTyp::Warning:
        return answer(ZelQtMessageBox::warning(text));
    case MeldungsTyp::Error:
        return answer(ZelQtMessageBox::error(text));
    default:
        return answer(ZelQtMessageBox::information(text));
    }
}

} // namespace

void showModelMessages()
{
    Meldung::setHandler(show);
}
