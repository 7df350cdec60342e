// TStringStream: a stream in memory whose content is text in one encoding.
//
//     TStringStream Stream(u"Zoë", TEncoding::UTF8());
//     Stream.Size();                            // 4
//     Stream.WriteString(u" and Bob");
//     Stream.DataString();                      // the whole text
#pragma once

#include <qz/runtime/streams/MemoryStream.h>
#include <qz/runtime/text/Encoding.h>

namespace qz {

class QZ_API TStringStream : public TMemoryStream {
    QZ_CLASS(TStringStream, TMemoryStream)

public:
    // The position is at the start. Conversions raise EOSError naming the code page when the system cannot
    // make them.
    explicit TStringStream(const TStringArg& AText = u"", const TEncoding& AEncoding = TEncoding());
    // The bytes as they stand, in AEncoding.
    TStringStream(const TBytes& ABytes, const TEncoding& AEncoding);

    const TEncoding& Encoding() const noexcept { return FEncoding; }
    // All of the content, whatever the position.
    UnicodeString DataString() const;
    // The text of the next ACount bytes, or of all remaining ones if there are fewer.
    UnicodeString ReadString(std::int32_t ACount);
    // Writes at the position.
    void WriteString(const TStringArg& AText);

private:
    TEncoding FEncoding;
};

} // namespace qz
