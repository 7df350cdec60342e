// TStream: bytes at a position, to be read and written; what memory, files and text streams have in common.
//
//     void Save(TStream& ATarget) {
//         ATarget.WriteBuffer(&Header, sizeof Header);         // all of it, or EWriteError
//         ATarget.CopyFrom(Body);                              // all of Body, from its start
//     }
//
// Sizes and positions are in bytes, from 0, and 64 bits wide. A stream belongs to one thread at a time.
#pragma once

#include <cstdint>

#include <qz/runtime/base/DynArray.h>
#include <qz/runtime/objects/Object.h>

namespace qz {

enum class TSeekOrigin : std::uint8_t { soBeginning, soCurrent, soEnd };
using enum TSeekOrigin;

// The same for the 32-bit Seek.
inline constexpr std::uint16_t soFromBeginning = 0;
inline constexpr std::uint16_t soFromCurrent = 1;
inline constexpr std::uint16_t soFromEnd = 2;

class QZ_API TStream : public TObject {
    QZ_CLASS(TStream, TObject)

public:
    TStream(const TStream&) = delete;
    TStream& operator=(const TStream&) = delete;

    // What each stream class implements. A class that overrides Seek or SetSize declares "using
    // TStream::Seek;" to keep the 32-bit form in sight.

    // Reads up to ACount bytes at the position and moves past them; the number read, 0 at the end.
    virtual std::int32_t Read(void* ABuffer, std::int32_t ACount) = 0;
    // Writes ACount bytes at the position and moves past them; the number written.
    virtual std::int32_t Write(const void* ABuffer, std::int32_t ACount) = 0;
    // Moves the position; the new one, from the beginning.
    virtual std::int64_t Seek(std::int64_t AOffset, TSeekOrigin AOrigin) = 0;
    // Found by Seek unless a class knows better; the position stays.
    virtual std::int64_t GetSize();
    // Cuts or lengthens the stream. A stream that cannot be resized does nothing.
    virtual void SetSize(std::int64_t ANewSize);

    std::int32_t Seek(std::int32_t AOffset, std::uint16_t AOrigin);
    void SetSize(std::int32_t ANewSize) { SetSize(std::int64_t{ANewSize}); }
    std::int64_t Size() { return GetSize(); }
    std::int64_t Position() { return Seek(std::int64_t{0}, soCurrent); }
    void SetPosition(std::int64_t APosition) { Seek(APosition, soBeginning); }

    // Reads ACount bytes, or what there is until a read gives nothing, in as many steps as it takes; the
    // number read.
    std::int64_t ReadUpTo(void* ABuffer, std::int64_t ACount);
    // All of the bytes, in as many steps as it takes. Raise EReadError, "Stream read error", and EWriteError,
    // "Stream write error", when the stream gives or takes no more; what was read or written before remains
    // so.
    void ReadBuffer(void* ABuffer, std::int64_t ACount);
    void WriteBuffer(const void* ABuffer, std::int64_t ACount);
    void WriteBuffer(const TBytes& ABytes);

    // Copies ACount bytes from the position of ASource to that of this stream; with 0 or less, all of ASource
    // from its start. The number copied. Raises as ReadBuffer and WriteBuffer do.
    std::int64_t CopyFrom(TStream& ASource, std::int64_t ACount = 0);
    // Copies what lies between the position of ASource and its end, which may be nothing.
    std::int64_t CopyRest(TStream& ASource);

protected:
    TStream() = default;
};

} // namespace qz
