#pragma once

#include <QVector>

class QObject;
class ZelQtValueEdit;

// The gray mark over the fields of a line.

/// Index of the first field with low priority, -1 when there is none.
int lowPriorityField(const QVector<ZelQtValueEdit *> &fields);
/// The field at `index` alone has low priority; none for an index outside.
void setLowPriorityField(const QVector<ZelQtValueEdit *> &fields, int index);
/// All fields but this one have low priority.
void setLowPriorityExcept(const QVector<ZelQtValueEdit *> &fields, const QObject *field);
