#include <qz/platform/FileTimes.h>

#include <cerrno>
#include <limits>
#include <string>

#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "tests/support/Child.h"
#include "tests/support/OrdinaryRights.h"
#include "tests/support/TemporaryDirectory.h"
#include <qz/platform/Clock.h>
#include <qz/platform/linux/NativeText.h>

namespace qz::platform {
namespace {

using namespace std::string_literals;

constexpr int64_t cSummer = 133'642'656'000'000'000; // 2024-07-01 00:00:00 UTC
constexpr const char* cAttribute = "user.qzcommon.created";

int64_t CreatedOf(std::u16string_view APath) {
    const TResult<TFileTimes> Times = ReadFileTimes(APath);
    EXPECT_TRUE(Times);
    return Times->Created;
}

std::string AttributeOf(const std::string& APath) {
    char Value[128];
    const ssize_t Length = getxattr(APath.c_str(), cAttribute, Value, sizeof Value);
    return Length < 0 ? std::string() : std::string(Value, static_cast<size_t>(Length));
}

void Make(std::u16string_view APath) {
    ASSERT_TRUE(WriteWholeFile(APath, std::span<const std::byte>()));
}

TEST(FileTimesLinux, TimeThatWasSetStaysWithTheFileAndNoOther) {
    const TTemporaryDirectory Directory;
    const std::u16string First = Directory / u"first";
    const std::u16string Second = Directory / u"second";
    const std::string Name = detail::ToNative(Second);
    const int64_t Before = UtcNow100ns() - 500'000; // times of files lag behind by a tick
    Make(First);
    EXPECT_LE(Before, CreatedOf(First));
    EXPECT_LE(CreatedOf(First), UtcNow100ns());

    ASSERT_TRUE(SetFileCreated(First, cSummer + 7));
    EXPECT_EQ(cSummer + 7, CreatedOf(First));
    ASSERT_EQ(rename(detail::ToNative(First).c_str(), Name.c_str()), 0);
    ASSERT_EQ(chmod(Name.c_str(), 0600), 0);
    EXPECT_EQ(cSummer + 7, CreatedOf(Second));

    // A copy with its attributes.
    const std::string Attribute = AttributeOf(Name);
    Make(First);
    const int64_t Own = CreatedOf(First);
    ASSERT_EQ(setxattr(detail::ToNative(First).c_str(), cAttribute, Attribute.data(), Attribute.size(), 0),
              0);
    EXPECT_EQ(CreatedOf(First), Own);

    removexattr(Name.c_str(), cAttribute);
    const int64_t Born = CreatedOf(Second);
    EXPECT_LE(Before, Born);
    for (const std::string& Value : {std::string(), "1 2"s, Attribute + ' ', Attribute + '0', '-' + Attribute,
                                     ' ' + Attribute, "9999999999" + Attribute, std::string(200, '1')}) {
        ASSERT_EQ(setxattr(Name.c_str(), cAttribute, Value.data(), Value.size(), 0), 0);
        EXPECT_EQ(CreatedOf(Second), Born) << Value;
    }
}

TEST(FileTimesLinux, RefusalsAreTold) {
    const TTemporaryDirectory Directory;
    const std::u16string File = Directory / u"file";
    Make(File);
    const std::pair<std::u16string, int> Cases[] = {{Directory.Path(), EISDIR},
                                                    {Directory / u"none", ENOENT},
                                                    {u"/proc/self/comm", EOPNOTSUPP},
                                                    {std::u16string(u"a\0b", 3), EINVAL}};
    for (const auto& [Path, Code] : Cases)
        EXPECT_EQ(SetFileCreated(Path, cSummer).Code(), Code) << Code;
    EXPECT_EQ(SetFileCreated(File, -1).Code(), EINVAL);
    EXPECT_EQ(ReadFileTimes(Directory / u"none").Code(), ENOENT);
}

// It could not be read back.
TEST(FileTimesLinux, TimeThatNobodyCouldReadIsRefused) {
    const TTemporaryDirectory Directory;
    const std::u16string File = Directory / u"file";
    const std::string Name = detail::ToNative(File);
    Make(File);
    for (const mode_t Mode : {0200U, 0400U}) {
        EXPECT_EQ(chmod(Name.c_str(), Mode), 0);
        const TOrdinaryRights Rights;
        EXPECT_EQ(SetFileCreated(File, cSummer).Code(), EACCES);
    }
    EXPECT_EQ(AttributeOf(Name), "");
}

TEST(FileTimesLinux, TimesBeyondAllDatesAreTheNearest) {
    const int File = memfd_create("qz-test", MFD_CLOEXEC); // its file system keeps any
    ASSERT_GE(File, 0);
    const std::string Name = "/proc/self/fd/" + std::to_string(File);
    for (const int64_t Seconds : {std::numeric_limits<int64_t>::max(), std::numeric_limits<int64_t>::min()}) {
        const timespec Set[] = {{Seconds, 0}, {Seconds, 0}};
        ASSERT_EQ(futimens(File, Set), 0);
        const TResult<TFileTimes> Times = ReadFileTimes(detail::FromNative(Name));
        ASSERT_TRUE(Times);
        EXPECT_EQ(Seconds > 0, Times->LastWrite > 9'000'000'000'000'000'000) << Times->LastWrite;
        EXPECT_EQ(Seconds < 0, Times->LastWrite < -9'000'000'000'000'000'000) << Times->LastWrite;
    }
    close(File);
}

} // namespace
} // namespace qz::platform
