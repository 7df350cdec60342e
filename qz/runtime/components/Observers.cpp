#include <qz/runtime/components/Observers.h>

#include <algorithm>

#include <qz/runtime/components/Component.h>
#include <qz/runtime/objects/Exceptions.h>

namespace qz {

TObservers::~TObservers() {
    while (!FEntries->empty()) {
        IObserver* Observer = FEntries->back().Observer;
        FEntries->pop_back();
        try {
            Observer->Removed();
        } catch (...) { // NOLINT(bugprone-empty-catch): a destructor must not raise
        }
    }
}

bool TObservers::CanObserve(int AId) const {
    return FOwner.CanObserve(AId);
}

bool TObservers::IsObserving(int AId) const noexcept {
    return std::any_of(FEntries->begin(), FEntries->end(),
                       [AId](const TEntry& AEntry) { return AEntry.Id == AId; });
}

void TObservers::AddObserver(int AId, IObserver* AObserver) {
    if (!CanObserve(AId))
        throw EInvalidOperation(u"An object of class %s cannot be observed for %d",
                                {FOwner.ClassName(), AId});
    const TEntry Entry{AId, AObserver};
    if (std::find(FEntries->begin(), FEntries->end(), Entry) == FEntries->end())
        FEntries->push_back(Entry);
}

void TObservers::RemoveObserver(int AId, IObserver* AObserver) noexcept {
    std::erase(*FEntries, TEntry{AId, AObserver});
}

void TObservers::Tell(void (IControlValueObserver::*AOperation)()) {
    const auto Present = FEntries;
    const std::vector<TEntry> Entries = *Present;
    for (const TEntry& Entry : Entries)
        if (Entry.Id == cControlValueId &&
            std::find(Present->begin(), Present->end(), Entry) != Present->end())
            (static_cast<IControlValueObserver*>(Entry.Observer)->*AOperation)();
}

} // namespace qz
