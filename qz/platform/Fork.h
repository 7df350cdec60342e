// Code around fork(), by which a process becomes two and only the calling thread goes on in the new one.
//
//     AroundFork(TakeLocks, GiveLocksBack, GiveLocksBack);     // so that no other thread holds one at that moment
#pragma once

#include <qz/platform/Export.h>

namespace qz::platform {

// Has ABefore called on the forking thread before each fork(), and behind it AInParent and AInChild, each in its process.
// There is no way to take it back. Does nothing on a system without fork().
QZ_API void AroundFork(void (*ABefore)(), void (*AInParent)(), void (*AInChild)());

} // namespace qz::platform
