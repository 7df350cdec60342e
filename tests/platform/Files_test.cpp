#include <qz/platform/Files.h>

#include <algorithm>
#include <atomic>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "tests/support/TemporaryDirectory.h"

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
    EXPECT_FALSE(ReadWholeFile(Inner) || WriteWholeFile(Inner, Bytes(3)));
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

TEST(Files, PathsMayBeLong) {
    const TTemporaryDirectory Directory;
    std::u16string Path = Directory.Path();
    while (Path.size() < 700) {
        Path += u"/" + std::u16string(97, u'd');
        ASSERT_TRUE(MakeDirectory(Path));
        ASSERT_TRUE(WriteWholeFile(Path + u"/file", Bytes(9)));
        EXPECT_EQ(*ReadWholeFile(Path + u"/file"), Bytes(9));
    } // the directory is removed with all that is in it
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

} // namespace
} // namespace qz::platform
