#include "runtime/time/DateTime.h"

#include <algorithm>
#include <cmath>

#include "platform/Clock.h"
#include "runtime/errors/Exceptions.h"
#include "runtime/reflection/Describe.h"

namespace qz {

constinit const TTypeInfo TTypeDescription<TDateTime>::Info =
    DescribeType<TDateTime>(tkFloat, u"TDateTime", u"System");
constinit const TTypeInfo TTypeDescription<TDate>::Info = DescribeType<TDate>(tkFloat, u"TDate", u"System");
constinit const TTypeInfo TTypeDescription<TTime>::Info = DescribeType<TTime>(tkFloat, u"TTime", u"System");

namespace {

constexpr std::int64_t cDaysPer400Years = 146097;
constexpr std::int64_t cFirstDay = -693593;
constexpr std::int64_t cLastDay = 2958465;
// Days from 0000-03-01 to 1899-12-30. Years that begin in March have their leap day at the end.
constexpr std::int64_t cDaysFromMarch0 = 693899;
constexpr std::int64_t cDay1601 = -109205;
constexpr std::int64_t c100nsPerMSec = 10000;

constexpr std::int64_t FloorDiv(std::int64_t AValue, std::int64_t ABy) noexcept {
    return (AValue - (AValue < 0 ? ABy - 1 : 0)) / ABy;
}

struct TYearMonthDay {
    int Year;
    int Month;
    int Day;
};

// The inverse of DayNumber, by the lengths of the 400-year, 100-year, 4-year and 1-year cycles.
TYearMonthDay CivilDate(std::int64_t ADayNumber) noexcept {
    const std::int64_t Days = ADayNumber + cDaysFromMarch0;
    const std::int64_t Era = FloorDiv(Days, cDaysPer400Years);
    const std::int64_t DayOfEra = Days - Era * cDaysPer400Years;
    const std::int64_t YearOfEra =
        (DayOfEra - DayOfEra / 1460 + DayOfEra / 36524 - DayOfEra / (cDaysPer400Years - 1)) / 365;
    const std::int64_t DayOfYear = DayOfEra - (365 * YearOfEra + YearOfEra / 4 - YearOfEra / 100);
    const std::int64_t MonthFromMarch = (5 * DayOfYear + 2) / 153;
    const std::int64_t Month = MonthFromMarch < 10 ? MonthFromMarch + 3 : MonthFromMarch - 9;
    return {static_cast<int>(Era * 400 + YearOfEra + (Month <= 2 ? 1 : 0)), static_cast<int>(Month),
            static_cast<int>(DayOfYear - (153 * MonthFromMarch + 2) / 5 + 1)};
}

constexpr bool IsDate(int AYear, int AMonth, int ADay) noexcept {
    return AYear >= 1 && AYear <= 9999 && AMonth >= 1 && AMonth <= 12 && ADay >= 1 &&
        ADay <= MonthDays[IsLeapYear(AYear)][AMonth - 1];
}

constexpr bool IsTime(int AHour, int AMinute, int ASecond, int AMilliSecond) noexcept {
    return AHour >= 0 && AHour < 24 && AMinute >= 0 && AMinute < 60 && ASecond >= 0 && ASecond < 60 &&
        AMilliSecond >= 0 && AMilliSecond < 1000;
}

constexpr std::int32_t MSecsOf(int AHour, int AMinute, int ASecond, int AMilliSecond) noexcept {
    return ((AHour * 60 + AMinute) * 60 + ASecond) * 1000 + AMilliSecond;
}

[[noreturn]] void RaiseDateEncode() {
    throw EConvertError(u"Invalid argument to date encode");
}
[[noreturn]] void RaiseTimeEncode() {
    throw EConvertError(u"Invalid argument to time encode");
}

TDayAndTime LocalDayAndTime() noexcept {
    const platform::TLocalTime Now = platform::LocalNow();
    return {static_cast<std::int32_t>(DayNumber(Now.Year, Now.Month, Now.Day)),
            // A leap second has no time of its own here.
            MSecsOf(Now.Hour, Now.Minute, std::min<int>(Now.Second, 59), Now.Millisecond)};
}

} // namespace

std::int64_t DayNumber(std::int64_t AYear, std::int64_t AMonth, std::int64_t ADay) noexcept {
    const std::int64_t Months = AYear * 12 + AMonth - 3;
    const std::int64_t Year = FloorDiv(Months, 12);
    const std::int64_t MonthFromMarch = Months - Year * 12;
    const std::int64_t Era = FloorDiv(Year, 400);
    const std::int64_t YearOfEra = Year - Era * 400;
    const std::int64_t DayOfEra =
        365 * YearOfEra + YearOfEra / 4 - YearOfEra / 100 + (153 * MonthFromMarch + 2) / 5 + ADay - 1;
    return Era * cDaysPer400Years + DayOfEra - cDaysFromMarch0;
}

bool TryEncodeDate(int AYear, int AMonth, int ADay, TDateTime& ADate) noexcept {
    if (!IsDate(AYear, AMonth, ADay))
        return false;
    ADate = static_cast<double>(DayNumber(AYear, AMonth, ADay));
    return true;
}

TDateTime EncodeDate(int AYear, int AMonth, int ADay) {
    TDateTime Result;
    if (!TryEncodeDate(AYear, AMonth, ADay, Result))
        RaiseDateEncode();
    return Result;
}

bool TryEncodeTime(int AHour, int AMinute, int ASecond, int AMilliSecond, TDateTime& ATime) noexcept {
    if (!IsTime(AHour, AMinute, ASecond, AMilliSecond))
        return false;
    ATime = MSecsOf(AHour, AMinute, ASecond, AMilliSecond) / static_cast<double>(MSecsPerDay);
    return true;
}

TDateTime EncodeTime(int AHour, int AMinute, int ASecond, int AMilliSecond) {
    TDateTime Result;
    if (!TryEncodeTime(AHour, AMinute, ASecond, AMilliSecond, Result))
        RaiseTimeEncode();
    return Result;
}

TDateTime EncodeDateTime(int AYear, int AMonth, int ADay, int AHour, int AMinute, int ASecond,
                         int AMilliSecond) {
    if (!IsDate(AYear, AMonth, ADay))
        RaiseDateEncode();
    if (!IsTime(AHour, AMinute, ASecond, AMilliSecond))
        RaiseTimeEncode();
    return JoinDateTime({static_cast<std::int32_t>(DayNumber(AYear, AMonth, ADay)),
                         MSecsOf(AHour, AMinute, ASecond, AMilliSecond)});
}

// The whole part has the sign, the time of day is what the fraction says without it.
bool TrySplitDateTime(TDateTime AValue, TDayAndTime& AParts) noexcept {
    if (!(AValue.Value > static_cast<double>(cFirstDay - 1) &&
          AValue.Value < static_cast<double>(cLastDay + 1)))
        return false;
    const double Whole = std::trunc(AValue.Value);
    auto Day = static_cast<std::int32_t>(Whole);
    auto MSecs = static_cast<std::int32_t>(std::round(std::fabs(AValue.Value - Whole) * MSecsPerDay));
    if (MSecs == MSecsPerDay) {
        ++Day;
        MSecs = 0;
    }
    if (Day < cFirstDay || Day > cLastDay)
        return false;
    AParts = {Day, MSecs};
    return true;
}

TDayAndTime SplitDateTime(TDateTime AValue) {
    TDayAndTime Result;
    if (!TrySplitDateTime(AValue, Result))
        throw EConvertError(u"Invalid date and time");
    return Result;
}

TDateTime JoinDateTime(TDayAndTime AParts) noexcept {
    const double Fraction = AParts.MSecs / static_cast<double>(MSecsPerDay);
    return AParts.Day < 0 ? AParts.Day - Fraction : AParts.Day + Fraction;
}

void DecodeDate(TDateTime AValue, std::uint16_t& AYear, std::uint16_t& AMonth, std::uint16_t& ADay) {
    const TYearMonthDay Civil = CivilDate(SplitDateTime(AValue).Day);
    AYear = static_cast<std::uint16_t>(Civil.Year);
    AMonth = static_cast<std::uint16_t>(Civil.Month);
    ADay = static_cast<std::uint16_t>(Civil.Day);
}

bool DecodeDateFully(TDateTime AValue, std::uint16_t& AYear, std::uint16_t& AMonth, std::uint16_t& ADay,
                     std::uint16_t& ADayOfWeek) {
    DecodeDate(AValue, AYear, AMonth, ADay);
    ADayOfWeek = static_cast<std::uint16_t>(DayOfWeek(AValue));
    return IsLeapYear(AYear);
}

void DecodeTime(TDateTime AValue, std::uint16_t& AHour, std::uint16_t& AMinute, std::uint16_t& ASecond,
                std::uint16_t& AMilliSecond) {
    const auto MSecs = static_cast<unsigned>(SplitDateTime(AValue).MSecs);
    AMilliSecond = static_cast<std::uint16_t>(MSecs % 1000);
    ASecond = static_cast<std::uint16_t>(MSecs / 1000 % 60);
    AMinute = static_cast<std::uint16_t>(MSecs / 60000 % 60);
    AHour = static_cast<std::uint16_t>(MSecs / 3600000);
}

void DecodeDateTime(TDateTime AValue, std::uint16_t& AYear, std::uint16_t& AMonth, std::uint16_t& ADay,
                    std::uint16_t& AHour, std::uint16_t& AMinute, std::uint16_t& ASecond,
                    std::uint16_t& AMilliSecond) {
    DecodeDate(AValue, AYear, AMonth, ADay);
    DecodeTime(AValue, AHour, AMinute, ASecond, AMilliSecond);
}

// 1899-12-30 was a Saturday.
int DayOfWeek(TDateTime AValue) {
    const std::int64_t Days = SplitDateTime(AValue).Day + std::int64_t{6};
    return static_cast<int>(Days - FloorDiv(Days, 7) * 7) + 1;
}

TDateTime IncMonth(TDateTime AValue, int AMonths) {
    const TDayAndTime Parts = SplitDateTime(AValue);
    const TYearMonthDay Civil = CivilDate(Parts.Day);
    const std::int64_t Months = std::int64_t{Civil.Year} * 12 + Civil.Month - 1 + AMonths;
    const std::int64_t Year = FloorDiv(Months, 12);
    const std::int64_t Month = Months - Year * 12 + 1;
    if (Year < 1 || Year > 9999)
        RaiseDateEncode();
    const int Last = MonthDays[IsLeapYear(static_cast<int>(Year))][Month - 1];
    return JoinDateTime(
        {static_cast<std::int32_t>(DayNumber(Year, Month, std::min(Civil.Day, Last))), Parts.MSecs});
}

void ReplaceTime(TDateTime& AValue, TDateTime ATime) {
    AValue = JoinDateTime({SplitDateTime(AValue).Day, SplitDateTime(ATime).MSecs});
}

void ReplaceDate(TDateTime& AValue, TDateTime ADate) {
    AValue = JoinDateTime({SplitDateTime(ADate).Day, SplitDateTime(AValue).MSecs});
}

TDateTime Now() {
    return JoinDateTime(LocalDayAndTime());
}
TDateTime Date() {
    return static_cast<double>(LocalDayAndTime().Day);
}
TDateTime Time() {
    return JoinDateTime({0, LocalDayAndTime().MSecs});
}

TDateTime NowUTC() {
    const std::int64_t MSecs = platform::UtcNow100ns() / c100nsPerMSec;
    const std::int64_t Days = FloorDiv(MSecs, MSecsPerDay);
    return JoinDateTime(
        {static_cast<std::int32_t>(Days + cDay1601), static_cast<std::int32_t>(MSecs - Days * MSecsPerDay)});
}

} // namespace qz
