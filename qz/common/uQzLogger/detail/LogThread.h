// Per-thread logging state and the locks of the loggers. Internal.
//
// Locks, from the outermost to the innermost:
//
//     the tree lock        one for all loggers, held while a logger is made and configured
//     the gate of a list   held while its appenders write (AppenderSet.h)
//     a lock of an appender
//     the state lock       one for all lists, names and levels, under which only library code runs
//
// The first three are held while the code of users runs. A thread that holds a gate or the lock of an
// appender never waits for the tree lock. A thread that is busy queues its messages, so that it never waits
// for a second gate. A thread that holds the list of a logger delivers a message at once only if the other
// gates can be had in a moment.
#pragma once

#include <atomic>
#include <cstdint>

#include <qz/common/uQzThreads/CriticalSection.h>

namespace qz {
class TValue;
class UnicodeString;
} // namespace qz

namespace qz::detail {

struct TLogQueue;

// Has no destructor, since it is used to the very end of a thread.
struct TLogThread {
    int Busy = 0;             // messages being delivered, and locks of appenders held
    int Gates = 0;            // gates held
    int Trees = 0;            // how often the tree lock is held
    bool IsSettling = false;  // the queue is being worked off
    bool IsInHook = false;    // the drop hook runs
    bool IsForking = false;   // it has the locks for a fork
    std::uint64_t Failed = 0; // the serial of the appender that the drop hook hears of now
    TLogQueue* Queue = nullptr;
    // The value of a queued message that was an object, and the dump of that object; or null.
    const TValue* DumpedValue = nullptr;
    const UnicodeString* Dump = nullptr;

    bool QueuesMessages() const noexcept { return Busy != 0 || IsInHook; }
    // Whether the thread may wait for the tree lock, and for a gate to change its list.
    bool MayWait() const noexcept { return Busy == 0 && Gates == 0; }
};

TLogThread& ThisLogThread() noexcept;

// Works off the queue of the calling thread as far as the thread is free to; see LogDispatch.h.
void Settle() noexcept;

// Counts the thread as busy for as long as a lock of an appender is held.
void BeginBusy() noexcept;
void EndBusy() noexcept;

// Holds the state lock, which re-enters.
class [[nodiscard]] TStateHold {
public:
    TStateHold() noexcept { Section().Enter(); }
    ~TStateHold() { Section().Leave(); }
    TStateHold(const TStateHold&) = delete;
    TStateHold& operator=(const TStateHold&) = delete;

    // Lives to the very end of the process.
    static TCriticalSection& Section() noexcept;
};

// The tree lock, which re-enters.
class TTreeLock {
public:
    static void Enter() noexcept;
    static bool TryEnter(std::uint32_t ATimeOut) noexcept;
    static void Leave() noexcept;
    // In the child of a fork: frees the lock if a thread of the parent held it.
    static void BeginChild();
};

// Holds the tree lock for a block. A thread that may not wait goes on without the lock if another thread
// holds it.
class [[nodiscard]] TTreeHold {
public:
    TTreeHold() noexcept;
    ~TTreeHold();
    bool IsHeld() const noexcept { return FIsHeld; }
    TTreeHold(const TTreeHold&) = delete;
    TTreeHold& operator=(const TTreeHold&) = delete;

private:
    bool FIsHeld;
};

} // namespace qz::detail
