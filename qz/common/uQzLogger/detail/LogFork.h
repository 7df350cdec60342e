// What keeps the child of a fork() able to log. Internal.
//
// Before a fork this takes the locks of all appenders and then the state lock. Gates and the tree lock are
// not waited for: the child frees those that a thread of the parent held. Only an appender lock may be held
// for long, by a write that blocks; an appender whose lock cannot be had in a second is lost to the child:
// it is in no list, it is not found by its name, and it never ends.
#pragma once

#include <atomic>
#include <cstdint>

namespace qz::detail {

extern constinit std::atomic<int> GPendingForks;
void AwaitFork() noexcept;

// Delays a message, for about a second at most, while a fork waits for the locks of appenders.
inline void LetForkPass() noexcept {
    if (GPendingForks.load(std::memory_order_relaxed) != 0) [[unlikely]]
        AwaitFork();
}

// Whether the locks of all appenders were free at one moment within so many milliseconds.
bool AwaitAppenders(std::uint32_t ATimeOut);

// Called once, at the start of the program.
void WatchForks();

} // namespace qz::detail
