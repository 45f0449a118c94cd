#include "zelFault.h"

#include <algorithm>

std::string ZelFault::toString() const
{
    std::string line = mFile;
    if (mLine > 0)
        line += ':' + std::to_string(mLine) + ':' + std::to_string(mColumn);
    line += mSeverity == ZelFaultSeverity::Error ? ": error: " : ": warning: ";
    line += mText;
    if (!mExpected.empty())
        line += " (" + mExpected + ')';
    return line;
}

std::string zelFaultReport(const ZelFaultList &faults, size_t limit)
{
    std::string report;
    const size_t shown = std::min(limit, faults.size());
    for (size_t i = 0; i < shown; ++i)
        report += faults[i].toString() + '\n';
    if (faults.size() > shown)
        report += "and " + std::to_string(faults.size() - shown) + " more\n";
    return report;
}
