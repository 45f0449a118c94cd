#pragma once

#include <string>
#include <string_view>

/// Cuts a condition into words, numbers, texts in single quotes and signs.
class ZelConditionLexer
{
public:
    enum class Kind { End, Name, Number, Text, Sign, Bad };

    struct Token
    {
        Kind mKind = Kind::End;
        size_t mAt = 0;
        std::wstring mText; // names and signs as written, texts without quotes
        double mNumber = 0;
    };

    explicit ZelConditionLexer(std::wstring_view source);

    const Token &token() const { return mToken; }
    void next();
    bool isSign(std::wstring_view sign) const;
    bool isName(std::wstring_view name) const;

private:
    void readNumber();
    void readText();
    void readSign();

    std::wstring_view mSource;
    size_t mAt = 0;
    Token mToken;
};
