// Code pages by number and by name, and the one that text is in by its first bytes.
//
//     QzCodePage(u"Windows-1252");              // 1252
//     QzCodePage(28591);                        // "iso-8859-1"
//     QzGetCodePage(Stream);                    // 65001 for a stream that begins with EF BB BF
//
// Numbers are those of the Windows platform. Six have a meaning everywhere: 0 (the system's 8-bit code page),
// 1200 and 1201 (UTF-16, lowest and highest byte first), 12000 and 12001 (UTF-32 in the same orders), 65001
// (UTF-8). All functions may run on any number of threads.
#pragma once

#include <cstdint>
#include <string_view>

#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/base/UnicodeString.h>
#include <qz/runtime/streams/Stream.h>
#include <qz/runtime/text/CodePages.h>

namespace qz {

// The marks that open a text in UTF-8, UTF-16 or UTF-32.
inline constexpr std::string_view cQzUTF8{"\xEF\xBB\xBF", 3};
inline constexpr std::string_view cQzUTF16BE{"\xFE\xFF", 2};
inline constexpr std::string_view cQzUTF16LE{"\xFF\xFE", 2};
inline constexpr std::string_view cQzUTF32BE{"\x00\x00\xFE\xFF", 4};
inline constexpr std::string_view cQzUTF32LE{"\xFF\xFE\x00\x00", 4};

// The number of the code page of that name, ASCII letters in any case; 0 for the empty name. Raises
// Exception, "No CodePage ID found for %s!". A number need not be one that this system converts; see
// docs/code-pages.md.
QZ_API std::uint16_t QzCodePage(const TStringArg& AName);
// The name of a code page: of one of the 142 that have one; raises Exception, "No CodePage Name found for
// %d!".
QZ_API UnicodeString QzCodePage(std::uint16_t ANumber);

// The code page by the mark at the start of the bytes; without a mark 1200 when the second byte of at least
// three is 0 and the first is not, as in UTF-16 text of ASCII letters; else 0.
QZ_API std::uint16_t QzGetCodePage(const void* ABuffer, std::int32_t ASize);
// The same for what follows the position. The stream stands after a mark that was found, else where it stood.
QZ_API std::uint16_t QzGetCodePage(TStream& AStream);

} // namespace qz
