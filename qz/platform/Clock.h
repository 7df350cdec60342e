// The time of day. Any thread.
//
//     const std::int64_t Start = UtcNow100ns();
#pragma once

#include <cstdint>

#include <qz/platform/Export.h>

namespace qz::platform {

// Steps of 100 nanoseconds since 1601-01-01 00:00:00 UTC, leap seconds not counted. As fine as the system's
// clock. Steps back when the clock is set back.
QZ_API std::int64_t UtcNow100ns() noexcept;

// The same in whole seconds, by the clock that is cheapest to look at: it may lag behind by a tick of 20 milliseconds.
QZ_API std::int64_t UtcNowSeconds() noexcept;

} // namespace qz::platform
