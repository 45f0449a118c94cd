#include "faultBox.h"

#include "zelQtMessageBox.h"

namespace {

// More lines than a notebook screen holds help nobody.
constexpr size_t linesShown = 12;

} // namespace

void showFaults(const ZelFaultList &faults, QWidget *parent)
{
    if (faults.empty())
        return;
    const QString report = QString::fromStdString(zelFaultReport(faults, linesShown)).trimmed();
    // Faults quote tags, which the box would take for markup. It guesses what a text is, so this
    // one says it.
    ZelQtMessageBox::error(QStringLiteral("<qt>%1</qt>").arg(report.toHtmlEscaped()), parent);
}
