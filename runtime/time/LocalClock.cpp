#include "runtime/time/LocalClock.h"

#include <atomic>

#include "platform/Clock.h"
#include "runtime/time/DateTime.h"

namespace qz {
namespace {

constexpr std::int64_t c100nsPerMinute = 600'000'000;
constexpr std::int64_t c100nsPerMSec = 10'000;
constexpr std::int64_t cMinutesPerDay = MinsPerDay;
constexpr std::int64_t cDay1601 = -109205; // 1601-01-01 from 1899-12-30

// A minute of UTC since 1601 in the upper half, the minutes to add to it in the lower. One word, so that the two always
// belong together; whoever finds another minute asks anew.
constinit std::atomic<std::int64_t> GMinuteAndOffset{-1};

std::int32_t OffsetAt(std::int64_t AMinute) noexcept {
    const std::int64_t Known = GMinuteAndOffset.load(std::memory_order_relaxed);
    if (Known >> 32 == AMinute)
        return static_cast<std::int32_t>(Known & 0xFFFFFFFF);
    const platform::TLocalTime Now = platform::LocalNow();
    const std::int64_t Day = DayNumber(Now.Year, Now.Month, Now.Day) - cDay1601;
    const std::int64_t Minute = Day * cMinutesPerDay + Now.Hour * 60 + Now.Minute - Now.OffsetMinutes;
    GMinuteAndOffset.store(Minute << 32 | static_cast<std::uint32_t>(Now.OffsetMinutes),
                           std::memory_order_relaxed);
    return Now.OffsetMinutes;
}

} // namespace

TLocalInstant LocalClock() noexcept {
    const std::int64_t Now = platform::UtcNow100ns();
    const std::int64_t Local = Now + OffsetAt(Now / c100nsPerMinute) * c100nsPerMinute;
    const std::int64_t MSecs = Local / c100nsPerMSec;
    return {static_cast<std::int32_t>(MSecs / MSecsPerDay + cDay1601),
            static_cast<std::int32_t>(MSecs % MSecsPerDay)};
}

} // namespace qz
