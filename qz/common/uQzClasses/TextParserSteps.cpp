// TQzTextParser: single steps, characters and look-ahead, for each kind of text.
#include <algorithm>
#include <atomic>
#include <cstring>

#include <qz/common/uQzClasses/TextParserKinds.h>
#include <qz/common/uQzTypes/QzEncoding.h>
#include <qz/runtime/base/Utf.h>

namespace qz {

// Moves back where it began, on the way out of an exception too. What it may need again stays in memory:
// FPeekPos and FPeekPrevPos count as places in use.
class TQzTextParser::TLookAhead {
public:
    explicit TLookAhead(TQzTextParser& AParser) : FParser(AParser), FSaved(AParser.FState) {
        FParser.FPeekPos = FSaved.CurPos;
        FParser.FPeekPrevPos = FSaved.PrevPos;
    }
    TLookAhead(const TLookAhead&) = delete;
    TLookAhead& operator=(const TLookAhead&) = delete;
    ~TLookAhead() {
        FSaved.CurPos = std::exchange(FParser.FPeekPos, nullptr);
        FSaved.PrevPos = std::exchange(FParser.FPeekPrevPos, nullptr);
        FParser.FState = FSaved;
    }

private:
    TQzTextParser& FParser;
    TQzTextParserState FSaved;
};

// Completes a step that may have reached the end of the text in memory.
void TQzTextParser::Arrive() {
    FState.Eof = true; // should reading fail
    FState.Eof = !IsAvailable(Unit());
    if (FState.Eof) {
        FHalfUnit += Left(); // it is no character
        FBufEnd = FState.CurPos;
    }
}

void TQzTextParser::RestoreEnd() {
    FBufEnd += std::exchange(FHalfUnit, 0);
}

// A step over a UTF-8 form that reaches the end of the text in memory, or beyond.
void TQzTextParser::SlowStep(std::size_t ALength) {
    for (std::size_t I = 0; I < ALength; ++I) {
        if (I != 0) {
            FState.Eof = true; // should reading fail
            FState.Eof = GetEOF();
            CheckEOF();
        }
        ++FState.CurPos;
    }
    Arrive();
}

namespace {

// What each byte means in a code page. Tables are shared by all parsers and stay.
struct TWideTable {
    std::uint16_t CodePage;
    char16_t Units[256];
    const TWideTable* Next;
};

std::atomic<const TWideTable*> Tables{nullptr};

const TWideTable* FindTable(const TWideTable* AFirst, std::uint16_t ACodePage) {
    while (AFirst != nullptr && AFirst->CodePage != ACodePage)
        AFirst = AFirst->Next;
    return AFirst;
}

std::unique_ptr<TWideTable> MakeTable(std::uint16_t ACodePage) {
    auto Table = std::make_unique<TWideTable>();
    Table->CodePage = ACodePage;
    for (std::size_t I = 0; I < 256; ++I) {
        const auto Byte = static_cast<std::byte>(I);
        char16_t Units[8];
        const std::size_t Count = RequireConverted(
            ACodePage, DecodeCodePage(ACodePage, {&Byte, 1}, Units, platform::TDecoding::Lenient));
        Table->Units[I] = Count == 1 ? Units[0] : cReplacementChar;
    }
    return Table;
}

} // namespace

const char16_t* TQzTextParser::WideTable() {
    if (FWideTable != nullptr)
        return FWideTable;
    const std::uint16_t CodePage = RealCodePage(FContentCodePage);
    const TWideTable* First = Tables.load(std::memory_order_acquire);
    const TWideTable* Table = FindTable(First, CodePage);
    if (Table == nullptr) {
        std::unique_ptr<TWideTable> Fresh = MakeTable(CodePage);
        do
            Fresh->Next = First;
        while (!Tables.compare_exchange_weak(First, Fresh.get(), std::memory_order_acq_rel));
        Table = Fresh.release();
    }
    FWideTable = Table->Units;
    return FWideTable;
}

void TQzTextParser::NextChar() {
    const auto IsControl = [this] {
        return FCharacterSetType == DBCS ? detail::UnitAt(FState.CurPos) < cQzSpace
                                         : *FState.CurPos < cQzSpace;
    };
    do {
        Next();
    } while (!FState.Eof && IsControl());
}

void TQzTextParser::SkipChars(std::int32_t ACount) {
    for (; ACount > 0; --ACount)
        NextChar();
}

std::span<const std::byte> TQzTextParser::SelectedAndCurrent(TQzTextParserPosType AFromPos) {
    const TQzTextPos Start = GetPos(AFromPos);
    if (Start == nullptr || FState.CurPos < Start)
        RaiseBadSelection();
    std::ptrdiff_t Count = FState.CurPos - Start;
    {
        const TLookAhead LookAhead(*this);
        Next();
        Count += FState.CurPos - FPeekPos;
    }
    // The step may have moved the text in memory.
    return std::as_bytes(std::span(GetPos(AFromPos), static_cast<std::size_t>(Count)));
}

TQzTextPos TQzTextParser::SrcPeekNext(std::int32_t ACount) {
    const std::size_t Step = Unit();
    std::ptrdiff_t Ahead = 0;
    {
        const TLookAhead LookAhead(*this);
        for (; ACount > 0; --ACount)
            Next();
        CheckEOF();
        while ((Step == 2 ? detail::UnitAt(FState.CurPos) : *FState.CurPos) < cQzSpace) {
            Next();
            CheckEOF();
        }
        Ahead = FState.CurPos - FPeekPos;
    }
    return FState.CurPos + Ahead;
}

namespace detail {

template <TQzCharacterSetType Kind> const char16_t* TTextParserKind<Kind>::CurrCharW(TQzTextParser& AParser) {
    if (AParser.FState.Eof || AParser.FState.CurPos == nullptr)
        return &cQzEOFW;
    return WideAt(AParser, AParser.FState.CurPos, true);
}

template <TQzCharacterSetType Kind> const char* TTextParserKind<Kind>::CurrCharA(TQzTextParser& AParser) {
    if (AParser.FState.Eof || AParser.FState.CurPos == nullptr)
        return &cQzEOFA;
    return AnsiAt(AParser, AParser.FState.CurPos, true);
}

// A step that the end refused leaves the place before at the end, where there is no character.
template <TQzCharacterSetType Kind> bool TTextParserKind<Kind>::HasPrev(const TQzTextParser& AParser) {
    const TQzTextPos Pos = AParser.FState.PrevPos;
    return Pos != nullptr && AParser.FBufEnd - Pos >= static_cast<std::ptrdiff_t>(AParser.Unit());
}

template <TQzCharacterSetType Kind> const char16_t* TTextParserKind<Kind>::PrevCharW(TQzTextParser& AParser) {
    return HasPrev(AParser) ? WideAt(AParser, AParser.FState.PrevPos, false) : &cQzEOFW;
}

template <TQzCharacterSetType Kind> const char* TTextParserKind<Kind>::PrevCharA(TQzTextParser& AParser) {
    return HasPrev(AParser) ? AnsiAt(AParser, AParser.FState.PrevPos, false) : &cQzEOFA;
}

template <TQzCharacterSetType Kind> const char16_t* TTextParserKind<Kind>::ReadCharW(TQzTextParser& AParser) {
    if (AParser.FState.Eof)
        return &cQzEOFW;
    // The step may move the text in memory.
    AParser.FWideChar = *CurrCharW(AParser);
    Next(AParser);
    return &AParser.FWideChar;
}

template <TQzCharacterSetType Kind> const char* TTextParserKind<Kind>::ReadCharA(TQzTextParser& AParser) {
    if (AParser.FState.Eof)
        return &cQzEOFA;
    AParser.FAnsiChar = *CurrCharA(AParser);
    Next(AParser);
    return &AParser.FAnsiChar;
}

template <TQzCharacterSetType Kind> const char16_t* TTextParserKind<Kind>::PeekCharW(TQzTextParser& AParser) {
    if (AParser.FState.Eof)
        return &cQzEOFW;
    const TQzTextParser::TLookAhead LookAhead(AParser);
    AParser.NextChar();
    AParser.FWideChar = *CurrCharW(AParser);
    return &AParser.FWideChar;
}

template <TQzCharacterSetType Kind> const char* TTextParserKind<Kind>::PeekCharA(TQzTextParser& AParser) {
    if (AParser.FState.Eof)
        return &cQzEOFA;
    const TQzTextParser::TLookAhead LookAhead(AParser);
    AParser.NextChar();
    AParser.FAnsiChar = *CurrCharA(AParser);
    return &AParser.FAnsiChar;
}

// The bytes of up to ACount characters from the current one on.
template <TQzCharacterSetType Kind>
std::span<const std::byte> TTextParserKind<Kind>::Ahead(TQzTextParser& AParser, std::int32_t ACount) {
    auto Bytes = static_cast<std::size_t>(std::max(ACount, 0)) * (Kind == DBCS ? 2 : 1);
    if constexpr (Kind == MBCS) {
        const TQzTextParser::TLookAhead LookAhead(AParser);
        for (; ACount > 0 && !AParser.FState.Eof; --ACount)
            Next(AParser);
        Bytes = static_cast<std::size_t>(AParser.FState.CurPos - AParser.FPeekPos);
    } else if (!AParser.IsAvailable(Bytes)) {
        Bytes = AParser.Left() / AParser.Unit() * AParser.Unit();
    }
    return std::as_bytes(std::span(AParser.FState.CurPos, Bytes));
}

template <TQzCharacterSetType Kind>
UnicodeString TTextParserKind<Kind>::PeekStringW(TQzTextParser& AParser, std::int32_t ACount) {
    constexpr std::uint16_t cPage = Kind == DBCS ? cUtf16CodePage : cUtf8CodePage;
    return CodePageToUnicode(Kind == SBCS ? AParser.FContentCodePage : cPage, Ahead(AParser, ACount));
}

template <TQzCharacterSetType Kind>
AnsiString TTextParserKind<Kind>::PeekStringA(TQzTextParser& AParser, std::int32_t ACount) {
    if constexpr (Kind != SBCS)
        return NarrowText(PeekStringW(AParser, ACount));
    const std::span<const std::byte> Bytes = Ahead(AParser, ACount);
    return AnsiString(std::string_view(reinterpret_cast<const char*>(Bytes.data()), Bytes.size()),
                      cSystemCodePage);
}

template <> const char16_t* TTextParserKind<SBCS>::WideAt(TQzTextParser& AParser, TQzTextPos APos, bool) {
    return AParser.WideTable() + *APos;
}

template <> const char16_t* TTextParserKind<DBCS>::WideAt(TQzTextParser& AParser, TQzTextPos APos, bool) {
    AParser.FWideChar = UnitAt(APos);
    return &AParser.FWideChar;
}

template <>
const char16_t* TTextParserKind<MBCS>::WideAt(TQzTextParser& AParser, TQzTextPos APos, bool AIsCurrent) {
    const std::size_t Length = StepLength(*APos);
    // More may be had for the current character alone.
    if (static_cast<std::size_t>(AParser.FBufEnd - APos) < Length &&
        !(AIsCurrent && AParser.IsAvailable(Length)))
        throw EQzTextParserEOF(u"Unexpected EOF");
    const auto* Start = reinterpret_cast<const char*>(AIsCurrent ? AParser.FState.CurPos : APos);
    std::size_t Read = 0;
    const char32_t Code = NextCodePoint(std::string_view(Start, Length), Read);
    AParser.FWideChar = Code > 0xFFFF || Read != Length ? cReplacementChar : static_cast<char16_t>(Code);
    return &AParser.FWideChar;
}

template <TQzCharacterSetType Kind>
const char* TTextParserKind<Kind>::AnsiAt(TQzTextParser& AParser, TQzTextPos APos, bool AIsCurrent) {
    if (Kind == SBCS || (Kind == MBCS && *APos < 0x80))
        return reinterpret_cast<const char*>(APos);
    AParser.FAnsiChar = NarrowUnit(*WideAt(AParser, APos, AIsCurrent));
    return &AParser.FAnsiChar;
}

char NarrowUnit(char16_t AUnit) {
    if (AUnit < 0x80)
        return static_cast<char>(AUnit);
    char Bytes[8]{};
    TQzEncoding::ConvertW(&AUnit, 1, Bytes, sizeof Bytes, cSystemCodePage);
    return Bytes[0];
}

template struct TTextParserKind<SBCS>;
template struct TTextParserKind<DBCS>;
template struct TTextParserKind<MBCS>;

} // namespace detail
} // namespace qz
