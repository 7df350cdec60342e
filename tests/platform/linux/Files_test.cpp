#include <qz/platform/Files.h>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <string>

#include "tests/support/Child.h"
#include "tests/support/OrdinaryRights.h"
#include "tests/support/TemporaryDirectory.h"
#include <qz/platform/FileHandle.h>
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

TEST(FilesLinux, ReplacingKeepsRightsAndFollowsLinks) {
    const TTemporaryDirectory Directory;
    const std::u16string Path = Directory / u"file";
    const std::u16string Link = Directory / u"link";
    const std::string Native = detail::ToNative(Path);
    ASSERT_TRUE(Write(Path, cOld));
    ASSERT_EQ(chmod(Native.c_str(), 0751), 0);
    ASSERT_EQ(symlink("file", detail::ToNative(Link).c_str()), 0);

    ASSERT_TRUE(Write(Path, cNew));
    struct stat Status;
    ASSERT_EQ(stat(Native.c_str(), &Status), 0);
    EXPECT_EQ(Status.st_mode & 07777, 0751u);
    const ino_t Kept = Status.st_ino;

    ASSERT_TRUE(Write(Link, cOld));
    ASSERT_EQ(stat(Native.c_str(), &Status), 0);
    EXPECT_EQ(Status.st_ino, Kept);
    EXPECT_EQ(Read(Path), cOld);
}

TEST(FilesLinux, NamesThatAreNotUtf8Survive) {
    const TTemporaryDirectory Directory;
    ASSERT_TRUE(Write(Directory / u"x\xDCE4\xDCFF.txt", cOld));
    EXPECT_EQ(access((detail::ToNative(Directory.Path()) + "/x\xE4\xFF.txt").c_str(), F_OK), 0);
    EXPECT_EQ(ListDirectory(Directory.Path())->at(0).Name, u"x\xDCE4\xDCFF.txt");
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

} // namespace
} // namespace qz::platform
