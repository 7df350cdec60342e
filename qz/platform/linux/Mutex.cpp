#include <qz/platform/Mutex.h>

#include <atomic>
#include <cstdint>
#include <new>

#include <qz/platform/linux/Futex.h>

namespace qz::platform {

namespace {

enum TLockState : std::uint32_t { lsFree, lsHeld, lsHeldAndAwaited };

struct TLock {
    std::atomic<std::uint32_t> State = lsFree;
    std::uint32_t Depth = 0; // the owner's alone
    // Only the owner writes its own mark here, so that a thread that reads its own mark is the owner.
    std::atomic<const void*> Owner = nullptr;
};

constexpr int cSpins = 60;

// The address of a thread's own variable is the cheapest name that a thread has, and the child of a fork()
// keeps it.
[[gnu::tls_model("initial-exec")]] constinit thread_local char GSelf = 0;

TLock& LockIn(std::byte* AState) noexcept {
    return *std::launder(reinterpret_cast<TLock*>(AState));
}

bool TryTake(TLock& ALock) noexcept {
    std::uint32_t Expected = lsFree;
    return ALock.State.compare_exchange_strong(Expected, lsHeld, std::memory_order_acquire,
                                               std::memory_order_relaxed);
}

void Wait(TLock& ALock) noexcept {
    for (int Spin = 0; Spin < cSpins; ++Spin) {
        detail::SpinPause();
        const std::uint32_t State = ALock.State.load(std::memory_order_relaxed);
        if (State == lsHeldAndAwaited)
            break;
        if (State == lsFree && TryTake(ALock))
            return;
    }
    // Whoever waited takes the lock as awaited, as others may wait still.
    while (ALock.State.exchange(lsHeldAndAwaited, std::memory_order_acquire) != lsFree)
        detail::FutexWait(&ALock.State, lsHeldAndAwaited);
}

void Own(TLock& ALock) noexcept {
    ALock.Owner.store(&GSelf, std::memory_order_relaxed);
    ALock.Depth = 1;
}

} // namespace

TRecursiveMutex::TRecursiveMutex() noexcept {
    static_assert(sizeof(TLock) <= sizeof FState && alignof(TLock) <= alignof(TRecursiveMutex));
    static_assert(sizeof(std::atomic<std::uint32_t>) == sizeof(std::uint32_t));
    ::new (static_cast<void*>(FState)) TLock;
}

TRecursiveMutex::~TRecursiveMutex() = default;

void TRecursiveMutex::Enter() noexcept {
    TLock& Lock = LockIn(FState);
    if (Lock.Owner.load(std::memory_order_relaxed) == &GSelf) {
        ++Lock.Depth;
        return;
    }
    if (!TryTake(Lock))
        Wait(Lock);
    Own(Lock);
}

bool TRecursiveMutex::TryEnter() noexcept {
    TLock& Lock = LockIn(FState);
    if (Lock.Owner.load(std::memory_order_relaxed) == &GSelf) {
        ++Lock.Depth;
        return true;
    }
    if (!TryTake(Lock))
        return false;
    Own(Lock);
    return true;
}

void TRecursiveMutex::Leave() noexcept {
    TLock& Lock = LockIn(FState);
    if (--Lock.Depth != 0)
        return;
    Lock.Owner.store(nullptr, std::memory_order_relaxed);
    if (Lock.State.exchange(lsFree, std::memory_order_release) == lsHeldAndAwaited)
        detail::FutexWake(&Lock.State, 1);
}

} // namespace qz::platform
