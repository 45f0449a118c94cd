#pragma once

#include "zelUIItem.h"

class ZelUIMultiVar;

/// The formula symbol of a quantity, rich text.
class ZELCORE_EXPORT ZelUIFormulaLabel : public ZelUIItem
{
public:
    ZelUIFormulaLabel();
    ~ZelUIFormulaLabel() override;

    using ZelUIItem::setup;

    virtual void setup(ZelUIMultiVar *variable, AttrMap &attributes);
    const zelWString &getFormula() const { return mFormula; }
    /// For symbols of variables that are no numbers.
    void setModelFormula(const zelWString &formula) { mFormula = formula; }

private:
    zelWString mFormula;
};
