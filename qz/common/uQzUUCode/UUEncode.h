// QzUUEncode: writes bytes as uuencoded text. The lines of data are those of the POSIX utility uuencode; here
// the mode is decimal, lines end with CR LF, and the last one has no end.
//
//     QzUUEncode(Source, Target, u"photo.jpg", 644);
//
//     begin 644 photo.jpg
//     M<data of 45 bytes>
//     `
//     end
//
// A data line holds up to 45 bytes; its first character is 32
// plus their number. The six-bit value 0 is a blank. The input is read in blocks, from its position to its
// end. Threads may call the functions at the same time, each with its own streams.
#pragma once

#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/streams/Stream.h>
#include <qz/runtime/text/AnsiString.h>

namespace qz {

// Writes at the position of the output, the mode as a decimal number and the name in code page 0. QzUUDecode
// refuses the mode 0. Raises Exception, "Invalid UUData", for a name with a line end, which could bring data
// of its own. Raises what the streams raise; lines that were written before stay.
QZ_API void QzUUEncode(TStream& AInput, TStream& AOutput, const TStringArg& AFileName, std::uint16_t AMode);
// The text itself, in code page 0.
QZ_API AnsiString QzUUEncode(TStream& AInput, const TStringArg& AFileName, std::uint16_t AMode);
// Encodes the bytes of a text.
QZ_API AnsiString QzUUEncode(const AnsiString& AText, const TStringArg& AFileName, std::uint16_t AMode);

} // namespace qz
