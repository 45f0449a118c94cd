#include "meta_p.h"
#include "zelTextForm.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

namespace {

int64_t toInteger(double number)
{
    using Limits = std::numeric_limits<int64_t>;
    const double rounded = std::round(number);
    // The largest double below 2^63; the limit itself is not a double.
    if (rounded >= 9223372036854775807.0)
        return Limits::max();
    if (rounded <= -9223372036854775808.0)
        return Limits::min();
    return std::isnan(rounded) ? 0 : static_cast<int64_t>(rounded);
}

} // namespace

zelWString zelObservedText(const Meta &meta, const ZelUIVar &variable, int64_t id, int component)
{
    return zelWString::fromUtf8(zelValueText(meta, variable, id, component));
}

// The store

bool Meta::Private::owns(const Meta &meta, const ZelUIVar &variable)
{
    const int index = variable.index();
    return index >= 0 && static_cast<size_t>(index) < meta.mVariables.size()
        && meta.mVariables[static_cast<size_t>(index)].get() == &variable;
}

ZelVarStorage Meta::Private::storage(const Meta &meta, const ZelUIVar &variable, int component)
{
    const bool exists =
        component >= 0 && component < variable.componentCount() && owns(meta, variable);
    return exists ? variable.storage() : ZelVarStorage::None;
}

uint64_t Meta::Private::initialBits(const ZelUIVar &variable, ZelVarStorage storage, int component)
{
    const double number = variable.initialNumber(component);
    if (storage == ZelVarStorage::Integer)
        return static_cast<uint64_t>(toInteger(number));
    if (storage == ZelVarStorage::Boolean)
        return number != 0 ? 1 : 0;
    return std::bit_cast<uint64_t>(number);
}

Meta::Object *Meta::Private::find(int64_t id) const
{
    if (mLast && mLast->mId == id)
        return mLast;
    const auto found = std::lower_bound(
        mObjects.begin(), mObjects.end(), id,
        [](const std::unique_ptr<Object> &object, int64_t wanted) { return object->mId < wanted; });
    if (found == mObjects.end() || (*found)->mId != id)
        return nullptr;
    mLast = found->get();
    return mLast;
}

Meta::Object &Meta::Private::make(int64_t id)
{
    if (Object *object = find(id))
        return *object;
    const auto behind = std::upper_bound(
        mObjects.begin(), mObjects.end(), id,
        [](int64_t wanted, const std::unique_ptr<Object> &object) { return wanted < object->mId; });
    mLast = mObjects.insert(behind, std::make_unique<Object>())->get();
    mLast->mId = id;
    return *mLast;
}

Meta::Object &Meta::Private::makeValues(const Meta &meta, int64_t id)
{
    Object &object = make(id);
    object.mHasValues = true;
    if (object.mSlots.size() == mSlotCount)
        return object;
    const size_t known = object.mSlots.size();
    object.mSlots.resize(mSlotCount);
    object.mSet.resize(mSlotCount);
    for (const auto &variable : meta.mVariables) {
        const ZelVarStorage storage = variable->storage();
        if (storage == ZelVarStorage::None || variable->mFirstSlot < known)
            continue;
        for (int component = 0; component < variable->componentCount(); ++component) {
            const size_t slot = variable->mFirstSlot + static_cast<size_t>(component);
            object.mSet[slot] = startsSet(*variable);
            object.mSlots[slot] = storage == ZelVarStorage::Text
                ? object.mTexts.size()
                : initialBits(*variable, storage, component);
            if (storage == ZelVarStorage::Text)
                object.mTexts.push_back(variable->initialText());
        }
    }
    return object;
}

uint64_t Meta::Private::bits(const ZelUIVar &variable, ZelVarStorage storage, int64_t id,
                             int component) const
{
    const Object *object = find(id);
    const size_t slot = variable.mFirstSlot + static_cast<size_t>(component);
    return object && slot < object->mSlots.size() ? object->mSlots[slot]
                                                  : initialBits(variable, storage, component);
}

