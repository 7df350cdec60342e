// What keeps a child of fork() able to log: no other thread holds a lock of the loggers at that moment.
#include <qz/common/uQzLogger/LogFork.h>

#include <vector>

#include <qz/common/uQzLogAppenders/BaseAppender.h>
#include <qz/common/uQzLogAppenders/LineFlusher.h>
#include <qz/common/uQzLogger/LogDrops.h>
#include <qz/common/uQzLogger/LogTreeLock.h>
#include <qz/common/uQzLogger/QzLogger.h>
#include <qz/platform/Fork.h>
#include <qz/platform/Threads.h>

namespace qz::detail {

// How long one lock is tried, in milliseconds.
constexpr std::uint32_t cPatience = 2;

// All locks of loggers and appenders. They are tried, for a moment, and given back when one cannot be had: whoever holds
// that one may be waiting for another.
struct TForkLocks {
    bool TryTake() {
        if (!FOwn.TryEnter())
            return false;
        FHasOwn = true;
        try {
            FHasDrops = TryRegistries() && TryGates() && TryTree() && TryLists() && TryAppenders() &&
                TryFlusher() && TryLockDrops();
        } catch (const std::bad_alloc&) {
            FHasDrops = false;
        }
        if (!FHasDrops)
            GiveBack();
        return FHasDrops;
    }

    // Files that are open are written by two processes from here on.
    void ShareFiles() noexcept {
        if (FFlusher != nullptr)
            FFlusher->ShareAll();
    }

    // Those that a child does not have.
    void ForgetThreads() noexcept {
        for (const TLogAppenderCorePtr& Gate : FGates)
            Gate->ForgetThreads();
    }

    void GiveBack() {
        if (std::exchange(FHasDrops, false))
            UnlockDrops();
        if (TLineFlusher* Flusher = std::exchange(FFlusher, nullptr))
            Flusher->Unlock();
        for (TQzBaseAppender* Appender : std::exchange(FAppenders, {}))
            Appender->Unlock();
        if (std::exchange(FHasInstances, false))
            AppenderInstances().FLock.Leave();
        for (TLogAppenderCore* List : std::exchange(FLists, {}))
            List->UnlockItems();
        const bool HadTree = std::exchange(FHasTree, false);
        if (HadTree)
            TLogTreeLock::Leave();
        for (const TLogAppenderCorePtr& Gate : std::exchange(FGates, {}))
            Gate->LeaveGate();
        for (TQzLogBaseClassList* List : std::exchange(FRegistries, {}))
            List->FLock.unlock();
        if (std::exchange(FHasOwn, false))
            FOwn.Leave();
    }

private:
    bool TryRegistries() {
        for (TQzLogBaseClassList* List : {&RegisteredLayouts(), &RegisteredAppenders()}) {
            if (!List->FLock.try_lock())
                return false;
            FRegistries.push_back(List);
        }
        return true;
    }
    // The gates come before the lock of the tree, as for a message.
    bool TryGates() {
        if (!TLogTreeLock::TryEnter(cPatience))
            return false;
        std::vector<TLogAppenderCorePtr> All = TQzLogger::AllAppenders();
        TLogTreeLock::Leave();
        for (TLogAppenderCorePtr& Gate : All) {
            if (!Gate->TryEnterGate(cPatience))
                return false;
            FGates.push_back(std::move(Gate));
        }
        return true;
    }
    // Loggers that came to be meanwhile mean another try.
    bool TryTree() {
        FHasTree = TLogTreeLock::TryEnter(cPatience);
        return FHasTree && TQzLogger::AllAppenders() == FGates;
    }
    bool TryLists() {
        for (const TLogAppenderCorePtr& Gate : FGates) {
            if (!Gate->TryLockItems())
                return false;
            FLists.push_back(Gate.get());
        }
        return true;
    }
    bool TryAppenders() {
        TQzAppenderInstances& All = AppenderInstances();
        FHasInstances = All.FLock.TryEnter();
        if (!FHasInstances)
            return false;
        for (TQzLogBase* Item : All.FList) {
            auto* Appender = Item->FIsComplete ? dynamic_cast<TQzBaseAppender*>(Item) : nullptr;
            if (Appender == nullptr)
                continue;
            if (!Appender->TryLock())
                return false;
            FAppenders.push_back(Appender);
        }
        return true;
    }

    bool TryFlusher() {
        FFlusher = TLineFlusher::Existing();
        if (FFlusher == nullptr || FFlusher->TryLock())
            return true;
        FFlusher = nullptr;
        return false;
    }

    TCriticalSection FOwn; // who forks, forks alone
    std::vector<TQzLogBaseClassList*> FRegistries;
    std::vector<TLogAppenderCorePtr> FGates;
    std::vector<TLogAppenderCore*> FLists;
    std::vector<TQzBaseAppender*> FAppenders; // alive as long as the instances are locked
    TLineFlusher* FFlusher = nullptr;
    bool FHasOwn = false;
    bool FHasTree = false;
    bool FHasInstances = false;
    bool FHasDrops = false;
};

namespace {

constexpr std::uint32_t cMostMilliseconds = 5000;

TForkLocks& ForkLocks() {
    static auto* const Result = new TForkLocks;
    return *Result;
}

thread_local bool GHasForkLocks = false;

void TakeLocks() {
    ThisLogThread().IsForking = true;
    ++GPendingForks;
    const std::uint32_t Start = platform::TickCount();
    while (!GHasForkLocks && platform::TickCount() - Start < cMostMilliseconds) {
        GHasForkLocks = ForkLocks().TryTake();
        if (!GHasForkLocks)
            platform::SleepMs(1);
    }
}

void EndFork() noexcept {
    --GPendingForks;
    ThisLogThread().IsForking = false;
}

void GiveLocksBack() {
    if (std::exchange(GHasForkLocks, false)) {
        ForkLocks().ShareFiles();
        ForkLocks().GiveBack();
    }
    EndFork();
}

void BeginChild() {
    ForgetTelling();
    GPendingForks = 1; // those of other threads are not here
    ForkLocks().ForgetThreads();
    if (GHasForkLocks)
        TLineFlusher::BeginChild();
    GiveLocksBack();
}

} // namespace

void WatchForks() {
    platform::AroundFork(TakeLocks, GiveLocksBack, BeginChild);
}

} // namespace qz::detail
