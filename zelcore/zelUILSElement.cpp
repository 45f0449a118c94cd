#include "zelUILSElement.h"

#include "zelUIComboBox.h"
#include "zelUISpinBox.h"
#include "zelUITextLabel.h"
#include "zelUiParts_p.h"

ZelUILSElement::ZelUILSElement() = default;
ZelUILSElement::~ZelUILSElement() = default;

void ZelUILSElement::modelMakeParts()
{
    for (ZelUIItem *item : std::initializer_list<ZelUIItem *>{mLabel1, mCombo, mLabel2, mSpinBox})
        modelAddItem(item);
}

void ZelUILSElement::modelForget(ZelUIObject *child)
{
    zelForget(mLabel1, child);
    zelForget(mCombo, child);
    zelForget(mLabel2, child);
    zelForget(mSpinBox, child);
    ZelUIElement::modelForget(child);
}
