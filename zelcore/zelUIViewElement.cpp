#include "zelUIViewElement.h"

#include "zelDomNode.h"
#include "zelUiParser.h"

ZelUIViewElement::ZelUIViewElement() = default;
ZelUIViewElement::~ZelUIViewElement() = default;

void ZelUIViewElement::setup(const ZelDomNode *node)
{
    if (!node)
        return;
    modelSetNode(node);
    mExpanding = ZelUiParser::isTrue(node->attribute(L"expand"));
}

bool ZelUIViewElement::isExpanding() const
{
    return mExpanding;
}
