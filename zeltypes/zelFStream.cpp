#include "zelFStream.h"

zelFStream::zelFStream(const zelWString &fileName)
    : mStream(fileName.toUtf8(), std::ios::binary)
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
