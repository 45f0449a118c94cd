#pragma once

#include "zelUIElement.h"
#include "zelUITypes.h"

class ZelUITextLabel;

/// A line of text: a heading, or a prompt with texts that the module writes. Parts are not owned.
class ZELCORE_EXPORT ZelUITextElement : public ZelUIElement
{
public:
    ZelUITextElement();
    ~ZelUITextElement() override;

    using ZelUIElement::setup;
    void setup(ZelUIVar *variable, AttrMap &attributes) override;
    /// A text of the description, with its alignment.
    void modelSetupText(const ZelDomNode *node);
    void modelMakeParts() override;
    void modelAdoptParts();

    ZelUITextLabel *mLabel = nullptr;
    std::vector<ZelUITextLabel *> mValueLabels;

protected:
    void modelForget(ZelUIObject *child) override;

private:
    struct Announced;
    std::unique_ptr<Announced> mAnnounced;
};
