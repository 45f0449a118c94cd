#pragma once

#include "zelDimensions.h"
#include "zelSchemaPasses_p.h"

#include <map>
#include <string>
#include <vector>

/// A variable as the check of names sees it.
struct ZelNamedVariable
{
    ZelDomNode *mNode = nullptr;
    /// Tag of the variable.
    std::string mKind;
    /// Choice that holds it already.
    zelWString mChoice;

    bool isNumber() const { return mKind == "real" || mKind == "int"; }
    bool isResult() const { return mNode->attribute(L"role") == L"result"; }
    ZelDimensions::Type dimension() const;
};

/// The variables of a description by name, and the lookup of references to them.
class ZelNameTable
{
public:
    explicit ZelNameTable(ZelCheckReport &report)
        : mReport(report)
    {
    }

    /// False, with a fault, for a name that can't be taken.
    bool add(ZelDomNode &node);
    /// Null, with a fault at `place`, for a name that is none; without one for a variable that was
    /// left out.
    ZelNamedVariable *find(const zelWString &name, ZelPlace place);
    /// False for the second page of a name.
    bool takePage(const zelWString &name) { return mPages.insert(name).second; }
    ZelCheckReport &report() const { return mReport; }

private:
    ZelCheckReport &mReport;
    std::map<zelWString, ZelNamedVariable> mVariables;
    std::set<zelWString> mPages;
};

/// Entries, alternatives, columns, limits and initial values of a variable.
void zelCheckVariable(ZelDomNode &node, ZelNameTable &names);
/// The references of a page and all below it.
void zelCheckPage(ZelDomNode &page, ZelNameTable &names);
