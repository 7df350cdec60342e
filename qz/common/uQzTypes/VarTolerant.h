// The tolerant reading of variants: each function converts what can be converted, texts included.
//
//     QzVarToInt(u"17", 0, false);      // 17
//     QzVarToInt(u"abc", 7, false);     // 7
//     QzVarToInt(u"abc", 7, true);      // EConvertError: 'abc' is not a valid integer value
//
// An empty or null variant, and any other of the main kind mtkUnknown (TQzTypes::ToMainTypeKind of its code),
// gives the default. What cannot be converted raises when ARaise is true and gives the default when it is
// false, whatever the failure: a type that does not fit raises EConvertError with the message beside the
// function, in which "..." stands for "The given value is not a valid"; a text that does not read as a value
// raises the runtime's EConvertError; a number too large where it is read with 32 bits raises
// EVariantOverflowError. Integers are cut to the width of the result without a test of their range.
// VarStrict.h holds the functions that convert nothing. Any number of threads may call them.
#pragma once

#include <qz/runtime/base/Extended.h>
#include <qz/runtime/text/AnsiString.h>
#include <qz/runtime/time/DateTime.h>
#include <qz/runtime/values/Variant.h>

namespace qz {

// Integers, texts by StrToInt (in QzVarToInt64 by StrToInt64), booleans as 0 and 1. "... shortint value!",
// "... smalling value!", "... LongInt value!" (for QzVarToInt too), "... Int64 value!", "... Byte value!",
// "... Word value!", "... LongWord value!"
QZ_API std::int8_t QzVarToShortint(const Variant& AValue, std::int32_t ADefault, bool ARaise);
QZ_API std::int16_t QzVarToSmallint(const Variant& AValue, std::int32_t ADefault, bool ARaise);
QZ_API std::int32_t QzVarToLongInt(const Variant& AValue, std::int32_t ADefault, bool ARaise);
QZ_API std::int32_t QzVarToInt(const Variant& AValue, std::int32_t ADefault, bool ARaise);
QZ_API std::int64_t QzVarToInt64(const Variant& AValue, std::int32_t ADefault, bool ARaise);
QZ_API std::uint8_t QzVarToByte(const Variant& AValue, std::int32_t ADefault, bool ARaise);
QZ_API std::uint16_t QzVarToWord(const Variant& AValue, std::int32_t ADefault, bool ARaise);
QZ_API std::uint32_t QzVarToLongword(const Variant& AValue, std::int32_t ADefault, bool ARaise);

// Integers, floats, texts by QzStrToFloat (in QzVarToExtended by StrToFloat), dates except in QzVarToSingle.
// "... Single value!", "... Double value!", "... Extended value!"
QZ_API float QzVarToSingle(const Variant& AValue, float ADefault, bool ARaise);
QZ_API double QzVarToDouble(const Variant& AValue, double ADefault, bool ARaise);
QZ_API Extended QzVarToExtended(const Variant& AValue, Extended ADefault, bool ARaise);
// Numbers, dates, and texts: one that begins like 2016-02-29 is read in that order of parts, with the rest of
// the system's settings, any other by the settings of the process. "... Date value!"
QZ_API TDateTime QzVarToDate(const Variant& AValue, TDateTime ADefault, bool ARaise);

// Integers by their lowest 8 bits, so that 256 is false; texts by QzStrToBool; booleans. "... Boolean value!"
QZ_API bool QzVarToBool(const Variant& AValue, bool ADefault, bool ARaise);

// Texts, integers within 64 bits with a sign, floats by FloatToStr, booleans as "True" and "False", dates by
// DateTimeToStr. "... String value!", "... AnsiString value!", "... WideString value!" The first also takes
// an array of one dimension, as the texts of its elements with CR LF after each, where an element that does
// not convert counts as the default if ARaise is false; an array of more dimensions is refused with "The
// given array is not a to-string convertable value!".
QZ_API UnicodeString QzVarToStr(const Variant& AValue, const UnicodeString& ADefault, bool ARaise);
QZ_API AnsiString QzVarToAStr(const Variant& AValue, const AnsiString& ADefault, bool ARaise);
QZ_API WideString QzVarToWStr(const Variant& AValue, const WideString& ADefault, bool ARaise);

} // namespace qz
