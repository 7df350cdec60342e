// Unit uQzSha1: the digest SHA-1 of FIPS 180-4.
//
//     QzHashString(u"abc", beHexEncoded);          // "A9993E364706816ABA3E25717850C26C9CD0D89D"
//     TSHA1Digest Digest = QzHashBuffer("abc", 3);
//     QzHashFile(u"data.bin", beBase64);           // 28 characters
//
// SHA-1 serves to tell contents apart. It is not fit for signatures: collisions can be made.
//
// Empty input does not give the published digest of the empty message: a digest is 20 zero bytes and a text
// that is asked of memory or a string is empty, while a stream or a file gives the text of 20 zero bytes. An
// unknown TQzBinEncoding gives an empty text. All functions may run on any number of threads.
#pragma once

#include <array>
#include <cstdint>

#include <qz/common/uQzNetEncoding/BinEncoding.h>
#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/streams/Stream.h>
#include <qz/runtime/text/AnsiString.h>

namespace qz {

using TSHA1Digest = std::array<std::uint8_t, 20>;

// A negative size counts as 0.
QZ_API TSHA1Digest QzHashBuffer(const void* ABuffer, std::int64_t ASize);
QZ_API UnicodeString QzHashBuffer(const void* ABuffer, std::int64_t ASize, TQzBinEncoding AEncoding);

// Of the UTF-8 form.
QZ_API void QzHashString(const TStringArg& AText, TSHA1Digest& ADigest);
QZ_API UnicodeString QzHashString(const TStringArg& AText, TQzBinEncoding AEncoding);
// Of the bytes as they stand.
QZ_API UnicodeString QzHashStringA(const RawByteString& AText, TQzBinEncoding AEncoding);
// Of the 16-bit units, low byte first.
QZ_API UnicodeString QzHashStringW(const TStringArg& AText, TQzBinEncoding AEncoding);

// Read by blocks: the stream from its position or from its start, in Base64, and at most as many bytes as its
// Size says; and a file, which others may have open. A file of /proc, whose size is 0, counts as empty. Raise
// what the stream raises, and EFOpenError.
QZ_API UnicodeString QzHashStream(TStream& AStream, bool AFromStart);
QZ_API UnicodeString QzHashFile(const TStringArg& AFileName, TQzBinEncoding AEncoding);

} // namespace qz
