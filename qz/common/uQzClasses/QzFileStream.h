// TQzFileStream: a file as a stream, to which texts are written as they stand.
//
//     TQzFileStream File(u"list.txt", fmCreate);
//     File.WriteString(AnsiString("one\r\n"));
#pragma once

#include <qz/runtime/streams/FileStream.h>
#include <qz/runtime/text/AnsiString.h>

namespace qz {

class QZ_API TQzFileStream : public TFileStream {
    QZ_CLASS(TQzFileStream, TFileStream)

public:
    using TFileStream::TFileStream;

    // Write the bytes, or the 16-bit units with the lowest byte first, at the position: no terminator, no
    // mark and no conversion. An empty text writes nothing. Raise EWriteError.
    void WriteString(const AnsiString& AText);
    void WriteString(const TStringArg& AText);
};

} // namespace qz
