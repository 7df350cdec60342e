// Dates moved by units of the calendar or of the clock, and times rounded up.
//
//     QzAddMonths(EncodeDate(2024, 1, 31), 1);          // 2024-02-29
//     QzAddHrs(Now(), -36);
//     QzRoundTime(EncodeDateTime(2024, 2, 29, 10, 50, 30, 0), 15);    // 11:00:00
//
// Counts may be negative. Years, quarters and months keep the day, as far as the month has it, and the time
// of day to the millisecond; they raise EConvertError for a value or a result outside the years 1 to 9999 and
// for a value that is no number. Weeks and all that is shorter are added to the value as it is, unchecked;
// before day 0, 1899-12-30, where the float runs against the time of day, a part of a day thus moves
// backwards. The functions have no state and may run on any number of threads.
#pragma once

#include <qz/common/uQzDateTimeUtils/CalendarTypes.h>

namespace qz {

// 29 February becomes the 28th in a year without one.
QZ_API TDateTime QzAddYears(TDateTime ADate, std::int32_t ACount);
// A day that the month lacks becomes its last. A count of 0 changes nothing.
QZ_API TDateTime QzAddMonths(TDateTime ADate, std::int32_t ACount);
QZ_API TDateTime QzAddQuarters(TDateTime ADate, std::int32_t ACount);

constexpr TDateTime QzAddDays(TDateTime ADate, std::int32_t ACount) noexcept {
    return ADate + ACount;
}
constexpr TDateTime QzAddWeeks(TDateTime ADate, std::int32_t ACount) noexcept {
    return ADate + 7.0 * ACount;
}
constexpr TDateTime QzAddHrs(TDateTime ADate, std::int32_t ACount) noexcept {
    return ADate + ACount / 24.0;
}
constexpr TDateTime QzAddMins(TDateTime ADate, std::int32_t ACount) noexcept {
    return ADate + ACount / 1440.0;
}
constexpr TDateTime QzAddSecs(TDateTime ADate, std::int32_t ACount) noexcept {
    return ADate + ACount / 86400.0;
}
constexpr TDateTime QzAddMSecs(TDateTime ADate, std::int32_t ACount) noexcept {
    return ADate + ACount * 1.1574074074074074e-8;
}

// The minutes rounded up to a multiple of AInterval, and no seconds: 10:50:30 by 15 is 11:00:00, while
// 10:45:30 is a multiple and becomes 10:45:00. Raises EConvertError for an interval below 1, for a value as
// above, and where what comes out is no time of this day: hour 24, or a minute above 60, which intervals that
// do not divide 60 can give.
QZ_API TDateTime QzRoundTime(TDateTime ADate, std::int32_t AInterval);

} // namespace qz
