#include <qz/common/uQzDateTimeUtils/LocalZone.h>

#include <gtest/gtest.h>
#include <unicode/timezone.h>

#include <set>

#include "tests/support/ZoneOfTheEnvironment.h"
#include <qz/common/uQzDateTimeUtils/TimeZoneTable.h>

namespace qz {
namespace {

TEST(LocalZoneLinux, RulesOfTheYear) {
    struct TCase {
        const char* Zone;
        int StandardMonth, StandardHour, DaylightMonth, DaylightHour, Bias;
    };
    const TCase Cases[] = {{"Europe/Berlin", 10, 3, 3, 2, -60},
                           {"CET-1CEST,M3.5.0,M10.5.0/3", 10, 3, 3, 2, -60},
                           {"America/New_York", 11, 2, 3, 2, -60},
                           {"Australia/Lord_Howe", 4, 2, 10, 2, -30},
                           {"AAA-2BBB-4,J32/0,J300/24", 10, 0, 2, 0, -120},
                           {"Europe/Dublin", 3, 1, 10, 2, 60},
                           {"Asia/Tokyo", 0, 0, 0, 0, 0},
                           {"<+0545>-5:45", 0, 0, 0, 0, 0}};
    const TZoneOfTheEnvironment Keep("UTC0");
    for (const TCase& Case : Cases) {
        TZoneOfTheEnvironment::Set(Case.Zone);
        const TQzTimeZoneInfo Info = QzLocalTimeZone();
        EXPECT_EQ(Info.Bias, TTimeZone::Local().UtcOffset().TotalMinutes()) << Case.Zone;
        EXPECT_EQ(Info.DaylightBias, Case.Bias) << Case.Zone;
        for (const auto& [Date, Month, Hour] :
             {std::tuple(Info.StandardDate, Case.StandardMonth, Case.StandardHour),
              {Info.DaylightDate, Case.DaylightMonth, Case.DaylightHour}}) {
            EXPECT_EQ(Date == 0, Month == 0) << Case.Zone;
            if (Month == 0)
                continue;
            std::uint16_t Year, ItsMonth, Day, ItsHour, Minute, Second, MSec;
            DecodeDateTime(Date, Year, ItsMonth, Day, ItsHour, Minute, Second, MSec);
            EXPECT_EQ(ItsMonth, Month) << Case.Zone;
            EXPECT_EQ(ItsHour * 60 + Minute, Hour * 60) << Case.Zone;
            // The clocks really change then.
            const TTimeZone& Zone = TTimeZone::Local();
            EXPECT_NE(Zone.GetUtcOffset(Date - 1).Ticks, Zone.GetUtcOffset(Date + 1).Ticks) << Case.Zone;
        }
    }
}

TEST(LocalZoneLinux, OffsetsAsTextAndAsParts) {
    struct TCase {
        const char* Zone;
        const char16_t* Short;
        int Offset, Hours, Minutes;
    };
    const TCase Cases[] = {{"ABC5", u"GMT -5", -300, 5, 0},   {"ABC-5:30", u"GMT +5", 330, 5, 30},
                           {"ABC0:30", u"GMT", -30, 0, 30},   {"ABC-1:59", u"GMT +1", 119, 2, 0},
                           {"ABC-1:02", u"GMT +1", 62, 1, 0}, {"ABC-1:57", u"GMT +1", 117, 1, 57},
                           {"ABC1:03", u"GMT -1", -63, 1, 3}};
    const TZoneOfTheEnvironment Keep("UTC0");
    for (const TCase& Case : Cases) {
        TZoneOfTheEnvironment::Set(Case.Zone);
        EXPECT_EQ(QzGetTimeZone(), UnicodeString(Case.Short)) << Case.Zone;
        for (int Step = -50; Step < 50; ++Step) { // on both sides of day 0
            std::int32_t Offset;
            std::uint16_t Hours, Minutes;
            QzCalcTimeZoneOffset(Step * 1000.25 + (Step < 0 ? -2.125 : 2.125), Offset, Hours, Minutes);
            EXPECT_EQ(Offset, Case.Offset) << Case.Zone << ' ' << Step;
            EXPECT_EQ(Hours, Case.Hours) << Case.Zone << ' ' << Step;
            EXPECT_EQ(Minutes, Case.Minutes) << Case.Zone << ' ' << Step;
        }
    }
}

// The names of Windows are those that are known elsewhere, but for a few that are gone or written in another way.
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
