// The data for code page tables beside ICU's converters: codes that mean another character, and best fits.
// tools/code-page-tables makes the data; docs/code-pages.md states the sources.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace qz::platform::detail {

// In the data: the code or character has no counterpart.
constexpr char16_t cNoChar = 0xFFFF;

// The Count codes from First on mean the characters from Char on, or nothing when Char is cNoChar. A code is
// a byte, or lead byte * 256 + trail byte.
struct TCodeRow {
    std::uint16_t First;
    std::uint16_t Count;
    char16_t Char;
};

// The codes or characters from First on belong to the characters of the text, one by one.
struct TCharText {
    std::uint16_t First;
    std::u16string_view Chars;
};

struct TCodeRange {
    std::uint16_t First;
    std::uint16_t Last;
};

struct TPageData {
    std::uint16_t Page;
    std::uint16_t Base;                      // the page that this one is made from, 0: Converter
    const char* Converter;                   // ICU's name
    std::string_view Leads;                  // first and last lead byte of each range
    std::uint8_t Default;                    // replaces characters that the page lacks
    char16_t UnicodeDefault;                 // decoded from what means nothing
    std::uint16_t FitsLike;                  // a page whose best fits are valid here, too; 0: none
    std::span<const TCodeRow> Rows;          // what differs from the base ...
    std::span<const TCharText> Texts;        // ... as well
    std::span<const TCharText> Lenient;      // what only lenient decoding takes
    std::span<const TCodeRange> Preferred;   // codes that encode their characters though an earlier one could
    std::span<const TCodeRange> DecodedOnly; // codes that never encode
    std::span<const TCharText> Fits; // character to a character of the page, beyond or against FitsLike
};

// Sorted by page.
extern const std::span<const TPageData> CodePageData;

} // namespace qz::platform::detail
