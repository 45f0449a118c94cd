#pragma once

#include "zelWString.h"
#include "zelmath_export.h"

#include <cstdint>
#include <utility>
#include <vector>

/// The call of module functions by Meta::CallFunc: each parameter names a function, its value is
/// the argument, and result i answers parameter i.
class ZELMATH_EXPORT MetaParam
{
public:
    MetaParam();
    ~MetaParam();

    void addParam(const wchar_t *name, const zelWString &value);
    /// Empty past the last result.
    zelWString getResultAsString(uint64_t index) const;

    const std::vector<std::pair<zelWString, zelWString>> &params() const { return mParams; }
    void addResult(zelWString result) { mResults.push_back(std::move(result)); }
    void clearResults() { mResults.clear(); }

private:
    std::vector<std::pair<zelWString, zelWString>> mParams;
    std::vector<zelWString> mResults;
};
