// TDateTime: a point in time as a float, and its parts.
//
//     TDateTime When = EncodeDate(2024, 2, 29) + EncodeTime(12, 30, 0, 0);
//     std::uint16_t Year, Month, Day;
//     DecodeDate(When, Year, Month, Day);
//     When += 1.5;                                   // a day and a half later
//
// The whole part counts days from 1899-12-30 of the proleptic Gregorian calendar, the fraction is the time of
// day. The time of day counts forward also before day 0: -1.25 is 1899-12-29 06:00. Years go from 1 to 9999;
// the time zone is whatever the user of the value means. What takes a value apart rounds it to the
// millisecond first, so that date and time always fit each other.
//
// All functions may run on any number of threads.
#pragma once

#include <cstdint>
#include <iosfwd>

#include <qz/runtime/objects/TypeInfo.h>

namespace qz {

// A double with its own type, so that reflection and overloads distinguish dates from numbers.
template <class TTag> struct TDateTimeKind {
    double Value = 0;

    constexpr TDateTimeKind() noexcept = default;
    constexpr TDateTimeKind(double AValue) noexcept : Value(AValue) {}
    template <class TOther>
    constexpr TDateTimeKind(TDateTimeKind<TOther> AOther) noexcept : Value(AOther.Value) {}
    constexpr operator double() const noexcept { return Value; }
    constexpr TDateTimeKind& operator+=(double ADays) noexcept {
        Value += ADays;
        return *this;
    }
    constexpr TDateTimeKind& operator-=(double ADays) noexcept {
        Value -= ADays;
        return *this;
    }
};

using TDateTime = TDateTimeKind<struct TDateTimeTag>;
using TDate = TDateTimeKind<struct TDateTag>; // the fraction does not matter
using TTime = TDateTimeKind<struct TTimeTag>; // the whole part does not matter

// Writes "2024-01-31 07:15:02.250"; a value outside the years 1 to 9999 as a number.
QZ_API std::ostream& operator<<(std::ostream& AStream, TDateTime ADate);
template <class TTag> std::ostream& operator<<(std::ostream& AStream, TDateTimeKind<TTag> ADate) {
    return AStream << TDateTime(ADate);
}

inline constexpr int HoursPerDay = 24;
inline constexpr int MinsPerDay = HoursPerDay * 60;
inline constexpr int SecsPerDay = MinsPerDay * 60;
inline constexpr int MSecsPerDay = SecsPerDay * 1000;
inline constexpr std::int64_t Day1601 = -109205;        // 1601-01-01, where file times begin, from 1899-12-30
inline constexpr int DateDelta = 693594;                // days from 0001-01-01, counted as 1, to 1899-12-30
inline constexpr double MinDateTime = -693593.0;        // 0001-01-01
inline constexpr double MaxDateTime = 2958465.99999999; // 9999-12-31, the last millisecond of it
// Days of the months, January first; [1] in leap years.
inline constexpr std::uint8_t MonthDays[2][12] = {{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31},
                                                  {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31}};

constexpr bool IsLeapYear(int AYear) noexcept {
    return (AYear & (AYear % 25 == 0 ? 15 : 3)) == 0; // years of 100 are those of 4 and 25, and so on
}

// Days from 1899-12-30 to the first day of a month, which may lie outside 1 to 12 and so in another year.
QZ_API std::int64_t DayNumber(std::int64_t AYear, std::int64_t AMonth, std::int64_t ADay) noexcept;

// Raises EConvertError, "Invalid argument to date encode", unless the parts are a day of the years 1 to 9999.
QZ_API TDateTime EncodeDate(int AYear, int AMonth, int ADay);
QZ_API bool TryEncodeDate(int AYear, int AMonth, int ADay, TDateTime& ADate) noexcept;
// Raises EConvertError, "Invalid argument to time encode", outside 00:00:00.000 to 23:59:59.999.
QZ_API TDateTime EncodeTime(int AHour, int AMinute, int ASecond, int AMilliSecond);
QZ_API bool TryEncodeTime(int AHour, int AMinute, int ASecond, int AMilliSecond, TDateTime& ATime) noexcept;
// Either message, and the time of day counted forward also before day 0.
QZ_API TDateTime EncodeDateTime(int AYear, int AMonth, int ADay, int AHour, int AMinute, int ASecond,
                                int AMilliSecond);

// A value as whole days from 1899-12-30 and milliseconds of the day, rounded.
struct TDayAndTime {
    std::int32_t Day;
    std::int32_t MSecs;
};
// Raises EConvertError, "Invalid date and time", for a value outside the years 1 to 9999 and for one that is
// no number.
QZ_API TDayAndTime SplitDateTime(TDateTime AValue);
// Raises that EConvertError.
[[noreturn]] QZ_API void RaiseInvalidDateTime();
QZ_API bool TrySplitDateTime(TDateTime AValue, TDayAndTime& AParts) noexcept;
QZ_API TDateTime JoinDateTime(TDayAndTime AParts) noexcept;

// Each raises EConvertError as SplitDateTime does.
QZ_API void DecodeDate(TDateTime AValue, std::uint16_t& AYear, std::uint16_t& AMonth, std::uint16_t& ADay);
// True in a leap year. ADayOfWeek as DayOfWeek gives it.
QZ_API bool DecodeDateFully(TDateTime AValue, std::uint16_t& AYear, std::uint16_t& AMonth,
                            std::uint16_t& ADay, std::uint16_t& ADayOfWeek);
QZ_API void DecodeTime(TDateTime AValue, std::uint16_t& AHour, std::uint16_t& AMinute, std::uint16_t& ASecond,
                       std::uint16_t& AMilliSecond);
QZ_API void DecodeDateTime(TDateTime AValue, std::uint16_t& AYear, std::uint16_t& AMonth, std::uint16_t& ADay,
                           std::uint16_t& AHour, std::uint16_t& AMinute, std::uint16_t& ASecond,
                           std::uint16_t& AMilliSecond);

// 1 Sunday to 7 Saturday.
QZ_API int DayOfWeek(TDateTime AValue);
// 1 Monday to 7 Sunday, as ISO 8601 numbers them.
QZ_API int DayOfTheWeek(TDateTime AValue);
// The same day and time so many months later or earlier; a day that the month lacks becomes its last.
QZ_API TDateTime IncMonth(TDateTime AValue, int AMonths = 1);
// The day with the time of another value, and the other way round.
QZ_API void ReplaceTime(TDateTime& AValue, TDateTime ATime);
QZ_API void ReplaceDate(TDateTime& AValue, TDateTime ADate);

// The clock, in the system's time zone or in UTC; to the millisecond.
QZ_API TDateTime Now();
QZ_API TDateTime Date();
QZ_API TDateTime Time();
QZ_API TDateTime NowUTC();

} // namespace qz

QZ_TYPE_INFO(qz::TDateTime);
QZ_TYPE_INFO(qz::TDate);
QZ_TYPE_INFO(qz::TTime);
