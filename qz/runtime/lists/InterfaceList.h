// TInterfaceList: a list of counted references to interfaces of any kind, which threads may share.
//
//     TInterfaceList Sinks;
//     Sinks.Add(Sink);
//     Ref<ISink> First = As<ISink>(Sinks.First());
//
// Two items are the same when the same object implements them, whatever interface of it they are. An index
// out of range raises EListError. All operations may be called from any thread; a reference is dropped
// outside the lock.
#pragma once

#include <vector>

#include <qz/runtime/objects/Interface.h>
#include <qz/runtime/threads/CriticalSection.h>

namespace qz {

class QZ_API TInterfaceList {
public:
    TInterfaceList() = default;
    TInterfaceList(const TInterfaceList&) = delete;
    TInterfaceList& operator=(const TInterfaceList&) = delete;
    ~TInterfaceList() { Clear(); }

    int Count() const;
    Ref<IInterface> Items(int AIndex) const;
    Ref<IInterface> operator[](int AIndex) const { return Items(AIndex); }
    Ref<IInterface> First() const { return Items(0); }
    Ref<IInterface> Last() const;
    // -1 when it is not there.
    int IndexOf(IInterface* AItem) const;

    // The index of the new item, which may be null.
    int Add(IInterface* AItem);
    void Insert(int AIndex, IInterface* AItem);
    void SetItem(int AIndex, IInterface* AItem);
    void Delete(int AIndex);
    // Deletes the first that is the same and gives its place; -1 when there is none.
    int Remove(IInterface* AItem);
    void Exchange(int AIndex1, int AIndex2);
    void Clear();

    // Locks the list for this thread until the matching Unlock. Recursive.
    void Lock() const { FLock.Enter(); }
    void Unlock() const { FLock.Leave(); }

private:
    std::size_t Checked(int AIndex, std::size_t ALimit) const;
    int Find(const IInterface* AIdentity) const;

    mutable TCriticalSection FLock;
    std::vector<Ref<IInterface>> FItems; // each in the form that stands for its object
};

} // namespace qz
