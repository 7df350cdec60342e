// TURLEncoding: percent-encoding of text for URLs (RFC 3986, section 2.1), and back.
//
//     const TURLEncoding& Url = TQzNetEncoding::URL();
//     Url.Encode(u"a b/c");                     // "a%20b%2Fc"
//     Url.Encode(u"a b/c!", {'/'});             // "a%20b%2Fc!"
//     Url.Decode(u"%C3%A9+1");                  // "é+1"
//
// An encoding has no state, so any number of threads may share one.
#pragma once

#include <qz/runtime/base/Set.h>
#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/objects/Object.h>

namespace qz {

using TUnsafeChars = TCharSet; // of bytes

// Accepted and without effect: a blank is "%20" and "%" stands as it is, always; "+" is no blank.
enum class TEncodeOption : std::uint8_t { SpacesAsPlus, EncodePercent };
using enum TEncodeOption;
using TEncodeOptions = TSet<TEncodeOption>;
enum class TDecodeOption : std::uint8_t { PlusAsSpaces };
using enum TDecodeOption;
using TDecodeOptions = TSet<TDecodeOption>;

class QZ_API TURLEncoding : public TObject {
    QZ_CLASS(TURLEncoding, TObject)

public:
    TURLEncoding() = default;

    // Escapes bytes of the UTF-8 form: 0 to 32 always, and those of !#$&'()*+,/:;=?@[] that are in
    // AUnsafeChars. An empty set stands for all of these. Any other byte of AUnsafeChars has no escape and is
    // dropped. A percent sign is no unsafe character by default and stays. The UTF-8 bytes of characters
    // beyond ASCII are read in the system's code page: if that is UTF-8, the characters stay.
    UnicodeString Encode(const TStringArg& AValue, const TUnsafeChars& AUnsafeChars = {},
                         TEncodeOptions AOptions = {}) const;

    // "%" and two hex digits are a byte; other characters are their bytes in the system's code page. All the
    // bytes together are read as UTF-8. Control characters right after "%" are ignored. Raises EConvertError,
    // "'$zz' is not a valid integer value", for characters that are no hex digits, and EQzTextParserEOF,
    // "Unexpected EOF", for fewer than two characters.
    UnicodeString Decode(const TStringArg& AValue, TDecodeOptions AOptions = {}) const;
};

} // namespace qz
