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
        EXPECT_EQ(detail::ParseUserDirectory(Case.Text, "MUSIC", "/home/me"), Case.Expected) << Case.Text;
    EXPECT_EQ(detail::ParseUserDirectory("XDG_MUSIC_DIR=\"$HOME/x\"", "MUSIC", "/"), "/x");
    EXPECT_EQ(detail::ParseUserDirectory("XDG_MUSIC_DIR=\"$HOME\"", "MUSIC", "/"), "/");
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
        {5, u"/Documents"}, {12, u"/Documents"},    {0, u"/Desktop"},           {16, u"/Desktop"},
        {39, u"/Pictures"}, {26, u"/.config"},      {28, u"/.local/share"},     {32, u"/.cache"},
        {40, u""},          {34, u"/.local/state"}, {7, u"/.config/autostart"}, {9, u"/.local/share/sendto"}};
    for (const auto& [Number, Path] : Cases) {
        EXPECT_EQ(Home() + Path, Folder(Number)) << Number;
        EXPECT_EQ(ModeOf(Home() + Path), 0700u) << Number;
    }
    Variables.Set(u"XDG_CONFIG_HOME", Home() + u"/cfg/");
    Variables.Set(u"XDG_DATA_HOME", u"not/whole");
    EXPECT_EQ(Home() + u"/cfg", Folder(26));
    EXPECT_EQ(Home() + u"/.local/share", Folder(28));
    const std::string Chosen = "XDG_DOCUMENTS_DIR=\"$HOME/Papers\"\n";
    ASSERT_TRUE(WriteWholeFile(Home() + u"/cfg/user-dirs.dirs", std::as_bytes(std::span(Chosen))));
    EXPECT_EQ(Home() + u"/Papers", Folder(5));
    EXPECT_EQ(Home() + u"/Music", Folder(13));
}

TEST_F(ShellFoldersLinux, SharedFoldersLieWhereTheProcessMayWrite) {
    struct TCase {
        int Number;
        const char* Shared;
        const char* Own;
    };
    const std::string Base = detail::ToNative(Directory.Path());
    const detail::TSharedPlaces Places{Base + "/s", Base + "/d", Base + "/c"};
    for (const bool AreThere : {false, true}) {
        for (const TCase& Case : {TCase{46, "/s", "/.local/state"},
                                  {53, "/s/Music", "/.local/state/Music"},
                                  {22, "/d/applications", "/.local/share/applications"},
                                  {23, "/d/applications", "/.local/share/applications"},
                                  {24, "/c/autostart", "/.config/autostart"}}) {
            const std::string Path = detail::FindFolder(Case.Number, Places).value_or("?");
            EXPECT_EQ(Path, AreThere ? Base + Case.Shared : Base + "/home" + Case.Own);
            EXPECT_EQ(ModeOf(detail::FromNative(Path)), AreThere ? 0755u : 0700u) << Path;
        }
        for (const std::string& Place : {Places.State, Places.Data, Places.Config})
            std::filesystem::create_directory(Place);
    }
    for (const char* Place : {"/s", "/d", "/c"})
        std::filesystem::remove_all(Base + Place);
    Variables.Set(u"STATE_DIRECTORY", Directory.Path() + u"/:/elsewhere");
    EXPECT_EQ(Directory.Path(), Folder(35));
    EXPECT_EQ(Directory.Path() + u"/Music", Folder(53));
    std::filesystem::remove_all(Base + "/Music");
    Variables.Set(u"STATE_DIRECTORY", u"/nowhere");
    EXPECT_EQ(detail::FindFolder(46, Places).value_or("?"), Base + "/home/.local/state");
}

TEST_F(ShellFoldersLinux, FoldersOfTheSystemAreToldAsTheyAre) {
    const std::map<int, std::u16string> Cases = {
        {20, u"/usr/share/fonts"}, {36, u"/"},    {37, u"/usr/lib"}, {38, u"/opt"},
        {41, u"/usr/lib"},         {42, u"/opt"}, {43, u"/opt"},     {44, u"/opt"},
        {56, u"/usr/share"}};
    for (const auto& [Number, Path] : Cases)
        EXPECT_EQ(Path, Folder(Number)) << Number;
    Variables.Set(u"XDG_DATA_HOME", u"/");
    EXPECT_EQ(detail::Below(detail::BaseDirectory("XDG_DATA_HOME", "d"), "x"), "/x");
}

TEST_F(ShellFoldersLinux, WhatCannotBeHadIsRefused) {
    for (const int Number : {-1, 1, 3, 4, 10, 17, 18, 49, 60, 1000})
        EXPECT_EQ(Folder(Number), u"?") << Number;
    EXPECT_EQ(Folder(40), u"?");
    EXPECT_FALSE(DirectoryExists(Home()));
    const std::u16string Blocked = Directory / u"file";
    ASSERT_TRUE(WriteWholeFile(Blocked, std::span<const std::byte>()));
    Variables.Set(u"HOME", Blocked);
    EXPECT_EQ(Folder(5), u"?");
}

TEST_F(ShellFoldersLinux, DatabaseOfUsersKnowsTheHome) {
    const std::string Known = detail::UserRecord(geteuid()).Home;
    for (const std::optional<std::u16string>& Value :
         {std::optional<std::u16string>(), {u""}, {u"relative"}}) {
        Variables.Set(u"HOME", Value);
        EXPECT_EQ(Known, detail::HomeDirectory());
    }
    EXPECT_EQ(detail::UserRecord(3'999'999'999).Home, "");
}

TEST(UserRecordLinux, DomainsAreTakenOutOfNames) {
    struct TCase {
        std::u16string Whole;
        const char16_t* Name;
        const char16_t* Domain;
    };
    for (const TCase& Case : {TCase{u"SALES\\ann", u"ann", u"SALES"},
                              {u"SALES\\ann@x", u"ann@x", u"SALES"},
                              {u"ann@b@sales.local", u"ann@b", u"sales.local"},
                              {u"ann", u"ann", u""}}) {
        std::u16string Name = Case.Whole;
        EXPECT_EQ(detail::TakeDomain(Name), Case.Domain);
        EXPECT_EQ(Name, Case.Name);
    }
}

} // namespace
} // namespace qz::platform
