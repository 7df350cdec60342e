// Unit uQzDateTimeUtils: arithmetic on dates and times of day, and time zones.
#pragma once

// The enumerations of the unit, dates that are in UTC, and
// TQzDuration, a span of months and seconds.
#include <qz/common/uQzDateTimeUtils/CalculateAge.h>
#include <qz/common/uQzDateTimeUtils/CalendarTypes.h>
// QzBOMonth, QzDaysInMonth, QzDayOfYear and their
// kin: where months and years begin and end.
#include <qz/common/uQzDateTimeUtils/CalendarMonths.h>
// QzBOWeek, QzWeekOfYear, QzClosestWeekDay:
// weeks, their numbers and days.
#include <qz/common/uQzDateTimeUtils/CalendarWeeks.h>
// QzAddMonths, QzAddSecs, QzRoundTime
// and their kin: dates moved.
#include <qz/common/uQzDateTimeUtils/CalendarMoves.h>
// TQzTimeZones: the offsets of zones
// by their abbreviations and names.
#include <qz/common/uQzDateTimeUtils/TimeZones.h>
// QzUTCToLocal, QzLocalToUTC, QzLocalTimeZone and their
// kin: the zone of this machine.
#include <qz/common/uQzDateTimeUtils/LocalZone.h>
// TQzDateTimeParts and QzDecodeISODateTime: ISO 8601
// as the numbers that a text holds.
#include <qz/common/uQzDateTimeUtils/DateTimeParts.h>
// QzDateTimeToISOStr, QzISOStrToDateTime and their
// kin: texts of ISO 8601.
#include <qz/common/uQzDateTimeUtils/ISOStrings.h>
// ConvertDateTimeToLUO, QzStrToDateTime:
// other texts of dates.
#include <qz/common/uQzDateTimeUtils/SpelledDates.h>
// QzTimeToStr, QzStrToTimeToInt:
// lengths of time and times of day.
#include <qz/common/uQzDateTimeUtils/TimeStrings.h>
