#include <qz/platform/ShellFolders.h>

#include <cstdlib>
#include <filesystem>
#include <map>

#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "tests/support/TemporaryDirectory.h"
#include "tests/support/Variables.h"
#include <qz/platform/linux/NativeText.h>
#include <qz/platform/linux/SharedPlaces.h>
#include <qz/platform/linux/UserDirs.h>
#include <qz/platform/linux/UserRecord.h>

namespace qz::platform {
namespace {

TEST(UserDirectories, LinesAreReadWithCare) {
    const std::pair<const char*, std::optional<std::string>> Cases[] = {
        {"# XDG_MUSIC_DIR=\"$HOME/a\"\n \tXDG_MUSIC_DIR \t= \"/srv/music/\" # all", "/srv/music"},
        {"XDG_MUSIC_DIR=\"$HOME/a\"\nXDG_MUSIC_DIR=\"$HOME/b\"\nXDG_MUSIC_DIR=c\n", "/home/me/b"},
        {"XDG_MUSIC_DIR=\"$HOME/a \\\"b\\\" \\$c\\\\\"", "/home/me/a \"b\" $c\\"},
        {"XDG_MUSIC_DIR=\"$HOME/\"", "/home/me"},
        {"XDG_MUSIC_DIR=\"$HOMER/x\"", std::nullopt},
        {"XDG_MUSIC_DIR=\"relative\"", std::nullopt},
        {"XDG_MUSIC_DIR=\"/open\\\"", std::nullopt},
        {"XDG_MUSIC_DIRX=\"/x\"\nXDG_VIDEOS_DIR=\"/y\"\nXDG_MUSIC=\"/z\"", std::nullopt},
    };
    for (const auto& [Text, Expected] : Cases)
        EXPECT_EQ(detail::ParseUserDirectory(Text, "MUSIC", "/home/me"), Expected) << Text;
    EXPECT_EQ(detail::ParseUserDirectory("XDG_MUSIC_DIR=\"$HOME/x\"", "MUSIC", "/"), "/x");
}

// A home of its own, below which everything is removed at the end.
class ShellFoldersLinux : public testing::Test {
protected:
    ShellFoldersLinux() {
        Variables.Set(u"STATE_DIRECTORY", std::nullopt);
        Variables.Set(u"HOME", Home());
        EXPECT_TRUE(MakeDirectory(Home()));
        chmod(detail::ToNative(Home()).c_str(), 0700);
    }
    ~ShellFoldersLinux() override { std::filesystem::remove_all(detail::ToNative(Home())); }

    std::u16string Home() const { return Directory / u"home"; }

    static std::u16string Folder(int ANumber) { return ShellFolder(ANumber).value_or(u"?"); }
    static unsigned ModeOf(const std::u16string& APath) {
        struct stat Status {};
        return stat(detail::ToNative(APath).c_str(), &Status) == 0 ? Status.st_mode & 0777 : 0;
    }

    const TTemporaryDirectory Directory;
    TVariables Variables;
};

TEST_F(ShellFoldersLinux, FoldersOfTheUserAreMadeForHimAlone) {
    const std::map<int, std::u16string> Cases = {
        {5, u"/Documents"},        {0, u"/Desktop"}, {26, u"/.config"},      {28, u"/.local/share"},
        {32, u"/.cache"},          {40, u""},        {34, u"/.local/state"}, {9, u"/.local/share/sendto"},
        {7, u"/.config/autostart"}};
    for (const auto& [Number, Path] : Cases) {
        EXPECT_EQ(Folder(Number), Home() + Path) << Number;
        EXPECT_EQ(ModeOf(Home() + Path), 0700u) << Number;
    }
    Variables.Set(u"XDG_CONFIG_HOME", Home() + u"/cfg/");
    Variables.Set(u"XDG_DATA_HOME", u"not/whole");
    EXPECT_EQ(Folder(26), Home() + u"/cfg");
    EXPECT_EQ(Folder(28), Home() + u"/.local/share");
    const std::string Chosen = "XDG_DOCUMENTS_DIR=\"$HOME/Papers\"\n";
    ASSERT_TRUE(WriteWholeFile(Home() + u"/cfg/user-dirs.dirs", std::as_bytes(std::span(Chosen))));
    EXPECT_EQ(Folder(5), Home() + u"/Papers");
}

TEST_F(ShellFoldersLinux, SharedFoldersLieWhereTheProcessMayWrite) {
    const std::string Base = detail::ToNative(Directory.Path());
    const detail::TSharedPlaces Places{Base + "/s", Base + "/d", Base + "/c"};
    for (const bool AreThere : {false, true}) {
        const std::tuple<int, const char*, const char*> cCases[] = {
            {46, "/s", "/.local/state"},
            {53, "/s/Music", "/.local/state/Music"},
            {22, "/d/applications", "/.local/share/applications"},
            {24, "/c/autostart", "/.config/autostart"}};
        for (const auto& [Number, Shared, Own] : cCases) {
            const std::string Path = detail::FindFolder(Number, Places).value_or("?");
            EXPECT_EQ(Path, AreThere ? Base + Shared : Base + "/home" + Own);
            EXPECT_EQ(ModeOf(detail::FromNative(Path)), AreThere ? 0755u : 0700u) << Path;
        }
        for (const std::string& Place : {Places.State, Places.Data, Places.Config})
            std::filesystem::create_directory(Place);
    }
    for (const char* Place : {"/s", "/d", "/c"})
        std::filesystem::remove_all(Base + Place);
    Variables.Set(u"STATE_DIRECTORY", Directory.Path() + u"/:/elsewhere");
    EXPECT_EQ(Folder(35), Directory.Path());
    Variables.Set(u"STATE_DIRECTORY", u"/nowhere");
    EXPECT_EQ(detail::FindFolder(46, Places).value_or("?"), Base + "/home/.local/state");
}

TEST_F(ShellFoldersLinux, WhatCannotBeHadIsRefused) {
    for (const int Number : {-1, 1, 3, 18, 60, 1000})
        EXPECT_EQ(Folder(Number), u"?") << Number;
    EXPECT_EQ(Folder(37), u"/usr/lib");
    ASSERT_TRUE(RemoveEmptyDirectory(Home()));
    for (const int Number : {40, 5, 26, 28})
        EXPECT_EQ(Folder(Number), u"?") << Number;
    EXPECT_FALSE(DirectoryExists(Home()));
    const std::u16string Blocked = Directory / u"file";
    ASSERT_TRUE(WriteWholeFile(Blocked, std::span<const std::byte>()));
    Variables.Set(u"HOME", Blocked);
    EXPECT_EQ(Folder(5), u"?");
    Variables.Set(u"XDG_DATA_HOME", u"/");
    EXPECT_EQ(detail::Below(detail::BaseDirectory("XDG_DATA_HOME", "d"), "x"), "/x");
}

TEST(UserRecordLinux, DomainsAreTakenOutOfNames) {
    const std::tuple<const char16_t*, const char16_t*, const char16_t*> cCases[] = {
        {u"SALES\\ann@x", u"ann@x", u"SALES"},
        {u"ann@b@sales.local", u"ann@b", u"sales.local"},
        {u"ann", u"ann", u""}};
    for (const auto& [Whole, Kept, Domain] : cCases) {
        std::u16string Name = Whole;
        EXPECT_EQ(detail::TakeDomain(Name), Domain);
        EXPECT_EQ(Name, Kept);
    }
}

} // namespace
} // namespace qz::platform
