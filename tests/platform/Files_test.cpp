#include <qz/platform/Files.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <string>
#include <thread>

#include "tests/support/AtOnce.h"
#include "tests/support/TemporaryDirectory.h"
#include <qz/platform/FileHandle.h>

namespace qz::platform {
namespace {

std::vector<std::byte> Bytes(size_t ACount, int ASeed = 1) {
    std::vector<std::byte> Result(ACount);
    unsigned Value = static_cast<unsigned>(ASeed);
    for (std::byte& Byte : Result) {
        Value = Value * 1664525 + 1013904223;
        Byte = static_cast<std::byte>(Value >> 24);
    }
    return Result;
}

TEST(Files, ContentComesBack) {
    const TTemporaryDirectory Directory;
    const std::u16string Path = Directory / u"Größe \xD83D\xDE00.bin";
    // Growing and shrinking, so that nothing of an earlier content may stay.
    for (const size_t Size : {0u, 1u, 4096u, 1'000'003u, 17u}) {
        const std::vector<std::byte> Written = Bytes(Size);
        ASSERT_TRUE(WriteWholeFile(Path, Written));
        EXPECT_EQ(*ReadWholeFile(Path), Written);
    }
    const std::vector<TDirEntry> Entries = *ListDirectory(Directory.Path());
    ASSERT_EQ(Entries.size(), 1u); // no helper file is left
    EXPECT_EQ(Directory / Entries[0].Name, Path);
    EXPECT_EQ(Entries[0].Size, 17u);
    EXPECT_FALSE(Entries[0].IsDirectory);
}

TEST(Files, DirectoriesAreNoFiles) {
    const TTemporaryDirectory Directory;
    const std::u16string Inner = Directory / u"inner";
    ASSERT_TRUE(MakeDirectory(Inner));
    EXPECT_TRUE(DirectoryExists(Inner));
    EXPECT_FALSE(FileExists(Inner));
    const std::vector<TDirEntry> Entries = *ListDirectory(Directory.Path());
    ASSERT_EQ(Entries.size(), 1u);
    EXPECT_TRUE(Entries[0].IsDirectory);
    EXPECT_EQ(Entries[0].Size, 0u);

    EXPECT_FALSE(MakeDirectory(Inner));
    EXPECT_FALSE(RemoveFile(Inner));
    EXPECT_FALSE(ReadWholeFile(Directory / u"missing") || RemoveFile(Directory / u"missing"));
    EXPECT_FALSE(WriteWholeFile(Directory / u"missing/file", Bytes(3)) ||
                 ListDirectory(Directory / u"missing"));
    EXPECT_TRUE(RemoveEmptyDirectory(Inner));
    EXPECT_FALSE(DirectoryExists(Inner));
}

TEST(Files, NulInAPathIsRefused) {
    const TTemporaryDirectory Directory;
    const std::u16string Good = Directory / u"file";
    const std::u16string Bad = Good + std::u16string(1, u'\0') + u"x";
    ASSERT_TRUE(WriteWholeFile(Good, Bytes(5)));
    EXPECT_FALSE(WriteWholeFile(Bad, Bytes(3)) || ReadWholeFile(Bad) || RemoveFile(Bad));
    EXPECT_FALSE(MakeDirectory(Bad) || ListDirectory(Bad) || FileExists(Bad));
    EXPECT_EQ(*ReadWholeFile(Good), Bytes(5));
}

TEST(Files, ReaderThreadsSeeWholeContentsOnly) {
    const TTemporaryDirectory Directory;
    const std::u16string Path = Directory / u"shared";
    const std::vector<std::byte> Contents[] = {Bytes(60'000, 1), Bytes(90'000, 2)};
    ASSERT_TRUE(WriteWholeFile(Path, Contents[0]));
    std::atomic<bool> Stop = false;
    std::atomic<int> Torn = 0;
    std::atomic<int> Reads = 0;
    std::thread Reader([&] {
        while (!Stop) {
            const auto Read = ReadWholeFile(Path);
            Reads += Read ? 1 : 0;
            Torn += Read && *Read != Contents[0] && *Read != Contents[1] ? 1 : 0;
        }
    });
    int Writes = 0; // Windows may refuse some while the reader has the file open
    for (size_t Round = 0; Round < 200 || Reads == 0; ++Round)
        Writes += WriteWholeFile(Path, Contents[Round % 2]) ? 1 : 0;
    Stop = true;
    Reader.join();
    EXPECT_EQ(Torn, 0);
    EXPECT_GT(Writes, 0);
}

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

} // namespace
} // namespace qz::platform
