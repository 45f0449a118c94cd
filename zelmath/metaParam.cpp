#include "metaParam.h"

MetaParam::MetaParam() = default;

MetaParam::~MetaParam() = default;

void MetaParam::addParam(const wchar_t *name, const zelWString &value)
{
    mParams.emplace_back(name, value);
}

zelWString MetaParam::getResultAsString(uint64_t index) const
{
    return index < mResults.size() ? mResults[index] : zelWString();
}
