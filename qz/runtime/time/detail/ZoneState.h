// The table of the zone that the system is set to, shared by all threads.
//
//     const TZoneTable& Zone = CurrentZone();
//
// Checks the system's setting at most twice a minute. Only a thread that finds no table yet waits for that;
// all else is without a lock. Tables stay forever, one for each zone that the process has ever seen.
#pragma once

#include <atomic>

#include <qz/platform/Clock.h>
#include <qz/runtime/time/detail/ZoneTable.h>

namespace qz::detail {

// The seconds for which a look at the setting is enough.
inline constexpr std::int64_t cZoneLookSeconds = 30;

struct TZoneState {
    std::atomic<const TZoneTable*> Table;
    std::atomic<std::int64_t> LookedAt; // seconds as of platform::UtcNowSeconds
};
extern QZ_API TZoneState GZoneState;

QZ_API const TZoneTable& LookAtZone(std::int64_t ANowSeconds) noexcept;
// Looks at the setting now, in full. What it finds holds for every look that begins later on any thread.
QZ_API void RefreshZone() noexcept;

inline const TZoneTable& CurrentZone(std::int64_t ANowSeconds = platform::UtcNowSeconds()) noexcept {
    // The clocks of a system may differ a little.
    const std::int64_t Age = ANowSeconds - GZoneState.LookedAt.load(std::memory_order_acquire);
    if (static_cast<std::uint64_t>(Age + 1) <= cZoneLookSeconds) [[likely]]
        return *GZoneState.Table.load(std::memory_order_acquire);
    return LookAtZone(ANowSeconds);
}

// What holds at this moment of platform::UtcNow100ns, which is now.
inline const TZonePeriod& ZoneAtClock(std::int64_t ANow100ns) noexcept {
    return CurrentZone(ANow100ns / 10'000'000).AtUtc(ANow100ns / 10'000 + Day1601 * cMSecsPerDay);
}

} // namespace qz::detail
