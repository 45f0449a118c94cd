#include "zelUIOutputElement.h"

#include "zelDomNode.h"
#include "zelFunctionText_p.h"

ZelUIOutputElement::ZelUIOutputElement() = default;
ZelUIOutputElement::~ZelUIOutputElement() = default;

void ZelUIOutputElement::setup(const ZelDomNode *node)
{
    ZelUIViewElement::setup(node);
    if (node)
        mFunction = node->attribute(L"function");
}

void ZelUIOutputElement::setData(Meta *meta, int64_t id)
{
    ZelUIViewElement::setData(meta, id);
    if (meta && !mFunction.empty())
        mHtml = zelFunctionText(*meta, mFunction, id);
}
