#pragma once

#include "zelUIViewElement.h"

class ZelUIVarImage;

/// A picture in a mask. Its path is the value of an image variable, what the function of the
/// attribute "function" yields, or the attribute "file".
class ZELCORE_EXPORT ZelUIImageElement : public ZelUIViewElement
{
public:
    ZelUIImageElement();
    ~ZelUIImageElement() override;

    using ZelUIViewElement::setup;
    virtual void setup(ZelUIVarImage *variable, AttrMap &attributes);
    void setData(Meta *meta, int64_t id) override;

    zelWString mImagePath;

private:
    zelWString mFunction;
    zelWString mFile;
};
