// TMemoryStream: a stream in memory that grows with each write.
//
//     TMemoryStream Stream;
//     Stream.WriteBuffer("abc", 3);
//     Stream.SaveToFile(u"abc.bin");
//
// TCustomMemoryStream is what streams over a block of memory share; on its own it reads a block that belongs
// to somebody else.
#pragma once

#include <span>

#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/streams/Stream.h>

namespace qz {

class QZ_API TCustomMemoryStream : public TStream {
    QZ_CLASS(TCustomMemoryStream, TStream)

public:
    using TStream::Seek;
    using TStream::SetSize;

    // The first byte; null while there is no memory. Valid until the next write or change of size.
    void* Memory() const noexcept { return FMemory; }
    std::span<const std::byte> Content() const noexcept {
        return {static_cast<const std::byte*>(FMemory), static_cast<std::size_t>(FSize)};
    }

    std::int32_t Read(void* ABuffer, std::int32_t ACount) override;
    // Places after the end are allowed; a write there fills the gap with zeros. A place before the beginning
    // raises EStreamError.
    std::int64_t Seek(std::int64_t AOffset, TSeekOrigin AOrigin) override;
    std::int64_t GetSize() override { return FSize; }

    void SaveToStream(TStream& AStream) const;
    // As a whole or not at all, as far as platform/Files.h says of WriteWholeFile; raises EFCreateError.
    void SaveToFile(const TStringArg& AFileName) const;

protected:
    TCustomMemoryStream() = default;

    void SetPointer(void* AMemory, std::int64_t ASize) noexcept {
        FMemory = AMemory;
        FSize = ASize;
    }
    std::int64_t FPosition = 0;

private:
    void* FMemory = nullptr;
    std::int64_t FSize = 0;
};

class QZ_API TMemoryStream : public TCustomMemoryStream {
    QZ_CLASS(TMemoryStream, TCustomMemoryStream)

public:
    using TCustomMemoryStream::SetSize;

    TMemoryStream() = default;
    ~TMemoryStream() override;

    // Always ACount; a negative count counts as 0. ABuffer may lie in the stream itself.
    std::int32_t Write(const void* ABuffer, std::int32_t ACount) override;
    // New bytes are 0. A position after the new end moves to it. Raises std::bad_alloc and leaves the stream
    // as it was.
    void SetSize(std::int64_t ANewSize) override;
    // No content and no memory, position 0.
    void Clear();

    // Replace the content; the position is 0 then. From a stream: all of it, whatever its position. When that
    // raises, the content is as it was.
    void LoadFromStream(TStream& AStream);
    // Raises EFOpenError.
    void LoadFromFile(const TStringArg& AFileName);

private:
    void Reserve(std::int64_t ACapacity);
    std::int64_t FCapacity = 0;
};

} // namespace qz
