// A mutual exclusion lock that its owner may take again.
//
//     TRecursiveMutex Lock;
//     Lock.Enter();
//     ...
//     Lock.Leave();
#pragma once

#include <cstddef>

#include <qz/platform/Export.h>

namespace qz::platform {

// The system's critical section. Small, never allocates in Enter, and waits in the kernel after a short spin.
class QZ_API TRecursiveMutex {
public:
    TRecursiveMutex() noexcept;
    TRecursiveMutex(const TRecursiveMutex&) = delete;
    TRecursiveMutex& operator=(const TRecursiveMutex&) = delete;
    // No thread may hold or await the lock.
    ~TRecursiveMutex();

    // Waits until the calling thread owns the lock. Each Enter, and each TryEnter that gave true, needs its
    // Leave.
    void Enter() noexcept;
    // As Enter, but gives false at once while another thread owns the lock.
    bool TryEnter() noexcept;
    // Only the owner may call this; nothing checks that.
    void Leave() noexcept;

private:
    alignas(8) std::byte FState[40];
};

} // namespace qz::platform
