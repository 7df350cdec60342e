#include <qz/common/uQzZLib/ZLibStreams.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <memory>
#include <new>
#include <span>
#include <stdexcept>

#include <qz/runtime/streams/MemoryStream.h>
#include <qz/runtime/streams/ZStreams.h>

namespace qz {
namespace {

constexpr std::int32_t cStreamEnd = 1;
constexpr std::int32_t cInsufficientMemory = -4;
constexpr std::int32_t cZLibFormat = 15;
constexpr std::int32_t cRawDeflate = -15;
constexpr std::int32_t cBlockSize = 64 << 10;

TZCompressionLevel LevelOf(TQzZLibCompressionLevel ALevel) noexcept {
    switch (ALevel) {
    case clNone: return zcNone;
    case clFastest: return zcFastest;
    case clMax: return zcMax;
    default: return zcDefault;
    }
}

// Calls ATake with each block that ASource gives.
template <class TTake> void ForEachBlock(TStream& ASource, const TTake& ATake) {
    const auto Block = std::make_unique_for_overwrite<std::byte[]>(cBlockSize);
    while (const std::int32_t Count = std::max(ASource.Read(Block.get(), cBlockSize), 0))
        ATake(Block.get(), Count);
}

// Compresses what AFill writes.
template <class TFill> void Compress(TStream& AOutput, TQzZLibCompressionLevel ALevel, const TFill& AFill) {
    try {
        TZCompressionStream Target(AOutput, LevelOf(ALevel));
        AFill(Target);
        Target.Finish();
    } catch (const EZCompressionError& E) {
        throw EQzZLibCompressionError(E.ErrorCode());
    }
}

template <class TTake> void Decompress(TStream& AInput, std::int32_t AWindowBits, const TTake& ATake) {
    try {
        TZDecompressionStream Source(AInput, AWindowBits);
        ForEachBlock(Source, ATake);
    } catch (const EZDecompressionError& E) {
        throw EQzZLibDecompressionError(E.ErrorCode());
    }
}

void GoToStart(TStream& AInput, bool AFromStart) {
    if (AFromStart)
        AInput.SetPosition(0);
}

// The format by the first byte; the input stays where it is.
std::int32_t FormatOf(TStream& AInput) {
    char First;
    if (AInput.Read(&First, 1) < 1)
        throw EQzZLibDecompressionError(cStreamEnd);
    AInput.Seek(std::int64_t{-1}, soCurrent);
    return First == 'x' ? cZLibFormat : cRawDeflate;
}

// The decompressed data as a text of units of that size.
template <class TText> TText DecompressedText(TStream& AInput, bool AFromStart) {
    constexpr std::size_t cUnit = sizeof(typename TText::value_type);
    constexpr std::int64_t cLongest = std::int64_t{std::numeric_limits<std::int32_t>::max()} * cUnit;
    GoToStart(AInput, AFromStart);
    const std::int32_t Format = FormatOf(AInput);
    try {
        TMemoryStream Memory;
        Decompress(AInput, Format, [&](const void* ABlock, std::int32_t ACount) {
            if (ACount > cLongest - Memory.GetSize())
                throw std::bad_alloc();
            Memory.WriteBuffer(ABlock, ACount);
        });
        const std::size_t Length = Memory.Content().size() / cUnit;
        TText Result = TText::ForOverwrite(Length);
        if (Length > 0)
            std::memcpy(Result.UniqueData(), Memory.Memory(), Length * cUnit);
        return Result;
    } catch (const std::bad_alloc&) {
        throw EQzZLibDecompressionError(cInsufficientMemory);
    } catch (const std::length_error&) {
        throw EQzZLibDecompressionError(cInsufficientMemory);
    }
}

} // namespace

void ZlCompressStream(TStream& AInput, TStream& AOutput, TQzZLibCompressionLevel ALevel, bool AFromStart) {
    GoToStart(AInput, AFromStart);
    Compress(AOutput, ALevel, [&](TStream& ATarget) {
        ForEachBlock(AInput,
                     [&](const void* ABlock, std::int32_t ACount) { ATarget.WriteBuffer(ABlock, ACount); });
    });
}

void ZlDecompressStream(TStream& AInput, TStream& AOutput, bool AFromStart) {
    GoToStart(AInput, AFromStart);
    ZlDecompressStream(AInput, AOutput, FormatOf(AInput), false);
}

void ZlDecompressStream(TStream& AInput, TStream& AOutput, std::int32_t AWindowBits, bool AFromStart) {
    GoToStart(AInput, AFromStart);
    Decompress(AInput, AWindowBits,
               [&](const void* ABlock, std::int32_t ACount) { AOutput.WriteBuffer(ABlock, ACount); });
}

void ZlStringToCompressedStream(const TStringArg& AText, TStream& AOutput, TQzZLibCompressionLevel ALevel) {
    const auto Bytes = std::as_bytes(std::span(AText.View()));
    Compress(AOutput, ALevel, [&](TStream& ATarget) {
        ATarget.WriteBuffer(Bytes.data(), static_cast<std::int64_t>(Bytes.size()));
    });
}

UnicodeString ZlDecompressStreamToString(TStream& AInput, bool AFromStart) {
    return DecompressedText<UnicodeString>(AInput, AFromStart);
}

RawByteString ZlDecompressStreamToAnsiString(TStream& AInput, bool AFromStart) {
    return DecompressedText<RawByteString>(AInput, AFromStart);
}

WideString ZlDecompressStreamToWideString(TStream& AInput, bool AFromStart) {
    return DecompressedText<UnicodeString>(AInput, AFromStart);
}

} // namespace qz
