#include <qz/platform/FileHandle.h>

#include <array>

#include "tests/support/AtOnce.h"
#include "tests/support/TemporaryDirectory.h"

namespace qz::platform {
namespace {

constexpr TFileSharing cAll{.Read = true, .Write = true};
constexpr std::span<const std::byte> cNothing;

class FileHandle : public testing::Test {
protected:
    bool Open(TFileHandle& AFile, TFileAccess AAccess, TFileSharing ASharing,
              TFileCreation ACreation = TFileCreation::Never) {
        return static_cast<bool>(AFile.Open(Path, AAccess, ACreation, ASharing));
    }
    void Write(TFileHandle& AFile, std::string_view AText) {
        const TWritten Written = AFile.Write(std::as_bytes(std::span(AText)));
        EXPECT_TRUE(Written && Written.Done == AText.size());
    }
    std::string Read(TFileHandle& AFile) {
        std::array<std::byte, 64> Buffer;
        const TResult<size_t> Got = AFile.Read(Buffer);
        EXPECT_TRUE(Got);
        return {reinterpret_cast<const char*>(Buffer.data()), *Got};
    }
    int64_t Seek(TFileHandle& AFile, int64_t AOffset, TFileOrigin AOrigin = TFileOrigin::Beginning) {
        const TResult<int64_t> Position = AFile.Seek(AOffset, AOrigin);
        EXPECT_TRUE(Position);
        return *Position;
    }

    TTemporaryDirectory Directory;
    std::u16string Path = Directory / u"file";
};

TEST_F(FileHandle, OpensAsItIsToldTo) {
    TFileHandle File;
    EXPECT_FALSE(Open(File, TFileAccess::Read, cAll));
    ASSERT_TRUE(Open(File, TFileAccess::Write, cAll, TFileCreation::WhenMissing));
    Write(File, "abcdef");
    ASSERT_TRUE(Open(File, TFileAccess::ReadWrite, cAll, TFileCreation::WhenMissing));
    EXPECT_EQ(Read(File), "abcdef");
    EXPECT_EQ(Read(File), "");
    EXPECT_EQ(Seek(File, -4, TFileOrigin::End), 2);
    Write(File, "XY");
    EXPECT_EQ(Seek(File, 0), 0);
    EXPECT_EQ(Read(File), "abXYef");
    EXPECT_TRUE(File.SetSize(3));
    EXPECT_EQ(Seek(File, 0, TFileOrigin::Current), 6) << "the position stays";
    EXPECT_EQ(Seek(File, 0, TFileOrigin::End), 3);
    EXPECT_TRUE(File.Flush());
    EXPECT_FALSE(Open(File, TFileAccess::Write, cAll, TFileCreation::Exclusive));
    ASSERT_TRUE(Open(File, TFileAccess::Write, cAll, TFileCreation::Always));
    EXPECT_EQ(Seek(File, 0, TFileOrigin::End), 0);
    EXPECT_TRUE(File.Close());
    EXPECT_FALSE(File.Open(Directory.Path(), TFileAccess::Read, TFileCreation::Never, cAll));
    EXPECT_FALSE(File.Open(std::u16string_view(u"a\0b", 3), TFileAccess::Read, TFileCreation::Never, cAll));
}

TEST_F(FileHandle, ASecondHandleIsLetInOnlyWhereBothAgree) {
    ASSERT_TRUE(WriteWholeFile(Path, cNothing));
    const TFileAccess Accesses[] = {TFileAccess::Read, TFileAccess::Write, TFileAccess::ReadWrite};
    const TFileSharing Sharings[] = {{}, {.Read = true}, {.Write = true}, cAll};
    const auto Allows = [](TFileSharing ASharing, TFileAccess AAccess) {
        return (AAccess == TFileAccess::Write || ASharing.Read) &&
            (AAccess == TFileAccess::Read || ASharing.Write);
    };
    for (const TFileAccess FirstAccess : Accesses)
        for (const TFileSharing FirstSharing : Sharings)
            for (const TFileAccess Access : Accesses)
                for (const TFileSharing Sharing : Sharings) {
                    TFileHandle First, Second;
                    ASSERT_TRUE(Open(First, FirstAccess, FirstSharing));
                    const bool Expected = Allows(FirstSharing, Access) && Allows(Sharing, FirstAccess);
                    EXPECT_EQ(Open(Second, Access, Sharing), Expected)
                        << int(FirstAccess) << FirstSharing.Read << FirstSharing.Write << ' ' << int(Access)
                        << Sharing.Read << Sharing.Write;
                    First.Close();
                    EXPECT_TRUE(Expected || Open(Second, Access, Sharing)) << "nothing is left of the first";
                }
}

TEST_F(FileHandle, WhoIsRefusedEmptiesNothing) {
    ASSERT_TRUE(WriteWholeFile(Path, std::as_bytes(std::span("old", 3))));
    TFileHandle First, Second;
    ASSERT_TRUE(Open(First, TFileAccess::Read, {.Read = true}));
    EXPECT_FALSE(Open(Second, TFileAccess::Write, cAll, TFileCreation::Always));
    EXPECT_FALSE(WriteWholeFile(Path, cNothing));
    EXPECT_EQ(Read(First), "old");
    ASSERT_TRUE(Open(First, TFileAccess::Write, {.Write = true}));
    EXPECT_FALSE(ReadWholeFile(Path));
}

// Never both of two that exclude each other; and one of them as a rule.
TEST_F(FileHandle, OfRacingWritersAtMostOneIsLetIn) {
    ASSERT_TRUE(WriteWholeFile(Path, cNothing));
    std::atomic<int> Inside{0};
    std::atomic<int> Times{0};
    AtOnce(4, [&](int) {
        for (int I = 0; I < 50; ++I) {
            TFileHandle File;
            if (!File.Open(Path, TFileAccess::ReadWrite, TFileCreation::Never, {.Read = true}))
                continue;
            EXPECT_EQ(++Inside, 1);
            ++Times;
            std::this_thread::yield();
            --Inside;
        }
    });
    EXPECT_GT(Times.load(), 0);
}

TEST_F(FileHandle, GoesBeyondFourGigabytes) {
    constexpr int64_t cFar = (int64_t{5} << 30) + 3;
    TFileHandle File;
    ASSERT_TRUE(Open(File, TFileAccess::ReadWrite, {}, TFileCreation::Always));
    ASSERT_TRUE(File.SetSize(cFar));
    EXPECT_EQ(Seek(File, 0, TFileOrigin::End), cFar);
    Write(File, "end");
    EXPECT_EQ(Seek(File, cFar - 1), cFar - 1);
    EXPECT_EQ(Read(File), std::string("\0end", 4));
}

} // namespace
} // namespace qz::platform
