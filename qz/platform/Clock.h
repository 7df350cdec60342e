// The time of day. Any thread.
//
//     const std::int64_t Start = UtcNow100ns();
#pragma once

#include <cstdint>

#include <qz/platform/Export.h>

namespace qz::platform {

// Units of 100 nanoseconds since 1601-01-01 00:00:00 UTC, without leap seconds, at the resolution of the
// system clock. Goes back when the clock is set back.
QZ_API std::int64_t UtcNow100ns() noexcept;

// The same in whole seconds, from a coarse clock that may be 20 milliseconds late.
QZ_API std::int64_t UtcNowSeconds() noexcept;

} // namespace qz::platform
