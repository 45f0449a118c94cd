// Which buttons each mode of the dialog button box shows.

#include "zelQtDialogButtonBox.h"

#include <vector>

/// A row of the table of modes. The default button is one of the two kinds.
struct ZelQtDialogButtonBox::ModeButtons
{
    StandardButtons mStandard;
    std::vector<OwnButton> mOwn;
    StandardButton mDefaultStandard;
    Own mDefaultOwn = OwnCount;
};

// Null for STANDARD and for a number outside the table: both leave the standard buttons as they
// are.
const ZelQtDialogButtonBox::ModeButtons *ZelQtDialogButtonBox::buttonsOf(Mode mode)
{
    constexpr bool shown = true;
    constexpr bool grey = false;
    static const std::vector<ModeButtons> table = {
        {Ok | Cancel, {}, Ok},
        {Close, {}, Close},
        {Cancel, {{Calc, shown}, {Accept, grey}}, NoButton, Accept},
        {Close, {{Calc, shown}}, Close},
        {Cancel, {{Delete, grey}, {Calc, shown}, {Accept, grey}}, NoButton, Accept},
        {Cancel, {{Delete, grey}, {Report, grey}, {Calc, shown}, {Accept, grey}}, NoButton, Accept},
        {Cancel, {{Calc, shown}, {Report, grey}, {Accept, grey}}, NoButton, Accept},
        {Close, {{Report, grey}, {Calc, shown}}, Close},
        {NoButton, {{Edit, shown}}, NoButton, Edit},
        {NoButton, {{Show, shown}}, NoButton, Show},
        {Close, {{Save, grey}, {Report, grey}, {Calc, shown}}, Close},
        {Close, {{Accept, grey}, {Save, grey}, {Report, grey}, {Calc, shown}}, Close},
    };
    const int row = mode - OK_CANCEL;
    return row < 0 || row >= static_cast<int>(table.size()) ? nullptr
                                                            : &table[static_cast<size_t>(row)];
}

void ZelQtDialogButtonBox::setMode(Mode mode)
{
    setMode(mode, mode == SHOW ? StandardButtons(Close) : Ok | Cancel);
}

void ZelQtDialogButtonBox::setMode(Mode mode, QDialogButtonBox::StandardButtons standardButtons)
{
    mMode = mode;
    takeOwnButtonsOut();
    const ModeButtons *buttons = buttonsOf(mode);
    if (!buttons)
        return;
    const bool free = mode == EDIT || mode == SHOW;
    setStandardButtons(free ? standardButtons : buttons->mStandard);
    for (const OwnButton &own : buttons->mOwn)
        showOwnButton(own.mButton, own.mEnabled);
    makeDefault(buttons->mDefaultOwn == OwnCount ? button(buttons->mDefaultStandard)
                                                 : mButtons[buttons->mDefaultOwn]);
}

// What a button was told in the former mode does not count in the next one.
void ZelQtDialogButtonBox::takeOwnButtonsOut()
{
    for (QPushButton *button : mButtons) {
        button->hide();
        removeButton(button);
        button->setEnabled(true);
        button->setDefault(false);
    }
}

// Adding comes first: outside the box the button has no parent and would open as a window.
void ZelQtDialogButtonBox::showOwnButton(Own button, bool enabled)
{
    addButton(mButtons[button], button == Accept ? AcceptRole : ActionRole);
    mButtons[button]->show();
    mButtons[button]->setEnabled(enabled);
}
