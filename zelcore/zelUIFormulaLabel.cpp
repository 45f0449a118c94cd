#include "zelUIFormulaLabel.h"

#include "zelUIMultiVar.h"

ZelUIFormulaLabel::ZelUIFormulaLabel()
{
    setModelKind(L"formula");
}

ZelUIFormulaLabel::~ZelUIFormulaLabel() = default;

void ZelUIFormulaLabel::setup(ZelUIMultiVar *variable, AttrMap &attributes)
{
    ZelUIObject::setup(variable, attributes);
    if (variable)
        mFormula = variable->mFormula;
}
