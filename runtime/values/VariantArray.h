// Variants that are arrays of variants, of one dimension and with any lower bound.
//
//     Variant List = VarArrayOf({1, u"two", 3.0});            // indexes 0 to 2
//     Variant Days = VarArrayCreate({1, 31});                 // 31 empty elements, from 1 on
//     VarArrayPut(Days, u"free", 24);
//     for (int I = VarArrayLowBound(Days); I <= VarArrayHighBound(Days); ++I)
//         Show(VarArrayGet(Days, I));
//
// Arrays are values: a copy is an array of its own as soon as one of the two is written to. What is asked of a variant
// that is no array raises EVariantInvalidOpError.
#pragma once

#include <initializer_list>

#include "runtime/values/Variant.h"

namespace qz {

QZ_PLAIN_EXCEPTION(EVariantArrayCreateError, EVariantError);
QZ_PLAIN_EXCEPTION(EVariantBadIndexError, EVariantError);

// Empty elements for the lower and the upper bound, of which the latter may be one less than the former. Raises
// EVariantArrayCreateError for any other bounds, and for elements of another type than varVariant.
QZ_API Variant VarArrayCreate(std::initializer_list<int> ABounds, TVarType AElements = varVariant);
// From index 0 on.
QZ_API Variant VarArrayOf(std::initializer_list<Variant> AItems);

// 0 for a variant that is no array.
QZ_API int VarArrayDimCount(const Variant& AArray) noexcept;
// ADimension counts from 1; one that is not there raises EVariantBadIndexError.
QZ_API int VarArrayLowBound(const Variant& AArray, int ADimension = 1);
QZ_API int VarArrayHighBound(const Variant& AArray, int ADimension = 1);

// One element; an index out of bounds raises EVariantBadIndexError.
QZ_API Variant VarArrayGet(const Variant& AArray, int AIndex);
QZ_API void VarArrayPut(Variant& AArray, const Variant& AValue, int AIndex);

} // namespace qz
