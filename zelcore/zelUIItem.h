#pragma once

#include "zelUIObject.h"

/// A part of a line: a field, a label, a button.
class ZELCORE_EXPORT ZelUIItem : public ZelUIObject
{
public:
    ZelUIItem();
    ~ZelUIItem() override;

    /// Name that is unique in its page: the variable's, with "_2" for the second component and so
    /// on, and with the kind appended ("d_unit") for parts that are no input.
    virtual zelWString getItemName();
    /// Takes the value from meta. A null meta or an object without variable leaves it as it is.
    virtual void setData(Meta *meta, int64_t id);
    /// Writes the value to meta: only while enabled and not read-only, and only what differs bit
    /// for bit from meta and from what the last setData took: what the user left alone may have
    /// been changed in another place of the mask.
    virtual void getData(Meta *meta, int64_t id);

    /// Component of the variable, from 0.
    int modelComponent() const { return mComponent; }

protected:
    void setModelComponent(int component) { mComponent = component; }
    /// The suffix of getItemName() for parts that are no input: "unit", "label", ...; empty for
    /// inputs.
    void setModelKind(const wchar_t *kind) { mKind = kind; }
    /// True while getData may write: a meta, a variable, enabled and not read-only.
    bool modelMayWrite(const Meta *meta) const;
    /// True when the last setData took the value of this object.
    bool modelIsLoaded(const Meta *meta, int64_t id) const;
    /// After a write by the user: a variable of a choice by typing picks its alternative.
    void modelNoteTyped(Meta &meta, int64_t id) const;

private:
    const Meta *mLoadedMeta = nullptr;
    int64_t mLoadedId = 0;
    const wchar_t *mKind = L"";
};
