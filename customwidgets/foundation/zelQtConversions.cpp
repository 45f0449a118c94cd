#include "zelQtConversions.h"

#include "translator.h"

QString toQString(const zelString &text)
{
    return QString::fromStdString(std::string(text));
}

QString toQString(const zelWString &text)
{
    return QString::fromWCharArray(text.data(), static_cast<int>(text.size()));
}

QString toQStringFromPool(int id)
{
    return toQString(pool.GetString(id));
}

QString toQStringFromPoolUi(int id)
{
    return toQString(poolUi.GetString(id));
}

ZelDimensions::Unit stringToUnit(const QString &unit)
{
    return ZelDimensions::getUnit(unit.toStdWString());
}

QString unitToString(ZelDimensions::Unit unit)
{
    return QString::fromStdWString(ZelDimensions::getString(unit));
}
