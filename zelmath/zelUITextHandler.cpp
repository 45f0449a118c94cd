#include "zelUITextHandler.h"

#include "translator.h"
#include "zelDomNode.h"
#include "zelTextTable.h"

#include <algorithm>

namespace {

// "#8460" is a number of the pool; anything else that begins with "#" is a text.
int poolNumber(const zelWString &text)
{
    const std::wstring_view view = text.view();
    if (view.size() < 2 || view.front() != L'#')
        return 0;
    const std::wstring_view digits = view.substr(1);
    const bool number =
        std::all_of(digits.begin(), digits.end(), [](wchar_t c) { return c >= L'0' && c <= L'9'; });
    return number ? zelWString(std::wstring(digits)).toInt() : 0;
}

} // namespace

ZelUITextHandler::ZelUITextHandler() = default;
ZelUITextHandler::ZelUITextHandler(const ZelUITextHandler &other) = default;
ZelUITextHandler &ZelUITextHandler::operator=(const ZelUITextHandler &other) = default;
ZelUITextHandler::~ZelUITextHandler() = default;

void ZelUITextHandler::clear()
{
    *this = ZelUITextHandler();
}

void ZelUITextHandler::setTextId(int id)
{
    clear();
    mId = id;
}

void ZelUITextHandler::setup(const ZelDomNode *node)
{
    clear();
    if (!node)
        return;
    const bool hasText = node->hasAttribute(L"text");
    setText(hasText ? node->attribute(L"text") : node->content(), node->texts(),
            node->attribute(L"key"));
}

void ZelUITextHandler::setup(const ZelDomNode *node, const zelWString &attribute)
{
    clear();
    // The key belongs to the attribute "text": with it the status tip would get that text's row.
    if (node)
        setText(node->attribute(attribute), node->texts(),
                attribute == L"text" ? node->attribute(L"key") : zelWString());
}

void ZelUITextHandler::setText(const zelWString &german, std::shared_ptr<const ZelTextTable> texts,
                               const zelWString &key)
{
    clear();
    mId = poolNumber(german);
    if (mId != 0)
        return;
    mGerman = german;
    mKey = key;
    mTexts = std::move(texts);
}

zelWString ZelUITextHandler::getText() const
{
    if (mId != 0)
        return pool.GetString(mId);
    if (mTexts && !mGerman.empty())
        return mTexts->text(mGerman, mKey, zelLanguage());
    return mGerman;
}

bool ZelUITextHandler::empty() const
{
    return mId == 0 && mGerman.empty();
}
