#include "zelUiBuild.h"

#include "meta.h"

namespace {

ZelUiBuild *innermost = nullptr;

} // namespace

ZelUiBuild::ZelUiBuild(Meta &meta, ZelUiFactory &factory, ZelFaultList &faults,
                       std::string fileName)
    : mMeta(meta)
    , mFactory(factory)
    , mFaults(faults)
    , mFileName(std::move(fileName))
    , mOuter(innermost)
{
    innermost = this;
}

ZelUiBuild::~ZelUiBuild()
{
    innermost = mOuter;
}

ZelUiBuild *ZelUiBuild::current()
{
    return innermost;
}

ZelUIVar *ZelUiBuild::variableOf(const ZelDomNode &node)
{
    const zelWString name = node.attribute(L"name");
    ZelUIVar *variable = name.empty() ? nullptr : mMeta.variable(name);
    if (!variable && !name.empty())
        fault(ZelFaultCode::UnknownName, node.attributeValuePlace(L"name"),
              "unknown variable \"" + name.toUtf8() + "\"", "the name of a variable");
    return variable;
}

void ZelUiBuild::fault(ZelFaultCode code, ZelPlace place, const std::string &text,
                       const std::string &expected)
{
    ZelFault fault;
    fault.mCode = code;
    fault.mFile = mFileName;
    fault.mLine = place.mLine;
    fault.mColumn = place.mColumn;
    fault.mText = text;
    fault.mExpected = expected;
    mFaults.push_back(std::move(fault));
}
