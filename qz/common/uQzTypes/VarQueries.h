// Queries of variants: emptiness, number of elements, boolean content.
//
//     QzVarIsEmpty(u"  ");                       // true
//     QzVarArrayCount(VarArrayOf({1, 2, 3}));    // 3
//     QzNullableBool(true);                      // nbYes
//
// Any number of threads may call them.
#pragma once

#include <qz/common/uQzTypes/TypeKinds.h>
#include <qz/runtime/values/Variant.h>

namespace qz {

// A number or date that is 0, a text of blanks, an array that ends at index -1 in its first dimension,
// anything else that is empty or null. No boolean is empty.
QZ_API bool QzVarIsEmpty(const Variant& AValue);

// The number of elements of an array that begins at 0, in its first dimension: its highest index there and
// one more, wherever it begins. 0 for any other variant.
QZ_API std::int32_t QzVarArrayCount(const Variant& AValue);

// nbYes and nbNo for a boolean, nbNull for anything else.
QZ_API TQzNullableBool QzNullableBool(const Variant& AValue);

} // namespace qz
