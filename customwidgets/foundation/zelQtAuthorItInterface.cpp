#include "zelQtAuthorItInterface.h"

ZelQtAuthorItInterface::~ZelQtAuthorItInterface() = default;

int ZelQtAuthorItInterface::authorItCode() const
{
    return mCode;
}

QString ZelQtAuthorItInterface::authorItFile(int code)
{
    return code < 1 ? QString() : QString::number(code) + QStringLiteral(".htm");
}
