// TSet<E>, a set of values of a small enumeration, and TCharSet, a set of 8-bit characters; both constexpr
// bit sets.
//
//     TReplaceFlags Flags = {rfReplaceAll};
//     Flags += rfIgnoreCase;
//     if (Flags.Contains(rfReplaceAll)) ...
//     constexpr TCharSet cDigits = TCharSet::Range('0', '9');
//
// Plain values, usable in constant expressions.
#pragma once

#include <array>
#include <concepts>
#include <cstdint>
#include <initializer_list>
#include <type_traits>

namespace qz {

// Values 0 to 63 of an enumeration, in the smallest integer that holds Bits of them.
template <class E, unsigned Bits = 32> class TSet {
    static_assert(std::is_enum_v<E> && Bits <= 64);

public:
    using TElement = E;
    using TStorage =
        std::conditional_t<Bits <= 8, std::uint8_t,
                           std::conditional_t<Bits <= 16, std::uint16_t,
                                              std::conditional_t<Bits <= 32, std::uint32_t, std::uint64_t>>>;

    constexpr TSet() noexcept = default;
    constexpr TSet(E AItem) noexcept : FBits(Bit(AItem)) {}
    constexpr TSet(std::initializer_list<E> AItems) noexcept {
        for (const E Item : AItems)
            FBits = static_cast<TStorage>(FBits | Bit(Item));
    }
    static constexpr TSet FromBits(TStorage ABits) noexcept {
        TSet Result;
        Result.FBits = ABits;
        return Result;
    }
    static constexpr TSet Range(E AFirst, E ALast) noexcept {
        TSet Result;
        for (auto I = static_cast<unsigned>(AFirst); I <= static_cast<unsigned>(ALast); ++I)
            Result += static_cast<E>(I);
        return Result;
    }

    constexpr TStorage ToBits() const noexcept { return FBits; }
    constexpr bool IsEmpty() const noexcept { return FBits == 0; }
    constexpr bool Contains(E AItem) const noexcept { return (FBits & Bit(AItem)) != 0; }
    // True when each item of AOther is in this set.
    constexpr bool Includes(TSet AOther) const noexcept { return (FBits & AOther.FBits) == AOther.FBits; }

    constexpr TSet& operator+=(TSet AOther) noexcept { return *this = *this + AOther; }
    constexpr TSet& operator-=(TSet AOther) noexcept { return *this = *this - AOther; }
    friend constexpr TSet operator+(TSet ALeft, TSet ARight) noexcept {
        return FromBits(static_cast<TStorage>(ALeft.FBits | ARight.FBits));
    }
    friend constexpr TSet operator-(TSet ALeft, TSet ARight) noexcept {
        return FromBits(static_cast<TStorage>(ALeft.FBits & ~ARight.FBits));
    }
    friend constexpr TSet operator*(TSet ALeft, TSet ARight) noexcept {
        return FromBits(static_cast<TStorage>(ALeft.FBits & ARight.FBits));
    }
    friend constexpr bool operator==(TSet, TSet) noexcept = default;

private:
    static constexpr TStorage Bit(E AItem) noexcept {
        return static_cast<TStorage>(std::uint64_t{1} << static_cast<unsigned>(AItem));
    }
    TStorage FBits = 0;
};

class TCharSet {
public:
    constexpr TCharSet() noexcept = default;
    constexpr TCharSet(std::initializer_list<char> AChars) noexcept {
        for (const char Char : AChars)
            Include(static_cast<unsigned char>(Char));
    }
    static constexpr TCharSet Range(char AFirst, char ALast) noexcept {
        TCharSet Result;
        for (unsigned I = static_cast<unsigned char>(AFirst); I <= static_cast<unsigned char>(ALast); ++I)
            Result.Include(I);
        return Result;
    }

    constexpr bool Contains(std::same_as<char> auto AChar) const noexcept {
        return Contains(char32_t{static_cast<unsigned char>(AChar)});
    }
    // A character above U+00FF is in no set.
    constexpr bool Contains(char32_t AChar) const noexcept {
        return AChar < 256 && (FBits[AChar / 64] >> (AChar % 64) & 1) != 0;
    }
    constexpr bool IsEmpty() const noexcept { return *this == TCharSet(); }

    constexpr TCharSet& operator+=(const TCharSet& AOther) noexcept {
        for (std::size_t I = 0; I < FBits.size(); ++I)
            FBits[I] |= AOther.FBits[I];
        return *this;
    }
    constexpr TCharSet& operator-=(const TCharSet& AOther) noexcept {
        for (std::size_t I = 0; I < FBits.size(); ++I)
            FBits[I] &= ~AOther.FBits[I];
        return *this;
    }
    friend constexpr TCharSet operator+(TCharSet ALeft, const TCharSet& ARight) noexcept {
        return ALeft += ARight;
    }
    friend constexpr TCharSet operator-(TCharSet ALeft, const TCharSet& ARight) noexcept {
        return ALeft -= ARight;
    }
    friend constexpr bool operator==(const TCharSet&, const TCharSet&) noexcept = default;

private:
    constexpr void Include(unsigned AChar) noexcept { FBits[AChar / 64] |= std::uint64_t{1} << (AChar % 64); }
    std::array<std::uint64_t, 4> FBits{};
};

} // namespace qz
