#pragma once

#include "zelUIViewElement.h"

/// A page of text in a mask: the HTML that the function of the attribute "function" yields.
class ZELCORE_EXPORT ZelUIOutputElement : public ZelUIViewElement
{
public:
    ZelUIOutputElement();
    ~ZelUIOutputElement() override;

    using ZelUIViewElement::setup;
    void setup(const ZelDomNode *node) override;
    void setData(Meta *meta, int64_t id) override;

    zelWString mHtml;

private:
    zelWString mFunction;
};
