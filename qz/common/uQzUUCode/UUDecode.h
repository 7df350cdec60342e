// QzUUDecode: reads uuencoded text.
//
//     const TQzUUData Data = QzUUDecode(Lines, u"photo.jpg", Target); // passes over what stands before it
//     Data.FileName;                                                  // "photo.jpg"
//     Data.Mode;                                                      // 644, the digits of the header
//
// Without a file name the header is the first line. It holds "begin", the mode in decimal digits, and the
// name up to the end of the line, with a blank between them; the name may be missing. In data, "`" and a
// blank are the value 0. Of any character the lowest six bits of its distance from the blank count, so no
// data is invalid. Characters missing at the end of a data line count as blanks, since some programs cut
// these off. Characters beyond the promised number of bytes are ignored.
//
// The functions raise Exception, "Invalid UUData", for a header without "begin ", a mode that is no number
// from 1 to 65535, and an empty data line. They raise "Unexpected EOF" if the lines end before a header, a
// data line, or the two lines "`" and "end". At least one data line is required, so the text of an empty file
// raises "Unexpected EOF". The output then holds the bytes before the fault. Threads may call the functions
// at the same time, each with its own streams and lists.
#pragma once

#include <qz/runtime/lists/Strings.h>
#include <qz/runtime/streams/Stream.h>
#include <qz/runtime/text/AnsiString.h>

namespace qz {

struct TQzUUData {
    UnicodeString FileName;
    std::uint16_t Mode = 0;
};

// Writes the bytes at the position of the output. With a file name the header is the first line that contains
// it in any case of letters.
QZ_API TQzUUData QzUUDecode(const TStrings& ALines, const TStringArg& AFileName, TStream& AOutput);
QZ_API TQzUUData QzUUDecode(const TStrings& ALines, TStream& AOutput);
// Reads all of the input from its position on into memory; CR LF, LF and CR end a line. The text is in the
// encoding of its byte order mark, in code page 0 without one.
QZ_API TQzUUData QzUUDecode(TStream& AInput, TStream& AOutput);
// The same for a text in memory, in its own code page.
QZ_API TQzUUData QzUUDecode(const AnsiString& AText, TStream& AOutput);
QZ_API TQzUUData QzUUDecode(const AnsiString& AText, const TStringArg& AFileName, TStream& AOutput);

} // namespace qz
