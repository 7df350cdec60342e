#include <qz/runtime/time/TimeZone.h>

#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <thread>

#include <qz/platform/TimeZone.h>
#include <qz/runtime/time/LocalClock.h>
#include <qz/runtime/time/detail/ZoneState.h>
#include <qz/runtime/time/detail/ZoneTable.h>

namespace qz {
namespace {

using detail::TZoneTable;
using platform::TSystemZone;
using platform::TZoneDay;
using platform::TZoneDayForm;

constexpr std::int64_t cHour = 3'600'000;

std::int64_t MomentOf(int AYear, int AMonth, int ADay, int AHour = 0, int AMinute = 0) {
    return DayNumber(AYear, AMonth, ADay) * detail::cMSecsPerDay + AHour * cHour + AMinute * 60'000;
}

TZoneDay Weekday(int AMonth, int AWeek, int AHour) {
    return {.Form = TZoneDayForm::zdWeekday,
            .Month = static_cast<std::uint8_t>(AMonth),
            .Week = static_cast<std::uint8_t>(AWeek),
            .MSecs = static_cast<std::int32_t>(AHour * cHour)};
}

// A zone of two rules, as Windows tells them: of the United States, with another offset before 2007.
TSystemZone TwoRules() {
    return {.Id = u"Test",
            .Kinds = {{-6 * 3600, false, u"A"},
                      {-5 * 3600, true, u"B"},
                      {-5 * 3600, false, u"C"},
                      {-4 * 3600, true, u"D"}},
            .FirstKind = 0,
            .Changes = {},
            .Rules = {{2000, 0, 1, Weekday(10, 5, 2), Weekday(4, 1, 2)},
                      {2007, 2, 3, Weekday(11, 1, 2), Weekday(3, 2, 2)}}};
}

TEST(ZoneTable, RulesHoldInTheirYears) {
    const TZoneTable Table(TwoRules());
    struct TCase {
        std::int64_t Utc;
        int Hours;
    };
    // The first rule holds before 2000 as well, the last one for ever.
    const TCase Cases[] = {{MomentOf(2006, 4, 2, 7, 59), -6},   {MomentOf(2006, 4, 2, 8), -5},
                           {MomentOf(2006, 10, 29, 6, 59), -5}, {MomentOf(2006, 10, 29, 7), -6},
                           {MomentOf(2007, 1, 1, 4, 59), -6},   {MomentOf(2007, 1, 1, 5), -5},
                           {MomentOf(2007, 3, 11, 6, 59), -5},  {MomentOf(2007, 3, 11, 7), -4},
                           {MomentOf(2007, 11, 4, 5, 59), -4},  {MomentOf(2007, 11, 4, 6), -5},
                           {MomentOf(1, 4, 1, 7, 59), -6},      {MomentOf(1, 4, 1, 8), -5},
                           {MomentOf(1601, 4, 1, 8), -5},       {MomentOf(9999, 3, 14, 6, 59), -5},
                           {MomentOf(9999, 3, 14, 7), -4},      {MomentOf(2407, 3, 11, 7), -4},
                           {MomentOf(2407, 11, 4, 6), -5}};
    for (const TCase& Case : Cases)
        EXPECT_EQ(Table.AtUtc(Case.Utc).Offset, Case.Hours * cHour) << Case.Utc / detail::cMSecsPerDay;
}

// What belongs to a local time is what leads to it, at whatever distance the changes stand.
TEST(ZoneTable, LocalTimesAreThoseOfTheirMoments) {
    TSystemZone Odd{.Id = {},
                    .Kinds = {{0, false, {}}, {14 * 3600, true, {}}, {-12 * 3600, false, {}}},
                    .FirstKind = 0,
                    .Changes = {},
                    .Rules = {}};
    for (int Index = 0; Index < 40; ++Index) // hours, minutes and days apart
        Odd.Changes.push_back({Index * 5 * 3600 + (Index > 20 ? Index * 86400 : 0) - (Index % 3) * 16'000,
                               static_cast<std::uint16_t>((Index * 7 + Index / 5) % 3)});
    const TZoneTable Table(Odd);
    const std::int64_t Start = MomentOf(1970, 1, 1);
    for (std::int64_t Local = Start - 48 * cHour; Local < Start + 60 * 24 * cHour; Local += cHour / 4) {
        const std::int64_t Offsets[] = {-12 * cHour, 0, 14 * cHour};
        int Found = 0;
        for (const std::int64_t Offset : Offsets)
            Found += Table.AtUtc(Local - Offset).Offset == Offset ? 1 : 0;
        const detail::TZoneMatch Match = Table.AtLocal(Local);
        ASSERT_EQ(Match.Standard == nullptr, Found == 0) << Local;
        if (Found == 0)
            continue;
        ASSERT_EQ(Match.Standard == Match.Daylight, Found == 1) << Local;
        for (const detail::TZonePeriod* Each : {Match.Standard, Match.Daylight})
            ASSERT_EQ(Table.AtUtc(Local - Each->Offset).Offset, Each->Offset) << Local;
        ASSERT_LE(Match.Standard->IsDaylight, Match.Daylight->IsDaylight) << Local;
    }
}

TEST(ZoneTable, DaysOfTheYear) {
    struct TCase {
        TZoneDay Day;
        int Year, Month, DayOfMonth, Hour;
    };
    const auto At = [](TZoneDayForm AForm, int ADay, int AMonth = 0) {
        return TZoneDay{.Form = AForm,
                        .Month = static_cast<std::uint8_t>(AMonth),
                        .Day = static_cast<std::uint16_t>(ADay),
                        .MSecs = static_cast<std::int32_t>(2 * cHour)};
    };
    const TCase Cases[] = {{Weekday(2, 5, 1), 2024, 2, 25, 1},
                           {Weekday(2, 4, 1), 2024, 2, 25, 1},
                           {Weekday(9, 1, -3), 2024, 8, 31, 21},
                           {Weekday(12, 5, 26), 2023, 12, 31, 26},
                           {Weekday(1, 0, 0), 2024, 1, 7, 0},
                           {At(TZoneDayForm::zdJulian, 59), 2024, 2, 28, 2},
                           {At(TZoneDayForm::zdJulian, 60), 2024, 3, 1, 2},
                           {At(TZoneDayForm::zdJulian, 60), 2023, 3, 1, 2},
                           {At(TZoneDayForm::zdDayOfYear, 59), 2024, 2, 29, 2},
                           {At(TZoneDayForm::zdDayOfYear, 365), 2023, 12, 32, 2},
                           {At(TZoneDayForm::zdDate, 31, 4), 2023, 4, 30, 2}};
    for (const TCase& Case : Cases)
        EXPECT_EQ(detail::MomentInYear(Case.Day, Case.Year),
                  MomentOf(Case.Year, Case.Month, Case.DayOfMonth, Case.Hour))
            << Case.Year << ' ' << Case.Month;
}

TEST(ZoneTable, DaysOfChangeAsOccurrences) {
    const TZoneTable Table(TwoRules());
    const detail::TZoneYear Early = Table.YearAt(1875);
    EXPECT_EQ(Early.ToStandard.Month, 10);
    EXPECT_EQ(Early.ToStandard.Occurrence, 5);
    EXPECT_EQ(Early.ToDaylight.Month, 4);
    EXPECT_EQ(Early.ToDaylight.Occurrence, 1);
    const detail::TZoneYear Late = Table.YearAt(9999);
    EXPECT_EQ(Late.ToDaylight.Occurrence, 2);
    EXPECT_EQ(Late.ToDaylight.DayOfTheWeek, 7);
    EXPECT_DOUBLE_EQ(Late.ToDaylight.Time * 24, 2);
    EXPECT_DOUBLE_EQ(Late.ToStandard.Time * 24, 2); // by the clock of daylight time
}

TEST(TimeZone, RefusesWhatIsNoDate) {
    const TTimeZone& Zone = TTimeZone::Local();
    for (const double Bad : {std::nan(""), double{INFINITY}, 1e300, MinDateTime - 1, MaxDateTime + 1}) {
        EXPECT_THROW(Zone.ToLocalTime(Bad), EConvertError) << Bad;
        EXPECT_THROW(Zone.ToUniversalTime(Bad), EConvertError) << Bad;
        EXPECT_THROW(Zone.GetUtcOffset(Bad), EConvertError) << Bad;
        EXPECT_THROW(Zone.GetLocalTimeType(Bad), EConvertError) << Bad;
    }
    TZoneYearDay Day;
    EXPECT_THROW(Zone.GetYearChanges(0, Day, Day), EConvertError);
    EXPECT_THROW(Zone.GetYearChanges(10000, Day, Day), EConvertError);
}

TEST(TimeZone, NowIsTheClockOfTheZone) {
    const TTimeZone& Zone = TTimeZone::Local();
    const TDateTime Before = Zone.ToLocalTime(NowUTC());
    const TDateTime Local = Now();
    EXPECT_LE(Before, Local);
    EXPECT_LT(Local - Before, 10.0 / SecsPerDay);
    EXPECT_LT(std::abs(Zone.UtcOffset().TotalHours()), 26);
    EXPECT_FALSE(Zone.GetDisplayName(EncodeDate(2024, 1, 15)).empty());
}

} // namespace
} // namespace qz
