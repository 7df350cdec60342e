#include <csignal>

#include <gtest/gtest.h>
#include <sys/resource.h>

#include "tests/support/TemporaryDirectory.h"
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/streams/Streams.h>

namespace qz {
namespace {

// Files of this process end at so many bytes, as if the disk were full.
class TFullDisk {
public:
    explicit TFullDisk(rlim_t ABytes) {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &FOld);
        const rlimit Limit{ABytes, FOld.rlim_max};
        setrlimit(RLIMIT_FSIZE, &Limit);
    }
    TFullDisk(const TFullDisk&) = delete;
    TFullDisk& operator=(const TFullDisk&) = delete;
    ~TFullDisk() { setrlimit(RLIMIT_FSIZE, &FOld); }

private:
    rlimit FOld{};
};

TEST(FullDisk, AFileStreamTellsHowMuchArrivedAndThenWhy) {
    const platform::TTemporaryDirectory Directory;
    TFileStream File(Directory / u"file", fmCreate);
    const TFullDisk Full(1000);
    const std::string Text(600, 'x');
    EXPECT_EQ(File.Write(Text.data(), 600), 600);
    EXPECT_EQ(File.Write(Text.data(), 600), 400);
    EXPECT_THROW(File.Write(Text.data(), 600), EWriteError);
    EXPECT_EQ(File.Size(), 1000);
}

TEST(FullDisk, ASavedFileIsTheOldOneOrTheNewOne) {
    const platform::TTemporaryDirectory Directory;
    const UnicodeString Name(Directory / u"file");
    TMemoryStream Stream;
    Stream.WriteBuffer("old", 3);
    Stream.SaveToFile(Name);
    Stream.SetSize(5000);
    {
        const TFullDisk Full(1000);
        EXPECT_THROW(Stream.SaveToFile(Name), EFCreateError);
    }
    TMemoryStream Saved;
    Saved.LoadFromFile(Name);
    EXPECT_EQ(std::string(static_cast<const char*>(Saved.Memory()), 3), "old");
    EXPECT_THROW(Stream.SaveToFile(u"/dev/full"), EFCreateError);
    EXPECT_EQ(platform::ListDirectory(Directory.Path())->size(), 1u) << "nothing is left beside it";
}

} // namespace
} // namespace qz
