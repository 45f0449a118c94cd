#include "meta.h"

#include "meta_p.h"

Meta::Meta()
    : d(std::make_unique<Private>())
{
}

Meta::~Meta() = default;

ZelUIVar *Meta::add(std::unique_ptr<ZelUIVar> variable)
{
    ZelUIVar *added = variable.get();
    if (!added || !mByName.emplace(added->name().getWStringData(), added).second)
        return nullptr;
    added->mIndex = static_cast<int>(mVariables.size());
    added->mFirstSlot = d->mSlotCount;
    if (added->storage() != ZelVarStorage::None)
        d->mSlotCount += static_cast<size_t>(added->componentCount());
    const Private::Kind kind{dynamic_cast<const ZelUIMultiVar *>(added),
                             dynamic_cast<const ZelUIVarChoice *>(added)};
    d->mKinds.push_back(kind);
    if (kind.mChoice)
        d->mChoices.push_back(kind.mChoice);
    mVariables.push_back(std::move(variable));
    return added;
}

ZelUIVar *Meta::variable(const zelWString &name) const
{
    const auto found = mByName.find(name.getWStringData());
    return found == mByName.end() ? nullptr : found->second;
}

void Meta::setFunction(const zelWString &name, Function function)
{
    if (function)
        d->mFunctions[name] = std::make_shared<const Function>(std::move(function));
    else
        d->mFunctions.erase(name);
}

bool Meta::hasFunction(const zelWString &name) const
{
    return name == L"GetModuleId" || d->mFunctions.find(name) != d->mFunctions.end();
}

bool Meta::CallFunc(MetaParam &param)
{
    param.clearResults();
    bool all = true;
    for (const auto &[name, argument] : param.params()) {
        zelWString result;
        bool done = false;
        const auto found = d->mFunctions.find(name);
        if (name == L"GetModuleId") {
            result = mModuleId;
            done = true;
        } else if (found != d->mFunctions.end()) {
            const std::shared_ptr<const Function> function = found->second;
            // What a module throws is its failure and not the end of the mask.
            try {
                done = (*function)(argument, result);
            } catch (...) {
                done = false;
            }
        }
        param.addResult(done ? result : zelWString());
        all = all && done;
    }
    return all;
}

std::vector<int64_t> Meta::objects() const
{
    std::vector<int64_t> ids;
    for (const auto &object : d->mObjects) {
        if (object->mHasValues)
            ids.push_back(object->mId);
    }
    return ids;
}

ZelDimensions::Unit Meta::currentUnit(const ZelUIVar &variable, int64_t id) const
{
    if (!Private::owns(*this, variable))
        return ZelDimensions::NoUnit;
    const auto index = static_cast<size_t>(variable.index());
    const ZelUIMultiVar *number = d->mKinds[index].mNumber;
    if (!number)
        return ZelDimensions::NoUnit;
    const Object *object = d->find(id);
    const bool chosen =
        object && index < object->mUnits.size() && object->mUnits[index] != ZelDimensions::NoUnit;
    return chosen ? object->mUnits[index] : ZelDimensions::defaultUnit(number->mDefaultUnit, true);
}

void Meta::setCurrentUnit(const ZelUIVar &variable, int64_t id, ZelDimensions::Unit unit)
{
    if (!Private::owns(*this, variable))
        return;
    const auto index = static_cast<size_t>(variable.index());
    const ZelUIMultiVar *number = d->mKinds[index].mNumber;
    const bool like =
        number && ZelDimensions::getType(unit) == ZelDimensions::getType(number->mDefaultUnit);
    if (!number || (unit != ZelDimensions::NoUnit && !like))
        return;
    Object &object = d->make(id);
    if (object.mUnits.size() <= index)
        object.mUnits.resize(mVariables.size(), ZelDimensions::NoUnit);
    object.mUnits[index] = unit;
}

void Meta::setMessageState(const ZelUIVar &variable, int64_t id, int state)
{
    if (!Private::owns(*this, variable))
        return;
    const auto index = static_cast<size_t>(variable.index());
    Object &object = d->make(id);
    if (object.mMessages.size() <= index)
        object.mMessages.resize(mVariables.size(), 0);
    object.mMessages[index] = state;
}

int Meta::messageState(const ZelUIVar &variable, int64_t id) const
{
    const Object *object = Private::owns(*this, variable) ? d->find(id) : nullptr;
    const auto index = static_cast<size_t>(variable.index());
    return object && index < object->mMessages.size() ? object->mMessages[index] : 0;
}

void Meta::clearMessageStates(int64_t id)
{
    if (Object *object = d->find(id))
        object->mMessages.clear();
}

void Meta::setObserver(Observer observer)
{
    d->mObserver = observer ? std::make_shared<const Observer>(std::move(observer)) : nullptr;
}

void Meta::setChoiceObserver(ChoiceObserver observer)
{
    d->mChoiceObserver =
        observer ? std::make_shared<const ChoiceObserver>(std::move(observer)) : nullptr;
}
