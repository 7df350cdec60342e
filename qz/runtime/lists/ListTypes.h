// Common to all lists: handling of duplicates, notifications and errors.
#pragma once

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <vector>

#include <qz/platform/Export.h>
#include <qz/runtime/base/UnicodeString.h>

namespace qz {

inline constexpr TTextConstant SArgumentOutOfRange = u"Argument out of range";
inline constexpr TTextConstant SListIndexError = u"List index out of bounds (%d)";
inline constexpr TTextConstant SDuplicatesNotAllowed = u"Duplicates not allowed";
inline constexpr TTextConstant SItemNotFound = u"Item not found";

// What becomes of an item that is there already: the new one is left out, taken in, or refused with an
// exception.
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

// EArgumentOutOfRangeException for an index, a count or a capacity of a list of so many items.
[[noreturn]] QZ_API void RaiseOutOfRange(std::int64_t AValue, std::int64_t ACount);
[[noreturn]] QZ_API void RaiseListIndex(int AIndex);           // EListError, SListIndexError
[[noreturn]] QZ_API void RaiseList(std::u16string_view AText); // EListError

// Takes the item at AFrom to the place ATo; those between move up by one. Both are places of the vector.
template <class T> void MoveItem(std::vector<T>& AItems, std::ptrdiff_t AFrom, std::ptrdiff_t ATo) {
    const auto From = AItems.begin() + AFrom;
    const auto To = AItems.begin() + ATo;
    if (ATo < AFrom)
        std::rotate(To, From, From + 1);
    else
        std::rotate(From, From + 1, To + 1);
}

// Sorts a range so that equal items keep their order. A comparison that contradicts itself gives any order,
// one that raises leaves all items there, in any order; neither makes it read or write outside the range.
template <class TPlace, class TItem, class TLess>
void MergeSort(TPlace AFirst, TPlace ALast, std::vector<TItem>& ASpare, TLess& ALess) {
    if (ALast - AFirst < 2)
        return;
    const TPlace Middle = AFirst + (ALast - AFirst) / 2;
    MergeSort(AFirst, Middle, ASpare, ALess);
    MergeSort(Middle, ALast, ASpare, ALess);
    if (!ALess(*Middle, *(Middle - 1)))
        return;
    ASpare.assign(std::make_move_iterator(AFirst), std::make_move_iterator(Middle));
    struct TMerge {
        typename std::vector<TItem>::iterator Left, LeftEnd;
        TPlace Out;
        ~TMerge() { std::move(Left, LeftEnd, Out); } // the rest exactly fills the gap
    } Merge{ASpare.begin(), ASpare.end(), AFirst};
    for (TPlace Right = Middle; Merge.Left != Merge.LeftEnd && Right != ALast; ++Merge.Out) {
        if (ALess(*Right, *Merge.Left))
            *Merge.Out = std::move(*Right++);
        else
            *Merge.Out = std::move(*Merge.Left++);
    }
}

template <class TItem, class TLess> void MergeSort(std::vector<TItem>& AItems, TLess ALess) {
    std::vector<TItem> Spare;
    Spare.reserve(AItems.size() / 2);
    MergeSort(AItems.begin(), AItems.end(), Spare, ALess);
}

} // namespace detail

} // namespace qz
