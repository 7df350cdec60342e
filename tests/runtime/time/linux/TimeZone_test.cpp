#include <qz/runtime/time/TimeZone.h>

#include <gtest/gtest.h>
#include <stdlib.h>
#include <time.h>

#include <atomic>
#include <filesystem>
#include <thread>

#include "tests/support/AtOnce.h"
#include "tests/support/Child.h"
#include "tests/support/Message.h"
#include "tests/support/Rows.h"
#include "tests/support/ZoneOfTheEnvironment.h"
#include <qz/runtime/text/Format.h>
#include <qz/runtime/text/NumberText.h>
#include <qz/runtime/time/DateTimeText.h>
#include <qz/runtime/time/LocalClock.h>
#include <qz/runtime/time/detail/ZoneState.h>

namespace qz {
namespace {

constexpr std::int64_t cFirst = -86400;    // 1969-12-31
constexpr std::int64_t cLast = 2145916800; // 2038-01-01
constexpr std::int64_t cStep = 11 * 3600;  // shorter than any period

TDateTime DateOf(std::int64_t AUnix) {
    const std::int64_t Day = (AUnix - (AUnix < 0 ? 86399 : 0)) / 86400;
    return JoinDateTime(
        {static_cast<std::int32_t>(Day + 25569), static_cast<std::int32_t>(AUnix - Day * 86400) * 1000});
}

std::int64_t UnixOf(TDateTime ADate) {
    const TDayAndTime Parts = SplitDateTime(ADate);
    return (std::int64_t{Parts.Day} - 25569) * 86400 + Parts.MSecs / 1000;
}

struct TKnown {
    std::int64_t Offset;
    bool IsDaylight;
    friend bool operator==(const TKnown&, const TKnown&) = default;
};

// By the C library.
TKnown KnownAt(std::int64_t AUnix) {
    const time_t Moment = AUnix;
    tm Parts{};
    localtime_r(&Moment, &Parts);
    return {Parts.tm_gmtoff, Parts.tm_isdst > 0};
}

// The first second at which something else holds than at AFrom.
std::int64_t ChangeBetween(std::int64_t AFrom, std::int64_t ATo) {
    const TKnown Before = KnownAt(AFrom);
    while (ATo - AFrom > 1) {
        const std::int64_t Middle = AFrom + (ATo - AFrom) / 2;
        (KnownAt(Middle) == Before ? AFrom : ATo) = Middle;
    }
    return ATo;
}

std::string CheckUtc(std::int64_t AUnix) {
    const std::int64_t Expected = AUnix + KnownAt(AUnix).Offset;
    const std::int64_t Given = UnixOf(TTimeZone::Local().ToLocalTime(DateOf(AUnix)));
    return Given == Expected
        ? ""
        : std::to_string(AUnix) + " to local is off by " + std::to_string(Given - Expected);
}

// ALocal has as many moments as there are of those two offsets that lead to it.
std::string CheckLocal(std::int64_t ALocal, TKnown ABefore, TKnown AAfter) {
    const TTimeZone& Zone = TTimeZone::Local();
    const TDateTime Local = DateOf(ALocal);
    const std::string Name = "local " + std::to_string(ALocal);
    const bool IsFirst = KnownAt(ALocal - ABefore.Offset) == ABefore;
    const bool IsSecond = KnownAt(ALocal - AAfter.Offset) == AAfter;
    if (!IsFirst && !IsSecond)
        return Zone.IsInvalidTime(Local) ? "" : Name + " is not there";
    TKnown Standard = IsFirst ? ABefore : AAfter;
    TKnown Daylight = IsSecond ? AAfter : ABefore;
    if (Standard.IsDaylight != Daylight.IsDaylight ? Standard.IsDaylight : Standard.Offset > Daylight.Offset)
        std::swap(Standard, Daylight);
    const TLocalTimeType Type = Standard.Offset != Daylight.Offset ? ltAmbiguous
        : Standard.IsDaylight                                      ? ltDaylight
                                                                   : ltStandard;
    if (Zone.GetLocalTimeType(Local) != Type ||
        UnixOf(Zone.ToUniversalTime(Local)) != ALocal - Standard.Offset ||
        UnixOf(Zone.ToUniversalTime(Local, true)) != ALocal - Daylight.Offset ||
        Zone.GetUtcOffset(Local, true).Ticks != Daylight.Offset * TTimeSpan::TicksPerSecond)
        return Name + " is another moment";
    return "";
}

// What is wrong at a change and beside it.
std::string CheckChange(std::int64_t AChange) {
    const TKnown Before = KnownAt(AChange - 1);
    const TKnown After = KnownAt(AChange);
    for (const std::int64_t Shift : {-1, 0, 1}) {
        std::string Wrong = CheckUtc(AChange + Shift);
        for (const std::int64_t Offset : {Before.Offset, After.Offset, (Before.Offset + After.Offset) / 2})
            Wrong += CheckLocal(AChange + Offset + Shift, Before, After);
        if (!Wrong.empty())
            return Wrong;
    }
    return "";
}

struct TChecked {
    int Changes = 0;
    std::string Wrong;
};

TChecked CheckZone(const std::string& AZone, std::int64_t AFirst = cFirst, std::int64_t ALast = cLast) {
    TZoneOfTheEnvironment::Set(AZone);
    TChecked Result;
    for (std::int64_t Moment = AFirst; Moment < ALast && Result.Wrong.empty(); Moment += cStep) {
        Result.Wrong = CheckUtc(Moment);
        if (!Result.Wrong.empty() || KnownAt(Moment) == KnownAt(Moment + cStep))
            continue;
        Result.Wrong = CheckChange(ChangeBetween(Moment, Moment + cStep));
        ++Result.Changes;
    }
    return Result;
}

// Each zone with its least number of changes, so that a zone that is not installed fails.
TEST(TimeZoneLinux, EachChangeIsThatOfTheCLibrary) {
    const TZoneOfTheEnvironment Keep("UTC0");
    for (const auto& Case :
         Rows(u"Europe/Dublin => 130", u"Europe/London => 130", u"Europe/Moscow => 50",
              u"Europe/Istanbul => 70", u"Europe/Lisbon => 100", u"America/New_York => 130",
              u"America/St_Johns => 130", u"America/Caracas => 2", u"America/Sao_Paulo => 60",
              u"America/Nuuk => 50", u"America/Scoresbysund => 60", u"America/Argentina/San_Luis => 15",
              u"America/Bogota => 2", u"America/Metlakatla => 70", u"Asia/Kathmandu => 1",
              u"Asia/Pyongyang => 2", u"Asia/Tehran => 60", u"Asia/Gaza => 100", u"Asia/Kolkata => 0",
              u"Asia/Dhaka => 2", u"Asia/Shanghai => 10", u"Africa/Casablanca => 80", u"Africa/Monrovia => 1",
              u"Africa/Cairo => 60", u"Africa/Windhoek => 40", u"Antarctica/Troll => 60",
              u"Antarctica/Casey => 5", u"Australia/Lord_Howe => 100", u"Australia/Eucla => 10",
              u"Pacific/Apia => 20", u"Pacific/Chatham => 120", u"Pacific/Kwajalein => 1",
              u"Pacific/Kiritimati => 2", u"Pacific/Norfolk => 30", u"EST5EDT => 130",
              u":Europe/Paris => 120", u"/usr/share/zoneinfo/CET => 110")) {
        const TChecked Checked = CheckZone(std::string(Case[0]));
        EXPECT_EQ(Checked.Wrong, "") << Case[0];
        EXPECT_GE(Checked.Changes, StrToInt(Case[1])) << Case[0];
    }
}

TEST(TimeZoneLinux, RuleTextsAreTakenAsTheCLibraryTakesThem) {
    const TZoneOfTheEnvironment Keep("UTC0");
    constexpr std::int64_t cFrom = 1577836800; // 2020 to 2024
    constexpr std::int64_t cTo = 1704067200;
    for (const char* Text :
         {"CET-1CEST,M3.5.0,M10.5.0/3", "<-03>3", "<+0545>-5:45", "NZST-12NZDT,M9.5.0,M4.1.0/3",
          "IST-1GMT0,M10.5.0,M3.5.0/1", "EST5EDT4,J60/25,J300/-3", "EST5EDT,59,299/0:30:15",
          "<-02>2<-01>,M3.5.0/-1,M10.5.0/0", "AAA-24BBB-24:59:59,M2.1.1/100,M6.4.6/-100",
          "IST-2IDT,M3.4.4/26,M10.5.0", "ABC25", "ABC24:99:99", "ABC-26", "abc-05:45:30",
          "EST5EDT,M3.2.0,M11.1.0/2 x", "EST5EDT,M4.1.0",
          // Not readable, and so UTC.
          "ABC", "AB5", "<+3>-3", "nosuch", "", ":", "::Europe/Paris", "/etc/passwd", "Europe", "/dev/zero",
          "ABC:5", "ABC 5"})
        EXPECT_EQ(CheckZone(Text, cFrom, cTo).Wrong, "") << Text;
    // RFC 8536 gives the second as an example of daylight saving time all year. The C library has standard
    // time for some hours of New Year.
    for (const char* Text : {"EST5EDT,0/0,J365/25", "XXX3EDT4,0/0,J365/23"}) {
        TZoneOfTheEnvironment::Set(Text);
        for (std::int64_t Moment = cFrom; Moment < cTo; Moment += 3600)
            ASSERT_EQ(UnixOf(TTimeZone::Local().ToLocalTime(DateOf(Moment))), Moment - 4 * 3600) << Text;
        EXPECT_EQ(TTimeZone::Local().GetDisplayName(EncodeDate(2022, 1, 1), false), "EDT") << Text;
    }
}

// By the rules of the zone database, as occurrences of weekdays.
TEST(TimeZoneLinux, DaysOfAYearThatChangeTheClock) {
    const TZoneOfTheEnvironment Keep("UTC0");
    for (const auto& Case :
         Rows(u"Europe/Paris => 2024 => 3.5.7 02:00 10.5.7 03:00",
              u"Europe/Paris => 1990 => 3.5.7 02:00 9.5.7 03:00",
              u"America/New_York => 2024 => 3.2.7 02:00 11.1.7 02:00",
              u"America/New_York => 2006 => 4.1.7 02:00 10.5.7 02:00",
              u"Australia/Lord_Howe => 2024 => 10.1.7 02:00 4.1.7 02:00",
              // Two o'clock after the fourth Thursday is on a fourth Friday, or the last.
              u"IST-2IDT,M3.4.4/26,M10.5.0 => 2023 => 3.4.5 02:00 10.5.7 02:00",
              u"IST-2IDT,M3.4.4/26,M10.5.0 => 2022 => 3.5.5 02:00 10.5.7 02:00",
              // Standard time of another offset began with the end of daylight saving time.
              u"Europe/Istanbul => 2016 => 3.5.7 03:00 9.1.3 00:00",
              // Years with one change, and with changes of standard time alone.
              u"America/Sao_Paulo => 2019 => ", u"Europe/Istanbul => 2017 => ", u"Asia/Pyongyang => 2015 => ",
              u"Europe/Moscow => 2014 => ", u"EST5EDT,0/0,J365/25 => 2024 => ")) {
        TZoneOfTheEnvironment::Set(Case[0]);
        const detail::TZoneYear Year = detail::CurrentZone().YearAt(StrToInt(Case[1]));
        UnicodeString Text;
        for (const TZoneYearDay& Day : {Year.ToDaylight, Year.ToStandard})
            if (Day.Month != 0)
                Text += Format(u"%s%d.%d.%d %s",
                               {Text.IsEmpty() ? u"" : u" ", Day.Month, Day.Occurrence, Day.DayOfTheWeek,
                                FormatDateTime(u"hh:nn", Day.Time)});
        EXPECT_EQ(Text, Case[2]) << Case[0] << ' ' << Case[1];
    }
}

TEST(TimeZoneLinux, FarYearsFollowTheRule) {
    const TZoneOfTheEnvironment Keep("UTC0");
    for (const char* Zone :
         {"America/New_York", "NZST-12NZDT,M9.5.0,M4.1.0/3", "Europe/Dublin", "EST5EDT,J60,J300"}) {
        for (const std::int64_t Year : {2038, 2399, 2437, 2438, 2439, 2500, 4000, 9998}) {
            const std::int64_t From = (DayNumber(Year, 1, 1) - 25569) * 86400;
            EXPECT_EQ(CheckZone(Zone, From, From + std::int64_t{366} * 86400).Wrong, "")
                << Zone << ' ' << Year;
        }
    }
}

TEST(TimeZoneLinux, KnownMoments) {
    const TZoneOfTheEnvironment Keep("Europe/Paris");
    const TTimeZone& Zone = TTimeZone::Local();
    const TDateTime Gap = EncodeDateTime(2024, 3, 31, 2, 30, 0, 0);
    EXPECT_EQ(Raised([&] { Zone.GetUtcOffset(Gap, true); }),
              u"ELocalTimeInvalid: The given \"" + DateTimeToStr(Gap) +
                  u"\" local time is invalid (situated within the missing period prior to DST).");
    const TDateTime Twice = EncodeDateTime(2024, 10, 27, 2, 30, 0, 250);
    EXPECT_EQ(Zone.ToUniversalTime(Twice), EncodeDateTime(2024, 10, 27, 1, 30, 0, 250));
    EXPECT_EQ(Zone.ToUniversalTime(Twice, true), EncodeDateTime(2024, 10, 27, 0, 30, 0, 250));
    EXPECT_EQ(Zone.GetDisplayName(Twice, true), u"CEST");
    // Before day 0 the fraction runs against the time; the mean time of Paris was 9 minutes and 21 seconds
    // ahead.
    EXPECT_EQ(Zone.ToLocalTime(EncodeDateTime(1880, 5, 1, 23, 55, 0, 500)),
              EncodeDateTime(1880, 5, 2, 0, 4, 21, 500));
    EXPECT_NEAR(Now(), Zone.ToLocalTime(NowUTC()), 10.0 / SecsPerDay); // by LocalClock()
    EXPECT_THROW(Zone.ToUniversalTime(MinDateTime), EConvertError);
    EXPECT_THROW(Zone.ToLocalTime(MaxDateTime), EConvertError);
}

int HoursAt(TDateTime ALocal) {
    return TTimeZone::Local().GetUtcOffset(ALocal).Hours();
}

TEST(TimeZoneLinux, AnotherFileIsNoticedInTime) {
    const auto File = std::filesystem::temp_directory_path() / ("qz_zone_" + std::to_string(getpid()));
    std::filesystem::copy_file("/usr/share/zoneinfo/Asia/Tokyo", File);
    const TZoneOfTheEnvironment Keep(File.string());
    const auto* Tokyo = &detail::CurrentZone();
    EXPECT_EQ(HoursAt(EncodeDate(2024, 1, 15)), 9);
    std::filesystem::remove(File);
    std::filesystem::copy_file("/usr/share/zoneinfo/Asia/Dubai", File);
    const std::int64_t Now = platform::UtcNowSeconds();
    EXPECT_EQ(&detail::CurrentZone(Now + 15), Tokyo);
    const auto* Dubai = &detail::CurrentZone(Now + 59);
    EXPECT_EQ(Dubai->AtUtc(0).Offset, 13'272'000); // the mean time of 1899
    // Another clock is no reason to wait.
    std::filesystem::remove(File);
    EXPECT_EQ(detail::CurrentZone(Now - 3600).AtUtc(0).Offset, 0);
    std::filesystem::copy_file("/usr/share/zoneinfo/Asia/Dubai", File);
    TTimeZone::Refresh();
    EXPECT_EQ(&detail::CurrentZone(), Dubai) << "a zone that was there before is kept twice";
    std::filesystem::remove(File);
}

// A refresh counts from its end on, whatever other threads had begun to look at before.
TEST(TimeZoneLinux, ARefreshIsNotUndoneByOtherThreads) {
    const TZoneOfTheEnvironment Keep("UTC0");
    std::atomic<bool> IsOver{false};
    std::atomic<int> Wrong{0};
    int Undone = 0;
    const auto Look = [&] {
        for (std::int64_t Ahead = 0; !IsOver; Ahead += 100) {
            const int Offset =
                detail::CurrentZone(platform::UtcNowSeconds() + Ahead % 1000).AtUtc(0).Offset / 3'600'000;
            const int Known = HoursAt(45000);
            Wrong += (Offset < 0 || Offset > 7 ? 1 : 0) + (Known < 0 || Known > 7 ? 1 : 0);
            LocalClock();
        }
    };
    const auto Change = [&] {
        for (int Round = 0; Round < 400; ++Round) {
            const int Hours = Round % 8;
            platform::SetEnvironment(u"TZ", std::u16string_view(u"ABC-" + IntToStr(Hours)));
            TTimeZone::Refresh();
            for (int Try = 0; Try < 50; ++Try)
                Undone += HoursAt(45000) == Hours ? 0 : 1;
        }
        IsOver = true;
    };
    AtOnce(4, [&](int AIndex) { AIndex == 0 ? Change() : Look(); });
    EXPECT_EQ(Undone, 0);
    EXPECT_EQ(Wrong, 0);
}

TEST(TimeZoneLinux, ChildrenOfAForkCanLook) {
    std::atomic<bool> IsOver{false};
    std::thread Other([&] {
        while (!IsOver)
            TTimeZone::Refresh();
    });
    for (int Round = 0; Round < 30; ++Round)
        ASSERT_EQ(InChild([] { return TTimeZone::Refresh(), 0; }), 0);
    IsOver = true;
    Other.join();
}

} // namespace
} // namespace qz
