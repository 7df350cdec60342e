// TQzTextParser: walks text of any 8-bit code page, UTF-16 or UTF-8 character by character, without
// converting it first; the scanner for parsers written by hand.
//
//     TQzTextParser Parser(&Stream, false, 65001);
//     while (!Parser.Eof()) {
//         Parser.SkipWhile(sopLtEq, cQzSpaceW);                        // blanks and line ends
//         Parser.SetMark(tpMarkPos1);
//         Parser.SkipWhileInSet(sopNotIn, {' ', '\n'});
//         Use(Parser.Selected(tpMarkPos1, tpCurPos, true), Parser.LineNr());
//     }
//
// The kind of text is chosen once, by the code page: UTF-16 (1200), UTF-8 (65001), else one byte a character.
// Memory is walked where it lies; any other stream is read in chunks of 32 MiB, and what marks and look-ahead
// can still ask for stays in memory. A byte order mark is not looked for. A parser belongs to one thread and
// needs its stream for itself.
#pragma once

#include <array>
#include <memory>

#include <qz/common/uQzClasses/Characters.h>
#include <qz/runtime/base/Set.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/streams/Stream.h>
#include <qz/runtime/text/AnsiString.h>

namespace qz {

enum class TQzCharacterSetType : std::uint8_t {
    SBCS, // one byte a character
    DBCS, // two bytes: UTF-16, lowest byte first
    MBCS  // UTF-8
};
using enum TQzCharacterSetType;

// Goes on while the current character is equal to, below, above ... the given one, or in or not in a set.
enum class TQzTextParserSkipOp : std::uint8_t {
    sopEq,
    sopLt,
    sopGt,
    sopUnEq,
    sopLtEq,
    sopGtEq,
    sopIn,
    sopNotIn
};
using enum TQzTextParserSkipOp;
using TQzTextParserSkipSetOp = TQzTextParserSkipOp; // sopIn or sopNotIn
using TQzTextParserCharSet = TCharSet;

enum class TQzTextParserPosType : std::uint8_t {
    tpPrevPos,
    tpCurPos,
    tpPeekPos,
    tpMarkPos1,
    tpMarkPos2,
    tpMarkPos3
};
using enum TQzTextParserPosType;
using TQzTextParserMarkPosType = TQzTextParserPosType; // tpMarkPos1 to tpMarkPos3

using TQzTextPos = const std::uint8_t*;

struct TQzTextParserState {
    TQzTextPos CurPos = nullptr;  // where the current character begins
    TQzTextPos PrevPos = nullptr; // where the previous one began; null before the first step
    bool Eof = false;             // the last step landed on the end of the input
    std::int32_t LineNr = 1;
    std::int32_t ColNr = 0;
    std::int32_t CharsRead = 0; // characters passed; bytes in UTF-16
    std::int32_t Position = 0;  // bytes passed; counters begin again beyond 2 GiB
};

// The quiet exception for a text that ends too early: "Unexpected EOF".
QZ_PLAIN_EXCEPTION(EQzTextParserEOF, EAbort);

class TQzTextParser;
using TQzTextParserReadFuncA = const char* (*)(TQzTextParser&);
using TQzTextParserReadFuncW = const char16_t* (*)(TQzTextParser&);
using TQzTextParserReadFunc = TQzTextParserReadFuncW;
using TQzTextParserNextFunc = void (*)(TQzTextParser&);
using TQzTextParserPeekFuncA = AnsiString (*)(TQzTextParser&, std::int32_t ACount);
using TQzTextParserPeekFuncW = UnicodeString (*)(TQzTextParser&, std::int32_t ACount);
using TQzTextParserSkipFuncA = void (*)(TQzTextParser&, TQzTextParserSkipOp, char);
using TQzTextParserSkipFuncW = void (*)(TQzTextParser&, TQzTextParserSkipOp, char16_t);
using TQzTextParserSkipSetFunc = void (*)(TQzTextParser&, TQzTextParserSkipSetOp,
                                          const TQzTextParserCharSet&);

namespace detail {
template <TQzCharacterSetType Kind> struct TTextParserKind;
}

class QZ_API TQzTextParser : public TObject {
    QZ_CLASS(TQzTextParser, TObject)

public:
    // Parses a stream from its position on; an owned one is freed with the parser. Asserts "It is not
    // possible to parse empty streams!"; raises Exception, "The specified encoding is not supported!", for
    // 1201, 12000 and 12001. An owned stream is left to the caller when this raises.
    TQzTextParser(TStream* AStream, bool AStreamOwner, std::uint16_t AContentCodePage);
    // Parses a block of the caller's, which must outlive the parser. Asserts and raises the same.
    TQzTextParser(const void* ABuffer, std::ptrdiff_t ASize, std::uint16_t AContentCodePage);
    TQzTextParser(const TQzTextParser&) = delete;
    TQzTextParser& operator=(const TQzTextParser&) = delete;
    ~TQzTextParser() override;

