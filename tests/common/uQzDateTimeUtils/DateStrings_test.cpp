#include <gtest/gtest.h>

#include <random>

#include "tests/support/Message.h"
#include "tests/support/Rows.h"
#include <qz/common/uQzDateTimeUtils.h>
#include <qz/runtime/text/Format.h>
#include <qz/runtime/text/FormatSettings.h>

namespace qz {
namespace {

// "D2021-3-7 T10:30:15.500 BC +330", without what the parts do not hold.
UnicodeString TextOf(const TQzDateTimeParts& AParts) {
    UnicodeString Result;
    if (AParts.HasDate)
        Result += Format(u"D%d-%d-%d", {AParts.Year, AParts.Month, AParts.Day});
    if (AParts.HasTime)
        Result += Format(u" T%d:%d:%d.%d", {AParts.Hour, AParts.Min, AParts.Sec, AParts.MSec});
    if (AParts.IsBC)
        Result += u" BC";
    if (AParts.TimeZoneFormat == tzfUTC)
        Result += u" Z";
    if (AParts.TimeZoneFormat == tzfOffset)
        Result += Format(u" %d", {AParts.OffSet});
    return Result;
}

TEST(DateStrings, FormsThatTheIsoDecoderTakes) {
    for (const auto& Case :
         Rows(u" => ", u"0 => ", u"2021-03-07 => D2021-3-7", u"20210307 => D2021-3-7",
              u"2021-0307 => D2021-3-7", u"-0044-03-15 => D44-3-15 BC", u"2021-03-07Z => D2021-3-7 Z",
              u"2021-03-07+01:00 => D2021-3-7 60", u"2021-03-07T10:30 => D2021-3-7 T10:30:0.0",
              u"2021-03-07T10:30:15 => D2021-3-7 T10:30:15.0",
              u"2021-03-07T10:30:15.5Z => D2021-3-7 T10:30:15.500 Z",
              u"2021-03-07T10:30:15,25+05:30 => D2021-3-7 T10:30:15.250 330",
              u"2021-03-07T10:30-05:00 => D2021-3-7 T10:30:0.0 -300", u"10:30:15 =>  T10:30:15.0",
              u"2021-03-07T10:30Z => D2021-3-7 T10:30:0.0", u"2021-03-07 10:30:00 => D2021-3-7",
              u"2021-03-07t10:30:00z => D2021-3-7", u"2021-03-07T10:30:15+0130 => D2021-3-7 T10:30:15.0 60",
              u"10:30:15.123456-00:30 =>  T10:30:15.123 -30", u"10:30:15. =>  T10:30:15.0",
              // Control characters count as nothing, and so do the separators of a time.
              u"2021-\n\r03-\t07T10x30y1 => D2021-3-7 T10:30:1.0", u"2021-13-99 => D2021-13-99"))
        EXPECT_EQ(TextOf(QzDecodeISODateTime(Case[0])), Case[1]) << Case[0];
    for (const char16_t* Bad :
         {u"2021-03", u"2021", u"2021-03-07T10", u"2021-03-07T10:30:15+01", u"x", u"2021-0x-07", u"-",
          u"2021--3-07", u"10:30:65536", u"10:30:99999999999", u"2021-03-07T10:30:15+0a:00"}) {
        EXPECT_THROW(QzDecodeISODateTime(Bad), EConvertError) << UnicodeString(Bad);
        const TQzDateTimeParts Parts = QzDecodeISODateTimeDef(Bad, EncodeDateTime(1999, 8, 7, 6, 5, 4, 3));
        EXPECT_EQ(Parts, (TQzDateTimeParts{false, 1999, 8, 7, false, 6, 5, 4, 3, false, tzfNA, 0}));
        EXPECT_EQ(Parts.DateTime(), 0);
    }
    EXPECT_EQ(Raised([] { QzDecodeISODateTime(u"2021"); }),
              u"EConvertError: '' is not a valid integer value");
}

TEST(DateStrings, PartsAsDates) {
    EXPECT_EQ(QzDecodeISODateTime(u"2021-03-07T10:30:15.5+05:30").UTC(),
              EncodeDateTime(2021, 3, 7, 5, 0, 15, 500));
    EXPECT_EQ(QzDecodeISODateTime(u"2021-03-07T23:30:00-01:00").UTC(),
              EncodeDateTime(2021, 3, 8, 0, 30, 0, 0));
    EXPECT_EQ(QzDecodeISODateTime(u"2021-03-07T10:30:15Z").UTC(), EncodeDateTime(2021, 3, 7, 10, 30, 15, 0));
    // The time of day runs forward before day 0 too, and across it.
    EXPECT_EQ(QzDecodeISODateTime(u"1850-03-07T10:30:00+02:00").UTC(),
              EncodeDateTime(1850, 3, 7, 8, 30, 0, 0));
    EXPECT_EQ(QzDecodeISODateTime(u"1899-12-30T00:30:00+01:00").UTC(),
              EncodeDateTime(1899, 12, 29, 23, 30, 0, 0));
    EXPECT_EQ(QzDecodeISODateTime(u"10:30:00").DateTime(), EncodeTime(10, 30, 0, 0));
    EXPECT_EQ(QzDecodeISODateTime(u"-0044-03-15").Date(), -EncodeDate(44, 3, 15));
    EXPECT_EQ(QzDecodeISODateTime(u"2021-03-07").Time(), 0);
    EXPECT_THROW(QzDecodeISODateTime(u"2021-13-07").DateTime(), EConvertError);
}

TEST(DateStrings, ReadersByPosition) {
    const TDateTime Day = EncodeDate(2021, 3, 7);
    for (const char16_t* Text : {u"2021-03-07", u"20210307", u"2021-03-07T10:00:00", u"2-0-2-1-0-3-0-7x"})
        EXPECT_EQ(QzISOStrToDate(Text), Day) << UnicodeString(Text);
    for (const char16_t* Text : {u"", u"0000-00-00"})
        EXPECT_EQ(QzISOStrToDate(Text), 0) << UnicodeString(Text);
    EXPECT_EQ(QzISOStrToTime(u"10:30:15"), EncodeTime(10, 30, 15, 0));
    EXPECT_EQ(QzISOStrToTime(u"T10:30:15.5"), EncodeTime(10, 30, 15, 5));
    EXPECT_EQ(QzISOStrToTime(u"2021-03-07T10x30x15.500-01:00"), EncodeTime(10, 30, 15, 500));
    EXPECT_EQ(QzISOStrToTime(u"10:30:15.20+01"), EncodeTime(10, 30, 15, 20));
    EXPECT_EQ(QzISOStrToDateTime(u"0"), 0);
    for (const char16_t* Text : {u"2021-03-07", u"2021-03-07T"})
        EXPECT_EQ(QzISOStrToDateTime(Text), Day) << UnicodeString(Text);
    EXPECT_EQ(QzISOStrToDateTime(u"2021-03-07T10:30:15.123"), EncodeDateTime(2021, 3, 7, 10, 30, 15, 123));
    for (const char16_t* Bad : {u"2021", u"2021-03-", u"2021-02-30", u"y021-03-07"})
        EXPECT_THROW(QzISOStrToDate(Bad), EConvertError) << UnicodeString(Bad);
    for (const char16_t* Bad : {u"10:30", u"10:30:15.123Z", u"10:30:15.1234", u"24:00:00", u"10:30:15."})
        EXPECT_THROW(QzISOStrToTime(Bad), EConvertError) << UnicodeString(Bad);
    for (const char16_t* Bad :
         {u"2021-03-07T10:30:15+", u"2021-03-07T10:30:15+1", u"2021-03-07T10:30:15+01-02", u"2021-03-07TZ "})
        EXPECT_THROW(QzISOStrToDateTime(Bad), EConvertError) << UnicodeString(Bad);
}

TEST(DateStrings, WhatIsWrittenIsReadBack) {
    EXPECT_EQ(QzDateToISOStr(EncodeDate(44, 3, 7)), u"0044-03-07");
    EXPECT_EQ(QzTimeToISOStr(EncodeDateTime(2021, 3, 7, 12, 30, 0, 0)), u"1899-12-30T12:30:00");
    EXPECT_EQ(QzDateTimeToISOStr(EncodeDateTime(2021, 3, 7, 1, 2, 3, 45), true), u"2021-03-07T01:02:03.045");
    EXPECT_EQ(ConvertDateTimeToLUO(EncodeDateTime(2021, 3, 7, 13, 5, 9, 45)), u"MAR  7 2021  1:05:09:045PM");
    EXPECT_EQ(ConvertDateTimeToLUO(EncodeDateTime(987, 12, 31, 0, 0, 0, 0)), u"DEC 31  987 12:00:00:000AM");
    EXPECT_EQ(ConvertDateTimeToLUO(EncodeDateTime(2021, 12, 31, 12, 0, 0, 0)), u"DEC 31 2021 12:00:00:000PM");
    EXPECT_THROW(QzDateToISOStr(3e6), EConvertError);
    std::mt19937 Random(11);
    for (int I = 0; I < 3000; ++I) {
        const TDateTime Date = JoinDateTime(
            {static_cast<int>(Random() % 3652059) - 693593, static_cast<int>(Random() % MSecsPerDay)});
        const TDayAndTime Parts = SplitDateTime(Date);
        const TDateTime Seconds = JoinDateTime({Parts.Day, Parts.MSecs / 1000 * 1000});
        ASSERT_EQ(QzISOStrToDateTime(QzDateTimeToISOStr(Date)), Seconds);
        ASSERT_EQ(QzISOStrToDateTime(QzDateTimeToISOStr(Date, true)), Date);
        ASSERT_EQ(QzDecodeISODateTime(QzDateTimeToISOStr(Date, true)).DateTime(), Date);
        ASSERT_EQ(QzISOStrToDate(QzDateToISOStr(Date)), JoinDateTime({Parts.Day, 0}));
        ASSERT_EQ(QzISOStrToTime(QzTimeToISOStr(Date, true)), JoinDateTime({0, Parts.MSecs}));
        ASSERT_EQ(ConvertLUOToDateTime(ConvertDateTimeToLUO(Date)), Date);
    }
}

TEST(DateStrings, SpelledAndDayFirst) {
    EXPECT_EQ(ConvertLUOToDateTime(u"mar/07-2021 01.05.09 045pm"), EncodeDateTime(2021, 3, 7, 13, 5, 9, 45));
    EXPECT_THROW(ConvertLUOToDateTime(u"MAR 7 2021 1:05:09"), EStringListError);
    EXPECT_THROW(ConvertLUOToDateTime(u"MAZ  7 2021  1:05:09:045PM"), EConvertError);
    for (const char16_t* Hour : {u"13", u"2147483647"})
        EXPECT_THROW(ConvertLUOToDateTime(Format(u"MAR  7 2021 %s:05:09:045PM", {Hour})), EConvertError);
    EXPECT_EQ(QzStrToDateTime(u"07-03-2021"), EncodeDate(2021, 3, 7));
    EXPECT_THROW(QzStrToDateTime(u"2021-03-07"), EConvertError);
}

// Settings for the time of a test.
class TSettings {
public:
    TSettings(char16_t ATimeSeparator, const UnicodeString& AShortDate) {
        TFormatSettings Settings = FOld;
        Settings.TimeSeparator = ATimeSeparator;
        Settings.ShortDateFormat = AShortDate;
        SetDefaultFormatSettings(Settings);
    }
    ~TSettings() { SetDefaultFormatSettings(FOld); }
    TSettings(const TSettings&) = delete;
    TSettings& operator=(const TSettings&) = delete;

private:
    const TFormatSettings FOld = DefaultFormatSettings();
};

TEST(DateStrings, FourDigitsOfTheYear) {
    for (const auto& Case : Rows(u"d/M/yy => d/M/yyyy", u"yyyy-MM-dd => yyyy-MM-dd", u"d.M.Y => d.M.yyyY",
                                 u"d M => yyyyd M", u"y/M/y => yyyy/M/y", u" => yyyy")) {
        const TSettings Settings(u':', Case[0]);
        EXPECT_EQ(QzShortDateFormatY2k(), Case[1]);
    }
}

TEST(DateStrings, LengthsOfTime) {
    const TSettings Settings(u':', u"yyyy");
    const std::tuple<double, UnicodeString, UnicodeString> Written[] = {
        {0, u"0:00", u"0:00:00"},      {-3661, u"-1:01", u"-1:01:01"}, {360000, u"100:00", u"100:00:00"},
        {59.5, u"0:01", u"0:01:00"},   {0.5, u"0:00", u"0:00:00"},     {2.5, u"0:00", u"0:00:02"},
        {-0.25, u"-0:00", u"-0:00:00"}};
    for (const auto& [Seconds, Short, Long] : Written) {
        EXPECT_EQ(QzTimeToStr(Seconds, false), Short);
        EXPECT_EQ(QzTimeToStr(Seconds, true), Long);
    }
    EXPECT_THROW(QzTimeToStr(std::numeric_limits<double>::quiet_NaN(), true), EConvertError);
    const auto Read = [](const char16_t* AText, TQzTimeFormat AFormat, std::int32_t AMaximum = 86400) {
        return QzStrToTimeToInt(AText, true, trDuration, AFormat, AMaximum);
    };
    const std::tuple<const char16_t*, TQzTimeFormat, int> Cases[] = {
        {u"-1:30", tfHourMin, -5400}, {u"1:59", tfHourMin, 7140}, {u"100", tfHourMin, 360000},
        {u":30", tfHourMin, 1800},    {u"2:", tfHourMin, 7200},   {u"1:02:99", tfHourMin, 3720},
        {u"", tfHourMin, 0},          {u"-", tfHourMin, 0},       {u"23:59:59", tfHourMinSec, 86399},
        {u"1", tfHourMinSec, 3600},   {u"::5", tfHourMinSec, 5},  {u"12:00", tfNone, 0},
        {u"x", tfDecHourM2, 0}};
    for (const auto& [Text, Format, Seconds] : Cases)
        EXPECT_EQ(Read(Text, Format), Seconds) << UnicodeString(Text);
    EXPECT_EQ(Raised([&] { Read(u"1:60", tfHourMin); }),
              u"Exception: Invalid time passed.\r\nThere are not more than 60 seconds in a minute.");
    const UnicodeString Wrong =
        u"EConvertError: An error has occurred while converting a string to a time format.";
    for (const char16_t* Text : {u"24:00:00", u"1:60:00", u"1:00:60", u"1:-1:00"})
        EXPECT_EQ(Raised([&] { Read(Text, tfHourMinSec); }), Wrong) << UnicodeString(Text);
    EXPECT_EQ(Raised([&] { Read(u"999999", tfHourMin); }), Wrong);
    EXPECT_THROW(Read(u"1h", tfHourMin), EConvertError);
}

TEST(DateStrings, TimesOfDayByTheSeparatorOfTheMachine) {
    const TSettings Settings(u'.', u"yyyy"); // as in Finland
    EXPECT_EQ(QzTimeToStr(3661, true), u"1.01.01");
    const auto Read = [](const char16_t* AText, TQzTimeRange ARange, bool AWithSeconds) {
        return QzStrToTimeToInt(AText, AWithSeconds, ARange, tfHourMin, 0);
    };
    EXPECT_EQ(Read(u"10.15.30", trPointOfTime, false), 36900);
    EXPECT_EQ(Read(u"10.15.30", trPointOfTime, true), 36930);
    EXPECT_EQ(Read(u"10.15.", trPointOfTime, true), 36900);
    EXPECT_EQ(Read(u"", trEndTime, true), 0);
    for (const char16_t* Text : {u"24.00", u"24.59", u"240"})
        EXPECT_EQ(Read(Text, trEndTime, true), 86400) << UnicodeString(Text);
    EXPECT_EQ(Read(u"-24", trEndTime, true), -86400);
    for (const char16_t* Text : {u"24.00", u"x", u"-25.00"})
        EXPECT_EQ(Raised([&] { Read(Text, trPointOfTime, true); }),
                  u"Exception: An error has occurred while decoding a time parameter");
}

} // namespace
} // namespace qz
