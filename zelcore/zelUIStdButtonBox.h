#pragma once

#include "zelUIObject.h"

class ZelUIPushButton;

/// The icon buttons at the end of a line.
class ZELCORE_EXPORT ZelUIStdButtonBox : public ZelUIObject
{
public:
    ZelUIStdButtonBox();
    ~ZelUIStdButtonBox() override;

    using ZelUIObject::updateState;
    virtual void updateState(bool visible);

    /// Null past the last one.
    ZelUIPushButton *getPushButton(int index) const;
    bool empty() const { return mButtons.empty(); }
    int count() const { return static_cast<int>(mButtons.size()); }
    /// Not owned.
    void modelAddButton(ZelUIPushButton *button);

protected:
    void modelForget(ZelUIObject *child) override;

private:
    std::vector<ZelUIPushButton *> mButtons;
};
