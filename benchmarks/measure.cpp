#include "measure.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <malloc.h>

double milliseconds(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const size_t middle = values.size() / 2;
    return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

Comparison compare(const QString &name, const QString &unit, const std::function<double()> &library,
                   const std::function<double()> &plain, int runs)
{
    std::vector<double> libraryFigures;
    std::vector<double> plainFigures;
    library();
    plain();
    for (int i = 0; i < runs; ++i) {
        libraryFigures.push_back(library());
        plainFigures.push_back(plain());
    }
    return {name, median(libraryFigures), median(plainFigures), unit};
}

double allocatedBytes()
{
    return static_cast<double>(mallinfo2().uordblks);
}

void printHead()
{
    std::printf("%-44s %12s %12s %-6s %7s\n", "case", "library", "plain Qt", "unit", "ratio");
    std::fflush(stdout);
}

void print(const Comparison &one)
{
    std::printf("%-44s %12.4f %12.4f %-6s %7.2f\n", qPrintable(one.mCase), one.mLibrary, one.mPlain,
                qPrintable(one.mUnit), one.ratio());
    std::fflush(stdout);
}
