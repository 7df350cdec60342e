#include <qz/common/uQzLogger/detail/AppenderSet.h>

#include <algorithm>

#include <qz/common/uQzLogger/LogBase.h>
#include <qz/common/uQzLogger/LogDrops.h>
#include <qz/common/uQzLogger/LoggerClass.h>
#include <qz/common/uQzLogger/detail/LogDispatch.h>

namespace qz::detail {
namespace {

bool Contains(const TAppenderEntries* AEntries, const IQzLogAppender* AAppender) noexcept {
    return AEntries != nullptr &&
        std::ranges::find(*AEntries, AAppender, &TAppenderEntry::Appender) != AEntries->end();
}

// The count of the list is that of the base only if the appender is an interface of the base itself. Other
// appenders are distinguished by their addresses, in a separate range.
TAppenderEntry EntryOf(IQzLogAppender* AAppender) {
    constexpr std::uint64_t cForeign = std::uint64_t{1} << 62;
    TComponent* const Component = AAppender->Component();
    auto* const Base = dynamic_cast<TQzLogBase*>(Component);
    if (Base != nullptr && Base->FindInterface(IQzLogAppender::IID) == AAppender)
        return {AAppender, Component, Base, Base->Serial()};
    return {AAppender, Component, nullptr, cForeign | reinterpret_cast<std::uintptr_t>(AAppender)};
}

void EndQuietly(TQzLogBase* ABase) noexcept {
    try {
        ABase->Free();
    } catch (...) {
        ReportDrop({}, 0, {});
    }
}

} // namespace

// A change of the list. Holds the gate if the thread may wait for it; otherwise it leaves the old entries and
// the removed appenders to the queue of the thread. Outlives the state lock, since appenders end in its
// destructor.
class TAppenderSet::TChange {
public:
    explicit TChange(TAppenderSet& ASet)
        : FThread(ThisLogThread()),
          FHasGate(FThread.MayWait()),
          FEnding{ASet.shared_from_this(), {}, {}} {
        if (FHasGate)
            ASet.Enter(FThread);
        else
            QueueOf(FThread).ReserveEnding();
    }
    TChange(const TChange&) = delete;
    TChange& operator=(const TChange&) = delete;
    ~TChange() {
        if (!FHasGate) {
            if (FEnding.Entries != nullptr)
                FThread.Queue->Endings.push_back(std::move(FEnding));
            return;
        }
        FEnding.Entries.reset();
        FEnding.Set->Leave(FThread);
        for (TQzLogBase* Base : FEnded)
            EndQuietly(Base);
        FEnding.Release();
    }

