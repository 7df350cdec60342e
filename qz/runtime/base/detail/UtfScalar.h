// One code point at a time: the fallback of the conversions of Utf.h, and the rule for ill-formed text.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

#include <qz/runtime/base/Utf.h>

namespace qz::detail {

// The number of continuation bytes after a lead byte, and the range of the first one.
struct TLead {
    int Count;
    unsigned char Low;
    unsigned char High;
};

constexpr TLead LeadOf(unsigned char AByte) noexcept {
    if (AByte >= 0xC2 && AByte <= 0xDF)
        return {1, 0x80, 0xBF};
    if (AByte >= 0xE0 && AByte <= 0xEF)
        return {2, static_cast<unsigned char>(AByte == 0xE0 ? 0xA0 : 0x80),
                static_cast<unsigned char>(AByte == 0xED ? 0x9F : 0xBF)};
    if (AByte >= 0xF0 && AByte <= 0xF4)
        return {3, static_cast<unsigned char>(AByte == 0xF0 ? 0x90 : 0x80),
                static_cast<unsigned char>(AByte == 0xF4 ? 0x8F : 0xBF)};
    return {0, 0, 0};
}

// As DecodeUtf8 below, for whatever bytes.
inline char32_t DecodeAnyUtf8(const char*& AHere, const char* AEnd, bool& AIsGood) noexcept {
    const auto First = static_cast<unsigned char>(*AHere++);
    if (First < 0x80)
        return First;
    const TLead Lead = LeadOf(First);
    AIsGood &= Lead.Count != 0;
    if (Lead.Count == 0)
        return cReplacementChar;
    char32_t Value = First & (0x3Fu >> Lead.Count);
    unsigned char Low = Lead.Low;
    unsigned char High = Lead.High;
    for (int I = 0; I < Lead.Count; ++I) {
        const auto Next = AHere == AEnd ? static_cast<unsigned char>(0) : static_cast<unsigned char>(*AHere);
        if (Next < Low || Next > High) {
            AIsGood = false;
            return cReplacementChar;
        }
        ++AHere;
        Value = (Value << 6) | (Next & 0x3Fu);
        Low = 0x80;
        High = 0xBF;
    }
    return Value;
}

// Reads the code point at AHere, which is before AEnd, and moves AHere past it or past the ill-formed
// subpart. AIsGood becomes false for such a subpart, of which the value is U+FFFD. Well-formed characters of
// two and three bytes are common enough for a short way of their own.
inline char32_t DecodeUtf8(const char*& AHere, const char* AEnd, bool& AIsGood) noexcept {
    const auto* Bytes = reinterpret_cast<const unsigned char*>(AHere);
    const std::ptrdiff_t Left = AEnd - AHere;
    const char32_t First = Bytes[0];
    if (First >= 0xC2 && First <= 0xDF && Left >= 2 && (Bytes[1] & 0xC0) == 0x80) {
        AHere += 2;
        return ((First & 0x1F) << 6) | (Bytes[1] & 0x3Fu);
    }
    if ((First & 0xF0) == 0xE0 && Left >= 3 && (Bytes[1] & 0xC0) == 0x80 && (Bytes[2] & 0xC0) == 0x80) {
        const char32_t Value = ((First & 0x0F) << 12) | ((Bytes[1] & 0x3Fu) << 6) | (Bytes[2] & 0x3Fu);
        if (Value >= 0x800 && (Value & 0xF800) != 0xD800) {
            AHere += 3;
            return Value;
        }
    }
    return DecodeAnyUtf8(AHere, AEnd, AIsGood);
}

inline char32_t DecodeUtf8(const char*& AHere, const char* AEnd) noexcept {
    bool IsGood = true;
    return DecodeUtf8(AHere, AEnd, IsGood);
}

inline char32_t DecodeUtf16(const char16_t*& AHere, const char16_t* AEnd) noexcept {
    const char16_t First = *AHere++;
    if (!IsSurrogate(First))
        return First;
    if (IsHighSurrogate(First) && AHere != AEnd && IsLowSurrogate(*AHere))
        return 0x10000u + ((First & 0x3FFu) << 10) + (*AHere++ & 0x3FFu);
    return cReplacementChar;
}

inline char* EncodeUtf8(char32_t ACode, char* ADest) noexcept {
    if (ACode < 0x80) {
        *ADest++ = static_cast<char>(ACode);
        return ADest;
    }
    if (ACode < 0x800) {
        *ADest++ = static_cast<char>(0xC0 | (ACode >> 6));
    } else {
        if (ACode < 0x10000) {
            *ADest++ = static_cast<char>(0xE0 | (ACode >> 12));
        } else {
            *ADest++ = static_cast<char>(0xF0 | (ACode >> 18));
            *ADest++ = static_cast<char>(0x80 | ((ACode >> 12) & 0x3F));
        }
        *ADest++ = static_cast<char>(0x80 | ((ACode >> 6) & 0x3F));
    }
    *ADest++ = static_cast<char>(0x80 | (ACode & 0x3F));
    return ADest;
}

inline char16_t* EncodeUtf16(char32_t ACode, char16_t* ADest) noexcept {
    if (ACode >= 0x10000) {
        *ADest++ = static_cast<char16_t>(0xD7C0 + (ACode >> 10));
        *ADest++ = static_cast<char16_t>(0xDC00 + (ACode & 0x3FF));
    } else {
        *ADest++ = static_cast<char16_t>(ACode);
    }
    return ADest;
}

constexpr bool IsCodePoint(std::uint32_t AValue) noexcept {
    return AValue < 0xD800 || (AValue >= 0xE000 && AValue <= 0x10FFFF);
}

constexpr std::uint32_t Ordered(std::uint32_t AValue, std::endian AOrder) noexcept {
    return AOrder == std::endian::native ? AValue : __builtin_bswap32(AValue);
}

// The value of the four bytes at AHere, whatever it is.
inline std::uint32_t LoadUtf32(const std::byte* AHere, std::endian AOrder) noexcept {
    std::uint32_t Value;
    std::memcpy(&Value, AHere, sizeof Value);
    return Ordered(Value, AOrder);
}

// Converts what the vectors leave over, and everything on a machine without vectors.

inline char16_t* ScalarUtf8ToUtf16(const char*& AHere, const char* AStop, const char* AEnd,
                                   char16_t* ADest) noexcept {
    while (AHere < AStop) {
        if (static_cast<signed char>(*AHere) >= 0)
            *ADest++ = static_cast<char16_t>(*AHere++);
        else
            ADest = EncodeUtf16(DecodeUtf8(AHere, AEnd), ADest);
    }
    return ADest;
}

inline std::size_t ScalarUtf8Length(const char*& AHere, const char* AStop, const char* AEnd) noexcept {
    std::size_t Length = 0;
    while (AHere < AStop) {
        if (static_cast<signed char>(*AHere) >= 0) {
            ++AHere;
            ++Length;
        } else {
            Length += DecodeUtf8(AHere, AEnd) >= 0x10000 ? 2u : 1u;
        }
    }
    return Length;
}

inline char* ScalarUtf16ToUtf8(const char16_t* AHere, const char16_t* AEnd, char* ADest) noexcept {
    while (AHere != AEnd)
        ADest = EncodeUtf8(DecodeUtf16(AHere, AEnd), ADest);
    return ADest;
}

inline char16_t* ScalarUtf32ToUtf16(std::span<const std::byte> ABytes, std::endian AOrder,
                                    char16_t* ADest) noexcept {
    for (; ABytes.size() >= 4; ABytes = ABytes.subspan(4)) {
        const std::uint32_t Value = LoadUtf32(ABytes.data(), AOrder);
        ADest = EncodeUtf16(IsCodePoint(Value) ? Value : cReplacementChar, ADest);
    }
    if (!ABytes.empty())
        *ADest++ = cReplacementChar;
    return ADest;
}

inline std::byte* ScalarUtf16ToUtf32(const char16_t* AHere, const char16_t* AEnd, std::endian AOrder,
                                     std::byte* ADest) noexcept {
    for (; AHere != AEnd; ADest += 4) {
        const std::uint32_t Value = Ordered(DecodeUtf16(AHere, AEnd), AOrder);
        std::memcpy(ADest, &Value, sizeof Value);
    }
    return ADest;
}

} // namespace qz::detail
