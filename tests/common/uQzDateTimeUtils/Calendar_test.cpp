#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <functional>
#include <random>
#include <set>

#include "tests/support/Message.h"
#include "tests/support/Rows.h"
#include <qz/common/uQzDateTimeUtils.h>
#include <qz/common/uQzDateTimeUtils/TimeZoneTable.h>
#include <qz/common/uQzSysUtils/Age.h>
#include <qz/runtime/text/NumberText.h>
#include <qz/runtime/time/TimeZone.h>

namespace qz {
namespace {

namespace chrono = std::chrono;
using chrono::year_month_day;

// A date as yyyymmdd.
TDateTime At(int ADate, int AHour = 0, int AMinute = 0, int ASecond = 0, int AMSec = 0) {
    return EncodeDateTime(ADate / 10000, ADate / 100 % 100, ADate % 100, AHour, AMinute, ASecond, AMSec);
}

TDateTime Of(chrono::sys_days ADay) {
    return static_cast<double>(
        (ADay - chrono::sys_days(year_month_day(chrono::year(1899), chrono::month(12), chrono::day(30))))
            .count());
}

TDateTime Of(year_month_day ADate) {
    return Of(chrono::sys_days(ADate));
}

void CheckPeriods(TDateTime ADate, year_month_day ACivil) {
    const auto Year = ACivil.year();
    const TDateTime NewYear = Of(Year / 1 / 1);
    const auto MonthEnd = year_month_day(Year / ACivil.month() / chrono::last);
    ASSERT_EQ(QzBOMonth(ADate), Of(Year / ACivil.month() / 1));
    ASSERT_EQ(QzEOMonth(ADate), Of(MonthEnd));
    ASSERT_EQ(QzBOYear(ADate), NewYear);
    ASSERT_EQ(QzEOYear(ADate), Of(Year / 12 / 31));
    ASSERT_EQ(QzDaysInMonth(ADate), static_cast<unsigned>(MonthEnd.day()));
    ASSERT_EQ(QzDaysInYear(ADate), Year.is_leap() ? 366 : 365);
    ASSERT_EQ(QzDecodeDate(ADate, dtYear), static_cast<int>(Year));
    ASSERT_EQ(static_cast<unsigned>(QzDecodeDate(ADate, dtMonth)), static_cast<unsigned>(ACivil.month()));
    ASSERT_EQ(static_cast<unsigned>(QzDecodeDate(ADate, dtDayOfMonth)), static_cast<unsigned>(ACivil.day()));
    ASSERT_EQ(QzDecodeDate(ADate, dtDayOfYear), Of(ACivil) - NewYear + 1);
}

void CheckWeeks(TDateTime ADate, year_month_day ACivil, double ATime) {
    const chrono::sys_days Day(ACivil);
    const chrono::weekday WeekDay(Day);
    const auto FromSunday = static_cast<int>(WeekDay.c_encoding());
    const auto SameTimeOn = [ATime](chrono::sys_days AThen) {
        return TDateTime(Of(AThen) + (Of(AThen) < 0 ? -ATime : ATime));
    };
    ASSERT_EQ(DayOfTheWeek(ADate), static_cast<int>(WeekDay.iso_encoding()));
    for (int First = 1; First <= 7; ++First) {
        const chrono::sys_days Start = Day - (WeekDay - chrono::weekday(static_cast<unsigned>(First - 1)));
        if (Of(Start) >= MinDateTime) {
            ASSERT_EQ(QzBOWeek(ADate, First), SameTimeOn(Start)) << First;
        }
    }
    ASSERT_EQ(QzEOWeek(ADate), SameTimeOn(Day + chrono::days(6 - FromSunday)));
    const chrono::sys_days Thursday(ACivil.year() / 1 / chrono::Thursday[1]);
    ASSERT_EQ(QzFirstThursdayOfYear(ADate), Of(Thursday));
    const auto DaysOfWeeks = (Day - (Thursday - chrono::days(3))).count();
    ASSERT_EQ(QzWeekOfYear(ADate), DaysOfWeeks < 0 ? 1 : DaysOfWeeks / 7 + 1);
    const bool HasFifth = (ACivil.year() / ACivil.month() / WeekDay[5]).ok();
    ASSERT_EQ(QzNthWeekDayOfMonth(ADate), HasFifth ? 5 : 4);
    const bool IsWeekEnd = ADate > 0 && (FromSunday == 0 || FromSunday == 6);
    const chrono::days ToMonday(FromSunday == 0 ? 1 : 2);
    ASSERT_EQ(QzClosestWeekDay(ADate, wdNext), IsWeekEnd ? SameTimeOn(Day + ToMonday) : ADate);
    ASSERT_EQ(QzClosestWeekDay(ADate, wdLast),
              IsWeekEnd ? SameTimeOn(Day + ToMonday - chrono::days(3)) : ADate);
}

TEST(Calendar, EachDayIsWhatTheStandardLibrarySays) {
    constexpr double cTime = 0.75;
    const auto Check = [](chrono::sys_days ADay) {
        const year_month_day Civil(ADay);
        const TDateTime Day = Of(ADay);
        const TDateTime Date = Day + (Day < 0 ? -cTime : cTime);
        CheckPeriods(Date, Civil);
        if (!testing::Test::HasFatalFailure() && Day < static_cast<int>(MaxDateTime) - 6)
            CheckWeeks(Date, Civil, cTime);
        if (testing::Test::HasFatalFailure())
            ADD_FAILURE() << "on day " << Day;
    };
    const auto Each = [&Check](int AFirstYear, int AEndYear, int AStep) {
        chrono::sys_days Day(chrono::year(AFirstYear) / 1 / 1);
        const chrono::sys_days End(chrono::year(AEndYear) / 1 / 1);
        for (; Day < End && !testing::Test::HasFailure(); Day += chrono::days(AStep))
            Check(Day);
    };
    Each(1600, 2401, 1);
    Each(1, 1600, 97);
    Each(2401, 10000, 97);
    Check(chrono::sys_days(chrono::year(9999) / 12 / 31));
}

// In the month that the standard library says, on the same day or the last.
TEST(Calendar, MonthsAddedKeepTheDayThatExists) {
    std::mt19937 Random(1);
    for (int I = 0; I < 20000; ++I) {
        const TDateTime Date = -200000.0 + static_cast<double>(Random() % 1000000);
        const int Count = static_cast<int>(Random() % 4801) - 2400;
        const chrono::sys_days Day(chrono::days(static_cast<int>(Date.Value) - 25569));
        auto Expected = year_month_day(Day) + chrono::months(Count);
        if (!Expected.ok())
            Expected = Expected.year() / Expected.month() / chrono::last;
        ASSERT_EQ(QzAddMonths(Date, Count), Of(Expected)) << Date << " " << Count;
        ASSERT_EQ(QzAddYears(Date, Count / 12), QzAddMonths(Date, Count / 12 * 12));
        ASSERT_EQ(QzAddQuarters(Date, Count / 3), QzAddMonths(Date, Count / 3 * 3));
    }
}

TEST(Calendar, MovesKeepTheTimeOfDay) {
    const TDateTime Fine = 45000.123456789; // not in whole milliseconds
    const TDateTime Noon = At(20240229, 12);
    const std::pair<TDateTime, TDateTime> Moved[] = {
        {QzAddMonths(At(20240131, 23, 59, 59, 999), 1), At(20240229, 23, 59, 59, 999)},
        {QzAddYears(At(20240229, 6), -200), At(18240229, 6)},
        {QzAddWeeks(Fine, -3), Fine - 21},
        {QzAddWeeks(0, INT32_MAX), 7.0 * INT32_MAX},
        {QzAddHrs(Noon, -36), At(20240228)},
        {QzAddMins(Noon, 721), At(20240301, 0, 1)},
        {QzAddMSecs(Noon, -1), At(20240229, 11, 59, 59, 999)},
    };
    for (const auto& [Result, Expected] : Moved)
        EXPECT_NEAR(Result, Expected, 1e-9) << Expected;
}

TEST(Calendar, WeeksByNumber) {
    EXPECT_EQ(QzWeekOfYear(At(20181231), true), u"201853");
    EXPECT_EQ(QzWeekOfYear(At(10101), true) + QzWeekOfYear(At(10101), false), u"00010101");
    EXPECT_EQ(QzWeekToDate(2021, 1), At(20210104));
    EXPECT_EQ(QzEOWeek(2021, 1), At(20210110));
    EXPECT_EQ(QzWeekToDate(2020, 0), At(20191223));
}

TEST(Calendar, AgesAndDifferences) {
    const struct {
        int Reference, Birth, Age;
    } cCases[] = {{20240228, 20000229, 23}, {20240229, 20000229, 24},  {20230301, 20000229, 23},
                  {20000101, 20000229, -1}, {20240229, 18991230, 124}, {20240229, 18000101, 0}};
    for (const auto& Case : cCases)
        EXPECT_EQ(QzAge(At(Case.Reference), At(Case.Birth, 12)), Case.Age) << Case.Reference << Case.Birth;
    EXPECT_EQ(QzCalculateAge(QzAddDays(QzAddYears(Now(), -30), 2)), 29);
    EXPECT_EQ(QzDateCompare(At(18991230, 18), At(18991229, 18)), 1);
    EXPECT_EQ(QzDateCompare(MaxDateTime, MinDateTime), 3652058);
    EXPECT_EQ(QzDateCompare(At(20240301) - 1e-9, At(20240301)), -1); // cut off
    EXPECT_EQ(QzDayOfYear(At(20240101) - 1e-9), 1);                  // the day that DecodeDate tells
}

TEST(Calendar, TimesRoundedUp) {
    EXPECT_EQ(QzRoundTime(At(20240229, 10, 50, 30), 15), At(20240229, 11));
    EXPECT_EQ(QzRoundTime(At(20240229, 12, 0, 59, 999), 1), At(20240229, 12));
    EXPECT_EQ(QzRoundTime(At(18500228, 10, 46), 15), At(18500228, 11));
    EXPECT_EQ(QzRoundTime(At(20240229, 10, 0, 7), INT32_MAX), At(20240229, 10));
}

TEST(Calendar, BadInputIsRefused) {
    const TDateTime Leap = At(20240229, 23, 46);
    const std::function<void()> Calls[] = {[] { QzBOMonth(0, 1); },
                                           [] { QzBOYear(std::int64_t{1} << 32); },
                                           [] { QzEOWeek(9999, 52); },
                                           [=] { QzBOWeek(Leap, 8); },
                                           [] { QzEOWeek(MaxDateTime - 1); },
                                           [=] { QzAddYears(Leap, 7976); },
                                           [] { QzRoundTime(At(20240229, 10, 51), 25); },
                                           [=] { QzDecodeDate(Leap, static_cast<TQzDecodeType>(9)); }};
    for (const auto& Call : Calls)
        EXPECT_THROW(Call(), EConvertError) << "call " << &Call - Calls;
    EXPECT_THROW(QzRoundTime(Leap, 0), EDivByZero);
    for (const TDateTime Bad : {std::nan(""), double{INFINITY}, MinDateTime - 1, 2958466.0}) {
        EXPECT_THROW(QzBOMonth(Bad), EConvertError) << Bad;
        EXPECT_THROW(QzDateCompare(0, Bad), EConvertError) << Bad;
        EXPECT_THROW(QzRoundTime(Bad, 5), EConvertError) << Bad;
    }
}

// A sum of a date and days is a double, and is a date.
TEST(Calendar, IntegersAreYearsAndFloatsAreDates) {
    EXPECT_EQ(QzBOYear(At(20231231, 12) + 1), At(20240101));
    EXPECT_EQ(QzDaysInYear(2024L), 366);
    constexpr std::uint16_t cMost = 65535;
    EXPECT_EQ(QzEncodeDuration(cMost, cMost, cMost, cMost, cMost, cMost, cMost, true),
              TQzDuration(851955, 5902147700.535, true));
}

TEST(TimeZones, FindsByAbbreviationAndByName) {
    // "Samoa" is the Windows name of UTC+13.2 too, "Greenwich" the name of GMT-S, "singapore" one that a
    // skipped row has.
    for (const auto& Case :
         Rows(u"IST => IST => 60", u"UTC+13.2 => UTC+13.2 => 780", u"LINT => LINT => 840",
              u"central european time => CET => 60", u"CENTRAL EUROPEAN STANDARD TIME => UTC+1.3 => 60",
              u"heure AVANCÉE d'europe centrale french-language name for cest => HAEC => 120",
              u"Samoa Standard Time => SST => -660", u"Greenwich Mean Time => GMT => 0",
              u"singapore standard time => SGT => 480", u" => BIT => -720")) {
        TQzTimeZone Zone(u"x", u"x", u"x", 1);
        EXPECT_TRUE(TQzTimeZones::FindTimeZone(Case[0], Zone)) << Case[0];
        EXPECT_EQ(Zone.Abbreviation, Case[1]) << Case[0];
        EXPECT_EQ(Zone.Bias, StrToInt(Case[2])) << Case[0];
    }
    for (const char16_t* Text : {u"cet", u"XYZ", u"CET ", u"India Standard Time"}) {
        TQzTimeZone Zone(u"x", u"x", u"x", 1);
        EXPECT_FALSE(TQzTimeZones::FindTimeZone(Text, Zone)) << UnicodeString(Text);
        EXPECT_EQ(Zone.Bias, 0);
    }
    TQzTimeZone Zone = TQzTimeZones::GetTimeZone(u"Moscow Time");
    EXPECT_TRUE(TQzTimeZones::FindTimeZone(Zone.MsName, Zone)) << "the text may be that of the zone itself";
    EXPECT_EQ(Zone.Abbreviation, u"MSK");
    EXPECT_EQ(Raised([] { TQzTimeZones::GetTimeZone(u"XYZ"); }), u"Exception: Timezone XYZ not found!");
}

// Apart from two, only names of standard times serve several zones.
TEST(TimeZones, RowsAreInOrderOfTheirOffsets) {
    std::set<std::u16string_view> Names;
    int Before = -720;
    for (const detail::TZoneRow& Row : detail::cZoneRows) {
        if (!Row.Name.empty() && !Row.Name.ends_with(u"Standard Time") &&
            Row.Name != u"Marquesas Islands Time" && Row.Name != u"Greenwich Mean Time") {
            EXPECT_TRUE(Names.insert(Row.Name).second) << UnicodeString(Row.Name);
        }
        EXPECT_LE(std::exchange(Before, Row.Bias), Row.Bias) << UnicodeString(Row.Abbreviation);
    }
}

TEST(LocalZone, DatesOfARule) {
    std::uint16_t Year, Month, Day;
    DecodeDate(Now(), Year, Month, Day);
    const double Two = 2.0 / 24;
    EXPECT_EQ(TQzTimeZoneInfo(0, Two, 1, 0, 7, 0, Two, 1, 0, 7).StandardDate, 0);
    EXPECT_EQ(TQzTimeZoneInfo(0, Two, 1, 4, 9, 0, Two, 1, 0, 7).StandardDate, EncodeDate(Year, 4, 1) + Two);
    EXPECT_THROW(TQzTimeZoneInfo(0, Two, 1, 13, 7, 0, Two, 1, 0, 7), EConvertError);
}

} // namespace
} // namespace qz
