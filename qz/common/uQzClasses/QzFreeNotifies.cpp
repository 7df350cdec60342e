#include <qz/common/uQzClasses/QzFreeNotifies.h>

#include <algorithm>

#include <qz/platform/Fork.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/threads/CriticalSection.h>

namespace qz {

QZ_REGISTER_TYPES(TQzFreeNotifies);

constinit const TClassRec TQzFreeNotifies::ClassRec =
    DescribeClass<TQzFreeNotifies>(u"TQzFreeNotifies", {.Unit = u"uQzClasses"});

namespace {

// One lock for the lists of all nodes: two partners that end at the same moment on two threads would
// otherwise each hold their own list and wait for the other's. Never destroyed, as nodes may be destroyed
// with the program.
TCriticalSection& Links() {
    static auto* const Lock = new TCriticalSection;
    return *Lock;
}

[[maybe_unused]] const bool GIsWatched =
    platform::HoldAroundFork(platform::TForkRank::FreeNotifies, [] { return &Links(); });

} // namespace

TQzFreeNotifies::TQzFreeNotifies(TObject* AOwner, TQzFreeNotifiesOnNotify AOnObjectDestroyedProc)
    : FOnObjectDestroyedProc(std::move(AOnObjectDestroyedProc)),
      FOwner(AOwner) {}

TQzFreeNotifies::~TQzFreeNotifies() {
    const TScopedLock Hold(Links());
    FEnding = true;
    while (!FList.empty()) {
        try {
            BeforeDestruction();
        } catch (...) { // NOLINT(bugprone-empty-catch): a destructor must not raise
        }
    }
}

void TQzFreeNotifies::Add(TQzFreeNotifies* AOther) {
    Assert(AOther != nullptr);
    const TScopedLock Hold(Links());
    if (FEnding || AOther->FEnding || std::find(FList.rbegin(), FList.rend(), AOther) != FList.rend())
        return;
    FList.push_back(AOther);
    try {
        AOther->Add(this);
    } catch (...) {
        FList.pop_back();
        throw;
    }
}

void TQzFreeNotifies::Remove(TQzFreeNotifies* AOther) {
    const TScopedLock Hold(Links());
    std::erase(FList, AOther);
}

// The procedure may end its own node, so it is copied and the partner not touched after it.
void TQzFreeNotifies::BeforeDestruction() {
    const TScopedLock Hold(Links());
    while (!FList.empty()) {
        TQzFreeNotifies* Partner = FList.back();
        FList.pop_back();
        Partner->Remove(this);
        const TQzFreeNotifiesOnNotify OnDestroyed = Partner->FOnObjectDestroyedProc;
        if (OnDestroyed)
            OnDestroyed(FOwner);
    }
    TObject::BeforeDestruction();
}

} // namespace qz
