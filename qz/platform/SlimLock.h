// The system's slim reader/writer lock: many readers or one writer. It is one word and needs no construction
// or destruction.
//
//     TSlimLockWord Word;
//     const TSlimLockFunctions* Lock = SystemSlimLock();
//     Lock->AcquireShared(&Word);
//     ...
//     Lock->ReleaseShared(&Word);
#pragma once

#include <qz/platform/Export.h>

namespace qz::platform {

// Null if free. Must not move while it is held.
struct TSlimLockWord {
    void* Ptr = nullptr;
};

using TSlimLockAcquire = void (*)(TSlimLockWord*);
using TSlimLockTryAcquire = unsigned char (*)(TSlimLockWord*); // not 0: acquired
using TSlimLockRelease = void (*)(TSlimLockWord*);

// An acquire waits without limit; a try never waits. The lock is not recursive in either mode. A waiting
// writer blocks new readers, so that readers cannot starve it. Only the acquiring thread may release, in the
// same mode; not checked.
struct TSlimLockFunctions {
    TSlimLockAcquire AcquireExclusive;
    TSlimLockTryAcquire TryAcquireExclusive;
    TSlimLockRelease ReleaseExclusive;
    TSlimLockAcquire AcquireShared;
    TSlimLockTryAcquire TryAcquireShared;
    TSlimLockRelease ReleaseShared;
};

// The functions of this system, resolved once per process. Never null; an entry that the system lacks is null
// (the tries on early Windows; none on Linux). Any thread.
QZ_API const TSlimLockFunctions* SystemSlimLock() noexcept;

} // namespace qz::platform
