#include "zelQtIntValidator.h"

#include "zelQtDigits_p.h"

ZelQtIntValidator::ZelQtIntValidator(QObject *parent)
    : QIntValidator(parent)
{
    setLocale(digitsOnly());
}

ZelQtIntValidator::~ZelQtIntValidator() = default;

void ZelQtIntValidator::fixup(QString &input) const
{
    QIntValidator::fixup(input);
    // Not toInt, which fails beyond the range of int. An unreadable text counts as 0.
    const double number = input.toDouble();
    if (number < bottom())
        input = QString::number(bottom());
    else if (number > top())
        input = QString::number(top());
}
