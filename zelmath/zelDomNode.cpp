#include "zelDomNode.h"

#include <algorithm>
#include <utility>

ZelDomNode::ZelDomNode(zelWString name)
    : mName(std::move(name))
{
}

ZelDomNode::~ZelDomNode() = default;

bool ZelDomNode::hasAttribute(const zelWString &name) const
{
    return mAttributes.find(name) != mAttributes.end();
}

zelWString ZelDomNode::attribute(const zelWString &name) const
{
    const auto found = mAttributes.find(name);
    return found == mAttributes.end() ? zelWString() : found->second;
}

ZelDomNode *ZelDomNode::nextSibling() const
{
    const bool last = !mParent || mIndex + 1 >= mParent->mChildren.size();
    return last ? nullptr : mParent->mChildren[mIndex + 1].get();
}

ZelDomNode *ZelDomNode::nextSibling(const zelWString &name) const
{
    ZelDomNode *node = nextSibling();
    while (node && !(node->mName == name))
        node = node->nextSibling();
    return node;
}

ZelDomNode *ZelDomNode::firstChild() const
{
    return mChildren.empty() ? nullptr : mChildren.front().get();
}

ZelDomNode *ZelDomNode::firstChild(const zelWString &name) const
{
    ZelDomNode *node = firstChild();
    return !node || node->mName == name ? node : node->nextSibling(name);
}

ZelPlace ZelDomNode::attributePlace(const zelWString &name) const
{
    const auto found = mAttributePlaces.find(name);
    return found == mAttributePlaces.end() ? mPlace : found->second.first;
}

ZelPlace ZelDomNode::attributeValuePlace(const zelWString &name) const
{
    const auto found = mAttributePlaces.find(name);
    const bool known = found != mAttributePlaces.end() && found->second.second.mLine > 0;
    return known ? found->second.second : attributePlace(name);
}

ZelDomNode *ZelDomNode::addChild(zelWString name)
{
    auto child = std::make_unique<ZelDomNode>(std::move(name));
    child->mParent = this;
    child->mIndex = mChildren.size();
    child->mTexts = mTexts;
    mChildren.push_back(std::move(child));
    return mChildren.back().get();
}

void ZelDomNode::setAttribute(const zelWString &name, zelWString value, ZelPlace place,
                              ZelPlace valuePlace)
{
    mAttributes[name] = std::move(value);
    if (place.mLine > 0)
        mAttributePlaces[name] = {place, valuePlace};
    else
        mAttributePlaces.erase(name);
}

void ZelDomNode::setTexts(std::shared_ptr<const ZelTextTable> texts)
{
    for (const auto &child : mChildren)
        child->setTexts(texts);
    mTexts = std::move(texts);
}

void ZelDomNode::removeAttribute(const zelWString &name)
{
    mAttributes.erase(name);
    mAttributePlaces.erase(name);
}

void ZelDomNode::removeChild(ZelDomNode *child)
{
    const bool mine = child && child->mParent == this;
    if (!mine)
        return;
    const size_t removed = child->mIndex;
    mChildren.erase(mChildren.begin() + static_cast<std::ptrdiff_t>(removed));
    for (size_t i = removed; i < mChildren.size(); ++i)
        mChildren[i]->mIndex = i;
}

void ZelDomNode::removeChildren(const std::function<bool(ZelDomNode &)> &leaves)
{
    // `leaves` may look at brothers, so nothing moves before it was asked about all.
    std::vector<bool> leaving;
    for (const auto &child : mChildren)
        leaving.push_back(leaves(*child));
    size_t kept = 0;
    for (size_t i = 0; i < mChildren.size(); ++i) {
        if (leaving[i])
            continue;
        std::swap(mChildren[kept], mChildren[i]);
        mChildren[kept]->mIndex = kept;
        ++kept;
    }
    mChildren.resize(kept);
}
