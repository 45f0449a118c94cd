#include "meta_p.h"

#include <algorithm>

namespace {

using Members = std::vector<const ZelUIVar *>;

} // namespace

bool Meta::isEntered(const ZelUIVar &variable, int64_t id) const
{
    if (variable.mResult || !Private::owns(*this, variable))
        return false;
    if (variable.mOptional && !isOptionChecked(variable, id))
        return false;
    const ZelUIVarChoice *choice = choiceOf(variable);
    return !choice || choice->contains(static_cast<short>(integer(*choice, id)), &variable);
}

bool Meta::isOptionChecked(const ZelUIVar &variable, int64_t id) const
{
    const Object *object = Private::owns(*this, variable) ? d->find(id) : nullptr;
    const auto index = static_cast<size_t>(variable.index());
    return object && index < object->mOptions.size() && object->mOptions[index] != 0;
}

void Meta::setOptionChecked(const ZelUIVar &variable, int64_t id, bool checked, ZelOrigin origin)
{
    const bool possible = variable.mOptional && Private::owns(*this, variable);
    if (!possible || isOptionChecked(variable, id) == checked)
        return;
    const auto index = static_cast<size_t>(variable.index());
    Object &object = d->makeValues(*this, id);
    if (object.mOptions.size() <= index)
        object.mOptions.resize(mVariables.size(), 0);
    object.mOptions[index] = checked ? 1 : 0;

    ZelValueChange change;
    change.mVariable = &variable;
    change.mId = id;
    change.mOld = checked ? L"false" : L"true";
    change.mNew = checked ? L"true" : L"false";
    change.mOrigin = origin;
    change.mOption = true;
    d->tell(change);
    d->markSet(*this, variable, id, checked, origin);
}

const ZelUIVarChoice *Meta::choiceOf(const ZelUIVar &variable) const
{
    for (const ZelUIVarChoice *choice : d->mChoices) {
        if (choice->contains(&variable))
            return choice;
    }
    return nullptr;
}

void Meta::pick(const ZelUIVarChoice &choice, int64_t id, short alternative, ZelOrigin origin)
{
    if (Object *object = d->find(id))
        object->mPickedAt = object->mTypedCount;
    d->pick(*this, choice, id, alternative, origin);
}

void Meta::Private::pick(const Meta &meta, const ZelUIVarChoice &choice, int64_t id,
                         short alternative, ZelOrigin origin)
{
    const bool exists = owns(meta, choice) && alternative >= 1
        && static_cast<size_t>(alternative) <= choice.mAlternatives.size();
    if (!exists)
        return;
    const auto former = static_cast<short>(meta.integer(choice, id));
    if (!write(meta, choice, id, 0, static_cast<uint64_t>(alternative), origin))
        return;
    const std::shared_ptr<const ChoiceObserver> observer = mChoiceObserver;
    if (observer)
        (*observer)(choice, id, former, alternative, origin);
}

void Meta::noteTyped(const ZelUIVar &variable, int64_t id)
{
    const ZelUIVarChoice *choice = Private::owns(*this, variable) ? choiceOf(variable) : nullptr;
    if (!choice || choice->mBy != ZelUIVarChoice::Typing)
        return;
    Object &object = d->make(id);
    if (object.mTyped.size() < mVariables.size())
        object.mTyped.resize(mVariables.size(), 0);
    object.mTyped[static_cast<size_t>(variable.index())] = ++object.mTypedCount;
    if (choice->contains(static_cast<short>(integer(*choice, id)), &variable))
        return;

    // When the other members were typed, the latest first, without those that never were: the
    // alternative with the greatest list has the other members that were typed last.
    const auto othersTyped = [&](const Members &members) {
        std::vector<uint64_t> times;
        for (const ZelUIVar *member : members) {
            const bool other = member != &variable && Private::owns(*this, *member);
            const auto index = static_cast<size_t>(member->index());
            if (other && object.mTyped[index] > 0)
                times.push_back(object.mTyped[index]);
        }
        std::sort(times.rbegin(), times.rend());
        return times;
    };
    short best = 0;
    std::vector<uint64_t> bestTimes;
    for (size_t i = 0; i < choice->mAlternatives.size(); ++i) {
        const auto alternative = static_cast<short>(i + 1);
        if (!choice->contains(alternative, &variable))
            continue;
        std::vector<uint64_t> times = othersTyped(choice->mAlternatives[i]);
        if (best == 0 || times > bestTimes) {
            best = alternative;
            bestTimes = std::move(times);
        }
    }
    d->pick(*this, *choice, id, best, ZelOrigin::User);
}

const ZelUIVar *Meta::lastTyped(const ZelUIVarChoice &choice, int64_t id) const
{
    const Object *object = Private::owns(*this, choice) ? d->find(id) : nullptr;
    const ZelUIVar *last = nullptr;
    uint64_t lastTime = object ? object->mPickedAt : 0;
    for (const Members &members : choice.mAlternatives) {
        for (const ZelUIVar *member : members) {
            const auto index = static_cast<size_t>(member->index());
            const bool typed = object && Private::owns(*this, *member)
                && index < object->mTyped.size() && object->mTyped[index] > lastTime;
            if (typed) {
                last = member;
                lastTime = object->mTyped[index];
            }
        }
    }
    return last;
}
