// The names of the values of enumerations and sets.
//
//     GetEnumName(TypeInfo<TColor>(), 1);                        // "clGreen"
//     GetEnumValue(TypeInfo<TColor>(), u"CLGREEN");              // 1
//     SetToString(TypeInfo<TColors>(), 3, true);                 // "[clRed,clGreen]"
//     StringToSet(TypeInfo<TColors>(), u"clRed, clGreen");       // 3
//
// Names are found in either case of letters. All functions may run on any number of threads.
#pragma once

#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/objects/TypeInfo.h>

namespace qz {

// The name of that value of an enumeration; its decimal number when it has none, or AType is no enumeration.
QZ_API UnicodeString GetEnumName(PTypeInfo AType, std::int64_t AValue);
// The value of that name; -1 when there is none. Numbers are not read.
QZ_API int GetEnumValue(PTypeInfo AType, const TStringArg& AName) noexcept;
// The same for an enumeration that also has negative values.
QZ_API bool TryGetEnumValue(PTypeInfo AType, std::u16string_view AName, std::int64_t& AValue) noexcept;

// The names of the items of a set whose bits AValue holds, in ascending order with commas between; an item
// without a name is its number. Of a set of less than 64 items the bits above do not count; of a larger set
// the bits tell of the first 64 items, and the others are not in it.
QZ_API UnicodeString SetToString(PTypeInfo AType, std::int64_t AValue, bool ABrackets = false);
// The same for a set of any size in raw storage.
QZ_API UnicodeString SetToString(PTypeInfo AType, const void* ASource, bool ABrackets);
// The bits of the items that a text names, in any order and with any commas and blanks between, brackets
// around it or not. An item may be written as its number. Raises EPropertyConvertError, "Invalid property
// element: %s", for what is no item of the set, for an item above the 64th, and for a bracket without the
// other.
QZ_API std::int64_t StringToSet(PTypeInfo AType, const TStringArg& AText);

} // namespace qz
