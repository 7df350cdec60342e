// Base64 and hexadecimal text without vectors: short pieces, and what the vector code leaves over.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include <qz/runtime/text/BinaryText.h>

namespace qz::detail {

// Where a conversion stands. It is passed by value, so that both places stay in registers.
struct TDecoded {
    const char* Here;
    std::byte* Dest;
};
struct TEncoded {
    const std::byte* Here;
    char* Dest;
};

// Decodes the next four characters of the alphabet and skips what stands between them. At the end of the text
// there may be fewer.
inline TDecoded DecodeNextFour(TDecoded APlace, const char* AEnd) noexcept {
    std::uint32_t Bits = 0;
    int Count = 0;
    while (APlace.Here != AEnd && Count < 4) {
        const std::uint32_t Value = Base64Value(*APlace.Here++);
        if (Value == cNoBase64)
            continue;
        Bits = Bits << 6 | Value;
        ++Count;
    }
    if (Count < 2)
        return APlace;
    Bits <<= 6 * (4 - Count);
    for (int I = 1; I < Count; ++I)
        *APlace.Dest++ = static_cast<std::byte>(Bits >> (24 - 8 * I));
    return APlace;
}

// Goes on after a vector of characters that is decoded and in which those with a bit in ABad are not in the
// alphabets. ABad is not 0.
inline TDecoded GoPastBad(std::uint32_t ABad, TDecoded APlace, const char* AEnd) noexcept {
    const int Good = std::countr_zero(ABad);
    APlace.Here += Good / 4 * 4;
    APlace.Dest += Good / 4 * 3;
    if (Good % 4 != 0)
        return DecodeNextFour(APlace, AEnd);
    APlace.Here += std::countr_one(ABad >> Good);
    return APlace;
}

inline std::byte* ScalarBase64ToBytes(TDecoded APlace, const char* AEnd) noexcept {
    while (AEnd - APlace.Here > 4) {
        if (GroupToBytes(APlace.Here, APlace.Dest)) {
            APlace.Here += 4;
            APlace.Dest += 3;
        } else {
            APlace = DecodeNextFour(APlace, AEnd);
        }
    }
    const auto Left = static_cast<std::size_t>(AEnd - APlace.Here);
    std::byte* const Done =
        Left == 4 ? PaddedToBytes(APlace.Here, APlace.Dest) : LastToBytes({APlace.Here, Left}, APlace.Dest);
    return Done != nullptr ? Done : DecodeNextFour(APlace, AEnd).Dest;
}

inline char* ScalarBytesToBase64(TEncoded APlace, const std::byte* AEnd, TBase64Alphabet AAlphabet) noexcept {
    for (; AEnd - APlace.Here > 3; APlace.Here += 3, APlace.Dest += 4)
        GroupToBase64(APlace.Here, 3, AAlphabet, APlace.Dest);
    const auto Left = static_cast<std::size_t>(AEnd - APlace.Here);
    return Left == 0 ? APlace.Dest : GroupToBase64(APlace.Here, Left, AAlphabet, APlace.Dest);
}

inline char* ScalarBytesToHex(TEncoded APlace, const std::byte* AEnd) noexcept {
    constexpr std::string_view cDigits = "0123456789ABCDEF";
    for (; APlace.Here != AEnd; ++APlace.Here) {
        *APlace.Dest++ = cDigits[std::to_integer<std::size_t>(*APlace.Here >> 4)];
        *APlace.Dest++ = cDigits[std::to_integer<std::size_t>(*APlace.Here & std::byte{0xF})];
    }
    return APlace.Dest;
}

inline std::uint32_t HexValue(char AChar) noexcept {
    const std::uint32_t Digit = static_cast<unsigned char>(AChar) - std::uint32_t{'0'};
    const std::uint32_t Letter = (static_cast<unsigned char>(AChar) | 0x20u) - std::uint32_t{'a'};
    return Digit <= 9 ? Digit : Letter <= 5 ? Letter + 10 : 0;
}

inline std::byte* ScalarHexToBytes(TDecoded APlace, const char* AEnd) noexcept {
    for (; AEnd - APlace.Here >= 2; APlace.Here += 2)
        *APlace.Dest++ = static_cast<std::byte>(HexValue(APlace.Here[0]) << 4 | HexValue(APlace.Here[1]));
    return APlace.Dest;
}

} // namespace qz::detail
