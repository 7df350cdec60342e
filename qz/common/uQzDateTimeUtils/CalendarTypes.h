// The types of calendar arithmetic: arguments of its operations, dates known to be in UTC, and durations.
//
//     TQzUTCDateTime Sent = NowUTC();                                      // the signature says in which zone
//     TQzDuration Lease = QzEncodeDuration(1, 6, 0, 0, 0, 0, 0, false);    // 18 months, 0 seconds
//
// The order of the enumerators is fixed. Each type is described for reflection.
#pragma once

#include <qz/runtime/time/DateTime.h>

namespace qz {

// How a week is written: 202101 or 01.
enum class TQzWeekFormat : std::uint8_t { wfYearWeek, wfWeek };
using enum TQzWeekFormat;

// How long a period of a calendar is.
enum class TQzDatePeriod : std::uint8_t {
    dpNone,
    dpYear,
    dpHalfYear,
    dpQuarter,
    dpFourWeeks,
    dpMonth,
    dpWeek,
    dpDay
};
using enum TQzDatePeriod;

// Where a day of the weekend goes: to the Friday before or the Monday after it.
enum class TQzWorkDayAdjustment : std::uint8_t { wdLast, wdNext };
using enum TQzWorkDayAdjustment;

// A part of a date.
enum class TQzDecodeType : std::uint8_t { dtYear, dtMonth, dtDayOfYear, dtDayOfMonth };
using enum TQzDecodeType;

// How a time states its zone: not at all, by its offset from UTC, or as UTC.
enum class TQzTimeZoneFormat : std::uint8_t { tzfNA, tzfOffset, tzfUTC };
using enum TQzTimeZoneFormat;

// A TDateTime in UTC. Conversion from and to other dates keeps the value.
using TQzUTCDate = TDateTimeKind<struct TQzUTCDateTag>;
using TQzUTCTime = TDateTimeKind<struct TQzUTCTimeTag>;
using TQzUTCDateTime = TDateTimeKind<struct TQzUTCDateTimeTag>;

// A span of time. Months and seconds stand apart, since no number of seconds makes a month.
struct TQzDuration {
    bool Negative = false;   // runs backwards
    std::int32_t Months = 0; // years and months
    double Seconds = 0;      // days and all that is shorter

    constexpr TQzDuration() noexcept = default;
    // Takes the values as they are.
    constexpr TQzDuration(std::int32_t AMonths, double ASeconds, bool ANegative) noexcept
        : Negative(ANegative),
          Months(AMonths),
          Seconds(ASeconds) {}
    friend constexpr bool operator==(const TQzDuration&, const TQzDuration&) noexcept = default;
};

// Years and months as months, the rest as seconds. No part has an upper bound: 90 minutes are 5400 seconds.
constexpr TQzDuration QzEncodeDuration(std::uint16_t AYears, std::uint16_t AMonths, std::uint16_t ADays,
                                       std::uint16_t AHours, std::uint16_t AMinutes, std::uint16_t ASeconds,
                                       std::uint16_t AMilliSeconds, bool ANegative) noexcept {
    const std::int64_t Seconds = ((std::int64_t{ADays} * 24 + AHours) * 60 + AMinutes) * 60 + ASeconds;
    return {AYears * 12 + AMonths, static_cast<double>(Seconds) + AMilliSeconds / 1000.0, ANegative};
}

} // namespace qz

QZ_TYPE_INFO(qz::TQzWeekFormat);
QZ_TYPE_INFO(qz::TQzDatePeriod);
QZ_TYPE_INFO(qz::TQzWorkDayAdjustment);
QZ_TYPE_INFO(qz::TQzDecodeType);
QZ_TYPE_INFO(qz::TQzTimeZoneFormat);
QZ_TYPE_INFO(qz::TQzUTCDate);
QZ_TYPE_INFO(qz::TQzUTCTime);
QZ_TYPE_INFO(qz::TQzUTCDateTime);
QZ_TYPE_INFO(qz::TQzDuration);
