// TQzBinEncoding: how bytes are written as text.
//
//     TQzBinEncoding Encoding = beBase64Url;
//     if (Encoding != beHexEncoded)
//         Show("four characters for three bytes");
#pragma once

#include <span>
#include <string_view>

#include <qz/runtime/base/DynArray.h>
#include <qz/runtime/base/Memory.h>
#include <qz/runtime/objects/TypeInfo.h>
#include <qz/runtime/text/AnsiString.h>

namespace qz {

enum class TQzBinEncoding : std::uint8_t {
    beBase64,     // RFC 4648 section 4, padded
    beHexEncoded, // two upper case digits for each byte
    beBase64Url   // RFC 4648 section 5, not padded
};
using enum TQzBinEncoding;

inline constexpr TTextConstant SNetEncodingNotSupported = u"The specified NetEncoding is not supported!";
inline constexpr TTextConstant SInvalidBase64Data = u"Invalid Base64 data!";

namespace detail {

// The text of bytes and the bytes of text, as the encoding classes of the unit make them. All raise
// Exception, SNetEncodingNotSupported, for a value that is none of the three; decoding of Base64 raises
// Exception, SInvalidBase64Data, for a text of 4n + 1 characters.
QZ_API RawByteString EncodeBinary(std::span<const std::byte> ABytes, TQzBinEncoding AEncoding);
QZ_API UnicodeString EncodeBinaryText(std::span<const std::byte> ABytes, TQzBinEncoding AEncoding);
QZ_API TBytes DecodeBinary(std::string_view AText, TQzBinEncoding AEncoding);
// Into a block of memory, of which ASize bytes are the result; null for none.
QZ_API TMemBlock DecodeBinary(std::string_view AText, TQzBinEncoding AEncoding, std::size_t& ASize);

// The form of a text that is decoded: UTF-8 for Base64, code page 0 for hexadecimal digits.
QZ_API TBytes DecodeBinaryText(std::u16string_view AText, TQzBinEncoding AEncoding);

} // namespace detail

} // namespace qz

QZ_TYPE_INFO(qz::TQzBinEncoding);
