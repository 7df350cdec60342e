// The constants of the vector code for Base64 and hexadecimal text, sixteen bytes each. Those that are looked
// up by a half byte have an entry for each of its values.
#pragma once

#include <array>
#include <cstdint>

#include <qz/runtime/base/detail/UtfTable.h>

namespace qz::detail {

// The bytes b, a, c, b of each group a, b, c.
alignas(16) inline constexpr TShuffle cSpreadGroups = {1, 0, 2, 1, 4, 3, 5, 4, 7, 6, 8, 7, 10, 9, 11, 10};
// The same for groups of which the last one, of three, one or two bytes, ends at the end of the vector.
alignas(16) inline constexpr TShuffle cSpreadLastGroups[] = {
    {5, 4, 6, 5, 8, 7, 9, 8, 11, 10, 12, 11, 14, 13, 15, 14},
    {7, 6, 8, 7, 10, 9, 11, 10, 13, 12, 14, 13, cNoByte, 15, cNoByte, cNoByte},
    {6, 5, 7, 6, 9, 8, 10, 9, 12, 11, 13, 12, 15, 14, cNoByte, 15}};
// Added to the characters of these groups, gives "=" for the "A" of missing bytes.
alignas(16) inline constexpr TShuffle cPadding[] = {{},
                                                    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xFC, 0xFC},
                                                    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xFC}};
// A number of 32 bits, repeated.
constexpr TShuffle Repeated32(std::uint32_t AValue) noexcept {
    TShuffle Result{};
    for (std::size_t I = 0; I < Result.size(); ++I)
        Result[I] = static_cast<std::uint8_t>(AValue >> 8 * (I % 4));
    return Result;
}
// The bits of the odd and the even characters of a spread group, and the factors that move them to their
// places.
alignas(16) inline constexpr TShuffle cOddBits = Repeated32(0x0FC0FC00);
alignas(16) inline constexpr TShuffle cOddPlaces = Repeated32(0x04000040);
alignas(16) inline constexpr TShuffle cEvenBits = Repeated32(0x003F03F0);
alignas(16) inline constexpr TShuffle cEvenPlaces = Repeated32(0x01000010);
// The values of the last upper case letter and of the last letter.
alignas(16) inline constexpr TShuffle cLastUpper = Repeated32(0x19191919);
alignas(16) inline constexpr TShuffle cLastLetter = Repeated32(0x33333333);
alignas(16) inline constexpr TShuffle cSixBits = Repeated32(0x3F3F3F3F);
alignas(16) inline constexpr TShuffle cHalfByte = Repeated32(0x0F0F0F0F);
// The factors that join values: 64 and 1 for pairs, 4096 and 1 for pairs of those, 16 and 1 for digits.
alignas(16) inline constexpr TShuffle cPairPlaces = Repeated32(0x01400140);
alignas(16) inline constexpr TShuffle cFourPlaces = Repeated32(0x00011000);
alignas(16) inline constexpr TShuffle cHexPlaces = Repeated32(0x01100110);
// The three bytes of each group from a number of 32 bits.
alignas(16) inline constexpr TShuffle cGatherGroups = {2, 1,  0,  6,  5,    4,    10,   9,
                                                       8, 14, 13, 12, 0x80, 0x80, 0x80, 0x80};

// What is added to a value of six bits to give its character, for each kind: upper case, lower case, ten
// digits, the last two characters of the alphabet.
constexpr TShuffle EncodeOffsets(char ALast, char AVeryLast) noexcept {
    TShuffle Result{};
    const auto At = [](int AOffset) { return static_cast<std::uint8_t>(AOffset); };
    Result.fill(At('0' - 52));
    Result[0] = At('A');
    Result[1] = At('a' - 26);
    Result[12] = At(ALast - 62);
    Result[13] = At(AVeryLast - 63);
    return Result;
}
alignas(16) inline constexpr TShuffle cEncodeOffsets[] = {EncodeOffsets('+', '/'), EncodeOffsets('-', '_')};

// Kinds of characters: 1 "+", 2 "-", 4 "/", 8 "_", 16 digits, 32 letters from 41 and 61, 64 letters from 50
// and 70. By the lower half of the character and by the upper one; a character has the kind that is in both.
alignas(16) inline constexpr TShuffle cLowerKinds = {0x50, 0x70, 0x70, 0x70, 0x70, 0x70, 0x70, 0x70,
                                                     0x70, 0x70, 0x60, 0x21, 0x20, 0x22, 0x20, 0x2C};
alignas(16) inline constexpr TShuffle cUpperKinds = {0, 0, 0x07, 0x10, 0x20, 0x48, 0x20, 0x40,
                                                     0, 0, 0,    0,    0,    0,    0,    0};
// What is added to a character to give its value: by the upper half, and by the kind, of whose value only the
// lower half counts, for those four that are no letter or digit.
alignas(16) inline constexpr TShuffle cDecodeOffsets = {0, 0, 0, 4, 0xBF, 0xBF, 0xB9, 0xB9,
                                                        0, 0, 0, 0, 0,    0,    0,    0};
alignas(16) inline constexpr TShuffle cSpecialOffsets = {0, 19, 17, 0, 16, 0, 0, 0, 33, 0, 0, 0, 0, 0, 0, 0};

alignas(16) inline constexpr TShuffle cHexDigits = {'0', '1', '2', '3', '4', '5', '6', '7',
                                                    '8', '9', 'A', 'B', 'C', 'D', 'E', 'F'};
// Kinds: 1 digits, 2 letters.
alignas(16) inline constexpr TShuffle cLowerHexKinds = {1, 3, 3, 3, 3, 3, 3, 1, 1, 1, 0, 0, 0, 0, 0, 0};
alignas(16) inline constexpr TShuffle cUpperHexKinds = {0, 0, 0, 1, 2, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0};
// What is added to a digit to give its value.
alignas(16) inline constexpr TShuffle cHexOffsets = {0, 0, 0, 0xD0, 0xC9, 0, 0xA9, 0, 0, 0, 0, 0, 0, 0, 0, 0};

} // namespace qz::detail
