#include "formulaEvaluator.h"

#include <QtTest>

class tst_formulaEvaluator : public QObject
{
    Q_OBJECT

private slots:
    void evaluates_data();
    void evaluates();
    void refuses_data();
    void refuses();
    void aRefusalLeavesTheValueAlone();
};

void tst_formulaEvaluator::evaluates_data()
{
    QTest::addColumn<QString>("formula");
    QTest::addColumn<double>("value");
    QTest::newRow("sum") << "1+2" << 3.0;
    QTest::newRow("precedence") << "2+3*4" << 14.0;
    QTest::newRow("brackets") << "(2+3)*4" << 20.0;
    QTest::newRow("power") << "2^10" << 1024.0;
    QTest::newRow("sign") << "-3" << -3.0;
    QTest::newRow("decimal comma") << "1,5*2" << 3.0;
    QTest::newRow("decimal point") << "1.5*2" << 3.0;
    QTest::newRow("exponent") << "1e3+1,5e-1" << 1000.15;
    QTest::newRow("semicolon between arguments") << "max(1,5;2,5;0,5)" << 2.5;
    QTest::newRow("blanks") << "  1 + 1  " << 2.0;
    QTest::newRow("pi") << "2*pi" << 2 * M_PI;
    QTest::newRow("e") << "ln(e)" << 1.0;
    QTest::newRow("sqrt") << "sqrt(2)" << std::sqrt(2.0);
    QTest::newRow("cbrt") << "cbrt(27)" << 3.0;
    QTest::newRow("lg") << "lg(1000)" << 3.0;
    QTest::newRow("log10") << "log10(100)" << 2.0;
    QTest::newRow("log2") << "log2(8)" << 3.0;
    QTest::newRow("exp") << "exp(1)" << M_E;
    QTest::newRow("abs") << "abs(-2)" << 2.0;
    QTest::newRow("sign function") << "sign(-2)" << -1.0;
    QTest::newRow("round") << "round(2,5)" << 3.0;
    QTest::newRow("round a negative") << "round(-2,5)" << -3.0;
    QTest::newRow("min") << "min(3;1;2)" << 1.0;
    QTest::newRow("sum function") << "sum(1;2;3)" << 6.0;
    QTest::newRow("avg") << "avg(1;2;3)" << 2.0;
    QTest::newRow("sine of radians") << "sin(pi/2)" << 1.0;
    QTest::newRow("degrees") << "sin(rad(30))" << 0.5;
    QTest::newRow("to degrees") << "deg(atan2(1;1))" << 45.0;
    QTest::newRow("hyperbolic") << "cosh(0)+sinh(0)+tanh(0)" << 1.0;
    QTest::newRow("arcs") << "asin(1)+acos(1)+atan(0)" << M_PI / 2;
}

void tst_formulaEvaluator::evaluates()
{
    QFETCH(QString, formula);
    QFETCH(double, value);
    const FormulaResult result = evaluateFormula(formula);
    QVERIFY2(result.mValid, qPrintable(result.mRefusal));
    QVERIFY2(qAbs(result.mValue - value) <= 1e-12 * qMax(1.0, qAbs(value)),
             qPrintable(QString::number(result.mValue, 'g', 17)));
    QVERIFY(result.mRefusal.isEmpty());
}

void tst_formulaEvaluator::refuses_data()
{
    QTest::addColumn<QString>("formula");
    QTest::addColumn<QString>("refusal");
    QTest::newRow("empty") << "  "
                           << "Die Formel ist leer.";
    QTest::newRow("unknown name") << "2*x"
                                  << "Unbekannter Name \"x\" an Stelle 3.";
    QTest::newRow("unfinished") << "2*"
                                << "Die Formel ist nicht zu Ende geschrieben.";
    QTest::newRow("open bracket") << "(1+2"
                                  << "Es fehlt eine schliessende Klammer.";
    QTest::newRow("closing bracket") << "1+2)"
                                     << "Unerwartete Klammer an Stelle 4.";
    QTest::newRow("too many arguments") << "sqrt(1;2)"
                                        << "Zu viele Argumente für \"sqrt\".";
    QTest::newRow("log") << "log(10)"
                         << "\"log\" ist nicht eindeutig: ln ist der natürliche, lg der "
                            "Zehnerlogarithmus.";
    QTest::newRow("several values") << "1;2"
                                    << "Die Formel hat mehrere Werte.";
    QTest::newRow("division by zero") << "1/0"
                                      << "Die Formel ergibt keine endliche Zahl.";
    QTest::newRow("root of a negative") << "sqrt(-1)"
                                        << "Die Formel ergibt keine endliche Zahl.";
    QTest::newRow("thousands separator") << "1.000,5"
                                         << "Die Formel ist an Stelle 6 nicht lesbar.";
    QTest::newRow("too long") << QString("1+").repeated(600) + "1"
                              << "Die Formel ist zu lang.";
}

void tst_formulaEvaluator::refuses()
{
    QFETCH(QString, formula);
    const FormulaResult result = evaluateFormula(formula);
    QVERIFY(!result.mValid);
    QTEST(result.mRefusal, "refusal");
}

void tst_formulaEvaluator::aRefusalLeavesTheValueAlone()
{
    double value = 7;
    QVERIFY(!evaluateFormulaForField("1+", value));
    QCOMPARE(value, 7.0);
    QVERIFY(evaluateFormulaForField("1+1", value));
    QCOMPARE(value, 2.0);
}

QTEST_MAIN(tst_formulaEvaluator)
#include "tst_formulaEvaluator.moc"
