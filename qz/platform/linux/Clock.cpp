#include <qz/platform/Clock.h>

#include <ctime>

namespace qz::platform {

namespace {

// From 1601-01-01 to 1970-01-01.
constexpr std::int64_t cUnixEpochSeconds = 11'644'473'600;

} // namespace

std::int64_t UtcNow100ns() noexcept {
    timespec Now;
    clock_gettime(CLOCK_REALTIME, &Now);
    return (Now.tv_sec + cUnixEpochSeconds) * 10'000'000 + Now.tv_nsec / 100;
}

std::int64_t UtcNowSeconds() noexcept {
    return time(nullptr) + cUnixEpochSeconds;
}

} // namespace qz::platform
