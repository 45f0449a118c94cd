#include "zelUIGroup.h"

#include "zelDomNode.h"
#include "zelUiParser.h"

ZelUIGroup::ZelUIGroup() = default;
ZelUIGroup::~ZelUIGroup() = default;

void ZelUIGroup::setup(const ZelDomNode *node)
{
    ZelUIBoard::setup(node);
    if (!node)
        return;
    mTitle.setup(node);
    mFlat = ZelUiParser::isTrue(node->attribute(L"flat"));
}
