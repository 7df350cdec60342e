// TZoneYearDay: a yearly day on which a time zone changes its offset.
//
//     const TZoneYearDay LastSundayOfMarch{.Month = 3, .Occurrence = 5, .DayOfTheWeek = 7, .Time = 2.0 / 24};
#pragma once

#include <qz/runtime/time/DateTime.h>

namespace qz {

// An occurrence of a weekday in a month, and a time of day. Month 0 is no day.
struct TZoneYearDay {
    int Month = 0;
    int Occurrence = 0;   // 1 to 4, 5 for the last
    int DayOfTheWeek = 0; // 1 Monday to 7 Sunday
    TTime Time;
};

} // namespace qz
