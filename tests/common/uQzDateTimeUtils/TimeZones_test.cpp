#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "tests/support/Message.h"
#include "tests/support/Rows.h"
#include <qz/common/uQzDateTimeUtils.h>
#include <qz/common/uQzDateTimeUtils/TimeZoneTable.h>
#include <qz/runtime/text/NumberText.h>
#include <qz/runtime/time/TimeZone.h>

namespace qz {
namespace {

TEST(TimeZones, FindsByAbbreviationAndByName) {
    // "Samoa" is the Windows name of UTC+13.2 too, "Greenwich" the name of GMT-S, "singapore" one that a skipped row has.
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

TEST(TimeZones, EachAbbreviationFindsItsFirstRow) {
    std::set<std::u16string_view> Seen, Names;
    int Before = -720;
    for (const detail::TZoneRow& Row : detail::cZoneRows) {
        // Apart from two, only names of standard times serve several zones.
        if (!Row.Name.empty() && !Row.Name.ends_with(u"Standard Time") &&
            Row.Name != u"Marquesas Islands Time" && Row.Name != u"Greenwich Mean Time") {
            EXPECT_TRUE(Names.insert(Row.Name).second) << UnicodeString(Row.Name);
        }
        EXPECT_LE(Before, Row.Bias);
        Before = Row.Bias;
        if (Seen.insert(Row.Abbreviation).second) {
            EXPECT_EQ(TQzTimeZones::GetTimeZone(Row.Abbreviation),
                      TQzTimeZone(Row.Abbreviation, Row.MsName, Row.Name, Row.Bias));
        }
    }
}

TEST(LocalZone, DatesOfARule) {
    std::uint16_t Year, Month, Day;
    DecodeDate(Now(), Year, Month, Day);
    const double Two = 2.0 / 24;
    const TQzTimeZoneInfo Info(60, 3.0 / 24, 5, 10, 7, -60, Two, 2, 3, 7);
    // The last Sunday of October lies in its last week, the second of March in the second week.
    EXPECT_EQ(DayOfTheWeek(Info.StandardDate), 7);
    EXPECT_GE(Info.StandardDate, EncodeDate(Year, 10, 25));
    EXPECT_LT(Info.StandardDate, EncodeDate(Year, 11, 1));
    EXPECT_NEAR(Info.StandardDate - std::trunc(Info.StandardDate), 3.0 / 24, 1e-9);
    EXPECT_EQ(DayOfTheWeek(Info.DaylightDate), 7);
    EXPECT_EQ((QzDayOfMonth(Info.DaylightDate) + 6) / 7, 2);
    EXPECT_EQ(TQzTimeZoneInfo(0, Two, 1, 0, 7, 0, Two, 1, 0, 7).StandardDate, 0);
    EXPECT_EQ(TQzTimeZoneInfo(0, Two, 1, 4, 9, 0, Two, 1, 0, 7).StandardDate, EncodeDate(Year, 4, 1) + Two);
    EXPECT_THROW(TQzTimeZoneInfo(0, Two, 1, 13, 7, 0, Two, 1, 0, 7), EConvertError);
}

// Whatever the zone of this machine is, its parts say the same.
TEST(LocalZone, PartsFitEachOther) {
    for (int Month = 1; Month <= 12; ++Month) {
        const TDateTime Local = QzUTCToLocal(EncodeDateTime(2024, Month, 15, 12, 30, 0, 0));
        EXPECT_EQ(QzLocalToUTC(Local), EncodeDateTime(2024, Month, 15, 12, 30, 0, 0));
        std::int32_t Offset;
        std::uint16_t Hours, Minutes;
        QzCalcTimeZoneOffset(Local, Offset, Hours, Minutes);
        EXPECT_NEAR(Offset, TTimeZone::Local().GetUtcOffset(Local).TotalMinutes(), 1.01);
    }
    EXPECT_EQ(QzGetTimeZone().View().substr(0, 3), u"GMT");
    const TQzTimeZoneInfo Info = QzLocalTimeZone();
    EXPECT_EQ(Info.StandardDate == 0, Info.DaylightDate == 0);
    EXPECT_THROW(QzUTCToLocal(std::nan("")), EConvertError);
    EXPECT_THROW(QzLocalToUTC(1e9), EConvertError);
}

} // namespace
} // namespace qz
