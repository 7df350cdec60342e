// The lock of the tree of loggers. Internal.
#pragma once

#include "common/uQzThreads/CriticalSection.h"

namespace qz::detail {

// Holds the lock, which is one for all trees, re-enters, and outlives the destructors of the program. Whoever holds it
// waits for no message: only the locks of lists are taken inside.
class [[nodiscard]] TLogTreeLock {
public:
    TLogTreeLock() { Section().Enter(); }
    ~TLogTreeLock() { Section().Leave(); }
    TLogTreeLock(const TLogTreeLock&) = delete;
    TLogTreeLock& operator=(const TLogTreeLock&) = delete;

    static TQzCriticalSection& Section();
    static bool IsHeldByThisThread();
};

} // namespace qz::detail
