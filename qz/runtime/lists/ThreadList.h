// TThreadList<T>: a list that threads share under a lock.
//
//     TThreadList<int> Shared;
//     Shared.Add(5);
//     {
//         auto List = Shared.Lock();              // locked until the end of the block
//         for (int Each : *List) ...
//     }
//
// All operations may be called from any thread, by one thread also within its own lock.
#pragma once

#include <qz/runtime/lists/List.h>
#include <qz/runtime/threads/CriticalSection.h>

namespace qz {

template <class T> class TThreadList {
public:
    // The list, held for the length of a block.
    class [[nodiscard]] TLocked {
    public:
        explicit TLocked(TThreadList& AOwner) : FHold(AOwner.FLock), FList(AOwner.FList) {}
        TList<T>* operator->() const noexcept { return &FList; }
        TList<T>& operator*() const noexcept { return FList; }

    private:
        TScopedLock<TCriticalSection> FHold;
        TList<T>& FList;
    };

    explicit TThreadList(TDuplicates ADuplicates = dupIgnore) noexcept : FDuplicates(ADuplicates) {}
    TThreadList(const TThreadList&) = delete;
    TThreadList& operator=(const TThreadList&) = delete;

    TDuplicates Duplicates() const noexcept { return FDuplicates; }

    TLocked Lock() { return TLocked(*this); }
    // The same by hand: every LockList needs its UnlockList on the same thread.
    TList<T>& LockList() {
        FLock.Enter();
        return FList;
    }
    void UnlockList() { FLock.Leave(); }

    // An equal item is left out, taken in once more, or raises EListError, "Duplicates not allowed".
    void Add(T AItem) {
        const TLocked List(*this);
        if (FDuplicates == dupAccept || !List->Contains(AItem))
            List->Add(std::move(AItem));
        else if (FDuplicates == dupError)
            detail::RaiseList(SDuplicatesNotAllowed);
    }
    // Deletes the first equal item, if there is one.
    void Remove(const T& AItem) {
        const TLocked List(*this);
        List->Remove(AItem);
    }
    void Clear() {
        const TLocked List(*this);
        List->Clear();
    }

private:
    TCriticalSection FLock;
    TList<T> FList;
    const TDuplicates FDuplicates;
};

} // namespace qz
