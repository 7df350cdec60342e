// The system's slim reader/writer lock: many readers or one writer, in one word of memory that needs neither
// construction nor destruction.
//
//     TSlimLockWord Word;
//     const TSlimLockFunctions* Lock = SystemSlimLock();
//     Lock->AcquireShared(&Word);
//     ...
//     Lock->ReleaseShared(&Word);
#pragma once

#include <qz/platform/Export.h>

namespace qz::platform {

// Null when free. Must not move while it is held.
struct TSlimLockWord {
    void* Ptr = nullptr;
};

using TSlimLockAcquire = void (*)(TSlimLockWord*);
using TSlimLockTryAcquire = unsigned char (*)(TSlimLockWord*); // other than 0: the lock is held now
using TSlimLockRelease = void (*)(TSlimLockWord*);

// An acquire waits without a limit, a try never waits. The lock isn't re-entrant: a thread that holds it in
// either form must not take it again. A waiting writer holds new readers back, so that readers can't starve
// it. Only the thread that acquired may release, in the same form; nothing checks that.
struct TSlimLockFunctions {
    TSlimLockAcquire AcquireExclusive;
    TSlimLockTryAcquire TryAcquireExclusive;
    TSlimLockRelease ReleaseExclusive;
    TSlimLockAcquire AcquireShared;
    TSlimLockTryAcquire TryAcquireShared;
    TSlimLockRelease ReleaseShared;
};

// The functions of this system, found once and kept for the life of the process. Never null itself; an entry
// that the system lacks is null (the tries of an early Windows; no entry on Linux). Any thread.
QZ_API const TSlimLockFunctions* SystemSlimLock() noexcept;

} // namespace qz::platform
