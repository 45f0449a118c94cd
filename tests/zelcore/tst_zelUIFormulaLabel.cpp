#include "mask.h"
#include "zelUIFormulaLabel.h"
#include "zelUIMultiVar.h"

#include <QtTest>

class tst_zelUIFormulaLabel : public QObject
{
    Q_OBJECT
private slots:
    void takesTheSymbolOfItsVariable();
    void setupWithoutVariableLeavesTheSymbol();
    void plainSetupLeavesTheSymbol();
    void symbolCanBeGiven();
};

void tst_zelUIFormulaLabel::takesTheSymbolOfItsVariable()
{
    ZelUIMultiVar variable(L"tau_k2");
    variable.mFormula = L"τ<sub>k2</sub>";
    AttrMap attributes;
    ZelUIFormulaLabel label;
    QVERIFY(label.getFormula().empty());
    label.setup(&variable, attributes);
    QCOMPARE(toText(label.getFormula()), QString("τ<sub>k2</sub>"));
    QCOMPARE(toText(label.getItemName()), QString("tau_k2_formula"));
}

void tst_zelUIFormulaLabel::setupWithoutVariableLeavesTheSymbol()
{
    AttrMap attributes;
    ZelUIFormulaLabel label;
    label.setModelFormula(L"x");
    label.setup(static_cast<ZelUIMultiVar *>(nullptr), attributes);
    QCOMPARE(toText(label.getFormula()), QString("x"));
}

// For variables that are no numbers: their symbol comes from the line.
void tst_zelUIFormulaLabel::plainSetupLeavesTheSymbol()
{
    ZelUIVarBool variable(L"on");
    variable.mFormula = L"y";
    AttrMap attributes;
    ZelUIFormulaLabel label;
    label.setModelFormula(L"x");
    label.setup(static_cast<ZelUIVar *>(&variable), attributes);
    QCOMPARE(toText(label.getFormula()), QString("x"));
    QCOMPARE(toText(label.getItemName()), QString("on_formula"));
}

void tst_zelUIFormulaLabel::symbolCanBeGiven()
{
    ZelUIMultiVar variable(L"d");
    variable.mFormula = L"d";
    AttrMap attributes;
    ZelUIFormulaLabel label;
    label.setup(&variable, attributes);
    label.setModelFormula(L"d, e");
    QCOMPARE(toText(label.getFormula()), QString("d, e"));
}

QTEST_GUILESS_MAIN(tst_zelUIFormulaLabel)
#include "tst_zelUIFormulaLabel.moc"
