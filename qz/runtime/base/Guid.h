// TGUID: the 128-bit identifier of an interface, laid out as the platform lays it out.
//
//     constexpr TGUID Id = Guid("{0417F540-9CCC-4DE6-B2C4-1063D0508346}");   // checked by the compiler
#pragma once

#include <array>
#include <compare>
#include <cstdint>
#include <string_view>

namespace qz {

struct TGUID {
    std::uint32_t D1 = 0;
    std::uint16_t D2 = 0;
    std::uint16_t D3 = 0;
    std::array<std::uint8_t, 8> D4{};

    friend constexpr bool operator==(const TGUID&, const TGUID&) noexcept = default;
    friend constexpr auto operator<=>(const TGUID&, const TGUID&) noexcept = default;
};

static_assert(sizeof(TGUID) == 16 && alignof(TGUID) == 4);

namespace detail {

constexpr int HexDigit(char32_t AChar) noexcept {
    if (AChar >= U'0' && AChar <= U'9')
        return static_cast<int>(AChar - U'0');
    if (AChar >= U'A' && AChar <= U'F')
        return static_cast<int>(AChar - U'A' + 10);
    if (AChar >= U'a' && AChar <= U'f')
        return static_cast<int>(AChar - U'a' + 10);
    return -1;
}

// Reads "{8-4-4-4-12}" hexadecimal digits; false when the text has any other form.
template <class TChar> constexpr bool ParseGuid(std::basic_string_view<TChar> AText, TGUID& AGuid) noexcept {
    constexpr std::string_view cForm = "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}";
    if (AText.size() != cForm.size())
        return false;
    std::array<std::uint8_t, 16> Bytes{};
    std::size_t Nibble = 0;
    for (std::size_t I = 0; I < cForm.size(); ++I) {
        const auto Char = static_cast<char32_t>(AText[I]);
        if (cForm[I] != 'X') {
            if (Char != static_cast<char32_t>(cForm[I]))
                return false;
            continue;
        }
        const int Digit = HexDigit(Char);
        if (Digit < 0)
            return false;
        Bytes[Nibble / 2] = static_cast<std::uint8_t>(Bytes[Nibble / 2] << 4 | Digit);
        ++Nibble;
    }
    AGuid.D1 = static_cast<std::uint32_t>(Bytes[0]) << 24 | static_cast<std::uint32_t>(Bytes[1]) << 16 |
        static_cast<std::uint32_t>(Bytes[2]) << 8 | Bytes[3];
    AGuid.D2 = static_cast<std::uint16_t>(Bytes[4] << 8 | Bytes[5]);
    AGuid.D3 = static_cast<std::uint16_t>(Bytes[6] << 8 | Bytes[7]);
    for (std::size_t I = 0; I < 8; ++I)
        AGuid.D4[I] = Bytes[8 + I];
    return true;
}

} // namespace detail

// The identifier of a literal in registry form; a literal of any other form does not compile.
consteval TGUID Guid(std::string_view AText) {
    TGUID Result;
    if (!detail::ParseGuid(AText, Result))
        throw "a GUID is written {XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}";
    return Result;
}

inline bool IsEqualGUID(const TGUID& ALeft, const TGUID& ARight) noexcept {
    return ALeft == ARight;
}

} // namespace qz
