#include <qz/platform/SlimLock.h>

#include <qz/platform/Module.h>

namespace qz::platform {

namespace {

template <class TFunction> TFunction Find(const char* AName) {
    return reinterpret_cast<TFunction>(FindModuleFunction(u"kernel32.dll", AName));
}

} // namespace

const TSlimLockFunctions* SystemSlimLock() noexcept {
    static const TSlimLockFunctions Functions = {
        .AcquireExclusive = Find<TSlimLockAcquire>("AcquireSRWLockExclusive"),
        .TryAcquireExclusive = Find<TSlimLockTryAcquire>("TryAcquireSRWLockExclusive"),
        .ReleaseExclusive = Find<TSlimLockRelease>("ReleaseSRWLockExclusive"),
        .AcquireShared = Find<TSlimLockAcquire>("AcquireSRWLockShared"),
        .TryAcquireShared = Find<TSlimLockTryAcquire>("TryAcquireSRWLockShared"),
        .ReleaseShared = Find<TSlimLockRelease>("ReleaseSRWLockShared"),
    };
    return &Functions;
}

} // namespace qz::platform
