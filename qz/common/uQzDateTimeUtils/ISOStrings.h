// Dates and times as texts of ISO 8601, and back by the position of the digits.
//
//     QzDateTimeToISOStr(EncodeDateTime(2021, 3, 7, 10, 30, 15, 0));   // "2021-03-07T10:30:15"
//     QzISOStrToDate(u"20210307");                                     // 2021-03-07
//     QzISOStrToDateTime(u"2021-03-07T10:30:15.123Z");                 // that moment in local time
//
// The readers look at fixed positions and take a fraction as milliseconds as it stands: ".5" is 5 of them.
// QzDecodeISODateTime reads more forms, takes fractions as fractions and leaves the zone to the caller. Any
// thread.
#pragma once

#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/time/DateTime.h>

namespace qz {

// "2021-03-07". It and the next raise EConvertError, "Invalid date and time", for a value that is no date.
QZ_API UnicodeString QzDateToISOStr(TDateTime AValue);
// "2021-03-07T10:30:15", and ".045" with milliseconds; without them they are cut off. There is no zone in it.
QZ_API UnicodeString QzDateTimeToISOStr(TDateTime AValue, bool AWithMSecs = false);
// The fraction of the value with the date of day 0: "1899-12-30T10:30:15". QzISOStrToTime reads it back. Less
// than half a millisecond before midnight is the next day. Raises the same for what is no number.
QZ_API UnicodeString QzTimeToISOStr(TDateTime AValue, bool AWithMSecs = false);

// Year, month and day from the first eight characters that are no "-"; what follows is ignored. The empty
// text and numbers that are all 0 give 0. Each reader raises EConvertError: "'%s' is not a valid integer
// value" where a number is missing, "Invalid argument to date encode" or "Invalid argument to time encode"
// out of range.
QZ_API TDateTime QzISOStrToDate(const TStringArg& AText);
// Hour, minute and second from two characters each, with one character of any kind between them; they start
// after the first "T" if there is one. A "." may follow, and milliseconds up to a "-" or "+", or else to the
// end of the text. A "Z" at the end converts from UTC to local time as of day 0; right after milliseconds it
// raises. Empty gives 0.
QZ_API TDateTime QzISOStrToTime(const TStringArg& AText);
// A date as QzISOStrToDate reads it, and after a "T" a time as QzISOStrToTime does. A "Z" at the end or an
// offset converts to local time; without them the value is kept as it is. The empty text and "0" give 0.
QZ_API TDateTime QzISOStrToDateTime(const TStringArg& AText);

} // namespace qz
