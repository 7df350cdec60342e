#include <qz/common/uQzClasses/QzMemoryStream.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <new>

#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {
namespace {

std::uint8_t* NewBlock(std::size_t ASize) {
    void* Block = std::malloc(ASize);
    if (Block == nullptr)
        throw std::bad_alloc();
    return static_cast<std::uint8_t*>(Block);
}

std::size_t SizeOf(std::int64_t ASize) {
    return static_cast<std::size_t>(std::max<std::int64_t>(ASize, 0));
}

} // namespace

QZ_REGISTER_TYPES(TQzMemoryStream);

constinit const TClassRec TQzMemoryStream::ClassRec =
    DescribeClass<TQzMemoryStream>(u"TQzMemoryStream", {.Unit = u"uQzClasses"});

TQzMemoryStream::TQzMemoryStream(std::size_t ABlockSize)
    : FFreeMem(true),
      FBlockSize(ABlockSize),
      FBufferStart(nullptr),
      FBufferSize(ABlockSize),
      FContentSize(0) {
    Assert(ABlockSize != 0, u"A stream needs a block size to grow by");
    FBufferStart = NewBlock(ABlockSize);
    FContentEnd = FCurPos = FBufferStart;
}

TQzMemoryStream::TQzMemoryStream(void* ABuffer, std::size_t ASize)
    : FFreeMem(false),
      FBlockSize(0),
      FBufferStart(static_cast<std::uint8_t*>(ABuffer)),
      FBufferSize(ASize),
      FContentEnd(FBufferStart + ASize),
      FContentSize(ASize),
      FCurPos(FBufferStart) {}

TQzMemoryStream::~TQzMemoryStream() {
    if (FFreeMem)
        std::free(FBufferStart);
}

// The block alone: content and pointers are left to the caller.
void TQzMemoryStream::Reallocate(std::size_t ANewSize) {
    if (!FFreeMem)
        throw Exception(u"It is not possible to resize the buffer!");
    std::size_t Size = 0;
    if (__builtin_mul_overflow(ANewSize / FBlockSize + 1, FBlockSize, &Size) || Size > PTRDIFF_MAX)
        throw std::bad_alloc();
    void* Block = std::realloc(FBufferStart, Size);
    if (Block == nullptr)
        throw std::bad_alloc();
    FBufferStart = static_cast<std::uint8_t*>(Block);
    FBufferSize = Size;
}

void TQzMemoryStream::SetSize(std::int64_t ANewSize) {
    const auto Position = static_cast<std::size_t>(FCurPos - FBufferStart);
    const std::size_t NewSize = SizeOf(ANewSize);
    Reallocate(NewSize);
    FContentSize = NewSize;
    FContentEnd = FBufferStart + NewSize;
    FCurPos = FBufferStart + std::min(Position, NewSize);
}

void TQzMemoryStream::SetBufSize(std::size_t ANewSize) {
    const auto Position = static_cast<std::size_t>(FCurPos - FBufferStart);
    Reallocate(ANewSize);
    FContentSize = std::min(FContentSize, ANewSize);
    FContentEnd = FBufferStart + FContentSize;
    FCurPos = FBufferStart + std::min(Position, FContentSize);
}

void TQzMemoryStream::SetContentEnd(std::int64_t AValue) {
    if (AValue > GetSize())
        return SetSize(AValue);
    FContentEnd = FBufferStart + SizeOf(AValue);
    FCurPos = std::min(FCurPos, FContentEnd);
}

void TQzMemoryStream::CheckSize(std::size_t ACount) {
    std::size_t Needed = 0;
    if (__builtin_add_overflow(ACount, FContentSize + 1, &Needed))
        throw std::bad_alloc();
    if (Needed > FBufferSize)
        SetBufSize(Needed);
}

void TQzMemoryStream::Clear() {
    if (!FFreeMem)
        throw Exception(u"It is not possible to resize the buffer!");
    // A smaller block can be done without: when there is none, the old one serves on.
    if (void* Block = std::realloc(FBufferStart, FBlockSize)) {
        FBufferStart = static_cast<std::uint8_t*>(Block);
        FBufferSize = FBlockSize;
    }
    FContentEnd = FCurPos = FBufferStart;
    FContentSize = 0;
}

