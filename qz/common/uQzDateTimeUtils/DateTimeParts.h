// TQzDateTimeParts: a date and time of ISO 8601 as the numbers that its text holds, and the reader that fills
// it.
//
//     const TQzDateTimeParts Parts = QzDecodeISODateTime(u"2021-03-07T10:30:15,25+05:30");
//     Parts.MSec;          // 250
//     Parts.OffSet;        // 330 minutes east of UTC
//     Parts.UTC();         // 2021-03-07 05:00:15.250
//
// Any thread. QzISOStrToDateTime is the reader that gives a value in local time.
#pragma once

#include <qz/common/uQzDateTimeUtils/CalendarTypes.h>
#include <qz/runtime/base/StringArg.h>

namespace qz {

struct TQzDateTimeParts {
    bool HasDate = false; // Year, Month and Day hold a date
    std::uint16_t Year = 0, Month = 0, Day = 0;
    bool HasTime = false; // Hour, Min, Sec and MSec hold a time
    std::uint16_t Hour = 0, Min = 0, Sec = 0, MSec = 0;
    bool IsBC = false; // the text began with a minus sign
    TQzTimeZoneFormat TimeZoneFormat = tzfNA;
    std::int16_t OffSet = 0; // minutes east of UTC, of tzfOffset

    // What the text holds, 0 for what it does not hold; negated if IsBC. Each raises EConvertError, "Invalid
    // argument to date encode" or "Invalid argument to time encode", for numbers that are no date or time.
    QZ_API TDateTime Date() const;
    QZ_API TDateTime Time() const;
    QZ_API TDateTime DateTime() const;
    // DateTime in UTC. Without a zone it is taken as local time, and ELocalTimeInvalid passes through.
    QZ_API TDateTime UTC() const;

    friend bool operator==(const TQzDateTimeParts&, const TQzDateTimeParts&) noexcept = default;
};

// Reads "2021-03-07T10:30:15.25+05:30" and its shorter forms. Nothing is converted between zones.
//
// - A minus sign may stand first. The year has four digits, month and day have two. Each "-" between them
//   may be missing. An upper-case "T" starts the time, and a ":" after the first two digits makes the text a
//   time alone.
// - Hours and minutes have two digits, with one character of any kind between them. Unless the text ends
//   there or "+" or "-" follows, one character is passed, and any number of digits are the seconds. "." or
//   "," and digits are a fraction, cut to milliseconds. A "Z" right after the minutes is passed too, and so
//   is lost.
// - A zone is "Z", or a sign, two digits, one character of any kind and the minutes.
// - Control characters (below 32) after a separator, a sign or the "T" are passed. Elsewhere they stay part
//   of the number before them. What follows a complete text is ignored.
//
// The empty text and "0" give parts that hold nothing. Raises EConvertError, "'%s' is not a valid integer
// value", where a number is missing, is no integer as StrToInt reads it, or does not fit into 16 bits. The
// ranges of a calendar are not checked.
QZ_API TQzDateTimeParts QzDecodeISODateTime(const TStringArg& AText);

// The same. If reading raises, the parts hold the numbers of ADefault, but HasDate and HasTime are false, so
// that DateTime gives 0. Raises EConvertError, "Invalid date and time", if ADefault is no date.
QZ_API TQzDateTimeParts QzDecodeISODateTimeDef(const TStringArg& AText, TDateTime ADefault);

} // namespace qz

QZ_TYPE_INFO(qz::TQzDateTimeParts);
