#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include <qz/common/uQzDateTimeUtils.h>
#include <qz/common/uQzDateTimeUtils/TimeZoneTable.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/time/TimeZone.h>

namespace qz {
namespace {

TEST(TimeZones, FindsByAbbreviationAndByName) {
    struct TCase {
        const char16_t* Text;
        const char16_t* Abbreviation; // null: not found
        int Bias;
    };
    for (const TCase& Case : std::initializer_list<TCase>{
             {u"IST", u"IST", 60},
             {u"AST", u"AST", -240},
             {u"CST", u"CST", -360},
             {u"UTC+13.2", u"UTC+13.2", 780},
             {u"UTC-08", u"UTC-08", -480},
             {u"LINT", u"LINT", 840},
             {u"central european time", u"CET", 60},
             {u"CENTRAL EUROPEAN STANDARD TIME", u"UTC+1.3", 60},
             {u"eastern standard time", u"EST", -300},
             {u"Pacific Standard Time (mexico)", u"PST-M", -480},
             {u"heure AVANCÉE d'europe centrale french-language name for cest", u"HAEC", 120},
             {u"utc-02", u"UTC-2", -120},
             {u"Samoa Standard Time", u"SST", -660},    // also the Windows name of UTC+13.2
             {u"Greenwich Mean Time", u"GMT", 0},       // also of GMT-S
             {u"singapore standard time", u"SGT", 480}, // of a row that does not stand, and a Windows name
             {u"", u"BIT", -720},
             {u"cet", nullptr, 0},
             {u"est", nullptr, 0},
             {u"XYZ", nullptr, 0},
             {u"CET ", nullptr, 0},
             {u"É", nullptr, 0},
             {u"India Standard Time", nullptr, 0},
             {u"China Standard Time", nullptr, 0},
             {u"Israel Standard Time", nullptr, 0}}) {
        TQzTimeZone Zone(u"x", u"x", u"x", 1);
        EXPECT_EQ(TQzTimeZones::FindTimeZone(Case.Text, Zone), Case.Abbreviation != nullptr)
            << UnicodeString(Case.Text);
        EXPECT_EQ(Zone.Abbreviation, UnicodeString(Case.Abbreviation != nullptr ? Case.Abbreviation : u""))
            << UnicodeString(Case.Text);
        EXPECT_EQ(Zone.Bias, Case.Bias) << UnicodeString(Case.Text);
    }
    TQzTimeZone Zone = TQzTimeZones::GetTimeZone(u"Moscow Time");
    EXPECT_EQ(Zone, TQzTimeZone(u"MSK", u"Russian Standard Time", u"Moscow Time", 180));
    EXPECT_TRUE(TQzTimeZones::FindTimeZone(Zone.MsName, Zone)) << "the text may be that of the zone itself";
    EXPECT_EQ(Zone.Abbreviation, u"MSK");
    try {
        TQzTimeZones::GetTimeZone(u"XYZ");
        FAIL();
    } catch (const Exception& E) {
        EXPECT_EQ(E.Message(), u"Timezone XYZ not found!");
        EXPECT_EQ(E.ClassName(), u"Exception");
    }
}

TEST(TimeZones, EachNameFindsItsBias) {
    std::set<std::u16string_view> Seen;
    int Before = -720;
    for (const detail::TZoneRow& Row : detail::cZoneRows) {
        EXPECT_LE(Before, Row.Bias);
        Before = Row.Bias;
        if (!Seen.insert(Row.Abbreviation).second)
            continue;
        TQzTimeZone Zone;
        ASSERT_TRUE(TQzTimeZones::FindTimeZone(Row.Abbreviation, Zone));
        EXPECT_EQ(Zone, TQzTimeZone(Row.Abbreviation, Row.MsName, Row.Name, Row.Bias));
        for (const std::u16string_view Name : {Row.Name, Row.MsName}) {
            if (Name.empty() || Row.Abbreviation == u"UTC+13.2")
                continue;
            ASSERT_TRUE(TQzTimeZones::FindTimeZone(Name, Zone)) << UnicodeString(Name);
            EXPECT_EQ(Zone.Bias, Row.Bias) << UnicodeString(Name);
        }
    }
    EXPECT_EQ(263U, Seen.size());
}

TEST(LocalZone, DatesOfARule) {
    std::uint16_t Year, Month, Day;
    DecodeDate(Now(), Year, Month, Day);
    const double Two = 2.0 / 24;
    const TQzTimeZoneInfo Info(60, 3.0 / 24, 5, 10, 7, -60, Two, 2, 3, 7);
    EXPECT_EQ(Info.Bias, 60);
    EXPECT_EQ(Info.DaylightBias, -60);
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
        const TDateTime Utc = EncodeDateTime(2024, Month, 15, 12, 30, 0, 0);
        const TDateTime Local = QzUTCToLocal(Utc);
        EXPECT_EQ(QzLocalToUTC(Local), Utc);
        std::int32_t Offset;
        std::uint16_t Hours, Minutes;
        QzCalcTimeZoneOffset(Local, Offset, Hours, Minutes);
        const double Exactly = TTimeZone::Local().GetUtcOffset(Local).TotalMinutes();
        EXPECT_NEAR(Offset, Exactly, 1.01);
        EXPECT_NEAR(Hours * 60 + Minutes, std::abs(Exactly), 2.01);
    }
    EXPECT_EQ(QzGetTimeZone().View().substr(0, 3), u"GMT");
    const TQzTimeZoneInfo Info = QzLocalTimeZone();
    EXPECT_EQ(Info.StandardDate == 0, Info.DaylightDate == 0);
    EXPECT_EQ(Info.StandardDate == 0, Info.DaylightBias == 0);
    EXPECT_THROW(QzUTCToLocal(std::nan("")), EConvertError);
    EXPECT_THROW(QzLocalToUTC(1e9), EConvertError);
}

} // namespace
} // namespace qz
