// Bytes between memory, arrays and streams, and as text.
//
//     RawByteString Digits = QzBufToHex("\xAB\1", 2);             // AB01
//     TBytes Bytes = QzStringToBuf(RawByteString("Zm9v"), beBase64);
//     TBytes Same = QzHexToBuf(QzBufToHex(Bytes));
//
// A stream is read from its position to its end, as by QzStreamToReadBuf, and written at its position. Text
// is encoded and decoded as by the classes of uQzNetEncoding: an unknown TQzBinEncoding raises Exception,
// "The specified NetEncoding is not supported!", and Base64 of 4n + 1 characters "Invalid Base64 data!". A
// plain block that a function returns belongs to the caller, who frees it by FreeMem; it is null without
// bytes.
#pragma once

#include <cstddef>
#include <cstdint>

#include <qz/common/uQzNetEncoding/BinEncoding.h>
#include <qz/runtime/streams/Stream.h>

namespace qz {

QZ_API TBytes QzBufToByteArr(const void* ABuffer, std::size_t ASize);
[[nodiscard]] QZ_API void* QzByteArrToBuf(const TBytes& ABytes, std::size_t& ASize);
// In place.
QZ_API void QzReverseBuffer(void* ABuffer, std::size_t ASize) noexcept;

// Upper case digits, two for each byte. The position of a memory stream stays; any other stream is at its
// end.
QZ_API RawByteString QzBufToHex(const void* ABuffer, std::size_t ASize);
QZ_API RawByteString QzBufToHex(const TBytes& ABytes);
QZ_API RawByteString QzBufToHex(TStream& AStream);

// Digits of either case; a character that is no digit counts as 0, and an odd one at the end is ignored.
[[nodiscard]] QZ_API void* QzHexToBuf(const RawByteString& AHex, std::size_t& ASize);
QZ_API TBytes QzHexToBuf(const RawByteString& AHex);
// Empties the stream first. Raises EAssertionFailed without a stream.
QZ_API void QzHexToBuf(const RawByteString& AHex, TStream* AStream);

QZ_API RawByteString QzBufToString(const void* ABuffer, std::size_t ASize, TQzBinEncoding AEncoding);
QZ_API RawByteString QzBufToString(const TBytes& ABytes, TQzBinEncoding AEncoding);
QZ_API RawByteString QzBufToString(TStream& AStream, TQzBinEncoding AEncoding);

QZ_API TBytes QzStringToBuf(const RawByteString& AText, TQzBinEncoding AEncoding);
[[nodiscard]] QZ_API void* QzStringToBuf(const RawByteString& AText, TQzBinEncoding AEncoding,
                                         std::size_t& ASize);
// Does not empty the stream. Nothing is written when the text is refused.
QZ_API void QzStringToBuf(const RawByteString& AText, TQzBinEncoding AEncoding, TStream& AStream);

} // namespace qz
