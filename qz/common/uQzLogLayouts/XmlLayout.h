// TQzXmlLayout: the log as an XML document that a browser shows as a table.
//
//     <?xml-stylesheet type="text/xsl" href="app.log.xsl"?><log timeStamp="2024-01-31T07:15:02Z" ...>
//     <item><timeStamp>2024-01-31T07:15:03Z</timeStamp><threadID>4711</threadID>...</item>
//     </log>
//
// A file appender with this layout gets the extension ".log.xml", and the stylesheet is written beside its
// file; set the name of the file first. Other appenders get no stylesheet. Times are UTC. The document is
// complete when the file is closed.
//
// Markup characters are escaped, U+0000 is left out, and all others stay, also control characters that XML
// excludes and at which a reader of XML stops. A continued file goes on after the end of the document.
// SetStrictXml replaces these characters by U+FFFD, escapes the path in the header, and continues a file
// inside its document, so that the file is always well-formed.
//
// Any number of threads may format lines.
#pragma once

#include <atomic>

#include <qz/common/uQzLogger/LogBase.h>

namespace qz {

class QZ_API TQzXmlLayout : public TQzLogBaseWith<TQzLogBase, IQzLogLayoutEx, _IQzLogLayout, IQzLogDocument> {
    QZ_CLASS(TQzXmlLayout, TQzLogBase)

public:
    // Closes the document.
    UnicodeString GetFooter() override;
    // Opens the document, with the time, the program, the user, the computer and the process.
    UnicodeString GetHeader() override;
    // The message as an element, with the text of the value unless it is blank. That of an object is its
    // ToString.
    UnicodeString FormatLine(const UnicodeString& ALogger, TQzLogLevel ALevel, const UnicodeString& AMessage,
                             PQzDataRec AValue, TQzLogIndent AIndent) override;
    // ".log.xml"
    UnicodeString GetFileExt() override;
    // Writes the stylesheet beside the file of a file appender, unless it exists, and makes the directory.
    // Raises EFCreateError.
    void Initialize(TQzLogBase* ALogBase) override;
    bool ContinuesDocument() override { return FIsStrict; }

    bool GetStrictXml() const noexcept { return FIsStrict; }
    void SetStrictXml(bool AValue) noexcept { FIsStrict = AValue; }

protected:
    using TQzLogBaseWith::TQzLogBaseWith;

private:
    void AppendEscaped(UnicodeString& ATarget, std::u16string_view AText) const;
    void AppendValue(UnicodeString& ATarget, std::u16string_view AValue) const;

    UnicodeString FXslFilename;
    std::atomic<bool> FIsStrict{false};
};

} // namespace qz
