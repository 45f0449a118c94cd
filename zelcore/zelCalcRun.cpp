#include "zelCalcRun.h"

#include "meta.h"
#include "zelLanguage.h"
#include "zelNumberInput_p.h"
#include "zelParse_p.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int errorState = 1;
constexpr int warningState = 2;

bool hasDecimalComma(ZelLanguage language)
{
    return language != ZelLanguage::English && language != ZelLanguage::Chinese
        && language != ZelLanguage::Japanese;
}

std::wstring numberText(double value, int decimals)
{
    if (!std::isfinite(value))
        return std::to_wstring(value);
    std::wstring text = zelFixedText(value, decimals);
    if (text.find(L'.') != std::wstring::npos) {
        text.erase(text.find_last_not_of(L'0') + 1);
        if (text.back() == L'.')
            text.pop_back();
    }
    if (hasDecimalComma(zelLanguage()))
        std::replace(text.begin(), text.end(), L'.', L',');
    return text == L"-0" ? L"0" : text;
}

} // namespace

ZelMessageArgument::ZelMessageArgument(const char *utf8)
    : mText(zelWString::fromUtf8(utf8))
{
}

ZelMessageArgument::ZelMessageArgument(zelWString text)
    : mText(std::move(text))
{
}

ZelMessageArgument::ZelMessageArgument(int number)
    : mText(number)
{
}

ZelMessageArgument::ZelMessageArgument(double value, std::string_view unit, int decimals)
    : mValue(value)
    , mUnit(zelParseUnit(zelWString::fromUtf8(unit)).value_or(ZelDimensions::NoUnit))
    , mDecimals(std::max(decimals, 0))
{
}

zelWString ZelMessageArgument::text() const
{
    if (mDecimals < 0)
        return mText;
    const ZelDimensions::Unit shown = ZelDimensions::defaultUnit(mUnit, true);
    const std::wstring number =
        numberText(ZelDimensions::changeUnit(mValue, mUnit, shown), mDecimals);
    const std::wstring unit = ZelDimensions::getString(shown);
    return unit.empty() ? number : number + L' ' + unit;
}

zelWString ZelCalcMessage::text() const
{
    const std::wstring pattern = mText.getText();
    std::wstring text;
    for (size_t at = 0; at < pattern.size(); ++at) {
        const wchar_t digit = at + 1 < pattern.size() ? pattern[at + 1] : L'0';
        const size_t index = digit >= L'1' && digit <= L'9' ? size_t(digit - L'1') : 9;
        if (pattern[at] == L'%' && index < mArguments.size()) {
            text += std::wstring(mArguments[index].text());
            ++at;
        } else {
            text += pattern[at];
        }
    }
    return text;
}

ZelCalcRun::ZelCalcRun(Meta &meta, int64_t id, std::shared_ptr<const ZelTextTable> texts)
    : mMeta(meta)
    , mId(id)
    , mTexts(std::move(texts))
{
}

void ZelCalcRun::error(std::string_view code, const ZelVarHandles &variables, std::string_view text,
                       Arguments arguments)
{
    mHasErrors = true;
    add(ZelMessageSeverity::Error, code, variables, text, std::move(arguments));
}

void ZelCalcRun::warning(std::string_view code, const ZelVarHandles &variables,
                         std::string_view text, Arguments arguments)
{
    add(ZelMessageSeverity::Warning, code, variables, text, std::move(arguments));
}

void ZelCalcRun::note(std::string_view code, const ZelVarHandles &variables, std::string_view text,
                      Arguments arguments)
{
    add(ZelMessageSeverity::Note, code, variables, text, std::move(arguments));
}

void ZelCalcRun::add(ZelMessageSeverity severity, std::string_view code,
                     const ZelVarHandles &variables, std::string_view text, Arguments arguments)
{
    ZelCalcMessage message;
    message.mSeverity = severity;
    message.mCode = code;
    message.mText.setText(zelWString::fromUtf8(text), mTexts);
    message.mArguments = std::move(arguments);
    const int state = severity == ZelMessageSeverity::Error ? errorState : warningState;
    for (const ZelVarHandle &handle : variables) {
        message.mVariables.push_back(handle.name());
        // An error is not hidden by a warning that comes later.
        const bool colours = severity != ZelMessageSeverity::Note && handle.variable()
            && mMeta.messageState(*handle.variable(), mId) != errorState;
        if (colours)
            mMeta.setMessageState(*handle.variable(), mId, state);
    }
    mMessages.push_back(std::move(message));
}
