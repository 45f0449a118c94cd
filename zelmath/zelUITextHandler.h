#pragma once

#include "zelWString.h"
#include "zelmath_export.h"

#include <memory>

class ZelDomNode;
class ZelTextTable;

/// A text given by number of `pool`, by a description node, or as a literal German text. It is
/// looked up anew at each call, so that it follows the language.
class ZELMATH_EXPORT ZelUITextHandler
{
public:
    ZelUITextHandler();
    ZelUITextHandler(const ZelUITextHandler &other);
    ZelUITextHandler &operator=(const ZelUITextHandler &other);
    ~ZelUITextHandler();

    void clear();
    void setTextId(int id);
    /// Takes the attribute "text" ("#8460" is a number of the pool) and "key", else the content.
    void setup(const ZelDomNode *node);
    /// The same for another attribute, "status" for example.
    void setup(const ZelDomNode *node, const zelWString &attribute);
    /// A German source text with the translations it is looked up in; "#8460" is a number here too.
    void setText(const zelWString &german, std::shared_ptr<const ZelTextTable> texts = nullptr,
                 const zelWString &key = {});

    /// The text in the current language; empty when nothing is set.
    zelWString getText() const;
    bool empty() const;

private:
    int mId = 0;
    zelWString mGerman;
    zelWString mKey;
    std::shared_ptr<const ZelTextTable> mTexts;
};