bool Meta::Private::write(const Meta &meta, const ZelUIVar &variable, int64_t id, int component,
                          uint64_t bits, ZelOrigin origin)
{
    Object &object = makeValues(meta, id);
    const size_t slot = variable.mFirstSlot + static_cast<size_t>(component);
    if (object.mSlots[slot] == bits && object.mSet[slot])
        return false;
    change(meta, variable, id, component, origin, [&object, slot, bits]() {
        object.mSlots[slot] = bits;
        object.mSet[slot] = 1;
    });
    return true;
}

void Meta::Private::markSet(const Meta &meta, const ZelUIVar &variable, int64_t id, bool set,
                            ZelOrigin origin)
{
    if (variable.storage() == ZelVarStorage::None)
        return;
    for (int component = 0; component < variable.componentCount(); ++component) {
        if (meta.isSet(variable, id, component) == set)
            continue;
        Object &object = makeValues(meta, id);
        const size_t slot = variable.mFirstSlot + static_cast<size_t>(component);
        change(meta, variable, id, component, origin,
               [&object, slot, set]() { object.mSet[slot] = set; });
    }
}

bool Meta::Private::writeText(const Meta &meta, const ZelUIVar &variable, int64_t id,
                              const zelWString &value, ZelOrigin origin)
{
    Object &object = makeValues(meta, id);
    const size_t slot = variable.mFirstSlot;
    const auto text = static_cast<size_t>(object.mSlots[slot]);
    if (object.mTexts[text] == value && object.mSet[slot])
        return false;
    change(meta, variable, id, 0, origin, [&object, &value, slot, text]() {
        object.mTexts[text] = value;
        object.mSet[slot] = 1;
    });
    return true;
}

void Meta::Private::tell(const ZelValueChange &change) const
{
    const std::shared_ptr<const Observer> observer = mObserver;
    if (observer)
        (*observer)(change);
}

// Reading

double Meta::real(const ZelUIVar &variable, int64_t id, int component) const
{
    const ZelVarStorage storage = Private::storage(*this, variable, component);
    if (storage == ZelVarStorage::Real)
        return std::bit_cast<double>(d->bits(variable, storage, id, component));
    if (storage == ZelVarStorage::Integer)
        return static_cast<double>(static_cast<int64_t>(d->bits(variable, storage, id, component)));
    return 0;
}

int64_t Meta::integer(const ZelUIVar &variable, int64_t id, int component) const
{
    const ZelVarStorage storage = Private::storage(*this, variable, component);
    if (storage == ZelVarStorage::Integer)
        return static_cast<int64_t>(d->bits(variable, storage, id, component));
    if (storage == ZelVarStorage::Real)
        return toInteger(std::bit_cast<double>(d->bits(variable, storage, id, component)));
    return 0;
}

bool Meta::boolean(const ZelUIVar &variable, int64_t id) const
{
    const ZelVarStorage storage = Private::storage(*this, variable, 0);
    return storage == ZelVarStorage::Boolean && d->bits(variable, storage, id, 0) != 0;
}

zelWString Meta::text(const ZelUIVar &variable, int64_t id) const
{
    return zelWString(std::wstring(textView(variable, id)));
}

std::wstring_view Meta::textView(const ZelUIVar &variable, int64_t id) const
{
    if (Private::storage(*this, variable, 0) != ZelVarStorage::Text)
        return {};
    const Object *object = d->find(id);
    if (!object || variable.mFirstSlot >= object->mSlots.size())
        return variable.initialText().view();
    return object->mTexts[static_cast<size_t>(object->mSlots[variable.mFirstSlot])].view();
}

bool Meta::isSet(const ZelUIVar &variable, int64_t id, int component) const
{
    if (!Private::owns(*this, variable) || component < 0 || component >= variable.componentCount())
        return false;
    const Object *object = d->find(id);
    const size_t slot = variable.mFirstSlot + static_cast<size_t>(component);
    const bool stored =
        object && variable.storage() != ZelVarStorage::None && slot < object->mSlots.size();
    return stored ? object->mSet[slot] != 0 : Private::startsSet(variable);
}

