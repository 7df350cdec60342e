// Conversion between UTF-16 and the 8-bit character sets that are known by a code page number (1252 for
// western Windows text, 932 for Shift-JIS). ICU does it on Linux, the system itself on Windows.
//
//     std::u16string Text;
//     TError Error;
//     if (CodePageToUtf16(1252, Bytes, Text, Error)) ...
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "platform/Error.h"
#include "platform/Export.h"

namespace qz::platform {

// The code page of 8-bit text on this system. Windows: the active code page. Linux: the character set of the
// user's locale (LC_ALL, LC_CTYPE, LANG); 65001 for UTF-8, for the C locale and for a set that has no number.
// Found once.
QZ_API uint32_t SystemCodePage();

// Bytes in code page APage to UTF-16. Page 0 stands for SystemCodePage. Bytes that mean nothing give a
// substitute character and never fail; a character that is cut off by the end counts as such. Fails, with
// AOut empty, for a page that isn't known, for the UTF-16 and UTF-32 pages 1200, 1201, 12000 and 12001, and
// beyond 2^31-1 bytes. Any thread.
QZ_API bool CodePageToUtf16(uint32_t APage, std::span<const std::byte> ABytes, std::u16string& AOut,
                            TError& AError);

// UTF-16 to bytes in code page APage. A character that the page lacks gives its best fit, if the system has
// one, or a "?". Fails as CodePageToUtf16.
QZ_API bool Utf16ToCodePage(uint32_t APage, std::u16string_view AText, std::string& AOut, TError& AError);

} // namespace qz::platform
