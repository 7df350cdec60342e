#include "common/uQzLogger/LogTreeLock.h"

#include "platform/Threads.h"

namespace qz::detail {

TQzCriticalSection& TLogTreeLock::Section() {
    static auto* const Result = new TQzCriticalSection;
    return *Result;
}

bool TLogTreeLock::IsHeldByThisThread() {
    return Section().GetLockedBy() == static_cast<std::int32_t>(platform::CurrentThreadId());
}

} // namespace qz::detail
