#include "zelUIImageElement.h"

#include "meta.h"
#include "zelFunctionText_p.h"
#include "zelUIVarKinds.h"
#include "zelUiParts_p.h"

ZelUIImageElement::ZelUIImageElement() = default;
ZelUIImageElement::~ZelUIImageElement() = default;

void ZelUIImageElement::setup(ZelUIVarImage *variable, AttrMap &attributes)
{
    ZelUIObject::setup(variable, attributes);
    mFunction = zelAttribute(attributes, L"function");
    mFile = zelAttribute(attributes, L"file");
}

void ZelUIImageElement::setData(Meta *meta, int64_t id)
{
    ZelUIViewElement::setData(meta, id);
    if (!meta)
        return;
    if (!mFunction.empty())
        mImagePath = zelFunctionText(*meta, mFunction, id);
    else if (modelVariable())
        mImagePath = meta->text(*modelVariable(), id);
    else
        mImagePath = mFile;
}
