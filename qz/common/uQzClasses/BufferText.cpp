#include <qz/common/uQzClasses/BufferText.h>

#include <algorithm>
#include <cstring>

#include <qz/common/uQzClasses/StreamBuf.h>
#include <qz/runtime/objects/Exceptions.h>

namespace qz {

TBytes QzBufToByteArr(const void* ABuffer, std::size_t ASize) {
    return TBytes(std::span(static_cast<const std::uint8_t*>(ABuffer), ASize));
}

void* QzByteArrToBuf(const TBytes& ABytes, std::size_t& ASize) {
    ASize = ABytes.size();
    return ASize == 0 ? nullptr : std::memcpy(GetMem(ASize), ABytes.data(), ASize);
}

void QzReverseBuffer(void* ABuffer, std::size_t ASize) noexcept {
    auto* Bytes = static_cast<std::byte*>(ABuffer);
    std::reverse(Bytes, Bytes + ASize);
}

RawByteString QzBufToHex(const void* ABuffer, std::size_t ASize) {
    return QzBufToString(ABuffer, ASize, beHexEncoded);
}

RawByteString QzBufToHex(const TBytes& ABytes) {
    return QzBufToString(ABytes, beHexEncoded);
}

RawByteString QzBufToHex(TStream& AStream) {
    return QzBufToString(AStream, beHexEncoded);
}

void* QzHexToBuf(const RawByteString& AHex, std::size_t& ASize) {
    return QzStringToBuf(AHex, beHexEncoded, ASize);
}

TBytes QzHexToBuf(const RawByteString& AHex) {
    return QzStringToBuf(AHex, beHexEncoded);
}

void QzHexToBuf(const RawByteString& AHex, TStream* AStream) {
    Assert(AStream != nullptr, u"QzHexToBuf needs a stream");
    AStream->SetSize(0);
    QzStringToBuf(AHex, beHexEncoded, *AStream);
}

RawByteString QzBufToString(const void* ABuffer, std::size_t ASize, TQzBinEncoding AEncoding) {
    return detail::EncodeBinary({static_cast<const std::byte*>(ABuffer), ASize}, AEncoding);
}

RawByteString QzBufToString(const TBytes& ABytes, TQzBinEncoding AEncoding) {
    return QzBufToString(ABytes.data(), ABytes.size(), AEncoding);
}

RawByteString QzBufToString(TStream& AStream, TQzBinEncoding AEncoding) {
    const TQzReadBuf Rest(AStream);
    return detail::EncodeBinary(Rest.Bytes(), AEncoding);
}

TBytes QzStringToBuf(const RawByteString& AText, TQzBinEncoding AEncoding) {
    return detail::DecodeBinary(AText.View(), AEncoding);
}

void* QzStringToBuf(const RawByteString& AText, TQzBinEncoding AEncoding, std::size_t& ASize) {
    return detail::DecodeBinary(AText.View(), AEncoding, ASize).release();
}

void QzStringToBuf(const RawByteString& AText, TQzBinEncoding AEncoding, TStream& AStream) {
    std::size_t Size = 0;
    const TMemBlock Bytes = detail::DecodeBinary(AText.View(), AEncoding, Size);
    AStream.WriteBuffer(Bytes.get(), static_cast<std::int64_t>(Size));
}

} // namespace qz
