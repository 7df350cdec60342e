// The strict reading of variants: each function takes the types that fit its result, and no others.
//
//     QzVarInt(Value, -1);        // -1 for an empty or null variant, EConvertError for a text
//     QzVarBool(u"Yes", false);   // true
//
// An empty or null variant, and any other of the unknown kind (TQzTypes::VarTypeKind), gives the default. A
// type that does not fit raises EConvertError with the message beside the function, in which "..." stands for
// "The given value is not a valid". Numbers are cut to the width of the result without a test of their range,
// the default too; a number that does not fit 32 bits where they are read so raises EVariantOverflowError.
// VarTolerant.h holds the functions that convert. Any number of threads may call them.
#pragma once

#include <qz/runtime/base/Extended.h>
#include <qz/runtime/text/AnsiString.h>
#include <qz/runtime/time/DateTime.h>
#include <qz/runtime/values/Variant.h>

namespace qz {

// Of 8 bits with or without sign. "... shortint value!", "... byte value!"
QZ_API std::int8_t QzVarShortint(const Variant& AValue, std::int32_t ADefault);
QZ_API std::uint8_t QzVarByte(const Variant& AValue, std::int32_t ADefault);
// Of 8 or 16 bits. "... word value!"
QZ_API std::uint16_t QzVarWord(const Variant& AValue, std::int32_t ADefault);
// Of 8 or 16 bits, or signed of 32 bits up to 32767. "... smallint value!", also for a number above that.
QZ_API std::int16_t QzVarSmallint(const Variant& AValue, std::int32_t ADefault);
// Of 8, 16 or 32 bits. "... longword value!" for all three.
QZ_API std::int32_t QzVarLongInt(const Variant& AValue, std::int32_t ADefault);
QZ_API std::int32_t QzVarInt(const Variant& AValue, std::int32_t ADefault);
QZ_API std::uint32_t QzVarLongword(const Variant& AValue, std::int32_t ADefault);
// Of 8, 16 or 32 bits, or signed of 64 bits. "... int64 value!"
QZ_API std::int64_t QzVarInt64(const Variant& AValue, std::int32_t ADefault);

// Integers of 8, 16 or 32 bits, and floats of 32 bits. "... single value!"
QZ_API float QzVarSingle(const Variant& AValue, float ADefault);
// And floats of 64 bits and decimals. "... double value!"
QZ_API double QzVarDouble(const Variant& AValue, double ADefault);
// And currencies. "... extended value!"
QZ_API Extended QzVarExtended(const Variant& AValue, Extended ADefault);
// As QzVarDouble, and dates. "... datetime value!"
QZ_API TDateTime QzVarDate(const Variant& AValue, TDateTime ADefault);

// Texts. "... string value!" for all three. The 8-bit one is in the system's code page.
QZ_API UnicodeString QzVarStr(const Variant& AValue, const UnicodeString& ADefault);
QZ_API AnsiString QzVarStrA(const Variant& AValue, const AnsiString& ADefault);
QZ_API WideString QzVarStrW(const Variant& AValue, const WideString& ADefault);

// Integers other than 0, texts by QzStrToBool, booleans. "... boolean value!"
QZ_API bool QzVarBool(const Variant& AValue, bool ADefault);

} // namespace qz
