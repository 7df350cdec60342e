#include "platform/Clock.h"

#include <ctime>

namespace qz::platform {

namespace {

// From 1601-01-01 to 1970-01-01.
constexpr int64_t cUnixEpochSeconds = 11'644'473'600;

} // namespace

int64_t UtcNow100ns() noexcept {
    timespec Now;
    clock_gettime(CLOCK_REALTIME, &Now);
    return (Now.tv_sec + cUnixEpochSeconds) * 10'000'000 + Now.tv_nsec / 100;
}

int64_t UtcNowSeconds() noexcept {
    return time(nullptr) + cUnixEpochSeconds;
}

TLocalTime LocalNow() noexcept {
    timespec Now;
    clock_gettime(CLOCK_REALTIME, &Now);
    tm Parts{};
    localtime_r(&Now.tv_sec, &Parts);
    return {
        .Year = static_cast<uint16_t>(Parts.tm_year + 1900),
        .Month = static_cast<uint8_t>(Parts.tm_mon + 1),
        .Day = static_cast<uint8_t>(Parts.tm_mday),
        .Hour = static_cast<uint8_t>(Parts.tm_hour),
        .Minute = static_cast<uint8_t>(Parts.tm_min),
        // Time zone files that count leap seconds can give 60.
        .Second = static_cast<uint8_t>(Parts.tm_sec > 59 ? 59 : Parts.tm_sec),
        .DayOfWeek = static_cast<uint8_t>(Parts.tm_wday),
        .Millisecond = static_cast<uint16_t>(Now.tv_nsec / 1'000'000),
        .OffsetMinutes = static_cast<int16_t>(Parts.tm_gmtoff / 60),
    };
}

} // namespace qz::platform
