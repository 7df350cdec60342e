// TSubRange: the values of an enumeration from one to another, as a type.
//
//     using TWeekday = TSubRange<TDay, dMonday, dFriday>;
//     TWeekday Day = dTuesday;             // dSunday: ERangeError, or no compilation where the value is a constant
//     if (TWeekday::Contains(Other)) ...
//     for (int I = 0; I < TWeekday::cCount; ++I) ...
//
// A plain value that converts implicitly to its enumeration. Usable in constant expressions.
#pragma once

#include <type_traits>

#include <qz/runtime/objects/Exceptions.h>

namespace qz {

namespace detail {
[[noreturn]] QZ_API void RaiseOutOfSubRange(std::int64_t AValue, std::int64_t ALow, std::int64_t AHigh);
} // namespace detail

template <class E, E Low, E High> class TSubRange {
    static_assert(std::is_enum_v<E> && Low <= High);

public:
    using TElement = E;
    static constexpr E cLow = Low;
    static constexpr E cHigh = High;
    static constexpr int cCount = static_cast<int>(High) - static_cast<int>(Low) + 1;

    static constexpr bool Contains(E AValue) noexcept { return Low <= AValue && AValue <= High; }

    // The lowest value.
    constexpr TSubRange() noexcept = default;
    // Raises ERangeError, "The value %d is not in the range %d to %d", for one that is not in the range.
    constexpr TSubRange(E AValue) : FValue(AValue) {
        if (!Contains(AValue))
            detail::RaiseOutOfSubRange(static_cast<std::int64_t>(AValue), static_cast<std::int64_t>(Low),
                                       static_cast<std::int64_t>(High));
    }
    constexpr operator E() const noexcept { return FValue; }

private:
    E FValue = Low;
};

} // namespace qz
