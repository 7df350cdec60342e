#include <qz/common/uQzDateTimeUtils/LocalZone.h>

#include <gtest/gtest.h>
#include <unicode/timezone.h>

#include <set>

#include "tests/support/ZoneOfTheEnvironment.h"
#include <qz/common/uQzDateTimeUtils/TimeZoneTable.h>
#include <qz/runtime/time/DateTimeText.h>

namespace qz {
namespace {

TEST(LocalZoneLinux, RulesOfTheYear) {
    const std::tuple<const char*, UnicodeString, UnicodeString, int> Cases[] = {
        {"Europe/Berlin", u"10 03:00", u"03 02:00", -60},
        {"CET-1CEST,M3.5.0,M10.5.0/3", u"10 03:00", u"03 02:00", -60},
        {"Australia/Lord_Howe", u"04 02:00", u"10 02:00", -30},
        {"AAA-2BBB-4,J32/0,J300/24", u"10 00:00", u"02 00:00", -120},
        {"Europe/Dublin", u"03 01:00", u"10 02:00", 60},
        {"<+0545>-5:45", u"12 00:00", u"12 00:00", 0}};
    const TZoneOfTheEnvironment Keep("UTC0");
    for (const auto& [Name, Standard, Daylight, Bias] : Cases) {
        SCOPED_TRACE(Name);
        TZoneOfTheEnvironment::Set(Name);
        const TTimeZone& Zone = TTimeZone::Local();
        const TQzTimeZoneInfo Info = QzLocalTimeZone();
        EXPECT_EQ(Info.Bias, Zone.UtcOffset().TotalMinutes());
        EXPECT_EQ(Info.DaylightBias, Bias);
        EXPECT_EQ(FormatDateTime(u"mm hh:nn", Info.StandardDate), Standard);
        EXPECT_EQ(FormatDateTime(u"mm hh:nn", Info.DaylightDate), Daylight);
        // The clocks really change then; without a rule the dates are 0, which is 1899-12-30.
        for (const TDateTime Date : {Info.StandardDate, Info.DaylightDate})
            EXPECT_EQ(Zone.GetUtcOffset(Date - 1).Ticks != Zone.GetUtcOffset(Date + 1).Ticks, Bias != 0);
    }
}

TEST(LocalZoneLinux, OffsetsAsTextAndAsParts) {
    const std::tuple<const char*, UnicodeString, int, int, int> Cases[] = {
        {"ABC5", u"GMT -5", -300, 5, 0},   {"ABC-5:30", u"GMT +5", 330, 5, 30},
        {"ABC0:30", u"GMT", -30, 0, 30},   {"ABC-1:59", u"GMT +1", 119, 2, 0},
        {"ABC-1:02", u"GMT +1", 62, 1, 0}, {"ABC-1:57", u"GMT +1", 117, 1, 57},
        {"ABC1:03", u"GMT -1", -63, 1, 3}};
    const TZoneOfTheEnvironment Keep("UTC0");
    for (const auto& [Zone, Short, Minutes, Hour, Minute] : Cases) {
        TZoneOfTheEnvironment::Set(Zone);
        EXPECT_EQ(QzGetTimeZone(), Short) << Zone;
        for (int Step = -50; Step < 50; ++Step) { // on both sides of day 0
            std::int32_t Offset;
            std::uint16_t ItsHour, ItsMinute;
            QzCalcTimeZoneOffset(Step * 1000.25 + (Step < 0 ? -2.125 : 2.125), Offset, ItsHour, ItsMinute);
            EXPECT_EQ(std::tuple(Offset, int(ItsHour), int(ItsMinute)), std::tuple(Minutes, Hour, Minute))
                << Zone;
        }
    }
}

// The names of Windows are those that are known elsewhere, but for a few that are gone or written in another
// way.
TEST(TimeZonesLinux, WindowsNamesAreKnown) {
    const std::set<std::u16string_view> cOthers = {u"Altai Standard", u"N. Central Asia Standard",
                                                   u"Mid-Atlantic Standard Time", u"Kamchatka Standard Time"};
    for (const detail::TZoneRow& Row : detail::cZoneRows) {
        if (Row.MsName.empty() || cOthers.contains(Row.MsName))
            continue;
        UErrorCode Error = U_ZERO_ERROR;
        icu::UnicodeString Id;
        icu::TimeZone::getIDForWindowsID(
            icu::UnicodeString(Row.MsName.data(), static_cast<int32_t>(Row.MsName.size())), nullptr, Id,
            Error);
        EXPECT_FALSE(Id.isEmpty()) << UnicodeString(Row.MsName);
    }
}

} // namespace
} // namespace qz
