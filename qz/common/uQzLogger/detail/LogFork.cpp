#include <qz/common/uQzLogger/detail/LogFork.h>

#include <algorithm>
#include <vector>

#include <qz/common/uQzLogger/LogBase.h>
#include <qz/common/uQzLogger/LogDrops.h>
#include <qz/common/uQzLogger/LoggerClass.h>
#include <qz/common/uQzLogger/detail/AppenderSet.h>
#include <qz/common/uQzLogger/detail/LogDispatch.h>
#include <qz/platform/Fork.h>
#include <qz/platform/Threads.h>

namespace qz::detail {

constinit std::atomic<int> GPendingForks{0};

namespace {

constexpr std::uint32_t cPatience = 1000; // milliseconds

} // namespace

void AwaitFork() noexcept {
    if (ThisLogThread().IsForking)
        return;
    const std::uint32_t Start = platform::TickCount();
    while (GPendingForks != 0 && platform::TickCount() - Start <= cPatience)
        platform::SleepMs(1);
}

class TLogFork {
public:
    static void Prepare();
    static bool Await(std::uint32_t ATimeOut);
    static void InParent() noexcept;
    static void InChild();

private:
    bool TryAppenders();
    void Release() noexcept;
    static TLogFork& Instance();

    // Guarded by the state lock.
    std::vector<TQzLogBase*> FHeld;
    std::vector<TQzLogBase*> FMissed;
};

TLogFork& TLogFork::Instance() {
    static auto* const Result = new TLogFork;
    return *Result;
}

// True if all of them could be locked. A thread that holds one may wait for the state lock, which the caller
// holds.
bool TLogFork::TryAppenders() {
    FMissed.clear();
    for (TQzLogBase* Each : AppenderInstances().All({})) {
        if (TCriticalSection* Lock = Each->LockForFork({}))
            (Lock->TryEnter() ? FHeld : FMissed).push_back(Each);
    }
    return FMissed.empty();
}

void TLogFork::Release() noexcept {
    for (TQzLogBase* Each : FHeld)
        Each->LockForFork({})->Leave();
    FHeld.clear();
}

void TLogFork::Prepare() {
    TLogFork& Fork = Instance();
    ++GPendingForks;
    ThisLogThread().IsForking = true;
    const std::uint32_t Start = platform::TickCount();
    for (;;) {
        TStateHold::Section().Enter();
        const bool IsLast = platform::TickCount() - Start >= cPatience;
        if (Fork.TryAppenders() || IsLast)
            return;
        Fork.Release();
        TStateHold::Section().Leave();
        platform::SleepMs(1);
    }
}

bool TLogFork::Await(std::uint32_t ATimeOut) {
    const std::uint32_t Start = platform::TickCount();
    for (;;) {
        {
            const TStateHold Hold;
            const bool AreFree = Instance().TryAppenders();
            Instance().Release();
            if (AreFree || platform::TickCount() - Start >= ATimeOut)
                return AreFree;
        }
        platform::SleepMs(1);
    }
}

void TLogFork::InParent() noexcept {
    Instance().Release();
    TStateHold::Section().Leave();
    ThisLogThread().IsForking = false;
    --GPendingForks;
}

void TLogFork::InChild() {
    GPendingForks = 0;
    ThisLogThread().IsForking = false;
    TLogDispatch::DropMessages();
    ForgetHookCall();
    TTreeLock::BeginChild();
    TQzLogger::BeginChild(Instance().FMissed, {});
    for (TQzLogBase* Each : Instance().FMissed)
        Each->BecomeLost({});
    Instance().Release();
    TStateHold::Section().Leave();
}

bool AwaitAppenders(std::uint32_t ATimeOut) {
    return TLogFork::Await(ATimeOut);
}

void WatchForks() {
    platform::AroundFork(platform::TForkRank::Loggers, &TLogFork::Prepare, &TLogFork::InParent,
                         &TLogFork::InChild);
}

} // namespace qz::detail
