// TCollection: items of one class, in an order, that belong to the collection; TCollectionItem, one of them.
//
//     class TColumn : public TCollectionItem {
//         QZ_CLASS(TColumn, TCollectionItem)
//     public:
//         explicit TColumn(TCollection* ACollection) : TCollectionItem(ACollection) {}
//     };
//     const TClassRec TColumn::ClassRec =                       // in the .cpp
//         DescribeClass<TColumn>(u"TColumn", {.Unit = u"Grids", .Makers = CollectionItemMaker<TColumn>()});
//
//     TCollection Columns(ClassOf<TColumn>());
//     auto* Column = static_cast<TColumn*>(Columns.Add());      // freed by the collection
//
// A collection and its items belong to one thread.
#pragma once

#include <vector>

#include <qz/runtime/lists/ListTypes.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Persistent.h>

namespace qz {

class TCollection;

class QZ_API TCollectionItem : public TPersistent {
    QZ_CLASS(TCollectionItem, TPersistent)

public:
    // The way to make an item of a class that is known at run time only; it belongs to the collection.
    using TVirtualCreate = TVirtualConstructor<TCollectionItem, TCollectionItem*(TCollection* ACollection)>;

    // Joins the collection, at its end; null for none. A collection meets the item before it is complete.
    explicit TCollectionItem(TCollection* ACollection);
    TCollectionItem(const TCollectionItem&) = delete;
    TCollectionItem& operator=(const TCollectionItem&) = delete;
    // Leaves the collection.
    ~TCollectionItem() override;

    // Leaves the old collection and joins the other, which then owns it. Raises EInvalidOperation when the
    // class of the item is not that of the collection.
    TCollection* Collection() const noexcept { return FCollection; }
    void SetCollection(TCollection* ACollection);
    // Unique within the collection and never used again in it; -1 outside.
    int ID() const noexcept { return FID; }
    // The place in the collection, -1 outside. Setting it moves the item there, or to the nearer end.
    int Index() const noexcept;
    virtual void SetIndex(int AIndex);
    // The text for a list of the items: the class name unless overridden.
    virtual UnicodeString DisplayName() const { return ClassName(); }
    // The path of the collection with the index in brackets; the class name outside a collection.
    UnicodeString GetNamePath() const override;

protected:
    TPersistent* GetOwner() const override;
    // Notifies the collection that this item has changed, or with AAllItems that all items may have.
    void Changed(bool AAllItems);

private:
    friend class TCollection;
    TCollection* FCollection = nullptr;
    int FID = -1;
};

using TCollectionItemClass = ClassRef<TCollectionItem>;

class QZ_API TCollection : public TPersistent {
    QZ_CLASS(TCollection, TPersistent)

public:
    // Raises EInvalidOperation for null or a class that does not descend from TCollectionItem.
    explicit TCollection(TClass AItemClass);
    TCollection(const TCollection&) = delete;
    TCollection& operator=(const TCollection&) = delete;
    // Frees the items without calling Update or Notify, and drops their exceptions.
    ~TCollection() override;

    TCollectionItemClass ItemClass() const noexcept { return FItemClass; }
    TPersistent* Owner() const { return GetOwner(); }
    int Count() const noexcept { return static_cast<int>(FItems.size()); }
    // An index out of range raises EListError, "List index out of bounds (%d)".
    TCollectionItem* Items(int AIndex) const;
    TCollectionItem* operator[](int AIndex) const { return Items(AIndex); }
    // Null when no item has the ID.
    TCollectionItem* FindItemID(int AID) const noexcept;
    auto begin() const noexcept { return FItems.begin(); }
    auto end() const noexcept { return FItems.end(); }

    // A new item of the item class. Raises EInvalidOperation when that lists no maker.
    TCollectionItem* Add();
    TCollectionItem* Insert(int AIndex);
    // Assigns AItem to the item at that place.
    void SetItem(int AIndex, TCollectionItem* AItem);
    // Frees the item; if Free raises, it lives on outside the collection. Clear goes from the last to the
    // first.
    void Delete(int AIndex);
    void Clear();
    // From another collection: frees the items and assigns each source item to a new one. The source must not
    // belong to one of those items, since it would be freed with it.
    void Assign(TPersistent* ASource) override;
    // Update is called once for all changes between the two. Calls nest.
    virtual void BeginUpdate() { ++FUpdateCount; }
    virtual void EndUpdate();

protected:
    // An item has changed; null when several may have.
    virtual void Update(TCollectionItem*) {}
    // An item was added (cnAdded), will be freed (cnDeleting) or leaves otherwise (cnExtracting).
    virtual void Notify(TCollectionItem*, TCollectionNotification) {}
    // Calls Update for the whole collection, or at the end of the changes.
    void Changed();
    int UpdateCount() const noexcept { return FUpdateCount; }

private:
    friend class TCollectionItem;
    void Join(TCollectionItem* AItem);
    void Leave(TCollectionItem* AItem) noexcept;
    int IndexOf(const TCollectionItem* AItem) const noexcept;

    TCollectionItemClass FItemClass;
    std::vector<TCollectionItem*> FItems;
    int FUpdateCount = 0;
    int FNextID = 0;
};

// A collection that belongs to an object.
class QZ_API TOwnedCollection : public TCollection {
    QZ_CLASS(TOwnedCollection, TCollection)

public:
    TOwnedCollection(TPersistent* AOwner, TClass AItemClass) : TCollection(AItemClass), FOwner(AOwner) {}

protected:
    TPersistent* GetOwner() const override { return FOwner; }

private:
    TPersistent* FOwner;
};

namespace detail {

template <class T> TCollectionItem* MakeCollectionItem(TCollection* ACollection) {
    return T::Create(ACollection).release();
}
template <class T>
inline constexpr TMakerEntry cCollectionItemMaker[] = {
    Maker<TCollectionItem::TVirtualCreate, &MakeCollectionItem<T>>()};

} // namespace detail

// The makers of an item class, for its description.
template <std::derived_from<TCollectionItem> T>
constexpr std::span<const TMakerEntry> CollectionItemMaker() noexcept {
    return detail::cCollectionItemMaker<T>;
}

} // namespace qz