    // Treats the bytes from the current place on as text of another kind; the code page does not change.
    virtual void SetCharacterSetType(TQzCharacterSetType AValue);
    TQzCharacterSetType CharacterSetType() const noexcept { return FCharacterSetType; }
    // Takes the text to be in another code page of the same kind. Raises "The specified encoding is not
    // supported!".
    void SetContentCodePage(std::uint16_t AValue);
    std::uint16_t ContentCodePage() const noexcept { return FContentCodePage; }

    // Where the parser stands. Pointers are valid until the next operation that steps, looks ahead or gives a
    // character, as each of these may fetch more. Eof is named so as EOF is a macro of C.
    bool Eof() const noexcept { return FState.Eof; }
    std::int32_t LineNr() const noexcept { return FState.LineNr; }
    std::int32_t ColNr() const noexcept { return FState.ColNr; }
    std::int32_t CharsRead() const noexcept { return FState.CharsRead; }
    std::int32_t Position() const noexcept { return FState.Position; }
    TQzTextPos CurPos() const noexcept { return FState.CurPos; }
    // Whether there is nothing left, after trying to fetch more.
    bool GetEOF();
    // Raises EQzTextParserEOF when Eof.
    void CheckEOF() const;

    // Back to the start; marks are cleared. To the end, where steps would end too; the counters stay, and so
    // does the previous place, unless chunks are left to be read, which clears it.
    void First();
    void Last();

    // One step, which counts a column. The first character of the text is column 0 of line 1. Column 1 of
    // each further line is the line feed that starts it, but in UTF-8 the character after that line feed. A
    // carriage return is a character like any other. An odd last byte of UTF-16 is no character. Raises
    // EQzTextParserEOF at the end, and within a UTF-8 form that the end cuts off.
    void Next() { FnNext(*this); }
    // A step, and more while the character is a control character (below 32).
    void NextChar();
    void SkipChars(std::int32_t ACount);

    // The current character; the same with a step after it; the one before; the next that is no control
    // character, without moving. W in 16 bits, A in code page 0. 0 where there is no character. What one unit
    // cannot hold is U+FFFD.
    char16_t CurrChar() { return *FnCurrCharW(*this); }
    char16_t ReadChar() { return *FnReadCharW(*this); }
    char16_t PrevChar() { return *FnPrevCharW(*this); }
    char16_t PeekChar() { return *FnPeekCharW(*this); }
    char16_t CurrCharW() { return *FnCurrCharW(*this); }
    char16_t ReadCharW() { return *FnReadCharW(*this); }
    char16_t PrevCharW() { return *FnPrevCharW(*this); }
    char16_t PeekCharW() { return *FnPeekCharW(*this); }
    char CurrCharA() { return *FnCurrCharA(*this); }
    char ReadCharA() { return *FnReadCharA(*this); }
    char PrevCharA() { return *FnPrevCharA(*this); }
    char PeekCharA() { return *FnPeekCharA(*this); }
    // Up to ACount characters from the current one on, without moving. A in code page 0.
    UnicodeString PeekString(std::int32_t ACount) { return FnPeekStringW(*this, ACount); }
    UnicodeString PeekStringW(std::int32_t ACount) { return FnPeekStringW(*this, ACount); }
    AnsiString PeekStringA(std::int32_t ACount) { return FnPeekStringA(*this, ACount); }

