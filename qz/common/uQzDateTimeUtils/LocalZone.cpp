#include <qz/common/uQzDateTimeUtils/LocalZone.h>

#include <cmath>
#include <cstdlib>

#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/text/Format.h>
#include <qz/runtime/time/TimeZone.h>
#include <qz/runtime/values/BasicTypes.h>

namespace qz {
namespace {

constexpr TFieldInfo cInfoFields[] = {Field<&TQzTimeZoneInfo::Bias>(u"Bias"),
                                      Field<&TQzTimeZoneInfo::StandardDate>(u"StandardDate"),
                                      Field<&TQzTimeZoneInfo::DaylightDate>(u"DaylightDate"),
                                      Field<&TQzTimeZoneInfo::DaylightBias>(u"DaylightBias")};

int CurrentYear() {
    std::uint16_t Year, Month, Day;
    DecodeDate(Now(), Year, Month, Day);
    return Year;
}

TDateTime DateInThisYear(TDateTime ATime, std::int32_t AOccurrence, std::int32_t AMonth,
                         std::int32_t AWeekday) {
    if (AMonth == 0)
        return 0;
    if (!(std::fabs(ATime) <= 1))
        RaiseInvalidDateTime();
    const int Year = CurrentYear();
    const TDateTime First = EncodeDate(Year, AMonth, 1);
    TDateTime Result = First + ATime;
    std::int32_t Count = 0;
    for (int Day = 0; Day < MonthDays[IsLeapYear(Year)][AMonth - 1] && (Count == 0 || Count != AOccurrence);
         ++Day) {
        if (DayOfTheWeek(First + Day) != AWeekday)
            continue;
        ++Count;
        Result = First + Day + ATime;
    }
    return Result;
}

// UTC at the beginning of the day before a date, from the beginning of that date.
double UtcOfDayBefore(TDateTime ADate, bool AForceDaylight) {
    const double Day = std::trunc(ADate);
    return TTimeZone::Local().ToUniversalTime(Day - 1, AForceDaylight) - Day;
}

std::int32_t SignedMinutes(TDateTime ADifference) {
    std::uint16_t Hours, Minutes, Seconds, MSecs;
    DecodeTime(ADifference, Hours, Minutes, Seconds, MSecs);
    const std::int32_t Result = Hours * 60 + Minutes;
    return ADifference < 0 ? -Result : Result;
}

} // namespace

QZ_REGISTER_TYPES(TQzTimeZoneInfo);

constinit const TTypeInfo TTypeDescription<TQzTimeZoneInfo>::Info =
    DescribeRecord<TQzTimeZoneInfo>(u"TQzTimeZoneInfo", u"uQzDateTimeUtils", cInfoFields);

TQzTimeZoneInfo::TQzTimeZoneInfo(std::int32_t ABias, TDateTime AStandardTime,
                                 std::int32_t AStandardOccurrence, std::int32_t AStandardMonth,
                                 std::int32_t AStandardWeekday, std::int32_t ADaylightBias,
                                 TDateTime ADaylightTime, std::int32_t ADaylightOccurrence,
                                 std::int32_t ADaylightMonth, std::int32_t ADaylightWeekday)
    : Bias(ABias),
      StandardDate(DateInThisYear(AStandardTime, AStandardOccurrence, AStandardMonth, AStandardWeekday)),
      DaylightDate(DateInThisYear(ADaylightTime, ADaylightOccurrence, ADaylightMonth, ADaylightWeekday)),
      DaylightBias(ADaylightBias) {}

TQzTimeZoneInfo QzLocalTimeZone() {
    const TTimeZone& Zone = TTimeZone::Local();
    TZoneYearDay Standard, Daylight;
    Zone.GetYearChanges(CurrentYear(), Standard, Daylight);
    const auto Bias = static_cast<std::int32_t>(Zone.UtcOffset().Ticks / TTimeSpan::TicksPerMinute);
    TQzTimeZoneInfo Result(Bias, Standard.Time, Standard.Occurrence, Standard.Month, Standard.DayOfTheWeek, 0,
                           Daylight.Time, Daylight.Occurrence, Daylight.Month, Daylight.DayOfTheWeek);
    Result.DaylightBias =
        SignedMinutes(UtcOfDayBefore(Result.StandardDate, true) - UtcOfDayBefore(Result.DaylightDate, false));
    return Result;
}

UnicodeString QzGetTimeZone() {
    const std::int64_t Hours = TTimeZone::Local().GetUtcOffset(Now()).Ticks / TTimeSpan::TicksPerHour;
    if (Hours == 0)
        return u"GMT";
    return Format(Hours > 0 ? u"GMT +%d" : u"GMT %d", {Hours});
}

void QzCalcTimeZoneOffset(TDateTime AMoment, std::int32_t& AOffset, std::uint16_t& AHours,
                          std::uint16_t& AMinutes) {
    const auto Offset =
        static_cast<std::int32_t>(TTimeZone::Local().GetUtcOffset(AMoment).Ticks / TTimeSpan::TicksPerMinute);
    int Hours = std::abs(Offset) / 60;
    int Minutes = std::abs(Offset) % 60;
    if (Minutes >= 58) {
        ++Hours;
        Minutes = 0;
    } else if (Minutes <= 2) {
        Minutes = 0;
    }
    AOffset = Offset;
    AHours = static_cast<std::uint16_t>(Hours);
    AMinutes = static_cast<std::uint16_t>(Minutes);
}

TDateTime QzUTCToLocal(TDateTime AMoment) {
    return TTimeZone::Local().ToLocalTime(AMoment);
}

TDateTime QzLocalToUTC(TDateTime AMoment) {
    return TTimeZone::Local().ToUniversalTime(AMoment);
}

} // namespace qz
