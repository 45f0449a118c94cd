#include "zelFStream.h"

zelFStream::zelFStream(const zelWString &fileName, bool append)
    : mStream(fileName.toUtf8(), std::ios::binary | (append ? std::ios::app : std::ios::trunc))
{
}

zelFStream &zelFStream::operator<<(const zelWString &text)
{
    mStream << text.toUtf8();
    return *this;
}

zelFStream &zelFStream::operator<<(char character)
{
    mStream << character;
    return *this;
}
