#include "zelUiParser.h"

#include "zelDomNode.h"

#include <sstream>

bool ZelUiParser::hasGeometryAttribute(const AttrMap &attributes, bool &naturalSize, int &width,
                                       int &height)
{
    const auto value = [&attributes](const wchar_t *name) {
        const auto found = attributes.find(name);
        return found == attributes.end() ? zelWString() : found->second;
    };
    naturalSize = isTrue(value(L"natural"));
    const int foundWidth = value(L"width").toInt();
    const int foundHeight = value(L"height").toInt();
    if (foundWidth <= 0 || foundHeight <= 0)
        return false;
    width = foundWidth;
    height = foundHeight;
    return true;
}

bool ZelUiParser::hasGeometryAttribute(const ZelDomNode *node, bool &naturalSize, int &width,
                                       int &height)
{
    return hasGeometryAttribute(node ? node->attributes() : AttrMap(), naturalSize, width, height);
}

bool ZelUiParser::hasFrameAttribute(const ZelDomNode *node)
{
    return node && isTrue(node->attribute(L"frame"));
}

bool ZelUiParser::isTrue(const zelWString &value)
{
    return value == L"true" || value == L"1";
}

std::vector<zelWString> ZelUiParser::words(const zelWString &value)
{
    std::wstring text = value;
    for (wchar_t &character : text) {
        if (character == L',')
            character = L' ';
    }
    std::wistringstream stream(text);
    std::vector<zelWString> words;
    for (std::wstring word; stream >> word;)
        words.emplace_back(word);
    return words;
}
