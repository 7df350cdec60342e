// Unit uQzBase64: Base64 of RFC 4648 by plain functions.
//
//     QzEncodeBase64("Zoë").View();                   // "Wm/Dqw==", of the UTF-8 form
//     TBytes Bytes = QzDecodeBase64(u"Wm/D qw==");    // white space and any other byte is skipped
//
// The functions use the encodings of uQzNetEncoding and may run on any number of threads. QzEncodeBase64 pads
// with "=" and never breaks lines; QzEncodeBase64Url takes "-" and "_" instead of "+" and "/" and does not
// pad.
#pragma once

#include <cstdint>

#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/streams/Stream.h>
#include <qz/runtime/text/AnsiString.h>

namespace qz {

class TQzBytes;

// What lies between the position and the end of AInput, written to AOutput as TQzBase64Encoding does; the
// number of bytes written.
QZ_API std::int64_t QzEncodeBase64(TStream& AInput, TStream& AOutput);
QZ_API AnsiString QzEncodeBase64(TStream& AStream);
// The bytes as they stand, whatever the code page.
QZ_API AnsiString QzEncodeBase64(const TByteText& AText);
// The UTF-8 form.
QZ_API AnsiString QzEncodeBase64(const TStringArg& AText);
QZ_API AnsiString QzEncodeBase64(const TBytes& ABytes);
QZ_API AnsiString QzEncodeBase64(const TQzBytes& ABytes);
QZ_API AnsiString QzEncodeBase64(const void* AData, std::size_t ASize);

QZ_API std::int64_t QzEncodeBase64Url(TStream& AInput, TStream& AOutput);
QZ_API AnsiString QzEncodeBase64Url(TStream& AStream);
QZ_API AnsiString QzEncodeBase64Url(const TByteText& AText);
QZ_API AnsiString QzEncodeBase64Url(const TStringArg& AText);
QZ_API AnsiString QzEncodeBase64Url(const TBytes& ABytes);
QZ_API AnsiString QzEncodeBase64Url(const TQzBytes& ABytes);
QZ_API AnsiString QzEncodeBase64Url(const void* AData, std::size_t ASize);

// Both alphabets, as TQzBase64Encoding does: text of any length to a stream, else "Invalid Base64 data!" for
// a text of 4n + 1 bytes. 16-bit text counts in its UTF-8 form, 8-bit text in that of what it is in code page
// 0.
QZ_API void QzDecodeBase64(const RawByteString& AText, TStream& AOutput);
QZ_API void QzDecodeBase64(TStream& AInput, TStream& AOutput);
QZ_API TBytes QzDecodeBase64(const TStringArg& AText);
QZ_API TBytes QzDecodeBase64(const RawByteString& AText);
// A block of ASize bytes that the caller frees by FreeMem; null for none. A text of 4n + 1 bytes raises.
[[nodiscard]] QZ_API void* QzDecodeBase64(const RawByteString& AText, std::size_t& ASize);

} // namespace qz
