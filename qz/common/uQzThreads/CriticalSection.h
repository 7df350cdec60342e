// TQzCriticalSection: a recursive lock that knows its owner and can be tried with a time limit.
//
//     TQzCriticalSection Lock;
//     if (Lock.TryEnter(1000)) {
//         ...
//         Lock.Leave();
//     }
//     Lock.IsLocked();           // any thread may ask
//
// None of the operations raises. Leaving a lock that one does not hold, or freeing one that is held, is a
// fault of the caller that nothing checks.
#pragma once

#include <atomic>

#include <qz/runtime/threads/CriticalSection.h>

namespace qz {

class QZ_API TQzCriticalSection : public TObject {
    QZ_CLASS(TQzCriticalSection, TObject)

public:
    TQzCriticalSection() noexcept = default;
    TQzCriticalSection(const TQzCriticalSection&) = delete;
    TQzCriticalSection& operator=(const TQzCriticalSection&) = delete;

    // Waits until the calling thread holds the lock; one that holds it already goes one deeper.
    void Enter() noexcept {
        FCS.Enter();
        Entered();
    }
    void Leave() noexcept {
        if (--FLockCount == 0)
            FLockedBy.store(0, std::memory_order_relaxed);
        FCS.Leave();
    }
    // Tries for ATimeOut milliseconds, without sleeping between the attempts: waits are meant to be short. 0
    // tries once.
    bool TryEnter(std::uint32_t ATimeOut) noexcept;

    // As std::lock_guard and its kin call them.
    void lock() noexcept { Enter(); }
    bool try_lock() noexcept { return TryEnter(0); }
    void unlock() noexcept { Leave(); }

    // The id of the thread that holds the lock, 0 when it is free.
    std::int32_t GetLockedBy() const noexcept { return FLockedBy.load(std::memory_order_relaxed); }
    bool IsLocked() const noexcept { return GetLockedBy() != 0; }
    // How deep the calling thread, which holds the lock, has entered it.
    std::int32_t GetLockCount() const noexcept { return FLockCount; }

private:
    void Entered() noexcept;

    TCriticalSection FCS;
    std::int32_t FLockCount = 0;            // touched by the holder only
    std::atomic<std::int32_t> FLockedBy{0}; // written by the holder only
};

} // namespace qz
