#include <qz/common/uQzWindows.h>

#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/Message.h"
#include "tests/support/TemporaryDirectory.h"
#include <qz/common/uQzWindows/VersionNumber.h>
#include <qz/platform/FileTimes.h>
#include <qz/platform/Module.h>

namespace qz {
namespace {

using platform::TWindowsFacts;

constexpr std::int64_t cDaySteps = 864'000'000'000;
constexpr std::int64_t c1970 = 116'444'736'000'000'000;

// The days from 1899-12-30 and the milliseconds of the day.
std::pair<std::int32_t, std::int32_t> Parts(TDateTime ADate) {
    const TDayAndTime Split = SplitDateTime(ADate);
    return {Split.Day, Split.MSecs};
}

TEST(WindowsVersion, NumberFollowsTheFacts) {
    struct TCase {
        std::uint32_t Major, Minor, Pack;
        bool IsWorkstation;
        const char16_t *Build, *Version;
        int Expected;
    };
    const TCase Cases[] = {
        {10, 0, 0, true, u"22631", u"6.3", 621}, {10, 0, 0, false, u"20348", u"6.3", 620},
        {6, 2, 0, true, u"22000", u"6.3", 640},  {6, 2, 0, true, u"21999", u"6.3", 630},
        {6, 2, 0, true, u"9200", u"6.2", 621},   {6, 2, 0, true, u"", u"", 621},
        {6, 2, 0, false, u"26100", u"6.3", 620}, {6, 1, 1, true, u"", u"", 611},
        {6, 1, 1, false, u"", u"", 610},         {6, 0, 0, false, u"", u"", 602},
        {6, 0, 0, true, u"", u"", 601},          {5, 2, 0, true, u"", u"", 520},
        {5, 1, 4, true, u"", u"", 517},          {5, 1, 2, true, u"", u"", 515},
        {5, 1, 0, true, u"", u"", 511},          {5, 0, 4, true, u"", u"", 500},
    };
    for (const TCase& Case : Cases) {
        const TWindowsFacts Facts{.HasKernel = true,
                                  .HasVersion = true,
                                  .Major = Case.Major,
                                  .Minor = Case.Minor,
                                  .ServicePack = Case.Pack,
                                  .IsWorkstation = Case.IsWorkstation,
                                  .CurrentBuild = Case.Build,
                                  .CurrentVersion = Case.Version,
                                  .HasLargePages = true,
                                  .HasOpenThread = true};
        EXPECT_EQ(detail::VersionNumber(Facts), Case.Expected) << Case.Major << '.' << Case.Minor;
    }
    TWindowsFacts Server{
        .HasKernel = true, .HasVersion = true, .Major = 5, .Minor = 2, .HasLargePages = true, .Metric89 = 1};
    EXPECT_EQ(detail::VersionNumber(Server), 523);
    Server.HasLargePages = false;
    EXPECT_EQ(detail::VersionNumber(Server), 521);
}

TEST(WindowsVersion, FunctionsTellWhereTheVersionIsSilent) {
    TWindowsFacts Facts{};
    EXPECT_EQ(Message([&] { detail::VersionNumber(Facts); }), u"Failed to load Kernel32.dll!");
    Facts.HasKernel = true;
    EXPECT_EQ(Message([&] { detail::VersionNumber(Facts); }), u"Failed to determine the version of the OS!");
    Facts.HasDiskFreeSpaceEx = true;
    EXPECT_EQ(detail::VersionNumber(Facts), 5);
}

TEST(ShellFolders, AreThereAndUnknownOnesAreRefused) {
    EXPECT_TRUE(platform::DirectoryExists(QzGetShellFolder(5)));
    EXPECT_EQ(QzGetShellFolder(5), QzGetMyDocumentsFolder());
    EXPECT_EQ(Message([] { QzGetShellFolder(200); }), u"Invalid pidl");
}

TEST(FileTimes, AreDatesInUtc) {
    const std::tuple<std::int64_t, std::int32_t, std::int32_t> Cases[] = {
        {0, -109205, 0},
        {cDaySteps - 10'000, -109205, 86'399'999},
        {c1970 + 19'876 * cDaySteps + 12'340'000, 45445, 1234}};
    for (const auto& [FileTime, Day, MSecs] : Cases) {
        const TDateTime Date = QzFileTimeToDateTime(FileTime);
        EXPECT_EQ(Parts(Date), std::pair(Day, MSecs));
        EXPECT_EQ(QzDateTimeToFileTime(Date), FileTime);
    }
    EXPECT_THROW(QzFileTimeToDateTime(-1), EOSError);
    EXPECT_THROW(QzFileTimeToDateTime(std::numeric_limits<std::int64_t>::max()), EConvertError);
    EXPECT_THROW(QzDateTimeToFileTime(EncodeDate(1600, 12, 31)), EOSError);
    EXPECT_THROW(QzDateTimeToFileTime(std::nan("")), EConvertError);
}

TEST(FileTimes, OfFilesAreSetInUtcAndReadOnEvenSeconds) {
    const platform::TTemporaryDirectory Directory;
    const std::u16string Path = Directory / u"file";
    ASSERT_TRUE(platform::WriteWholeFile(Path, std::span<const std::byte>()));
    EXPECT_NEAR(QzGetFileLastModified(Path), Now(), 1.0 / 24 / 60);
    EXPECT_EQ(Parts(QzGetFileLastModified(Path)).second % 2000, 0);
    for (const char16_t* Name : {u"", u"none", u"fil*", u"?ile"})
        EXPECT_EQ(QzGetFileLastModified(Directory / Name), 0.0);
    const TDateTime Date = EncodeDateTime(2019, 5, 6, 7, 8, 9, 10);
    QzSetFileCreated(Path, Date);
    EXPECT_THROW(QzSetFileCreated(Path, EncodeDate(1600, 12, 31)), EOSError);
    EXPECT_THROW(QzSetFileCreated(Directory.Path(), Date), EOSError);
    EXPECT_THROW(QzSetFileCreated(Directory / u"none", Date), EOSError);
    if (platform::FindModuleFunction(u"ntdll.dll", "wine_get_version") != nullptr)
        return; // it keeps no such time
    const auto Times = platform::ReadFileTimes(Path);
    ASSERT_TRUE(Times);
    EXPECT_EQ(Parts(QzFileTimeToDateTime(Times->Created)), Parts(Date));
}

TEST(FileNames, LoseWhatNoSystemTakes) {
    const std::tuple<std::u16string, TCharSet, const char16_t*> Cases[] = {
        {u"a:b*c.txt", {'.'}, u"abctxt"},
        {u"\"*/:<>?\\|", {}, u""},
        {u"\x01 \x1Fx\x7F", {}, u" x\x7F"},
        {u"ä€\x013A\x022E", {'\xE4', '\xAC'}, u"€\x013A\x022E"}}; // the low bytes of two are ":" and "."
    for (const auto& [Name, Extra, Expected] : Cases)
        EXPECT_EQ(QzCleanupFileName(Name, Extra), Expected);
}

} // namespace
} // namespace qz
