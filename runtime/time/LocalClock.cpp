#include "runtime/time/LocalClock.h"

#include "platform/Clock.h"
#include "runtime/time/DateTime.h"
#include "runtime/time/ZoneState.h"

namespace qz {

void RefreshLocalClock() noexcept {
    detail::RefreshZone();
}

TLocalInstant LocalClock() noexcept {
    const std::int64_t Now = platform::UtcNow100ns();
    const std::int64_t MSecs = Now / 10'000 + detail::ZoneAtClock(Now).Offset;
    return {static_cast<std::int32_t>(MSecs / MSecsPerDay + detail::cDay1601),
            static_cast<std::int32_t>(MSecs % MSecsPerDay)};
}

} // namespace qz
