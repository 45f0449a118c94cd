#include "zelUIDialogButtonBox.h"

#include "zelDomNode.h"
#include "zelUIPushButton.h"
#include "zelUiBuild.h"
#include "zelUiFactory.h"

#include <algorithm>

namespace {

ZelUIDialogButtonBox::ButtonRole roleOf(const zelWString &name)
{
    if (name == L"accept")
        return ZelUIDialogButtonBox::Accept;
    if (name == L"reject")
        return ZelUIDialogButtonBox::Reject;
    return name == L"close" ? ZelUIDialogButtonBox::Close : ZelUIDialogButtonBox::Action;
}

} // namespace

ZelUIDialogButtonBox::ZelUIDialogButtonBox() = default;
ZelUIDialogButtonBox::~ZelUIDialogButtonBox() = default;

void ZelUIDialogButtonBox::setup(const ZelDomNode *node)
{
    ZelUiBuild *build = ZelUiBuild::current();
    if (!build || !node)
        return;
    modelSetNode(node);
    for (const ZelDomNode *child = node->firstChild(L"button"); child;
         child = child->nextSibling(L"button")) {
        ZelUIPushButton *button = build->factory().makePushButton();
        if (!button)
            continue;
        button->setup(child);
        addPushButton(button, roleOf(child->attribute(L"role")));
    }
}

void ZelUIDialogButtonBox::updateCalcState(bool succeeded)
{
    mCalcFailed = !succeeded;
    enableAccept(succeeded);
}

void ZelUIDialogButtonBox::updateState(Meta *meta, int64_t id)
{
    ZelUIElement::updateState(meta, id);
    if (mCalcFailed)
        enableAccept(false);
}

void ZelUIDialogButtonBox::enableAccept(bool enabled)
{
    for (const auto &[button, role] : mButtons) {
        if (role == Accept)
            button->updateState(enabled, button->mVisible);
    }
}

int ZelUIDialogButtonBox::addPushButton(ZelUIPushButton *button,
                                        ZelUIDialogButtonBox::ButtonRole role)
{
    if (!button)
        return -1;
    mButtons.emplace_back(button, role);
    modelAddItem(button);
    return static_cast<int>(mButtons.size()) - 1;
}

void ZelUIDialogButtonBox::modelForget(ZelUIObject *child)
{
    std::erase_if(mButtons, [child](const auto &entry) { return entry.first == child; });
    ZelUIElement::modelForget(child);
}
