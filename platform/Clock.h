// The time of day. Any thread.
//
//     const TLocalTime Now = LocalNow();
//     Write(Now.Hour, Now.Minute);
#pragma once

#include <cstdint>

#include "platform/Export.h"

namespace qz::platform {

// A point of time on the wall clock, in the Gregorian calendar.
struct TLocalTime {
    uint16_t Year;         // 1601 and later
    uint8_t Month;         // 1 to 12
    uint8_t Day;           // 1 to 31
    uint8_t Hour;          // 0 to 23
    uint8_t Minute;        // 0 to 59
    uint8_t Second;        // 0 to 59
    uint8_t DayOfWeek;     // 0 Sunday to 6 Saturday
    uint16_t Millisecond;  // 0 to 999
    int16_t OffsetMinutes; // what was added to UTC, daylight saving time included: 60 in Paris in winter
};

// Steps of 100 nanoseconds since 1601-01-01 00:00:00 UTC, leap seconds not counted. As fine as the system's
// clock. Steps back when the clock is set back.
QZ_API int64_t UtcNow100ns() noexcept;

// The same in whole seconds, by the clock that is cheapest to look at: it may lag behind by a tick of 20 milliseconds.
QZ_API int64_t UtcNowSeconds() noexcept;

// The time in the system's time zone (Linux: TZ or /etc/localtime, as the C library last looked at them). All fields
// belong to the same instant.
QZ_API TLocalTime LocalNow() noexcept;

} // namespace qz::platform
