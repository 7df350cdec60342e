// Conversion between UTF-16 and the 8-bit character sets that are known by a code page number (1252 for
// western Windows text, 932 for Shift-JIS). ICU does it on Linux, the system itself on Windows.
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
// user's locale (LC_ALL, LC_CTYPE, LANG); 65001 for UTF-8, for the C locale and for a set that has no number.
// Found once.
QZ_API std::uint32_t SystemCodePage();

// What becomes of bytes that mean nothing in the page, among them a character that is cut off by the end:
// Lenient gives the page's default character for them, Strict fails. The pages 50220, 50221, 50222, 50225,
// 50227, 50229, 57002 to 57011, 65000 and 65001 know no strictness and are always lenient.
enum class TDecoding : std::uint8_t { Lenient, Strict };

// What becomes of a letter with a combining mark behind it. Plain takes each for itself; Composite joins them to
// one character first, and a pair whose joined character is neither in the page nor has a best fit there gives one
// default character for both. Only two are joined, and Korean syllables are not. The pages that know no strictness,
// and 54936, are always Plain. Under both a character that the page lacks gives its best fit, the nearest that the
// page has, or else the page's default, "?" in most; each half of a surrogate pair is such a character in the pages
// of one and two bytes.
enum class TComposing : std::uint8_t { Plain, Composite };

// Bytes in code page APage to UTF-16. Gives the number of units written to ATarget; with an empty ATarget
// the number that it takes, and writes nothing. Page 0 stands for SystemCodePage. No source gives 0 without an
// error, in a page that is known. Fails, and leaves anything in ATarget, for a page
// that is not known, more than 2^31-1 bytes, ATarget too small, or what TDecoding::Strict refuses. The UTF-16
// and UTF-32 pages 1200, 1201, 12000 and 12001 are not known here. Source and target must not overlap. Any
// thread.
QZ_API TResult<std::size_t> CodePageToUtf16(std::uint32_t APage, std::span<const std::byte> ASource,
                                            std::span<char16_t> ATarget, TDecoding ADecoding);

// UTF-16 to bytes in code page APage. Lengths, errors and threads as with CodePageToUtf16.
QZ_API TResult<std::size_t> Utf16ToCodePage(std::uint32_t APage, std::u16string_view ASource,
                                            std::span<char> ATarget, TComposing AComposing);

// The most bytes that one character takes in code page APage, as the system counts them; 0 for a page that
// isn't known. Page 0 stands for SystemCodePage. Raises std::bad_alloc. Any thread.
QZ_API std::uint32_t CodePageMaxCharSize(std::uint32_t APage);

} // namespace qz::platform
