#include <qz/runtime/time/TimeZone.h>

#include <gtest/gtest.h>

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
    // The first rule holds before 2000 as well, the last one for ever.
    const std::pair<std::int64_t, int> Cases[] = {
        {MomentOf(2006, 4, 2, 7, 59), -6},  {MomentOf(2006, 4, 2, 8), -5},  {MomentOf(2006, 10, 29, 7), -6},
        {MomentOf(2007, 1, 1, 4, 59), -6},  {MomentOf(2007, 1, 1, 5), -5},  {MomentOf(2007, 3, 11, 7), -4},
        {MomentOf(2007, 11, 4, 5, 59), -4}, {MomentOf(2007, 11, 4, 6), -5}, {MomentOf(1, 4, 1, 7, 59), -6},
        {MomentOf(1, 4, 1, 8), -5},         {MomentOf(9999, 3, 14, 7), -4}, {MomentOf(2407, 3, 11, 7), -4}};
    for (const auto& [Utc, Hours] : Cases)
        EXPECT_EQ(Table.AtUtc(Utc).Offset, Hours * cHour) << Utc / detail::cMSecsPerDay;
}

// TimeZoneLinux compares the other forms with the C library.
TEST(ZoneTable, DaysOfTheYear) {
    const TZoneDay Date = {
        .Form = TZoneDayForm::zdDate, .Month = 4, .Day = 31, .MSecs = static_cast<std::int32_t>(2 * cHour)};
    EXPECT_EQ(detail::MomentInYear(Date, 2023), MomentOf(2023, 4, 30, 2));
    EXPECT_EQ(detail::MomentInYear(Weekday(2, 5, 1), 2024), MomentOf(2024, 2, 25, 1));
    EXPECT_EQ(detail::MomentInYear(Weekday(9, 1, -3), 2024), MomentOf(2024, 8, 31, 21));
}

} // namespace
} // namespace qz
