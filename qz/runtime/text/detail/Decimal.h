// A double as decimal digits, the ground that all float formatting stands on. Internal.
#pragma once

#include <array>

namespace qz::detail {

// 0.d1d2d3... times ten to the power of Exponent; zero has no digits.
struct TDecimal {
    enum class TKind { Finite, Infinite, NotANumber };

    TKind Kind = TKind::Finite;
    bool IsNegative = false;
    int Exponent = 0;
    int Count = 0;
    std::array<char, 20> Digits;

    // The shortest digits that read back as AValue, without zeros at the end.
    explicit TDecimal(double AValue) noexcept;

    // Keeps ACount digits, which may be none or fewer than none, rounding half away from zero.
    void Round(int ACount) noexcept;
    // Keeps the ACount digits that are nearest to AValue, which this was made from; of two as near the one
    // away from zero.
    void RoundNearest(double AValue, int ACount) noexcept;
    // The digit at a place counted from 0, also in front of the digits and after them.
    char16_t Digit(int AIndex) const noexcept {
        return AIndex >= 0 && AIndex < Count ? static_cast<char16_t>(Digits[static_cast<std::size_t>(AIndex)])
                                             : u'0';
    }
};

} // namespace qz::detail
