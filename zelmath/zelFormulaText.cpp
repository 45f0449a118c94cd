#include "zelFormulaText.h"

#include <array>
#include <utility>

namespace {

constexpr std::array<std::pair<std::wstring_view, wchar_t>, 48> greekLetters{{
    {L"Alpha", L'Α'},  {L"Beta", L'Β'},  {L"Gamma", L'Γ'}, {L"Delta", L'Δ'},   {L"Epsilon", L'Ε'},
    {L"Zeta", L'Ζ'},   {L"Eta", L'Η'},   {L"Theta", L'Θ'}, {L"Iota", L'Ι'},    {L"Kappa", L'Κ'},
    {L"Lambda", L'Λ'}, {L"Mu", L'Μ'},    {L"Nu", L'Ν'},    {L"Xi", L'Ξ'},      {L"Omicron", L'Ο'},
    {L"Pi", L'Π'},     {L"Rho", L'Ρ'},   {L"Sigma", L'Σ'}, {L"Tau", L'Τ'},     {L"Upsilon", L'Υ'},
    {L"Phi", L'Φ'},    {L"Chi", L'Χ'},   {L"Psi", L'Ψ'},   {L"Omega", L'Ω'},   {L"alpha", L'α'},
    {L"beta", L'β'},   {L"gamma", L'γ'}, {L"delta", L'δ'}, {L"epsilon", L'ε'}, {L"zeta", L'ζ'},
    {L"eta", L'η'},    {L"theta", L'θ'}, {L"iota", L'ι'},  {L"kappa", L'κ'},   {L"lambda", L'λ'},
    {L"mu", L'μ'},     {L"nu", L'ν'},    {L"xi", L'ξ'},    {L"omicron", L'ο'}, {L"pi", L'π'},
    {L"rho", L'ρ'},    {L"sigma", L'σ'}, {L"tau", L'τ'},   {L"upsilon", L'υ'}, {L"phi", L'φ'},
    {L"chi", L'χ'},    {L"psi", L'ψ'},   {L"omega", L'ω'},
}};

bool isDigit(wchar_t c)
{
    return c >= L'0' && c <= L'9';
}

// Everything beyond ASCII counts as letter: the answer must not depend on the locale of the
// process.
bool isLetter(wchar_t c)
{
    return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || c > 0x7F;
}

void putEscaped(std::wstring &result, wchar_t c)
{
    switch (c) {
    case L'&':
        result += L"&amp;";
        break;
    case L'<':
        result += L"&lt;";
        break;
    case L'>':
        result += L"&gt;";
        break;
    case L'"':
        result += L"&quot;";
        break;
    default:
        result += c;
    }
}

// Letters and digits apart, so that "alpha1" has its letter too.
std::wstring withGreekLetters(std::wstring_view text)
{
    std::wstring result;
    while (!text.empty()) {
        size_t length = 0;
        while (length < text.size() && isLetter(text[length]))
            ++length;
        const std::wstring_view word = text.substr(0, length);
        wchar_t letter = 0;
        for (const auto &[name, character] : greekLetters) {
            if (name == word)
                letter = character;
        }
        if (letter != 0)
            result += letter;
        else
            result += word;
        text.remove_prefix(length);
        while (!text.empty() && !isLetter(text.front())) {
            putEscaped(result, text.front());
            text.remove_prefix(1);
        }
    }
    return result;
}

// Length of the token at the beginning: letters and digits, a group in braces, or a number with
// sign.
size_t tokenLength(std::wstring_view text)
{
    if (!text.empty() && text.front() == L'{') {
        const size_t end = text.find(L'}');
        return end == std::wstring_view::npos || end == 1 ? 0 : end + 1;
    }
    const bool sign = text.size() > 1 && (text[0] == L'-' || text[0] == L'+') && isDigit(text[1]);
    size_t length = sign ? 1 : 0;
    while (length < text.size() && (isLetter(text[length]) || isDigit(text[length])))
        ++length;
    return length;
}

void putRaisedOrLowered(std::wstring &result, std::wstring_view token, bool raised)
{
    const bool group = token.front() == L'{';
    result += raised ? L"<sup>" : L"<sub>";
    result += withGreekLetters(group ? token.substr(1, token.size() - 2) : token);
    result += raised ? L"</sup>" : L"</sub>";
}

} // namespace

zelWString zelFormulaText(const zelWString &source)
{
    std::wstring result;
    std::wstring_view rest = source.view();
    while (!rest.empty()) {
        const wchar_t first = rest.front();
        const bool mark = first == L'_' || first == L'^';
        const size_t length = tokenLength(mark ? rest.substr(1) : rest);
        if (mark && length > 0) {
            putRaisedOrLowered(result, rest.substr(1, length), first == L'^');
            rest.remove_prefix(1 + length);
        } else if (!mark && length > 0 && first != L'{') {
            result += withGreekLetters(rest.substr(0, length));
            rest.remove_prefix(length);
        } else {
            putEscaped(result, first);
            rest.remove_prefix(1);
        }
    }
    return zelWString(std::move(result));
}
