#include "zelUIColumn.h"

#include "zelDomNode.h"
#include "zelUIButtonBox.h"
#include "zelUIFileElement.h"
#include "zelUIFlagElement.h"
#include "zelUILSElement.h"
#include "zelUILubElement.h"
#include "zelUIMatElement.h"
#include "zelUINotepadElement.h"
#include "zelUITableElement.h"
#include "zelUITextElement.h"
#include "zelUIViewElement.h"
#include "zelUiBuild.h"
#include "zelUiColumnBuilder_p.h"

#include <algorithm>

ZelUIColumn::ZelUIColumn() = default;

ZelUIColumn::~ZelUIColumn()
{
    // Elements leave their column when they go: its lists must still be there.
    mOwned.clear();
}

void ZelUIColumn::setup(const ZelDomNode *node)
{
    ZelUIContainer::setup(node);
    ZelUiBuild *build = ZelUiBuild::current();
    if (!build || !node)
        return;
    ZelUiColumnBuilder builder(*this, *build);
    for (const ZelDomNode *child = node->firstChild(); child; child = child->nextSibling())
        builder.add(*child);
    finishLayout();
}

void ZelUIColumn::takeElement(ZelUIElement *element)
{
    if (!element)
        return;
    modelAddElement(element);
    element->modelMakeParts();
}

bool ZelUIColumn::containsView(bool expandingOnly, bool visibleOnly) const
{
    return std::any_of(mViews.begin(), mViews.end(), [=](const View &view) {
        return (view.mExpanding || !expandingOnly) && (view.mElement->mVisible || !visibleOnly);
    });
}

bool ZelUIColumn::containsViews(bool visibleOnly) const
{
    return containsView(false, visibleOnly);
}

bool ZelUIColumn::containsExpandingViews(bool visibleOnly) const
{
    return containsView(true, visibleOnly);
}

ZelUIColumnStruct *ZelUIColumn::toColumnStruct() const
{
    return new ZelUIColumnStruct{getName(), elemCount()};
}

void ZelUIColumn::addStdElement(ZelUIStdElement *element)
{
    takeElement(element);
}

void ZelUIColumn::addMatElement(ZelUIMatElement *element)
{
    takeElement(element);
}

void ZelUIColumn::addLubElement(ZelUILubElement *element)
{
    takeElement(element);
}

void ZelUIColumn::addLSElement(ZelUILSElement *element)
{
    takeElement(element);
}

void ZelUIColumn::addFileElement(ZelUIFileElement *element)
{
    takeElement(element);
}

void ZelUIColumn::addTextElement(ZelUITextElement *element)
{
    takeElement(element);
}

void ZelUIColumn::addFlagElement(ZelUIFlagElement *element)
{
    takeElement(element);
}

void ZelUIColumn::addTableElement(ZelUITableElement *element, bool expanding, int)
{
    takeElement(element);
    if (element)
        mViews.push_back({element, expanding});
}

void ZelUIColumn::addViewElement(ZelUIViewElement *element, bool expanding, int)
{
    takeElement(element);
    if (element)
        mViews.push_back({element, expanding});
}

void ZelUIColumn::addNotepadElement(ZelUINotepadElement *element, bool expanding, int)
{
    takeElement(element);
    if (element && expanding)
        mViews.push_back({element, true});
}

void ZelUIColumn::addButtonElement(ZelUIButtonBox *element)
{
    takeElement(element);
}

void ZelUIColumn::finishLayout()
{
}

bool ZelUIColumn::isContentVisible()
{
    return std::any_of(modelElements().begin(), modelElements().end(),
                       [](const ZelUIElement *element) { return element->mVisible; });
}

void ZelUIColumn::modelForget(ZelUIObject *child)
{
    std::erase_if(mViews, [child](const View &view) { return view.mElement == child; });
    ZelUIContainer::modelForget(child);
}
