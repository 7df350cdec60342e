// TQzMemoryStream: a stream over one block of memory that grows by steps of its user's choice, or over a
// block that belongs to the caller.
//
//     TQzMemoryStream Stream(64 * 1024);             // grows by 64 KiB
//     Stream.WriteLongWord(7);
//     TQzMemoryStream Fixed(Buffer, sizeof Buffer);  // all of Buffer, to read and to overwrite
//
// The block is always one piece, and the fields are open to those who work on it directly; the pointers stay
// valid until the block is resized. A stream that owns its block has a spare byte after the content after
// each write, for a terminator. A stream belongs to one thread at a time.
#pragma once

#include <cstddef>
#include <cstdint>

#include <qz/runtime/streams/Stream.h>

namespace qz {

class QZ_API TQzMemoryStream : public TStream {
    QZ_CLASS(TQzMemoryStream, TStream)

public:
    using TStream::Seek;
    using TStream::SetSize;

    bool FFreeMem;              // the stream owns the block: it may resize it and frees it at its end
    std::size_t FBlockSize;     // the step of growth; 0 for a wrapped block
    std::uint8_t* FBufferStart; // the first byte of the block
    std::size_t FBufferSize;    // bytes of the block
    std::uint8_t* FContentEnd;  // after the last byte of content
    std::size_t FContentSize;   // bytes of content
    std::uint8_t* FCurPos;      // where the next byte is read or written

    // An empty stream with a block of ABlockSize bytes, at least 1, which is also its step of growth: a block
    // is always a multiple of the step and larger than what was asked for. 16 suits short texts; an estimate
    // of the final size is best.
    explicit TQzMemoryStream(std::size_t ABlockSize);
    // Wraps a block of the caller's, all of it content. It must outlive the stream; it can be overwritten,
    // not resized.
    TQzMemoryStream(void* ABuffer, std::size_t ASize);
    ~TQzMemoryStream() override;

    // Bytes of content, never of the block.
    std::int64_t GetSize() override { return static_cast<std::int64_t>(FContentSize); }
    // Makes the content exactly ANewSize bytes; new ones are not initialised. A position after the end moves
    // to it. A negative size counts as 0. Raises Exception, "It is not possible to resize the buffer!", for a
    // wrapped block.
    void SetSize(std::int64_t ANewSize) override;
    // Up to the size: moves the end of the content but not the size, so that reading stops there and Seek
    // from the end starts there; a position after it moves to it. Above the size: as SetSize.
    void SetContentEnd(std::int64_t AValue);
    // Makes room for ACount more bytes of content and the spare byte.
    void CheckSize(std::size_t ACount);
    // Resizes the block to more than ANewSize bytes, by the step; content and position stay as far as they
    // fit. Raises as SetSize.
    void SetBufSize(std::size_t ANewSize);
    // An empty stream with its first block. Raises as SetSize.
    void Clear();

    // Move the pointers, without any check: for those who have written to the block themselves.
    void IncCurPos(std::size_t ACount) noexcept { FCurPos += ACount; }
    void DecCurPos(std::size_t ACount) noexcept { FCurPos -= ACount; }
    void IncContentEnd(std::size_t ACount) noexcept {
        FContentEnd += ACount;
        FContentSize += ACount;
    }

    // A negative count counts as 0.
    std::int32_t Read(void* ABuffer, std::int32_t ACount) override;
    // Always ACount. Raises as SetSize when a wrapped block would have to grow, and std::bad_alloc; the
    // stream is as before then. ABuffer may lie in the block itself.
    std::int32_t Write(const void* ABuffer, std::int32_t ACount) override;
    // The position stays within the content: what lies beyond either end stops there. From the end AOffset
    // counts backwards, so that 3 gives the place three bytes before the end.
    std::int64_t Seek(std::int64_t AOffset, TSeekOrigin AOrigin) override;

    // Numbers in the byte order of the machine. Reading raises Exception, "Unexpected EOF", with the position
    // after what there was.
    std::uint8_t ReadByte();
    std::uint16_t ReadWord();
    std::uint32_t ReadLongWord();
    std::int64_t ReadInt64();
    // ACount, at least 1, bytes.
    TBytes ReadBytes(std::int32_t ACount);
    void ReadBytes(void* ABuffer, std::int32_t ACount);
    void WriteByte(std::uint8_t AValue);
    void WriteWord(std::uint16_t AValue);
    void WriteLongWord(std::uint32_t AValue);
    void WriteInt64(std::int64_t AValue);
    void WriteBytes(const TBytes& ABytes);

private:
    void Reallocate(std::size_t ANewSize);
    template <class T> T ReadNumber();
};

} // namespace qz
