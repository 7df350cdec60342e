// What a thread that logs holds and waits with. Internal.
//
// Two kinds of locks are held while the code of others runs: the lock of the tree, one for all loggers, while a
// configurator is asked, and the gate of a list of appenders, while they write. Nobody who holds one of them waits for a
// gate, and messages of such a thread wait until it holds neither.
#pragma once

#include <qz/common/uQzThreads/CriticalSection.h>

namespace qz::detail {

struct TLogDispatch;
struct TWaitingMessages;

// What a thread is about. Without a destructor, for it may be asked to the very end of the thread.
struct TLogThread {
    int Gates = 0;            // how many it holds
    int Trees = 0;            // how often it holds the lock of the tree
    bool IsLettingGo = false; // it is ending appenders that were removed
    bool IsSending = false;   // it is on the way with a message
    bool IsForking = false;
    TLogDispatch* Present = nullptr;     // that message
    TWaitingMessages* Waiting = nullptr; // messages that arose meanwhile; owned
};

TLogThread& ThisLogThread() noexcept;

// Sends what waits, and ends the appenders that wait for their end, if the thread is free to.
void SendWaiting() noexcept;

// A fork that wants all locks holds up the threads that come for their first one, for some milliseconds: not longer, since they
// may hold locks of which nobody knows here.
QZ_API extern constinit std::atomic<int> GPendingForks;
void AwaitFork() noexcept;
inline void LetForkPass() noexcept {
    if (GPendingForks.load(std::memory_order_relaxed) != 0) [[unlikely]]
        AwaitFork();
}

// Holds the lock of the tree. It re-enters, and outlives the destructors of the program.
class [[nodiscard]] TLogTreeLock {
public:
    TLogTreeLock() { Enter(); }
    ~TLogTreeLock() { Leave(); }
    TLogTreeLock(const TLogTreeLock&) = delete;
    TLogTreeLock& operator=(const TLogTreeLock&) = delete;

    static void Enter();
    static bool TryEnter(std::uint32_t ATimeOut);
    static void Leave() noexcept;

private:
    static TQzCriticalSection& Section();
};

// Whether the thread may wait for a gate, and end appenders.
inline bool MayAwaitGate() noexcept {
    return ThisLogThread().Gates == 0 && ThisLogThread().Trees == 0;
}

} // namespace qz::detail
