#include <qz/platform/linux/ZoneFile.h>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "tests/support/TemporaryDirectory.h"
#include "tests/support/Variables.h"
#include <qz/platform/linux/ZoneText.h>

namespace qz::platform {
namespace {

std::string Number(int64_t AValue, int ASize) {
    std::string Result;
    for (int Shift = (ASize - 1) * 8; Shift >= 0; Shift -= 8)
        Result += static_cast<char>(AValue >> Shift);
    return Result;
}

struct TParts {
    std::vector<int64_t> Times = {0, 1000};
    std::string KindOfEach = std::string("\1\0", 2);
    std::vector<int64_t> Offsets = {3600, 7200};
    char IsDaylight = 1; // of the second kind
    char NameAt = 4;     // of the second kind
    std::string Names = std::string("CET\0CEST\0", 9);
    std::string Footer = "\nCET-1CEST,M3.5.0,M10.5.0/3\n";
    int64_t TypeCount = 2;
    int64_t LeapCount = 0;
};

std::string Block(const TParts& AParts, char AVersion, int ATimeSize) {
    std::string Result = "TZif" + std::string(1, AVersion) + std::string(15, '\0');
    for (const int64_t Count :
         {int64_t{0}, int64_t{0}, AParts.LeapCount, static_cast<int64_t>(AParts.Times.size()),
          AParts.TypeCount, static_cast<int64_t>(AParts.Names.size())})
        Result += Number(Count, 4);
    for (const int64_t Time : AParts.Times)
        Result += Number(Time, ATimeSize);
    Result += AParts.KindOfEach;
    Result += Number(AParts.Offsets[0], 4) + std::string(2, '\0');
    Result += Number(AParts.Offsets[1], 4) + AParts.IsDaylight + AParts.NameAt;
    return Result + AParts.Names;
}

std::string File(const TParts& AParts, char AVersion = '2') {
    return AVersion == 0 ? Block(AParts, 0, 4)
                         : Block(AParts, AVersion, 4) + Block(AParts, AVersion, 8) + AParts.Footer;
}

bool Read(const std::string& AData, TSystemZone& AZone) {
    // Exactly as long as it is, so that a sanitizer sees each byte that is read behind the end.
    const std::vector<char> Exact(AData.begin(), AData.end());
    return detail::ReadZoneFile(std::as_bytes(std::span(Exact)), AZone);
}

std::string Installed(const char* AName) {
    std::ifstream Stream(std::string("/usr/share/zoneinfo/") + AName, std::ios::binary);
    return {std::istreambuf_iterator<char>(Stream), {}};
}

TEST(ZoneFile, BothVersionsAreRead) {
    const TParts Parts;
    TSystemZone Short, Long;
    ASSERT_TRUE(Read(File(Parts, 0), Short));
    ASSERT_TRUE(Read(File(Parts, '4'), Long));
    EXPECT_EQ(Short.Changes, (std::vector<TZoneChange>{{0, 1}, {1000, 0}}));
    EXPECT_EQ(Short.Kinds, (std::vector<TZoneKind>{{3600, false, u"CET"}, {7200, true, u"CEST"}}));
    EXPECT_TRUE(Short.Rules.empty());
    EXPECT_EQ(Long.Changes, Short.Changes);
    EXPECT_EQ(Long.Kinds, Short.Kinds); // those of the rule are there already
    ASSERT_EQ(Long.Rules.size(), 1U);
    EXPECT_EQ(Long.Rules[0].ToStandard.MSecs, 3 * 3600 * 1000);
}

TEST(ZoneFile, BadContentIsRefused) {
    using TSpoil = void (*)(TParts&);
    const TSpoil Spoils[] = {
        [](TParts& AParts) { AParts.TypeCount = 0; },
        [](TParts& AParts) { AParts.TypeCount = 0xFFFFFFFF; },
        [](TParts& AParts) { AParts.LeapCount = 0xFFFFFFFF; },
        [](TParts& AParts) { AParts.Times[1] = 0; },
        [](TParts& AParts) { AParts.KindOfEach[0] = 2; },
        [](TParts& AParts) { AParts.Offsets[0] = 93'600; },
        [](TParts& AParts) { AParts.Offsets[0] = -2147483648; },
        [](TParts& AParts) { AParts.IsDaylight = 2; },
        [](TParts& AParts) { AParts.NameAt = 9; },
        [](TParts& AParts) { AParts.Names.back() = 'X'; },
    };
    for (size_t Index = 0; Index < std::size(Spoils); ++Index) {
        TParts Parts;
        Spoils[Index](Parts);
        TSystemZone Zone{.Id = u"kept", .Kinds = {}, .FirstKind = 0, .Changes = {}, .Rules = {}};
        const TSystemZone Before = Zone;
        EXPECT_FALSE(Read(File(Parts), Zone)) << Index;
        EXPECT_EQ(Zone, Before) << Index;
    }
}

TEST(ZoneFile, NoBeginningOfAFileIsAFile) {
    for (const char* Name : {"Europe/Paris", "Asia/Gaza", "Etc/UTC"}) {
        const std::string Whole = Installed(Name);
        TSystemZone Zone;
        ASSERT_TRUE(Read(Whole, Zone)) << Name;
        const size_t Footer = Whole.rfind('\n', Whole.size() - 2);
        for (size_t Size = 0; Size < Footer; ++Size)
            EXPECT_FALSE(Read(Whole.substr(0, Size), Zone)) << Name << ' ' << Size;
        TSystemZone Listed;
        ASSERT_TRUE(Read(Whole.substr(0, Footer), Listed) && Listed.Rules.empty()) << Name;
        EXPECT_EQ(Listed.Changes, Zone.Changes) << Name;
    }
}

TEST(ZoneText, WhatBreaksOffIsRefused) {
    std::istringstream Bad(
        "|A|AB5|ABC|ABC-|ABC5:|ABC5:3:|<ABC|<ABC>|<A_C>5|<>5|ABC5DE|ABC5DEF,garbage|ABC5DEF4:|"
        "ABC5DEF,M3.2.0,x|ABC5DEF,M13.2.0,M11.1.0|ABC5DEF,M3.6.0|ABC5DEF,M3.0.0|ABC5DEF!|"
        "ABC5DEF,M3.2.7|ABC5DEF,M3.2|ABC5DEF,366|ABC5DEF,J0|ABC5DEF,J366|ABC5DEF,J5/|"
        "ABC5DEF,J5/-|ABC5DEF,J5x|ABC5 ");
    for (std::string Text; std::getline(Bad, Text, '|');) {
        TSystemZone Zone;
        EXPECT_FALSE(detail::ReadZoneText(Text, Zone)) << Text;
        EXPECT_EQ(Zone, TSystemZone()) << Text;
    }
    TSystemZone Zone;
    EXPECT_TRUE(detail::ReadZoneText("ABC9999999999999999999DEF,J1/-99999999999,J2/99999999999:99:99", Zone));
    EXPECT_EQ(Zone.Kinds[0].Offset, -24 * 3600);
}

TEST(SystemZone, OddSettingsAreUtc) {
    const TTemporaryDirectory Directory;
    const std::filesystem::path Folder(Directory.Path());
    TVariables Variables;
    ASSERT_EQ(mkfifo((Folder / "pipe").c_str(), 0600), 0); // which has no writer
    std::ofstream(Folder / "long").seekp(2 << 20).put('x');
    std::ofstream(Folder / "empty").flush();
    std::ofstream(Folder / "noise") << "TZif2 and so on";
    for (const char16_t* Name : {u"pipe", u"long", u"empty", u"noise", u".", u"missing"}) {
        Variables.Set(u"TZ", Directory / Name);
        EXPECT_EQ(ReadSystemZone()->Kinds, (std::vector<TZoneKind>{{0, false, u"UTC"}}));
        EXPECT_EQ(ReadSystemZone()->Id, u"UTC");
    }
    std::filesystem::copy_file("/usr/share/zoneinfo/Asia/Tokyo", Folder / "Zone");
    Variables.Set(u"TZDIR", Directory.Path());
    Variables.Set(u"TZ", u"Zone");
    EXPECT_EQ(ReadSystemZone()->Id, u"Zone");
    EXPECT_FALSE(ReadSystemZone()->Changes.empty());
    rlimit Limit;
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &Limit), 0);
    const rlimit None{0, Limit.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &None), 0);
    EXPECT_EQ(ReadSystemZone().Code(), EMFILE);
    setrlimit(RLIMIT_NOFILE, &Limit);
}

} // namespace
} // namespace qz::platform
