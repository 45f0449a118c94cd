#include "zelSourceText_p.h"

#include <algorithm>

namespace {

bool isContinuation(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

// The range of the second byte keeps out overlong forms, surrogates and what lies beyond Unicode.
struct Sequence
{
    size_t mLength;
    unsigned char mSecondMin;
    unsigned char mSecondMax;
};

Sequence sequenceOf(unsigned char first)
{
    if (first < 0x80)
        return {1, 0, 0};
    if (first >= 0xC2 && first <= 0xDF)
        return {2, 0x80, 0xBF};
    if (first >= 0xE0 && first <= 0xEF)
        return {3, static_cast<unsigned char>(first == 0xE0 ? 0xA0 : 0x80),
                static_cast<unsigned char>(first == 0xED ? 0x9F : 0xBF)};
    if (first >= 0xF0 && first <= 0xF4)
        return {4, static_cast<unsigned char>(first == 0xF0 ? 0x90 : 0x80),
                static_cast<unsigned char>(first == 0xF4 ? 0x8F : 0xBF)};
    return {0, 0, 0};
}

} // namespace

size_t zelFindInvalidUtf8(std::string_view bytes)
{
    for (size_t i = 0; i < bytes.size();) {
        const Sequence sequence = sequenceOf(static_cast<unsigned char>(bytes[i]));
        if (sequence.mLength == 0 || i + sequence.mLength > bytes.size())
            return i;
        if (sequence.mLength > 1) {
            const auto second = static_cast<unsigned char>(bytes[i + 1]);
            if (second < sequence.mSecondMin || second > sequence.mSecondMax)
                return i;
        }
        for (size_t k = 2; k < sequence.mLength; ++k) {
            if (!isContinuation(bytes[i + k]))
                return i;
        }
        i += sequence.mLength;
    }
    return std::string_view::npos;
}

std::string_view zelWithoutMark(std::string_view bytes)
{
    return bytes.substr(bytes.starts_with("\xEF\xBB\xBF") ? 3 : 0);
}

ZelPlace ZelPlaceFinder::place(size_t offset)
{
    offset = std::min(offset, mText.size());
    if (offset < mOffset) {
        mOffset = 0;
        mPlace = {1, 1};
    }
    for (; mOffset < offset; ++mOffset) {
        if (mText[mOffset] == '\n') {
            ++mPlace.mLine;
            mPlace.mColumn = 1;
        } else if (!isContinuation(mText[mOffset])) {
            ++mPlace.mColumn;
        }
    }
    return mPlace;
}
