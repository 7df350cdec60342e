#include "runtime/text/Utf.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace qz {
namespace {

constexpr std::uint64_t cHighBits = 0x8080808080808080u;

// Number of bytes at the start of [ABegin, AEnd) that are ASCII, in whole steps of eight and then one by one.
std::size_t AsciiRun(const char* ABegin, const char* AEnd) noexcept {
    const char* Here = ABegin;
    while (AEnd - Here >= 8) {
        std::uint64_t Block;
        std::memcpy(&Block, Here, 8);
        if ((Block & cHighBits) != 0)
            break;
        Here += 8;
    }
    while (Here != AEnd && static_cast<signed char>(*Here) >= 0)
        ++Here;
    return static_cast<std::size_t>(Here - ABegin);
}

// What a lead byte promises: the number of continuation bytes and the range of the first of them.
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

char32_t DecodeUtf8(const char*& AHere, const char* AEnd) noexcept {
    const auto First = static_cast<unsigned char>(*AHere++);
    if (First < 0x80)
        return First;
    const TLead Lead = LeadOf(First);
    if (Lead.Count == 0)
        return cReplacementChar;
    char32_t Value = First & (0x3Fu >> Lead.Count);
    unsigned char Low = Lead.Low;
    unsigned char High = Lead.High;
    for (int I = 0; I < Lead.Count; ++I) {
        if (AHere == AEnd)
            return cReplacementChar;
        const auto Next = static_cast<unsigned char>(*AHere);
        if (Next < Low || Next > High)
            return cReplacementChar;
        ++AHere;
        Value = (Value << 6) | (Next & 0x3Fu);
        Low = 0x80;
        High = 0xBF;
    }
    return Value;
}

char32_t DecodeUtf16(const char16_t*& AHere, const char16_t* AEnd) noexcept {
    const char16_t First = *AHere++;
    if (!IsSurrogate(First))
        return First;
    if (IsHighSurrogate(First) && AHere != AEnd && IsLowSurrogate(*AHere))
        return 0x10000u + ((First & 0x3FFu) << 10) + (*AHere++ & 0x3FFu);
    return cReplacementChar;
}

} // namespace

std::size_t Utf8ToUtf16Length(std::string_view AText) noexcept {
    const char* Here = AText.data();
    const char* End = Here + AText.size();
    std::size_t Length = 0;
    while (Here != End) {
        const std::size_t Run = AsciiRun(Here, End);
        Length += Run;
        Here += Run;
        while (Here != End && static_cast<signed char>(*Here) < 0)
            Length += DecodeUtf8(Here, End) >= 0x10000 ? 2u : 1u;
    }
    return Length;
}

std::size_t Utf16ToUtf8Length(std::u16string_view AText) noexcept {
    const char16_t* Here = AText.data();
    const char16_t* End = Here + AText.size();
    std::size_t Length = 0;
    while (Here != End) {
        const char32_t Code = DecodeUtf16(Here, End);
        Length += Code < 0x80 ? 1u : Code < 0x800 ? 2u : Code < 0x10000 ? 3u : 4u;
    }
    return Length;
}

char16_t* Utf8ToUtf16(std::string_view AText, char16_t* ADest) noexcept {
    const char* Here = AText.data();
    const char* End = Here + AText.size();
    while (Here != End) {
        const std::size_t Run = AsciiRun(Here, End);
        for (std::size_t I = 0; I < Run; ++I)
            ADest[I] = static_cast<unsigned char>(Here[I]);
        ADest += Run;
        Here += Run;
        while (Here != End && static_cast<signed char>(*Here) < 0) {
            const char32_t Code = DecodeUtf8(Here, End);
            if (Code >= 0x10000) {
                *ADest++ = static_cast<char16_t>(0xD7C0 + (Code >> 10));
                *ADest++ = static_cast<char16_t>(0xDC00 + (Code & 0x3FF));
            } else {
                *ADest++ = static_cast<char16_t>(Code);
            }
        }
    }
    return ADest;
}

char* Utf16ToUtf8(std::u16string_view AText, char* ADest) noexcept {
    const char16_t* Here = AText.data();
    const char16_t* End = Here + AText.size();
    while (Here != End) {
        const char32_t Code = DecodeUtf16(Here, End);
        if (Code < 0x80) {
            *ADest++ = static_cast<char>(Code);
        } else if (Code < 0x800) {
            *ADest++ = static_cast<char>(0xC0 | (Code >> 6));
            *ADest++ = static_cast<char>(0x80 | (Code & 0x3F));
        } else if (Code < 0x10000) {
            *ADest++ = static_cast<char>(0xE0 | (Code >> 12));
            *ADest++ = static_cast<char>(0x80 | ((Code >> 6) & 0x3F));
            *ADest++ = static_cast<char>(0x80 | (Code & 0x3F));
        } else {
            *ADest++ = static_cast<char>(0xF0 | (Code >> 18));
            *ADest++ = static_cast<char>(0x80 | ((Code >> 12) & 0x3F));
            *ADest++ = static_cast<char>(0x80 | ((Code >> 6) & 0x3F));
            *ADest++ = static_cast<char>(0x80 | (Code & 0x3F));
        }
    }
    return ADest;
}

std::u16string Utf8ToUtf16(std::string_view AText) {
    std::u16string Result(Utf8ToUtf16Length(AText), u'\0');
    Utf8ToUtf16(AText, Result.data());
    return Result;
}

std::string Utf16ToUtf8(std::u16string_view AText) {
    std::string Result(Utf16ToUtf8Length(AText), '\0');
    Utf16ToUtf8(AText, Result.data());
    return Result;
}

char32_t NextCodePoint(std::string_view AText, std::size_t& APos) noexcept {
    const char* Here = AText.data() + APos;
    const char32_t Code = DecodeUtf8(Here, AText.data() + AText.size());
    APos = static_cast<std::size_t>(Here - AText.data());
    return Code;
}

char32_t NextCodePoint(std::u16string_view AText, std::size_t& APos) noexcept {
    const char16_t* Here = AText.data() + APos;
    const char32_t Code = DecodeUtf16(Here, AText.data() + AText.size());
    APos = static_cast<std::size_t>(Here - AText.data());
    return Code;
}

bool IsAscii(std::string_view AText) noexcept {
    return AsciiRun(AText.data(), AText.data() + AText.size()) == AText.size();
}

} // namespace qz
