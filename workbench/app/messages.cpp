#include "messages.h"

#include "tarvexModule.h"
#include "zelQtConversions.h"
#include "zelQtMessageBox.h"

namespace {

int show(MeldungsVar variant, MeldungsTyp, const zelWString &message)
{
    const QString text = toQString(message);
    if (variant != Meldung::Notice)
        return ZelQtMessageBox::question(text) == QMessageBox::Yes ? 0 : 1;
    ZelQtMessageBox::information(text);
    return 0;
}

} // namespace

void showModelMessages()
{
    Meldung::setHandler(show);
}
