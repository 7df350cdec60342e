// TURLEncoding: percent-encoding of text for URLs (RFC 3986, section 2.1), and back.
//
//     const TURLEncoding Url;
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

    // Encodes bytes of the UTF-8 form: always 0 to 32, and those of AUnsafeChars, which by default are
    // !#$&'()*+,/:;=?@[]. Any other byte of AUnsafeChars is dropped, as it has no escape. A percent sign stays as
    // it is unless it is dropped. The UTF-8 bytes of characters beyond ASCII are read as text of the system's
    // code page: where that is UTF-8 the characters stay as they are.
    UnicodeString Encode(const TStringArg& AValue, const TUnsafeChars& AUnsafeChars = {},
                         TEncodeOptions AOptions = {}) const;

    // Each "%" and two hex digits is a byte; the bytes, and all other characters in the system's code page, are
    // read as UTF-8. Control characters right after "%" are ignored. Raises EConvertError, "'$zz' is not a valid
    // integer value", for other characters than hex digits, and EQzTextParserEOF, "Unexpected EOF", for fewer
    // than two of them.
    UnicodeString Decode(const TStringArg& AValue, TDecodeOptions AOptions = {}) const;
};

} // namespace qz
