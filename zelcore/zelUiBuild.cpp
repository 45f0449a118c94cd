#include "zelUiBuild.h"

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
