// TNetEncodingEx: a TNetEncoding that also encodes and decodes plain memory, and streams into arrays.
// TQzBase64Encoding, TQzBase64UrlEncoding and TQzHexEncoding are its classes.
//
//     const TQzBase64Encoding Base64;
//     Base64.Encode(u"Zoë");                        // "Wm/Dqw=="
//     Base64.Encode("abc", 3);                      // an array of four characters
//
// None of them writes line breaks. Encodings hold constant tables only, so that one object serves all
// threads.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include <qz/common/uQzNetEncoding/BinEncoding.h>
#include <qz/runtime/streams/NetEncoding.h>
#include <qz/runtime/text/AnsiString.h>

namespace qz {

class TQzBytes;

class QZ_API TNetEncodingEx : public TNetEncoding {
    QZ_CLASS(TNetEncodingEx, TNetEncoding)

public:
    using TNetEncoding::Decode;
    using TNetEncoding::Encode;

    // What lies between the position of the stream and its end, as for QzStreamToReadBuf.
    TBytes Encode(TStream& AStream) const { return DoEncode(AStream); }
    TBytes Decode(TStream& AStream) const { return DoDecode(AStream); }
    TBytes Encode(const void* AData, std::size_t ASize) const { return DoEncode(AData, ASize); }
    TBytes Decode(const void* AText, std::size_t ASize) const { return DoDecode(AText, ASize); }
    TBytes Encode(const TQzBytes& ABytes) const;
    TBytes Decode(const TQzBytes& AText) const;
    // The same as text, in code page 0.
    RawByteString EncodeA(const void* AData, std::size_t ASize) const;

protected:
    TNetEncodingEx() = default;
    using TNetEncoding::DoDecode;
    using TNetEncoding::DoEncode;

    virtual TBytes DoEncode(TStream& AStream) const = 0;
    virtual TBytes DoEncode(const void* AData, std::size_t ASize) const = 0;
    virtual TBytes DoDecode(TStream& AStream) const = 0;
    virtual TBytes DoDecode(const void* AText, std::size_t ASize) const = 0;
};

namespace detail {

// The operations of TNetEncoding for one of the binary encodings.
class QZ_API TBinaryNetEncoding : public TNetEncodingEx {
protected:
    using TNetEncodingEx::DoDecode;
    using TNetEncodingEx::DoEncode;

    explicit TBinaryNetEncoding(TQzBinEncoding AEncoding) noexcept : FKind(AEncoding) {}

    TBytes DoDecode(std::span<const std::uint8_t> AText) const override;
    UnicodeString DoDecode(std::u16string_view AText) const override;
    TBytes DoEncode(std::span<const std::uint8_t> ABytes) const override;
    UnicodeString DoEncode(std::u16string_view AText) const override;
    TBytes DoDecodeStringToBytes(std::u16string_view AText) const override;
    UnicodeString DoEncodeBytesToString(std::span<const std::uint8_t> ABytes) const override;
    TBytes DoEncode(TStream& AStream) const override;
    TBytes DoEncode(const void* AData, std::size_t ASize) const override;
    TBytes DoDecode(TStream& AStream) const override;
    TBytes DoDecode(const void* AText, std::size_t ASize) const override;

    TQzBinEncoding Kind() const noexcept { return FKind; }

private:
    TQzBinEncoding FKind;
};

} // namespace detail

using TQzBase64EncodeArray = std::array<char, 64>;
// The value of each byte, from 0 to 63, or 255 for a byte outside the alphabets.
using TQzBase64DecodeArray = std::array<std::uint32_t, 256>;

// Base64 of RFC 4648 section 4, padded with "=".
//
// Decoding takes the characters of both alphabets and skips any other byte: line breaks, blanks, "=". The
// characters left over at the end give one byte if they are two and two if they are three; a single one is
// dropped. But for the form from stream to stream, a text of 4n + 1 bytes, whatever they are, raises
// Exception, "Invalid Base64 data!". Text is decoded in its UTF-8 form.
class QZ_API TQzBase64Encoding : public detail::TBinaryNetEncoding {
    QZ_CLASS(TQzBase64Encoding, TNetEncodingEx)

public:
    using TNetEncodingEx::Decode;
    using TNetEncodingEx::EncodeBytesToString;

    TQzBase64Encoding() noexcept : TQzBase64Encoding(beBase64) {}

    UnicodeString EncodeBytesToString(TStream& AStream) const;
    UnicodeString Encode64(const TStringArg& AText) const { return DoEncode(AText.View()); }
    TBytes Decode(const RawByteString& AText) const;
    // Return the number of bytes written, as the form from stream to stream does.
    std::int64_t Decode(std::span<const std::uint8_t> AText, TStream& AOutput) const;
    std::int64_t Decode(const RawByteString& AText, TStream& AOutput) const;
    std::int64_t DecodeStringToStream(const TStringArg& AText, TStream& AOutput) const;

    // The alphabet, the values of bytes, and the character that fills the last group; 0 for none.
    const TQzBase64EncodeArray& EncodeArray() const noexcept { return FEncodeArray; }
    const TQzBase64DecodeArray& DecodeArray() const noexcept { return FDecodeArray; }
    char Filler() const noexcept { return FFiller; }

protected:
    using detail::TBinaryNetEncoding::DoDecode;
    using detail::TBinaryNetEncoding::DoEncode;

    explicit TQzBase64Encoding(TQzBinEncoding AEncoding) noexcept;

    // From stream to stream. An output TQzMemoryStream is filled in place: it ends with the result, and its
    // position stays. To any other the result is written. Without input nothing is written. AInput and
    // AOutput may be one stream. Each gives the number of bytes.
    std::int64_t DoDecode(TStream& AInput, TStream& AOutput) const override;
    std::int64_t DoEncode(TStream& AInput, TStream& AOutput) const override;

private:
    std::int64_t DecodeTo(std::string_view AText, TStream& AOutput) const;

    const TQzBase64EncodeArray& FEncodeArray;
    const TQzBase64DecodeArray& FDecodeArray;
    char FFiller;
};

// Base64 of RFC 4648 section 5, "-" and "_" instead of "+" and "/", not padded.
class QZ_API TQzBase64UrlEncoding : public TQzBase64Encoding {
    QZ_CLASS(TQzBase64UrlEncoding, TQzBase64Encoding)

public:
    TQzBase64UrlEncoding() noexcept : TQzBase64Encoding(beBase64Url) {}
};

// Two upper case digits for each byte. Decoding takes either case; a character that is no digit counts as 0,
// and an odd one at the end is ignored. DecodeStringToBytes reads the text in code page 0.
class QZ_API TQzHexEncoding : public detail::TBinaryNetEncoding {
    QZ_CLASS(TQzHexEncoding, TNetEncodingEx)

public:
    TQzHexEncoding() noexcept : TBinaryNetEncoding(beHexEncoded) {}

protected:
    using detail::TBinaryNetEncoding::DoDecode;
    using detail::TBinaryNetEncoding::DoEncode;

    // From stream to stream; asserts that these are two. The output grows by as many bytes as the result has,
    // wherever its position is; the result overwrites what stands at the position. Both positions move past
    // what was read and written. Each gives the new size of the output without what stood before the
    // position.
    std::int64_t DoDecode(TStream& AInput, TStream& AOutput) const override;
    std::int64_t DoEncode(TStream& AInput, TStream& AOutput) const override;
    UnicodeString DoDecode(std::u16string_view AText) const override;
};

} // namespace qz
