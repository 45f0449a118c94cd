#pragma once

#include <QString>

class Meta;

/// Results of an example beside the expected values.
struct ExampleCheck
{
    bool mRight = false;
    /// A line for each value: name, unit, result, expected value, relative deviation.
    QString mTable;
};

/// Compares what `meta` holds with a file of lines "name, unit, value" (separated by tabs, "#"
/// begins a comment, "none" as value expects none). A value is right within 1e-5 of the expected
/// one.
ExampleCheck checkExample(const Meta &meta, const QString &expectedFile);
