#include "common/uQzLogger/LogTreeLock.h"

#include "platform/Threads.h"

namespace qz::detail {

TLogThread& ThisLogThread() noexcept {
    constinit static thread_local TLogThread Result;
    return Result;
}

TQzCriticalSection& TLogTreeLock::Section() {
    static auto* const Result = new TQzCriticalSection;
    return *Result;
}

void TLogTreeLock::Leave() noexcept {
    const bool IsLast = Section().GetLockCount() == 1;
    Section().Leave();
    if (IsLast && ThisLogThread().Waiting != nullptr)
        SendWaiting();
}

bool TLogTreeLock::IsHeldByThisThread() {
    return Section().GetLockedBy() == static_cast<std::int32_t>(platform::CurrentThreadId());
}

} // namespace qz::detail
