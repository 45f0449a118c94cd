#include "zelUITableElement.h"

#include "zelUIFlag.h"
#include "zelUIPushButton.h"
#include "zelUITable.h"
#include "zelUiParts_p.h"

ZelUITableElement::ZelUITableElement() = default;
ZelUITableElement::~ZelUITableElement() = default;

void ZelUITableElement::modelMakeParts()
{
    modelAddItem(mTable);
    modelAddItem(mLeadingButton);
    modelAddItem(mLeadingFlag);
    for (const auto &list : mButtonLists) {
        for (ZelUIPushButton *button : list)
            modelAddItem(button);
    }
}

void ZelUITableElement::updateUnitSystem(bool keepDefault)
{
    if (mTable)
        mTable->updateUnitSystem(keepDefault);
}

void ZelUITableElement::modelForget(ZelUIObject *child)
{
    zelForget(mTable, child);
    zelForget(mLeadingButton, child);
    zelForget(mLeadingFlag, child);
    for (auto &list : mButtonLists)
        zelForget(list, child);
    ZelUIElement::modelForget(child);
}
