#include "common/uQzLogger/LogTreeLock.h"

namespace qz::detail {

TLogThread& ThisLogThread() noexcept {
    constinit static thread_local TLogThread Result;
    return Result;
}

TQzCriticalSection& TLogTreeLock::Section() {
    static auto* const Result = new TQzCriticalSection;
    return *Result;
}

void TLogTreeLock::Enter() {
    Section().Enter();
    ++ThisLogThread().Trees;
}

bool TLogTreeLock::TryEnter(std::uint32_t ATimeOut) {
    const bool Result = Section().TryEnter(ATimeOut);
    ThisLogThread().Trees += Result ? 1 : 0;
    return Result;
}

void TLogTreeLock::Leave() noexcept {
    Section().Leave();
    if (--ThisLogThread().Trees == 0 && ThisLogThread().Waiting != nullptr)
        SendWaiting();
}

} // namespace qz::detail
