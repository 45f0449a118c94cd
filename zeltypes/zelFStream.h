#pragma once

#include "zelWString.h"
#include "zeltypes_export.h"

#include <fstream>

/// Output stream to a file, texts as UTF-8. A file that can't be opened or written swallows what is
/// put in; good() tells.
class ZELTYPES_EXPORT zelFStream
{
public:
    /// To no file.
    zelFStream() = default;
    /// With `append` what is in the file stays.
    explicit zelFStream(const zelWString &fileName, bool append = false);

    zelFStream &operator<<(const zelWString &text);
    zelFStream &operator<<(char character);

    bool good() const { return mStream.is_open() && mStream.good(); }
    void flush() { mStream.flush(); }

private:
    std::ofstream mStream;
};
