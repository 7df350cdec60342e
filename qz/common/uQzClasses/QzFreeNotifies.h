// TQzFreeNotifies: a node beside any object, by which objects on different threads are notified of each
// other's destruction.
//
//     class TView : public TObject {
//     public:
//         TQzFreeNotifies FNotifies{this, [this](TObject* AObject) { Forget(AObject); }};
//         void Forget(TObject* AObject);
//     };
//     TView View;
//     View.FNotifies.Add(&Model.FNotifies);
//
// All operations may be called from any thread. The end of a node runs the procedures of its partners under
// the lock of the nodes, so a procedure must not wait for a thread that uses one.
#pragma once

#include <functional>
#include <vector>

#include <qz/runtime/objects/Object.h>

namespace qz {

// Receives the owner of the partner that is destroyed.
using TQzFreeNotifiesOnNotify = std::function<void(TObject*)>;

class QZ_API TQzFreeNotifies : public TObject {
    QZ_CLASS(TQzFreeNotifies, TObject)

public:
    // AOwner is the object that the procedure belongs to; the partners receive it.
    TQzFreeNotifies(TObject* AOwner, TQzFreeNotifiesOnNotify AOnObjectDestroyedProc);
    TQzFreeNotifies(const TQzFreeNotifies&) = delete;
    TQzFreeNotifies& operator=(const TQzFreeNotifies&) = delete;
    // As BeforeDestruction, except that an exception of a partner's procedure is dropped.
    ~TQzFreeNotifies() override;

    // Links the two nodes, each to the other. Linking twice changes nothing, nor does a link to a node that
    // ends.
    void Add(TQzFreeNotifies* AOther);
    // Forgets AOther on this side.
    void Remove(TQzFreeNotifies* AOther);

    // Unlinks the partners, from the last to the first, and runs the procedure of each. An exception of one
    // goes to the caller; its link is removed by then.
    void BeforeDestruction() override;

private:
    TQzFreeNotifiesOnNotify FOnObjectDestroyedProc;
    std::vector<TQzFreeNotifies*> FList;
    TObject* FOwner;
    bool FEnding = false;
};

} // namespace qz
