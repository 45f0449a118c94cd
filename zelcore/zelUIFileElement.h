#pragma once

#include "zelUIStdElement.h"

class ZelUIPushButton;

/// A line of file names: as the standard line, with a file button for each input.
class ZELCORE_EXPORT ZelUIFileElement : public ZelUIStdElement
{
public:
    ZelUIFileElement();
    ~ZelUIFileElement() override;

    void modelMakeParts() override;

    std::vector<ZelUIPushButton *> mFileButtons;

protected:
    void modelForget(ZelUIObject *child) override;
};
