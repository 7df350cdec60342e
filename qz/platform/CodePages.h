// Conversion between UTF-16 and the 8-bit character sets that have a code page number: 1252 for western
// Windows text, 932 for Shift-JIS. ICU converts on Linux, the system on Windows.
//
//     if (const TResult<std::size_t> Length = CodePageToUtf16(1252, Bytes, {}, TDecoding::Lenient)) {
//         std::u16string Text(*Length, u'\0');
//         CodePageToUtf16(1252, Bytes, Text, TDecoding::Lenient);
//     }
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include <qz/platform/Error.h>
#include <qz/platform/Export.h>

namespace qz::platform {

// The code page of 8-bit text on this system. Windows: the active code page. Linux: the character set of the
// user's locale (LC_ALL, LC_CTYPE, LANG); 65001 for UTF-8, for the C locale and for a set without a number.
// Determined once.
QZ_API std::uint32_t SystemCodePage();

// How to treat bytes that are invalid in the page, including a character cut off at the end. Lenient replaces
// them by the page's default character; Strict fails. The pages 50220, 50221, 50222, 50225, 50227, 50229,
// 57002 to 57011, 65000 and 65001 are always lenient.
enum class TDecoding : std::uint8_t { Lenient, Strict };

// How to treat a letter followed by a combining mark. Plain converts each by itself. Composite joins the two
// first; a joined character that the page can neither hold nor approximate gives one default character.
// Longer sequences and Korean syllables are not joined. The pages that are always lenient, and 54936, are
// always Plain. A character that the page lacks gives its best fit, or else the page's default, usually "?".
// In pages of one and two bytes each half of a surrogate pair is such a character.
enum class TComposing : std::uint8_t { Plain, Composite };

// Bytes in code page APage to UTF-16. Gives the number of units written to ATarget. An empty ATarget gives
// the number needed. Page 0 is SystemCodePage. An empty source in a known page gives 0. Fails for an unknown
// page, for more than 2^31-1 bytes, for a target that is too small, and for text that TDecoding::Strict
// refuses; ATarget then holds anything. The pages 1200, 1201, 12000 and 12001 are unknown here. Source and
// target must not overlap. Any thread.
QZ_API TResult<std::size_t> CodePageToUtf16(std::uint32_t APage, std::span<const std::byte> ASource,
                                            std::span<char16_t> ATarget, TDecoding ADecoding);

// UTF-16 to bytes in code page APage. Lengths, errors and threads as with CodePageToUtf16.
QZ_API TResult<std::size_t> Utf16ToCodePage(std::uint32_t APage, std::u16string_view ASource,
                                            std::span<char> ATarget, TComposing AComposing);

// The maximum number of bytes of a character in code page APage, as the system counts them; 0 for an unknown
// page. Page 0 is SystemCodePage. Raises std::bad_alloc. Any thread.
QZ_API std::uint32_t CodePageMaxCharSize(std::uint32_t APage);

} // namespace qz::platform
