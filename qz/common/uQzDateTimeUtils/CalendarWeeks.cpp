#include <qz/common/uQzDateTimeUtils/CalendarWeeks.h>

#include <cmath>

#include <qz/common/uQzSysUtils/Strings.h>
#include <qz/runtime/objects/Exceptions.h>

namespace qz {
namespace {

constexpr int cSunday = 1;
constexpr int cSaturday = 7;
constexpr int cThursday = 5;

// Days back from a day of the week to the last one of another.
constexpr int DaysSince(int ADayOfWeek, int AFirstDay) noexcept {
    return (ADayOfWeek + 7 - AFirstDay) % 7;
}

TDateTime CheckedDay(double ADay) {
    if (!(ADay >= MinDateTime && ADay <= MaxDateTime))
        RaiseInvalidDateTime();
    return ADay;
}

// The time of day counts forward on both sides of day 0, so that a sum may not simply cross it.
TDateTime MoveDays(TDateTime ADate, int ADays) {
    const double Whole = std::trunc(ADate.Value);
    const double Time = std::fabs(ADate.Value - Whole);
    const double Day = CheckedDay(Whole + ADays);
    return Day < 0 ? Day - Time : Day + Time;
}

struct TWeek {
    int Year;
    int Number;
};

double MondayOf(int AYear, int AWeek) {
    return detail::FirstThursday(AYear) + 7.0 * (static_cast<double>(AWeek) - 1) - 3;
}

// The Monday of week 1, as a day number; the year is 1 to 9999.
constexpr int FirstMonday(int AYear) noexcept {
    const int Before = AYear - 1;
    const int NewYear = 365 * Before + Before / 4 - Before / 100 + Before / 400; // from 0001-01-01, a Monday
    return NewYear + 3 - (NewYear + 3) % 7 - (DateDelta - 1);
}
static_assert(FirstMonday(1) == MinDateTime && FirstMonday(1900) == 2 && FirstMonday(2026) == 46020);

// The division cuts towards zero, so that the up to three days before week 1 are of week 1 too.
TWeek WeekOf(TDateTime ADate) {
    std::uint16_t Year, Month, Day;
    DecodeDate(ADate, Year, Month, Day); // refuses what does not fit into int
    return {Year, (static_cast<int>(ADate.Value) - FirstMonday(Year)) / 7 + 1};
}

} // namespace

TDateTime detail::FirstThursday(int AYear) {
    const TDateTime NewYear = FirstOfYear(AYear);
    return NewYear + DaysSince(cThursday, DayOfWeek(NewYear));
}

TDateTime QzBOWeek(TDateTime ADate, int AFirstDay) {
    if (AFirstDay < cSunday || AFirstDay > cSaturday)
        throw EConvertError(u"Invalid day of the week");
    return MoveDays(ADate, -DaysSince(DayOfWeek(ADate), AFirstDay));
}

TDateTime QzEOWeek(TDateTime ADate) {
    return MoveDays(ADate, cSaturday - DayOfWeek(ADate));
}

TDateTime QzEOWeek(int AYear, int AWeek) {
    return CheckedDay(MondayOf(AYear, AWeek) + 6);
}

TDateTime QzWeekToDate(int AYear, int AWeek) {
    return CheckedDay(MondayOf(AYear, AWeek));
}

TDateTime QzFirstThursdayOfYear(TDateTime ADate) {
    return detail::FirstThursday(QzDecodeDate(ADate, dtYear));
}

std::uint16_t QzWeekOfYear(TDateTime ADate) {
    return static_cast<std::uint16_t>(WeekOf(ADate).Number);
}

UnicodeString QzWeekOfYear(TDateTime ADate, bool AWithYear) {
    const TWeek Week = WeekOf(ADate);
    return AWithYear ? QzPadLeft(Week.Year * 100 + Week.Number, 6, u'0') : QzPadLeft(Week.Number, 2, u'0');
}

std::int32_t QzNthWeekDayOfMonth(TDateTime ADate) {
    std::uint16_t Year, Month, Day;
    DecodeDate(ADate, Year, Month, Day);
    const int First = (Day - 1) % 7 + 1;
    return (QzDaysInMonth(Year, Month) - First) / 7 + 1;
}

TDateTime QzClosestWeekDay(TDateTime ADate, TQzWorkDayAdjustment AAdjustment) {
    if (!(ADate > 0))
        return ADate;
    const int Day = DayOfWeek(ADate);
    if (Day != cSunday && Day != cSaturday)
        return ADate;
    const int ToMonday = Day == cSunday ? 1 : 2;
    return MoveDays(ADate, AAdjustment == wdNext ? ToMonday : ToMonday - 3);
}

} // namespace qz