// Writing

void Meta::setReal(const ZelUIVar &variable, int64_t id, int component, double value,
                   ZelOrigin origin)
{
    const ZelVarStorage storage = Private::storage(*this, variable, component);
    if (storage == ZelVarStorage::Real)
        d->write(*this, variable, id, component, std::bit_cast<uint64_t>(value), origin);
    else if (storage == ZelVarStorage::Integer && std::isfinite(value))
        setInteger(variable, id, component, toInteger(value), origin);
}

void Meta::setInteger(const ZelUIVar &variable, int64_t id, int component, int64_t value,
                      ZelOrigin origin)
{
    const ZelVarStorage storage = Private::storage(*this, variable, component);
    if (storage == ZelVarStorage::Real) {
        setReal(variable, id, component, static_cast<double>(value), origin);
    } else if (storage == ZelVarStorage::Integer) {
        const ZelUIVarChoice *choice = d->mKinds[static_cast<size_t>(variable.index())].mChoice;
        if (!choice)
            d->write(*this, variable, id, component, static_cast<uint64_t>(value), origin);
        else if (value >= 1 && value <= std::numeric_limits<short>::max())
            pick(*choice, id, static_cast<short>(value), origin);
    }
}

void Meta::setBoolean(const ZelUIVar &variable, int64_t id, bool value, ZelOrigin origin)
{
    if (Private::storage(*this, variable, 0) == ZelVarStorage::Boolean)
        d->write(*this, variable, id, 0, value ? 1 : 0, origin);
}

void Meta::setText(const ZelUIVar &variable, int64_t id, const zelWString &value, ZelOrigin origin)
{
    if (Private::storage(*this, variable, 0) == ZelVarStorage::Text)
        d->writeText(*this, variable, id, value, origin);
}

void Meta::unset(const ZelUIVar &variable, int64_t id, ZelOrigin origin)
{
    const ZelVarStorage storage = Private::storage(*this, variable, 0);
    if (storage == ZelVarStorage::None)
        return;
    for (int component = 0; component < variable.componentCount(); ++component) {
        const size_t slot = variable.mFirstSlot + static_cast<size_t>(component);
        const auto clear = [&](Object &object) {
            object.mSet[slot] = 0;
            if (storage == ZelVarStorage::Text)
                object.mTexts[static_cast<size_t>(object.mSlots[slot])] = variable.initialText();
            else
                object.mSlots[slot] = Private::initialBits(variable, storage, component);
        };
        Object *object = d->find(id);
        if (isSet(variable, id, component))
            d->change(*this, variable, id, component, origin,
                      [&]() { clear(d->makeValues(*this, id)); });
        else if (object && slot < object->mSlots.size())
            clear(*object); // of what an unchecked variable had before
    }
}

void Meta::unsetResults(int64_t id)
{
    // By index: an observer may add variables.
    for (size_t i = 0; i < mVariables.size(); ++i) {
        const ZelUIVar &variable = *mVariables[i];
        if (variable.mResult)
            unset(variable, id);
        else if (variable.mOptional && !isOptionChecked(variable, id))
            d->markSet(*this, variable, id, false, ZelOrigin::Module);
    }
}

void Meta::reset(int64_t id)
{
    if (Object *object = d->find(id)) {
        object->mTyped.clear();
        object->mMessages.clear();
    }
    for (size_t i = 0; d->find(id) && i < mVariables.size(); ++i) {
        const ZelUIVar &variable = *mVariables[i];
        setOptionChecked(variable, id, false, ZelOrigin::Load);
        const ZelVarStorage storage = variable.storage();
        if (!Private::startsSet(variable))
            unset(variable, id, ZelOrigin::Load);
        else if (storage == ZelVarStorage::Text)
            d->writeText(*this, variable, id, variable.initialText(), ZelOrigin::Load);
        else if (storage != ZelVarStorage::None)
            for (int component = 0; component < variable.componentCount(); ++component)
                d->write(*this, variable, id, component,
                         Private::initialBits(variable, storage, component), ZelOrigin::Load);
    }
}