std::int32_t TQzMemoryStream::Read(void* ABuffer, std::int32_t ACount) {
    const auto Count =
        static_cast<std::int32_t>(std::clamp<std::ptrdiff_t>(FContentEnd - FCurPos, 0, std::max(ACount, 0)));
    if (Count > 0) {
        std::memcpy(ABuffer, FCurPos, static_cast<std::size_t>(Count));
        FCurPos += Count;
    }
    return Count;
}

std::int32_t TQzMemoryStream::Write(const void* ABuffer, std::int32_t ACount) {
    if (ACount <= 0)
        return 0;
    const auto Count = static_cast<std::size_t>(ACount);
    const std::size_t End = static_cast<std::size_t>(FCurPos - FBufferStart) + Count;
    const std::size_t More = End > FContentSize ? End - FContentSize : 0;
    const auto* Source = static_cast<const std::uint8_t*>(ABuffer);
    if (More != 0 && More + FContentSize >= FBufferSize) {
        // The block may move, and with it a source that lies in it.
        const std::less<> Before;
        const bool Inside = !Before(Source, FBufferStart) && Before(Source, FBufferStart + FBufferSize);
        const std::ptrdiff_t Offset = Inside ? Source - FBufferStart : 0;
        CheckSize(More);
        Source = Inside ? FBufferStart + Offset : Source;
    }
    std::memmove(FCurPos, Source, Count);
    FCurPos += Count;
    IncContentEnd(More);
    return ACount;
}

std::int64_t TQzMemoryStream::Seek(std::int64_t AOffset, TSeekOrigin AOrigin) {
    const std::int64_t End = FContentEnd - FBufferStart;
    std::int64_t Place = AOffset;
    if (AOrigin == soCurrent && __builtin_add_overflow(FCurPos - FBufferStart, AOffset, &Place))
        Place = AOffset < 0 ? 0 : End;
    if (AOrigin == soEnd && __builtin_sub_overflow(End, AOffset, &Place))
        Place = End;
    Place = std::clamp<std::int64_t>(Place, 0, End);
    FCurPos = FBufferStart + Place;
    return Place;
}

void TQzMemoryStream::ReadBytes(void* ABuffer, std::int32_t ACount) {
    Assert(ACount >= 1, u"At least one byte has to be read");
    if (Read(ABuffer, ACount) < ACount)
        throw Exception(u"Unexpected EOF");
}

TBytes TQzMemoryStream::ReadBytes(std::int32_t ACount) {
    Assert(ACount >= 1, u"At least one byte has to be read");
    // No more memory than there is content for.
    const auto Rest = std::max<std::ptrdiff_t>(FContentEnd - FCurPos, 0);
    TBytes Result(static_cast<std::size_t>(std::min<std::ptrdiff_t>(ACount, Rest)));
    if (Read(Result.data(), static_cast<std::int32_t>(Result.Length())) < ACount)
        throw Exception(u"Unexpected EOF");
    return Result;
}

template <class T> T TQzMemoryStream::ReadNumber() {
    T Result{};
    ReadBytes(&Result, sizeof Result);
    return Result;
}

std::uint8_t TQzMemoryStream::ReadByte() {
    return ReadNumber<std::uint8_t>();
}

std::uint16_t TQzMemoryStream::ReadWord() {
    return ReadNumber<std::uint16_t>();
}

std::uint32_t TQzMemoryStream::ReadLongWord() {
    return ReadNumber<std::uint32_t>();
}

std::int64_t TQzMemoryStream::ReadInt64() {
    return ReadNumber<std::int64_t>();
}

void TQzMemoryStream::WriteByte(std::uint8_t AValue) {
    Write(&AValue, sizeof AValue);
}

void TQzMemoryStream::WriteWord(std::uint16_t AValue) {
    Write(&AValue, sizeof AValue);
}

void TQzMemoryStream::WriteLongWord(std::uint32_t AValue) {
    Write(&AValue, sizeof AValue);
}

void TQzMemoryStream::WriteInt64(std::int64_t AValue) {
    Write(&AValue, sizeof AValue);
}

void TQzMemoryStream::WriteBytes(const TBytes& ABytes) {
    WriteBuffer(ABytes);
}

} // namespace qz
