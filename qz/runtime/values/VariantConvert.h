// Conversion of a variant of any type to a plain value.
//
//     VarToInteger(Variant(u" 12 "));             // 12
//     VarToInteger(Variant(4294967295u));         // raises EVariantOverflowError
//     VarAsType(Variant(1.5), varCurrency);       // a variant of that type
//     if (V > 32767) ...                          // Variant.h defines how variants compare
//
// The rules for all conversions:
// - An empty variant is 0, False or the empty text. Null is the empty text, and raises EVariantTypeCastError
//   as anything else.
// - A number that the result cannot hold raises EVariantOverflowError; it never wraps. Floats, dates,
//   currencies and decimals become integers by rounding, halves to the even one; infinity and NaN are out of
//   range.
// - True is -1 as a number, as in OLE Automation, which an unsigned integer cannot hold.
// - A text is read as StrToInt, StrToFloat, StrToDateTime, StrToCurr or StrToBool reads it, where an integer
//   may also be written as a float. Any other text raises EVariantTypeCastError.
// - An error is the number of its code. Interfaces, objects and arrays raise EVariantTypeCastError.
// All functions are pure and may run on any number of threads.
#pragma once

#include <qz/runtime/values/Variant.h>

namespace qz {

QZ_API std::int32_t VarToInteger(const Variant& AValue);
QZ_API std::int64_t VarToInt64(const Variant& AValue);
QZ_API std::uint64_t VarToUInt64(const Variant& AValue);
QZ_API double VarToReal(const Variant& AValue);
// Any number but 0 is True.
QZ_API bool VarToBool(const Variant& AValue);
QZ_API TDateTime VarToDateTime(const Variant& AValue);
QZ_API Currency VarToCurrency(const Variant& AValue);
QZ_API TSysDecimal VarToDecimal(const Variant& AValue);

// As VarToStr, which Variant.h declares.
QZ_API WideString VarToWStr(const Variant& AValue);
// The 8-bit text of a variant of type varString; null for any other type. Good until the variant changes.
QZ_API const TByteText* VarByteText(const Variant& AValue) noexcept;
// In the system's code page.
QZ_API AnsiString VarToLStr(const Variant& AValue);
// ADefault for null, else VarToStr.
QZ_API UnicodeString VarToStrDef(const Variant& AValue, const UnicodeString& ADefault);

// The interface that the variant holds, null for an empty variant; raises EVariantTypeCastError for any
// other.
QZ_API Ref<IInterface> VarToInterface(const Variant& AValue);
// The object, in the same way.
QZ_API TObject* VarToObject(const Variant& AValue);

// The value as another type; one that has the type already is copied. AType may also be the type of an array,
// of which each element is converted. An interface becomes varDispatch if it answers to that. varEmpty and
// varNull drop the value, varVariant leaves it unchanged. Raises EVariantTypeCastError for a type that no
// variant holds.
QZ_API Variant VarAsType(const Variant& AValue, TVarType AType);

inline bool VarIsEmpty(const Variant& AValue) noexcept {
    return VarType(AValue) == varEmpty;
}
inline bool VarIsNull(const Variant& AValue) noexcept {
    return VarType(AValue) == varNull;
}
// Empty, or an interface or object that is null.
QZ_API bool VarIsClear(const Variant& AValue) noexcept;
QZ_API bool VarIsStr(const Variant& AValue) noexcept;
// Integers and booleans.
QZ_API bool VarIsOrdinal(const Variant& AValue) noexcept;
// Floats, currencies and decimals, but not dates.
QZ_API bool VarIsFloat(const Variant& AValue) noexcept;
inline bool VarIsNumeric(const Variant& AValue) noexcept {
    return VarIsOrdinal(AValue) || VarIsFloat(AValue);
}

enum class TVariantRelationship : std::uint8_t { vrEqual, vrLessThan, vrGreaterThan, vrNotEqual };
using enum TVariantRelationship;
// How the first value compares with the second, by the rules of the operators; unordered values give
// vrNotEqual.
QZ_API TVariantRelationship VarCompareValue(const Variant& ALeft, const Variant& ARight);

} // namespace qz
