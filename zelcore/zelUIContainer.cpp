#include "zelUIContainer.h"

#include "zelUIElement.h"

#include <algorithm>

namespace {

// A new node has another parent, so that columns of thousands of lines are not searched for each.
template <class Node>
bool holds(const std::vector<Node *> &nodes, const Node *node, const ZelUIContainer *container)
{
    return node->modelParent() == container
        && std::find(nodes.begin(), nodes.end(), node) != nodes.end();
}

} // namespace

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
    if (!container || holds(mContainers, container, this))
        return;
    container->setModelParent(this);
    mContainers.push_back(container);
}

void ZelUIContainer::modelAddElement(ZelUIElement *element)
{
    if (!element || holds(mElements, element, this))
        return;
    element->setModelParent(this);
    mElements.push_back(element);
}
