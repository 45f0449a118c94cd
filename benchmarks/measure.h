#pragma once

#include <QString>

#include <functional>
#include <vector>

/// Two ways of doing the same work, measured in turn so that both meet the same disturbances.
struct Comparison
{
    QString mCase;
    double mLibrary = 0; ///< median, in the unit of the case
    double mPlain = 0; ///< median, in the unit of the case
    QString mUnit;

    double ratio() const { return mLibrary / mPlain; }
};

/// Milliseconds that `work` takes once.
double milliseconds(const std::function<void()> &work);
double median(std::vector<double> values);
/// Runs both in turn, `runs` times after one run that doesn't count; each answers with its own
/// figure.
Comparison compare(const QString &name, const QString &unit, const std::function<double()> &library,
                   const std::function<double()> &plain, int runs = 7);
/// Bytes that the process has allocated and not freed.
double allocatedBytes();
void printHead();
/// One line of the table, at once: the whole takes a while.
void print(const Comparison &one);
