#pragma once

#include "zelDomNode.h"

#include <string>
#include <string_view>

// Bytes of an input file with their places. Used by all readers of this library that report faults.

/// Offset of the first byte that is not part of valid UTF-8; npos when all are.
size_t zelFindInvalidUtf8(std::string_view bytes);

/// Without the byte order mark of UTF-8.
std::string_view zelWithoutMark(std::string_view bytes);

/// Turns offsets into places. It remembers the last one: asking in ascending order reads the text
/// once altogether, going back starts over.
class ZelPlaceFinder
{
public:
    explicit ZelPlaceFinder(std::string_view text)
        : mText(text)
    {
    }
    ZelPlace place(size_t offset);

private:
    std::string_view mText;
    size_t mOffset = 0;
    ZelPlace mPlace{1, 1};
};
