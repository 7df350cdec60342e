#include <qz/runtime/time/DateTime.h>

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/time/Chrono.h>

namespace qz {
namespace {

struct TParts {
    int Year, Month, Day, Hour, Minute, Second, MSec;
    friend bool operator==(const TParts&, const TParts&) = default;
};

TParts PartsOf(TDateTime AValue) {
    std::uint16_t P[7];
    DecodeDateTime(AValue, P[0], P[1], P[2], P[3], P[4], P[5], P[6]);
    return {P[0], P[1], P[2], P[3], P[4], P[5], P[6]};
}

TEST(DateTime, KnownValues) {
    const std::pair<double, TParts> Cases[] = {
        {0, {1899, 12, 30, 0, 0, 0, 0}},
        {2.25, {1900, 1, 1, 6, 0, 0, 0}},
        {-1.25, {1899, 12, 29, 6, 0, 0, 0}},
        {-0.75, {1899, 12, 30, 18, 0, 0, 0}},
        {36585, {2000, 2, 29, 0, 0, 0, 0}},
        {MaxDateTime, {9999, 12, 31, 23, 59, 59, 999}},
        {0.9999999999, {1899, 12, 31, 0, 0, 0, 0}}, // rounds to the next day, date and time together
    };
    for (const auto& [Value, Parts] : Cases)
        EXPECT_EQ(PartsOf(Value), Parts) << Value;
}

TEST(DateTime, EveryDayFollowsTheOneBefore) {
    int Day = static_cast<int>(MinDateTime);
    for (int Year = 1; Year <= 9999; ++Year)
        for (int Month = 1; Month <= 12; ++Month)
            for (const int InMonth : {1, int{MonthDays[IsLeapYear(Year)][Month - 1]}}) {
                const int Expected = Day + InMonth - 1;
                ASSERT_EQ(EncodeDate(Year, Month, InMonth), Expected);
                ASSERT_EQ(PartsOf(Expected), (TParts{Year, Month, InMonth, 0, 0, 0, 0}));
                if (InMonth > 1)
                    Day += InMonth;
            }
    EXPECT_EQ(static_cast<int>(MaxDateTime) + 1, Day);
}

TEST(DateTime, EveryMilliSecondSurvivesOnBothSidesOfDayZero) {
    for (const int Day : {-693593, -1, 0, 45000, 2958465})
        for (int MSecs = 0; MSecs < MSecsPerDay; MSecs += 997) {
            const TDayAndTime Parts = SplitDateTime(JoinDateTime({Day, MSecs}));
            ASSERT_EQ(Parts.Day, Day);
            ASSERT_EQ(Parts.MSecs, MSecs);
        }
}

TEST(DateTime, RefusesWhatIsNoDate) {
    TDateTime Value;
    const int Bad[][3] = {{0, 1, 1},     {10000, 1, 1}, {1900, 2, 29},
                          {2024, 13, 1}, {2024, 4, 31}, {2024, 1, 0}};
    for (const auto& [Year, Month, Day] : Bad)
        EXPECT_FALSE(TryEncodeDate(Year, Month, Day, Value)) << Year << Month << Day;
    const int BadTimes[][4] = {{24, 0, 0, 0}, {0, 60, 0, 0}, {0, 0, 0, 1000}, {-1, 0, 0, 0}};
    for (const auto& [Hour, Minute, Second, MSec] : BadTimes)
        EXPECT_FALSE(TryEncodeTime(Hour, Minute, Second, MSec, Value)) << Hour;
    for (const double Wrong :
         {-693594.0, 2958466.0, 2958465.9999999999, std::nan(""), double{INFINITY}, 1e300})
        EXPECT_THROW(SplitDateTime(Wrong), EConvertError) << Wrong;
}

TEST(DateTime, DaysOfTheWeek) {
    EXPECT_EQ(DayOfWeek(EncodeDate(1, 1, 1)), 2);
    EXPECT_EQ(DayOfWeek(0), 7);
    EXPECT_EQ(DayOfWeek(EncodeDate(2024, 3, 3)), 1);
}

TEST(DateTime, MonthsLaterAndEarlier) {
    const TDateTime Leap = EncodeDateTime(2024, 2, 29, 6, 0, 0, 0);
    EXPECT_EQ(IncMonth(Leap, 12), EncodeDateTime(2025, 2, 28, 6, 0, 0, 0));
    EXPECT_EQ(IncMonth(Leap, -2), EncodeDateTime(2023, 12, 29, 6, 0, 0, 0));
    EXPECT_EQ(IncMonth(EncodeDateTime(1900, 1, 15, 6, 0, 0, 0), -12),
              EncodeDateTime(1899, 1, 15, 6, 0, 0, 0));
    EXPECT_THROW(IncMonth(EncodeDate(9999, 12, 1)), EConvertError);
    EXPECT_THROW(IncMonth(0, INT_MIN), EConvertError);
}

TEST(DateTime, TimePointsOfTheStandardLibraryAndText) {
    using namespace std::chrono;
    const auto Moment = sys_days(1887y / 7 / 4) + 18h + 250ms;
    const TDateTime Date = FromSysTime(Moment + 999us);
    EXPECT_EQ(Date, EncodeDateTime(1887, 7, 4, 18, 0, 0, 250));
    EXPECT_EQ(ToSysTime(Date), Moment);
    EXPECT_EQ(FromLocalTime(ToLocalTime(Date)), Date);
    EXPECT_THROW(FromSysTime(sys_days(10000y / 1 / 1)), EConvertError);
    std::ostringstream Text;
    Text << Date << TTime(1e9);
    EXPECT_EQ(Text.str(), "1887-07-04 18:00:00.2501e+09");
}

} // namespace
} // namespace qz
