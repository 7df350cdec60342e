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
        ASSERT_EQ(0, fcntl(Foreign, F_OFD_SETLK, &Whole));
        for (const TFileAccess Access : {TFileAccess::Read, TFileAccess::Write, TFileAccess::ReadWrite}) {
            TFileHandle First, Second;
            EXPECT_TRUE(First.Open(Path, Access, TFileCreation::Never, {true, true}));
            EXPECT_TRUE(Second.Open(Path, Access, TFileCreation::Never, {true, true}));
        }
        EXPECT_EQ("old", Read(Path));
        Write(Path, "old");
        close(Foreign);
    }
}

TEST_F(FileLocks, ALinkLeadsToADeniedFileAndIsDeniedToo) {
    Write(Path, "old");
    const std::u16string Link = Directory / u"link";
    ASSERT_EQ(0, symlink("file", Native(Link).c_str()));
    {
        TFileHandle Handle;
        ASSERT_TRUE(Handle.Open(Path, TFileAccess::Read, TFileCreation::Never, {.Read = true}));
        EXPECT_EQ(WriteWholeFile(Link, std::span<const std::byte>()).Code(), ETXTBSY);
        EXPECT_EQ("old", Read(Path));
    }
    Write(Link, "new");
    EXPECT_EQ("new", Read(Path));
    ASSERT_EQ(0, unlink(Native(Path).c_str()));
    Write(Link, "made");
    EXPECT_EQ("made", Read(Path)) << "a link to nothing makes what it leads to";
}

TEST_F(FileLocks, ASavedFileKeepsItsNamesAndAttributes) {
    Write(Path, "old");
    const std::u16string Other = Directory / u"other";
    ASSERT_EQ(0, link(Native(Path).c_str(), Native(Other).c_str()));
    Write(Path, "new");
    EXPECT_EQ("new", Read(Other));
    ASSERT_EQ(0, unlink(Native(Other).c_str()));
    const bool HasAttributes = setxattr(Native(Path).c_str(), "user.note", "x", 1, 0) == 0;
    ASSERT_EQ(0, chmod(Native(Path).c_str(), 0640));
    Write(Path, "newer");
    struct stat Status;
    ASSERT_EQ(0, stat(Native(Path).c_str(), &Status));
    EXPECT_EQ(0640u, Status.st_mode & 07777u);
    char Value = '\0';
    EXPECT_EQ(HasAttributes ? 1 : -1, getxattr(Native(Path).c_str(), "user.note", &Value, 1));
}

} // namespace
} // namespace qz::platform
