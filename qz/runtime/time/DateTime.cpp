#include <qz/runtime/time/DateTime.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <ostream>

#include <qz/platform/Clock.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/time/LocalClock.h>

namespace qz {

QZ_REGISTER_TYPES(TDateTime, TDate, TTime);

constinit const TTypeInfo TTypeDescription<TDateTime>::Info =
    DescribeType<TDateTime>(tkFloat, u"TDateTime", u"System");
constinit const TTypeInfo TTypeDescription<TDate>::Info = DescribeType<TDate>(tkFloat, u"TDate", u"System");
constinit const TTypeInfo TTypeDescription<TTime>::Info = DescribeType<TTime>(tkFloat, u"TTime", u"System");

namespace {

constexpr std::uint32_t cDaysPer4Years = 1461;
constexpr std::int32_t cDaysPer400Years = 146097;
constexpr std::int32_t cFirstDay = -693593;
constexpr std::int32_t cLastDay = 2958465;
// Days from 0000-03-01 to 1899-12-30. Years that begin in March have their leap day at the end.
constexpr std::int32_t cDaysFromMarch0 = 693899;
constexpr std::int64_t c100nsPerMSec = 10000;

constexpr std::int64_t FloorDiv(std::int64_t AValue, std::int64_t ABy) noexcept {
    return (AValue - (AValue < 0 ? ABy - 1 : 0)) / ABy;
}

struct TYearMonthDay {
    int Year;
    int Month;
    int Day;
};

// The inverse of DayNumber for the days from cFirstDay to cLastDay. A division by the length of a cycle
// leaves the day within the cycle; centuries and years are counted in quarters of a day, so that leap days
// need no case of their own. The divisions by the length of a year and of a month are products whose high
// half is the quotient and whose low half still holds the remainder; that is exact as far as a century and a
// year reach.
constexpr TYearMonthDay CivilDate(std::int32_t ADayNumber) noexcept {
    constexpr std::uint64_t cYearFactor = 2939745; // 2^32 / cDaysPer4Years, rounded up
    constexpr std::uint32_t cMonthFactor = 2141;   // 2^16 * 5 / 153 months a day, rounded down
    constexpr std::uint32_t cMarch = 197913;       // 3 months, and what makes the rounding fit
    const std::uint32_t Quarters = 4 * static_cast<std::uint32_t>(ADayNumber + cDaysFromMarch0) + 3;
    const std::uint32_t Century = Quarters / cDaysPer400Years;
    const std::uint64_t Years = cYearFactor * (Quarters % cDaysPer400Years | 3);
    const std::uint32_t DayOfYear =
        static_cast<std::uint32_t>(Years) / static_cast<std::uint32_t>(cYearFactor) / 4;
    const std::uint32_t Months = cMonthFactor * DayOfYear + cMarch;
    const std::uint32_t IsNextYear = DayOfYear >= 306 ? 1 : 0; // January or February
    return {static_cast<int>(100 * Century + static_cast<std::uint32_t>(Years >> 32) + IsNextYear),
            static_cast<int>((Months >> 16) - 12 * IsNextYear),
            static_cast<int>((Months & 0xFFFF) / cMonthFactor + 1)};
}

constexpr bool IsDate(int AYear, int AMonth, int ADay) noexcept {
    return AYear >= 1 && AYear <= 9999 && AMonth >= 1 && AMonth <= 12 && ADay >= 1 &&
        ADay <= MonthDays[IsLeapYear(AYear)][AMonth - 1];
}

// Days of the year before each month; [1] in leap years.
constexpr auto cDaysBefore = [] {
    std::array<std::array<std::uint16_t, 12>, 2> Result{};
    for (std::size_t Leap = 0; Leap < 2; ++Leap)
        for (std::size_t Month = 1; Month < 12; ++Month)
            Result[Leap][Month] =
                static_cast<std::uint16_t>(Result[Leap][Month - 1] + MonthDays[Leap][Month - 1]);
    return Result;
}();

// DayNumber of a valid date.
constexpr std::int32_t DayOfDate(int AYear, int AMonth, int ADay) noexcept {
    const std::uint32_t YearsBefore = static_cast<std::uint32_t>(AYear) - 1;
    const std::uint32_t Centuries = YearsBefore / 100;
    const std::uint32_t Month = static_cast<std::uint32_t>(AMonth) - 1;
    return static_cast<std::int32_t>(cDaysPer4Years * YearsBefore / 4 - Centuries + Centuries / 4 +
                                     cDaysBefore[IsLeapYear(AYear)][Month]) +
        ADay - DateDelta;
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

// The exported functions stand on these, since calls among themselves would go through the table of the
// shared library. The whole part has the sign; the time of day is the absolute fraction.
bool TrySplit(TDateTime AValue, TDayAndTime& AParts) noexcept {
    if (!(AValue.Value > cFirstDay - 1 && AValue.Value < cLastDay + 1))
        return false;
    auto Day = static_cast<std::int32_t>(AValue.Value);
    const double Exactly = std::fabs(AValue.Value - Day) * MSecsPerDay;
    auto MSecs = static_cast<std::int32_t>(Exactly);
    MSecs += Exactly - MSecs >= 0.5 ? 1 : 0;
    if (MSecs == MSecsPerDay) {
        ++Day;
        MSecs = 0;
    }
    if (Day < cFirstDay || Day > cLastDay)
        return false;
    AParts = {Day, MSecs};
    return true;
}

TDayAndTime Split(TDateTime AValue) {
    TDayAndTime Result;
    if (!TrySplit(AValue, Result)) [[unlikely]]
        RaiseInvalidDateTime();
    return Result;
}

// The day of Split, without the time of day.
std::int32_t DayOf(TDateTime AValue) {
    if (!(AValue.Value > cFirstDay - 1 && AValue.Value < cLastDay + 1)) [[unlikely]]
        RaiseInvalidDateTime();
    auto Day = static_cast<std::int32_t>(AValue.Value);
    Day += std::fabs(AValue.Value - Day) * MSecsPerDay >= MSecsPerDay - 0.5 ? 1 : 0;
    if (Day < cFirstDay || Day > cLastDay) [[unlikely]]
        RaiseInvalidDateTime();
    return Day;
}

TDateTime Join(TDayAndTime AParts) noexcept {
    const double Fraction = AParts.MSecs / static_cast<double>(MSecsPerDay);
    return AParts.Day < 0 ? AParts.Day - Fraction : AParts.Day + Fraction;
}

// The parts of what Split gives.
void DecodeDay(std::int32_t ADayNumber, std::uint16_t& AYear, std::uint16_t& AMonth,
               std::uint16_t& ADay) noexcept {
    const TYearMonthDay Civil = CivilDate(ADayNumber);
    AYear = static_cast<std::uint16_t>(Civil.Year);
    AMonth = static_cast<std::uint16_t>(Civil.Month);
    ADay = static_cast<std::uint16_t>(Civil.Day);
}

void DecodeMSecs(std::int32_t AMSecs, std::uint16_t& AHour, std::uint16_t& AMinute, std::uint16_t& ASecond,
                 std::uint16_t& AMilliSecond) noexcept {
    const auto MSecs = static_cast<std::uint32_t>(AMSecs);
    AMilliSecond = static_cast<std::uint16_t>(MSecs % 1000);
    ASecond = static_cast<std::uint16_t>(MSecs / 1000 % 60);
    AMinute = static_cast<std::uint16_t>(MSecs / 60000 % 60);
    AHour = static_cast<std::uint16_t>(MSecs / 3600000);
}

TDayAndTime LocalDayAndTime() noexcept {
    const TLocalInstant Now = LocalClock();
    return {Now.Day, Now.MSecs};
}

} // namespace

void RaiseInvalidDateTime() {
    throw EConvertError(u"Invalid date and time");
}

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
    ADate = DayOfDate(AYear, AMonth, ADay);
    return true;
}

TDateTime EncodeDate(int AYear, int AMonth, int ADay) {
    if (!IsDate(AYear, AMonth, ADay)) [[unlikely]]
        RaiseDateEncode();
    return DayOfDate(AYear, AMonth, ADay);
}

bool TryEncodeTime(int AHour, int AMinute, int ASecond, int AMilliSecond, TDateTime& ATime) noexcept {
    if (!IsTime(AHour, AMinute, ASecond, AMilliSecond))
        return false;
    ATime = Join({0, MSecsOf(AHour, AMinute, ASecond, AMilliSecond)});
    return true;
}

TDateTime EncodeTime(int AHour, int AMinute, int ASecond, int AMilliSecond) {
    if (!IsTime(AHour, AMinute, ASecond, AMilliSecond)) [[unlikely]]
        RaiseTimeEncode();
    return Join({0, MSecsOf(AHour, AMinute, ASecond, AMilliSecond)});
}

TDateTime EncodeDateTime(int AYear, int AMonth, int ADay, int AHour, int AMinute, int ASecond,
                         int AMilliSecond) {
    if (!IsDate(AYear, AMonth, ADay))
        RaiseDateEncode();
    if (!IsTime(AHour, AMinute, ASecond, AMilliSecond))
        RaiseTimeEncode();
    return Join({DayOfDate(AYear, AMonth, ADay), MSecsOf(AHour, AMinute, ASecond, AMilliSecond)});
}

TDayAndTime SplitDateTime(TDateTime AValue) {
    return Split(AValue);
}

bool TrySplitDateTime(TDateTime AValue, TDayAndTime& AParts) noexcept {
    return TrySplit(AValue, AParts);
}

TDateTime JoinDateTime(TDayAndTime AParts) noexcept {
    return Join(AParts);
}

void DecodeDate(TDateTime AValue, std::uint16_t& AYear, std::uint16_t& AMonth, std::uint16_t& ADay) {
    DecodeDay(DayOf(AValue), AYear, AMonth, ADay);
}

bool DecodeDateFully(TDateTime AValue, std::uint16_t& AYear, std::uint16_t& AMonth, std::uint16_t& ADay,
                     std::uint16_t& ADayOfWeek) {
    DecodeDate(AValue, AYear, AMonth, ADay);
    ADayOfWeek = static_cast<std::uint16_t>(DayOfWeek(AValue));
    return IsLeapYear(AYear);
}

void DecodeTime(TDateTime AValue, std::uint16_t& AHour, std::uint16_t& AMinute, std::uint16_t& ASecond,
                std::uint16_t& AMilliSecond) {
    DecodeMSecs(Split(AValue).MSecs, AHour, AMinute, ASecond, AMilliSecond);
}

void DecodeDateTime(TDateTime AValue, std::uint16_t& AYear, std::uint16_t& AMonth, std::uint16_t& ADay,
                    std::uint16_t& AHour, std::uint16_t& AMinute, std::uint16_t& ASecond,
                    std::uint16_t& AMilliSecond) {
    const TDayAndTime Parts = Split(AValue);
    DecodeDay(Parts.Day, AYear, AMonth, ADay);
    DecodeMSecs(Parts.MSecs, AHour, AMinute, ASecond, AMilliSecond);
}

// Days since the Saturday before year 1 and so never below 0; 1899-12-30, day 0, was a Saturday too.
static std::uint32_t DaysSinceSaturday(TDateTime AValue) {
    constexpr std::int32_t cWholeWeeks = 693595;
    static_assert(cWholeWeeks % 7 == 0 && cWholeWeeks + cFirstDay > 0);
    return static_cast<std::uint32_t>(DayOf(AValue) + cWholeWeeks);
}

int DayOfWeek(TDateTime AValue) {
    return static_cast<int>((DaysSinceSaturday(AValue) + 6) % 7) + 1;
}

int DayOfTheWeek(TDateTime AValue) {
    return static_cast<int>((DaysSinceSaturday(AValue) + 5) % 7) + 1;
}

TDateTime IncMonth(TDateTime AValue, int AMonths) {
    const TDayAndTime Parts = Split(AValue);
    const TYearMonthDay Civil = CivilDate(Parts.Day);
    const std::int64_t Months = std::int64_t{Civil.Year} * 12 + Civil.Month - 1 + AMonths;
    if (Months < 1 * 12 || Months >= 10000 * 12)
        RaiseDateEncode();
    const auto Year = static_cast<int>(Months / 12);
    const auto Month = static_cast<int>(Months % 12) + 1;
    const int Last = MonthDays[IsLeapYear(Year)][Month - 1];
    return Join({DayOfDate(Year, Month, std::min(Civil.Day, Last)), Parts.MSecs});
}

void ReplaceTime(TDateTime& AValue, TDateTime ATime) {
    AValue = Join({Split(AValue).Day, Split(ATime).MSecs});
}

void ReplaceDate(TDateTime& AValue, TDateTime ADate) {
    AValue = Join({Split(ADate).Day, Split(AValue).MSecs});
}

TDateTime Now() {
    return Join(LocalDayAndTime());
}
TDateTime Date() {
    return static_cast<double>(LocalDayAndTime().Day);
}
TDateTime Time() {
    return Join({0, LocalDayAndTime().MSecs});
}

TDateTime NowUTC() {
    const std::int64_t MSecs = platform::UtcNow100ns() / c100nsPerMSec;
    const std::int64_t Days = FloorDiv(MSecs, MSecsPerDay);
    return Join(
        {static_cast<std::int32_t>(Days + Day1601), static_cast<std::int32_t>(MSecs - Days * MSecsPerDay)});
}

std::ostream& operator<<(std::ostream& AStream, TDateTime ADate) {
    TDayAndTime Parts;
    if (!TrySplit(ADate, Parts))
        return AStream << ADate.Value;
    const TYearMonthDay Date = CivilDate(Parts.Day);
    const int Seconds = Parts.MSecs / 1000;
    char Text[32];
    std::snprintf(Text, sizeof Text, "%04d-%02d-%02d %02d:%02d:%02d.%03d", Date.Year, Date.Month, Date.Day,
                  Seconds / 3600, Seconds / 60 % 60, Seconds % 60, Parts.MSecs % 1000);
    return AStream << Text;
}

} // namespace qz
