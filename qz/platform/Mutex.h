// A recursive mutual exclusion lock.
//
//     TRecursiveMutex Lock;
//     Lock.Enter();
//     ...
//     Lock.Leave();
#pragma once

#include <cstddef>

#include <qz/platform/Export.h>

namespace qz::platform {

// The system's critical section. Enter never allocates; it spins briefly, then waits in the kernel.
class QZ_API TRecursiveMutex {
public:
    TRecursiveMutex() noexcept;
    TRecursiveMutex(const TRecursiveMutex&) = delete;
    TRecursiveMutex& operator=(const TRecursiveMutex&) = delete;
    // No thread may hold or wait for the lock.
    ~TRecursiveMutex();

    // Waits until the calling thread owns the lock. Each Enter, and each successful TryEnter, needs a Leave.
    void Enter() noexcept;
    // As Enter, but returns false at once if another thread owns the lock.
    bool TryEnter() noexcept;
    // Only for the owner; not checked.
    void Leave() noexcept;

private:
    alignas(8) std::byte FState[40];
};

} // namespace qz::platform
