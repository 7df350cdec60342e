// Numbers and texts in raw storage, read and written by the description of their type.
//
//     double Number = ReadFloat(Prop.PropType(), Room);
//
// For the authors of containers and readers. A type that does not fit a function is not checked for. All
// functions may run on any number of threads.
#pragma once

#include <qz/runtime/objects/TypeInfo.h>

namespace qz {

// A 64-bit integer and its sign, so that the signed and the unsigned range are covered.
struct TWideOrdinal {
    std::int64_t Value;
    bool IsLarge; // Value is the two's complement of a number above the signed ones
};

QZ_API TWideOrdinal ReadWideOrdinal(PTypeInfo AType, const void* ASource) noexcept;
// Whether the width and the sign of an ordinal type or a set have room for the number; a Boolean for 0 and 1
// alone.
QZ_API bool HoldsOrdinal(PTypeInfo AType, TWideOrdinal AOrdinal) noexcept;
// The nearest double.
QZ_API double NumberOf(TWideOrdinal AOrdinal) noexcept;

// Of tkFloat: a float, a double, a date, a Currency, of which it is the nearest double.
QZ_API double ReadFloat(PTypeInfo AType, const void* ASource) noexcept;
// Rounds to the type. False if the result differs from AValue; NaN stays NaN, but a
// Currency cannot hold it and is not written.
QZ_API bool WriteFloat(PTypeInfo AType, void* ATarget, double AValue) noexcept;
// The same, where digits may get lost but not the size of the number. Raises ERangeError for a finite number
// outside the range of the type, and for a Currency also for infinity and NaN.
QZ_API void StoreFloat(PTypeInfo AType, void* ATarget, double AValue);

// True for TDateTime, TDate and TTime.
QZ_API bool IsDateType(PTypeInfo AType) noexcept;

// Of a text or a character of any kind; a tkChar is of Latin-1. False, and nothing changed, for bytes whose
// code page the system does not know.
QZ_API bool ReadText(PTypeInfo AType, const void* ASource, UnicodeString& AText);
// Replaces a text, converted to the code page of the type; missing characters become their best fit or "?";
// a RawByteString becomes UTF-8. False, and nothing changed, for a kind or code page that is not known here.
QZ_API bool AssignText(PTypeInfo AType, void* ATarget, const UnicodeString& AText);

// True for an integer of any width.
inline bool IsIntegerKind(TTypeKind AKind) noexcept {
    return AKind == tkInteger || AKind == tkInt64;
}
// True for what ReadText takes.
inline bool IsTextKind(TTypeKind AKind) noexcept {
    return AKind == tkChar || AKind == tkWChar || AKind == tkLString || AKind == tkWString ||
        AKind == tkUString;
}
// Whether values of the kind can refer to nothing; a dynamic array does if its length is 0.
inline bool IsReferenceKind(TTypeKind AKind) noexcept {
    return AKind == tkClass || AKind == tkInterface || AKind == tkClassRef || AKind == tkPointer ||
        AKind == tkMethod || AKind == tkProcedure;
}

} // namespace qz
