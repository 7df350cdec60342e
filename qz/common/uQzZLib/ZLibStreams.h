// Whole streams and texts, compressed and decompressed.
//
//     ZlCompressStream(Source, Packed, clMax, true);         // zlib format (RFC 1950)
//     Packed.SetPosition(0);
//     ZlDecompressStream(Packed, Target, false);             // zlib, or raw deflate (RFC 1951)
//     ZlDecompressStream(Archive, Target, 15 + 16, true);    // gzip (RFC 1952)
//
// All work in blocks, whatever the size of the data. With AFromStart the input is read from position 0, else
// from where it stands; it must be able to seek. A failed compression raises EQzZLibCompressionError and a
// failed decompression EQzZLibDecompressionError, both with the code of zlib; exceptions of the two streams
// come as they are. The functions may run on any number of threads with streams of their own.
#pragma once

#include <qz/common/uQzZLib/ZLibTypes.h>
#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/streams/Stream.h>
#include <qz/runtime/text/AnsiString.h>

namespace qz {

// Compresses the input up to its end, in zlib format, and writes it at the position of the output. When this
// raises, what was written has no valid end.
QZ_API void ZlCompressStream(TStream& AInput, TStream& AOutput, TQzZLibCompressionLevel ALevel,
                             bool AFromStart);

// Decompresses to the position of the output. Data that begins with "x" is zlib format, any other raw deflate.
// The input stands after the end of the compressed data then; what follows there is not read. An input without
// a byte raises code 1, "Stream end"; data that ends too early -5, corrupt data -3, one that needs a preset
// dictionary 2. All that stands before the fault is in the output then. The output may become a thousand times
// as long as the input: a caller who does not trust the data gives a stream that refuses to grow.
QZ_API void ZlDecompressStream(TStream& AInput, TStream& AOutput, bool AFromStart);
// The same in a format by its window bits: 15 zlib, -15 raw deflate, 31 gzip, of which it takes the first
// member. Window bits that zlib refuses raise code -2.
QZ_API void ZlDecompressStream(TStream& AInput, TStream& AOutput, std::int32_t AWindowBits, bool AFromStart);
void ZlDecompressStream(TStream& AInput, TStream& AOutput, std::int32_t AWindowBits) = delete;

// Compresses the text as UTF-16, lowest byte first, without a mark.
QZ_API void ZlStringToCompressedStream(const TStringArg& AText, TStream& AOutput,
                                       TQzZLibCompressionLevel ALevel);

// The decompressed bytes as a text: UTF-16, of which an odd last byte is dropped, or the bytes as they stand.
// Raise as ZlDecompressStream does, and code -4, "Insufficient memory", for more than a text can hold.
QZ_API UnicodeString ZlDecompressStreamToString(TStream& AInput, bool AFromStart);
QZ_API RawByteString ZlDecompressStreamToAnsiString(TStream& AInput, bool AFromStart);
QZ_API WideString ZlDecompressStreamToWideString(TStream& AInput, bool AFromStart);

} // namespace qz
