#include "zelUIElement.h"

#include "zelUIItem.h"

#include <algorithm>

ZelUIElement::ZelUIElement() = default;
ZelUIElement::~ZelUIElement() = default;

void ZelUIElement::setData(Meta *meta, int64_t id)
{
    for (ZelUIItem *item : mModelItems)
        item->setData(meta, id);
}

void ZelUIElement::getData(Meta *meta, int64_t id)
{
    for (ZelUIItem *item : mModelItems)
        item->getData(meta, id);
}

void ZelUIElement::updateUnitSystem(bool)
{
}

void ZelUIElement::resetUnits(bool keepDefault)
{
    updateUnitSystem(keepDefault);
}

ZelUIElementStruct *ZelUIElement::toElementStruct() const
{
    return new ZelUIElementStruct{getName(), state()};
}

void ZelUIElement::modelSetNode(const ZelDomNode *node)
{
    mNode = node;
    modelSetupNode(node);
}

void ZelUIElement::modelMakeParts()
{
}

void ZelUIElement::modelForget(ZelUIObject *child)
{
    mModelItems.erase(std::remove(mModelItems.begin(), mModelItems.end(), child),
                      mModelItems.end());
}

void ZelUIElement::modelAddItem(ZelUIItem *item)
{
    if (!item || std::find(mModelItems.begin(), mModelItems.end(), item) != mModelItems.end())
        return;
    item->setModelParent(this);
    mModelItems.push_back(item);
}
