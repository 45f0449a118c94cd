#include "zelUILubElement.h"

#include "zelUIComboBox.h"
#include "zelUIPushButton.h"
#include "zelUITextLabel.h"
#include "zelUiParts_p.h"

ZelUILubElement::ZelUILubElement() = default;
ZelUILubElement::~ZelUILubElement() = default;

void ZelUILubElement::modelMakeParts()
{
    for (ZelUIItem *item :
         std::initializer_list<ZelUIItem *>{mLabel, mCombo1, mButton1, mCombo2, mButton2, mButton3})
        modelAddItem(item);
}

void ZelUILubElement::modelForget(ZelUIObject *child)
{
    zelForget(mLabel, child);
    zelForget(mCombo1, child);
    zelForget(mButton1, child);
    zelForget(mCombo2, child);
    zelForget(mButton2, child);
    zelForget(mButton3, child);
    ZelUIElement::modelForget(child);
}
