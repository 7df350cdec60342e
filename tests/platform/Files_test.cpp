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
    TError Error;
    // Growing and shrinking, so that nothing of an earlier content may stay.
    for (const size_t Size : {0u, 1u, 4096u, 1'000'003u, 17u}) {
        const std::vector<std::byte> Written = Bytes(Size);
        std::vector<std::byte> Read(3);
        ASSERT_TRUE(WriteWholeFile(Path, Written, Error)) << Error.Code;
        ASSERT_TRUE(ReadWholeFile(Path, Read, Error)) << Error.Code;
        EXPECT_EQ(Read, Written);
        EXPECT_EQ(Error.Code, 0);
    }
    std::vector<TDirEntry> Entries;
    ASSERT_TRUE(ListDirectory(Directory.Path(), Entries, Error));
    ASSERT_EQ(Entries.size(), 1u); // no helper file is left
    EXPECT_EQ(Directory / Entries[0].Name, Path);
    EXPECT_EQ(Entries[0].Size, 17u);
    EXPECT_FALSE(Entries[0].IsDirectory);
}

TEST(Files, DirectoriesAreNoFiles) {
    const TTemporaryDirectory Directory;
    const std::u16string Inner = Directory / u"inner";
    TError Error;
    std::vector<TDirEntry> Entries;
    std::vector<std::byte> Content(3);
    ASSERT_TRUE(MakeDirectory(Inner, Error));
    EXPECT_TRUE(DirectoryExists(Inner));
    EXPECT_FALSE(FileExists(Inner));
    ASSERT_TRUE(ListDirectory(Directory.Path(), Entries, Error));
    ASSERT_EQ(Entries.size(), 1u);
    EXPECT_TRUE(Entries[0].IsDirectory);
    EXPECT_EQ(Entries[0].Size, 0u);

    const auto Refused = [&Error](bool AResult) { return !AResult && Error.Code != 0; };
    EXPECT_TRUE(Refused(MakeDirectory(Inner, Error)));
    EXPECT_TRUE(Refused(RemoveFile(Inner, Error)));
    EXPECT_TRUE(Refused(ReadWholeFile(Inner, Content, Error)));
    EXPECT_TRUE(Content.empty());
    EXPECT_TRUE(Refused(WriteWholeFile(Inner, Bytes(3), Error)));
    EXPECT_TRUE(Refused(ReadWholeFile(Directory / u"missing", Content, Error)));
    EXPECT_TRUE(Refused(WriteWholeFile(Directory / u"missing/file", Bytes(3), Error)));
    EXPECT_TRUE(Refused(ListDirectory(Directory / u"missing", Entries, Error)));
    EXPECT_TRUE(Entries.empty());
    EXPECT_TRUE(Refused(RemoveFile(Directory / u"missing", Error)));
    EXPECT_TRUE(RemoveEmptyDirectory(Inner, Error));
    EXPECT_FALSE(DirectoryExists(Inner));
}

TEST(Files, NulInAPathIsRefused) {
    const TTemporaryDirectory Directory;
    const std::u16string Good = Directory / u"file";
    const std::u16string Bad = Good + std::u16string(1, u'\0') + u"x";
    TError Error;
    std::vector<std::byte> Content;
    std::vector<TDirEntry> Entries;
    ASSERT_TRUE(WriteWholeFile(Good, Bytes(5), Error));
    EXPECT_FALSE(WriteWholeFile(Bad, Bytes(3), Error));
    EXPECT_FALSE(ReadWholeFile(Bad, Content, Error));
    EXPECT_FALSE(RemoveFile(Bad, Error));
    EXPECT_FALSE(MakeDirectory(Bad, Error));
    EXPECT_FALSE(ListDirectory(Bad, Entries, Error));
    EXPECT_NE(Error.Code, 0);
    EXPECT_FALSE(FileExists(Bad));
    EXPECT_TRUE(ReadWholeFile(Good, Content, Error));
    EXPECT_EQ(Content, Bytes(5));
}

TEST(Files, PathsMayBeLong) {
    const TTemporaryDirectory Directory;
    std::vector<std::u16string> Made;
    std::u16string Path = Directory.Path();
    TError Error;
    while (Path.size() < 700) {
        Path += u"/" + std::u16string(97, u'd');
        ASSERT_TRUE(MakeDirectory(Path, Error)) << Path.size() << ' ' << Error.Code;
        Made.push_back(Path);
        const std::u16string File = Path + u"/file.txt";
        std::vector<std::byte> Content;
        std::vector<TDirEntry> Entries;
        ASSERT_TRUE(WriteWholeFile(File, Bytes(9), Error)) << File.size() << ' ' << Error.Code;
        ASSERT_TRUE(WriteWholeFile(File, Bytes(8), Error)) << File.size() << ' ' << Error.Code;
        EXPECT_TRUE(ReadWholeFile(File, Content, Error) && Content == Bytes(8));
        EXPECT_TRUE(ListDirectory(Path, Entries, Error) && Entries.size() == 1);
        EXPECT_TRUE(FileExists(File));
        EXPECT_TRUE(RemoveFile(File, Error));
        EXPECT_FALSE(FileExists(File));
    }
    for (; !Made.empty(); Made.pop_back())
        EXPECT_TRUE(RemoveEmptyDirectory(Made.back(), Error)) << Error.Code;
}

TEST(Files, ReaderThreadsSeeWholeContentsOnly) {
    const TTemporaryDirectory Directory;
    const std::u16string Path = Directory / u"shared";
    const std::vector<std::byte> Contents[] = {Bytes(60'000, 1), Bytes(90'000, 2)};
    TError Error;
    ASSERT_TRUE(WriteWholeFile(Path, Contents[0], Error));
    std::atomic<bool> Stop = false;
    std::atomic<int> Torn = 0;
    std::atomic<int> Reads = 0;
    std::thread Reader([&] {
        while (!Stop) {
            std::vector<std::byte> Read;
            TError ReadError;
            if (!ReadWholeFile(Path, Read, ReadError))
                continue;
            ++Reads;
            if (Read != Contents[0] && Read != Contents[1])
                ++Torn;
        }
    });
    int Writes = 0; // Windows may refuse some while the reader has the file open
    for (size_t Round = 0; Round < 200 || Reads == 0; ++Round)
        Writes += WriteWholeFile(Path, Contents[Round % 2], Error) ? 1 : 0;
    Stop = true;
    Reader.join();
    EXPECT_EQ(Torn, 0);
    EXPECT_GT(Writes, 0);
}

} // namespace
} // namespace qz::platform
