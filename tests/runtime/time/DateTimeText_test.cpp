#include <qz/runtime/time/DateTimeText.h>

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

#include "tests/support/Message.h"
#include "tests/support/Rows.h"
#include <qz/runtime/text/Format.h>
#include <qz/runtime/time/Chrono.h>

namespace qz {
namespace {

const TFormatSettings& Neutral = TFormatSettings::Neutral();
const TDateTime cAfternoon = EncodeDateTime(2024, 2, 29, 14, 5, 9, 7);

TFormatSettings With(std::u16string_view AShortDate, char16_t ASeparator) {
    TFormatSettings Result = Neutral;
    Result.ShortDateFormat = AShortDate;
    Result.DateSeparator = ASeparator;
    return Result;
}

TEST(DateTimeText, EachPattern) {
    for (const auto& Case :
         Rows(u"yyyy-mm-dd hh:mm:ss:zzz => 2024-02-29 14:05:09:007", u"YYYY-MM-DD HH:NN => 2024-02-29 14:05",
              u"d dd ddd dddd => 29 29 Thu Thursday", u"m mm mmm mmmm => 2 02 Feb February",
              u"y yy yyy yyyy => 24 24 2024 2024", u"h hh n nn s ss z zz zzz => 14 14 5 05 9 09 7 07 007",
              u"h:m mm => 14:5 02", u"h 'Uhr' m => 14 Uhr 5", u"hh:nn:ss mm => 14:05:09 02",
              u"h am/pm => 2 pm", u"hh AM/PM => 02 PM", u"h a/p|A/P => 2 p|P", u"h ampm => 2 PM",
              u"ampm h h => PM 2 14", u"h 'am/pm' => 14 am/pm", u"hh h am/pm => 14 2 pm",
              u"c => 02/29/2024 14:05:09", u" => 02/29/2024 14:05:09", u"ddddd => 02/29/2024",
              u"dddddd => Thursday, 29 February 2024", u"t tt => 14:05 14:05:09",
              u"'day' d \"o'clock\" => day 29 o'clock", u"'it''s' d => it's 29", u"''d => 29",
              u"d 'open => 29 open", u"d' => 29", u"xx q d. => xx q 29.", u"aa d => aa 29",
              u"\u5E74d\U0001F600 => \u5E7429\U0001F600"))
        EXPECT_EQ(FormatDateTime(Case[0], cAfternoon, Neutral), Case[1]) << Case[0];
}

TEST(DateTimeText, TheShortFormLeavesMidnightOut) {
    EXPECT_EQ(DateTimeToStr(EncodeDate(2024, 2, 29), Neutral), u"02/29/2024");
    EXPECT_EQ(DateTimeToStr(EncodeDateTime(2024, 2, 29, 0, 0, 0, 1), Neutral), u"02/29/2024 00:00:00");
    EXPECT_EQ(FormatDateTime("yyyy h am/pm", EncodeDate(7, 1, 1), Neutral), u"0007 12 am");
    EXPECT_EQ(FormatDateTime("h am/pm", EncodeTime(12, 0, 0, 0), Neutral), u"12 pm");
    EXPECT_THROW(FormatDateTime("c", 1e9, Neutral), EConvertError);
}

TEST(DateTimeText, PatternsThatReferToThemselvesEnd) {
    TFormatSettings Settings = Neutral;
    Settings.ShortDateFormat = u"d.ddddd.c";
    Settings.LongTimeFormat = u"hh tt";
    Settings.DateSeparator = u'.';
    Settings.TimeSeparator = u'\0';
    EXPECT_EQ(FormatDateTime("d/m hh:nn '/:'", cAfternoon, Settings), u"29.2 1405 /:");
    EXPECT_EQ(FormatDateTime("ddddd", cAfternoon, Settings), u"29.. ");
    EXPECT_EQ(FormatDateTime("tt", cAfternoon, Settings), u"14 ");
}

TEST(DateTimeText, ReadsDates) {
    const TFormatSettings American = Neutral;
    const TFormatSettings German = With(u"dd.MM.yyyy", u'.');
    const TFormatSettings Iso = With(u"'d' yyyy-mm-dd", u'-');
    const TFormatSettings Blank = With(u"d mmm yyyy", u' ');
    struct {
        const TFormatSettings& Settings;
        const char16_t* Text;
        int Year, Month, Day;
    } const Cases[] = {
        {American, u" 2 / 29 / 2024 ", 2024, 2, 29}, {German, u"1.12.099", 99, 12, 1},
        {German, u"29.2.2024.", 2024, 2, 29},        {Iso, u"2024-feb-29", 2024, 2, 29},
        {Blank, u"29 February 2024", 2024, 2, 29},   {Blank, u"1 May 2024", 2024, 5, 1},
        {German, u"1. dec. 2024", 2024, 12, 1},
    };
    for (const auto& Case : Cases) {
        TDateTime Value;
        EXPECT_TRUE(TryStrToDate(Case.Text, Value, Case.Settings)) << ToUtf8(Case.Text);
        EXPECT_EQ(Value, EncodeDate(Case.Year, Case.Month, Case.Day)) << ToUtf8(Case.Text);
    }
    for (const char16_t* Bad : {u"", u"1", u"1/", u"1/2/", u"13/1/2024", u"2/30/2024", u"1.2.2024",
                                u"1/2/2024 x", u"1/2/2024 10:00", u"1//2", u"x/1/2024", u"1/2/12345",
                                u"99999999999/1/1", u"1/feb/2024", u"1/2/feb"}) {
        TDateTime Value = 5;
        EXPECT_FALSE(TryStrToDate(Bad, Value, American)) << ToUtf8(Bad);
        EXPECT_EQ(Value, 0.0);
    }
}

TEST(DateTimeText, YearsThatAreLeftOutOrShort) {
    std::uint16_t Present, Month, Day;
    DecodeDate(Date(), Present, Month, Day);
    EXPECT_EQ(StrToDate(u"3/1", Neutral), EncodeDate(Present, 3, 1));
    EXPECT_EQ(StrToDate(u"1.3", With(u"d/m/y", u'.')), EncodeDate(Present, 3, 1));
    EXPECT_EQ(StrToDate(u"3-1", With(u"y/m/d", u'-')), EncodeDate(Present, 3, 1));
    TFormatSettings Settings = Neutral;
    for (const int Window : {50, 99}) {
        Settings.TwoDigitYearCenturyWindow = static_cast<std::uint16_t>(Window);
        for (int Year = Present - Window; Year < Present - Window + 100; ++Year)
            EXPECT_EQ(StrToDate(Format(u"1/1/%.2d", {Year % 100}), Settings), EncodeDate(Year, 1, 1));
    }
    Settings.TwoDigitYearCenturyWindow = 0;
    EXPECT_EQ(StrToDate(u"1/1/05", Settings), EncodeDate(Present / 100 * 100 + 5, 1, 1));
}

TEST(DateTimeText, ReadsTimes) {
    TFormatSettings Settings = Neutral;
    Settings.TimeAMString = u"vorm.";
    Settings.TimePMString = u"nachm.";
    Settings.DecimalSeparator = u',';
    struct {
        const char16_t* Text;
        int Hour, Minute, Second, MSec;
    } const Cases[] = {
        {u"0", 0, 0, 0, 0},           {u"14:05", 14, 5, 0, 0},
        {u"14:05:09.7", 14, 5, 9, 7}, {u"14:05:09,123", 14, 5, 9, 123},
        {u" 1 : 2 : 3 ", 1, 2, 3, 0}, {u"12 am", 0, 0, 0, 0},
        {u"12 pm", 12, 0, 0, 0},      {u"1:30PM", 13, 30, 0, 0},
        {u"pm 1:30", 13, 30, 0, 0},   {u"11 nachm.", 23, 0, 0, 0},
        {u"VORM. 12:01", 0, 1, 0, 0},
    };
    for (const auto& Case : Cases) {
        TDateTime Value;
        EXPECT_TRUE(TryStrToTime(Case.Text, Value, Settings)) << ToUtf8(Case.Text);
        EXPECT_EQ(Value, EncodeTime(Case.Hour, Case.Minute, Case.Second, Case.MSec)) << ToUtf8(Case.Text);
    }
    for (const char16_t* Bad : {u"", u"am", u"24:00", u"10:60", u"10:", u"10:00:60", u"10:00:00.", u"0 am",
                                u"13 pm", u"am 1 pm", u"10.5", u"10:00:00.1000", u"-1:00", u"10:00x"}) {
        TDateTime Value = 5;
        EXPECT_FALSE(TryStrToTime(Bad, Value, Settings)) << ToUtf8(Bad);
        EXPECT_EQ(Value, 0.0);
    }
}

TEST(DateTimeText, ReadsBoth) {
    EXPECT_EQ(StrToDateTime(u"2/29/2024 14:05:09.007", Neutral), cAfternoon);
    EXPECT_EQ(StrToDateTime(u"14:05", Neutral), EncodeTime(14, 5, 0, 0));
    EXPECT_EQ(StrToDateTimeDef(u"2/29/2024 25:00", 7, Neutral), 7);
}

TEST(DateTimeText, SaysWhatIsWrong) {
    EXPECT_EQ(Raised([] { StrToDate(u"%x", Neutral); }), u"EConvertError: '%x' is not a valid date");
    EXPECT_EQ(Raised([] { StrToTime(u"%x", Neutral); }), u"EConvertError: '%x' is not a valid time");
    EXPECT_EQ(Raised([] { StrToDateTime(u"%x", Neutral); }),
              u"EConvertError: '%x' is not a valid date and time");
}

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
    // Half a millisecond before midnight counts to the next day, for whatever takes a value apart.
    for (const double Day : {1.0, 45000.0}) {
        EXPECT_EQ(PartsOf(Day + (MSecsPerDay - 0.4) / MSecsPerDay), PartsOf(Day + 1));
        EXPECT_EQ(DayOfWeek(Day + (MSecsPerDay - 0.4) / MSecsPerDay), DayOfWeek(Day + 1));
        EXPECT_EQ(DayOfWeek(Day + (MSecsPerDay - 0.6) / MSecsPerDay), DayOfWeek(Day));
        std::uint16_t P[3];
        DecodeDate(Day + (MSecsPerDay - 0.4) / MSecsPerDay, P[0], P[1], P[2]);
        EXPECT_EQ(TDateTime(Day + 1), EncodeDate(P[0], P[1], P[2]));
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
