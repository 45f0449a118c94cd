#pragma once

#include "springModule.h"
#include "zelModuleRegistry.h"
#include "zelTextForm.h"
#include "zelUIVar.h"

#include <QFile>
#include <QString>
#include <QStringList>
#include <QVector>

#include <cmath>
#include <optional>

/// The spring as an application loads it, and the values that its worked examples must yield.
namespace SpringTest {
/// The expected values of an example lie beside its values; those of the other correction, which no
/// example file asks for, beside the tests.
inline QString expectedFile(const QString &example)
{
    const bool shipped = !example.contains('.');
    return QStringLiteral("%1/%2.expected")
        .arg(shipped ? SPRING_DIR "/examples" : TEST_DATA_DIR, example);
}

/// A line of S1.expected: variable, unit and six digits, or no value.
struct Expected
{
    QString mName;
    QString mUnit;
    std::optional<double> mValue;
};

inline QByteArray fileContent(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s is missing", qPrintable(path));
    return file.readAll();
}

/// `example` is "S1", or "S1.wahl" for the other correction of the stress.
inline QVector<Expected> expectedResults(const QString &example)
{
    QVector<Expected> rows;
    const QByteArray bytes = fileContent(expectedFile(example));
    const QStringList lines = QString::fromUtf8(bytes).split('\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        const QStringList cells = line.split('\t');
        if (line.startsWith('#') || cells.size() != 3)
            continue;
        bool isNumber = false;
        const double number = cells[2].toDouble(&isNumber);
        if (!isNumber && cells[2] != "none")
            qFatal("no value: %s", qPrintable(line));
        rows.append({cells[0], cells[1], isNumber ? std::optional(number) : std::nullopt});
    }
    return rows;
}

inline std::unique_ptr<ZelLoadedModule> load(ZelFaultList &faults)
{
    ZelModuleRegistry registry;
    registerSpringModule(registry);
    return zelLoadModule(SPRING_DIR "/spring.xml", registry, faults);
}

/// A spring that was loaded without a fault.
inline std::unique_ptr<ZelLoadedModule> load()
{
    ZelFaultList faults;
    auto loaded = load(faults);
    if (!faults.empty())
        qFatal("%s", zelFaultReport(faults).c_str());
    return loaded;
}

inline ZelUIVar &variable(const Meta &meta, const QString &name)
{
    ZelUIVar *found = meta.variable(name.toStdWString());
    if (!found)
        qFatal("no variable %s", qPrintable(name));
    return *found;
}

inline double value(const Meta &meta, const QString &name, int64_t id = 0)
{
    return meta.real(variable(meta, name), id);
}

inline bool isSet(const Meta &meta, const QString &name, int64_t id = 0)
{
    return meta.isSet(variable(meta, name), id);
}

/// Reads the inputs of "S1" or "S2".
inline void readExample(Meta &meta, const QString &example)
{
    const QString path = QStringLiteral(SPRING_DIR "/examples/%1.values").arg(example);
    ZelFaultList faults;
    const int count =
        zelReadValues(meta, fileContent(path).toStdString(), path.toStdString(), faults);
    if (count == 0 || !faults.empty())
        qFatal("%s", zelFaultReport(faults).c_str());
}

inline QString toText(const zelWString &text)
{
    return QString::fromUtf8(text.toUtf8().c_str());
}

/// Codes of the messages: "mayBuckle".
inline QStringList codes(const ZelCalcResult &result)
{
    QStringList list;
    for (const ZelCalcMessage &message : result.mMessages)
        list << QString::fromStdString(message.mCode);
    return list;
}

inline bool close(double value, double expected, double relative = 1e-5)
{
    return std::abs(value - expected) <= relative * std::abs(expected);
}
} // namespace SpringTest
