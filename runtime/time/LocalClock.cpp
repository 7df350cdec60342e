#include "runtime/time/LocalClock.h"

#include <atomic>

#include "platform/Clock.h"
#include "runtime/time/DateTime.h"

namespace qz {
namespace {

constexpr std::int64_t c100nsPerSecond = 10'000'000;
constexpr std::int64_t c100nsPerMinute = 60 * c100nsPerSecond;
constexpr std::int64_t c100nsPerMSec = 10'000;
constexpr std::int64_t cDay1601 = -109205; // 1601-01-01 from 1899-12-30

// A minute of UTC since 1601 in the upper half, the seconds to add to it in the lower. One word, so that the two always
// belong together; whoever finds another minute asks anew.
constinit std::atomic<std::int64_t> GMinuteAndOffset{-1};

// The offset counts for the minute only if that did not end while the system was asked.
std::int64_t OffsetAt(std::int64_t AMinute) noexcept {
    const std::int64_t Known = GMinuteAndOffset.load(std::memory_order_relaxed);
    if (Known >> 32 == AMinute)
        return static_cast<std::int32_t>(Known & 0xFFFFFFFF);
    const std::int32_t Offset = platform::LocalOffsetSeconds();
    if (platform::UtcNow100ns() / c100nsPerMinute == AMinute)
        GMinuteAndOffset.store(AMinute << 32 | static_cast<std::uint32_t>(Offset), std::memory_order_relaxed);
    return Offset;
}

} // namespace

void RefreshLocalClock() noexcept {
    GMinuteAndOffset.store(-1, std::memory_order_relaxed);
}

TLocalInstant LocalClock() noexcept {
    for (;;) {
        const std::int64_t Now = platform::UtcNow100ns();
        const std::int64_t Offset = OffsetAt(Now / c100nsPerMinute);
        if (GMinuteAndOffset.load(std::memory_order_relaxed) >> 32 != Now / c100nsPerMinute)
            continue; // the minute has just changed, perhaps with the rule
        const std::int64_t MSecs = (Now + Offset * c100nsPerSecond) / c100nsPerMSec;
        return {static_cast<std::int32_t>(MSecs / MSecsPerDay + cDay1601),
                static_cast<std::int32_t>(MSecs % MSecsPerDay)};
    }
}

} // namespace qz
