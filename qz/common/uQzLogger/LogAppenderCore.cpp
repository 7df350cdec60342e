#include <qz/common/uQzLogger/LogAppenderCore.h>

#include <algorithm>
#include <iterator>

#include <qz/common/uQzLogger/LogBase.h>
#include <qz/common/uQzLogger/LogDispatch.h>
#include <qz/common/uQzLogger/LogDrops.h>
#include <qz/common/uQzLogger/QzLogger.h>

namespace qz::detail {

namespace {

// One that is not made of this library's classes has another number in each list.
std::uint64_t SerialOf(IQzLogAppender& AAppender) {
    const auto* Base = dynamic_cast<const TQzLogBase*>(AAppender.Component());
    return Base != nullptr ? Base->Serial() : TQzLogBase::NextSerial();
}

} // namespace

// The gate for the length of a change, where the thread may wait for it or gets it at once. Else whoever holds it lets go
// of what is removed.
class TLogAppenderCore::TChange {
public:
    explicit TChange(TLogAppenderCore& ACore) : FCore(ACore) {
        if (MayAwaitGate()) {
            FCore.EnterGate();
            FHasGate = true;
        }
    }
    ~TChange() {
        if (FHasGate || FCore.TryEnterGate(0))
            FCore.LeaveGate();
    }
    TChange(const TChange&) = delete;
    TChange& operator=(const TChange&) = delete;

private:
    TLogAppenderCore& FCore;
    bool FHasGate = false;
};

bool TAppenderSnapshot::Holds(const IQzLogAppender* AAppender) const noexcept {
    return std::any_of(Items.begin(), Items.end(),
                       [AAppender](const TAppenderEntry& AEntry) { return AEntry.Appender == AAppender; });
}

void TLogAppenderCore::EnterGate() noexcept {
    LetForkPass();
    FGate.Enter();
    ++ThisLogThread().Gates;
}

// By what the lock itself knows: the number of a thread is another one behind a fork.
bool TLogAppenderCore::HoldsGate() noexcept {
    if (!FGate.TryEnter(0))
        return false;
    const bool Result = FGate.GetLockCount() > 1;
    FGate.Leave();
    return Result;
}

bool TLogAppenderCore::TryEnterGate(std::uint32_t ATimeOut) noexcept {
    const bool Result = FGate.TryEnter(ATimeOut);
    ThisLogThread().Gates += Result ? 1 : 0;
    return Result;
}

// What is removed while somebody leaves is met by the second look: it was noted before the gate was tried in vain.
void TLogAppenderCore::LeaveGate() noexcept {
    TLogThread& Thread = ThisLogThread();
    std::vector<Ref<IQzLogAppender>> Removed;
    TLogAppenderCorePtr Self; // an appender that ends may end the logger
    for (;;) {
        const bool IsLast = FGate.GetLockCount() == 1;
        if (IsLast && FHasRemoved) {
            Self = weak_from_this().lock();
            TakeRemoved(Removed);
        }
        FGate.Leave();
        --Thread.Gates;
        if (!IsLast || !FHasRemoved || !TryEnterGate(0))
            break;
    }
    if (!Removed.empty() && (MayAwaitGate() || !LetGoLater(*this, Removed)))
        LetGo(Removed);
    if (Thread.Gates == 0 && Thread.Waiting != nullptr)
        SendWaiting();
}

// One by one, for there may be many.
void TLogAppenderCore::DropOlder() noexcept {
    for (std::unique_ptr<TAppenderSnapshot> Next = std::move(FLatest->Older); Next != nullptr;)
        Next = std::move(Next->Older);
}

// The caller holds the gate.
void TLogAppenderCore::TakeRemoved(std::vector<Ref<IQzLogAppender>>& ATarget) noexcept {
    const std::lock_guard Hold(FLock);
    FHasRemoved = false;
    DropOlder();
    if (FRemoved.empty())
        return;
    if (ATarget.empty()) {
        ++FLettingGo;
        ATarget.swap(FRemoved);
    } else {
        try {
            ATarget.insert(ATarget.end(), FRemoved.begin(), FRemoved.end());
            FRemoved.clear(); // none of these is the last reference
        } catch (const std::bad_alloc&) {
            FHasRemoved = true; // for whoever comes next
        }
    }
}

// Appenders may end here.
void TLogAppenderCore::LetGo(std::vector<Ref<IQzLogAppender>>& ARemoved) noexcept {
    TLogThread& Thread = ThisLogThread();
    const bool WasLettingGo = std::exchange(Thread.IsLettingGo, true);
    for (Ref<IQzLogAppender>& Appender : ARemoved) {
        try {
            Appender.Clear();
        } catch (...) {
            ReportDrop({}, 0, {});
        }
    }
    ARemoved.clear();
    Thread.IsLettingGo = WasLettingGo;
    if (--FLettingGo == 0)
        FLettingGo.notify_all();
}

void TLogAppenderCore::AwaitLetGo() noexcept {
    if (!MayAwaitGate() || ThisLogThread().IsLettingGo)
        return;
    for (int Busy = FLettingGo; Busy != 0; Busy = FLettingGo)
        FLettingGo.wait(Busy);
}

bool TLogAppenderCore::Holds(const IQzLogAppender* AAppender) const {
    const std::lock_guard Hold(FLock);
    return FLatest->Holds(AAppender);
}

Ref<IQzLogAppender> TLogAppenderCore::Item(int AIndex) const {
    const std::lock_guard Hold(FLock);
    const auto Index = static_cast<std::size_t>(AIndex);
    return AIndex >= 0 && Index < FItems.size() ? FItems[Index] : Ref<IQzLogAppender>();
}

// The caller holds the inner lock and has made all that may fail.
void TLogAppenderCore::Publish(std::unique_ptr<TAppenderSnapshot> ASnapshot) noexcept {
    FCount.store(static_cast<int>(ASnapshot->Items.size()), std::memory_order_relaxed);
    ASnapshot->Older = std::move(FLatest);
    FLatest = std::move(ASnapshot);
    FSnapshot.store(FLatest.get(), std::memory_order_release);
    FHasRemoved = true;
    FVersion.fetch_add(1, std::memory_order_release);
}

bool TLogAppenderCore::Insert(IQzLogAppender* AAppender) {
    const TChange Change(*this);
    const std::lock_guard Hold(FLock);
    if (FLatest->Holds(AAppender))
        return false;
    auto Fresh = std::make_unique<TAppenderSnapshot>();
    Fresh->Items.reserve(FLatest->Items.size() + 1);
    Fresh->Items = FLatest->Items;
    Fresh->Items.push_back({AAppender, SerialOf(*AAppender)});
    FItems.emplace_back(AAppender);
    Publish(std::move(Fresh));
    return true;
}

bool TLogAppenderCore::Extract(const TComponent* AComponent) {
    const auto IsMeant = [AComponent](IQzLogAppender* AItem) {
        return AComponent == nullptr || AItem->Component() == AComponent;
    };
    const TChange Change(*this);
    const std::lock_guard Hold(FLock);
    auto Fresh = std::make_unique<TAppenderSnapshot>();
    std::remove_copy_if(FLatest->Items.begin(), FLatest->Items.end(), std::back_inserter(Fresh->Items),
                        [&IsMeant](const TAppenderEntry& AEntry) { return IsMeant(AEntry.Appender); });
    if (Fresh->Items.size() == FLatest->Items.size())
        return false;
    if (FRemoved.capacity() < FRemoved.size() + FItems.size())
        FRemoved.reserve(2 * FRemoved.size() + FItems.size());
    const auto First =
        std::stable_partition(FItems.begin(), FItems.end(),
                              [&](const Ref<IQzLogAppender>& AItem) { return !IsMeant(AItem.Get()); });
    std::move(First, FItems.end(), std::back_inserter(FRemoved));
    FItems.erase(First, FItems.end());
    Publish(std::move(Fresh));
    return true;
}

// The word of a change goes out behind the gate, which no holder of the tree may be kept from.
void TLogAppenderCore::Add(IQzLogAppender* AAppender) {
    if (Insert(AAppender))
        Changed();
}

void TLogAppenderCore::Remove(const TComponent* AComponent) {
    const auto Self = shared_from_this(); // an appender that ends may end the logger
    if (Extract(AComponent))
        Changed();
}

void TLogAppenderCore::Changed() {
    const TLogTreeLock Hold;
    if (FLogger != nullptr)
        FLogger->AppendersChanged();
}

void TLogAppenderCore::LoseLogger() {
    const TLogTreeLock Hold;
    FLogger = nullptr;
}

} // namespace qz::detail
