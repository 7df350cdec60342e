// The simpler forms of text and their conversions: ASCII, Latin-1, 16-bit units of the other byte order,
// UTF-32; and tests for well-formed text.
//
//     if (Latin1Prefix(Wide) == Wide.size())
//         NarrowUnits(Wide, Bytes.data());                          // each character has a byte of its own
//     std::vector<std::byte> Values(4 * Utf16ToUtf32Length(Wide));
//     Utf16ToUtf32(Wide, std::endian::big, Values.data());
//
// Nothing fails: what is ill-formed gives U+FFFD. A target has room for what the contract states and is not
// written to beyond it; it does not overlap the source unless that is allowed. All functions are pure and may
// run on any number of threads.
#pragma once

#include <bit>
#include <cstddef>
#include <span>
#include <string_view>

#include <qz/platform/Export.h>

namespace qz {

// Number of bytes, or of units, at the start of AText that are at most 7F.
QZ_API std::size_t AsciiPrefix(std::string_view AText) noexcept;
QZ_API std::size_t AsciiPrefix(std::u16string_view AText) noexcept;

// Number of units at the start of AText that are at most FF.
QZ_API std::size_t Latin1Prefix(std::u16string_view AText) noexcept;

// Writes each byte as a unit of the same value: ASCII and Latin-1 as UTF-16. ADest has room for AText.size()
// units.
QZ_API void WidenBytes(std::string_view AText, char16_t* ADest) noexcept;

// Writes the low byte of each unit; a caller that wants no loss has seen that Latin1Prefix is all of AText.
// ADest has room for AText.size() bytes.
QZ_API void NarrowUnits(std::u16string_view AText, char* ADest) noexcept;

// Writes AUnits units of 16 bits with their two bytes exchanged. Neither place need be aligned, and both may
// be the same one.
QZ_API void SwapUnits(const void* ASource, std::size_t AUnits, void* ADest) noexcept;

// Whether AText is well-formed: no overlong forms, surrogates, values above 10FFFF, stray or missing bytes in
// UTF-8, no lone surrogates in UTF-16. Empty text is.
QZ_API bool IsValidUtf8(std::string_view AText) noexcept;
QZ_API bool IsValidUtf16(std::u16string_view AText) noexcept;

// UTF-32 is held in bytes, not aligned, in the byte order that is stated. A surrogate, a value above 10FFFF
// and an incomplete value of one to three bytes at the end are ill-formed, and each gives one U+FFFD.

QZ_API bool IsValidUtf32(std::span<const std::byte> ABytes, std::endian AOrder) noexcept;

// Number of UTF-16 units that ABytes gives.
QZ_API std::size_t Utf32ToUtf16Length(std::span<const std::byte> ABytes, std::endian AOrder) noexcept;

// Writes the UTF-16 form to ADest, which has room for Utf32ToUtf16Length units, and returns the end of what
// was written.
QZ_API char16_t* Utf32ToUtf16(std::span<const std::byte> ABytes, std::endian AOrder,
                              char16_t* ADest) noexcept;

// Number of code points in AText, where a lone surrogate counts as one.
QZ_API std::size_t Utf16ToUtf32Length(std::u16string_view AText) noexcept;

// Writes the UTF-32 form to ADest, which has room for four times Utf16ToUtf32Length bytes, and returns the
// end of what was written. A lone surrogate gives U+FFFD.
QZ_API std::byte* Utf16ToUtf32(std::u16string_view AText, std::endian AOrder, std::byte* ADest) noexcept;

} // namespace qz
