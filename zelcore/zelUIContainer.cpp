#include "zelUIContainer.h"

#include "zelUIElement.h"

#include <algorithm>

ZelUIContainer::ZelUIContainer() = default;
ZelUIContainer::~ZelUIContainer() = default;

void ZelUIContainer::setup(const ZelDomNode *node)
{
    modelSetupNode(node);
}

void ZelUIContainer::setData(Meta *meta, int64_t id)
{
    for (ZelUIContainer *container : mContainers)
        container->setData(meta, id);
    for (ZelUIElement *element : mElements)
        element->setData(meta, id);
}

void ZelUIContainer::getData(Meta *meta, int64_t id)
{
    for (ZelUIContainer *container : mContainers)
        container->getData(meta, id);
    for (ZelUIElement *element : mElements)
        element->getData(meta, id);
}

void ZelUIContainer::modelForget(ZelUIObject *child)
{
    std::erase(mContainers, child);
    std::erase(mElements, child);
}

void ZelUIContainer::modelAddContainer(ZelUIContainer *container)
{
    if (!container
        || std::find(mContainers.begin(), mContainers.end(), container) != mContainers.end())
        return;
    container->setModelParent(this);
    mContainers.push_back(container);
}

void ZelUIContainer::modelAddElement(ZelUIElement *element)
{
    if (!element || std::find(mElements.begin(), mElements.end(), element) != mElements.end())
        return;
    element->setModelParent(this);
    mElements.push_back(element);
}
