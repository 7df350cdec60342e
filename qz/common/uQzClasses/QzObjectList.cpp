#include <qz/common/uQzClasses/QzObjectList.h>

#include <qz/common/uQzClasses/QzObject.h>

namespace qz {
namespace {

// The interface to count by; null for an object that does not live by its references.
IInterface* CountedBy(TObject* AItem) {
    if (auto* Counted = dynamic_cast<TInterfacedObject*>(AItem))
        return Counted;
    auto* Object = dynamic_cast<TQzObject*>(AItem);
    return Object != nullptr && Object->GetAutoDestroy() ? Object : nullptr;
}

} // namespace

// The list of the base would no longer know how to drop the references.
TQzObjectList::~TQzObjectList() {
    while (!IsEmpty()) {
        try {
            Clear();
        } catch (...) { // NOLINT(bugprone-empty-catch): a destructor must not raise
        }
    }
}

void TQzObjectList::Notify(TObject* AItem, TCollectionNotification AAction) {
    if (AAction == cnAdded) {
        if (IInterface* Reference = CountedBy(AItem)) {
            THeld& Held = FHeld[AItem];
            Held.Reference = Reference;
            ++Held.Count;
            Reference->_AddRef();
        }
    } else if ((AAction == cnExtracted || AAction == cnRemoved) && Release(AItem)) {
        return;
    }
    TObjectList::Notify(AItem, AAction);
}

// True when the reference was all that there was to end. An object that has since been given to its owner is
// freed by the list, if that is the owner.
bool TQzObjectList::Release(TObject* AItem) {
    const auto Found = FHeld.find(AItem);
    if (Found == FHeld.end())
        return false;
    IInterface* Reference = Found->second.Reference;
    if (--Found->second.Count == 0)
        FHeld.erase(Found);
    const bool EndsByCount = CountedBy(AItem) != nullptr;
    Reference->_Release();
    return EndsByCount;
}

} // namespace qz
