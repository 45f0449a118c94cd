#include "zelUIItem.h"

#include "meta.h"
#include "zelUIVarChoice.h"

ZelUIItem::ZelUIItem() = default;
ZelUIItem::~ZelUIItem() = default;

zelWString ZelUIItem::getItemName()
{
    std::wstring name = getName();
    if (name.empty())
        return {};
    if (mComponent > 0)
        name += L"_" + std::to_wstring(mComponent + 1);
    if (*mKind)
        name += std::wstring(L"_") + mKind;
    return name;
}

void ZelUIItem::setData(Meta *meta, int64_t id)
{
    if (!meta)
        return;
    mLoadedMeta = meta;
    mLoadedId = id;
}

void ZelUIItem::getData(Meta *, int64_t)
{
}

bool ZelUIItem::modelMayWrite(const Meta *meta) const
{
    return meta && modelVariable() && mEnabled && !mReadOnly;
}

bool ZelUIItem::modelIsLoaded(const Meta *meta, int64_t id) const
{
    return meta && meta == mLoadedMeta && id == mLoadedId;
}

void ZelUIItem::modelNoteTyped(Meta &meta, int64_t id) const
{
    const ZelUIVarChoice *choice = meta.choiceOf(*modelVariable());
    if (choice && choice->mBy == ZelUIVarChoice::Typing)
        meta.noteTyped(*modelVariable(), id);
}
