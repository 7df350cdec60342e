// Weeks: their first and last days, their numbers, and the days of them.
//
//     QzBOWeek(EncodeDate(2024, 2, 29), 2);        // 2024-02-26, a Monday
//     QzWeekOfYear(EncodeDate(2018, 12, 31));      // 53
//     QzWeekOfYear(Now(), true);                   // "202435"
//     QzClosestWeekDay(Invoice + 30, wdNext);      // the Monday after, if it falls on a weekend
//
// Mind the two kinds of weeks. What goes by numbers counts weeks that start on Monday, week 1 being the one
// that holds the first Thursday of the year; what starts from a date takes weeks as the function says.
//
// A value outside the years 1 to 9999, one that is no number, and a result that TDateTime cannot hold raise
// EConvertError. The functions have no state and may run on any number of threads.
#pragma once

#include <qz/common/uQzDateTimeUtils/CalendarMonths.h>
#include <qz/runtime/base/UnicodeString.h>

namespace qz {

namespace detail {
QZ_API TDateTime FirstThursday(int AYear);
} // namespace detail

// The latest date up to ADate that falls on AFirstDay, 1 Sunday to 7 Saturday, at the same time of day.
// Another AFirstDay raises EConvertError.
QZ_API TDateTime QzBOWeek(TDateTime ADate, int AFirstDay);
// The first Saturday from ADate on, at the same time of day.
QZ_API TDateTime QzEOWeek(TDateTime ADate);
// Midnight of the Sunday of a numbered week.
QZ_API TDateTime QzEOWeek(int AYear, int AWeek);
// Midnight of the Monday of a numbered week. Any number goes, 0 being the week before the first.
QZ_API TDateTime QzWeekToDate(int AYear, int AWeek);

// Midnight of the first Thursday of the year.
QZ_API TDateTime QzFirstThursdayOfYear(TDateTime ADate);
TDateTime QzFirstThursdayOfYear(std::integral auto AYear) {
    return detail::FirstThursday(detail::CalendarYear(AYear));
}

// 1 to 53, always of the calendar year of the date, unlike ISO 8601: the days of January before week 1 belong
// to it, and the days of December that ISO 8601 counts to the next year are of week 53.
QZ_API std::uint16_t QzWeekOfYear(TDateTime ADate);
// The same in two digits, after four digits of the year if requested: "01", "202101".
QZ_API UnicodeString QzWeekOfYear(TDateTime ADate, bool AWithYear);

// How many days of the month are of the same weekday as ADate: 4 or 5.
QZ_API std::int32_t QzNthWeekDayOfMonth(TDateTime ADate);

// ADate, or for a Saturday or Sunday the Friday before or the Monday after it at the same time of day. What
// is not greater than 0 comes back unchanged.
QZ_API TDateTime QzClosestWeekDay(TDateTime ADate, TQzWorkDayAdjustment AAdjustment);

} // namespace qz
