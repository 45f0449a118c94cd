#include "zelUIButtonBox.h"

#include "zelDomNode.h"
#include "zelUIPushButton.h"
#include "zelUIVarKinds.h"
#include "zelUiBuild.h"
#include "zelUiFactory.h"
#include "zelUiParts_p.h"

ZelUIButtonBox::ZelUIButtonBox() = default;
ZelUIButtonBox::~ZelUIButtonBox() = default;

void ZelUIButtonBox::setup(ZelUIVar *variable, AttrMap &attributes)
{
    ZelUIElement::setup(variable, attributes);
    mAttributes = attributes;
    mAlignment = zelAlignment(zelAttribute(attributes, L"align"));
}

void ZelUIButtonBox::modelMakeParts()
{
    ZelUiBuild *build = ZelUiBuild::current();
    auto *variable = dynamic_cast<ZelUIVarTextButton *>(modelVariable());
    if (build && !mButton && (variable || modelNode())) {
        mButton = build->factory().makePushButton();
        if (mButton && variable) {
            if (modelNode() && modelNode()->hasAttribute(L"text")) {
                ZelUITextHandler text;
                text.setup(modelNode());
                mButton->setModelText(text);
            }
            mButton->setup(variable, mAttributes);
        } else if (mButton) {
            mButton->setup(modelNode());
        }
    }
    modelAdoptParts();
}

void ZelUIButtonBox::modelAdoptParts()
{
    modelAddItem(mButton);
}

void ZelUIButtonBox::modelForget(ZelUIObject *child)
{
    zelForget(mButton, child);
    ZelUIElement::modelForget(child);
}
