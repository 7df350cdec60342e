#include <cerrno>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include "tests/support/TemporaryDirectory.h"
#include <qz/platform/FileHandle.h>

namespace qz::platform {
namespace {

class FileLocks : public testing::Test {
protected:
    void Write(std::u16string_view APath, std::string_view AText) {
        EXPECT_TRUE(WriteWholeFile(APath, std::as_bytes(std::span(AText))));
    }
    std::string Read(std::u16string_view APath) {
        const auto Bytes = ReadWholeFile(APath);
        EXPECT_TRUE(Bytes);
        return {reinterpret_cast<const char*>(Bytes->data()), Bytes->size()};
    }
    static std::string Native(std::u16string_view APath) { return {APath.begin(), APath.end()}; }

    TTemporaryDirectory Directory;
    std::u16string Path = Directory / u"file";
};

// A lock of another program on the whole file covers the bytes of ours, too.
TEST_F(FileLocks, ForeignLocksNeitherHangNorDeny) {
    Write(Path, "old");
    for (const short Type : {short{F_RDLCK}, short{F_WRLCK}}) {
        const int Foreign = open(Native(Path).c_str(), O_RDWR);
        struct flock Whole {};
        Whole.l_type = Type;
        ASSERT_EQ(fcntl(Foreign, F_OFD_SETLK, &Whole), 0);
        for (const TFileAccess Access : {TFileAccess::Read, TFileAccess::Write, TFileAccess::ReadWrite}) {
            TFileHandle First, Second;
            EXPECT_TRUE(First.Open(Path, Access, TFileCreation::Never, {true, true}));
            EXPECT_TRUE(Second.Open(Path, Access, TFileCreation::Never, {true, true}));
        }
        EXPECT_EQ(Read(Path), "old");
        Write(Path, "old");
        close(Foreign);
    }
}

TEST_F(FileLocks, ALinkLeadsToADeniedFileAndIsDeniedToo) {
    Write(Path, "old");
    const std::u16string Link = Directory / u"link";
    ASSERT_EQ(symlink("file", Native(Link).c_str()), 0);
    {
        TFileHandle Handle;
        ASSERT_TRUE(Handle.Open(Path, TFileAccess::Read, TFileCreation::Never, {.Read = true}));
        EXPECT_EQ(WriteWholeFile(Link, std::span<const std::byte>()).Code(), ETXTBSY);
        EXPECT_EQ(Read(Path), "old");
    }
    Write(Link, "new");
    EXPECT_EQ(Read(Path), "new");
    ASSERT_EQ(unlink(Native(Path).c_str()), 0);
    Write(Link, "made");
    EXPECT_EQ(Read(Path), "made") << "a link to nothing makes what it leads to";
}

TEST_F(FileLocks, ASavedFileKeepsItsNamesAndAttributes) {
    Write(Path, "old");
    const std::u16string Other = Directory / u"other";
    ASSERT_EQ(link(Native(Path).c_str(), Native(Other).c_str()), 0);
    Write(Path, "new");
    EXPECT_EQ(Read(Other), "new");
    ASSERT_EQ(unlink(Native(Other).c_str()), 0);
    const bool HasAttributes = setxattr(Native(Path).c_str(), "user.note", "x", 1, 0) == 0;
    ASSERT_EQ(chmod(Native(Path).c_str(), 0640), 0);
    Write(Path, "newer");
    struct stat Status;
    ASSERT_EQ(stat(Native(Path).c_str(), &Status), 0);
    EXPECT_EQ(Status.st_mode & 07777u, 0640u);
    char Value = '\0';
    EXPECT_EQ(HasAttributes ? 1 : -1, getxattr(Native(Path).c_str(), "user.note", &Value, 1));
}

} // namespace
} // namespace qz::platform
