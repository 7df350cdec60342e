#include <qz/common/uQzWindows.h>

#include <gtest/gtest.h>

#include "tests/support/TemporaryDirectory.h"
#include "tests/support/ZoneOfTheEnvironment.h"
#include <qz/platform/FileTimes.h>

namespace qz {
namespace {

TEST(FileTimesLinux, CreationIsLocalTimeOfItsMoment) {
    const platform::TTemporaryDirectory Directory;
    const std::u16string Path = Directory / u"file";
    ASSERT_TRUE(platform::WriteWholeFile(Path, std::span<const std::byte>()));
    const TZoneOfTheEnvironment Zone(u"CET-1CEST,M3.5.0,M10.5.0/3");
    const auto At = [](int AMonth, int ADay, int AHour, int AMinute, int ASecond, int AMSec = 0) {
        return EncodeDateTime(2024, AMonth, ADay, AHour, AMinute, ASecond, AMSec);
    };
    const std::pair<TDateTime, TDateTime> Cases[] = {
        {At(1, 15, 9, 45, 29), At(1, 15, 10, 45, 30)},
        {At(1, 15, 9, 45, 31), At(1, 15, 10, 45, 32)},
        {At(1, 15, 23, 30, 1, 999), At(1, 16, 0, 30, 2)},
        {At(7, 15, 22, 30, 2), At(7, 16, 0, 30, 2)},
        {At(3, 31, 0, 59, 59, 999), At(3, 31, 2, 0, 0)},
        {At(3, 31, 1, 0, 0), At(3, 31, 3, 0, 0)},
        {At(10, 27, 0, 59, 59), At(10, 27, 3, 0, 0)},
        {At(10, 27, 1, 0, 0), At(10, 27, 2, 0, 0)},
        {EncodeDate(1979, 6, 1), 0},
        {EncodeDateTime(2107, 12, 31, 22, 59, 58, 0), EncodeDateTime(2107, 12, 31, 23, 59, 58, 0)},
        {EncodeDateTime(2107, 12, 31, 22, 59, 58, 1), 0}};
    for (const auto& [Utc, Local] : Cases) {
        QzSetFileCreated(Path, Utc);
        EXPECT_EQ(QzGetFileCreated(Path), Local);
    }
}

} // namespace
} // namespace qz
