// What all lists share: how they treat duplicates, what they tell of their items, and their errors.
#pragma once

#include <cstdint>

#include "platform/Export.h"
#include "runtime/text/UnicodeString.h"

namespace qz {

inline constexpr TTextConstant SArgumentOutOfRange = u"Argument out of range";
inline constexpr TTextConstant SListIndexError = u"List index out of bounds (%d)";
inline constexpr TTextConstant SDuplicatesNotAllowed = u"Duplicates not allowed";
inline constexpr TTextConstant SItemNotFound = u"Item not found";

// What becomes of an item that is there already: the new one is left out, taken in, or refused with an exception.
enum class TDuplicates : std::uint8_t { dupIgnore, dupAccept, dupError };
using enum TDuplicates;

// What happens to an item of a list or a collection.
enum class TCollectionNotification : std::uint8_t {
    cnAdding,
    cnAdded,
    cnExtracting,
    cnExtracted,
    cnDeleting,
    cnRemoved
};
using enum TCollectionNotification;

namespace detail {

[[noreturn]] QZ_API void RaiseOutOfRange();                    // EArgumentOutOfRangeException
[[noreturn]] QZ_API void RaiseListIndex(int AIndex);           // EListError, SListIndexError
[[noreturn]] QZ_API void RaiseList(std::u16string_view AText); // EListError

} // namespace detail

} // namespace qz
