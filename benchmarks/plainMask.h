#pragma once

#include <QLineEdit>
#include <QVector>
#include <QWidget>

/// The mask that an engineer would write with plain Qt: label, symbol, number field, unit with its
/// menu and an icon button a line, on one grid. It converts units and keeps limits like the
/// library's.
class PlainMask : public QWidget
{
    Q_OBJECT

public:
    explicit PlainMask(int lines, QWidget *parent = nullptr);

    void setValues(const QVector<double> &values);
    QLineEdit *field(int line) const { return mFields.at(line); }
    void retranslate(bool german);

Q_SIGNALS:
    void valueChanged();
    void valueConfirmed();

private:
    void makeLine(int line);

    QVector<class QLabel *> mLabels;
    QVector<QLineEdit *> mFields;
    QVector<class QToolButton *> mUnits;
    QVector<class QToolButton *> mButtons;
    QVector<double> mValues;
};
