#pragma once

#include "zelCheck.h"

#include <QRegularExpression>
#include <QStringList>
#include <QVector>

#include <sstream>

/// A call of zelcheck in a console block of a page, and what the page says it prints.
struct ZelcheckCall
{
    QStringList mArguments;
    QString mExpected;
};

/// The calls in a block; commands of other programs are passed over, with what they print.
inline QVector<ZelcheckCall> zelcheckCalls(const QString &block)
{
    const QString prompt = QStringLiteral("$ build/dev/bin/zelcheck");
    QVector<ZelcheckCall> calls;
    bool inside = false;
    for (const QString &line : block.split('\n', Qt::SkipEmptyParts)) {
        if (line.startsWith("$ ")) {
            inside = line.startsWith(prompt);
            if (inside)
                calls.append({line.mid(prompt.size()).split(' ', Qt::SkipEmptyParts), QString()});
        } else if (inside) {
            calls.last().mExpected += line + '\n';
        }
    }
    return calls;
}

/// What the call prints, both streams in one.
inline QString zelcheckPrints(const QStringList &arguments, const ZelModuleRegistry &registry)
{
    std::vector<std::string> plain;
    for (const QString &argument : arguments)
        plain.push_back(argument.toStdString());
    std::ostringstream both;
    zelCheckMain(plain, both, both, registry);
    return QString::fromStdString(both.str());
}

/// True when they are equal; a line "..." of the page stands for any number of lines.
inline bool printsAsExpected(const QString &expected, const QString &printed)
{
    QString pattern;
    for (const QString &line : expected.split('\n', Qt::SkipEmptyParts))
        pattern += line == QLatin1String("...") ? QStringLiteral("(.*\n)*")
                                                : QRegularExpression::escape(line + '\n');
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern))
        .match(printed)
        .hasMatch();
}
