// TList<T>: items in an order, found by index.
//
//     TList<int> Numbers = {3, 1, 2};
//     Numbers.Add(5);
//     Numbers.Sort();
//     int Place;
//     if (Numbers.BinarySearch(3, Place)) ...
//     for (int Each : Numbers) ...
//
// A list is a value as std::vector is, not a TObject: it lies on the stack or in an object and is copied with
// its items. Indexes count from 0; one out of range raises EArgumentOutOfRangeException, "Argument out of
// range". Any change of the items makes iterators invalid. A list belongs to one thread at a time; see
// TThreadList.
#pragma once

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <span>
#include <vector>

#include <qz/runtime/base/DynArray.h>
#include <qz/runtime/lists/ListTypes.h>

namespace qz {

template <class T> class TList {
    static_assert(
        !std::is_same_v<T, bool>,
        "TList<bool> has no bool to refer to: take TList<std::uint8_t> or a list of an enumeration");

public:
    using value_type = T;

    TList() noexcept = default;
    TList(std::initializer_list<T> AItems) : FItems(AItems) {}
    explicit TList(std::span<const T> AItems) : FItems(AItems.begin(), AItems.end()) {}

    // Queries.
    int Count() const noexcept { return static_cast<int>(FItems.size()); }
    bool IsEmpty() const noexcept { return FItems.empty(); }
    int Capacity() const noexcept { return static_cast<int>(FItems.capacity()); }
    const T& Items(int AIndex) const { return FItems[Checked(AIndex, Count())]; }
    T& Items(int AIndex) { return FItems[Checked(AIndex, Count())]; }
    const T& operator[](int AIndex) const { return Items(AIndex); }
    T& operator[](int AIndex) { return Items(AIndex); }
    const T& First() const { return Items(0); }
    T& First() { return Items(0); }
    const T& Last() const { return Items(Count() - 1); }
    T& Last() { return Items(Count() - 1); }
    // The first or last place of an equal item; -1 when there is none.
    int IndexOf(const T& AItem) const {
        const auto Found = std::find(begin(), end(), AItem);
        return Found == end() ? -1 : static_cast<int>(Found - begin());
    }
    int LastIndexOf(const T& AItem) const {
        const auto Found = std::find(FItems.rbegin(), FItems.rend(), AItem);
        return static_cast<int>(FItems.rend() - Found) - 1;
    }
    bool Contains(const T& AItem) const { return IndexOf(AItem) >= 0; }
    // Looks in a list that is sorted by ALess. AIndex becomes the first place of an equal item, or the place
    // where the item would have to be inserted.
    template <class TLess = std::less<>>
    bool BinarySearch(const T& AItem, int& AIndex, TLess ALess = {}) const {
        const auto Found = std::lower_bound(begin(), end(), AItem, ALess);
        AIndex = static_cast<int>(Found - begin());
        return Found != end() && !ALess(AItem, *Found);
    }
    TDynArray<T> ToArray() const { return TDynArray<T>(std::span<const T>(FItems)); }
    auto begin() const noexcept { return FItems.begin(); }
    auto end() const noexcept { return FItems.end(); }
    auto begin() noexcept { return FItems.begin(); }
    auto end() noexcept { return FItems.end(); }
    friend bool operator==(const TList&, const TList&) = default;

    // Commands.
    // The index of the new item.
    int Add(T AItem) {
        FItems.push_back(std::move(AItem));
        return Count() - 1;
    }
    // They may be items of this list.
    void AddRange(std::span<const T> AItems) {
        const T* Own = FItems.data();
        if (std::less_equal<>()(Own, AItems.data()) && std::less<>()(AItems.data(), Own + FItems.size())) {
            const std::vector<T> Copy(AItems.begin(), AItems.end());
            FItems.insert(FItems.end(), Copy.begin(), Copy.end());
        } else {
            FItems.insert(FItems.end(), AItems.begin(), AItems.end());
        }
    }
    // AIndex may be the count, for the end.
    void Insert(int AIndex, T AItem) {
        FItems.insert(FItems.begin() + static_cast<std::ptrdiff_t>(Checked(AIndex, Count() + 1)),
                      std::move(AItem));
    }
    void Delete(int AIndex) { ExtractAt(AIndex); }
    void DeleteRange(int AIndex, int ACount) {
        if (AIndex < 0 || ACount < 0 || ACount > Count() - AIndex)
            detail::RaiseOutOfRange(std::int64_t{AIndex} + ACount, Count());
        FItems.erase(FItems.begin() + AIndex, FItems.begin() + AIndex + ACount);
    }
    // Deletes the first equal item and gives its place; -1 when there is none.
    int Remove(const T& AItem) {
        const int Index = IndexOf(AItem);
        if (Index >= 0)
            Delete(Index);
        return Index;
    }
    // Takes the item out and gives it; that of an equal one, or an empty one when there is none.
    T ExtractAt(int AIndex) {
        const auto Place = FItems.begin() + static_cast<std::ptrdiff_t>(Checked(AIndex, Count()));
        T Result = std::move(*Place);
        FItems.erase(Place);
        return Result;
    }
    T Extract(const T& AItem) {
        const int Index = IndexOf(AItem);
        return Index < 0 ? T() : ExtractAt(Index);
    }
    void Exchange(int AIndex1, int AIndex2) { std::swap(Items(AIndex1), Items(AIndex2)); }
    // Takes the item to the place ANewIndex; those between move up by one.
    void Move(int ACurIndex, int ANewIndex) {
        Checked(ACurIndex, Count());
        Checked(ANewIndex, Count());
        detail::MoveItem(FItems, ACurIndex, ANewIndex);
    }
    void Clear() noexcept { std::vector<T>().swap(FItems); }
    // Cuts the list, or lengthens it by empty items.
    void SetCount(int ACount) {
        if (ACount < 0)
            detail::RaiseOutOfRange(ACount, Count());
        FItems.resize(static_cast<std::size_t>(ACount));
    }
    // At least the count; a lower one than now gives memory back.
    void SetCapacity(int ACapacity) {
        if (ACapacity < Count())
            detail::RaiseOutOfRange(ACapacity, Count());
        if (ACapacity < Capacity())
            FItems.shrink_to_fit();
        FItems.reserve(static_cast<std::size_t>(ACapacity));
    }
    // Equal items keep their order. With a comparison that contradicts itself the order is any.
    template <class TLess = std::less<>> void Sort(TLess ALess = {}) {
        detail::MergeSort(FItems, std::move(ALess));
    }
    void Reverse() noexcept { std::reverse(begin(), end()); }

private:
    static std::size_t Checked(int AIndex, int ALimit) {
        if (AIndex < 0 || AIndex >= ALimit) [[unlikely]]
            detail::RaiseOutOfRange(AIndex, ALimit);
        return static_cast<std::size_t>(AIndex);
    }

    std::vector<T> FItems;
};

} // namespace qz
