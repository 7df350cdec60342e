// Arrays of the basic types, which have names and descriptions of their own.
//
//     TIntegerDynArray Numbers = {1, 2, 3};
//     TypeInfo<TIntegerDynArray>()->QualifiedName();    // "System.TIntegerDynArray"
#pragma once

#include <qz/runtime/values/BasicTypes.h>

namespace qz {

using TShortIntDynArray = TDynArray<std::int8_t>;
using TByteDynArray = TBytes; // described as TBytes
using TSmallIntDynArray = TDynArray<std::int16_t>;
using TWordDynArray = TDynArray<std::uint16_t>;
using TIntegerDynArray = TDynArray<std::int32_t>;
using TCardinalDynArray = TDynArray<std::uint32_t>;
using TInt64DynArray = TDynArray<std::int64_t>;
using TSingleDynArray = TDynArray<float>;
using TDoubleDynArray = TDynArray<double>;
using TBooleanDynArray = TDynArray<bool>;
using TStringDynArray = TDynArray<UnicodeString>;
using TWideStringDynArray = TDynArray<WideString>;
using TObjectDynArray = TDynArray<TObject*>; // described as TArray<System.TObject>

} // namespace qz

QZ_TYPE_INFO(qz::TShortIntDynArray);
QZ_TYPE_INFO(qz::TSmallIntDynArray);
QZ_TYPE_INFO(qz::TWordDynArray);
QZ_TYPE_INFO(qz::TIntegerDynArray);
QZ_TYPE_INFO(qz::TCardinalDynArray);
QZ_TYPE_INFO(qz::TInt64DynArray);
QZ_TYPE_INFO(qz::TSingleDynArray);
QZ_TYPE_INFO(qz::TDoubleDynArray);
QZ_TYPE_INFO(qz::TBooleanDynArray);
QZ_TYPE_INFO(qz::TStringDynArray);
QZ_TYPE_INFO(qz::TWideStringDynArray);
QZ_TYPE_INFO(qz::TObjectDynArray);
