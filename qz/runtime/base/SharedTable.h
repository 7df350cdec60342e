// TSharedTable<T>: a hash table that only grows, with one writer at a time and any number of readers, which
// take no lock.
//
//     TSharedTable<TItem> Table;                          // refers to the items, does not own them
//     Table.Reserve(1);                                   // the writer, under its own lock
//     Table.Add(Item.Hash, Item);
//     TItem* Found = Table.Find(Hash, [&](const TItem& AItem) { return AItem.Name == Name; });
//
// An item must be complete when it is added, and live as long as the table. A reader that runs at the same
// time sees the table before or after an Add. Arrays that have become too small are kept for such readers, at
// most as much memory again as the current array takes.
#pragma once

#include <atomic>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <memory>

#include <qz/runtime/base/NameHash.h>

namespace qz {

template <class T> class TSharedTable {
public:
    TSharedTable() noexcept = default;
    TSharedTable(const TSharedTable&) = delete;
    TSharedTable& operator=(const TSharedTable&) = delete;
    ~TSharedTable() {
        for (TSlots* Slots = FSlots.load(std::memory_order_relaxed); Slots != nullptr;)
            Slots = std::unique_ptr<TSlots>(Slots)->Older;
    }

    // An item of that key for which AMatches gives true; null when there is none. Any thread.
    template <class TMatches> T* Find(std::uint64_t AKey, const TMatches& AMatches) const noexcept {
        TSlot* const Found = FindSlot(AKey, AMatches);
        return Found == nullptr ? nullptr : Found->Item.load(std::memory_order_acquire);
    }
    // For a table with one item a key.
    T* Find(std::uint64_t AKey) const noexcept {
        return Find(AKey, [](const T&) { return true; });
    }

    // The writer's operations.
    // Room for that many more items. May raise std::bad_alloc, which changes nothing.
    void Reserve(std::size_t ACount) {
        const TSlots* const Old = FSlots.load(std::memory_order_relaxed);
        const std::size_t Size = Old == nullptr ? 0 : Old->Mask + 1;
        if ((FCount + ACount) * 2 > Size)
            Grow(std::bit_ceil((FCount + ACount) * 2 + 16));
    }
    // There is room for it.
    void Add(std::uint64_t AKey, T& AItem) noexcept {
        Put(*FSlots.load(std::memory_order_relaxed), AKey, &AItem);
        ++FCount;
    }
    // Adds the item of a key, or replaces it in a table with one item a key. There is room for it.
    void Set(std::uint64_t AKey, T& AItem) noexcept {
        if (TSlot* const Found = FindSlot(AKey, [](const T&) { return true; }))
            Found->Item.store(&AItem, std::memory_order_release);
        else
            Add(AKey, AItem);
    }

private:
    struct TSlot {
        std::uint64_t Key = 0; // valid once there is an item
        std::atomic<T*> Item{nullptr};
    };
    struct TSlots {
        std::size_t Mask;
        int Shift;
        TSlots* Older;
        std::unique_ptr<TSlot[]> Items;

        std::size_t First(std::uint64_t AKey) const noexcept { return (AKey * detail::cHashFactor) >> Shift; }
    };

    template <class TMatches> TSlot* FindSlot(std::uint64_t AKey, const TMatches& AMatches) const noexcept {
        const TSlots* const Slots = FSlots.load(std::memory_order_acquire);
        if (Slots == nullptr)
            return nullptr;
        for (std::size_t Index = Slots->First(AKey);; Index = (Index + 1) & Slots->Mask) {
            TSlot& Slot = Slots->Items[Index];
            const T* const Item = Slot.Item.load(std::memory_order_acquire);
            if (Item == nullptr)
                return nullptr;
            if (Slot.Key == AKey && AMatches(*Item))
                return &Slot;
        }
    }

    static void Put(const TSlots& ASlots, std::uint64_t AKey, T* AItem) noexcept {
        std::size_t Index = ASlots.First(AKey);
        while (ASlots.Items[Index].Item.load(std::memory_order_relaxed) != nullptr)
            Index = (Index + 1) & ASlots.Mask;
        ASlots.Items[Index].Key = AKey;
        ASlots.Items[Index].Item.store(AItem, std::memory_order_release);
    }

    void Grow(std::size_t ASize) {
        TSlots* const Old = FSlots.load(std::memory_order_relaxed);
        auto New = std::make_unique<TSlots>(
            TSlots{ASize - 1, 64 - std::countr_zero(ASize), Old, std::make_unique<TSlot[]>(ASize)});
        if (Old != nullptr)
            for (std::size_t Index = 0; Index <= Old->Mask; ++Index)
                if (T* const Item = Old->Items[Index].Item.load(std::memory_order_relaxed))
                    Put(*New, Old->Items[Index].Key, Item);
        FSlots.store(New.release(), std::memory_order_release);
    }

    std::atomic<TSlots*> FSlots{nullptr};
    std::size_t FCount = 0;
};

} // namespace qz
