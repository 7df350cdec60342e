#include "platform/ShellFolders.h"

#include <cstdlib>
#include <filesystem>
#include <map>

#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "../TemporaryDirectory.h"
#include "platform/linux/NativeText.h"
#include "platform/linux/UserDirs.h"
#include "platform/linux/UserRecord.h"
#include "tests/support/Variables.h"

namespace qz::platform {
namespace {

TEST(UserDirectories, LinesAreReadWithCare) {
    struct TCase {
        const char* Text;
        std::optional<std::string> Expected;
    };
    const TCase Cases[] = {
        {"XDG_MUSIC_DIR=\"$HOME/Songs\"\n", "/home/me/Songs"},
        {"# XDG_MUSIC_DIR=\"$HOME/a\"\n \tXDG_MUSIC_DIR \t= \"/srv/music/\" # all", "/srv/music"},
        {"XDG_MUSIC_DIR=\"$HOME/a\"\nXDG_MUSIC_DIR=\"$HOME/b\"\nXDG_MUSIC_DIR=c\n", "/home/me/b"},
        {"XDG_MUSIC_DIR=\"$HOME/a \\\"b\\\" \\$c\\\\\"", "/home/me/a \"b\" $c\\"},
        {"XDG_MUSIC_DIR=\"$HOME/\"", "/home/me"},
        {"XDG_MUSIC_DIR=\"$HOME\"", "/home/me"},
        {"XDG_MUSIC_DIR=\"$HOMER/x\"", std::nullopt},
        {"XDG_MUSIC_DIR=\"\"", std::nullopt},
        {"XDG_MUSIC_DIR=\"relative\"", std::nullopt},
        {"XDG_MUSIC_DIR=\"/open", std::nullopt},
        {"XDG_MUSIC_DIR=\"/open\\\"", std::nullopt},
        {"XDG_MUSIC_DIRX=\"/x\"\nXDG_VIDEOS_DIR=\"/y\"\nXDG_MUSIC=\"/z\"", std::nullopt},
        {"", std::nullopt},
    };
    for (const TCase& Case : Cases)
        EXPECT_EQ(Case.Expected, detail::ParseUserDirectory(Case.Text, "MUSIC", "/home/me")) << Case.Text;
    EXPECT_EQ("/x", detail::ParseUserDirectory("XDG_MUSIC_DIR=\"$HOME/x\"", "MUSIC", "/"));
    EXPECT_EQ("/", detail::ParseUserDirectory("XDG_MUSIC_DIR=\"$HOME\"", "MUSIC", "/"));
}

// A home of its own, below which everything is removed at the end.
class ShellFoldersLinux : public testing::Test {
protected:
    ShellFoldersLinux() {
        for (const char16_t* Name :
             {u"XDG_CONFIG_HOME", u"XDG_DATA_HOME", u"XDG_CACHE_HOME", u"XDG_STATE_HOME", u"STATE_DIRECTORY"})
            Variables.Set(Name, std::nullopt);
        Variables.Set(u"HOME", Home());
    }
    ~ShellFoldersLinux() override { std::filesystem::remove_all(detail::ToNative(Home())); }

    std::u16string Home() const { return Directory / u"home"; }

    static std::u16string Folder(int ANumber) {
        std::u16string Path;
        return ShellFolder(ANumber, Path) ? Path : u"?";
    }
    static unsigned ModeOf(const std::u16string& APath) {
        struct stat Status {};
        return stat(detail::ToNative(APath).c_str(), &Status) == 0 ? Status.st_mode & 0777 : 0;
    }

    const TTemporaryDirectory Directory;
    TVariables Variables;
};

TEST_F(ShellFoldersLinux, FoldersOfTheUserAreMadeForHimAlone) {
    const std::map<int, std::u16string> Cases = {
        {5, u"/Documents"}, {12, u"/Documents"},    {0, u"/Desktop"},          {16, u"/Desktop"},
        {39, u"/Pictures"}, {26, u"/.config"},      {28, u"/.local/share"},    {32, u"/.cache"},
        {40, u""},          {34, u"/.local/state"}, {7, u"/.config/autostart"}};
    for (const auto& [Number, Path] : Cases) {
        EXPECT_EQ(Home() + Path, Folder(Number)) << Number;
        EXPECT_EQ(0700u, ModeOf(Home() + Path)) << Number;
    }
    Variables.Set(u"XDG_CONFIG_HOME", Home() + u"/cfg/");
    Variables.Set(u"XDG_DATA_HOME", u"not/whole");
    EXPECT_EQ(Home() + u"/cfg", Folder(26));
    EXPECT_EQ(Home() + u"/.local/share", Folder(28));
    const std::string Chosen = "XDG_DOCUMENTS_DIR=\"$HOME/Papers\"\n";
    TError Error;
    ASSERT_TRUE(WriteWholeFile(Home() + u"/cfg/user-dirs.dirs", std::as_bytes(std::span(Chosen)), Error));
    EXPECT_EQ(Home() + u"/Papers", Folder(5));
    EXPECT_EQ(Home() + u"/Music", Folder(13));
}

TEST_F(ShellFoldersLinux, SharedFoldersLieWhereTheProcessMayWrite) {
    const bool IsRoot = geteuid() == 0;
    EXPECT_EQ(IsRoot ? u"/var/lib" : Home() + u"/.local/state", Folder(46));
    Variables.Set(u"STATE_DIRECTORY", Directory.Path() + u":/elsewhere");
    EXPECT_EQ(Directory.Path(), Folder(35));
    EXPECT_EQ(Home() + u"/Music", [&] {
        Variables.Set(u"STATE_DIRECTORY", Home());
        return Folder(40) == Home() ? Folder(53) : u"";
    }());
    Variables.Set(u"STATE_DIRECTORY", u"/nowhere");
    EXPECT_NE(u"/nowhere", Folder(46));
}

TEST_F(ShellFoldersLinux, WhatCannotBeHadIsRefused) {
    for (const int Number : {-1, 1, 3, 4, 10, 17, 18, 49, 60, 1000})
        EXPECT_EQ(u"?", Folder(Number)) << Number;
    TError Error;
    const std::u16string Blocked = Directory / u"file";
    ASSERT_TRUE(WriteWholeFile(Blocked, std::span<const std::byte>(), Error));
    Variables.Set(u"HOME", Blocked);
    EXPECT_EQ(u"?", Folder(5));
}

TEST_F(ShellFoldersLinux, DatabaseOfUsersKnowsTheHome) {
    const std::string Known = detail::UserRecord(geteuid()).Home;
    for (const std::optional<std::u16string>& Value :
         {std::optional<std::u16string>(), {u""}, {u"relative"}}) {
        Variables.Set(u"HOME", Value);
        EXPECT_EQ(Known, detail::HomeDirectory());
    }
    EXPECT_EQ("", detail::UserRecord(3'999'999'999).Home);
}

} // namespace
} // namespace qz::platform
