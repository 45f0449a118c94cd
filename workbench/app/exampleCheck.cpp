#include "exampleCheck.h"

#include "meta.h"
#include "zelQtConversions.h"
#include "zelUIMultiVar.h"

#include <QFile>
#include <QTextStream>

#include <cmath>

namespace {

constexpr double accepted = 1e-5;

struct Expected
{
    QString mName;
    QString mUnit;
    QString mValue;
};

bool readLine(const QString &line, Expected &expected)
{
    const QStringList parts = line.split(QLatin1Char('\t'));
    if (line.startsWith(QLatin1Char('#')) || parts.size() < 3)
        return false;
    expected = {parts.at(0), parts.at(1), parts.at(2).trimmed()};
    return true;
}

// One line of the table; false when the value is not the expected one.
bool compareLine(const Meta &meta, const Expected &expected, QString &table)
{
    const auto *variable =
        dynamic_cast<ZelUIMultiVar *>(meta.variable(zelWString(expected.mName.toStdWString())));
    const bool isSet = variable && meta.isSet(*variable, 0);
    const bool wanted = expected.mValue != QStringLiteral("none");
    const QString head = QStringLiteral("  %1 %2 ").arg(expected.mName, -8).arg(expected.mUnit, -7);
    if (!isSet || !wanted) {
        table += head + (isSet ? QStringLiteral("set") : QStringLiteral("none"))
            + QStringLiteral(", expected ") + expected.mValue + QLatin1Char('\n');
        return variable && isSet == wanted;
    }
    const double value = ZelDimensions::changeUnit(meta.real(*variable, 0), variable->mDefaultUnit,
                                                   stringToUnit(expected.mUnit));
    const double target = expected.mValue.toDouble();
    const double deviation =
        target == 0 ? std::abs(value) : std::abs(value - target) / std::abs(target);
    table += head
        + QStringLiteral("%1 expected %2 deviation %3\n")
              .arg(value, 14, 'g', 7)
              .arg(expected.mValue, 10)
              .arg(deviation, 0, 'e', 1);
    return deviation <= accepted;
}

} // namespace

ExampleCheck checkExample(const Meta &meta, const QString &expectedFile)
{
    QFile file(expectedFile);
    ExampleCheck check;
    if (!file.open(QIODevice::ReadOnly)) {
        check.mTable = QStringLiteral("  %1 can't be read\n").arg(expectedFile);
        return check;
    }
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    check.mRight = true;
    int compared = 0;
    while (!stream.atEnd()) {
        Expected expected;
        if (readLine(stream.readLine(), expected)) {
            check.mRight = compareLine(meta, expected, check.mTable) && check.mRight;
            ++compared;
        }
    }
    check.mRight = check.mRight && compared > 0;
    return check;
}
