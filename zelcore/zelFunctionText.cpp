#include "zelFunctionText_p.h"

#include "meta.h"

zelWString zelFunctionText(Meta &meta, const zelWString &function, int64_t id)
{
    MetaParam call;
    call.addParam(function.data(), zelWString(std::to_wstring(id)));
    return meta.CallFunc(call) ? call.getResultAsString(0) : zelWString();
}
