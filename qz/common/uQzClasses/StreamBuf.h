// Streams as memory: the rest of any stream as one block, and a block that is written to a stream.
//
//     TQzReadBuf Rest(Memory);                       // frees the block if necessary
//     Use(Rest.Bytes());
//
// A stream in memory lends its own block; any other stream is read into a new one.
#pragma once

#include <cstddef>
#include <span>

#include <qz/runtime/streams/Stream.h>

namespace qz {

// ABuffer and ASize receive what lies between the position and the end of the stream. False: the block is
// that of a TQzMemoryStream or TMemoryStream, which stays where it is and must not change meanwhile. True:
// the caller must free the block by QzFreeStreamBuf or FreeMem; the stream stands after what was read. A
// stream that ends early gives what it has. Raises what the stream raises, and std::bad_alloc; nothing has to
// be freed then.
QZ_API bool QzStreamToReadBuf(TStream& AStream, void*& ABuffer, std::size_t& ASize);
// ABuffer receives a block of ASize bytes that are not set. False: it lies in a TQzMemoryStream at its
// position, whose size is the position and ASize now; the position stays. True: it is a new block, which the
// caller writes to the stream and frees by QzFreeStreamBuf or FreeMem.
QZ_API bool QzStreamToWriteBuf(TStream& AStream, void*& ABuffer, std::size_t ASize);
QZ_API void QzFreeStreamBuf(void* ABuffer) noexcept;

// The block of QzStreamToReadBuf, freed when it has to be.
class TQzReadBuf {
public:
    explicit TQzReadBuf(TStream& AStream) : FMustFree(QzStreamToReadBuf(AStream, FBuffer, FSize)) {}
    TQzReadBuf(const TQzReadBuf&) = delete;
    TQzReadBuf& operator=(const TQzReadBuf&) = delete;
    ~TQzReadBuf() {
        if (FMustFree)
            QzFreeStreamBuf(FBuffer);
    }

    const void* data() const noexcept { return FBuffer; }
    std::size_t size() const noexcept { return FSize; }
    std::span<const std::byte> Bytes() const noexcept {
        return {static_cast<const std::byte*>(FBuffer), FSize};
    }

private:
    void* FBuffer = nullptr;
    std::size_t FSize = 0;
    bool FMustFree;
};

} // namespace qz
