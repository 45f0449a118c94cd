#pragma once

#include "meta.h"
#include "zelUIMultiVar.h"
#include "zelUIVarChoice.h"

#include <map>

/// One row of the store. A slot holds a double, an integer or 0 and 1 bit for bit, for a text its
/// index in mTexts. The vectors grow when they are first written behind their end.
struct Meta::Object
{
    int64_t mId = 0;
    bool mHasValues = false;
    std::vector<uint64_t> mSlots;
    std::vector<uint8_t> mSet; // by slot
    std::vector<zelWString> mTexts;
    // By index of the variable.
    std::vector<ZelDimensions::Unit> mUnits;
    std::vector<uint8_t> mOptions;
    std::vector<int> mMessages;
    std::vector<uint64_t> mTyped; // when a member of a choice was typed last, 0 for never
    uint64_t mTypedCount = 0;
    uint64_t mPickedAt = 0; // mTypedCount when an alternative was picked otherwise
};

struct Meta::Private
{
    // What is asked of a variable often, by its index: the type, and a cast would cost more.
    struct Kind
    {
        const ZelUIMultiVar *mNumber = nullptr;
        const ZelUIVarChoice *mChoice = nullptr;
    };

    static bool owns(const Meta &meta, const ZelUIVar &variable);
    /// None also for a variable of another Meta and for a component that isn't there.
    static ZelVarStorage storage(const Meta &meta, const ZelUIVar &variable, int component);
    /// Results and optional variables have no value until one is computed or entered.
    static bool startsSet(const ZelUIVar &variable)
    {
        return !variable.mResult && !variable.mOptional;
    }
    static uint64_t initialBits(const ZelUIVar &variable, ZelVarStorage storage, int component);

    Object *find(int64_t id) const;
    Object &make(int64_t id);
    /// With slots for all variables.
    Object &makeValues(const Meta &meta, int64_t id);
    uint64_t bits(const ZelUIVar &variable, ZelVarStorage storage, int64_t id, int component) const;

    /// False when nothing changed. The observer hears of a change after it is done.
    bool write(const Meta &meta, const ZelUIVar &variable, int64_t id, int component, uint64_t bits,
               ZelOrigin origin);
    bool writeText(const Meta &meta, const ZelUIVar &variable, int64_t id, const zelWString &value,
                   ZelOrigin origin);
    /// Marks all components as set or unset; what stands in their slots stays.
    void markSet(const Meta &meta, const ZelUIVar &variable, int64_t id, bool set,
                 ZelOrigin origin);
    /// Runs `store` and tells the observer the value before and behind it.
    template <class Store>
    void change(const Meta &meta, const ZelUIVar &variable, int64_t id, int component,
                ZelOrigin origin, Store store);
    void tell(const ZelValueChange &change) const;
    void pick(const Meta &meta, const ZelUIVarChoice &choice, int64_t id, short alternative,
              ZelOrigin origin);

    std::vector<std::unique_ptr<Object>> mObjects; // ascending by id
    mutable Object *mLast = nullptr; // a mask asks for the same object thousands of times in a row
    std::vector<Kind> mKinds;
    std::vector<const ZelUIVarChoice *> mChoices;
    size_t mSlotCount = 0;
    // Shared, since one may be replaced while it runs.
    std::map<zelWString, std::shared_ptr<const Function>> mFunctions;
    std::shared_ptr<const Observer> mObserver;
    std::shared_ptr<const ChoiceObserver> mChoiceObserver;
};

zelWString zelObservedText(const Meta &meta, const ZelUIVar &variable, int64_t id, int component);

template <class Store>
void Meta::Private::change(const Meta &meta, const ZelUIVar &variable, int64_t id, int component,
                           ZelOrigin origin, Store store)
{
    if (!mObserver) {
        store();
        return;
    }
    ZelValueChange change;
    change.mVariable = &variable;
    change.mComponent = component;
    change.mId = id;
    change.mOrigin = origin;
    change.mOld = zelObservedText(meta, variable, id, component);
    store();
    change.mNew = zelObservedText(meta, variable, id, component);
    tell(change);
}
