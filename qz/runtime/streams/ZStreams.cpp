#include <qz/runtime/streams/ZStreams.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <exception>
#include <utility>

#include <zlib.h>

#include <qz/runtime/objects/DescribeException.h>

namespace qz {
namespace {

constexpr uInt cBlockSize = 64 << 10;

template <class E> [[noreturn]] void RaiseInvalid() {
    throw E(u"Invalid stream operation", Z_STREAM_ERROR);
}

// Raises E with the text of zlib for its code.
template <class E> [[noreturn]] void RaiseCode(int ACode) {
    throw E(UnicodeString(zError(ACode)), ACode);
}

int LevelOf(TZCompressionLevel ALevel) noexcept {
    switch (ALevel) {
    case zcNone: return Z_NO_COMPRESSION;
    case zcFastest: return Z_BEST_SPEED;
    case zcMax: return Z_BEST_COMPRESSION;
    default: return Z_DEFAULT_COMPRESSION;
    }
}

} // namespace

const TClassRec EZLibError::ClassRec = DescribeException<EZLibError>(u"EZLibError", u"System");
const TClassRec EZCompressionError::ClassRec =
    DescribeException<EZCompressionError>(u"EZCompressionError", u"System");
const TClassRec EZDecompressionError::ClassRec =
    DescribeException<EZDecompressionError>(u"EZDecompressionError", u"System");
constinit const TClassRec TCustomZStream::ClassRec =
    DescribeClass<TCustomZStream>(u"TCustomZStream", {.Unit = u"System"});
constinit const TClassRec TZCompressionStream::ClassRec =
    DescribeClass<TZCompressionStream>(u"TZCompressionStream", {.Unit = u"System"});
constinit const TClassRec TZDecompressionStream::ClassRec =
    DescribeClass<TZDecompressionStream>(u"TZDecompressionStream", {.Unit = u"System"});

TCustomZStream::TCustomZStream(TStream& AStream, TEnd AEnd)
    : FStream(AStream),
      FState(std::make_unique<z_stream>()),
      FBlock(std::make_unique_for_overwrite<std::uint8_t[]>(cBlockSize)),
      FEnd(AEnd) {}

// A state that was never set up is refused by zlib and holds nothing.
TCustomZStream::~TCustomZStream() {
    FEnd(FState.get());
}

TZCompressionStream::TZCompressionStream(TStream& ATarget, TZCompressionLevel ALevel,
                                         std::int32_t AWindowBits)
    : TCustomZStream(ATarget, &deflateEnd),
      FExceptions(std::uncaught_exceptions()) {
    constexpr int cMemory = 8; // zlib's default
    const int Code =
        deflateInit2(FState.get(), LevelOf(ALevel), Z_DEFLATED, AWindowBits, cMemory, Z_DEFAULT_STRATEGY);
    if (Code != Z_OK)
        RaiseCode<EZCompressionError>(Code);
    FState->next_out = FBlock.get();
    FState->avail_out = cBlockSize;
}

TZCompressionStream::~TZCompressionStream() {
    if (FPhase == TPhase::Failed || std::uncaught_exceptions() > FExceptions)
        return;
    try {
        Finish();
    } catch (...) { // NOLINT(bugprone-empty-catch): a destructor cannot report it
    }
}

std::int32_t TZCompressionStream::Read(void*, std::int32_t) {
    RaiseInvalid<EZCompressionError>();
}

std::int32_t TZCompressionStream::Write(const void* ABuffer, std::int32_t ACount) {
    if (FPhase != TPhase::Open)
        RaiseInvalid<EZCompressionError>();
    if (ACount <= 0)
        return 0;
    FState->next_in = static_cast<Bytef*>(const_cast<void*>(ABuffer));
    FState->avail_in = static_cast<uInt>(ACount);
    Deflate(Z_NO_FLUSH);
    FPosition += ACount;
    return ACount;
}

std::int64_t TZCompressionStream::Seek(std::int64_t AOffset, TSeekOrigin AOrigin) {
    if (AOffset != (AOrigin == soBeginning ? FPosition : 0))
        RaiseInvalid<EZCompressionError>();
    return FPosition;
}

void TZCompressionStream::Finish() {
    if (FPhase == TPhase::Finished)
        return;
    if (FPhase == TPhase::Failed)
        RaiseInvalid<EZCompressionError>();
    FState->avail_in = 0;
    Deflate(Z_FINISH);
    FPhase = TPhase::Failed;
    Drain();
    FPhase = TPhase::Finished;
}

// Compresses all input; with Z_FINISH up to the end of the compressed data.
void TZCompressionStream::Deflate(int AFlush) {
    FPhase = TPhase::Failed; // until all is done
    for (;;) {
        const int Code = deflate(FState.get(), AFlush);
        if (Code == Z_STREAM_END)
            break;
        if (Code != Z_OK)
            RaiseCode<EZCompressionError>(Code);
        if (FState->avail_out > 0)
            break;
        Drain();
        if (AFlush == Z_NO_FLUSH && FState->avail_in == 0)
            break;
    }
    FPhase = TPhase::Open;
}

void TZCompressionStream::Drain() {
    FStream.WriteBuffer(FBlock.get(), std::int64_t{cBlockSize - FState->avail_out});
    FState->next_out = FBlock.get();
    FState->avail_out = cBlockSize;
}

TZDecompressionStream::TZDecompressionStream(TStream& ASource, std::int32_t AWindowBits)
    : TCustomZStream(ASource, &inflateEnd) {
    const int Code = inflateInit2(FState.get(), AWindowBits);
    if (Code != Z_OK)
        RaiseCode<EZDecompressionError>(Code);
}

std::int32_t TZDecompressionStream::Read(void* ABuffer, std::int32_t ACount) {
    FState->next_out = static_cast<Bytef*>(ABuffer);
    FState->avail_out = static_cast<uInt>(std::max(ACount, 0));
    const std::int64_t Start = FPosition;
    // What was read before a fault is given. zlib repeats the code of a fault, so the read that finds nothing
    // before it raises.
    while (FState->avail_out > 0 && !FAtEnd) {
        try {
            Refill();
        } catch (...) {
            if (FPosition == Start)
                throw;
            break;
        }
        const int Code = Inflate();
        if (Code == Z_OK)
            continue;
        if (FPosition == Start)
            RaiseCode<EZDecompressionError>(Code);
        break;
    }
    if (FAtEnd && FPosition == Start)
        GiveBack();
    return static_cast<std::int32_t>(FPosition - Start);
}

// Moves the source back to the end of the compressed data.
void TZDecompressionStream::GiveBack() {
    const std::int64_t Unused = std::exchange(FState->avail_in, 0);
    FTaken -= Unused;
    if (Unused > 0)
        FStream.Seek(-Unused, soCurrent);
}

// Reads the next block when the previous one is used up.
void TZDecompressionStream::Refill() {
    if (FState->avail_in > 0 || FSourceEnded)
        return;
    const std::int32_t Count = std::max(FStream.Read(FBlock.get(), cBlockSize), 0);
    FSourceEnded = Count == 0;
    FTaken += Count;
    FState->next_in = FBlock.get();
    FState->avail_in = static_cast<uInt>(Count);
}

// Z_OK also for the end of the data.
int TZDecompressionStream::Inflate() {
    const uInt Room = FState->avail_out;
    const int Code = inflate(FState.get(), Z_NO_FLUSH);
    FPosition += std::int64_t{Room} - FState->avail_out;
    if (Code != Z_STREAM_END)
        return Code;
    FAtEnd = true;
    return Z_OK;
}

std::int32_t TZDecompressionStream::Write(const void*, std::int32_t) {
    RaiseInvalid<EZDecompressionError>();
}

std::int64_t TZDecompressionStream::Seek(std::int64_t AOffset, TSeekOrigin AOrigin) {
    if (AOrigin == soEnd)
        SkipTo(INT64_MAX);
    std::int64_t Target = AOffset;
    if ((AOrigin != soBeginning && __builtin_add_overflow(FPosition, AOffset, &Target)) || Target < 0)
        RaiseInvalid<EZDecompressionError>();
    if (Target < FPosition)
        Rewind();
    SkipTo(Target);
    return FPosition;
}

void TZDecompressionStream::Rewind() {
    FStream.Seek(-FTaken, soCurrent);
    inflateReset(FState.get());
    FState->avail_in = 0;
    FTaken = FPosition = 0;
    FSourceEnded = FAtEnd = false;
}

void TZDecompressionStream::SkipTo(std::int64_t APosition) {
    std::array<std::uint8_t, 16 << 10> Skipped;
    while (FPosition < APosition) {
        const auto Step = std::min<std::int64_t>(APosition - FPosition, Skipped.size());
        if (Read(Skipped.data(), static_cast<std::int32_t>(Step)) == 0)
            return;
    }
}

} // namespace qz
