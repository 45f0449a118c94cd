#include "zelUIFlagElement.h"

#include "zelDomNode.h"
#include "zelUIFlag.h"
#include "zelUIStdButtonBox.h"
#include "zelUIVarKinds.h"
#include "zelUiBuild.h"
#include "zelUiFactory.h"
#include "zelUiParts_p.h"

struct ZelUIFlagElement::Announced
{
    ZelUIVarBool *mVariable = nullptr;
    AttrMap mAttributes;
};

ZelUIFlagElement::ZelUIFlagElement() = default;
ZelUIFlagElement::~ZelUIFlagElement() = default;

void ZelUIFlagElement::setup(ZelUIVar *variable, AttrMap &attributes)
{
    ZelUIElement::setup(variable, attributes);
    auto *flag = dynamic_cast<ZelUIVarBool *>(variable);
    if (flag)
        mAnnounced = std::make_unique<Announced>(Announced{flag, attributes});
}

void ZelUIFlagElement::modelMakeParts()
{
    ZelUiBuild *build = ZelUiBuild::current();
    if (build && mAnnounced) {
        const std::unique_ptr<Announced> announced = std::move(mAnnounced);
        mFlag = build->factory().makeFlag();
        if (mFlag) {
            if (modelNode() && modelNode()->hasAttribute(L"text")) {
                ZelUITextHandler text;
                text.setup(modelNode());
                mFlag->setModelText(text);
            }
            AttrMap attributes = announced->mAttributes;
            mFlag->setup(announced->mVariable, attributes);
            mIconBox =
                zelMakeIconBox(*build, announced->mVariable, announced->mAttributes, modelNode());
        }
    }
    modelAdoptParts();
}

void ZelUIFlagElement::modelAdoptParts()
{
    modelAddItem(mFlag);
    if (mIconBox)
        mIconBox->setModelParent(this);
}

void ZelUIFlagElement::updateState(Meta *meta, int64_t id)
{
    ZelUIElement::updateState(meta, id);
    if (mIconBox)
        mIconBox->updateState(mVisible);
}

void ZelUIFlagElement::modelForget(ZelUIObject *child)
{
    zelForget(mFlag, child);
    zelForget(mIconBox, child);
    ZelUIElement::modelForget(child);
}
