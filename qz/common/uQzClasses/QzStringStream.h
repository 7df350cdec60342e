// TQzStringStream: a stream in memory whose content is text in one code page, which the stream knows.
//
//     TQzStringStream Stream(65001, 4096);
//     Stream.LoadFromFile(u"old.txt", 1252);         // read as windows-1252, kept as UTF-8
//     Stream.Add(u"one more line\r\n");
//     Stream.SaveToFile(u"new.txt");                 // with a byte order mark
//
// Written text is converted to the stream's code page; text that is read is converted to the form that is
// asked for. Conversions are those of TQzEncoding: lenient, and EOSError naming the code page where the
// system cannot make them; the content is then as it was before, or empty when it was to be replaced. A
// stream over a wrapped block can be read and overwritten but does not grow: "It is not possible to resize
// the buffer!". A stream belongs to one thread at a time.
#pragma once

#include <qz/common/uQzClasses/QzMemoryStream.h>
#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/text/AnsiString.h>
#include <qz/runtime/values/Variant.h>

namespace qz {

class QZ_API TQzStringStream : public TQzMemoryStream {
    QZ_CLASS(TQzStringStream, TQzMemoryStream)

public:
    using TQzMemoryStream::Write;

    std::uint16_t FCodePage;            // of the content; changed by ChangeCodePage and Assign alone
    std::uint16_t FCodePageMaxCharSize; // the most bytes that one character takes in it

    // An empty stream; ABlockSize as for TQzMemoryStream.
    TQzStringStream(std::uint16_t ACodePage, std::size_t ABlockSize);
    // The bytes as they stand, taken to be in ACodePage, with the position at the start.
    TQzStringStream(const TByteText& AText, std::uint16_t ACodePage);
    // A stream of code page 1200 or 65001 with that text, with the position at the start.
    explicit TQzStringStream(const UnicodeString& AText);
    explicit TQzStringStream(const UTF8String& AText);
    // Wraps a block of the caller's, all of it content.
    TQzStringStream(void* ABuffer, std::int32_t ASize, std::uint16_t ACodePage);

    // All of the content, whatever the position.
    AnsiString AString() const { return GetAString(); } // in code page 0
    AnsiString GetAString() const;
    UnicodeString WString() const { return GetWString(); }
    UnicodeString GetWString() const;
    UTF8String AsUTF8() const { return GetAsUTF8(); }
    UTF8String GetAsUTF8() const;
    UnicodeString DataString() const { return GetDataString(); }
    UnicodeString GetDataString() const { return GetWString(); }
    UnicodeString AsString() const { return GetAsString(); }
    UnicodeString GetAsString() const { return GetWString(); }
    Variant Value() const { return GetValue(); }
    Variant GetValue() const { return Variant(GetWString()); }
    // Asserts that the code page is none of 1200, 1201, 12000 and 12001.
    RawByteString StringData(std::uint16_t ACodePage) const;
    // The number of 16-bit units that the content gives; in a single-byte code page its size.
    std::int64_t CharCnt() const { return GetCharCnt(); }
    std::int64_t GetCharCnt() const;

    // Replace the content and go to the start.
    void SetAString(const AnsiString& AValue);
    void SetWString(const UnicodeString& AValue);
    void SetAsString(const UnicodeString& AValue) { SetWString(AValue); }
    void SetAsUTF8(const UTF8String& AValue);
    // A text of any kind; any other variant raises Exception, "Unsupported type %d!", and leaves the content.
    void SetValue(const Variant& AValue);

    // Takes the content, the code page and the position of another.
    virtual void Assign(const TQzStringStream& ASource);

    // Write at the position, over what stands there and beyond the end. An 8-bit character or text is in code
    // page 0.
    virtual void WriteChar(char AChar);
    virtual void WriteChar(char16_t AChar);
    virtual void Write(const UnicodeString& AText);
    virtual void Write(const AnsiString& AText);

    // A character at the end.
    void AddChar(char AChar);
    void AddChar(char16_t AChar);
    // Write at the position, not at the end, and go to the end then.
    void Add(const TByteText& AText, std::uint16_t ACodePage);
    void Add(const UnicodeString& AText);
    void Add(const TQzStringStream& AOther);
    // A terminator at the end: the character 0 in the stream's code page.
    void WriteEOF() { AddChar(u'\0'); }

    // Changes the code page. With AUpdateContent the content is converted and the position at the end;
    // without it the bytes stay and are another text from now on. Raises Exception, "The current codepage
    // cannot be changed without updating the content!", when there is content and one of the two code pages
    // is 1200; "Updating the content is not allowed (the stream is probably using a wrapped buffer)!" for a
    // wrapped block.
    void ChangeCodePage(std::uint16_t ACodePage, bool AUpdateContent);

    // Read at the position and move past it. At the end a character is 0 and a text is empty. A character
    // beyond the Basic Multilingual Plane comes as its two units in UTF-8 and UTF-16, in other code pages as
    // its first one. Bytes that are ill-formed give U+FFFD or the code page's default, and the position moves
    // on by what that character takes in the code page.
    char16_t ReadChar() { return ReadWChar(); }
    char16_t ReadWChar();
    char ReadAChar();
    UnicodeString ReadString(std::int32_t ACount) {
        return ReadWString(static_cast<std::uint32_t>(ACount < 0 ? 0 : ACount));
    }
    // Up to ACount 16-bit units.
    UnicodeString ReadWString(std::uint32_t ACount);
    // Up to ACount units too, in code page 0 then.
    AnsiString ReadAString(std::uint32_t ACount);

    // Reads a file in ACodePage, or, with -1, in that of its mark, code page 0 without one, and adds it as
    // LoadFromStream does. Raises EFOpenError, "File %s not found." where it is missing.
    void LoadFromFile(const TStringArg& AFileName, std::int32_t ACodePage);
    // Adds the rest of AStream, or all of it with AFromStart, at the position. ACodePage -1: that of the mark
    // where ADetectBOM looks for one, else 0. Raises Exception, "The specified encoding does not match the
    // BOM of the stream!". With AFreeStream AStream is freed in any case.
    void LoadFromStream(TStream* AStream, bool AFreeStream, bool AFromStart, bool ADetectBOM,
                        std::int32_t ACodePage);
    // Writes all of the content in ACodePage, with AWriteBOM after its mark if it has one. Content and
    // position stay.
    void SaveToStream(TStream& AStream, std::uint16_t ACodePage, bool AWriteBOM) const;
    // The same into a file, as a whole or not at all, as far as platform/Files.h says of WriteWholeFile.
    // Raises EFCreateError.
    void SaveToFile(const TStringArg& AFileName, std::uint16_t ACodePage, bool AWriteBOM) const;
    void SaveToFile(const TStringArg& AFileName) const { SaveToFile(AFileName, FCodePage, true); }

private:
    std::size_t Rest() const noexcept;
    bool IsAtLowSurrogate() const noexcept;
    void SetCodePage(std::uint16_t ACodePage);
    void WriteText(std::u16string_view AText);
    UnicodeString ReadRun(std::uint32_t ACount);
    char16_t ReadConverted();
    RawByteString BytesToSave(std::uint16_t ACodePage) const;
};

// The maximum number of bytes of a character in a code page: the system's value, else 2 for 1200 and 1201, 4
// for 12000 and 12001, 6 for 65001, 1 for all others.
QZ_API std::uint16_t QzCodePageMaxCharSize(std::uint16_t ACodePage);

} // namespace qz
