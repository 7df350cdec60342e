// Integers and booleans as text and back.
//
//     IntToStr(-42);                       // "-42"
//     IntToHex(255, 4);                    // "00FF"
//     StrToInt(u" $1F");                   // 31
//     if (int Port; TryStrToInt(Text, Port)) ...
//
// What is read as an integer: blanks and tabs, a sign, then decimal digits, or hexadecimal ones after "$",
// "x" or "0x"; nothing after them. A hexadecimal number may use the full width, so "$FFFFFFFF" is -1 as a
// 32-bit integer. All functions are pure and may run on any number of threads.
#pragma once

#include <qz/runtime/base/StringArg.h>

namespace qz {

QZ_API UnicodeString IntToStr(std::int64_t AValue);
QZ_API UnicodeString UIntToStr(std::uint64_t AValue);
template <std::unsigned_integral T> UnicodeString IntToStr(T AValue) {
    return UIntToStr(AValue);
}

namespace detail {
QZ_API UnicodeString HexText(std::uint64_t AValue, int ADigits);
}

// At least ADigits capital digits, by default as many as the type has; a negative number in two's complement.
template <std::integral T> UnicodeString IntToHex(T AValue, int ADigits = 2 * static_cast<int>(sizeof(T))) {
    return detail::HexText(static_cast<std::make_unsigned_t<T>>(AValue), ADigits);
}

// Each raises EConvertError, "'%s' is not a valid integer value", for any other text and for a number out of
// range.
QZ_API std::int32_t StrToInt(const TStringArg& AText);
QZ_API std::int64_t StrToInt64(const TStringArg& AText);
QZ_API std::uint64_t StrToUInt64(const TStringArg& AText);
// Each gives false, and 0 as the value, instead.
QZ_API bool TryStrToInt(const TStringArg& AText, std::int32_t& AValue) noexcept;
QZ_API bool TryStrToInt64(const TStringArg& AText, std::int64_t& AValue) noexcept;
QZ_API bool TryStrToUInt64(const TStringArg& AText, std::uint64_t& AValue) noexcept;
QZ_API std::int32_t StrToIntDef(const TStringArg& AText, std::int32_t ADefault) noexcept;
QZ_API std::int64_t StrToInt64Def(const TStringArg& AText, std::int64_t ADefault) noexcept;

// "-1" and "0", or "True" and "False".
QZ_API UnicodeString BoolToStr(bool AValue, bool AUseBoolStrs = false);
// "True" and "False" in any case of letters, or a number as StrToFloat reads it, where anything but 0 is
// true. Raises EConvertError, "'%s' is not a valid boolean value".
QZ_API bool StrToBool(const TStringArg& AText);
QZ_API bool TryStrToBool(const TStringArg& AText, bool& AValue);
QZ_API bool StrToBoolDef(const TStringArg& AText, bool ADefault);

namespace detail {

// Room for the longest number: 20 digits and a sign.
inline constexpr std::size_t cMaxIntLength = 24;

// A number of up to 18 decimal digits, with a minus or none, and nothing else. False for any other text,
// which may yet be a number.
QZ_API bool TryPlainInteger(std::u16string_view AText, std::int64_t& AValue) noexcept;

// Writes the digits of AValue so that they end at AEnd, and gives their start.
QZ_API char16_t* WriteDecimal(std::uint64_t AValue, char16_t* AEnd) noexcept;
QZ_API char16_t* WriteHex(std::uint64_t AValue, char16_t* AEnd) noexcept;

} // namespace detail

} // namespace qz
