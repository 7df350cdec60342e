#include <qz/runtime/lists/InterfaceList.h>

#include <algorithm>

#include <qz/runtime/lists/ListTypes.h>

namespace qz {
namespace {

using THold = TScopedLock<TCriticalSection>;

// The IInterface identity of an object; the interface itself if it does not provide one.
Ref<IInterface> IdentityOf(IInterface* AItem) {
    Ref<IInterface> Result = As<IInterface>(AItem);
    return Result ? Result : Ref<IInterface>(AItem);
}

} // namespace

std::size_t TInterfaceList::Checked(int AIndex, std::size_t ALimit) const {
    if (AIndex < 0 || static_cast<std::size_t>(AIndex) >= ALimit)
        detail::RaiseListIndex(AIndex);
    return static_cast<std::size_t>(AIndex);
}

int TInterfaceList::Find(const IInterface* AIdentity) const {
    const auto Found = std::find_if(FItems.begin(), FItems.end(),
                                    [AIdentity](const auto& AEach) { return AEach.Get() == AIdentity; });
    return Found == FItems.end() ? -1 : static_cast<int>(Found - FItems.begin());
}

int TInterfaceList::Count() const {
    const THold Hold(FLock);
    return static_cast<int>(FItems.size());
}

Ref<IInterface> TInterfaceList::Items(int AIndex) const {
    const THold Hold(FLock);
    return FItems[Checked(AIndex, FItems.size())];
}

Ref<IInterface> TInterfaceList::Last() const {
    const THold Hold(FLock);
    return Items(Count() - 1);
}

int TInterfaceList::IndexOf(IInterface* AItem) const {
    const Ref<IInterface> Identity = IdentityOf(AItem);
    const THold Hold(FLock);
    return Find(Identity.Get());
}

int TInterfaceList::Add(IInterface* AItem) {
    Ref<IInterface> Identity = IdentityOf(AItem);
    const THold Hold(FLock);
    FItems.push_back(std::move(Identity));
    return static_cast<int>(FItems.size()) - 1;
}

void TInterfaceList::Insert(int AIndex, IInterface* AItem) {
    Ref<IInterface> Identity = IdentityOf(AItem);
    const THold Hold(FLock);
    const std::size_t Index = Checked(AIndex, FItems.size() + 1);
    FItems.insert(FItems.begin() + static_cast<std::ptrdiff_t>(Index), std::move(Identity));
}

void TInterfaceList::SetItem(int AIndex, IInterface* AItem) {
    Ref<IInterface> Dropped = IdentityOf(AItem);
    const THold Hold(FLock);
    std::swap(FItems[Checked(AIndex, FItems.size())], Dropped);
}

void TInterfaceList::Delete(int AIndex) {
    Ref<IInterface> Dropped;
    const THold Hold(FLock);
    const std::size_t Index = Checked(AIndex, FItems.size());
    Dropped = std::move(FItems[Index]);
    FItems.erase(FItems.begin() + static_cast<std::ptrdiff_t>(Index));
}

int TInterfaceList::Remove(IInterface* AItem) {
    const Ref<IInterface> Identity = IdentityOf(AItem);
    const THold Hold(FLock);
    const int Result = Find(Identity.Get());
    if (Result >= 0)
        FItems.erase(FItems.begin() + Result); // Identity keeps the object until the lock is left
    return Result;
}

void TInterfaceList::Exchange(int AIndex1, int AIndex2) {
    const THold Hold(FLock);
    std::swap(FItems[Checked(AIndex1, FItems.size())], FItems[Checked(AIndex2, FItems.size())]);
}

void TInterfaceList::Clear() {
    std::vector<Ref<IInterface>> Dropped;
    const THold Hold(FLock);
    Dropped.swap(FItems);
}

} // namespace qz
