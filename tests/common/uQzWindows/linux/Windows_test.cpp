#include <qz/common/uQzWindows.h>

#include <gtest/gtest.h>
#include <sys/xattr.h>

#include <array>
#include <cstring>

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

// A copy of a file with its attributes is another file, which was made when it was copied.
TEST(FileTimesLinux, ACopyDoesNotInheritTheCreation) {
    const platform::TTemporaryDirectory Directory;
    const std::u16string Path = Directory / u"file";
    const std::u16string Copy = Directory / u"copy";
    for (const std::u16string& Each : {Path, Copy})
        ASSERT_TRUE(platform::WriteWholeFile(Each, std::span<const std::byte>()));
    constexpr std::int64_t cYear2000 = 125911584000000000;
    ASSERT_TRUE(platform::SetFileCreated(Path, cYear2000));
    EXPECT_EQ(platform::ReadFileTimes(Path)->Created, cYear2000);
    const std::string From(UnicodeString{Path});
    const std::string To(UnicodeString{Copy});
    std::array<char, 4096> Names, Value;
    const ssize_t Length = listxattr(From.c_str(), Names.data(), Names.size());
    ASSERT_GT(Length, 0);
    for (const char* Name = Names.data(); Name < Names.data() + Length; Name += std::strlen(Name) + 1) {
        const ssize_t Size = getxattr(From.c_str(), Name, Value.data(), Value.size());
        if (std::string_view(Name).starts_with("user.") && Size > 0) {
            ASSERT_EQ(setxattr(To.c_str(), Name, Value.data(), static_cast<std::size_t>(Size), 0), 0);
        }
    }
    EXPECT_GT(platform::ReadFileTimes(Copy)->Created, cYear2000);
}

} // namespace
} // namespace qz
