#include "zelQtDoubleValidator.h"

ZelQtDoubleValidator::ZelQtDoubleValidator(QObject *parent)
    : QDoubleValidator(parent)
{
    setLocale(QLocale::c());
    setNotation(QDoubleValidator::StandardNotation);
}

ZelQtDoubleValidator::~ZelQtDoubleValidator() = default;

QValidator::State ZelQtDoubleValidator::validate(QString &input, int &pos) const
{
    const QLatin1Char point('.');
    input.replace(QLatin1Char(','), point);
    if (input == point) {
        input = QStringLiteral("0.");
        ++pos;
    }
    const int first = input.indexOf(point);
    const int second = first < 0 ? -1 : input.indexOf(point, first + 1);
    if (second >= 0) {
        input.remove(second, 1);
        --pos;
    }
    return QDoubleValidator::validate(input, pos);
}

void ZelQtDoubleValidator::fixup(QString &input) const
{
    QDoubleValidator::fixup(input);
    // An unreadable text counts as 0. The six digits may be too few: then the text stays
    // unacceptable.
    const double number = input.toDouble();
    if (number < bottom())
        input = QString::number(bottom(), 'g', 6);
    else if (number > top())
        input = QString::number(top(), 'g', 6);
}
