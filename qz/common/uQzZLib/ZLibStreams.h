// Whole streams and texts, compressed and decompressed.
//
//     TMemoryStream Packed;
//     ZlCompressStream(Source, Packed, clMax, true);         // zlib format (RFC 1950)
//     Packed.SetPosition(0);
//     ZlDecompressStream(Packed, Target, false);             // zlib, or raw deflate (RFC 1951)
//     ZlDecompressStream(Stream, Target, 15 + 16, true);     // gzip (RFC 1952)
//
// All work in blocks, whatever the size of the data. With AFromStart the input is read from position 0, else
// from its position. A failed compression raises EQzZLibCompressionError and a failed decompression
// EQzZLibDecompressionError, both with the code of zlib. Exceptions of the two streams pass through, but for
// EZCompressionError and EZDecompressionError, which are converted too. Threads may call the functions at the
// same time, each with its own streams.
#pragma once

#include <qz/common/uQzZLib/ZLibTypes.h>
#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/streams/Stream.h>
#include <qz/runtime/text/AnsiString.h>

namespace qz {

// Compresses the input up to its end, in zlib format, and writes at the position of the output. On an
// exception the written data has no valid end.
QZ_API void ZlCompressStream(TStream& AInput, TStream& AOutput, TQzZLibCompressionLevel ALevel,
                             bool AFromStart);

// Decompresses to the position of the output. Data that begins with "x" is in zlib format, any other is raw
// deflate. Afterwards the input, which must be able to seek, stands right after the compressed data. An empty
// input raises code 1, "Stream end"; data that ends too early -5, corrupt data -3, a preset dictionary 2. The
// output then holds everything before the fault. The output may become a thousand times as long as the input:
// for data that is not trusted, pass a stream that refuses to grow.
QZ_API void ZlDecompressStream(TStream& AInput, TStream& AOutput, bool AFromStart);
// The same in the format of the window bits: 15 zlib, -15 raw deflate, 31 gzip. Of several gzip members it
// reads the first. Window bits that zlib refuses raise code -2.
QZ_API void ZlDecompressStream(TStream& AInput, TStream& AOutput, std::int32_t AWindowBits, bool AFromStart);
void ZlDecompressStream(TStream& AInput, TStream& AOutput, std::int32_t AWindowBits) = delete;

// Compresses the text as UTF-16, lowest byte first, without a mark.
QZ_API void ZlStringToCompressedStream(const TStringArg& AText, TStream& AOutput,
                                       TQzZLibCompressionLevel ALevel);

// The decompressed bytes as a text: as UTF-16, without an odd last byte, or as they stand. Raise as
// ZlDecompressStream does, and code -4, "Insufficient memory", if there is no memory for the text.
QZ_API UnicodeString ZlDecompressStreamToString(TStream& AInput, bool AFromStart);
QZ_API RawByteString ZlDecompressStreamToAnsiString(TStream& AInput, bool AFromStart);
QZ_API WideString ZlDecompressStreamToWideString(TStream& AInput, bool AFromStart);

} // namespace qz
