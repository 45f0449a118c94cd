#pragma once

#include "zelWString.h"
#include "zeltypes_export.h"

#include <fstream>

/// Output stream to a file, texts as UTF-8. A file that can't be opened or written swallows what is
/// put in; good() tells.
class ZELTYPES_EXPORT zelFStream
{
public:
    explicit zelFStream(const zelWString &fileName);

    zelFStream &operator<<(const zelWString &text);
    zelFStream &operator<<(char character);

    bool good() const { return mStream.good(); }
    void flush() { mStream.flush(); }

private:
    std::ofstream mStream;
};
