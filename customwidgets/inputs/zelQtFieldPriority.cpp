#include "zelQtFieldPriority_p.h"

#include "zelQtValueEdit.h"

int lowPriorityField(const QVector<ZelQtValueEdit *> &fields)
{
    for (int i = 0; i < fields.size(); ++i) {
        if (fields.at(i)->hasLowPriority())
            return i;
    }
    return -1;
}

void setLowPriorityField(const QVector<ZelQtValueEdit *> &fields, int index)
{
    for (int i = 0; i < fields.size(); ++i)
        fields.at(i)->setLowPriority(i == index);
}

void setLowPriorityExcept(const QVector<ZelQtValueEdit *> &fields, const QObject *field)
{
    for (ZelQtValueEdit *candidate : fields)
        candidate->setLowPriority(candidate != field);
}
