#include "zelQtIntValidator.h"

ZelQtIntValidator::ZelQtIntValidator(QObject *parent)
    : QIntValidator(parent)
{
    // The entered text is read without a locale: "1.000" would count as 1 and "1,000" as 0.
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::OmitGroupSeparator | QLocale::RejectGroupSeparator);
    setLocale(locale);
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
