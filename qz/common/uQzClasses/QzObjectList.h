// TQzObjectList: a list of objects that holds a reference to each that counts its references.
//
//     TQzObjectList List;
//     TJob* Job = List.Add(TJob::Create());       // TJob derives from TInterfacedObject
//     Ref<IJob> Kept(Job);
//     List.Clear();                               // Kept keeps the job alive
//
// A TInterfacedObject, and a TQzObject that its last reference destroys, are held by a reference, whether the
// list owns its objects or not; the reference is dropped when the object leaves the list, be it by Extract,
// whose result may then be gone. Any other object is treated as in TObjectList. A list belongs to one thread
// at a time.
#pragma once

#include <unordered_map>

#include <qz/runtime/lists/ObjectList.h>
#include <qz/runtime/objects/Interface.h>

namespace qz {

class QZ_API TQzObjectList : public TObjectList<TObject> {
public:
    using TObjectList::TObjectList;
    ~TQzObjectList() override;

    // The item itself.
    TObject* Add(TObject* AItem) {
        TObjectList::Add(AItem);
        return AItem;
    }
    template <std::derived_from<TObject> T> T* Add(T* AItem) {
        TObjectList::Add(static_cast<TObject*>(AItem));
        return AItem;
    }
    // Hands an object over, as TObjectList does.
    template <std::derived_from<TObject> T> T* Add(TOwned<T> AItem) {
        T* Result = AItem.get();
        TObjectList::Add(TOwned<TObject>(std::move(AItem)));
        return Result;
    }

protected:
    void Notify(TObject* AItem, TCollectionNotification AAction) override;

private:
    // The references that the list holds to one object. An object may change its policy, or an uncounted one
    // may be gone, while it is in the list: what was taken is what is dropped.
    struct THeld {
        IInterface* Reference = nullptr;
        int Count = 0;
    };
    bool Release(TObject* AItem);

    std::unordered_map<const TObject*, THeld> FHeld;
};

} // namespace qz
