// Code around fork(), by which a process becomes two and only the calling thread goes on in the new one.
//
//     AroundFork(TakeLocks, GiveLocksBack);     // so that no other thread holds one of them at that moment
#pragma once

#include "platform/Export.h"

namespace qz::platform {

// Has ABefore called on the forking thread before each fork(), and AAfter behind it, once in each of the two processes.
// There is no way to take it back. Does nothing on a system without fork().
QZ_API void AroundFork(void (*ABefore)(), void (*AAfter)());

} // namespace qz::platform
