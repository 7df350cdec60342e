// What keeps a child of fork() able to log: no other thread holds a lock of the loggers at that moment.
#include "common/uQzLogger/LogFork.h"

#include <vector>

#include "common/uQzLogAppenders/BaseAppender.h"
#include "common/uQzLogger/LogDrops.h"
#include "common/uQzLogger/LogTreeLock.h"
#include "common/uQzLogger/QzLogger.h"
#include "platform/Fork.h"
#include "platform/Threads.h"

namespace qz::detail {
namespace {

constexpr std::uint32_t cTryTime = 20; // milliseconds
constexpr int cTries = 100;

// The locks that are held over a fork, in the order in which they were taken. Made by the forking thread.
struct THeldLocks {
    std::vector<TLogAppenderCorePtr> Gates;
    std::vector<Ref<IQzLogAppender>> Appenders;
};

// Who forks, forks alone.
TCriticalSection& ForkLock() {
    static auto* const Result = new TCriticalSection;
    return *Result;
}

THeldLocks& HeldLocks() {
    static auto* const Result = new THeldLocks;
    return *Result;
}

void LeaveGates(std::vector<TLogAppenderCorePtr>& AGates) {
    for (const TLogAppenderCorePtr& Gate : AGates)
        Gate->Gate().Leave();
    AGates.clear();
}

// All or none: a thread may hold one gate and wait for another.
bool TryEnterGates(std::vector<TLogAppenderCorePtr>& AGates) {
    for (TLogAppenderCorePtr& Gate : TQzLogger::AllAppenders()) {
        if (!Gate->Gate().TryEnter(cTryTime)) {
            LeaveGates(AGates);
            return false;
        }
        AGates.push_back(std::move(Gate));
    }
    return true;
}

// The gates come before the lock of the tree, as for a message. Loggers that come to be meanwhile mean another try.
bool TryTakeLocks(THeldLocks& AHeld) {
    if (!TryEnterGates(AHeld.Gates))
        return false;
    TLogTreeLock::Section().Enter();
    if (AHeld.Gates.size() == TQzLogger::AllAppenders().size())
        return true;
    TLogTreeLock::Section().Leave();
    LeaveGates(AHeld.Gates);
    return false;
}

void TakeLocks() {
    ForkLock().Enter();
    THeldLocks& Held = HeldLocks();
    bool Done = false;
    // A thread that keeps a list locked for seconds has its child go without that one.
    for (int Try = 0; Try < cTries && !Done; ++Try)
        Done = TryTakeLocks(Held);
    if (!Done)
        TLogTreeLock::Section().Enter();
    Held.Appenders = AppenderInstances().Items();
    for (const auto& Appender : Held.Appenders) {
        if (auto* Base = dynamic_cast<TQzBaseAppender*>(Appender->Component()))
            Base->Lock();
    }
    for (const TLogAppenderCorePtr& List : Held.Gates)
        List->LockItems();
    AppenderInstances().Enter();
    LockDrops();
}

void GiveLocksBack() {
    THeldLocks& Held = HeldLocks();
    UnlockDrops();
    AppenderInstances().Leave();
    for (const TLogAppenderCorePtr& List : Held.Gates)
        List->UnlockItems();
    for (const auto& Appender : Held.Appenders) {
        if (auto* Base = dynamic_cast<TQzBaseAppender*>(Appender->Component()))
            Base->Unlock();
    }
    TLogTreeLock::Section().Leave();
    LeaveGates(Held.Gates);
    const auto Appenders = std::move(Held.Appenders); // may end here, with no lock held
    Held.Appenders.clear();
    ForkLock().Leave();
}

} // namespace

void WatchForks() {
    platform::AroundFork(TakeLocks, GiveLocksBack);
}

} // namespace qz::detail
