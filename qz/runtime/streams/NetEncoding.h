// TNetEncoding: an encoding of bytes as text for the network, as an object; TBase64Encoding and
// THTMLEncoding.
//
//     TNetEncoding::Base64().EncodeBytesToString(TBytes(90));     // lines of 76 characters
//     TBase64Encoding(0).Encode(u"Zoë");                     // one line, of the UTF-8 form
//     TNetEncoding::HTML().Encode(u"a < b");                 // "a &lt; b"
//
// Where text is encoded, its UTF-8 form is; where text is decoded, the bytes are read as UTF-8. Encodings
// have no state that changes, so any number of threads may share one. A class implements the nine protected
// operations or inherits those that it does not need to change.
#pragma once

#include <cstdint>
#include <span>

#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/streams/Stream.h>

namespace qz {

class QZ_API TNetEncoding : public TObject {
    QZ_CLASS(TNetEncoding, TObject)

public:
    // What lies between the position of AInput and its end, written at the position of AOutput; the number of
    // bytes written. Both may be one stream, but for hexadecimal text. Raise what the streams raise; an input
    // that ends before its Size raises EStreamError here, while the binary encodings of uQzNetEncoding take
    // what it has.
    std::int64_t Decode(TStream& AInput, TStream& AOutput) const { return DoDecode(AInput, AOutput); }
    std::int64_t Encode(TStream& AInput, TStream& AOutput) const { return DoEncode(AInput, AOutput); }
    // The bytes of the text, and back.
    TBytes Decode(std::span<const std::uint8_t> AText) const { return DoDecode(AText); }
    TBytes Encode(std::span<const std::uint8_t> ABytes) const { return DoEncode(ABytes); }
    UnicodeString Decode(const TStringArg& AText) const { return DoDecode(AText.View()); }
    UnicodeString Encode(const TStringArg& AText) const { return DoEncode(AText.View()); }
    TBytes DecodeStringToBytes(const TStringArg& AText) const { return DoDecodeStringToBytes(AText.View()); }
    UnicodeString EncodeBytesToString(std::span<const std::uint8_t> ABytes) const {
        return DoEncodeBytesToString(ABytes);
    }
    // A negative size counts as 0.
    UnicodeString EncodeBytesToString(const void* ABytes, std::int32_t ASize) const {
        return DoEncodeBytesToString(ABytes, ASize);
    }

    // Base64 in lines of 76 characters with CR LF between them, and HTML.
    static const TNetEncoding& Base64();
    static const TNetEncoding& HTML();

protected:
    TNetEncoding() = default;

    // The forms with bytes, streams and strings lead to each other; a class overrides at least
    // DoDecodeStringToBytes and DoEncodeBytesToString of a span, or both forms of UnicodeString.
    virtual std::int64_t DoDecode(TStream& AInput, TStream& AOutput) const;
    virtual TBytes DoDecode(std::span<const std::uint8_t> AText) const;
    virtual UnicodeString DoDecode(std::u16string_view AText) const = 0;
    virtual std::int64_t DoEncode(TStream& AInput, TStream& AOutput) const;
    virtual TBytes DoEncode(std::span<const std::uint8_t> ABytes) const;
    virtual UnicodeString DoEncode(std::u16string_view AText) const = 0;
    virtual TBytes DoDecodeStringToBytes(std::u16string_view AText) const;
    virtual UnicodeString DoEncodeBytesToString(std::span<const std::uint8_t> ABytes) const;
    virtual UnicodeString DoEncodeBytesToString(const void* ABytes, std::int32_t ASize) const;
};

// Base64 of RFC 4648 in lines. Lines are separated, the last one is not ended. Decoding takes both alphabets
// of RFC 4648, "+/" and "-_", and skips any other byte.
class QZ_API TBase64Encoding : public TNetEncoding {
    QZ_CLASS(TBase64Encoding, TNetEncoding)

public:
    // One line if ACharsPerLine is 0 or less.
    explicit TBase64Encoding(std::int32_t ACharsPerLine = 76);
    // The separator is written as UTF-8. If it holds characters of Base64, its text cannot be decoded.
    TBase64Encoding(std::int32_t ACharsPerLine, const TStringArg& ALineSeparator);

    std::int32_t CharsPerLine() const noexcept { return FCharsPerLine; }
    const UnicodeString& LineSeparator() const noexcept { return FLineSeparator; }

protected:
    TBytes DoDecode(std::span<const std::uint8_t> AText) const override;
    UnicodeString DoDecode(std::u16string_view AText) const override;
    TBytes DoEncode(std::span<const std::uint8_t> ABytes) const override;
    UnicodeString DoEncode(std::u16string_view AText) const override;
    TBytes DoDecodeStringToBytes(std::u16string_view AText) const override;
    UnicodeString DoEncodeBytesToString(std::span<const std::uint8_t> ABytes) const override;

private:
    UnicodeString InLines(std::span<const std::byte> ABytes) const;

    std::int32_t FCharsPerLine;
    UnicodeString FLineSeparator;
};

// HTML text: EscapeHtml and UnescapeHtml of HtmlText.h. Bytes are UTF-8 text.
class QZ_API THTMLEncoding : public TNetEncoding {
    QZ_CLASS(THTMLEncoding, TNetEncoding)

public:
    THTMLEncoding() = default;

protected:
    UnicodeString DoDecode(std::u16string_view AText) const override;
    UnicodeString DoEncode(std::u16string_view AText) const override;
};

} // namespace qz
