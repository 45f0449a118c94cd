#include "zelQtConversions.h"

#include "translator.h"

#include <algorithm>

namespace {

// One unit a character, and no byte order mark, which a conversion drops.
bool isOfPlainUtf16(std::wstring_view text)
{
    return std::all_of(text.begin(), text.end(), [](wchar_t c) {
        return c >= 0 && c < 0xfeff && !QChar::isSurrogate(static_cast<uint>(c));
    });
}

} // namespace

QString toQString(const zelString &text)
{
    return QString::fromStdString(std::string(text));
}

QString toQString(const zelWString &text)
{
    // A mask converts some texts a line: those without a character that needs care, nearly all, are
    // copied.
    const std::wstring_view characters = text.view();
    if (isOfPlainUtf16(characters)) {
        QString copy(static_cast<int>(characters.size()), Qt::Uninitialized);
        std::transform(characters.begin(), characters.end(), copy.begin(),
                       [](wchar_t c) { return QChar(static_cast<ushort>(c)); });
        return copy;
    }
    return QString::fromWCharArray(text.data(), static_cast<int>(text.size()));
}

QString toQStringFromPool(int id)
{
    return toQString(pool.GetString(id));
}

QString toQStringFromPoolUi(int id)
{
    return toQString(poolUi.GetString(id));
}

ZelDimensions::Unit stringToUnit(const QString &unit)
{
    return ZelDimensions::getUnit(unit.toStdWString());
}

QString unitToString(ZelDimensions::Unit unit)
{
    return QString::fromStdWString(ZelDimensions::getString(unit));
}
