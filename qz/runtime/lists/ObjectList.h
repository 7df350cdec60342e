// TObjectList<T>: a list of objects that it may own.
//
//     TObjectList<TShape> Shapes;                 // owns them
//     Shapes.Add(TShape::Create());
//     Shapes.Delete(0);                           // frees the object
//     TObjectList<TShape> Seen(false);            // refers to them only
//
// An owned object was made by Create and is destroyed by Free. If Free raises, the object lives on outside
// the list, the rest of the list is as it was, and the exception goes to the caller; the destructor drops it.
// Indexes and threads as of TList.
#pragma once

#include <concepts>
#include <memory>

#include <qz/runtime/lists/List.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/Object.h>

namespace qz {

template <class T = TObject> class TObjectList {
public:
    using value_type = T*;

    TObjectList() noexcept = default; // owns its objects
    // Takes a bool alone, so that no pointer becomes one.
    explicit TObjectList(std::same_as<bool> auto AOwnsObjects) noexcept : FOwnsObjects(AOwnsObjects) {}
    TObjectList(const TObjectList&) = delete;
    TObjectList& operator=(const TObjectList&) = delete;
    // A descendant whose Notify must receive the last items clears the list in its own destructor.
    virtual ~TObjectList() {
        while (!FItems.IsEmpty()) {
            try {
                Clear();
            } catch (...) { // NOLINT(bugprone-empty-catch): a destructor must not raise
            }
        }
    }

    bool OwnsObjects() const noexcept { return FOwnsObjects; }
    void SetOwnsObjects(bool AValue) noexcept { FOwnsObjects = AValue; }

    int Count() const noexcept { return FItems.Count(); }
    bool IsEmpty() const noexcept { return FItems.IsEmpty(); }
    int Capacity() const noexcept { return FItems.Capacity(); }
    T* Items(int AIndex) const { return FItems.Items(AIndex); }
    T* operator[](int AIndex) const { return FItems.Items(AIndex); }
    T* First() const { return FItems.First(); }
    T* Last() const { return FItems.Last(); }
    int IndexOf(const T* AItem) const noexcept { return FItems.IndexOf(const_cast<T*>(AItem)); }
    bool Contains(const T* AItem) const noexcept { return IndexOf(AItem) >= 0; }
    // The first object of that class, or with AExact false also of a descendant, from AStart on; -1 when
    // there is none.
    int FindInstanceOf(TClass AClass, bool AExact = true, int AStart = 0) const noexcept {
        for (int I = std::max(AStart, 0); I < Count(); ++I)
            if (const T* Each = FItems[I]; Each != nullptr)
                if (Each->ClassType() == AClass || (!AExact && Each->InheritsFrom(AClass)))
                    return I;
        return -1;
    }
    auto begin() const noexcept { return FItems.begin(); }
    auto end() const noexcept { return FItems.end(); }

    // The index of the new item, which may be null.
    int Add(T* AItem) {
        Insert(Count(), AItem);
        return Count() - 1;
    }
    // Hands an object over. Raises EInvalidOperation in a list that does not own its objects.
    int Add(TOwned<T> AItem) {
        if (!FOwnsObjects)
            throw EInvalidOperation(u"The list does not own its objects");
        const int Result = Add(AItem.get());
        AItem.release(); // NOLINT(bugprone-unused-return-value)
        return Result;
    }
    // An exception of Notify leaves the item out.
    void Insert(int AIndex, T* AItem) {
        FItems.Insert(AIndex, AItem);
        try {
            Notify(AItem, cnAdded);
        } catch (...) {
            Undo(AIndex, AItem, [&] { FItems.Delete(AIndex); });
            throw;
        }
    }
    // Replaces an object, which is removed; the same object changes nothing. If Notify refuses
    // the new one, the old one stays.
    void SetItem(int AIndex, T* AItem) {
        T* Old = FItems.Items(AIndex);
        if (Old == AItem)
            return;
        FItems[AIndex] = AItem;
        try {
            Notify(AItem, cnAdded);
        } catch (...) {
            Undo(AIndex, AItem, [&] { FItems[AIndex] = Old; });
            throw;
        }
        Notify(Old, cnRemoved);
    }
    void Delete(int AIndex) { Notify(FItems.ExtractAt(AIndex), cnRemoved); }
    int Remove(const T* AItem) {
        const int Index = IndexOf(AItem);
        if (Index >= 0)
            Delete(Index);
        return Index;
    }
    // Takes the object out without ending it; null when it is not there.
    T* Extract(const T* AItem) {
        const int Index = IndexOf(AItem);
        return Index < 0 ? nullptr : ExtractAt(Index);
    }
    T* ExtractAt(int AIndex) {
        T* Result = FItems.ExtractAt(AIndex);
        Notify(Result, cnExtracted);
        return Result;
    }
    // From the last to the first.
    void Clear() {
        while (!FItems.IsEmpty())
            Delete(Count() - 1);
        FItems.Clear();
    }
    void SetCapacity(int ACapacity) { FItems.SetCapacity(ACapacity); }
    void Exchange(int AIndex1, int AIndex2) { FItems.Exchange(AIndex1, AIndex2); }
    void Move(int ACurIndex, int ANewIndex) { FItems.Move(ACurIndex, ANewIndex); }
    void Reverse() noexcept { FItems.Reverse(); }
    template <class TLess> void Sort(TLess ALess) { FItems.Sort(ALess); }

protected:
    // An item was added (cnAdded), removed (cnRemoved) or extracted (cnExtracted). This one frees an owned
    // object that was removed.
    virtual void Notify(T* AItem, TCollectionNotification AAction) {
        if (AAction == cnRemoved && FOwnsObjects && AItem != nullptr)
            AItem->Free();
    }

private:
    // Undoes what was done at that place, unless a Notify has put something else there since.
    template <class TUndo> void Undo(int AIndex, const T* AItem, TUndo AUndo) {
        if (AIndex < Count() && FItems[AIndex] == AItem)
            AUndo();
    }

    TList<T*> FItems;
    bool FOwnsObjects = true;
};

} // namespace qz
