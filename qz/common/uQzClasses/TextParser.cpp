// TQzTextParser: construction, the text in memory, places and what lies between them. The steps are in
// TextParserSteps.cpp.
#include <qz/common/uQzClasses/TextParser.h>

#include <algorithm>
#include <cstring>
#include <utility>

#include <qz/common/uQzClasses/QzMemoryStream.h>
#include <qz/common/uQzClasses/TextParserKinds.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/DescribeException.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/streams/MemoryStream.h>

namespace qz {
namespace {

constexpr std::size_t cChunkSize = 33'554'432;

bool IsRefused(std::uint16_t ACodePage) {
    return ACodePage == cUtf16SwappedCodePage || ACodePage == cUtf32CodePage ||
        ACodePage == cUtf32SwappedCodePage;
}

[[noreturn]] void RaiseNotSupported() {
    throw Exception(u"The specified encoding is not supported!");
}

// Whether the stream lies in memory; AMemory receives its block, which may be null.
bool IsInMemory(TStream* AStream, TQzTextPos& AMemory) {
    if (const auto* Own = dynamic_cast<TQzMemoryStream*>(AStream)) {
        AMemory = Own->FBufferStart;
        return true;
    }
    if (const auto* Runtime = dynamic_cast<TCustomMemoryStream*>(AStream)) {
        AMemory = static_cast<TQzTextPos>(Runtime->Memory());
        return true;
    }
    return false;
}

} // namespace

QZ_REGISTER_TYPES(EQzTextParserEOF, TQzTextParser);

const TClassRec EQzTextParserEOF::ClassRec =
    DescribeException<EQzTextParserEOF>(u"EQzTextParserEOF", u"uQzClasses");
constinit const TClassRec TQzTextParser::ClassRec =
    DescribeClass<TQzTextParser>(u"TQzTextParser", {.Unit = u"uQzClasses"});

TQzTextParser::TQzTextParser(TStream* AStream, bool AStreamOwner, std::uint16_t AContentCodePage)
    : TQzTextParser(AStream, AStreamOwner, AContentCodePage, cChunkSize) {}

TQzTextParser::TQzTextParser(TStream* AStream, bool AStreamOwner, std::uint16_t AContentCodePage,
                             std::size_t AChunkSize)
    : FStream(AStream),
      FChunkSize(AChunkSize) {
    Assert(AStream != nullptr && AStream->Size() >= 1, u"It is not possible to parse empty streams!");
    FFirstPos = static_cast<std::size_t>(AStream->Position());
    Start(AContentCodePage);
    FStreamOwner = AStreamOwner;
}

TQzTextParser::TQzTextParser(const void* ABuffer, std::ptrdiff_t ASize, std::uint16_t AContentCodePage) {
    Assert(ABuffer != nullptr && ASize > 0, u"It is not possible to parse empty streams!");
    FBufStart = static_cast<TQzTextPos>(ABuffer);
    FBufEnd = FBufStart + ASize;
    FChunkSize = static_cast<std::size_t>(ASize);
    Start(AContentCodePage);
}

TQzTextParser::~TQzTextParser() {
    if (FStreamOwner)
        FStream->Free();
}

void TQzTextParser::Start(std::uint16_t AContentCodePage) {
    if (IsRefused(AContentCodePage))
        RaiseNotSupported();
    FContentCodePage = AContentCodePage;
    SetCharacterSetType(AContentCodePage == cUtf16CodePage      ? DBCS
                            : AContentCodePage == cUtf8CodePage ? MBCS
                                                                : SBCS);
    First();
}

void TQzTextParser::SetContentCodePage(std::uint16_t AValue) {
    if ((FCharacterSetType == MBCS) != (AValue == cUtf8CodePage) ||
        (FCharacterSetType != DBCS && AValue == cUtf16CodePage) || IsRefused(AValue))
        RaiseNotSupported();
    FContentCodePage = AValue;
    FWideTable = nullptr;
}

void TQzTextParser::First() {
    FPeekPos = FPeekPrevPos = FMarkPos1 = FMarkPos2 = FMarkPos3 = nullptr;
    RestoreEnd();
    if (FStream != nullptr && FChunked && FChunk != 1) {
        FBuffer.reset();
        FBufStart = FBufEnd = nullptr;
        FFreeBuffer = false;
    }
    // At the end, should the stream raise.
    FState = TQzTextParserState{.CurPos = FBufEnd, .Eof = true};
    if (FStream != nullptr) {
        if (FBufStart == nullptr) {
            FStream->SetPosition(static_cast<std::int64_t>(FFirstPos));
            FChunked = false;
            FLastChunk = true;
        }
        LoadFirst(static_cast<std::size_t>(
            std::max<std::int64_t>(FStream->Size() - static_cast<std::int64_t>(FFirstPos), 0)));
    }
    FState.CurPos = FBufStart;
    Arrive();
}

// Brings the first chunk into memory, unless it is there.
void TQzTextParser::LoadFirst(std::size_t ATotal) {
    if (TQzTextPos Memory = nullptr; IsInMemory(FStream, Memory)) {
        FBufStart = Memory + (ATotal == 0 ? 0 : FFirstPos);
        FState.CurPos = FBufEnd = FBufStart + ATotal;
        FStream->Seek(std::int64_t{0}, soEnd);
        return;
    }
    if (FBufStart != nullptr)
        return;
    const std::size_t Length = std::min(ATotal, FChunkSize);
    auto Block = std::make_unique_for_overwrite<std::uint8_t[]>(std::max<std::size_t>(Length, 1));
    const auto Done =
        static_cast<std::size_t>(FStream->ReadUpTo(Block.get(), static_cast<std::int64_t>(Length)));
    FBuffer = std::move(Block);
    FBufStart = FBuffer.get();
    FBufEnd = FBufStart + Done;
    FFreeBuffer = true;
    FChunk = 1;
    FChunked = Length < ATotal;
    // A stream that was truncated meanwhile ends here.
    FLastChunk = !FChunked || Done < Length;
}

// A block with the last ACarry bytes of what is in memory and a new chunk after them. When reading fails, the
// stream goes back, so that nothing is lost to a later try.
std::unique_ptr<std::uint8_t[]> TQzTextParser::Grown(std::size_t ACarry, std::size_t& ARead) {
    auto Block = std::make_unique_for_overwrite<std::uint8_t[]>(FChunkSize + ACarry);
    std::memcpy(Block.get(), FBufEnd - ACarry, ACarry);
    const std::int64_t Start = FStream->Position();
    const std::int32_t Chunk = std::exchange(FChunk, 2); // any but the first, for First to start over
    try {
        ARead = static_cast<std::size_t>(
            FStream->ReadUpTo(Block.get() + ACarry, static_cast<std::int64_t>(FChunkSize)));
    } catch (...) {
        FStream->SetPosition(Start);
        FChunk = Chunk;
        throw;
    }
    FChunk = Chunk;
    return Block;
}

// All text that can still be requested stays in memory, before the new chunk.
void TQzTextParser::GetNextChunk() {
    Assert(FStream != nullptr && FChunked && !FLastChunk, u"There is no further chunk");
    TQzTextPos* const InUse[] = {&FState.CurPos, &FState.PrevPos, &FPeekPos, &FPeekPrevPos,
                                 &FMarkPos1,     &FMarkPos2,      &FMarkPos3};
    std::size_t Carry = 0;
    for (const TQzTextPos* Pos : InUse) {
        if (*Pos != nullptr)
            Carry = std::max(Carry, static_cast<std::size_t>(FBufEnd - *Pos));
    }
    std::size_t Read = 0;
    auto Block = Grown(Carry, Read);
    for (TQzTextPos* Pos : InUse) {
        if (*Pos != nullptr)
            *Pos = Block.get() + Carry - (FBufEnd - *Pos);
    }
    FBuffer = std::move(Block);
    FBufStart = FBuffer.get();
    FBufEnd = FBufStart + Carry + Read;
    FFreeBuffer = true;
    ++FChunk;
    FLastChunk = Read < FChunkSize || FStream->Position() >= FStream->Size();
}

bool TQzTextParser::IsAvailable(std::size_t ABytes) {
    while (Left() < ABytes && !FLastChunk)
        GetNextChunk();
    return Left() >= ABytes;
}

bool TQzTextParser::GetEOF() {
    return !IsAvailable(1);
}

void TQzTextParser::CheckEOF() const {
    if (FState.Eof)
        throw EQzTextParserEOF(u"Unexpected EOF");
}

void TQzTextParser::Last() {
    if (!FLastChunk)
        FState.PrevPos = nullptr; // otherwise all of the text would stay in memory
    while (true) {
        FState.CurPos = FBufEnd - Left() % Unit();
        if (FLastChunk)
            return Arrive();
        FState.Eof = true; // should reading fail
        GetNextChunk();
    }
}

void TQzTextParser::RaiseNoPlace() {
    throw Exception(u"Invalid TillPos specified!");
}

void TQzTextParser::RaiseNoMark() {
    throw Exception(u"Invalid MarkType specified!");
}

void TQzTextParser::RaiseBadSelection() {
    throw EAssertionFailed(u"The selection has a place that is not set, or ends before it starts");
}

void TQzTextParser::ClearMarks(TQzTextParserPosType AFromPos, TQzTextParserPosType ATillPos) {
    for (const TQzTextParserPosType Pos : {AFromPos, ATillPos}) {
        if (Pos >= tpMarkPos1)
            ClearMark(Pos);
    }
}

AnsiString TQzTextParser::SelectedA(TQzTextParserPosType AFromPos, TQzTextParserPosType ATillPos,
                                    bool AClearMarks) {
    if (FCharacterSetType != SBCS)
        return detail::NarrowText(SelectedW(AFromPos, ATillPos, AClearMarks));
    const std::span<const std::byte> Bytes = SelectedBytes(AFromPos, ATillPos);
    AnsiString Result(std::string_view(reinterpret_cast<const char*>(Bytes.data()), Bytes.size()),
                      cSystemCodePage);
    if (AClearMarks)
        ClearMarks(AFromPos, ATillPos);
    return Result;
}

UnicodeString TQzTextParser::SelectedW(TQzTextParserPosType AFromPos, TQzTextParserPosType ATillPos,
                                       bool AClearMarks) {
    const std::span<const std::byte> Bytes = SelectedBytes(AFromPos, ATillPos);
    const std::uint16_t CodePage = FCharacterSetType == SBCS ? FContentCodePage
        : FCharacterSetType == DBCS                          ? cUtf16CodePage
                                                             : cUtf8CodePage;
    UnicodeString Result = CodePageToUnicode(CodePage, Bytes);
    if (AClearMarks)
        ClearMarks(AFromPos, ATillPos);
    return Result;
}

} // namespace qz
