// Conversion between UTF-8 and UTF-16 that never fails: whatever is ill-formed becomes U+FFFD.
//
//     std::u16string Wide = Utf8ToUtf16("\xC3\xA4");      // u"\u00E4"
//     std::string Narrow = Utf16ToUtf8(u"\u20AC");        // "\xE2\x82\xAC"
//
// Ill-formed UTF-8 (overlong forms, surrogates, values above 10FFFF, stray or missing continuation bytes)
// gives one U+FFFD for each maximal ill-formed subpart, as the Unicode Standard recommends (chapter 3.9,
// table 3-8); a lone surrogate of UTF-16 gives one U+FFFD. All functions are pure and may run on any number
// of threads.
#pragma once

#include <compare>
#include <cstddef>
#include <string>
#include <string_view>

#include <qz/platform/Export.h>

namespace qz {

// The replacement for what cannot be decoded.
inline constexpr char16_t cReplacementChar = 0xFFFD;

// Number of UTF-16 units that AText gives.
QZ_API std::size_t Utf8ToUtf16Length(std::string_view AText) noexcept;

// Number of UTF-8 bytes that AText gives.
QZ_API std::size_t Utf16ToUtf8Length(std::u16string_view AText) noexcept;

// Writes the UTF-16 form of AText to ADest, which has room for Utf8ToUtf16Length units (AText.size() always
// suffices), and returns the end of what was written. Nothing is terminated.
QZ_API char16_t* Utf8ToUtf16(std::string_view AText, char16_t* ADest) noexcept;

// Writes the UTF-8 form of AText to ADest, which has room for Utf16ToUtf8Length bytes (three for each unit
// always suffice), and returns the end of what was written. Nothing is terminated.
QZ_API char* Utf16ToUtf8(std::u16string_view AText, char* ADest) noexcept;

QZ_API std::u16string Utf8ToUtf16(std::string_view AText);
QZ_API std::string Utf16ToUtf8(std::u16string_view AText);

// Reads one code point at AText[APos] and moves APos past it. APos is inside AText.
QZ_API char32_t NextCodePoint(std::string_view AText, std::size_t& APos) noexcept;
QZ_API char32_t NextCodePoint(std::u16string_view AText, std::size_t& APos) noexcept;

// How AWide compares, by 16-bit units, with the UTF-16 form of ANarrow; nothing is allocated.
QZ_API std::strong_ordering CompareUtf8(std::u16string_view AWide, std::string_view ANarrow) noexcept;

// True when no byte of AText is above 7F.
QZ_API bool IsAscii(std::string_view AText) noexcept;

constexpr bool IsHighSurrogate(char16_t AChar) noexcept {
    return (AChar & 0xFC00) == 0xD800;
}
constexpr bool IsLowSurrogate(char16_t AChar) noexcept {
    return (AChar & 0xFC00) == 0xDC00;
}
constexpr bool IsSurrogate(char16_t AChar) noexcept {
    return (AChar & 0xF800) == 0xD800;
}

} // namespace qz
