// Handlers for fork(), which copies the process; only the calling thread continues in the copy.
//
//     AroundFork(TakeLocks, ReleaseLocks, ReleaseLocks);     // no other thread holds a lock in the child
#pragma once

#include <qz/platform/Export.h>

namespace qz::platform {

// Calls ABefore on the forking thread before each fork(), and after it AInParent in the parent and AInChild
// in the child. Cannot be undone. Does nothing on a system without fork().
QZ_API void AroundFork(void (*ABefore)(), void (*AInParent)(), void (*AInChild)());

} // namespace qz::platform
