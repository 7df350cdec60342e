// Hash and equality of names, exact or with A to Z taken as a to z.
//
//     HashName(u"unsignedInt", TNameCase::Ignored) == HashName(u"UNSIGNEDINT", TNameCase::Ignored);
//     SameName(u"xs", u"XS", TNameCase::Ignored);    // true
//
// The hash is the same in every run, so it is for tables whose keys the program chooses, not for data from
// outside. The functions are pure.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace qz {

enum class TNameCase : std::uint8_t { Counts, Ignored };

namespace detail {

// Four 16-bit units, in which each unit from A to Z becomes its small letter.
constexpr std::uint64_t FoldUnits(std::uint64_t AUnits) noexcept {
    constexpr std::uint64_t cOnes = 0x0001'0001'0001'0001;
    constexpr std::uint64_t cHigh = 0x8000 * cOnes;
    const std::uint64_t Low = AUnits & ~cHigh;
    const std::uint64_t FromA = Low + (0x8000 - u'A') * cOnes; // the high bit of a unit: at least A
    const std::uint64_t BeyondZ = Low + (0x8000 - u'Z' - 1) * cOnes;
    return AUnits | ((FromA & ~BeyondZ & ~AUnits & cHigh) >> 10);
}

template <TNameCase Case> constexpr std::uint64_t NameUnits(std::uint64_t AUnits) noexcept {
    return Case == TNameCase::Ignored ? FoldUnits(AUnits) : AUnits;
}

inline std::uint64_t LoadUnits(const char16_t* AText) noexcept {
    std::uint64_t Result;
    std::memcpy(&Result, AText, sizeof Result);
    return Result;
}
// One to three units; different texts of one length give different results.
constexpr std::uint64_t LoadFewUnits(std::u16string_view AText) noexcept {
    return AText.front() | std::uint64_t{AText[AText.size() / 2]} << 16 | std::uint64_t{AText.back()} << 32;
}

constexpr std::uint64_t cHashFactor = 0x9E37'79B9'7F4A'7C15;
constexpr std::uint64_t MixHash(std::uint64_t AHash, std::uint64_t AUnits) noexcept {
    const std::uint64_t Product = (AHash ^ AUnits) * cHashFactor;
    return Product ^ Product >> 32;
}

template <TNameCase Case> std::uint64_t HashNameOf(std::u16string_view AName) noexcept {
    std::uint64_t Result = AName.size();
    if (AName.size() < 4)
        return AName.empty() ? 0 : MixHash(Result, NameUnits<Case>(LoadFewUnits(AName)));
    const char16_t* const Last = AName.data() + AName.size() - 4;
    for (const char16_t* Place = AName.data(); Place < Last; Place += 4)
        Result = MixHash(Result, NameUnits<Case>(LoadUnits(Place)));
    return MixHash(Result, NameUnits<Case>(LoadUnits(Last)));
}

template <TNameCase Case> bool SameNameOf(std::u16string_view ALeft, std::u16string_view ARight) noexcept {
    if (ALeft.size() != ARight.size())
        return false;
    if (ALeft.size() < 4)
        return ALeft.empty() || NameUnits<Case>(LoadFewUnits(ALeft)) == NameUnits<Case>(LoadFewUnits(ARight));
    const auto Differ = [&](std::size_t AIndex) {
        return NameUnits<Case>(LoadUnits(ALeft.data() + AIndex)) !=
            NameUnits<Case>(LoadUnits(ARight.data() + AIndex));
    };
    const std::size_t Last = ALeft.size() - 4;
    for (std::size_t Index = 0; Index < Last; Index += 4)
        if (Differ(Index))
            return false;
    return !Differ(Last);
}

} // namespace detail

// Names that are the same have the same hash.
inline std::uint64_t HashName(std::u16string_view AName, TNameCase ACase) noexcept {
    return ACase == TNameCase::Ignored ? detail::HashNameOf<TNameCase::Ignored>(AName)
                                       : detail::HashNameOf<TNameCase::Counts>(AName);
}
inline bool SameName(std::u16string_view ALeft, std::u16string_view ARight, TNameCase ACase) noexcept {
    return ACase == TNameCase::Ignored ? detail::SameNameOf<TNameCase::Ignored>(ALeft, ARight)
                                       : ALeft == ARight;
}

} // namespace qz
