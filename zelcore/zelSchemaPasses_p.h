#pragma once

#include "zelDomNode.h"
#include "zelFault.h"

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>

class Meta;
class ZelDomDocument;
struct ZelSchemaAttribute;

/// What the passes of a check share: the list of faults of one file, and what was taken out. A name
/// that was taken out with a fault must not give further ones where it is used.
class ZelCheckReport
{
public:
    ZelCheckReport(const std::string &fileName, ZelFaultList &faults);

    void add(ZelFaultCode code, ZelPlace place, std::string text, std::string expected = {});
    /// Faults are only counted from now on; suggestions need not be looked for.
    bool isFull() const { return mFaults.size() - mFirst >= zelFaultLimit; }
    /// Brings what was added into the order of the file.
    void sort();

    std::set<zelWString> mGone;

private:
    const std::string &mFileName;
    ZelFaultList &mFaults;
    size_t mFirst;
};

/// What is wrong with the value of an attribute.
struct ZelValueFault
{
    ZelFaultCode mCode = ZelFaultCode::BadValue;
    std::string mText;
    std::string mExpected;
};

/// Checks a value by its type alone. Names of other things are not looked up.
std::optional<ZelValueFault> zelCheckValue(const ZelSchemaAttribute &attribute,
                                           const zelWString &value);

// The passes, in this order.

/// Tags, places, attributes and types. False when nothing of the file can be used.
bool zelCheckSchema(ZelDomNode &root, ZelCheckReport &report);
/// Names, references and units of common lines.
void zelCheckNames(ZelDomNode &root, ZelCheckReport &report);
/// Adds a variable for each node to `meta`.
void zelMakeVariables(const ZelDomNode &root, Meta &meta);
/// Conditions of variables, which get them, and of nodes.
void zelCheckConditions(ZelDomNode &root, Meta &meta, ZelCheckReport &report);
/// Names of functions that the module does not have.
void zelCheckFunctions(ZelDomNode &root, const Meta &meta, ZelCheckReport &report);

/// "<real name="C">", as messages name a node.
std::string zelNodeText(const ZelDomNode &node);
/// Calls `visit` for the node and all below it; children whose visit yields false are removed.
void zelWalk(ZelDomNode &node, const std::function<bool(ZelDomNode &)> &visit);
