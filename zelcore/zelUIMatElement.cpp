#include "zelUIMatElement.h"

#include "zelUIComboBox.h"
#include "zelUIPushButton.h"
#include "zelUITextLabel.h"
#include "zelUiParts_p.h"

ZelUIMatElement::ZelUIMatElement() = default;
ZelUIMatElement::~ZelUIMatElement() = default;

void ZelUIMatElement::modelMakeParts()
{
    for (ZelUIItem *item :
         std::initializer_list<ZelUIItem *>{mLabel1, mLabel2, mCombo1, mButton1, mCombo2, mButton2})
        modelAddItem(item);
}

void ZelUIMatElement::modelForget(ZelUIObject *child)
{
    zelForget(mLabel1, child);
    zelForget(mLabel2, child);
    zelForget(mCombo1, child);
    zelForget(mButton1, child);
    zelForget(mCombo2, child);
    zelForget(mButton2, child);
    ZelUIElement::modelForget(child);
}
