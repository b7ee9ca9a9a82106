#pragma once

// A closed range: both ends are part of it.
template <typename T> struct MvRange
{
    T first {};
    T last {};

    MvRange() = default;
    MvRange(T minimum, T maximum)
        : first(minimum)
        , last(maximum)
    {
    }

    T minimum() const { return first; }
    T maximum() const { return last; }
    bool contains(T value) const { return first <= value && value <= last; }
    T bound(T value) const { return value < first ? first : (value > last ? last : value); }
    bool operator==(const MvRange& other) const { return first == other.first && last == other.last; }
    bool operator!=(const MvRange& other) const { return !(*this == other); }
};
