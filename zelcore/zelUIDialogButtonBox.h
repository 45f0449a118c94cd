#pragma once

#include "zelUIElement.h"

class ZelDomNode;
class ZelUIPushButton;

/// The row of buttons of a dialog as a description chooses it.
class ZELCORE_EXPORT ZelUIDialogButtonBox : public ZelUIElement
{
public:
    /// Any other number acts like Action.
    enum ButtonRole : int { Accept = 0, Reject = 1, Close = 2, Action = 3 };

    ZelUIDialogButtonBox();
    ~ZelUIDialogButtonBox() override;

    using ZelUIElement::setup;
    virtual void setup(const ZelDomNode *node);
    /// After a calculation: buttons with the accept role are enabled when it succeeded. They stay
    /// disabled after a failed one, refreshes included, until the next that succeeds.
    virtual void updateCalcState(bool succeeded);
    void updateState(Meta *meta, int64_t id) override;
    /// Index of the button in the box.
    virtual int addPushButton(ZelUIPushButton *button, ZelUIDialogButtonBox::ButtonRole role);

protected:
    void modelForget(ZelUIObject *child) override;

private:
    void enableAccept(bool enabled);

    std::vector<std::pair<ZelUIPushButton *, ButtonRole>> mButtons;
    bool mCalcFailed = false;
};
