// Handlers for fork(), which copies the process; only the calling thread continues in the copy.
//
//     AroundFork(TForkRank::Zone, TakeLocks, ReleaseLocks, ReleaseLocks);
//
// This header defines the order in which the locks of the library are taken around a fork.
#pragma once

#include <cstdint>

#include <qz/platform/Export.h>

namespace qz::platform {

// From the outermost lock to the innermost: code that holds one may wait for the ones after it, never for an
// earlier one.
enum class TForkRank : std::uint8_t {
    FreeNotifies,
    Loggers,
    LogFiles,
    MainQueue,
    Bindings,
    TypeRegistry,
    Classes,
    TypeNames,
    Designing,
    FormatSettings,
    Locale,
    CodePages,
    Icu,
    Zone,
    Environment
};

// A handler of the application that was registered with pthread_atfork before the library runs while these
// locks are held, and must not use the library. Calls ABefore on the forking thread before each fork(), and
// after it AInParent in the parent or AInChild in the child. ABefore runs in the order of the ranks, the
// other two in reverse order, whatever the order of registration. Each rank is registered once, at program
// start. Does nothing on a system without fork().
QZ_API void AroundFork(TForkRank ARank, void (*ABefore)(), void (*AInParent)(), void (*AInChild)());

// Holds a lock around each fork(). AGetLock is a lambda without captures that gives a pointer to the lock,
// which the child must be able to release: std::mutex and TCriticalSection, but not std::shared_mutex. Gives
// true, so that a variable of the namespace can register it at program start.
template <class TGetLock> bool HoldAroundFork(TForkRank ARank, TGetLock) {
    AroundFork(
        ARank, [] { TGetLock()()->lock(); }, [] { TGetLock()()->unlock(); }, [] { TGetLock()()->unlock(); });
    return true;
}

} // namespace qz::platform
