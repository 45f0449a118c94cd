#pragma once

#include "zelUIElement.h"

#include <array>

class ZelUIFlag;
class ZelUIPushButton;
class ZelUITable;

/// A table with the line of buttons below it. Parts are not owned.
class ZELCORE_EXPORT ZelUITableElement : public ZelUIElement
{
public:
    ZelUITableElement();
    ~ZelUITableElement() override;

    /// Makes parts put in by hand known to the walks.
    void modelMakeParts() override;
    void updateUnitSystem(bool keepDefault) override;

    ZelUITable *mTable = nullptr;
    ZelUIPushButton *mLeadingButton = nullptr;
    ZelUIFlag *mLeadingFlag = nullptr;
    std::array<std::vector<ZelUIPushButton *>, 8> mButtonLists;

protected:
    void modelForget(ZelUIObject *child) override;
};
