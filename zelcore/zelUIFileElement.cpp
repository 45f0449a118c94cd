#include "zelUIFileElement.h"

#include "zelUIPushButton.h"
#include "zelUiParts_p.h"

ZelUIFileElement::ZelUIFileElement() = default;
ZelUIFileElement::~ZelUIFileElement() = default;

void ZelUIFileElement::modelMakeParts()
{
    ZelUIStdElement::modelMakeParts();
    for (ZelUIPushButton *button : mFileButtons)
        modelAddItem(button);
}

void ZelUIFileElement::modelForget(ZelUIObject *child)
{
    zelForget(mFileButtons, child);
    ZelUIStdElement::modelForget(child);
}
