// TZCompressionStream and TZDecompressionStream: deflate and inflate (RFC 1950, 1951, 1952) as streams over
// another stream.
//
//     TZCompressionStream Packer(File, zcMax);
//     Packer.WriteBuffer(Text.data(), Size);
//     Packer.Finish();                              // raises what the destructor would drop
//
//     TZDecompressionStream Unpacker(File);         // reads from the position of File on
//     Output.CopyFrom(Unpacker, 100);
//
// The number of window bits selects the format: 9 to 15 is zlib, -9 to -15 raw deflate, 25 to 31 gzip. Both streams work in blocks of 64 KiB and need at most 400 KiB, whatever the size of the data. The
// other stream must outlive them and belongs to them while they work; nobody else moves its position. Each
// belongs to one thread at a time.
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
    // Finishes, but not after Finish, after a failed write, or while an exception leaves the scope: data that is
    // incomplete gets no end. Exceptions are dropped.
    ~TZCompressionStream() override;

    // Raises EZCompressionError, "Invalid stream operation".
    std::int32_t Read(void* ABuffer, std::int32_t ACount) override;
    // Always ACount. Raises what writing to the target raises; the compressed data is then incomplete, and
    // each further write raises EZCompressionError. So does a write after Finish.
    std::int32_t Write(const void* ABuffer, std::int32_t ACount) override;
    // Gives the number of bytes written. Raises EZCompressionError, "Invalid stream operation", for any other
    // place.
    std::int64_t Seek(std::int64_t AOffset, TSeekOrigin AOrigin) override;
    // Writes what is left and the end of the compressed data. Does nothing the second time. Raises as Write.
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

    // Reads compressed data from ASource from its position on; 0 window bits take them from the zlib header,
    // and 32 more than those of zlib accept gzip as well. Raises EZDecompressionError for window bits that
    // zlib refuses and if it has no memory.
    explicit TZDecompressionStream(TStream& ASource, std::int32_t AWindowBits = 15);

    // Gives fewer than ACount bytes at the end of the compressed data, or before a fault in it; the source then
    // stands right after that end, and what follows there is left to the caller. Raises EZDecompressionError
    // once no byte comes before the fault: code -3 for corrupt data, -5 for data that ends too early, 2 for a
    // missing dictionary.
    std::int32_t Read(void* ABuffer, std::int32_t ACount) override;
    // Raises EZDecompressionError, "Invalid stream operation".
    std::int32_t Write(const void* ABuffer, std::int32_t ACount) override;
    // Forward by reading on, at most to the end; backward by reading again from the start, for which the
    // source must be able to seek. From the end, and so GetSize, by reading all. Raises as Read; a place
    // before the start raises EZDecompressionError, "Invalid stream operation".
    std::int64_t Seek(std::int64_t AOffset, TSeekOrigin AOrigin) override;

private:
    void Refill();
    int Inflate();
    void Rewind();
    void SkipTo(std::int64_t APosition);

    std::int64_t FTaken = 0; // bytes between the start of the compressed data and the place of the source
    bool FSourceEnded = false;
    bool FAtEnd = false;
};

} // namespace qz
