// Numbers and texts in raw storage, read and written by the description of their type.
//
//     double Number = ReadFloat(Prop.PropType(), Room);
//
// For the authors of containers and readers. A type that does not fit a function is not checked for. All functions may
// run on any number of threads.
#pragma once

#include "runtime/reflection/TypeInfo.h"

namespace qz {

// An integer with the one bit that 64 cannot tell.
struct TWideOrdinal {
    std::int64_t Value;
    bool IsLarge; // Value is the two's complement of a number above the signed ones
};

QZ_API TWideOrdinal ReadWideOrdinal(PTypeInfo AType, const void* ASource) noexcept;
// Whether the width and the sign of an ordinal type or a set have room for the number.
QZ_API bool HoldsOrdinal(PTypeInfo AType, TWideOrdinal AOrdinal) noexcept;

// Of tkFloat: a float, a double, a date, a Currency.
QZ_API double ReadFloat(PTypeInfo AType, const void* ASource) noexcept;
// Rounds to the type. False when the result is another number than AValue; what is no number remains that, but a
// Currency cannot hold it and is not written.
QZ_API bool WriteFloat(PTypeInfo AType, void* ATarget, double AValue) noexcept;

// True for TDateTime, TDate and TTime.
QZ_API bool IsDateType(PTypeInfo AType) noexcept;

// Of a text or a character of any kind. Raises EOSError for bytes whose code page the system does not know.
QZ_API UnicodeString ReadText(PTypeInfo AType, const void* ASource);
// Puts a text in the place of another, in the code page of the type; a RawByteString becomes UTF-8. False, and nothing
// changed, for a kind or code page that is not known here.
QZ_API bool AssignText(PTypeInfo AType, void* ATarget, const UnicodeString& AText);

// True for an integer of any width.
inline bool IsIntegerKind(TTypeKind AKind) noexcept {
    return AKind == tkInteger || AKind == tkInt64;
}
// True for what ReadText takes.
inline bool IsTextKind(TTypeKind AKind) noexcept {
    return AKind == tkChar || AKind == tkWChar || AKind == tkString || AKind == tkLString ||
        AKind == tkWString || AKind == tkUString;
}

} // namespace qz
