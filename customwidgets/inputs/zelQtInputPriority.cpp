#include "zelQtInputPriority_p.h"

#include "zelQtTripleCalcVarInput.h"
#include "zelQtValueEdit.h"

void takeHighPriority(ZelQtValueEdit *field)
{
    QObject *parent = field->QObject::parent();
    // A triple line is a double line too, and the operations aren't virtual: ask for the triple
    // first, or its third field would never get priority.
    if (auto *triple = qobject_cast<ZelQtTripleCalcVarInput *>(parent)) {
        if (triple->highPriorityIndex() != -1)
            triple->setHighPriorityWidget(field);
    } else if (auto *line = qobject_cast<ZelQtDoubleCalcVarInput *>(parent)) {
        if (line->highPriorityIndex() != -1)
            line->setHighPriorityWidget(field);
    }
}
