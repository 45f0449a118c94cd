#pragma once

#include "zelWString.h"
#include "zelmath_export.h"

#include <functional>
#include <memory>
#include <utility>
#include <vector>

class ZelDomDocument;
class ZelTextTable;

/// A place in a description file, both from 1; columns count characters. 0 means unknown.
struct ZelPlace
{
    int mLine = 0;
    int mColumn = 0;
};

/// One element of a mask description with its attributes, its text and its place in the file.
/// Nodes are made by a ZelDomDocument, or by hand through addChild and setAttribute; a node owns
/// its children.
class ZELMATH_EXPORT ZelDomNode
{
public:
    explicit ZelDomNode(zelWString name = {});
    ~ZelDomNode();
    ZelDomNode(const ZelDomNode &) = delete;
    ZelDomNode &operator=(const ZelDomNode &) = delete;

    bool hasAttribute(const zelWString &name) const;
    /// Empty when there is no such attribute.
    zelWString attribute(const zelWString &name) const;
    AttrMap attributes() const { return mAttributes; }
    const zelWString &name() const { return mName; }
    /// The text between the tags, white space at both ends removed.
    const zelWString &content() const { return mContent; }

    ZelDomNode *parentNode() const { return mParent; }
    /// Null at the end.
    ZelDomNode *nextSibling() const;
    ZelDomNode *nextSibling(const zelWString &name) const;
    ZelDomNode *firstChild() const;
    ZelDomNode *firstChild(const zelWString &name) const;

    /// Place of the tag name.
    ZelPlace place() const { return mPlace; }
    /// Place of an attribute's name; that of the tag for an attribute that isn't there.
    ZelPlace attributePlace(const zelWString &name) const;
    /// Place of the first character of an attribute's value; that of the name when it isn't known.
    ZelPlace attributeValuePlace(const zelWString &name) const;

    /// The translations of the file this node comes from; null without any.
    const std::shared_ptr<const ZelTextTable> &texts() const { return mTexts; }

    ZelDomNode *addChild(zelWString name);
    void setAttribute(const zelWString &name, zelWString value, ZelPlace place = {},
                      ZelPlace valuePlace = {});
    void setContent(zelWString content) { mContent = std::move(content); }
    void setPlace(ZelPlace place) { mPlace = place; }
    /// Also for all children that exist already.
    void setTexts(std::shared_ptr<const ZelTextTable> texts);
    void removeAttribute(const zelWString &name);
    /// Deletes the child with everything below it.
    void removeChild(ZelDomNode *child);
    /// Deletes every child that `leaves` answers true for, which is asked in the order of the file.
    void removeChildren(const std::function<bool(ZelDomNode &)> &leaves);

private:
    zelWString mName;
    zelWString mContent;
    AttrMap mAttributes;
    /// Of name and value.
    std::map<zelWString, std::pair<ZelPlace, ZelPlace>> mAttributePlaces;
    ZelPlace mPlace;
    ZelDomNode *mParent = nullptr;
    size_t mIndex = 0;
    std::vector<std::unique_ptr<ZelDomNode>> mChildren;
    std::shared_ptr<const ZelTextTable> mTexts;
};
