#include "zelUIInput.h"

#include "meta.h"
#include "zelUIVarChoice.h"
#include "zelUiBuild.h"

namespace {

const ZelUIVarChoice *typingChoice(const Meta &meta, const ZelUIVar *variable)
{
    const ZelUIVarChoice *choice = variable ? meta.choiceOf(*variable) : nullptr;
    return choice && choice->mBy == ZelUIVarChoice::Typing ? choice : nullptr;
}

} // namespace

ZelUIInput::ZelUIInput()
{
    modelFollowRole(true);
}

ZelUIInput::~ZelUIInput() = default;

void ZelUIInput::setData(Meta *meta, int64_t id)
{
    ZelUIItem::setData(meta, id);
    if (!meta)
        return;
    mLastId = id;
    modelUpdatePriority(meta, id);
}

void ZelUIInput::setPriority(Meta *meta)
{
    modelUpdatePriority(meta, mLastId);
}

ZelUIInputStruct *ZelUIInput::toInputStruct() const
{
    return new ZelUIInputStruct{
        getName(), modelVariable() ? modelVariable()->mText.getText() : zelWString(), state()};
}

bool ZelUIInput::setUserInput(Meta *, int64_t, const zelWString &, bool &changed)
{
    changed = false;
    return false;
}

zelWString ZelUIInput::getRenderedData()
{
    return {};
}

void ZelUIInput::modelUpdatePriority(const Meta *meta, int64_t id)
{
    const ZelUIVarChoice *choice = meta ? typingChoice(*meta, modelVariable()) : nullptr;
    if (!choice)
        return;
    mPriorityName = choice->name();
    mLowPriority = !meta->isEntered(*modelVariable(), id);
}

void ZelUIInput::modelTakePriorityName()
{
    const ZelUiBuild *build = ZelUiBuild::current();
    const ZelUIVarChoice *choice = build ? typingChoice(build->meta(), modelVariable()) : nullptr;
    if (choice)
        mPriorityName = choice->name();
}
