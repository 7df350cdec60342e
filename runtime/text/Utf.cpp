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

constexpr std::ptrdiff_t cStep = 8;

// Whether the cStep units from AHere on are ASCII.
bool IsAsciiStep(const char16_t* AHere) noexcept {
    std::uint64_t Blocks[2];
    std::memcpy(Blocks, AHere, sizeof Blocks);
    return ((Blocks[0] | Blocks[1]) & 0xFF80FF80FF80FF80u) == 0;
}

// Number of units at the start of [ABegin, AEnd) that are ASCII, counted in whole steps.
std::size_t AsciiSteps(const char16_t* ABegin, const char16_t* AEnd) noexcept {
    const char16_t* Here = ABegin;
    while (AEnd - Here >= cStep && IsAsciiStep(Here))
        Here += cStep;
    return static_cast<std::size_t>(Here - ABegin);
}

// Vectors of one step, which gcc and clang turn into the instructions of the machine that there is.
using TByteStep = unsigned char __attribute__((vector_size(cStep)));
using TUnitStep = std::uint16_t __attribute__((vector_size(2 * cStep)));

char16_t* Widen(const char* ASource, std::size_t ACount, char16_t* ADest) noexcept {
    std::size_t Done = 0;
    for (; ACount - Done >= cStep; Done += cStep) {
        TByteStep Step;
        std::memcpy(&Step, ASource + Done, sizeof Step);
        const TUnitStep Wide = __builtin_convertvector(Step, TUnitStep);
        std::memcpy(ADest + Done, &Wide, sizeof Wide);
    }
    for (; Done < ACount; ++Done)
        ADest[Done] = static_cast<unsigned char>(ASource[Done]);
    return ADest + ACount;
}

// ACount is a multiple of cStep.
char* Narrow(const char16_t* ASource, std::size_t ACount, char* ADest) noexcept {
    for (std::size_t Done = 0; Done < ACount; Done += cStep) {
        TUnitStep Step;
        std::memcpy(&Step, ASource + Done, sizeof Step);
        const TByteStep Bytes = __builtin_convertvector(Step, TByteStep);
        std::memcpy(ADest + Done, &Bytes, sizeof Bytes);
    }
    return ADest + ACount;
}

char* EncodeUtf8(char32_t ACode, char* ADest) noexcept {
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
        const std::size_t Run = AsciiSteps(Here, End);
        Length += Run;
        Here += Run;
        // The rest of a step, of which at least one unit is not ASCII, or of the text.
        for (const char16_t* Stop = Here + std::min(End - Here, cStep); Here < Stop;) {
            const char32_t Code = DecodeUtf16(Here, End);
            Length += Code < 0x80 ? 1u : Code < 0x800 ? 2u : Code < 0x10000 ? 3u : 4u;
        }
    }
    return Length;
}

char16_t* Utf8ToUtf16(std::string_view AText, char16_t* ADest) noexcept {
    const char* Here = AText.data();
    const char* End = Here + AText.size();
    while (Here != End) {
        const std::size_t Run = AsciiRun(Here, End);
        ADest = Widen(Here, Run, ADest);
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
        const std::size_t Run = AsciiSteps(Here, End);
        ADest = Narrow(Here, Run, ADest);
        Here += Run;
        for (const char16_t* Stop = Here + std::min(End - Here, cStep); Here < Stop;)
            ADest = EncodeUtf8(DecodeUtf16(Here, End), ADest);
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

std::strong_ordering CompareUtf8(std::u16string_view AWide, std::string_view ANarrow) noexcept {
    const char* Here = ANarrow.data();
    const char* End = Here + ANarrow.size();
    std::size_t Done = 0;
    while (Here != End) {
        const char32_t Code =
            static_cast<signed char>(*Here) >= 0 ? static_cast<char32_t>(*Here++) : DecodeUtf8(Here, End);
        const bool IsPair = Code >= 0x10000;
        const char16_t Units[2] = {IsPair ? static_cast<char16_t>(0xD7C0 + (Code >> 10))
                                          : static_cast<char16_t>(Code),
                                   static_cast<char16_t>(0xDC00 + (Code & 0x3FF))};
        for (std::size_t I = 0; I < (IsPair ? 2u : 1u); ++I, ++Done) {
            if (Done == AWide.size())
                return std::strong_ordering::less;
            if (AWide[Done] != Units[I])
                return AWide[Done] <=> Units[I];
        }
    }
    return Done == AWide.size() ? std::strong_ordering::equal : std::strong_ordering::greater;
}

bool IsAscii(std::string_view AText) noexcept {
    return AsciiRun(AText.data(), AText.data() + AText.size()) == AText.size();
}

} // namespace qz
