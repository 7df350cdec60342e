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

namespace detail {

// What a byte outside the alphabets has in the table of values.
inline constexpr std::uint8_t cNoBase64 = 0xFF;

constexpr std::array<std::uint8_t, 256> MakeBase64Values() noexcept {
    std::array<std::uint8_t, 256> Result{};
    Result.fill(cNoBase64);
    for (const std::string_view Chars : cBase64Chars)
        for (std::size_t I = 0; I < Chars.size(); ++I)
            Result[static_cast<unsigned char>(Chars[I])] = static_cast<std::uint8_t>(I);
    return Result;
}
// The value of each character, from 0 to 63.
inline constexpr std::array<std::uint8_t, 256> cBase64Values = MakeBase64Values();

// The characters of one to three bytes.
inline char* GroupToBase64(const std::byte* ASource, std::size_t ACount, TBase64Alphabet AAlphabet,
                           char* ADest) noexcept {
    const char* Chars = cBase64Chars[static_cast<std::size_t>(AAlphabet)].data();
    const auto At = [ASource](int AIndex) { return std::to_integer<std::uint32_t>(ASource[AIndex]); };
    const std::uint32_t Bits = At(0) << 16 | (ACount > 1 ? At(1) << 8 : 0) | (ACount > 2 ? At(2) : 0);
    ADest[0] = Chars[Bits >> 18];
    ADest[1] = Chars[Bits >> 12 & 0x3F];
    const bool IsPadded = AAlphabet == TBase64Alphabet::Standard;
    if (ACount > 1 || IsPadded)
        ADest[2] = ACount > 1 ? Chars[Bits >> 6 & 0x3F] : '=';
    if (ACount > 2 || IsPadded)
        ADest[3] = ACount > 2 ? Chars[Bits & 0x3F] : '=';
    return ADest + (IsPadded ? 4 : ACount + 1);
}

inline std::uint32_t Base64Value(char AChar) noexcept {
    return cBase64Values[static_cast<unsigned char>(AChar)];
}

// The bytes of a full group; false, and nothing that counts is written, if a character is in no alphabet.
inline bool GroupToBytes(const char* ASource, std::byte* ADest) noexcept {
    const std::uint32_t First = Base64Value(ASource[0]), Second = Base64Value(ASource[1]);
    const std::uint32_t Third = Base64Value(ASource[2]), Fourth = Base64Value(ASource[3]);
    ADest[0] = static_cast<std::byte>(First << 2 | Second >> 4);
    ADest[1] = static_cast<std::byte>(Second << 4 | Third >> 2);
    ADest[2] = static_cast<std::byte>(Third << 6 | Fourth);
    return (First | Second | Third | Fourth) < cNoBase64;
}

// The bytes of the last characters, less than four: their end; null, and nothing that counts is written, if
// one is in no alphabet.
inline std::byte* LastToBytes(std::string_view AText, std::byte* ADest) noexcept {
    if (AText.size() < 2)
        return AText.empty() || Base64Value(AText[0]) != cNoBase64 ? ADest : nullptr;
    const std::uint32_t First = Base64Value(AText[0]), Second = Base64Value(AText[1]);
    const std::uint32_t Third = AText.size() == 3 ? Base64Value(AText[2]) : 0;
    ADest[0] = static_cast<std::byte>(First << 2 | Second >> 4);
    if (AText.size() == 3)
        ADest[1] = static_cast<std::byte>(Second << 4 | Third >> 2);
    return (First | Second | Third) < cNoBase64 ? ADest + AText.size() - 1 : nullptr;
}

// A whole group that "=" may fill up.
inline std::byte* PaddedToBytes(const char* ASource, std::byte* ADest) noexcept {
    if (ASource[3] != '=')
        return GroupToBytes(ASource, ADest) ? ADest + 3 : nullptr;
    return LastToBytes({ASource, ASource[2] == '=' ? 2u : 3u}, ADest);
}

QZ_API char* ManyToBase64(std::span<const std::byte> ABytes, TBase64Alphabet AAlphabet, char* ADest) noexcept;
QZ_API std::byte* ManyToBytes(std::string_view AText, std::byte* ADest) noexcept;

} // namespace detail

// Writes Base64Length characters without line breaks; returns their end.
inline char* BytesToBase64(std::span<const std::byte> ABytes, TBase64Alphabet AAlphabet,
                           char* ADest) noexcept {
    if (ABytes.size() - 1 < 3) // one to three bytes take no call
        return detail::GroupToBase64(ABytes.data(), ABytes.size(), AAlphabet, ADest);
    return detail::ManyToBase64(ABytes, AAlphabet, ADest);
}
// Decodes both alphabets and returns the end of the bytes. Skips what is in neither: line breaks, "=" and any
// other byte, wherever they stand. The characters left over at the end give one byte if they are two and two
// if they are three; a single one is dropped. ADest has room for Base64Room bytes.
inline std::byte* Base64ToBytes(std::string_view AText, std::byte* ADest) noexcept {
    if (AText.size() == 4) // one group takes no call
        if (std::byte* End = detail::PaddedToBytes(AText.data(), ADest))
            return End;
    return detail::ManyToBytes(AText, ADest);
}

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
