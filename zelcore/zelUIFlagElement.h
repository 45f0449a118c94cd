#pragma once

#include "zelUIElement.h"

class ZelUIFlag;
class ZelUIStdButtonBox;

/// A flag over the whole width. Parts are not owned.
class ZELCORE_EXPORT ZelUIFlagElement : public ZelUIElement
{
public:
    ZelUIFlagElement();
    ~ZelUIFlagElement() override;

    using ZelUIElement::setup;
    void setup(ZelUIVar *variable, AttrMap &attributes) override;
    void modelMakeParts() override;
    void updateState(Meta *meta, int64_t id) override;
    void modelAdoptParts();

    ZelUIFlag *mFlag = nullptr;
    ZelUIStdButtonBox *mIconBox = nullptr;

protected:
    void modelForget(ZelUIObject *child) override;

private:
    struct Announced;
    std::unique_ptr<Announced> mAnnounced;
};
