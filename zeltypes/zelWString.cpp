#include "zelWString.h"

#include <cerrno>
#include <climits>
#include <cwchar>

zelWString::zelWString(const wchar_t *text)
    : mText(text ? text : L"")
{
}

zelWString::zelWString(std::wstring text)
    : mText(std::move(text))
{
}

zelWString::zelWString(int number)
    : mText(std::to_wstring(number))
{
}

zelWString &zelWString::operator=(const wchar_t *text)
{
    mText = text ? text : L"";
    return *this;
}

int zelWString::toInt() const
{
    errno = 0;
    const long number = std::wcstol(mText.c_str(), nullptr, 10);
    if (errno == ERANGE || number < INT_MIN || number > INT_MAX)
        return 0;
    return static_cast<int>(number);
}

namespace {

constexpr wchar_t replacement = L'\uFFFD';

// Number of continuation bytes that a first byte asks for, -1 for a byte that can't be first.
int continuationBytes(unsigned char first)
{
    if (first < 0x80)
        return 0;
    if (first >= 0xC2 && first <= 0xDF)
        return 1;
    if (first >= 0xE0 && first <= 0xEF)
        return 2;
    if (first >= 0xF0 && first <= 0xF4)
        return 3;
    return -1;
}

bool isScalarValue(char32_t code, int continuation)
{
    constexpr char32_t smallest[] = {0, 0x80, 0x800, 0x10000};
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    return code >= smallest[continuation] && code <= 0x10FFFF && !surrogate;
}

} // namespace

zelWString zelWString::fromUtf8(std::string_view bytes)
{
    std::wstring text;
    text.reserve(bytes.size());
    for (size_t i = 0; i < bytes.size();) {
        const auto first = static_cast<unsigned char>(bytes[i]);
        const int more = continuationBytes(first);
        char32_t code = more <= 0 ? first : first & (0x3Fu >> more);
        int read = 0;
        while (read < more && i + 1 + static_cast<size_t>(read) < bytes.size()) {
            const auto next = static_cast<unsigned char>(bytes[i + 1 + static_cast<size_t>(read)]);
            if ((next & 0xC0) != 0x80)
                break;
            code = (code << 6) | (next & 0x3F);
            ++read;
        }
        const bool valid = more >= 0 && read == more && isScalarValue(code, more);
        text += valid ? static_cast<wchar_t>(code) : replacement;
        i += valid ? static_cast<size_t>(more) + 1 : 1;
    }
    return zelWString(std::move(text));
}

std::string zelWString::toUtf8() const
{
    std::string bytes;
    bytes.reserve(mText.size());
    const auto put = [&bytes](char32_t value) { bytes += static_cast<char>(value); };
    for (const wchar_t character : mText) {
        auto code = static_cast<char32_t>(character);
        if (code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF))
            code = replacement;
        if (code < 0x80) {
            put(code);
        } else if (code < 0x800) {
            put(0xC0 | (code >> 6));
            put(0x80 | (code & 0x3F));
        } else if (code < 0x10000) {
            put(0xE0 | (code >> 12));
            put(0x80 | ((code >> 6) & 0x3F));
            put(0x80 | (code & 0x3F));
        } else {
            put(0xF0 | (code >> 18));
            put(0x80 | ((code >> 12) & 0x3F));
            put(0x80 | ((code >> 6) & 0x3F));
            put(0x80 | (code & 0x3F));
        }
    }
    return bytes;
}
