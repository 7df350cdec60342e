// QzUUDecode: reads uuencoded text.
//
//     const TQzUUData Data = QzUUDecode(Mail, u"photo.jpg", Target);  // passes over what stands before it
//     Data.FileName;                                                  // "photo.jpg"
//     Data.Mode;                                                      // 644, the digits of the header
//
// Without a file name the header is the first line. It is "begin", a blank, the mode in decimal digits, a
// blank, and the name with all that follows on the line. The name may be missing. "`" and a blank are both the
// value 0; of any other character the lowest six bits of its distance from the blank count, so no data
// is invalid. Characters missing at the end of a data line are taken as blanks, which mail programs cut off. A
// byte after the given count is ignored.
//
// The functions raise Exception, "Invalid UUData", for a line that should be a header and is none, a mode
// that is no number from 1 to 65535, and an empty data line; "Unexpected EOF" where the lines end before a
// header, a data line or the two lines "`" and "end". At least one data line is expected, so the
// text of an empty file raises "Unexpected EOF". The bytes before the fault are in the output then. The
// functions may run on any number of threads with streams and lists of their own.
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
