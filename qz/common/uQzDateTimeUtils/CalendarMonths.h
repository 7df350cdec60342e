// Months and years: their first and last days, how long they are, and where in them a date lies.
//
//     QzEOMonth(2024, 2);              // 2024-02-29
//     QzBOYear(Now());                 // 1 January of this year, midnight
//     QzDayOfYear(QzEOYear(2024));     // 366
//
// What takes a date gives the same whatever the time of day is. It raises EConvertError for a value outside
// the years 1 to 9999 and for one that is no number. A result that TDateTime cannot hold raises EConvertError
// too. The functions have no state and may run on any number of threads.
//
// A year is any integer; all other numbers are dates, so that QzBOYear(Day + 1) takes the day after.
#pragma once

#include <concepts>

#include <qz/common/uQzDateTimeUtils/CalendarTypes.h>

namespace qz {

namespace detail {
// Raises EConvertError for a year that does not fit.
QZ_API int CalendarYear(std::int64_t AYear);
QZ_API TDateTime FirstOfYear(int AYear);
QZ_API TDateTime LastOfYear(int AYear);
} // namespace detail

// Midnight of the first and of the last day.
QZ_API TDateTime QzBOMonth(int AYear, int AMonth);
QZ_API TDateTime QzBOMonth(TDateTime ADate);
QZ_API TDateTime QzEOMonth(int AYear, int AMonth);
QZ_API TDateTime QzEOMonth(TDateTime ADate);
QZ_API TDateTime QzBOYear(TDateTime ADate);
TDateTime QzBOYear(std::integral auto AYear) {
    return detail::FirstOfYear(detail::CalendarYear(AYear));
}
QZ_API TDateTime QzEOYear(TDateTime ADate);
TDateTime QzEOYear(std::integral auto AYear) {
    return detail::LastOfYear(detail::CalendarYear(AYear));
}

// 28 to 31. The rule for leap years holds for any year; a month outside 1 to 12 raises EConvertError.
QZ_API std::uint16_t QzDaysInMonth(int AYear, int AMonth);
QZ_API std::uint16_t QzDaysInMonth(TDateTime ADate);
// 365 or 366, by the same rule.
QZ_API std::uint16_t QzDaysInYear(TDateTime ADate);
std::uint16_t QzDaysInYear(std::integral auto AYear) {
    return IsLeapYear(detail::CalendarYear(AYear)) ? 366 : 365;
}

QZ_API std::uint16_t QzDayOfMonth(TDateTime ADate);
// 1 for 1 January.
QZ_API std::uint16_t QzDayOfYear(TDateTime ADate);
QZ_API std::int32_t QzDecodeDate(TDateTime ADate, TQzDecodeType APart);

// The days from ASecond to AFirst, below 0 when AFirst is the earlier one, 0 on the same day. Unlike
// elsewhere the time of day is cut off, not rounded to the millisecond first.
QZ_API std::int32_t QzDateCompare(TDateTime AFirst, TDateTime ASecond);

} // namespace qz
