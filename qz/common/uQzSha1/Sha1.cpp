#include <qz/common/uQzSha1.h>

#include <algorithm>
#include <bit>
#include <cstring>
#include <memory>
#include <vector>

#include <qz/common/uQzSha1/detail/Sha1Blocks.h>
#include <qz/runtime/base/Memory.h>
#include <qz/runtime/base/UtfForms.h>
#include <qz/runtime/streams/FileStream.h>
#include <qz/runtime/text/Utf8Form.h>

namespace qz {
namespace {

constexpr std::size_t cBlockSize = 64;

void PutBigEndian(std::uint32_t AValue, void* ADest) noexcept {
    if constexpr (std::endian::native == std::endian::little)
        AValue = __builtin_bswap32(AValue);
    std::memcpy(ADest, &AValue, sizeof AValue);
}

// Takes the bytes after the last full block, and the padding, which make cCount blocks.
template <std::size_t cCount>
TSHA1Digest FinishIn(detail::TSha1State& AState, std::span<const std::byte> ARest, std::uint64_t ATotal) {
    std::array<std::byte, cCount * cBlockSize> Tail{};
    if (!ARest.empty())
        std::memcpy(Tail.data(), ARest.data(), ARest.size());
    Tail[ARest.size()] = std::byte{0x80};
    PutBigEndian(static_cast<std::uint32_t>(ATotal >> 29), &Tail[Tail.size() - 8]); // in bits
    PutBigEndian(static_cast<std::uint32_t>(ATotal << 3), &Tail[Tail.size() - 4]);
    detail::BestSha1Path->Blocks(AState, Tail.data(), cCount);
    TSHA1Digest Result;
    for (std::size_t I = 0; I < AState.size(); ++I)
        PutBigEndian(AState[I], &Result[4 * I]);
    WipeValue(AState);
    WipeValue(Tail);
    return Result;
}

TSHA1Digest Finish(detail::TSha1State& AState, std::span<const std::byte> ARest, std::uint64_t ATotal) {
    return ARest.size() + 9 <= cBlockSize ? FinishIn<1>(AState, ARest, ATotal)
                                          : FinishIn<2>(AState, ARest, ATotal);
}

TSHA1Digest DigestOf(std::span<const std::byte> ABytes) {
    if (ABytes.empty())
        return {};
    detail::TSha1State State = detail::cSha1Start;
    const std::size_t Count = ABytes.size() / cBlockSize;
    if (Count != 0)
        detail::BestSha1Path->Blocks(State, ABytes.data(), Count);
    return Finish(State, ABytes.subspan(Count * cBlockSize), ABytes.size());
}

// What is left of the stream. A read that gives less than asked is no end.
TSHA1Digest DigestOf(TStream& AStream) {
    constexpr std::int64_t cPiece = 64 << 10;
    const std::unique_ptr<std::byte[]> Piece(new std::byte[cPiece]); // not initialised
    detail::TSha1State State = detail::cSha1Start;
    std::uint64_t Total = 0;
    std::int64_t Left = AStream.Size(); // a file that grows has an end all the same
    for (;;) {
        const std::int64_t Read = AStream.ReadUpTo(Piece.get(), std::min(cPiece, Left));
        Left -= Read;
        const std::span<const std::byte> Now(Piece.get(), static_cast<std::size_t>(Read));
        Total += Now.size();
        if (Total == 0)
            return {};
        const std::size_t Count = Now.size() / cBlockSize;
        detail::BestSha1Path->Blocks(State, Now.data(), Count);
        if (Now.size() < cPiece)
            return Finish(State, Now.subspan(Count * cBlockSize), Total);
    }
}

UnicodeString TextOf(const TSHA1Digest& ADigest, TQzBinEncoding AEncoding) {
    return AEncoding <= beBase64Url ? detail::EncodeBinaryText(std::as_bytes(std::span(ADigest)), AEncoding)
                                    : UnicodeString();
}

UnicodeString HashText(std::span<const std::byte> ABytes, TQzBinEncoding AEncoding) {
    return ABytes.empty() ? UnicodeString() : TextOf(DigestOf(ABytes), AEncoding);
}

std::span<const std::byte> BytesAt(const void* ABuffer, std::int64_t ASize) noexcept {
    return {static_cast<const std::byte*>(ABuffer),
            static_cast<std::size_t>(std::max<std::int64_t>(ASize, 0))};
}

} // namespace

TSHA1Digest QzHashBuffer(const void* ABuffer, std::int64_t ASize) {
    return DigestOf(BytesAt(ABuffer, ASize));
}

UnicodeString QzHashBuffer(const void* ABuffer, std::int64_t ASize, TQzBinEncoding AEncoding) {
    return HashText(BytesAt(ABuffer, ASize), AEncoding);
}

void QzHashString(const TStringArg& AText, TSHA1Digest& ADigest) {
    ADigest = DigestOf(TUtf8Form(AText).Bytes());
}

UnicodeString QzHashString(const TStringArg& AText, TQzBinEncoding AEncoding) {
    return HashText(TUtf8Form(AText).Bytes(), AEncoding);
}

UnicodeString QzHashStringA(const RawByteString& AText, TQzBinEncoding AEncoding) {
    return HashText(AText.Bytes(), AEncoding);
}

UnicodeString QzHashStringW(const TStringArg& AText, TQzBinEncoding AEncoding) {
    const std::u16string_view Text = AText;
    if constexpr (std::endian::native == std::endian::little)
        return HashText(std::as_bytes(std::span(Text)), AEncoding);
    std::vector<std::byte> Units(2 * Text.size());
    SwapUnits(Text.data(), Text.size(), Units.data());
    return HashText(Units, AEncoding);
}

UnicodeString QzHashStream(TStream& AStream, bool AFromStart) {
    if (AFromStart)
        AStream.SetPosition(0);
    return TextOf(DigestOf(AStream), beBase64);
}

UnicodeString QzHashFile(const TStringArg& AFileName, TQzBinEncoding AEncoding) {
    TFileStream File(AFileName, fmOpenRead | fmShareDenyNone);
    return TextOf(DigestOf(File), AEncoding);
}

} // namespace qz