    // Steps while the comparison holds; the end of the text stops it too. An 8-bit character is in code page
    // 0. sopIn and sopNotIn do nothing here.
    void SkipWhile(TQzTextParserSkipOp AOp, char AChar) { FnSkipWhileA(*this, AOp, AChar); }
    void SkipWhile(TQzTextParserSkipOp AOp, char16_t AChar) { FnSkipWhileW(*this, AOp, AChar); }
    // Steps while the character is in the set, or, with any other operator than sopIn, while it is not. In
    // UTF-8 the first byte counts; in UTF-16 units above 255 are passed by both.
    void SkipWhileInSet(TQzTextParserSkipSetOp AOp, const TQzTextParserCharSet& ASet) {
        FnSkipWhileInSet(*this, AOp, ASet);
    }

    // The place of that type, null when it is not set. Raises Exception, "Invalid TillPos specified!".
    TQzTextPos GetPos(TQzTextParserPosType APosType) const {
        switch (APosType) {
        case tpPrevPos: return FState.PrevPos;
        case tpCurPos: return FState.CurPos;
        case tpPeekPos: return FPeekPos;
        case tpMarkPos1: return FMarkPos1;
        case tpMarkPos2: return FMarkPos2;
        case tpMarkPos3: return FMarkPos3;
        }
        RaiseNoPlace();
    }
    // Set a mark to the current place, and take it away. Raise Exception, "Invalid MarkType specified!".
    void SetMark(TQzTextParserMarkPosType AMarkType) { Mark(AMarkType) = FState.CurPos; }
    void ClearMark(TQzTextParserMarkPosType AMarkType) { Mark(AMarkType) = nullptr; }
    // Bytes between two places; tpPeekPos as the end means: the current character included. Asserts that both
    // are set and in order.
    std::int32_t SelectedCnt(TQzTextParserPosType AFromPos, TQzTextParserPosType ATillPos) {
        return static_cast<std::int32_t>(SelectedBytes(AFromPos, ATillPos).size());
    }
    // The bytes themselves, where they lie; valid as pointers are.
    std::span<const std::byte> SelectedBytes(TQzTextParserPosType AFromPos, TQzTextParserPosType ATillPos) {
        const TQzTextPos Start = GetPos(AFromPos);
        if (ATillPos == tpPeekPos)
            return SelectedAndCurrent(AFromPos);
        const TQzTextPos Till = GetPos(ATillPos);
        if (Start == nullptr || Till < Start) [[unlikely]]
            RaiseBadSelection();
        return std::as_bytes(std::span(Start, Till));
    }
    // The text between them, A in code page 0 (one byte a character: the bytes as they stand). AClearMarks
    // takes those of the two that are marks away.
    AnsiString SelectedA(TQzTextParserPosType AFromPos, TQzTextParserPosType ATillPos, bool AClearMarks);
    UnicodeString SelectedW(TQzTextParserPosType AFromPos, TQzTextParserPosType ATillPos, bool AClearMarks);
    UnicodeString Selected(TQzTextParserPosType AFromPos, TQzTextParserPosType ATillPos, bool AClearMarks) {
        return SelectedW(AFromPos, ATillPos, AClearMarks);
    }

protected:
    // With chunks of another size than 32 MiB, at least 1.
    TQzTextParser(TStream* AStream, bool AStreamOwner, std::uint16_t AContentCodePage,
                  std::size_t AChunkSize);

    // A place ACount characters ahead or, beyond control characters, after it, without moving. Raises
    // EQzTextParserEOF.
    TQzTextPos SrcPeekNext(std::int32_t ACount);

