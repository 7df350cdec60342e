// The local time of day at the cost of a look at the clock.
//
//     const TLocalInstant Now = LocalClock();
//     Show(Now.Day, Now.MSecs);
//
// The clock is right across a change of the zone's offset, and notices another zone within a minute, as
// TTimeZone does, from which it has the offset. Any thread, without a lock.
#pragma once

#include <cstdint>

#include <qz/platform/Export.h>

namespace qz {

struct TLocalInstant {
    std::int32_t Day;   // from 1899-12-30, as in TDateTime
    std::int32_t MSecs; // since midnight
};

QZ_API TLocalInstant LocalClock() noexcept;

} // namespace qz
