#include "dataFolder.h"

#include <QCoreApplication>
#include <QDir>

QString dataFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath()
                           + QStringLiteral("/../share/tarvex-workbench"));
}