    TStream* FStream = nullptr; // null when a block is parsed
    bool FStreamOwner = false;
    TQzCharacterSetType FCharacterSetType = SBCS;
    std::uint16_t FContentCodePage = 0;
    std::size_t FFirstPos = 0;      // of the stream: where the text starts
    TQzTextPos FBufStart = nullptr; // the text in memory
    TQzTextPos FBufEnd = nullptr;
    bool FFreeBuffer = false;   // the block in memory is FBuffer
    bool FChunked = false;      // the text is larger than one chunk
    std::int32_t FChunk = 0;    // number of the chunk in memory, from 1
    std::size_t FChunkSize = 0; // bytes read at a time
    bool FLastChunk = true;     // nothing is left to be read
    TQzTextParserState FState;
    TQzTextPos FPeekPos = nullptr; // where a look-ahead under way began
    TQzTextPos FMarkPos1 = nullptr;
    TQzTextPos FMarkPos2 = nullptr;
    TQzTextPos FMarkPos3 = nullptr;
    char FAnsiChar = cQzEOFA; // hold converted characters
    char16_t FWideChar = cQzEOFW;
    TQzTextParserReadFuncA FnReadCharA, FnPrevCharA, FnCurrCharA, FnPeekCharA;
    TQzTextParserReadFuncW FnReadCharW, FnPrevCharW, FnCurrCharW, FnPeekCharW;
    TQzTextParserPeekFuncA FnPeekStringA;
    TQzTextParserPeekFuncW FnPeekStringW;
    TQzTextParserSkipFuncA FnSkipWhileA;
    TQzTextParserSkipFuncW FnSkipWhileW;
    TQzTextParserNextFunc FnNext;
    TQzTextParserSkipSetFunc FnSkipWhileInSet;

private:
    template <TQzCharacterSetType Kind> friend struct detail::TTextParserKind;
    class TLookAhead;

    // The bytes that continue a run, for the most recent set.
    struct TByteClass {
        TQzTextParserCharSet Set; // at first the empty one, which contains nothing
        std::array<bool, 256> Contains{};
    };

    void Start(std::uint16_t AContentCodePage);
    void LoadFirst(std::size_t ATotal);
    void GetNextChunk();
    std::unique_ptr<std::uint8_t[]> Grown(std::size_t ACarry, std::size_t& ARead);
    std::size_t Unit() const noexcept { return FCharacterSetType == DBCS ? 2 : 1; }
    std::size_t Left() const noexcept { return static_cast<std::size_t>(FBufEnd - FState.CurPos); }
    bool IsAvailable(std::size_t ABytes);
    void Arrive();
    void RestoreEnd();
    void SlowStep(std::size_t ALength);
    std::span<const std::byte> SelectedAndCurrent(TQzTextParserPosType AFromPos);
    [[noreturn]] static void RaiseNoPlace();
    [[noreturn]] static void RaiseNoMark();
    [[noreturn]] static void RaiseBadSelection();
    void ClearMarks(TQzTextParserPosType AFromPos, TQzTextParserPosType ATillPos);
    TQzTextPos& Mark(TQzTextParserMarkPosType AMarkType) {
        switch (AMarkType) {
        case tpMarkPos1: return FMarkPos1;
        case tpMarkPos2: return FMarkPos2;
        case tpMarkPos3: return FMarkPos3;
        default: RaiseNoMark();
        }
    }
    const TByteClass& ClassOf(const TQzTextParserCharSet& ASet);
    const char16_t* WideTable();

    std::unique_ptr<std::uint8_t[]> FBuffer;
    std::size_t FHalfUnit = 0;            // bytes after FBufEnd that are half a unit of UTF-16
    TQzTextPos FPeekPrevPos = nullptr;    // PrevPos when the look-ahead began
    const char16_t* FWideTable = nullptr; // each byte of the code page, once it was needed
    TByteClass FClasses[2];
    int FNextClass = 0;
};

} // namespace qz
