#pragma once

#include "zelUIElement.h"

class ZelDomNode;

/// A picture, a diagram or a page of text that stands in a column as a whole.
class ZELCORE_EXPORT ZelUIViewElement : public ZelUIElement
{
public:
    ZelUIViewElement();
    ~ZelUIViewElement() override;

    using ZelUIElement::setup;
    virtual void setup(const ZelDomNode *node);
    /// True for a view that takes all the room it can get; here when the node says so.
    virtual bool isExpanding() const;

private:
    bool mExpanding = false;
};
