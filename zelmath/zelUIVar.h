#pragma once

#include "zelUITextHandler.h"
#include "zelWString.h"
#include "zelmath_export.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

class ZelCondition;

/// What a variable's slots in the store of a Meta hold.
enum class ZelVarStorage { None, Real, Integer, Boolean, Text };

/// One variable of a calculation module: name, texts, formula symbol, help code and conditions. It
/// is fixed once the description is read; values live in the store of a Meta. Owned by its Meta.
/// The concrete kinds derive from this class directly, so that overloads on them stay unambiguous.
class ZELMATH_EXPORT ZelUIVar
{
public:
    explicit ZelUIVar(zelWString name, ZelVarStorage storage, int componentCount = 1);
    virtual ~ZelUIVar();
    ZelUIVar(const ZelUIVar &) = delete;
    ZelUIVar &operator=(const ZelUIVar &) = delete;

    /// An update-blocking variable makes its widget report a change only when it is confirmed.
    bool IsUpdateBlocking() const { return mUpdateBlocking; }

    /// ASCII letters, digits and "_".
    const zelWString &name() const { return mName; }
    virtual ZelVarStorage storage() const { return mStorage; }
    /// 1 to 3.
    int componentCount() const { return mComponentCount; }
    /// Dense number in its Meta, from 0; -1 before it was added.
    int index() const { return mIndex; }

    /// What a slot starts with: a number in the default unit, the id of an entry, 1 for yes.
    virtual double initialNumber(int component) const;
    /// What the slot of a text starts with; the reference stays valid as long as the variable.
    virtual const zelWString &initialText() const;

    // Entries by name, for kinds whose value is the id of one.

    /// The names of all entries; empty when there are none or none have names.
    virtual std::vector<zelWString> entryNames() const;
    /// Nothing for an unknown name.
    virtual std::optional<int64_t> entryId(const zelWString &name) const;
    /// Empty for an id without name.
    virtual zelWString entryName(int64_t id) const;

    ZelUITextHandler mText;
    ZelUITextHandler mStatusTip;
    /// Formula symbol as rich text: "τ<sub>k2</sub>".
    zelWString mFormula;
    /// Number of the help topic, -1 for none.
    int mHelpCode = -1;
    bool mUpdateBlocking = false;
    /// Computed by the module: read-only, and empty while unset.
    bool mResult = false;
    /// Has a check box: checked is entered, unchecked is computed.
    bool mOptional = false;
    /// Null stands for the default: enabled, visible, not read-only.
    std::shared_ptr<const ZelCondition> mEnabledIf;
    std::shared_ptr<const ZelCondition> mVisibleIf;
    std::shared_ptr<const ZelCondition> mReadOnlyIf;

protected:
    /// Text of the entry "own" with id 0, for lists of the database that may have one.
    virtual const ZelUITextHandler *ownEntry() const { return nullptr; }

private:
    friend class Meta;
    zelWString mName;
    ZelVarStorage mStorage;
    int mComponentCount;
    int mIndex = -1;
    size_t mFirstSlot = 0;
};
