// Code around fork(), by which a process becomes two and only the calling thread goes on in the new one.
//
//     AroundFork(TForkRank::Zone, TakeLocks, ReleaseLocks, ReleaseLocks);     // so that no other thread holds one then
//
// This is the one place that says in which order the locks of the library are taken around a fork.
#pragma once

#include <cstdint>

#include <qz/platform/Export.h>

namespace qz::platform {

// From the outermost lock to the innermost: code that holds one may wait for those that follow, and for no
// earlier one.
enum class TForkRank : std::uint8_t {
    Loggers,
    LogFiles,
    FormatSettings,
    Locale,
    CodePages,
    Zone,
    Environment
};

// Has ABefore called on the forking thread before each fork(), and AInParent or AInChild after it, each in
// its process. ABefore runs in the order of the ranks, the other two in the reverse order, whatever the order
// of the calls of this function. A rank is registered once, at the start of the program. Does nothing on a
// system without fork().
QZ_API void AroundFork(TForkRank ARank, void (*ABefore)(), void (*AInParent)(), void (*AInChild)());

} // namespace qz::platform
