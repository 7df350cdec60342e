// Lengths of time and times of day as texts of hours, minutes and seconds.
//
//     QzTimeToStr(-3661, true);                                          // "-1:01:01"
//     QzStrToTimeToInt(u"1:59", false, trDuration, tfHourMin, 0);        // 7140
//     QzStrToTimeToInt(u"24:00", false, trEndTime, tfHourMin, 0);        // 86400
//
// The separator is the TimeSeparator of DefaultFormatSettings. Any thread.
#pragma once

#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/objects/TypeInfo.h>

namespace qz {

// What a text of hours and minutes says: a length of time, a time of day, or a time of day that may be 24:00.
enum class TQzTimeRange : std::uint8_t { trDuration, trPointOfTime, trEndTime };
using enum TQzTimeRange;

// How a length of time is written. Only tfHourMin and tfHourMinSec can be read.
enum class TQzTimeFormat : std::uint8_t {
    tfNone,
    tfHourMin,
    tfHourMinSec,
    tfDecHourM2,
    tfDecHourM3,
    tfDecMinM2
};
using enum TQzTimeFormat;

inline constexpr TTextConstant SInvalidTime =
    u"Invalid time passed.\r\nThere are not more than 60 seconds in a minute.";
inline constexpr TTextConstant SBetween0and59 = u"The string '%s' must contain a value between 0 and 59";
inline constexpr TTextConstant STimeConvertError =
    u"An error has occurred while converting a string to a time format.";
inline constexpr TTextConstant STimeDecodeError = u"An error has occurred while decoding a time parameter";

// Hours without limit, and two digits each of minutes and, if wanted, seconds. Halves of a second are rounded
// to the even one. A "-" stands before every negative value, also before one that is rounded to 0. Raises
// EConvertError, STimeDecodeError, for what is no number or beyond 2^62 seconds.
QZ_API UnicodeString QzTimeToStr(double ASeconds, bool AWithSeconds);

// The seconds that the text stands for. A "-" in front negates the result.
//
// - trEndTime: a text that starts with "24" is 86400; anything else is read as trPointOfTime.
// - trPointOfTime: a time of day as StrToTime reads it, where a separator at the end is ignored and the empty
//   text is midnight. Its seconds count if AWithSeconds. Raises Exception, STimeDecodeError.
// - trDuration: the empty text is 0, and so is any text for the other formats than these two. tfHourMin:
//   hours without limit, and minutes; missing ones are 0. Raises Exception, SInvalidTime, for more than 59
//   minutes, and EConvertError, "'%s' is not a valid integer value". tfHourMinSec: hours, minutes and
//   seconds; missing ones are 0. Raises EConvertError, STimeConvertError, for hours above AMaximum / 3600 - 1
//   and for minutes and seconds beyond 0 to 59.
//
// A result beyond 32 bits raises EConvertError, STimeConvertError.
QZ_API std::int32_t QzStrToTimeToInt(const TStringArg& AText, bool AWithSeconds, TQzTimeRange ARange,
                                     TQzTimeFormat AFormat, std::int32_t AMaximum);

} // namespace qz

QZ_TYPE_INFO(qz::TQzTimeRange);
QZ_TYPE_INFO(qz::TQzTimeFormat);
