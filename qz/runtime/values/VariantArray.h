// Variants that are arrays: of one or more dimensions, with any bounds, of variants or packed elements of one
// type.
//
//     Variant List = VarArrayOf({1, u"two", 3.0});            // indexes 0 to 2
//     Variant Grid = VarArrayCreate({1, 31, 0, 23}, varByte); // one byte an element, all 0
//     VarArrayPut(Grid, 7, {24, 12});
//     for (const std::uint8_t Hour : VarArrayData<std::uint8_t>(Grid)) ...
//
// Arrays are values: a copy is an array of its own as soon as one of the two is written to. Elements are of
// any type that a variant holds, except varEmpty and varNull, or are variants (varVariant). What is asked of
// a variant that is no array raises EVariantInvalidOpError. What raises leaves the array as it was.
#pragma once

#include <initializer_list>
#include <span>

#include <qz/runtime/values/Variant.h>

namespace qz {

QZ_PLAIN_EXCEPTION(EVariantArrayCreateError, EVariantError);
QZ_PLAIN_EXCEPTION(EVariantBadIndexError, EVariantError);

// Empty elements (0, an empty text, null) for pairs of a lower and an upper bound, one for each of up to 64
// dimensions. An upper bound may be one less than the lower. Raises EVariantArrayCreateError for any other
// bounds, for elements of a type that no array has, and for elements of 2 GiB and more.
QZ_API Variant VarArrayCreate(std::initializer_list<int> ABounds, TVarType AElements = varVariant);
// Variants from index 0 on.
QZ_API Variant VarArrayOf(std::initializer_list<Variant> AItems);

// 0 for a variant that is no array.
QZ_API int VarArrayDimCount(const Variant& AArray) noexcept;
// ADimension counts from 1; one that is not there raises EVariantBadIndexError.
QZ_API int VarArrayLowBound(const Variant& AArray, int ADimension = 1);
QZ_API int VarArrayHighBound(const Variant& AArray, int ADimension = 1);

// One element, by as many indexes as there are dimensions; any other number of them and an index out of
// bounds raise EVariantBadIndexError.
QZ_API Variant VarArrayGet(const Variant& AArray, std::initializer_list<int> AIndexes);
inline Variant VarArrayGet(const Variant& AArray, int AIndex) {
    return VarArrayGet(AArray, {AIndex});
}
// The value is converted to the type of the elements, as VarAsType does and with its exceptions.
QZ_API void VarArrayPut(Variant& AArray, const Variant& AValue, std::initializer_list<int> AIndexes);
inline void VarArrayPut(Variant& AArray, const Variant& AValue, int AIndex) {
    VarArrayPut(AArray, AValue, {AIndex});
}

// Sets the upper bound of the last dimension. Elements that are there before and after are kept, new ones are
// empty. Raises as VarArrayCreate does.
QZ_API void VarArrayRedim(Variant& AArray, int AHighBound);

namespace detail {
QZ_API std::span<const std::byte> VarArrayBytes(const Variant& AArray, TVarType AElements);
QZ_API std::span<std::byte> OwnVarArrayBytes(Variant& AArray, TVarType AElements);
} // namespace detail

// All elements of an array of numbers, the first index counting fastest, without a copy; good until the
// variant is copied, changed or destroyed. Raises EVariantTypeCastError for elements of another type than T
// has as a variant.
template <class T> std::span<const T> VarArrayData(const Variant& AArray) {
    const std::span Bytes = detail::VarArrayBytes(AArray, detail::VarTypeOf<T>());
    return {reinterpret_cast<const T*>(Bytes.data()), Bytes.size() / sizeof(T)};
}
// The same for writing.
template <class T> std::span<T> VarArrayData(Variant& AArray) {
    const std::span Bytes = detail::OwnVarArrayBytes(AArray, detail::VarTypeOf<T>());
    return {reinterpret_cast<T*>(Bytes.data()), Bytes.size() / sizeof(T)};
}

} // namespace qz
