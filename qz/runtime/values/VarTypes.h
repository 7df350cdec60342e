// The type codes of variants: those of OLE Automation, and some of this library's own from 256 on.
#pragma once

#include <concepts>
#include <cstdint>

#include <qz/runtime/base/UnicodeString.h>

namespace qz {

using TVarType = std::uint16_t;

inline constexpr TVarType varEmpty = 0;
inline constexpr TVarType varNull = 1;
inline constexpr TVarType varSmallint = 2;
inline constexpr TVarType varInteger = 3;
inline constexpr TVarType varSingle = 4;
inline constexpr TVarType varDouble = 5;
inline constexpr TVarType varCurrency = 6;
inline constexpr TVarType varDate = 7;
inline constexpr TVarType varOleStr = 8;   // 16-bit text that lies as a WideString
inline constexpr TVarType varDispatch = 9; // an interface of automation
inline constexpr TVarType varError = 10;   // a result code of 32 bits
inline constexpr TVarType varBoolean = 11;
inline constexpr TVarType varVariant = 12; // of the elements of an array alone
inline constexpr TVarType varUnknown = 13; // any other interface
inline constexpr TVarType varDecimal = 14;
inline constexpr TVarType varShortInt = 16;
inline constexpr TVarType varByte = 17;
inline constexpr TVarType varWord = 18;
inline constexpr TVarType varLongWord = 19;
inline constexpr TVarType varInt64 = 20;
inline constexpr TVarType varUInt64 = 21;
inline constexpr TVarType varRecord = 36; // no variant of this library holds it
inline constexpr TVarType varStrArg = 72; // nor this
inline constexpr TVarType varObject = 73; // an object, not owned
inline constexpr TVarType varString = 256;
inline constexpr TVarType varAny = 257; // no variant of this library holds it
inline constexpr TVarType varUString = 258;

inline constexpr TVarType varTypeMask = 0x0FFF;
inline constexpr TVarType varArray = 0x2000; // joined with the type of the elements
inline constexpr TVarType varByRef = 0x4000; // only in the system's own variants

// The name of a type for messages: "Integer", "Array Byte", "ByRef Date"; the number in hexadecimal digits
// for one that is not listed here.
QZ_API UnicodeString VarTypeAsText(TVarType AType);

namespace detail {

template <class T>
concept CVariantNumber = std::same_as<T, float> || std::same_as<T, double> ||
    (std::integral<T> && sizeof(T) <= 8 && !std::same_as<T, bool> && !std::same_as<T, char> &&
     !std::same_as<T, char8_t> && !std::same_as<T, char16_t> && !std::same_as<T, char32_t> &&
     !std::same_as<T, wchar_t>);

// The code of a number by its width and sign.
template <CVariantNumber T> consteval TVarType VarTypeOf() noexcept {
    if (std::same_as<T, float>)
        return varSingle;
    if (std::same_as<T, double>)
        return varDouble;
    switch (sizeof(T)) {
    case 1: return std::signed_integral<T> ? varShortInt : varByte;
    case 2: return std::signed_integral<T> ? varSmallint : varWord;
    case 4: return std::signed_integral<T> ? varInteger : varLongWord;
    default: return std::signed_integral<T> ? varInt64 : varUInt64;
    }
}

} // namespace detail

} // namespace qz
