#include "formulaEvaluator.h"

#include <QApplication>
#include <QRegularExpression>
#include <QStatusTipEvent>
#include <QWidget>

#include <cmath>
#include <muParser.h>

namespace {

// A formula that a person types is shorter; the limit keeps a pasted file from taking minutes.
constexpr int longestFormula = 1000;

class FormulaTexts
{
    Q_DECLARE_TR_FUNCTIONS(FormulaTexts)

public:
    static QString refusal(const mu::ParserError &error)
    {
        const QString token = QString::fromStdString(error.GetToken());
        const int place = error.GetPos() + 1;
        switch (error.GetCode()) {
        case mu::ecUNASSIGNABLE_TOKEN:
        case mu::ecUNDEFINED:
            return tr("Unbekannter Name \"%1\" an Stelle %2.").arg(token).arg(place);
        case mu::ecUNEXPECTED_EOF:
            return tr("Die Formel ist nicht zu Ende geschrieben.");
        case mu::ecMISSING_PARENS:
            return tr("Es fehlt eine schliessende Klammer.");
        case mu::ecUNEXPECTED_PARENS:
            return tr("Unerwartete Klammer an Stelle %1.").arg(place);
        case mu::ecTOO_MANY_PARAMS:
            return tr("Zu viele Argumente für \"%1\".").arg(token);
        case mu::ecTOO_FEW_PARAMS:
            return tr("Zu wenige Argumente für \"%1\".").arg(token);
        default:
            return tr("Die Formel ist an Stelle %1 nicht lesbar.").arg(place);
        }
    }
    static QString empty() { return tr("Die Formel ist leer."); }
    static QString tooLong() { return tr("Die Formel ist zu lang."); }
    static QString severalValues() { return tr("Die Formel hat mehrere Werte."); }
    static QString ambiguousLog()
    {
        return tr("\"log\" ist nicht eindeutig: ln ist der natürliche, lg der Zehnerlogarithmus.");
    }
    static QString notFinite() { return tr("Die Formel ergibt keine endliche Zahl."); }
};

double degrees(double radians)
{
    return radians * 180.0 / M_PI;
}

double radians(double degrees)
{
    return degrees * M_PI / 180.0;
}

double cubeRoot(double value)
{
    return std::cbrt(value);
}

// Halves away from zero, as the fields round; muparser's own rint rounds them to even.
double rounded(double value)
{
    return std::round(value);
}

double decimalLogarithm(double value)
{
    return std::log10(value);
}

mu::Parser makeParser()
{
    mu::Parser parser;
    parser.SetArgSep(';');
    parser.ClearConst();
    parser.DefineConst("pi", M_PI);
    parser.DefineConst("e", M_E);
    parser.DefineFun("deg", degrees);
    parser.DefineFun("rad", radians);
    parser.DefineFun("cbrt", cubeRoot);
    parser.DefineFun("round", rounded);
    parser.DefineFun("lg", decimalLogarithm);
    return parser;
}

bool namesLog(const QString &formula)
{
    // As a whole word before a bracket: "log10(" and "log2(" are other names.
    static const QRegularExpression log(QStringLiteral("\\blog\\s*\\("));
    return log.match(formula).hasMatch();
}

FormulaResult refused(const QString &why)
{
    FormulaResult result;
    result.mRefusal = why;
    return result;
}

} // namespace

FormulaResult evaluateFormula(const QString &formula)
{
    QString text = formula.trimmed();
    if (text.isEmpty())
        return refused(FormulaTexts::empty());
    if (text.size() > longestFormula)
        return refused(FormulaTexts::tooLong());
    if (namesLog(text))
        return refused(FormulaTexts::ambiguousLog());
    text.replace(QLatin1Char(','), QLatin1Char('.'));
    try {
        static mu::Parser parser = makeParser();
        parser.SetExpr(text.toStdString());
        int count = 0;
        const mu::value_type *values = parser.Eval(count);
        if (count != 1)
            return refused(FormulaTexts::severalValues());
        FormulaResult result;
        result.mValue = values[0];
        result.mValid = std::isfinite(result.mValue);
        if (!result.mValid)
            return refused(FormulaTexts::notFinite());
        return result;
    } catch (const mu::ParserError &error) {
        return refused(FormulaTexts::refusal(error));
    }
}

bool evaluateFormulaForField(const QString &formula, double &value)
{
    const FormulaResult result = evaluateFormula(formula);
    if (result.mValid)
        value = result.mValue;
    if (QWidget *window = QApplication::activeWindow()) {
        QStatusTipEvent tip(result.mRefusal);
        QCoreApplication::sendEvent(window, &tip);
    }
    return result.mValid;
}
