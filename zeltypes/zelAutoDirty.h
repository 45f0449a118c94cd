#pragma once

#include <cmath>
#include <type_traits>

/// A value with a pointer to an optional flag that is set when the value changes. The layout, value
/// first and flag pointer behind it, is part of the interface: readers of the value write both.
/// The flag is not owned and may be null. A copy has the same flag; assigning from another object
/// takes its value alone, so that the flag of this one tells of it.
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

    zelAutoDirty(const zelAutoDirty &) = default;

    operator T() const { return mValue; }

    zelAutoDirty &operator=(T value)
    {
        if (mDirty && !isSame(value, mValue))
            *mDirty = true;
        mValue = value;
        return *this;
    }
    zelAutoDirty &operator=(const zelAutoDirty &other) { return *this = other.mValue; }

private:
    // A NaN that stays one is no change.
    static bool isSame(T a, T b)
    {
        if constexpr (std::is_floating_point_v<T>)
            return a == b || (std::isnan(a) && std::isnan(b));
        else
            return a == b;
    }
};
