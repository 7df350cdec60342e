#include <qz/runtime/streams/Stream.h>

#include <algorithm>
#include <memory>

#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {
namespace {

constexpr std::int64_t cLargestStep = std::int64_t{1} << 30;
constexpr std::int64_t cCopyStep = std::int64_t{64} << 10;

std::int32_t StepOf(std::int64_t ACount, std::int64_t ALargest) {
    return static_cast<std::int32_t>(std::min(ACount, ALargest));
}

} // namespace

QZ_REGISTER_TYPES(TStream);

constinit const TClassRec TStream::ClassRec = DescribeClass<TStream>(u"TStream", {.Unit = u"System"});

std::int64_t TStream::GetSize() {
    const std::int64_t Here = Position();
    const std::int64_t Size = Seek(std::int64_t{0}, soEnd);
    Seek(Here, soBeginning);
    return Size;
}

void TStream::SetSize(std::int64_t) {}

std::int32_t TStream::Seek(std::int32_t AOffset, std::uint16_t AOrigin) {
    if (AOrigin > soFromEnd)
        throw EStreamError(u"Invalid stream operation");
    const std::int64_t Position = Seek(std::int64_t{AOffset}, static_cast<TSeekOrigin>(AOrigin));
    return static_cast<std::int32_t>(std::min<std::int64_t>(Position, INT32_MAX));
}

std::int64_t TStream::ReadUpTo(void* ABuffer, std::int64_t ACount) {
    auto* Target = static_cast<std::byte*>(ABuffer);
    std::int64_t Done = 0;
    while (Done < ACount) {
        const std::int32_t Got = Read(Target + Done, StepOf(ACount - Done, cLargestStep));
        if (Got <= 0)
            break;
        Done += Got;
    }
    return Done;
}

void TStream::ReadBuffer(void* ABuffer, std::int64_t ACount) {
    if (ReadUpTo(ABuffer, ACount) < ACount)
        throw EReadError(u"Stream read error");
}

void TStream::WriteBuffer(const void* ABuffer, std::int64_t ACount) {
    const auto* Source = static_cast<const std::byte*>(ABuffer);
    while (ACount > 0) {
        const std::int32_t Done = Write(Source, StepOf(ACount, cLargestStep));
        if (Done <= 0)
            throw EWriteError(u"Stream write error");
        Source += Done;
        ACount -= Done;
    }
}

void TStream::WriteBuffer(const TBytes& ABytes) {
    WriteBuffer(ABytes.data(), static_cast<std::int64_t>(ABytes.Length()));
}

std::int64_t TStream::CopyFrom(TStream& ASource, std::int64_t ACount) {
    if (ACount <= 0) {
        ASource.SetPosition(0);
        ACount = ASource.Size();
    }
    const auto Buffer =
        std::make_unique_for_overwrite<std::byte[]>(static_cast<std::size_t>(std::min(ACount, cCopyStep)));
    for (std::int64_t Rest = ACount; Rest > 0;) {
        const std::int32_t Step = StepOf(Rest, cCopyStep);
        ASource.ReadBuffer(Buffer.get(), Step);
        WriteBuffer(Buffer.get(), Step);
        Rest -= Step;
    }
    return ACount;
}

std::int64_t TStream::CopyRest(TStream& ASource) {
    const std::int64_t Rest = ASource.Size() - ASource.Position();
    return Rest > 0 ? CopyFrom(ASource, Rest) : 0;
}

} // namespace qz
