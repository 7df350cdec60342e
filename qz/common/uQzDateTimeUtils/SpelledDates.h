// Dates in which the month is a word, dates by the day first, and the date format of the machine.
//
//     ConvertDateTimeToLUO(EncodeDateTime(2021, 3, 7, 13, 5, 9, 45));   // "MAR  7 2021  1:05:09:045PM"
//     QzStrToDateTime(u"07-03-2021 13:05");                             // 7 March
//
// Any thread.
#pragma once

#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/time/DateTime.h>

namespace qz {

// An English month of three capital letters, day, year, and the time of a 12-hour clock with milliseconds.
// Raises EConvertError, "Invalid date and time", for a value that is no date.
QZ_API UnicodeString ConvertDateTimeToLUO(TDateTime AValue);
// Reads it back. Any delimiters of QzTokenize may separate the seven pieces, and small letters are taken too.
// Raises EStringListError for a missing piece, and EConvertError for a piece that is no number, a month of
// another name and numbers out of range.
QZ_API TDateTime ConvertLUOToDateTime(const TStringArg& AText);

// Day, month and year with dashes, whatever the settings of the machine are; the time, if there is one, by
// its settings. Raises EConvertError, "'%s' is not a valid date and time".
QZ_API TDateTime QzStrToDateTime(const TStringArg& AText);

// The short date format of DefaultFormatSettings with a year of four digits: "d/M/yy" becomes "d/M/yyyy".
QZ_API UnicodeString QzShortDateFormatY2k();

} // namespace qz
