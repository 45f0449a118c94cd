#include "zelQtHostServices_p.h"

#include "zelQtCalcVarInput.h"

void retranslateLines(QWidget *host)
{
    const auto lines = host->findChildren<ZelQtCalcVarInput *>();
    for (ZelQtCalcVarInput *line : lines)
        line->retranslateStrings();
}

void updateLineUnits(QWidget *host, bool keepDefault)
{
    ZelQtCalcVarInput::checkUnits(host, keepDefault);
}

void resizeUnsizedWindow(QWidget *window)
{
    if (!window->isWindow() || window->testAttribute(Qt::WA_Resized))
        return;
    window->adjustSize();
    // The size is still nobody's choice.
    window->setAttribute(Qt::WA_Resized, false);
}
