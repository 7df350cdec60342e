#include <qz/platform/FileLimit.h>

#include <cstdint>
#include <ctime>

#include <csignal>
#include <sys/resource.h>

namespace qz::platform {

namespace {

sigset_t LimitSignal() noexcept {
    sigset_t Result;
    sigemptyset(&Result);
    sigaddset(&Result, SIGXFSZ);
    return Result;
}

} // namespace

std::uint64_t FileSizeLimit() noexcept {
    rlimit Limit;
    const bool Known = getrlimit(RLIMIT_FSIZE, &Limit) == 0 && Limit.rlim_cur != RLIM_INFINITY;
    return Known ? std::uint64_t{Limit.rlim_cur} : UINT64_MAX;
}

TNoLimitSignal::TNoLimitSignal() noexcept {
    const sigset_t Signal = LimitSignal();
    sigset_t Old;
    FHasBlocked = pthread_sigmask(SIG_BLOCK, &Signal, &Old) == 0 && sigismember(&Old, SIGXFSZ) == 0;
}

// The signal of a write is for the thread that wrote, so that it is here by now.
TNoLimitSignal::~TNoLimitSignal() {
    if (!FHasBlocked)
        return;
    const sigset_t Signal = LimitSignal();
    const timespec Now{};
    sigtimedwait(&Signal, nullptr, &Now);
    pthread_sigmask(SIG_UNBLOCK, &Signal, nullptr);
}

} // namespace qz::platform
