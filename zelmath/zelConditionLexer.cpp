#include "zelConditionLexer_p.h"

#include <charconv>

namespace {

bool isDigit(wchar_t c)
{
    return c >= L'0' && c <= L'9';
}

bool isNameCharacter(wchar_t c)
{
    return isDigit(c) || c == L'_' || (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z');
}

} // namespace

ZelConditionLexer::ZelConditionLexer(std::wstring_view source)
    : mSource(source)
{
    next();
}

bool ZelConditionLexer::isSign(std::wstring_view sign) const
{
    return mToken.mKind == Kind::Sign && mToken.mText == sign;
}

bool ZelConditionLexer::isName(std::wstring_view name) const
{
    return mToken.mKind == Kind::Name && mToken.mText == name;
}

void ZelConditionLexer::next()
{
    while (mAt < mSource.size()
           && std::wstring_view(L" \t\r\n").find(mSource[mAt]) != std::wstring_view::npos)
        ++mAt;
    mToken = Token{Kind::End, mAt, {}, 0};
    if (mAt == mSource.size())
        return;
    const wchar_t first = mSource[mAt];
    const wchar_t second = mAt + 1 < mSource.size() ? mSource[mAt + 1] : L'\0';
    if (isDigit(first) || (first == L'.' && isDigit(second))) {
        readNumber();
    } else if (isNameCharacter(first)) {
        mToken.mKind = Kind::Name;
        while (mAt < mSource.size() && isNameCharacter(mSource[mAt]))
            mToken.mText += mSource[mAt++];
    } else if (first == L'\'') {
        readText();
    } else {
        readSign();
    }
}

void ZelConditionLexer::readNumber()
{
    // What from_chars could read; it stops where the number ends. No double needs more digits.
    constexpr size_t longest = 800;
    std::string digits;
    for (size_t i = mAt;
         i < mSource.size() && i < mAt + longest && mSource[i] > L' ' && mSource[i] < 0x7F; ++i)
        digits += static_cast<char>(mSource[i]);
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), mToken.mNumber);
    mAt += static_cast<size_t>(end - digits.data());
    const bool rest =
        mAt < mSource.size() && (isNameCharacter(mSource[mAt]) || mSource[mAt] == L'.');
    mToken.mKind = error == std::errc() && !rest ? Kind::Number : Kind::Bad;
}

// A quote inside a text is written twice.
void ZelConditionLexer::readText()
{
    mToken.mKind = Kind::Bad;
    for (++mAt; mAt < mSource.size(); ++mAt) {
        const bool quote = mSource[mAt] == L'\'';
        const bool twice = quote && mAt + 1 < mSource.size() && mSource[mAt + 1] == L'\'';
        if (quote && !twice) {
            ++mAt;
            mToken.mKind = Kind::Text;
            return;
        }
        if (twice)
            ++mAt;
        mToken.mText += mSource[mAt];
    }
}

void ZelConditionLexer::readSign()
{
    const std::wstring_view rest = mSource.substr(mAt);
    for (const std::wstring_view sign : {L"==", L"!=", L"<=", L">="}) {
        if (rest.starts_with(sign))
            mToken.mText = sign;
    }
    if (mToken.mText.empty() && std::wstring_view(L"<>+-*/()[]").find(rest[0]) != rest.npos)
        mToken.mText = rest[0];
    mToken.mKind = mToken.mText.empty() ? Kind::Bad : Kind::Sign;
    mAt += mToken.mText.size();
}
