// The operations of TQzTextParser that differ by the kind of text; for its source files alone.
#pragma once

#include <cstring>

#include <qz/common/uQzClasses/TextParser.h>

namespace qz::detail {

inline char16_t UnitAt(TQzTextPos APos) noexcept {
    char16_t Unit;
    std::memcpy(&Unit, APos, sizeof Unit);
    return Unit;
}

// Bytes of a step over a form of UTF-8 by its first byte. Continuation bytes stand alone.
inline std::size_t StepLength(std::uint8_t AFirst) noexcept {
    return 1u + (AFirst >= 0xC0) + (AFirst >= 0xE0) + (AFirst >= 0xF0);
}

// The text in the system's code page.
inline AnsiString NarrowText(std::u16string_view AText) {
    return AnsiString::Encoded(AText, cSystemCodePage, platform::TComposing::Composite);
}

// The first byte of the unit in the system's code page.
char NarrowUnit(char16_t AUnit);

template <TQzCharacterSetType Kind> struct TTextParserKind {
    static const char16_t* CurrCharW(TQzTextParser& AParser);
    static const char16_t* ReadCharW(TQzTextParser& AParser);
    static const char16_t* PrevCharW(TQzTextParser& AParser);
    static const char16_t* PeekCharW(TQzTextParser& AParser);
    static const char* CurrCharA(TQzTextParser& AParser);
    static const char* ReadCharA(TQzTextParser& AParser);
    static const char* PrevCharA(TQzTextParser& AParser);
    static const char* PeekCharA(TQzTextParser& AParser);
    static UnicodeString PeekStringW(TQzTextParser& AParser, std::int32_t ACount);
    static AnsiString PeekStringA(TQzTextParser& AParser, std::int32_t ACount);

    // In TextParserSkips.cpp, where the compiler sees the step and the loops together.
    static void Next(TQzTextParser& AParser);
    static void SkipWhileA(TQzTextParser& AParser, TQzTextParserSkipOp AOp, char AChar);
    static void SkipWhileW(TQzTextParser& AParser, TQzTextParserSkipOp AOp, char16_t AChar);
    static void SkipWhileIn(TQzTextParser& AParser, TQzTextParserSkipSetOp AOp,
                            const TQzTextParserCharSet& ASet);

    static void FillIn(TQzTextParser& AParser);

private:
    // AIsCurrent: APos is the current place, for which more may be fetched.
    static const char16_t* WideAt(TQzTextParser& AParser, TQzTextPos APos, bool AIsCurrent);
    static const char* AnsiAt(TQzTextParser& AParser, TQzTextPos APos, bool AIsCurrent);
    static bool HasPrev(const TQzTextParser& AParser);
    static std::span<const std::byte> Ahead(TQzTextParser& AParser, std::int32_t ACount);
    template <class TTest> static void SkipBy(TQzTextParser& AParser, const TTest& ATest);
    template <class TTest> static bool Run(TQzTextParser& AParser, const TTest& ATest);
};

template <>
const char16_t* TTextParserKind<SBCS>::WideAt(TQzTextParser& AParser, TQzTextPos APos, bool AIsCurrent);
template <>
const char16_t* TTextParserKind<DBCS>::WideAt(TQzTextParser& AParser, TQzTextPos APos, bool AIsCurrent);
template <>
const char16_t* TTextParserKind<MBCS>::WideAt(TQzTextParser& AParser, TQzTextPos APos, bool AIsCurrent);

} // namespace qz::detail
