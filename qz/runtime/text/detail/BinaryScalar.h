// Base64 and hexadecimal text without vectors: short pieces, and what the vector code leaves over.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include <qz/runtime/text/BinaryText.h>

namespace qz::detail {

// What a byte outside the alphabets has in the table of values.
inline constexpr std::uint8_t cNoBase64 = 0xFF;

constexpr std::array<std::uint8_t, 256> MakeBase64Values() noexcept {
    std::array<std::uint8_t, 256> Result{};
    Result.fill(cNoBase64);
    for (const std::string_view Chars : cBase64Chars)
        for (std::size_t I = 0; I < Chars.size(); ++I)
            Result[static_cast<unsigned char>(Chars[I])] = static_cast<std::uint8_t>(I);
    return Result;
}
inline constexpr std::array<std::uint8_t, 256> cBase64Values = MakeBase64Values();

inline std::uint32_t Base64Value(char AChar) noexcept {
    return cBase64Values[static_cast<unsigned char>(AChar)];
}

inline void PutThree(std::uint32_t ABits, std::byte* ADest) noexcept {
    ADest[0] = static_cast<std::byte>(ABits >> 16);
    ADest[1] = static_cast<std::byte>(ABits >> 8);
    ADest[2] = static_cast<std::byte>(ABits);
}

// Decodes four characters that are all in the alphabet; false, and nothing is written, if one is not.
inline bool DecodeFour(const char* ASource, std::byte* ADest) noexcept {
    const std::uint32_t First = Base64Value(ASource[0]), Second = Base64Value(ASource[1]);
    const std::uint32_t Third = Base64Value(ASource[2]), Fourth = Base64Value(ASource[3]);
    if (((First | Second | Third | Fourth) & 0x80) != 0)
        return false;
    PutThree(First << 18 | Second << 12 | Third << 6 | Fourth, ADest);
    return true;
}

// Decodes the next four characters of the alphabet and skips what stands between them. At the end of the text
// there may be fewer. Moves both places.
inline void DecodeNextFour(const char*& AHere, const char* AEnd, std::byte*& ADest) noexcept {
    std::uint32_t Bits = 0;
    int Count = 0;
    while (AHere != AEnd && Count < 4) {
        const std::uint32_t Value = Base64Value(*AHere++);
        if (Value == cNoBase64)
            continue;
        Bits = Bits << 6 | Value;
        ++Count;
    }
    if (Count == 4) {
        PutThree(Bits, ADest);
        ADest += 3;
        return;
    }
    if (Count == 3)
        *ADest++ = static_cast<std::byte>(Bits >> 10);
    if (Count >= 2)
        *ADest++ = static_cast<std::byte>(Count == 3 ? Bits >> 2 : Bits >> 4);
}

// Goes on after a vector of characters that is decoded and in which those with a bit in ABad are not in the
// alphabets. ABad is not 0.
inline void GoPastBad(std::uint32_t ABad, const char*& AHere, const char* AEnd, std::byte*& ADest) noexcept {
    const int Good = std::countr_zero(ABad);
    AHere += Good / 4 * 4;
    ADest += Good / 4 * 3;
    if (Good % 4 == 0)
        AHere += std::countr_one(ABad >> Good);
    else
        DecodeNextFour(AHere, AEnd, ADest);
}

inline std::byte* ScalarBase64ToBytes(const char* AHere, const char* AEnd, std::byte* ADest) noexcept {
    while (AHere != AEnd) {
        if (AEnd - AHere >= 4 && DecodeFour(AHere, ADest)) {
            AHere += 4;
            ADest += 3;
        } else {
            DecodeNextFour(AHere, AEnd, ADest);
        }
    }
    return ADest;
}

inline char* ScalarBytesToBase64(const std::byte* AHere, const std::byte* AEnd, TBase64Alphabet AAlphabet,
                                 char* ADest) noexcept {
    const char* Chars = cBase64Chars[static_cast<std::size_t>(AAlphabet)].data();
    const auto At = [&AHere](int AIndex) { return std::to_integer<std::uint32_t>(AHere[AIndex]); };
    for (; AEnd - AHere >= 3; AHere += 3, ADest += 4) {
        const std::uint32_t Bits = At(0) << 16 | At(1) << 8 | At(2);
        ADest[0] = Chars[Bits >> 18];
        ADest[1] = Chars[Bits >> 12 & 0x3F];
        ADest[2] = Chars[Bits >> 6 & 0x3F];
        ADest[3] = Chars[Bits & 0x3F];
    }
    if (AHere == AEnd)
        return ADest;
    const bool AreTwo = AEnd - AHere == 2;
    const std::uint32_t Bits = At(0) << 16 | (AreTwo ? At(1) << 8 : 0);
    *ADest++ = Chars[Bits >> 18];
    *ADest++ = Chars[Bits >> 12 & 0x3F];
    if (AreTwo)
        *ADest++ = Chars[Bits >> 6 & 0x3F];
    if (AAlphabet == TBase64Alphabet::Standard) {
        *ADest++ = '=';
        if (!AreTwo)
            *ADest++ = '=';
    }
    return ADest;
}

inline char* ScalarBytesToHex(const std::byte* AHere, const std::byte* AEnd, char* ADest) noexcept {
    constexpr std::string_view cDigits = "0123456789ABCDEF";
    for (; AHere != AEnd; ++AHere) {
        *ADest++ = cDigits[std::to_integer<std::size_t>(*AHere >> 4)];
        *ADest++ = cDigits[std::to_integer<std::size_t>(*AHere & std::byte{0xF})];
    }
    return ADest;
}

inline std::uint32_t HexValue(char AChar) noexcept {
    const std::uint32_t Digit = static_cast<unsigned char>(AChar) - std::uint32_t{'0'};
    const std::uint32_t Letter = (static_cast<unsigned char>(AChar) | 0x20u) - std::uint32_t{'a'};
    return Digit <= 9 ? Digit : Letter <= 5 ? Letter + 10 : 0;
}

inline std::byte* ScalarHexToBytes(const char* AHere, const char* AEnd, std::byte* ADest) noexcept {
    for (; AEnd - AHere >= 2; AHere += 2)
        *ADest++ = static_cast<std::byte>(HexValue(AHere[0]) << 4 | HexValue(AHere[1]));
    return ADest;
}

} // namespace qz::detail
