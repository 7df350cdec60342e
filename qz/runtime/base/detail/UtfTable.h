// Tables for conversions with vectors, made by the compiler. An index of a shuffle says for each byte of the
// result which byte of the source it is; cNoByte gives zero.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace qz::detail {

using TShuffle = std::array<std::uint8_t, 16>;

inline constexpr std::uint8_t cNoByte = 0x80;

template <std::size_t cCount> struct TShuffleTable { alignas(16) std::array<TShuffle, cCount> Rows; };

// Closes the gaps: of AGroups groups of ASize bytes each, group I stays with the bytes from AFirst(Row, I) up
// to AEnd(Row, I), both counted within the group.
template <std::size_t cRows, class TFirst, class TEnd>
constexpr TShuffleTable<cRows> MakeShuffles(std::size_t AGroups, TFirst AFirst, TEnd AEnd) {
    TShuffleTable<cRows> Result{};
    const std::size_t Size = 16 / AGroups;
    for (std::size_t Row = 0; Row < cRows; ++Row) {
        TShuffle& Shuffle = Result.Rows[Row];
        Shuffle.fill(cNoByte);
        std::size_t Done = 0;
        for (std::size_t I = 0; I < AGroups; ++I) {
            for (std::size_t Byte = AFirst(Row, I); Byte < AEnd(Row, I); ++Byte)
                Shuffle[Done++] = static_cast<std::uint8_t>(Size * I + Byte);
        }
    }
    return Result;
}

constexpr std::size_t BitOf(std::size_t ARow, std::size_t AIndex) {
    return (ARow >> AIndex) & 1;
}

// Units of 16 bits: those with a bit set stay.
inline constexpr auto cKeepUnits = MakeShuffles<256>(
    8, [](std::size_t, std::size_t) { return std::size_t{0}; },
    [](std::size_t ARow, std::size_t AIndex) { return 2 * BitOf(ARow, AIndex); });

// Groups of two bytes, of which those with a bit set keep only the first.
inline constexpr auto cKeepFirstBytes = MakeShuffles<256>(
    8, [](std::size_t, std::size_t) { return std::size_t{0}; },
    [](std::size_t ARow, std::size_t AIndex) { return 2 - BitOf(ARow, AIndex); });

// Groups of four bytes, of which the last one stays, and one more for each of two bits.
inline constexpr auto cKeepLastBytes = MakeShuffles<256>(
    4,
    [](std::size_t ARow, std::size_t AIndex) {
        return 3 - BitOf(ARow, 2 * AIndex) - BitOf(ARow, 2 * AIndex + 1);
    },
    [](std::size_t, std::size_t) { return std::size_t{4}; });

// Values of 32 bits, of which those with a bit set stay whole, the others with their lower half.
inline constexpr auto cKeepLowerHalves = MakeShuffles<16>(
    4, [](std::size_t, std::size_t) { return std::size_t{0}; },
    [](std::size_t ARow, std::size_t AIndex) { return 2 + 2 * BitOf(ARow, AIndex); });

// Values of 32 bits: those with a bit set stay.
inline constexpr auto cKeepValues = MakeShuffles<16>(
    4, [](std::size_t, std::size_t) { return std::size_t{0}; },
    [](std::size_t ARow, std::size_t AIndex) { return 4 * BitOf(ARow, AIndex); });

// What two bytes in a row can have wrong. A fault is there when the first byte's upper half, its lower half
// and the second byte's upper half are each in a set of values; so each rule is three sets, with bit N for
// the value N.
struct TUtf8Rule {
    std::uint16_t FirstHigh;
    std::uint16_t FirstLow;
    std::uint16_t SecondHigh;
};

// The last rule, bit 7, is a fault only where no third or fourth byte of a character is due; there its
// absence is.
inline constexpr TUtf8Rule cUtf8Rules[8] = {
    {0xF000, 0xFFFF, 0xF0FF}, // a lead, then no continuation
    {0x00FF, 0xFFFF, 0x0F00}, // ASCII, then a continuation
    {0x1000, 0x0003, 0x0F00}, // C0 and C1: overlong forms of two bytes
    {0x4000, 0x0001, 0x0300}, // E0, then 80 to 9F: overlong forms of three
    {0x4000, 0x2000, 0x0C00}, // ED, then A0 to BF: surrogates
    {0x8000, 0xFFE1, 0x0100}, // F0, then 80 to 8F: overlong forms of four; F5 and above, then the same
    {0x8000, 0xFFF0, 0x0E00}, // F4 and above, then 90 to BF: more than 10FFFF
    {0x0F00, 0xFFFF, 0x0F00}, // two continuations
};

// For each value of a half byte the bits of the rules that have it in the set at ASet.
constexpr TShuffle MakeRuleBits(std::uint16_t TUtf8Rule::*ASet) {
    TShuffle Result{};
    for (std::size_t Value = 0; Value < 16; ++Value) {
        for (std::size_t Rule = 0; Rule < 8; ++Rule)
            Result[Value] =
                static_cast<std::uint8_t>(Result[Value] | BitOf(cUtf8Rules[Rule].*ASet, Value) << Rule);
    }
    return Result;
}

alignas(16) inline constexpr TShuffle cFirstHighRules = MakeRuleBits(&TUtf8Rule::FirstHigh);
alignas(16) inline constexpr TShuffle cFirstLowRules = MakeRuleBits(&TUtf8Rule::FirstLow);
alignas(16) inline constexpr TShuffle cSecondHighRules = MakeRuleBits(&TUtf8Rule::SecondHigh);

} // namespace qz::detail
