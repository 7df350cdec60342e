// Bytes as Base64 (RFC 4648) and as hexadecimal text, and back, between blocks of memory.
//
//     const std::byte Bytes[] = {std::byte{0xFB}, std::byte{0xEF}};
//     char Text[Base64Length(sizeof Bytes, TBase64Alphabet::Standard)];
//     char* End = BytesToBase64(Bytes, TBase64Alphabet::Standard, Text); // ++8=
//     std::byte Back[Base64Room(sizeof Text)];
//     std::byte* BackEnd = Base64ToBytes({Text, End}, Back);             // two bytes after Back
//
// Nothing fails. Targets have the room that the contract states and are not written to beyond it; they do not
// overlap the source. All functions may run on any number of threads.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include <qz/runtime/base/DynArray.h>
#include <qz/runtime/base/UnicodeString.h>

namespace qz {

// The alphabet of RFC 4648 section 4, padded with "="; that of section 5, "-" and "_" at the end, not padded.
enum class TBase64Alphabet : std::uint8_t { Standard, Url };

inline constexpr std::string_view cBase64Chars[] = {
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/",
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_"};

// The number of characters that ABytes bytes give.
constexpr std::size_t Base64Length(std::size_t ABytes, TBase64Alphabet AAlphabet) noexcept {
    const std::size_t Rest = ABytes % 3;
    return ABytes / 3 * 4 + (Rest == 0 ? 0 : AAlphabet == TBase64Alphabet::Standard ? 4 : Rest + 1);
}
// Room for the bytes of AChars characters, whatever they are.
constexpr std::size_t Base64Room(std::size_t AChars) noexcept {
    return AChars / 4 * 3 + (AChars % 4 == 0 ? 0 : 3);
}

// Writes Base64Length characters without line breaks; returns their end.
QZ_API char* BytesToBase64(std::span<const std::byte> ABytes, TBase64Alphabet AAlphabet,
                           char* ADest) noexcept;
// Decodes both alphabets and returns the end of the bytes. Skips what is in neither: line breaks, "=" and any
// other byte, wherever they stand. The characters left over at the end give one byte if they are two and two
// if they are three; a single one is dropped. ADest has room for Base64Room bytes.
QZ_API std::byte* Base64ToBytes(std::string_view AText, std::byte* ADest) noexcept;

// Writes two digits in upper case for each byte; returns their end.
QZ_API char* BytesToHex(std::span<const std::byte> ABytes, char* ADest) noexcept;
// Writes one byte for each two characters and returns the end of the bytes. Digits are of either case; any
// other character counts as 0. An odd character at the end is ignored.
QZ_API std::byte* HexToBytes(std::string_view AText, std::byte* ADest) noexcept;

// The same with results of their own. Raise std::bad_alloc and, for a text beyond 2^31 - 1 characters,
// std::length_error.
QZ_API UnicodeString Base64Text(std::span<const std::byte> ABytes, TBase64Alphabet AAlphabet);
QZ_API TBytes Base64Bytes(std::string_view AText);
QZ_API UnicodeString HexText(std::span<const std::byte> ABytes);
QZ_API TBytes HexBytes(std::string_view AText);

} // namespace qz
