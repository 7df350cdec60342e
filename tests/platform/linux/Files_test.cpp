#include <qz/platform/Files.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include "tests/support/Child.h"
#include "tests/support/OrdinaryRights.h"
#include "tests/support/TemporaryDirectory.h"
#include <qz/platform/Clock.h>
#include <qz/platform/FileHandle.h>
#include <qz/platform/FileTimes.h>
#include <qz/platform/Paths.h>
#include <qz/platform/linux/NativeText.h>

namespace qz::platform {
namespace {

const std::string cOld(10, 'o');
const std::string cNew(2000, 'n');

TResult<> Write(std::u16string_view APath, std::string_view AText) {
    return WriteWholeFile(APath, std::as_bytes(std::span(AText)));
}

std::string Read(std::u16string_view APath) {
    const auto Bytes = ReadWholeFile(APath);
    EXPECT_TRUE(Bytes);
    return {reinterpret_cast<const char*>(Bytes->data()), Bytes->size()};
}

TEST(NativeText, ConvertsBothWays) {
    const std::pair<std::string, std::u16string> Cases[] = {
        {"", u""},
        {"/tmp/\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80", u"/tmp/ä€\xD83D\xDE00"},
        {"a\xFFz", u"a\xDCFFz"},
        {"\xC3", u"\xDCC3"},                               // cut off
        {"\xED\xA0\x80", u"\xDCED\xDCA0\xDC80"},           // a surrogate
        {"\xF4\x90\x80\x80", u"\xDCF4\xDC90\xDC80\xDC80"}, // beyond the last character
        {"\xF4\x8F\xBF\xBF\xED\x9F\xBF\xEE\x80\x80", u"\xDBFF\xDFFF\xD7FF\xE000"},
    };
    for (const auto& [Native, Text] : Cases) {
        EXPECT_EQ(detail::FromNative(Native), Text);
        EXPECT_EQ(detail::ToNative(Text), Native);
    }
    EXPECT_EQ(detail::ToNative(u"\xD800x\xDC00"), "\xED\xA0\x80x\xED\xB0\x80");
}

TEST(FilesLinux, ReplacingKeepsRights) {
    const TTemporaryDirectory Directory;
    const std::u16string Path = Directory / u"file";
    const std::string Native = detail::ToNative(Path);
    ASSERT_TRUE(Write(Path, cOld));
    ASSERT_EQ(chmod(Native.c_str(), 0751), 0);
    ASSERT_TRUE(Write(Path, cNew));
    struct stat Status;
    ASSERT_EQ(stat(Native.c_str(), &Status), 0);
    EXPECT_EQ(Status.st_mode & 07777, 0751u);
}

TEST(FilesLinux, ReadsAndWritesWhatHasNoSize) {
    EXPECT_GT(Read(u"/proc/self/status").size(), 100u);
    EXPECT_TRUE(Write(u"/dev/null", cNew));
    EXPECT_TRUE(FileExists(u"/dev/null"));
    EXPECT_EQ(Write(u"/dev/full", cNew).Code(), ENOSPC);
    TFileHandle Null;
    ASSERT_TRUE(Null.Open(u"/dev/null", TFileAccess::Write, TFileCreation::Never, {true, true}));
    EXPECT_TRUE(Null.Flush()) << "a device has nothing to wait for";
}

// Root may do anything, so that the child becomes somebody else, who owns the directory and the locked file
// then.
TEST(FilesLinux, RightsAreRespected) {
    const TTemporaryDirectory Directory;
    const std::u16string Locked = Directory / u"locked";
    const std::u16string Open = Directory / u"open";
    const std::string Native = detail::ToNative(Directory.Path());
    ASSERT_TRUE(Write(Locked, cOld));
    ASSERT_TRUE(Write(Open, cOld));
    ASSERT_EQ(chmod(detail::ToNative(Locked).c_str(), 0444), 0);
    ASSERT_EQ(chmod(detail::ToNative(Open).c_str(), 0666), 0);
    const int Result = InChild([&] {
        const TOrdinaryRights Rights;
        // The directory would take a new file in place of the locked one.
        if (Write(Locked, cNew).Code() != EACCES)
            return 2;
        // It takes none now, but the open file may be written where it is.
        if (chmod(Native.c_str(), 0555) != 0)
            return 3;
        return Write(Open, cNew) ? 0 : 4;
    });
    ASSERT_EQ(chmod(Native.c_str(), 0700), 0);
    EXPECT_EQ(Result, 0);
    EXPECT_EQ(Read(Locked), cOld);
    EXPECT_EQ(Read(Open), cNew);
}

class FileLocks : public testing::Test {
protected:
    TTemporaryDirectory Directory;
    std::u16string Path = Directory / u"file";
};

// A lock of another program on the whole file covers the bytes of ours, too.
TEST_F(FileLocks, ForeignLocksNeitherHangNorDeny) {
    EXPECT_TRUE(Write(Path, "old"));
    for (const short Type : {short{F_RDLCK}, short{F_WRLCK}}) {
        const int Foreign = open(detail::ToNative(Path).c_str(), O_RDWR);
        struct flock Whole {};
        Whole.l_type = Type;
        ASSERT_EQ(fcntl(Foreign, F_OFD_SETLK, &Whole), 0);
        for (const TFileAccess Access : {TFileAccess::Read, TFileAccess::Write, TFileAccess::ReadWrite}) {
            TFileHandle First, Second;
            EXPECT_TRUE(First.Open(Path, Access, TFileCreation::Never, {true, true}));
            EXPECT_TRUE(Second.Open(Path, Access, TFileCreation::Never, {true, true}));
        }
        EXPECT_EQ(Read(Path), "old");
        EXPECT_TRUE(Write(Path, "old"));
        close(Foreign);
    }
}

TEST_F(FileLocks, ALinkLeadsToADeniedFileAndIsDeniedToo) {
    EXPECT_TRUE(Write(Path, "old"));
    const std::u16string Link = Directory / u"link";
    ASSERT_EQ(symlink("file", detail::ToNative(Link).c_str()), 0);
    {
        TFileHandle Handle;
        ASSERT_TRUE(Handle.Open(Path, TFileAccess::Read, TFileCreation::Never, {.Read = true}));
        EXPECT_EQ(WriteWholeFile(Link, std::span<const std::byte>()).Code(), ETXTBSY);
        EXPECT_EQ(Read(Path), "old");
    }
    EXPECT_TRUE(Write(Link, "new"));
    EXPECT_EQ(Read(Path), "new");
    ASSERT_EQ(unlink(detail::ToNative(Path).c_str()), 0);
    EXPECT_FALSE(ListDirectory(Directory.Path())->at(0).IsDirectory);
    EXPECT_TRUE(Write(Link, "made"));
    EXPECT_EQ(Read(Path), "made") << "a link to nothing makes what it leads to";
}

TEST_F(FileLocks, ASavedFileKeepsItsNamesAndAttributes) {
    EXPECT_TRUE(Write(Path, "old"));
    const std::u16string Other = Directory / u"other";
    ASSERT_EQ(link(detail::ToNative(Path).c_str(), detail::ToNative(Other).c_str()), 0);
    EXPECT_TRUE(Write(Path, "new"));
    EXPECT_EQ(Read(Other), "new");
    ASSERT_EQ(unlink(detail::ToNative(Other).c_str()), 0);
    const bool HasAttributes = setxattr(detail::ToNative(Path).c_str(), "user.note", "x", 1, 0) == 0;
    EXPECT_TRUE(Write(Path, "newer"));
    char Value = '\0';
    EXPECT_EQ(HasAttributes ? 1 : -1, getxattr(detail::ToNative(Path).c_str(), "user.note", &Value, 1));
}

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

TEST(PathsLinux, EveryNameSurvives) {
    for (const std::string Name : {"", "/a/\xC3\xA4", "\xFF\xC3.txt"})
        EXPECT_EQ(PathOfText(TextOfPath(Name)).native(), Name);
}

} // namespace
} // namespace qz::platform
