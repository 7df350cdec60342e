#include <gtest/gtest.h>

#include <cstdlib>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/common/support/LogFiles.h"
#include "tests/common/support/MemoryAppender.h"
#include "tests/common/support/linux/InChild.h"

namespace qz {
namespace {

// The file is removed, and the program has another current directory by then.
TEST(LogFileNames, ARelativeNameIsThatOfItsOpening) {
    TLogFiles Files;
    InChild([&Files] {
        const Ref<TQzFileAppender> File = Files.Make<TQzFileAppender>();
        if (chdir(std::string(Files.Path(u"")).c_str()) != 0)
            return false;
        File->SetFileName(u"own.log");
        Say(File, u"one");
        if (unlink("own.log") != 0 || chdir("/") != 0)
            return false;
        for (int Try = 0; Try < 6000 && Files.Text(u"own.log") == "-"; ++Try) {
            Say(File, u"two");
            platform::SleepMs(10);
        }
        return Files.Text(u"own.log") == "head|two|";
    });
}

// A reader that never reads: one thread is writing to the pipe, and another file has lines in its buffer.
TEST(LogFileNames, AFullPipeDoesNotKeepTheProgramFromEnding) {
    TLogFiles Files;
    const std::string Pipe(Files.Path(u"pipe.log"));
    ASSERT_EQ(mkfifo(Pipe.c_str(), 0600), 0);
    const int Reader = open(Pipe.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    InChild([&Files]() -> bool {
        const Ref<TQzFileAppender> Stuck = Files.Make<TQzFileAppender>(u"pipe.log");
        const Ref<TQzFileAppender> Sound = Files.Make<TQzFileAppender>();
        Sound->SetBufferSize(1000);
        Logger().AddAppender(Stuck.Get());
        Say(Sound, u"kept");
        std::thread([] {
            for (;;)
                Logger().Info(UnicodeString(10000, u'x'));
        }).detach();
        platform::SleepMs(100);
        std::exit(0);
    });
    EXPECT_EQ(Files.Text(), "head|kept|");
    close(Reader);
}

} // namespace
} // namespace qz
