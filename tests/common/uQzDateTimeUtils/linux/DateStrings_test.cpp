#include <gtest/gtest.h>
#include <time.h>

#include "tests/support/ZoneOfTheEnvironment.h"
#include <qz/common/uQzDateTimeUtils.h>

namespace qz {
namespace {

// The local time of a moment, by the C library.
TDateTime LocalOf(std::int64_t AUnix) {
    const time_t Moment = AUnix;
    tm Parts{};
    localtime_r(&Moment, &Parts);
    return EncodeDateTime(Parts.tm_year + 1900, Parts.tm_mon + 1, Parts.tm_mday, Parts.tm_hour, Parts.tm_min,
                          Parts.tm_sec, 0);
}

TEST(DateStringsLinux, TextsWithAZoneBecomeLocalTime) {
    const TZoneOfTheEnvironment Keep("UTC0");
    for (const char* Zone : {"Europe/Berlin", "Australia/Lord_Howe", "America/Sao_Paulo"}) {
        TZoneOfTheEnvironment::Set(Zone);
        // Every 47 minutes of 2018, which has a gap and an overlap in each of the three.
        for (std::int64_t Unix = 1514764800; Unix < 1546300800; Unix += 47 * 60) {
            const TDateTime Utc = static_cast<double>(Unix) / 86400 + 25569;
            const TDateTime Local = LocalOf(Unix);
            ASSERT_EQ(QzISOStrToDateTime(QzDateTimeToISOStr(Utc) + u"Z"), Local) << Zone << ' ' << Unix;
            ASSERT_EQ(QzISOStrToDateTime(QzDateTimeToISOStr(QzAddMins(Utc, 330)) + u"+05:30"), Local);
            ASSERT_EQ(QzISOStrToDateTime(QzDateTimeToISOStr(QzAddMins(Utc, -45)) + u"-00:45"), Local);
            // A local time that comes twice is that of standard time, up to an hour later.
            const double Late = QzDecodeISODateTime(QzDateTimeToISOStr(Local)).UTC() - Utc;
            ASSERT_TRUE(std::abs(Late) < 1e-8 || std::abs(Late - 1 / 24.0) < 1e-8 ||
                        std::abs(Late - 1 / 48.0) < 1e-8)
                << Zone << ' ' << Unix;
        }
        EXPECT_EQ(QzISOStrToTime(u"10:30:15Z"), QzUTCToLocal(EncodeTime(10, 30, 15, 0)));
        EXPECT_EQ(QzISOStrToDateTime(u"2021-03-07Z"), QzUTCToLocal(EncodeDate(2021, 3, 7)));
    }
    TZoneOfTheEnvironment::Set("Europe/Berlin");
    EXPECT_THROW(QzDecodeISODateTime(u"2018-03-25T02:30:00").UTC(), ELocalTimeInvalid);
}

} // namespace
} // namespace qz
