#pragma once

#include "zelDomNode.h"
#include "zelFault.h"
#include "zelcore_export.h"

#include <string>

class Meta;
class ZelUIVar;
class ZelUiFactory;

/// A build of a mask under way. It stands on the stack of whoever builds and is found by the set-up
/// operations of the tree, which have no argument for it. Builds may nest.
class ZELCORE_EXPORT ZelUiBuild
{
public:
    ZelUiBuild(Meta &meta, ZelUiFactory &factory, ZelFaultList &faults, std::string fileName);
    ~ZelUiBuild();
    ZelUiBuild(const ZelUiBuild &) = delete;
    ZelUiBuild &operator=(const ZelUiBuild &) = delete;

    /// Null when nothing is being built.
    static ZelUiBuild *current();

    Meta &meta() const { return mMeta; }
    ZelUiFactory &factory() const { return mFactory; }
    /// The variable that the attribute "name" of a node names; null, with a fault at its place, for
    /// an unknown name. A missing attribute is left to the check of the description.
    ZelUIVar *variableOf(const ZelDomNode &node);
    void fault(ZelFaultCode code, ZelPlace place, const std::string &text,
               const std::string &expected = {});

private:
    Meta &mMeta;
    ZelUiFactory &mFactory;
    ZelFaultList &mFaults;
    std::string mFileName;
    ZelUiBuild *mOuter;
};
