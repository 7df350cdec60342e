// The conversions as plainly as they can be said, from the definition of the forms: what the fast ones must
// equal.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace qz::reference {

inline bool IsCodePoint(std::uint32_t AValue) {
    return AValue <= 0x10FFFF && (AValue < 0xD800 || AValue > 0xDFFF);
}

// Whether ABytes begin a well-formed sequence: some values that are in order have such a beginning. ACode
// becomes the least of them, which is the one there is when the sequence is whole; ASize its size.
inline bool BeginsSequence(std::string_view ABytes, std::uint32_t& ACode, std::size_t& ASize) {
    const auto Lead = static_cast<unsigned char>(ABytes[0]);
    ASize = Lead < 0x80 ? 1u : Lead < 0xC0 ? 0u : Lead < 0xE0 ? 2u : Lead < 0xF0 ? 3u : Lead < 0xF8 ? 4u : 0u;
    if (ASize == 0 || ABytes.size() > ASize)
        return false;
    std::uint32_t Low = ASize == 1 ? Lead : Lead & (0x7Fu >> ASize);
    std::uint32_t High = Low;
    for (std::size_t I = 1; I < ASize; ++I) {
        if (I < ABytes.size() && (static_cast<unsigned char>(ABytes[I]) & 0xC0) != 0x80)
            return false;
        Low = Low << 6 | (I < ABytes.size() ? static_cast<unsigned char>(ABytes[I]) & 0x3Fu : 0u);
        High = High << 6 | (I < ABytes.size() ? static_cast<unsigned char>(ABytes[I]) & 0x3Fu : 0x3Fu);
    }
    const std::uint32_t cLeast[] = {0, 0, 0x80, 0x800, 0x10000};
    ACode = Low;
    const bool IsAllSurrogates = Low >= 0xD800 && High <= 0xDFFF;
    return High >= cLeast[ASize] && Low <= 0x10FFFF && !IsAllSurrogates;
}

inline std::u32string FromUtf8(std::string_view AText, bool& AIsValid) {
    std::u32string Result;
    AIsValid = true;
    while (!AText.empty()) {
        std::uint32_t Code = 0;
        std::size_t Size = 0;
        std::size_t Count = 0;
        while (Count < AText.size() && BeginsSequence(AText.substr(0, Count + 1), Code, Size))
            ++Count;
        const bool IsWhole = Count > 0 && Count == Size;
        Result += static_cast<char32_t>(IsWhole ? Code : 0xFFFD);
        AIsValid &= IsWhole;
        AText.remove_prefix(Count == 0 ? 1 : Count);
    }
    return Result;
}

inline std::u32string FromUtf16(std::u16string_view AText, bool& AIsValid) {
    std::u32string Result;
    AIsValid = true;
    for (std::size_t I = 0; I < AText.size(); ++I) {
        const std::uint32_t Unit = AText[I];
        const std::uint32_t Next = I + 1 < AText.size() ? AText[I + 1] : 0u;
        if (Unit / 0x400 == 0xD800 / 0x400 && Next / 0x400 == 0xDC00 / 0x400) {
            Result += static_cast<char32_t>((Unit - 0xD800) * 0x400 + (Next - 0xDC00) + 0x10000);
            ++I;
        } else {
            AIsValid &= IsCodePoint(Unit);
            Result += static_cast<char32_t>(IsCodePoint(Unit) ? Unit : 0xFFFD);
        }
    }
    return Result;
}

inline std::u32string FromUtf32(std::string_view ABytes, std::endian AOrder, bool& AIsValid) {
    std::u32string Result;
    AIsValid = true;
    for (std::size_t I = 0; I < ABytes.size(); I += 4) {
        std::uint32_t Value = 0;
        for (std::size_t J = 0; J < 4 && I + J < ABytes.size(); ++J)
            Value |= static_cast<std::uint32_t>(static_cast<unsigned char>(ABytes[I + J]))
                << 8 * (AOrder == std::endian::little ? J : 3 - J);
        const bool IsGood = I + 4 <= ABytes.size() && IsCodePoint(Value);
        AIsValid &= IsGood;
        Result += static_cast<char32_t>(IsGood ? Value : 0xFFFD);
    }
    return Result;
}

inline std::string ToUtf8(std::u32string_view ACodes) {
    std::string Result;
    const std::uint32_t cEnds[] = {0x80, 0x800, 0x10000, 0x110000};
    const std::uint32_t cLeads[] = {0, 0xC0, 0xE0, 0xF0};
    for (const std::uint32_t Code : ACodes) {
        unsigned More = 0;
        while (Code >= cEnds[More])
            ++More;
        Result += static_cast<char>(cLeads[More] | Code >> 6 * More);
        while (More-- > 0)
            Result += static_cast<char>(0x80 | (Code >> 6 * More & 0x3F));
    }
    return Result;
}

inline std::u16string ToUtf16(std::u32string_view ACodes) {
    std::u16string Result;
    for (const std::uint32_t Code : ACodes) {
        if (Code >= 0x10000)
            Result += static_cast<char16_t>(0xD800 + (Code - 0x10000) / 0x400);
        Result += static_cast<char16_t>(Code >= 0x10000 ? 0xDC00 + Code % 0x400 : Code);
    }
    return Result;
}

inline std::string ToUtf32(std::u32string_view ACodes, std::endian AOrder) {
    std::string Result;
    for (const std::uint32_t Code : ACodes) {
        for (unsigned I = 0; I < 4; ++I)
            Result += static_cast<char>(Code >> 8 * (AOrder == std::endian::little ? I : 3 - I));
    }
    return Result;
}

} // namespace qz::reference
