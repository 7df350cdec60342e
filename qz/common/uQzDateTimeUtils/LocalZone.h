// The zone of this machine: local time and UTC, its offset, and the days on which it changes.
//
//     TDateTime Shown = QzUTCToLocal(Received);
//     QzGetTimeZone();                              // "GMT +1"
//     QzLocalTimeZone().DaylightDate;               // when summer time begins this year
//
// TTimeZone::Local does the work, and what it raises passes through: ELocalTimeInvalid for a local time that
// the clocks skipped, EConvertError for a value that is no date. Any thread.
#pragma once

#include <qz/runtime/time/DateTime.h>

namespace qz {

// When a zone changes in the current year.
struct TQzTimeZoneInfo {
    std::int32_t Bias = 0;         // minutes east of UTC, now
    TDateTime StandardDate;        // when standard time begins; 0 without such a rule
    TDateTime DaylightDate;        // when daylight time begins; 0 without such a rule
    std::int32_t DaylightBias = 0; // of QzLocalTimeZone: -60 where the clocks go ahead by an hour in summer

    TQzTimeZoneInfo() noexcept = default;
    // The dates are given by a month, 0 for none, a weekday, 1 Monday to 7 Sunday, and its occurrence in that
    // month, where too high a number is the last; the time is a fraction of a day. Raises EConvertError for a
    // month beyond 12 and a time of more than a day.
    QZ_API TQzTimeZoneInfo(std::int32_t ABias, TDateTime AStandardTime, std::int32_t AStandardOccurrence,
                           std::int32_t AStandardMonth, std::int32_t AStandardWeekday,
                           std::int32_t ADaylightBias, TDateTime ADaylightTime,
                           std::int32_t ADaylightOccurrence, std::int32_t ADaylightMonth,
                           std::int32_t ADaylightWeekday);
    friend bool operator==(const TQzTimeZoneInfo&, const TQzTimeZoneInfo&) noexcept = default;
};

// Has both dates or, where the zone does not change to both kinds of time in this year, neither.
QZ_API TQzTimeZoneInfo QzLocalTimeZone();

// The offset now, of standard time in an hour that the clocks show twice, in whole hours: "GMT", "GMT +1",
// "GMT -5". What is beyond the hours is left out: +5:30 gives "GMT +5".
QZ_API UnicodeString QzGetTimeZone();

// The offset at a local time in whole minutes, cut off, and the same without its sign in hours and minutes,
// where two minutes more or less than an hour count as the hour.
QZ_API void QzCalcTimeZoneOffset(TDateTime AMoment, std::int32_t& AOffset, std::uint16_t& AHours,
                                 std::uint16_t& AMinutes);

QZ_API TDateTime QzUTCToLocal(TDateTime AMoment);
// Of a time that the clocks showed twice, the one of standard time.
QZ_API TDateTime QzLocalToUTC(TDateTime AMoment);

} // namespace qz

QZ_TYPE_INFO(qz::TQzTimeZoneInfo);
