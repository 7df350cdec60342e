// TCriticalSection: a lock that its owner may take again, and TScopedLock, which cannot forget to give it
// back.
//
//     TCriticalSection Lock;
//     {
//         TScopedLock Hold(Lock);
//         ...                       // left on every way out
//     }
#pragma once

#include <mutex>

#include <qz/platform/Mutex.h>
#include <qz/runtime/objects/Object.h>

namespace qz {

class QZ_API TCriticalSection : public TObject {
    QZ_CLASS(TCriticalSection, TObject)

public:
    TCriticalSection() noexcept = default;
    TCriticalSection(const TCriticalSection&) = delete;
    TCriticalSection& operator=(const TCriticalSection&) = delete;

    // Waits until the calling thread owns the lock. Each entry needs its Leave.
    void Enter() noexcept { FMutex.Enter(); }
    // As Enter, but gives false at once while another thread owns the lock.
    bool TryEnter() noexcept { return FMutex.TryEnter(); }
    // Only the owner may leave; nothing checks that.
    void Leave() noexcept { FMutex.Leave(); }
    void Acquire() noexcept { Enter(); }
    void Release() noexcept { Leave(); }
    // As std::lock_guard and its kin call them.
    void lock() noexcept { Enter(); }
    bool try_lock() noexcept { return TryEnter(); }
    void unlock() noexcept { Leave(); }

private:
    platform::TRecursiveMutex FMutex;
};

// Holds a lock with Enter and Leave for the length of a block.
template <class TLock> class [[nodiscard]] TScopedLock {
public:
    explicit TScopedLock(TLock& ALock) : FLock(ALock) { FLock.Enter(); }
    // Of a lock that was entered before.
    TScopedLock(TLock& ALock, std::adopt_lock_t) noexcept : FLock(ALock) {}
    TScopedLock(const TScopedLock&) = delete;
    TScopedLock& operator=(const TScopedLock&) = delete;
    ~TScopedLock() { FLock.Leave(); }

private:
    TLock& FLock;
};

} // namespace qz
