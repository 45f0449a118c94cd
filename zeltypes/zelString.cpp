#include "zelString.h"

zelString::zelString(const char *text)
    : mText(text ? text : "")
{
}

zelString::zelString(std::string text)
    : mText(std::move(text))
{
}

zelString::~zelString() = default;

bool zelString::contains(const char *part) const
{
    return part && mText.find(part) != std::string::npos;
}
