#include <qz/runtime/components/Collection.h>

#include <algorithm>

#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/text/NumberText.h>

namespace qz {

QZ_REGISTER_TYPES(TCollectionItem, TCollection, TOwnedCollection);

constinit const TClassRec TCollectionItem::ClassRec = DescribeClass<TCollectionItem>(
    u"TCollectionItem", {.Unit = u"System", .Makers = CollectionItemMaker<TCollectionItem>()});
constinit const TClassRec TCollection::ClassRec =
    DescribeClass<TCollection>(u"TCollection", {.Unit = u"System"});
constinit const TClassRec TOwnedCollection::ClassRec =
    DescribeClass<TOwnedCollection>(u"TOwnedCollection", {.Unit = u"System"});

// While an item is built its class is not yet the one that it will have, so the class is not looked at.
TCollectionItem::TCollectionItem(TCollection* ACollection) {
    if (ACollection != nullptr)
        ACollection->Join(this);
}

TCollectionItem::~TCollectionItem() {
    if (FCollection == nullptr)
        return;
    try {
        SetCollection(nullptr);
    } catch (...) { // NOLINT(bugprone-empty-catch): a destructor must not raise
    }
}

void TCollectionItem::SetCollection(TCollection* ACollection) {
    if (ACollection == FCollection)
        return;
    if (ACollection != nullptr && !InheritsFrom(ACollection->ItemClass()))
        throw EInvalidOperation(u"An item of class %s cannot join a collection of %s",
                                {ClassName(), ACollection->ItemClass()->Name()});
    if (TCollection* Old = FCollection) {
        struct TLeave {
            TCollection* Collection;
            TCollectionItem* Item;
            ~TLeave() { Collection->Leave(Item); }
        };
        {
            const TLeave Leave{Old, this};
            Old->Notify(this, cnExtracting);
        }
        Old->Changed();
    }
    if (ACollection != nullptr)
        ACollection->Join(this);
}

int TCollectionItem::Index() const noexcept {
    return FCollection == nullptr ? -1 : FCollection->IndexOf(this);
}

void TCollectionItem::SetIndex(int AIndex) {
    if (FCollection == nullptr)
        return;
    const int Old = Index();
    const int New = std::clamp(AIndex, 0, FCollection->Count() - 1);
    if (New == Old)
        return;
    detail::MoveItem(FCollection->FItems, Old, New);
    Changed(true);
}

UnicodeString TCollectionItem::GetNamePath() const {
    if (FCollection == nullptr)
        return ClassName();
    return FCollection->GetNamePath() + u'[' + IntToStr(Index()) + u']';
}

TPersistent* TCollectionItem::GetOwner() const {
    return FCollection;
}

void TCollectionItem::Changed(bool AAllItems) {
    if (FCollection != nullptr && FCollection->FUpdateCount == 0)
        FCollection->Update(AAllItems ? nullptr : this);
}

TCollection::TCollection(TClass AItemClass) : FItemClass(AItemClass) {
    if (!FItemClass)
        throw EInvalidOperation(u"The items of a collection need a class that descends from TCollectionItem");
}

TCollection::~TCollection() {
    while (!FItems.empty()) {
        TCollectionItem* Last = FItems.back();
        Leave(Last);
        try {
            Last->Free();
        } catch (...) { // NOLINT(bugprone-empty-catch): a destructor must not raise
        }
    }
}

TCollectionItem* TCollection::Items(int AIndex) const {
    if (AIndex < 0 || AIndex >= Count())
        detail::RaiseListIndex(AIndex);
    return FItems[static_cast<std::size_t>(AIndex)];
}

TCollectionItem* TCollection::FindItemID(int AID) const noexcept {
    const auto Found = std::find_if(FItems.begin(), FItems.end(),
                                    [AID](const TCollectionItem* AEach) { return AEach->FID == AID; });
    return Found == FItems.end() ? nullptr : *Found;
}

int TCollection::IndexOf(const TCollectionItem* AItem) const noexcept {
    const auto Found = std::find(FItems.begin(), FItems.end(), AItem);
    return Found == FItems.end() ? -1 : static_cast<int>(Found - FItems.begin());
}

void TCollection::Join(TCollectionItem* AItem) {
    FItems.push_back(AItem);
    AItem->FCollection = this;
    AItem->FID = FNextID++;
    try {
        Notify(AItem, cnAdded);
        Changed();
    } catch (...) {
        Leave(AItem);
        throw;
    }
}

void TCollection::Leave(TCollectionItem* AItem) noexcept {
    // From the back, where Clear and the destructor take them.
    const auto Found = std::find(FItems.rbegin(), FItems.rend(), AItem);
    if (Found != FItems.rend())
        FItems.erase(std::next(Found).base());
    AItem->FCollection = nullptr;
    AItem->FID = -1;
}

TCollectionItem* TCollection::Add() {
    const auto Make = TCollectionItem::TVirtualCreate::Find(FItemClass);
    if (Make == nullptr)
        throw EInvalidOperation(u"The items of this collection cannot be made by it");
    return Make(this);
}

TCollectionItem* TCollection::Insert(int AIndex) {
    if (AIndex < 0 || AIndex > Count())
        detail::RaiseListIndex(AIndex);
    TCollectionItem* Result = Add();
    Result->SetIndex(AIndex);
    return Result;
}

// NOLINTNEXTLINE(readability-make-member-function-const): the items are part of the collection
void TCollection::SetItem(int AIndex, TCollectionItem* AItem) {
    Items(AIndex)->Assign(AItem);
}

void TCollection::Delete(int AIndex) {
    TCollectionItem* Item = Items(AIndex);
    Notify(Item, cnDeleting);
    Leave(Item);
    Item->Free();
    Changed();
}

void TCollection::Clear() {
    if (FItems.empty())
        return;
    BeginUpdate();
    try {
        while (!FItems.empty())
            Delete(Count() - 1);
    } catch (...) {
        EndUpdate();
        throw;
    }
    EndUpdate();
}

void TCollection::Assign(TPersistent* ASource) {
    const auto* Source = dynamic_cast<const TCollection*>(ASource);
    if (Source == nullptr)
        return Inherited::Assign(ASource);
    if (Source == this)
        return;
    BeginUpdate();
    try {
        Clear();
        for (TCollectionItem* Each : *Source)
            Add()->Assign(Each);
    } catch (...) {
        EndUpdate();
        throw;
    }
    EndUpdate();
}

void TCollection::EndUpdate() {
    --FUpdateCount;
    Changed();
}

void TCollection::Changed() {
    if (FUpdateCount == 0)
        Update(nullptr);
}

} // namespace qz
