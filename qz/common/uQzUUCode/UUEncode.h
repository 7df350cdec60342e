// QzUUEncode: writes bytes as uuencoded text, the form of the POSIX utility uuencode.
//
//     QzUUEncode(Source, Target, u"photo.jpg", 644);
//
//     begin 644 photo.jpg
//     M<data of 45 bytes>
//     `
//     end
//
// Each line ends with CR LF, except the last. A data line holds up to 45 bytes; its first character is 32 plus
// their count. The six-bit value 0 is a blank. The input is read from its position to its end, in blocks. The
// functions may run on any number of threads with streams of their own.
#pragma once

#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/streams/Stream.h>
#include <qz/runtime/text/AnsiString.h>

namespace qz {

// Writes at the position of the output. The mode appears as a decimal number, the name in code page 0 as it
// is: a line end in it makes a text that cannot be decoded. Raises what the streams raise, EWriteError among
// it; whole lines may have been written before.
QZ_API void QzUUEncode(TStream& AInput, TStream& AOutput, const TStringArg& AFileName, std::uint16_t AMode);
// The text itself, in code page 0.
QZ_API AnsiString QzUUEncode(TStream& AInput, const TStringArg& AFileName, std::uint16_t AMode);
// Encodes the bytes of a text.
QZ_API AnsiString QzUUEncode(const AnsiString& AText, const TStringArg& AFileName, std::uint16_t AMode);

} // namespace qz