    void Replace(std::unique_ptr<const TAppenderEntries> AEntries) noexcept {
        FEnding.Entries = std::move(FEnding.Set->FLatest);
        FEnding.Set->Publish(std::move(AEntries));
    }
    void ReserveRemoved(std::size_t ACount) {
        FEnding.Removed.reserve(ACount);
        FEnded.reserve(ACount);
    }
    // Under the gate nothing is being written to the appender, so that the reference of the list ends at
    // once. Then Free on another thread finds no reference of a list that has let the appender go.
    void Remove(const TAppenderEntry& AEntry, Ref<IQzLogAppender>& AOwned) {
        if (AEntry.Base != nullptr)
            AEntry.Base->LeftSet(*FEnding.Set, {});
        else if (AEntry.Component != nullptr)
            AEntry.Component->RemoveFreeNotification(&FEnding.Set->FList);
        if (!FHasGate || AEntry.Base == nullptr)
            FEnding.Removed.push_back(std::move(AOwned));
        else if (static_cast<void>(AOwned.Detach()), AEntry.Base->ReleaseFromSet({}))
            FEnded.push_back(AEntry.Base);
    }

private:
    TLogThread& FThread;
    bool FHasGate;
    std::vector<TQzLogBase*> FEnded; // whose last reference was that of the list
    TAppenderEnding FEnding;
};

TAppenderSet::TAppenderSet(TQzLogger* ALogger, TComponent& AList) noexcept
    : FList(AList),
      FGate(std::make_unique<TQzCriticalSection>()),
      FLogger(ALogger) {}

TAppenderSet::~TAppenderSet() = default;

bool TAppenderSet::IsHeldByCaller() noexcept {
    if (!FGate->TryEnter(0))
        return false;
    const bool Result = FGate->GetLockCount() > 1;
    FGate->Leave();
    return Result;
}

bool TAppenderSet::Holds(const IQzLogAppender* AAppender) const noexcept {
    const TStateHold Hold;
    return Contains(FLatest.get(), AAppender);
}

int TAppenderSet::Count() const noexcept {
    const TStateHold Hold;
    return static_cast<int>(FOwned.size());
}

Ref<IQzLogAppender> TAppenderSet::Item(int AIndex) const {
    const TStateHold Hold;
    const auto Index = static_cast<std::size_t>(AIndex);
    return AIndex >= 0 && Index < FOwned.size() ? FOwned[Index] : Ref<IQzLogAppender>();
}

// The caller holds the state lock.
void TAppenderSet::Publish(std::unique_ptr<const TAppenderEntries> AEntries) noexcept {
    FEntries.store(AEntries.get(), std::memory_order_release);
    FLatest = std::move(AEntries);
}

void TAppenderSet::Add(IQzLogAppender* AAppender) {
    Ref<IQzLogAppender> Owned(AAppender);
    const TAppenderEntry Entry = EntryOf(AAppender);
    TChange Change(*this);
    const TStateHold Hold;
    if (Contains(FLatest.get(), AAppender))
        return;
    auto Fresh = FLatest != nullptr ? std::make_unique<TAppenderEntries>(*FLatest)
                                    : std::make_unique<TAppenderEntries>();
    Fresh->push_back(Entry);
    FOwned.reserve(FOwned.size() + 1);
    if (Entry.Base != nullptr)
        Entry.Base->JoinedSet(*this, {});
    else if (Entry.Component != nullptr)
        Entry.Component->FreeNotification(&FList);
    FOwned.push_back(std::move(Owned));
    Change.Replace(std::move(Fresh));
    if (FLogger != nullptr)
        FLogger->AppendersChanged({});
}

template <class TIsMeant> void TAppenderSet::RemoveIf(TIsMeant AIsMeant, bool AReleases) {
    TChange Change(*this);
    const TStateHold Hold;
    if (FLatest == nullptr || std::ranges::none_of(*FLatest, AIsMeant))
        return;
    auto Fresh = std::make_unique<TAppenderEntries>();
    std::ranges::remove_copy_if(*FLatest, std::back_inserter(*Fresh), AIsMeant);
    Change.ReserveRemoved(FOwned.size());
    for (std::size_t I = 0; I < FOwned.size(); ++I) {
        if (!AIsMeant((*FLatest)[I]))
            continue;
        if (AReleases)
            Change.Remove((*FLatest)[I], FOwned[I]);
        else
            static_cast<void>(FOwned[I].Detach());
    }
    std::erase(FOwned, nullptr);
    Change.Replace(Fresh->empty() ? nullptr : std::move(Fresh));
    if (FLogger != nullptr)
        FLogger->AppendersChanged({});
}

void TAppenderSet::Remove(const IQzLogAppender* AAppender) {
    RemoveIf([AAppender](const TAppenderEntry& AEntry) { return AEntry.Appender == AAppender; }, true);
}

void TAppenderSet::Remove(const TComponent* AComponent) {
    RemoveIf([AComponent](const TAppenderEntry& AEntry) { return AEntry.Component == AComponent; }, true);
}

void TAppenderSet::Clear() {
    RemoveIf([](const TAppenderEntry&) { return true; }, true);
}

void TAppenderSet::Forget(const TComponent* AComponent) {
    RemoveIf([AComponent](const TAppenderEntry& AEntry) { return AEntry.Component == AComponent; }, false);
}

void TAppenderSet::LoseLogger() noexcept {
    const TStateHold Hold;
    FLogger = nullptr;
}

void TAppenderSet::BeginChild(std::span<TQzLogBase* const> ALost) {
    if (FGate->TryEnter(0)) {
        FGate->Leave();
    } else {
        static_cast<void>(FGate.release());
        FGate = std::make_unique<TQzCriticalSection>();
    }
    if (FLatest == nullptr || ALost.empty())
        return;
    auto Fresh = std::make_unique<TAppenderEntries>();
    for (std::size_t I = 0; I < FOwned.size(); ++I) {
        if (std::ranges::find(ALost, (*FLatest)[I].Base) == ALost.end())
            Fresh->push_back((*FLatest)[I]);
        else
            static_cast<void>(FOwned[I].Detach());
    }
    std::erase(FOwned, nullptr);
    static_cast<void>(FLatest.release()); // the forking thread may be walking it
    Publish(Fresh->empty() ? nullptr : std::move(Fresh));
}

void TAppenderEnding::Finish(TLogThread& AThread) noexcept {
    { const TGateHold Hold(*Set, AThread); }
    Entries.reset();
    Release();
}

void TAppenderEnding::Release() noexcept {
    for (Ref<IQzLogAppender>& Appender : Removed) {
        try {
            Appender.Clear();
        } catch (...) {
            ReportDrop({}, 0, {});
        }
    }
}

} // namespace qz::detail
