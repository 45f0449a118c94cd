#pragma once

#include <QString>

/// The value of an arithmetic expression, or why there is none.
struct FormulaResult
{
    bool mValid = false;
    double mValue = 0;
    /// For the user, in his language; empty when the formula is valid.
    QString mRefusal;
};

/// Evaluates a formula of a value field: + - * / ^ and brackets, "," and "." as decimal sign, ";"
/// between arguments, the constants pi and e, and
///
///     sqrt cbrt exp ln lg log10 log2 abs sign round min max sum avg
///     sin cos tan asin acos atan atan2 sinh cosh tanh (angles in radians), rad(degrees),
///     deg(radians)
///
/// "log" is refused, since some mean ln and others lg. A result that is no finite number is
/// refused.
FormulaResult evaluateFormula(const QString &formula);

/// The form that ZelQtFormeleingabe::setEvalFuncPnt takes. A refusal is shown in the status bar of
/// the active window.
bool evaluateFormulaForField(const QString &formula, double &value);
