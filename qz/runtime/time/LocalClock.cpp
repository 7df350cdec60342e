#include <qz/runtime/time/LocalClock.h>

#include <qz/platform/Clock.h>
#include <qz/runtime/time/DateTime.h>
#include <qz/runtime/time/detail/ZoneState.h>

namespace qz {

TLocalInstant LocalClock() noexcept {
    const std::int64_t Now = platform::UtcNow100ns();
    const std::int64_t MSecs = Now / 10'000 + detail::ZoneAtClock(Now).Offset;
    return {static_cast<std::int32_t>(MSecs / MSecsPerDay + Day1601),
            static_cast<std::int32_t>(MSecs % MSecsPerDay)};
}

} // namespace qz
