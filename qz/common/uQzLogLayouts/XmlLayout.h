// TQzXmlLayout: the log as an XML document that a browser shows as a table.
//
//     <?xml-stylesheet type="text/xsl" href="app.log.xsl"?><log timeStamp="2024-01-31T07:15:02Z" fileName="..." ...>
//     <item><timeStamp>2024-01-31T07:15:03Z</timeStamp><threadID>4711</threadID><loggerName>root.app</loggerName>...</item>
//     </log>
//
// A file appender with this layout gets the extension ".log.xml", and the stylesheet beside it; set the file's name first.
// Times are UTC. The document is whole when the file is closed; one that is continued stands behind the old one. An appender
// that is no file appender gets no stylesheet.
//
// Characters that mark up are escaped, U+0000 is left out, and all others stay: also those for which XML has no place, such as
// control characters, at which a reader of XML stops. Ours: SetStrictXml has them appear as U+FFFD, and the path in the header
// escaped, so that the document is well-formed whatever is logged.
//
// Any number of threads may format lines.
#pragma once

#include <atomic>

#include <qz/common/uQzLogger/LogBase.h>

namespace qz {

class QZ_API TQzXmlLayout : public TQzLogBaseWith<TQzLogBase, IQzLogLayoutEx, _IQzLogLayout> {
    QZ_CLASS(TQzXmlLayout, TQzLogBase)

public:
    // Closes the document.
    UnicodeString GetFooter() override;
    // Opens it, with the time, the program, the user, the computer and the process.
    UnicodeString GetHeader() override;
    // The message as an element; a value that is not blank stands in it as text. The value of an object is its short text.
    UnicodeString FormatLine(const UnicodeString& ALogger, TQzLogLevel ALevel, const UnicodeString& AMessage,
                             PQzDataRec AValue, TQzLogIndent AIndent) override;
    // ".log.xml"
    UnicodeString GetFileExt() override;
    // Writes the stylesheet beside the file of a file appender, and makes the directory for it, unless there is one. Raises
    // EFCreateError.
    void Initialize(TQzLogBase* ALogBase) override;

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
