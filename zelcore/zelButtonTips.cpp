#include "zelButtonTips_p.h"

#include "translator.h"

// The numbers 7100 to 7119 of poolUi are kept for these texts: tool tips from 7100, status tips
// from 7110.

namespace {

zelWString withQuantity(int number, const zelWString &quantity)
{
    std::wstring text = poolUi.GetString(number);
    const size_t place = text.find(L"%1");
    if (place != std::wstring::npos)
        text.replace(place, 2, quantity);
    return text;
}

} // namespace

zelWString zelButtonToolTip(ZelUIPushButtonType type, const zelWString &quantity)
{
    switch (type) {
    case ZelUIPushButtonType::Size:
        return quantity.empty() ? zelWString() : withQuantity(7100, quantity);
    case ZelUIPushButtonType::Convert:
        return quantity.empty() ? zelWString() : withQuantity(7101, quantity);
    case ZelUIPushButtonType::Plus:
        return quantity;
    case ZelUIPushButtonType::Info:
        return poolUi.GetString(7102);
    case ZelUIPushButtonType::Offer:
        return poolUi.GetString(7103);
    case ZelUIPushButtonType::Database:
        return poolUi.GetString(7104);
    case ZelUIPushButtonType::Settings:
        return quantity.empty() ? poolUi.GetString(7105) : withQuantity(7106, quantity);
    case ZelUIPushButtonType::Push:
    case ZelUIPushButtonType::File:
        break;
    }
    return {};
}

zelWString zelButtonStatusTip(ZelUIPushButtonType type)
{
    switch (type) {
    case ZelUIPushButtonType::Size:
        return poolUi.GetString(7110);
    case ZelUIPushButtonType::Convert:
        return poolUi.GetString(7111);
    case ZelUIPushButtonType::Plus:
        return poolUi.GetString(7112);
    case ZelUIPushButtonType::Info:
        return poolUi.GetString(7113);
    case ZelUIPushButtonType::Offer:
        return poolUi.GetString(7114);
    case ZelUIPushButtonType::Database:
        return poolUi.GetString(7115);
    case ZelUIPushButtonType::Settings:
        return poolUi.GetString(7116);
    case ZelUIPushButtonType::Push:
    case ZelUIPushButtonType::File:
        break;
    }
    return {};
}
