// Dates and times as text and back.
//
//     FormatDateTime("yyyy-mm-dd hh:nn:ss.zzz", Now());        // "2024-02-29 14:05:09.070"
//     FormatDateTime("dddd, d mmmm yyyy 'at' h am/pm", When);  // "Thursday, 29 February 2024 at 2 pm"
//     if (TDateTime When; TryStrToDate(Text, When)) ...
//
// A pattern is made of these, in either case of letter:
//
//     d dd ddd dddd   day, with two digits, short and long name of the day       ddddd dddddd   short, long date
//     m mm mmm mmmm   month alike; m and mm after h or hh are minutes            yy yyyy        year
//     h hh n nn s ss  hour, minute, second, without or with two digits            t tt           short, long time
//     z zzz           millisecond, without or with three digits    c   short date, and long time unless midnight
//     am/pm a/p       the half of the day as these letters stand in the pattern; ampm as the settings name it
//     / :             the separators of the settings               '...' "..."   a literal; a doubled quote is one
//
// Hours count to 12 where a mark of the half of the day follows before the next hour, or stands before the
// first. All other characters stand for themselves. Functions without settings use DefaultFormatSettings().
// All may run on any number of threads.
#pragma once

#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/text/FormatSettings.h>
#include <qz/runtime/time/DateTime.h>

namespace qz {

// An empty pattern counts as "c". The patterns that c, t, tt, ddddd and dddddd stand for may not refer to
// others: such references are left out. Raises EConvertError as SplitDateTime does.
QZ_API UnicodeString FormatDateTime(const TStringArg& APattern, TDateTime AValue);
QZ_API UnicodeString FormatDateTime(const TStringArg& APattern, TDateTime AValue,
                                    const TFormatSettings& ASettings);

// By ShortDateFormat, by LongTimeFormat, by both; the last without the time at midnight.
QZ_API UnicodeString DateToStr(TDateTime AValue);
QZ_API UnicodeString DateToStr(TDateTime AValue, const TFormatSettings& ASettings);
QZ_API UnicodeString TimeToStr(TDateTime AValue);
QZ_API UnicodeString TimeToStr(TDateTime AValue, const TFormatSettings& ASettings);
QZ_API UnicodeString DateTimeToStr(TDateTime AValue);
QZ_API UnicodeString DateTimeToStr(TDateTime AValue, const TFormatSettings& ASettings);

// Day, month and year as numbers, in the order of ShortDateFormat and with DateSeparator between them; the
// month may be a name of the settings. Words that a pattern holds are not read. Without a year it is the
// present one; a year of one or two digits lies in the window of the settings. Raises EConvertError, "'%s' is
// not a valid date".
QZ_API TDateTime StrToDate(const TStringArg& AText);
QZ_API TDateTime StrToDate(const TStringArg& AText, const TFormatSettings& ASettings);
// Hour, then minute and second if wanted, with TimeSeparator between them, then the decimal separator or a
// point and a number of milliseconds: ".5" is 5 of them. In front or after, the name of the half of the day
// in the settings, or AM or PM. Raises EConvertError, "'%s' is not a valid time".
QZ_API TDateTime StrToTime(const TStringArg& AText);
QZ_API TDateTime StrToTime(const TStringArg& AText, const TFormatSettings& ASettings);
// A date, a date and a time, or a time alone. Raises EConvertError, "'%s' is not a valid date and time".
QZ_API TDateTime StrToDateTime(const TStringArg& AText);
QZ_API TDateTime StrToDateTime(const TStringArg& AText, const TFormatSettings& ASettings);

// Each gives false, and 0 as the value, instead.
QZ_API bool TryStrToDate(const TStringArg& AText, TDateTime& AValue);
QZ_API bool TryStrToDate(const TStringArg& AText, TDateTime& AValue, const TFormatSettings& ASettings);
QZ_API bool TryStrToTime(const TStringArg& AText, TDateTime& AValue);
QZ_API bool TryStrToTime(const TStringArg& AText, TDateTime& AValue, const TFormatSettings& ASettings);
QZ_API bool TryStrToDateTime(const TStringArg& AText, TDateTime& AValue);
QZ_API bool TryStrToDateTime(const TStringArg& AText, TDateTime& AValue, const TFormatSettings& ASettings);

QZ_API TDateTime StrToDateDef(const TStringArg& AText, TDateTime ADefault);
QZ_API TDateTime StrToDateDef(const TStringArg& AText, TDateTime ADefault, const TFormatSettings& ASettings);
QZ_API TDateTime StrToTimeDef(const TStringArg& AText, TDateTime ADefault);
QZ_API TDateTime StrToTimeDef(const TStringArg& AText, TDateTime ADefault, const TFormatSettings& ASettings);
QZ_API TDateTime StrToDateTimeDef(const TStringArg& AText, TDateTime ADefault);
QZ_API TDateTime StrToDateTimeDef(const TStringArg& AText, TDateTime ADefault,
                                  const TFormatSettings& ASettings);

} // namespace qz
