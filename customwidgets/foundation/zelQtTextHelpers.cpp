#include "zelQtTextHelpers.h"

#include "zelQtConversions.h"

#include <QApplication>
#include <QFontMetrics>
#include <QMenu>
#include <QRegExp>

namespace {

// QRegExp, since \w of QRegularExpression knows ASCII only. A tag with attributes matches nowhere,
// and neither does a numeric entity: such texts count as plain.

QRegExp tagExpression()
{
    return QRegExp(QStringLiteral("<{1}/?[\\w]+>{1}"));
}

QRegExp entityExpression()
{
    return QRegExp(QStringLiteral("&{1}[\\w]+;{1}"));
}

// Most texts are plain: spares them the expressions.
bool mayHoldMarkup(const QString &text)
{
    return text.contains(QLatin1Char('<')) || text.contains(QLatin1Char('&'));
}

// Text of the chosen action; null when the menu was left without a choice.
QString execMenu(ZelDimensions::Type type, const QPoint &pos)
{
    QMenu menu;
    for (const std::wstring &unit : ZelDimensions::getStringList(type))
        menu.addAction(QString::fromStdWString(unit));
    const QAction *action = menu.exec(pos);
    return action ? action->text() : QString();
}

} // namespace

QColor colorFromString(const QString &text)
{
    if (!text.contains(QLatin1Char('{')) && !text.contains(QLatin1Char('|')))
        return QColor(Qt::gray);
    QString numbers = text;
    numbers.remove(QLatin1Char('{'));
    numbers.remove(QRegExp(QStringLiteral("\\;RGBA\\}")));
    const QVector<QStringRef> parts = numbers.splitRef(QLatin1Char('|'), Qt::SkipEmptyParts);
    if (parts.size() < 3 || parts.size() > 4)
        return QColor(Qt::gray);
    const int alpha = parts.size() == 4 ? parts[3].toInt() : 255;
    return QColor::fromRgb(parts[0].toInt(), parts[1].toInt(), parts[2].toInt(), alpha);
}

QString colorToString(const QColor &color)
{
    int red = 0;
    int green = 0;
    int blue = 0;
    int alpha = 0;
    color.getRgb(&red, &green, &blue, &alpha);
    return QStringLiteral("{%1|%2|%3|%4;RGBA}").arg(red).arg(green).arg(blue).arg(alpha);
}

QString simpleText(const QString &text)
{
    if (!mayHoldMarkup(text))
        return text;
    QString result = text;
    result.replace(QLatin1String("<sup>"), QLatin1String("^"));
    result.remove(QLatin1String("</sup>"));
    result.remove(QRegExp(QStringLiteral("</?\\w+>")));
    result.remove(QRegExp(QStringLiteral("&\\w+;")));
    return result;
}

QString plainText(const QString &text)
{
    if (!mayHoldMarkup(text))
        return text;
    QString result = text;
    result.remove(tagExpression());
    result.replace(entityExpression(), QStringLiteral("_"));
    return result;
}

int plainTextWidth(const QString &text)
{
    return plainTextWidth(text, QApplication::fontMetrics());
}

int plainTextWidth(const QString &text, const QFontMetrics &metrics)
{
    const int width = metrics.horizontalAdvance(plainText(text));
    if (width <= 0)
        return 0;
    return static_cast<int>(width + 0.5 * metrics.horizontalAdvance(QLatin1Char('w')));
}

bool isPlainText(const QString &text)
{
    return !mayHoldMarkup(text)
        || (!text.contains(tagExpression()) && !text.contains(entityExpression()));
}

ZelDimensions::Unit execUnitMenu(const ZelDimensions::Unit &unit, const QPoint &pos)
{
    const ZelDimensions::Type type = ZelDimensions::getType(unit);
    if (type == ZelDimensions::NoType)
        return ZelDimensions::NoUnit;
    return stringToUnit(execMenu(type, pos));
}

QString execUnitMenu(const QString &unit, const QPoint &pos)
{
    const ZelDimensions::Type type = ZelDimensions::getType(unit.toStdWString());
    return type == ZelDimensions::NoType ? QString() : execMenu(type, pos);
}
