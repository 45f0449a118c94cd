#include "zelUIStdButtonBox.h"

#include "zelUIPushButton.h"

#include <algorithm>

ZelUIStdButtonBox::ZelUIStdButtonBox() = default;
ZelUIStdButtonBox::~ZelUIStdButtonBox() = default;

void ZelUIStdButtonBox::updateState(bool visible)
{
    mVisible = visible;
}

ZelUIPushButton *ZelUIStdButtonBox::getPushButton(int index) const
{
    const bool exists = index >= 0 && index < count();
    return exists ? mButtons[static_cast<size_t>(index)] : nullptr;
}

void ZelUIStdButtonBox::modelAddButton(ZelUIPushButton *button)
{
    if (!button || std::find(mButtons.begin(), mButtons.end(), button) != mButtons.end())
        return;
    mButtons.push_back(button);
    button->setModelParent(this);
}

void ZelUIStdButtonBox::modelForget(ZelUIObject *child)
{
    mButtons.erase(std::remove(mButtons.begin(), mButtons.end(), child), mButtons.end());
}
