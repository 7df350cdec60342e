// What keeps a child of fork() able to log: no other thread holds a lock of the loggers at that moment.
#include "common/uQzLogger/LogFork.h"

#include <chrono>
#include <thread>
#include <vector>

#include "common/uQzLogAppenders/BaseAppender.h"
#include "common/uQzLogger/LogDrops.h"
#include "common/uQzLogger/LogTreeLock.h"
#include "common/uQzLogger/QzLogger.h"
#include "platform/Fork.h"

namespace qz::detail {

// All locks of loggers and appenders. They are tried, never waited for, and given back when one cannot be had: whoever
// holds that one may be waiting for another.
struct TForkLocks {
    bool TryTake() {
        if (!Own.TryEnter())
            return false;
        HasOwn = true;
        if (TryGates() && TryTree() && TryLists() && TryAppenders() && TryLockDrops())
            return HasDrops = true;
        GiveBack();
        return false;
    }

    void GiveBack() {
        if (std::exchange(HasDrops, false))
            UnlockDrops();
        for (TQzBaseAppender* Appender : std::exchange(Appenders, {}))
            Appender->Unlock();
        if (std::exchange(HasInstances, false))
            AppenderInstances().FLock.Leave();
        for (TLogAppenderCore* List : std::exchange(Lists, {}))
            List->UnlockItems();
        const bool HadTree = std::exchange(HasTree, false);
        if (HadTree)
            TLogTreeLock::Leave();
        for (const TLogAppenderCorePtr& Gate : std::exchange(Gates, {}))
            Gate->LeaveGate();
        if (std::exchange(HasOwn, false))
            Own.Leave();
    }

private:
    // The gates come before the lock of the tree, as for a message.
    bool TryGates() {
        if (!TLogTreeLock::TryEnter(0))
            return false;
        std::vector<TLogAppenderCorePtr> All = TQzLogger::AllAppenders();
        TLogTreeLock::Leave();
        for (TLogAppenderCorePtr& Gate : All) {
            if (!Gate->TryEnterGate(0))
                return false;
            Gates.push_back(std::move(Gate));
        }
        return true;
    }
    // Loggers that came to be meanwhile mean another try.
    bool TryTree() {
        HasTree = TLogTreeLock::TryEnter(0);
        return HasTree && TQzLogger::AllAppenders() == Gates;
    }
    bool TryLists() {
        for (const TLogAppenderCorePtr& Gate : Gates) {
            if (!Gate->TryLockItems())
                return false;
            Lists.push_back(Gate.get());
        }
        return true;
    }
    bool TryAppenders() {
        TQzAppenderInstances& All = AppenderInstances();
        HasInstances = All.FLock.TryEnter();
        if (!HasInstances)
            return false;
        for (TQzLogBase* Item : All.FList) {
            auto* Appender = Item->FIsComplete ? dynamic_cast<TQzBaseAppender*>(Item) : nullptr;
            if (Appender == nullptr)
                continue;
            if (!Appender->TryLock())
                return false;
            Appenders.push_back(Appender);
        }
        return true;
    }

    TCriticalSection Own; // who forks, forks alone
    std::vector<TLogAppenderCorePtr> Gates;
    std::vector<TLogAppenderCore*> Lists;
    std::vector<TQzBaseAppender*> Appenders; // alive as long as the instances are locked
    bool HasOwn = false;
    bool HasTree = false;
    bool HasInstances = false;
    bool HasDrops = false;
};

namespace {

constexpr int cTries = 2000;
constexpr std::chrono::milliseconds cPause{1};

TForkLocks& ForkLocks() {
    static auto* const Result = new TForkLocks;
    return *Result;
}

thread_local bool GHasForkLocks = false;

void TakeLocks() {
    for (int Try = 0; Try < cTries && !GHasForkLocks; ++Try) {
        GHasForkLocks = ForkLocks().TryTake();
        if (!GHasForkLocks)
            std::this_thread::sleep_for(cPause);
    }
}

void GiveLocksBack() {
    if (std::exchange(GHasForkLocks, false))
        ForkLocks().GiveBack();
}

void BeginChild() {
    ForgetTelling();
    GiveLocksBack();
}

} // namespace

void WatchForks() {
    platform::AroundFork(TakeLocks, GiveLocksBack, BeginChild);
}

} // namespace qz::detail
