#include "zelCheckParts_p.h"

#include "zelDescription.h"
#include "zelDomNode.h"
#include "zelSchema.h"
#include "zelTextTable.h"

#include <ostream>
#include <set>

namespace {

class TextLister
{
public:
    TextLister(const std::string &fileName, ZelLanguage language, std::ostream &out)
        : mFileName(fileName)
        , mLanguage(language)
        , mOut(out)
    {
    }
    void list(const ZelDomNode &node, const ZelSchemaTag *parent);

private:
    void check(const ZelDomNode &node, const zelWString &text, const zelWString &key,
               ZelPlace place);

    const std::string &mFileName;
    ZelLanguage mLanguage;
    std::ostream &mOut;
    std::set<zelWString> mListed;
};

void TextLister::check(const ZelDomNode &node, const zelWString &text, const zelWString &key,
                       ZelPlace place)
{
    // Numbers of the pool have their translations there.
    if (text.empty() || text.view().front() == L'#')
        return;
    const zelWString &looked = key.empty() ? text : key;
    const bool translated = node.texts() && node.texts()->isTranslated(looked, mLanguage);
    if (translated || !mListed.insert(looked).second)
        return;
    mOut << mFileName << ':' << place.mLine << ':' << place.mColumn << ": " << text.toUtf8();
    if (!key.empty())
        mOut << " (key " << key.toUtf8() << ')';
    mOut << '\n';
}

void TextLister::list(const ZelDomNode &node, const ZelSchemaTag *parent)
{
    const ZelSchemaTag *tag = zelSchemaTag(node.name().toUtf8(), parent);
    if (!tag)
        return;
    for (const auto &[name, value] : node.attributes()) {
        const ZelSchemaAttribute *attribute = tag->attribute(name.toUtf8());
        if (attribute && attribute->mType == ZelSchemaType::Text)
            check(node, value, name == L"text" ? node.attribute(L"key") : zelWString(),
                  node.attributeValuePlace(name));
    }
    if (tag->mContent && !node.hasAttribute(L"text"))
        check(node, node.content(), node.attribute(L"key"), node.place());
    for (const ZelDomNode *child = node.firstChild(); child; child = child->nextSibling())
        list(*child, tag);
}

} // namespace

void zelPrintMissingTexts(const ZelDescription &description, ZelLanguage language,
                          std::ostream &out)
{
    if (!description.isEmpty() && language != ZelLanguage::German)
        TextLister(description.fileName(), language, out).list(*description.root(), nullptr);
}
