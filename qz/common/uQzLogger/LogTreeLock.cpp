#include <qz/common/uQzLogger/LogTreeLock.h>

#include <qz/platform/Threads.h>

namespace qz::detail {

TLogThread& ThisLogThread() noexcept {
    constinit static thread_local TLogThread Result;
    return Result;
}

constinit std::atomic<int> GPendingForks{0};

void AwaitFork() noexcept {
    const TLogThread& Thread = ThisLogThread();
    constexpr int cMostTries = 5;
    for (int Try = 0; Try < cMostTries && GPendingForks.load(std::memory_order_acquire) != 0; ++Try) {
        if (Thread.Gates != 0 || Thread.Trees != 0 || Thread.IsForking)
            return;
        platform::SleepMs(1);
    }
}

TQzCriticalSection& TLogTreeLock::Section() {
    static auto* const Result = new TQzCriticalSection;
    return *Result;
}

void TLogTreeLock::Enter() {
    LetForkPass();
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
