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

TAppenderEntry EntryOf(IQzLogAppender* AAppender) {
    TComponent* const Component = AAppender->Component();
    auto* const Base = dynamic_cast<TQzLogBase*>(Component);
    return {AAppender, Component, Base, Base != nullptr ? Base->Serial() : TQzLogBase::NextSerial()};
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

TAppenderSet::TAppenderSet(TQzLogger* ALogger)
    : FGate(std::make_unique<TQzCriticalSection>()),
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
    FOwned.push_back(std::move(Owned));
    Change.Replace(std::move(Fresh));
    if (FLogger != nullptr)
        FLogger->AppendersChanged({});
}

void TAppenderSet::Remove(const TComponent* AComponent) {
    TChange Change(*this);
    const TStateHold Hold;
    const auto IsMeant = [AComponent](const TAppenderEntry& AEntry) {
        return AComponent == nullptr || AEntry.Component == AComponent;
    };
    if (FLatest == nullptr || std::ranges::none_of(*FLatest, IsMeant))
        return;
    auto Fresh = std::make_unique<TAppenderEntries>();
    std::ranges::remove_copy_if(*FLatest, std::back_inserter(*Fresh), IsMeant);
    Change.ReserveRemoved(FOwned.size());
    for (std::size_t I = 0; I < FOwned.size(); ++I) {
        if (IsMeant((*FLatest)[I]))
            Change.Remove((*FLatest)[I], FOwned[I]);
    }
    std::erase(FOwned, nullptr);
    Change.Replace(Fresh->empty() ? nullptr : std::move(Fresh));
    if (FLogger != nullptr)
        FLogger->AppendersChanged({});
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
