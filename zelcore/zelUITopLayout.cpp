#include "zelUITopLayout.h"

#include "zelDomNode.h"
#include "zelUIDialogButtonBox.h"
#include "zelUIExternalItem.h"
#include "zelUIGroup.h"
#include "zelUITabContainer.h"
#include "zelUiBuild.h"
#include "zelUiFactory.h"
#include "zelUiParser.h"
#include "zelUiParts_p.h"

namespace {

ZelUILayoutItem *makeItem(ZelUiFactory &factory, const ZelDomNode &node)
{
    if (node.name() == L"board")
        return ZelUiParser::hasFrameAttribute(&node) ? factory.makeGroup() : factory.makeBoard();
    if (node.name() == L"tabs")
        return factory.makeTabContainer();
    if (node.name() == L"external")
        return factory.makeExternalItem(node.attribute(L"class"));
    return nullptr;
}

void retranslateBelow(const ZelUIObject &parent)
{
    for (ZelUIObject *child : parent.modelChildren()) {
        child->retranslate();
        if (!dynamic_cast<const ZelUITopLayout *>(child))
            retranslateBelow(*child);
    }
}

} // namespace

ZelUITopLayout::ZelUITopLayout() = default;
ZelUITopLayout::~ZelUITopLayout() = default;

void ZelUITopLayout::setup(const ZelDomNode *node)
{
    ZelUIContainer::setup(node);
    ZelUiBuild *build = ZelUiBuild::current();
    if (!build || !node)
        return;
    // An item without row goes below everything before it.
    int freeRow = 0;
    for (const ZelDomNode *child = node->firstChild(); child; child = child->nextSibling()) {
        if (child->name() == L"buttons" && !mButtonBox) {
            mButtonBox = build->factory().makeDialogButtonBox();
            modelAddElement(mButtonBox);
            if (mButtonBox)
                mButtonBox->setup(child);
        }
        ZelUILayoutItem *item = makeItem(build->factory(), *child);
        if (!item)
            continue;
        item->setup(child);
        if (!child->hasAttribute(L"row"))
            item->setModelPlace(freeRow, item->column(), item->rowSpan(), item->columnSpan());
        freeRow = std::max(freeRow, item->row() + item->rowSpan());
        addLayoutItem(item);
    }
    finishLayout();
}

void ZelUITopLayout::retranslate()
{
    retranslateBelow(*this);
}

ZelUILayoutStruct *ZelUITopLayout::toLayoutStruct() const
{
    return new ZelUILayoutStruct{getName(), static_cast<int>(mItems.size())};
}

void ZelUITopLayout::addLayoutItem(ZelUILayoutItem *item)
{
    if (!item || std::find(mItems.begin(), mItems.end(), item) != mItems.end())
        return;
    mItems.push_back(item);
    modelAddContainer(item);
}

void ZelUITopLayout::finishLayout()
{
}

void ZelUITopLayout::modelForget(ZelUIObject *child)
{
    zelForget(mItems, child);
    zelForget(mButtonBox, child);
    ZelUIContainer::modelForget(child);
}
