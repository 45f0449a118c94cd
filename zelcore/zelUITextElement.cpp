#include "zelUITextElement.h"

#include "zelDomNode.h"
#include "zelUITextLabel.h"
#include "zelUIVarKinds.h"
#include "zelUiBuild.h"
#include "zelUiFactory.h"
#include "zelUiParts_p.h"

struct ZelUITextElement::Announced
{
    ZelUIVarText *mVariable = nullptr;
    AttrMap mAttributes;
    const ZelDomNode *mText = nullptr;
};

ZelUITextElement::ZelUITextElement() = default;
ZelUITextElement::~ZelUITextElement() = default;

void ZelUITextElement::setup(ZelUIVar *variable, AttrMap &attributes)
{
    ZelUIElement::setup(variable, attributes);
    auto *text = dynamic_cast<ZelUIVarText *>(variable);
    if (text)
        mAnnounced = std::make_unique<Announced>(Announced{text, attributes, nullptr});
}

void ZelUITextElement::modelSetupText(const ZelDomNode *node)
{
    if (!node)
        return;
    modelSetNode(node);
    mAnnounced = std::make_unique<Announced>(Announced{nullptr, {}, node});
}

void ZelUITextElement::modelMakeParts()
{
    ZelUiBuild *build = ZelUiBuild::current();
    if (build && mAnnounced) {
        const std::unique_ptr<Announced> announced = std::move(mAnnounced);
        ZelUiFactory &factory = build->factory();
        if (announced->mText) {
            mLabel = factory.makeTextLabel(zelAlignment(announced->mText->attribute(L"align")));
            if (mLabel)
                mLabel->setup(announced->mText);
        } else if (ZelUITextLabel *value = factory.makeTextLabel(ZelUIAlignment::Left)) {
            value->setup(announced->mVariable, announced->mAttributes, 0);
            mValueLabels.push_back(value);
            mLabel =
                zelMakePrompt(*build, announced->mVariable, announced->mAttributes, modelNode());
        }
    }
    modelAdoptParts();
}

void ZelUITextElement::modelAdoptParts()
{
    modelAddItem(mLabel);
    for (ZelUITextLabel *label : mValueLabels)
        modelAddItem(label);
}

void ZelUITextElement::modelForget(ZelUIObject *child)
{
    zelForget(mLabel, child);
    zelForget(mValueLabels, child);
    ZelUIElement::modelForget(child);
}
