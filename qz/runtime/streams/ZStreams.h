// TZCompressionStream and TZDecompressionStream: deflate and inflate (RFC 1950, 1951, 1952) as streams over
// another stream.
//
//     TMemoryStream Packed;
//     TZCompressionStream Packer(Packed, zcMax);
//     Packer.WriteBuffer("text", 4);
//     Packer.Finish();                              // raises what the destructor would drop
//     Packed.SetPosition(0);
//     char Text[4];
//     TZDecompressionStream(Packed).ReadBuffer(Text, 4);
//
// The number of window bits selects the format: 9 to 15 is zlib, -9 to -15 raw deflate, 25 to 31 gzip. Both
// streams work in blocks of 64 KiB and need less than 400 KiB, whatever the size of the data. The other
// stream must outlive them, and nothing else may move its position. Each belongs to one thread at a time.
#pragma once

#include <memory>

#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/streams/Stream.h>

struct z_stream_s;

namespace qz {

// A failure of zlib, with its negative code; 2 if a preset dictionary is missing. The message is zlib's own.
class QZ_API EZLibError : public Exception {
    QZ_EXCEPTION(EZLibError, Exception)
public:
    EZLibError(const UnicodeString& AMessage, std::convertible_to<std::int32_t> auto ACode)
        : Exception(AMessage),
          FErrorCode(static_cast<std::int32_t>(ACode)) {}
    std::int32_t ErrorCode() const noexcept { return FErrorCode; }

private:
    std::int32_t FErrorCode;
};
QZ_PLAIN_EXCEPTION(EZCompressionError, EZLibError);
QZ_PLAIN_EXCEPTION(EZDecompressionError, EZLibError);

enum class TZCompressionLevel : std::uint8_t {
    zcNone,    // 0: stored
    zcFastest, // 1
    zcDefault, // -1: what zlib takes for the best compromise
    zcMax      // 9
};
using enum TZCompressionLevel;

// What the two have in common: the zlib state and a block of compressed data.
class QZ_API TCustomZStream : public TStream {
    QZ_CLASS(TCustomZStream, TStream)

public:
    using TStream::Seek;

    ~TCustomZStream() override;

protected:
    using TEnd = int (*)(z_stream_s*);
    TCustomZStream(TStream& AStream, TEnd AEnd);

    TStream& FStream;
    std::unique_ptr<z_stream_s> FState;
    std::unique_ptr<std::uint8_t[]> FBlock;
    std::int64_t FPosition = 0; // in the data that is not compressed

private:
    TEnd FEnd;
};

class QZ_API TZCompressionStream : public TCustomZStream {
    QZ_CLASS(TZCompressionStream, TCustomZStream)

public:
    using TCustomZStream::Seek;

    // Writes compressed data to ATarget from its position on. Raises EZCompressionError for window bits that
    // zlib refuses and if it has no memory.
    explicit TZCompressionStream(TStream& ATarget, TZCompressionLevel ALevel = zcDefault,
                                 std::int32_t AWindowBits = 15);
    // Calls Finish and drops its exceptions. Does not after a failed write or while an exception leaves the
    // scope: incomplete data gets no end.
    ~TZCompressionStream() override;

    // Raises EZCompressionError, "Invalid stream operation".
    std::int32_t Read(void* ABuffer, std::int32_t ACount) override;
    // Always ACount. Raises what the target raises; then the compressed data is incomplete, and each further
    // write raises EZCompressionError. So does a write after Finish.
    std::int32_t Write(const void* ABuffer, std::int32_t ACount) override;
    // Gives the number of bytes written. Raises EZCompressionError, "Invalid stream operation", for any other
    // place.
    std::int64_t Seek(std::int64_t AOffset, TSeekOrigin AOrigin) override;
    // Writes the rest and the end of the compressed data. A second call does nothing. Raises as Write.
    void Finish();

private:
    enum class TPhase : std::uint8_t { Open, Failed, Finished };
    void Deflate(int AFlush);
    void Drain();

    TPhase FPhase = TPhase::Open;
    int FExceptions; // in flight when the stream was made
};

class QZ_API TZDecompressionStream : public TCustomZStream {
    QZ_CLASS(TZDecompressionStream, TCustomZStream)

public:
    using TCustomZStream::Seek;

    // Reads compressed data from ASource from its position on. With 0 window bits the zlib header gives them;
    // 41 to 47 accept zlib and gzip. Raises EZDecompressionError for window bits that zlib refuses and if it
    // has no memory.
    explicit TZDecompressionStream(TStream& ASource, std::int32_t AWindowBits = 15);

    // Gives fewer than ACount bytes only at the end of the compressed data, or before a fault in it or in the
    // source. The read that gives 0 at that end moves the source back to right after the compressed data, so
    // that bytes which follow are left to the caller. It raises if the source cannot seek and has such bytes.
    // The read that starts at a fault raises EZDecompressionError: code -3 for corrupt data, -5 for data that
    // ends too early, 2 for a missing dictionary.
    std::int32_t Read(void* ABuffer, std::int32_t ACount) override;
    // Raises EZDecompressionError, "Invalid stream operation".
    std::int32_t Write(const void* ABuffer, std::int32_t ACount) override;
    // Moves forward by reading on, at most to the end. Moves backward by reading again from the start, for
    // which the source must be able to seek. A place from the end, and GetSize, read all of the data. Raises
    // as Read; a place before the start raises EZDecompressionError, "Invalid stream operation".
    std::int64_t Seek(std::int64_t AOffset, TSeekOrigin AOrigin) override;

private:
    void Refill();
    void GiveBack();
    int Inflate();
    void Rewind();
    void SkipTo(std::int64_t APosition);

    std::int64_t FTaken = 0; // bytes between the start of the compressed data and the place of the source
    bool FSourceEnded = false;
    bool FAtEnd = false;
};

} // namespace qz
