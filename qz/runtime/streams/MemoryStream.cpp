#include <qz/runtime/streams/MemoryStream.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <new>
#include <utility>

#include <qz/platform/Files.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/streams/FileStream.h>

namespace qz {

QZ_REGISTER_TYPES(TCustomMemoryStream, TMemoryStream);

constinit const TClassRec TCustomMemoryStream::ClassRec =
    DescribeClass<TCustomMemoryStream>(u"TCustomMemoryStream", {.Unit = u"System"});
constinit const TClassRec TMemoryStream::ClassRec =
    DescribeClass<TMemoryStream>(u"TMemoryStream", {.Unit = u"System"});

std::int32_t TCustomMemoryStream::Read(void* ABuffer, std::int32_t ACount) {
    const std::int64_t Count = std::clamp<std::int64_t>(FSize - FPosition, 0, std::max(ACount, 0));
    if (Count > 0)
        std::memcpy(ABuffer, static_cast<const std::byte*>(FMemory) + FPosition,
                    static_cast<std::size_t>(Count));
    FPosition += Count;
    return static_cast<std::int32_t>(Count);
}

std::int64_t TCustomMemoryStream::Seek(std::int64_t AOffset, TSeekOrigin AOrigin) {
    const std::int64_t From = AOrigin == soBeginning ? 0 : AOrigin == soCurrent ? FPosition : FSize;
    std::int64_t Position = 0;
    if (__builtin_add_overflow(From, AOffset, &Position) || Position < 0)
        throw EStreamError(u"Invalid stream operation");
    FPosition = Position;
    return Position;
}

void TCustomMemoryStream::SaveToStream(TStream& AStream) const {
    AStream.WriteBuffer(FMemory, FSize);
}

void TCustomMemoryStream::SaveToFile(const TStringArg& AFileName) const {
    if (const platform::TResult<> Written = platform::WriteWholeFile(AFileName, Content()); !Written)
        detail::RaiseFileError<EFCreateError>(SFCreateError, AFileName, Written.Error());
}

TMemoryStream::~TMemoryStream() {
    std::free(Memory());
}

// To at least ACapacity bytes, by half of what there is, so that many small writes take time in proportion to
// their sum.
void TMemoryStream::Reserve(std::int64_t ACapacity) {
    if (ACapacity <= FCapacity)
        return;
    constexpr std::int64_t cLeast = 256;
    const std::int64_t Capacity = std::max({ACapacity, FCapacity + FCapacity / 2, cLeast});
    void* Memory = std::realloc(this->Memory(), static_cast<std::size_t>(Capacity));
    if (Memory == nullptr)
        throw std::bad_alloc();
    SetPointer(Memory, GetSize());
    FCapacity = Capacity;
}

std::int32_t TMemoryStream::Write(const void* ABuffer, std::int32_t ACount) {
    if (ACount <= 0)
        return 0;
    std::int64_t End = 0;
    if (__builtin_add_overflow(FPosition, ACount, &End))
        throw std::bad_alloc();
    // The block may move, and with it a source that lies in it.
    const auto* Source = static_cast<const std::byte*>(ABuffer);
    const std::less<> Before;
    const auto* Start = static_cast<const std::byte*>(Memory());
    const bool Inside = !Before(Source, Start) && Before(Source, Start + FCapacity);
    const std::ptrdiff_t Offset = Inside ? Source - Start : 0;
    if (End > GetSize())
        SetSize(End);
    auto* Block = static_cast<std::byte*>(Memory());
    std::memmove(Block + FPosition, Inside ? Block + Offset : Source, static_cast<std::size_t>(ACount));
    FPosition = End;
    return ACount;
}

void TMemoryStream::SetSize(std::int64_t ANewSize) {
    const std::int64_t Old = GetSize();
    ANewSize = std::max<std::int64_t>(ANewSize, 0);
    if (ANewSize > Old) {
        Reserve(ANewSize);
        std::memset(static_cast<std::byte*>(Memory()) + Old, 0, static_cast<std::size_t>(ANewSize - Old));
    }
    SetPointer(Memory(), ANewSize);
    // A stream that grows keeps a position after its old end.
    if (ANewSize < Old)
        FPosition = std::min(FPosition, ANewSize);
}

void TMemoryStream::Clear() {
    std::free(Memory());
    SetPointer(nullptr, 0);
    FCapacity = 0;
    FPosition = 0;
}

void TMemoryStream::LoadFromStream(TStream& AStream) {
    // The new content is complete before the old one goes.
    TMemoryStream Fresh;
    AStream.SetPosition(0);
    Fresh.SetSize(AStream.Size());
    AStream.ReadBuffer(Fresh.Memory(), Fresh.GetSize());
    void* const Old = Memory();
    SetPointer(Fresh.Memory(), Fresh.GetSize());
    Fresh.SetPointer(Old, 0);
    std::swap(FCapacity, Fresh.FCapacity);
    FPosition = 0;
}

void TMemoryStream::LoadFromFile(const TStringArg& AFileName) {
    TFileStream File(AFileName, fmOpenRead | fmShareDenyWrite);
    LoadFromStream(File);
}

} // namespace qz
