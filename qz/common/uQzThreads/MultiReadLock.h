// TQzMultiReadSingleWrite: many readers or one writer, on the platform's slim lock.
//
//     TQzMultiReadSingleWrite Lock;
//     Lock.BeginRead();
//     ...
//     Lock.EndRead();
//
// Not re-entrant: a thread that holds the lock must not take it again in either form. A release must come
// from the thread that acquired. The lock itself may be used by any number of threads; it must not move while
// it is in use.
#pragma once

#include <atomic>

#include <qz/platform/SlimLock.h>
#include <qz/runtime/threads/MultiReadLock.h>

namespace qz {

// The word of a slim lock, null when free; with the fallback a _TMultiReadExclusiveWriteSynchronizer.
using TSRWLOCK = platform::TSlimLockWord;

// The types of the slots that a lock goes through. The try slots give 0 or another number.
using TAcquireSRWLock = platform::TSlimLockAcquire;
using TTryAcquireSRWLock = platform::TSlimLockTryAcquire;
using TReleaseSRWLock = platform::TSlimLockRelease;

// The fallback: a synchroniser that can be tried. It remembers a reader and the writer, and a try looks at
// them first: a shared one fails while anybody writes, an exclusive one while anybody is known to read or
// write. No try waits.
// NOLINTNEXTLINE(bugprone-reserved-identifier)
class QZ_API _TMultiReadExclusiveWriteSynchronizer : public TMultiReadExclusiveWriteSynchronizer {
    QZ_CLASS(_TMultiReadExclusiveWriteSynchronizer, TMultiReadExclusiveWriteSynchronizer)

public:
    void AcquireShared();
    bool TryAcquireShared();
    void ReleaseShared();
    void AcquireExclusive();
    bool TryAcquireExclusive();
    void ReleaseExclusive();

private:
    std::atomic<std::uint32_t> FReadLock{0};  // the thread that last took the read lock, 0 when released
    std::atomic<std::uint32_t> FWriteLock{0}; // the writing thread, 0 when free
};

// The six slots: acquire, try and release, exclusive and shared.
using TSRWLockSlots = platform::TSlimLockFunctions;

class QZ_API TQzMultiReadSingleWrite : public TObject {
    QZ_CLASS(TQzMultiReadSingleWrite, TObject)

public:
    // A lock on the platform's functions, or on the fallback where the platform lacks one of them: the word
    // of a lock belongs to one kind of functions.
    TQzMultiReadSingleWrite();
    // A lock on the fallback, whatever the platform has.
    enum class TFallback { Use };
    explicit TQzMultiReadSingleWrite(TFallback);
    TQzMultiReadSingleWrite(const TQzMultiReadSingleWrite&) = delete;
    TQzMultiReadSingleWrite& operator=(const TQzMultiReadSingleWrite&) = delete;
    ~TQzMultiReadSingleWrite() override;

    void BeginRead() { FSlots->AcquireShared(&FLock); }
    // False when a writer holds the lock or waits for it.
    bool TryBeginRead() { return FSlots->TryAcquireShared(&FLock) != 0; }
    void EndRead() { FSlots->ReleaseShared(&FLock); }
    void BeginWrite() { FSlots->AcquireExclusive(&FLock); }
    // False when a reader or a writer holds the lock.
    bool TryBeginWrite() { return FSlots->TryAcquireExclusive(&FLock) != 0; }
    void EndWrite() { FSlots->ReleaseExclusive(&FLock); }
    // As std::lock_guard, std::shared_lock and their kin call them.
    void lock() { BeginWrite(); }
    bool try_lock() { return TryBeginWrite(); }
    void unlock() { EndWrite(); }
    void lock_shared() { BeginRead(); }
    bool try_lock_shared() { return TryBeginRead(); }
    void unlock_shared() { EndRead(); }

    // The slots that the first constructor uses, and those of the fallback.
    static const TSRWLockSlots& Slots() noexcept;
    static const TSRWLockSlots& FallbackSlots() noexcept;

private:
    TSRWLOCK FLock;
    const TSRWLockSlots* FSlots;
};

} // namespace qz
