#pragma once

/// A value with a pointer to an optional flag that is set when the value changes. The layout, value
/// first and flag pointer behind it, is part of the interface: readers of the value write both.
/// The flag is not owned and may be null.
template <class T> struct zelAutoDirty
{
    T mValue{};
    bool *mDirty = nullptr;

    zelAutoDirty() = default;
    explicit zelAutoDirty(T value, bool *dirty = nullptr)
        : mValue(value)
        , mDirty(dirty)
    {
    }

    operator T() const { return mValue; }

    zelAutoDirty &operator=(T value)
    {
        if (value != mValue && mDirty)
            *mDirty = true;
        mValue = value;
        return *this;
    }
};
