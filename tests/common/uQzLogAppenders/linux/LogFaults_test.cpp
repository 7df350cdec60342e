// Log files under faults: a killed process, a full disk, a removed file, forks, and several processes with
// one family.
#include <gtest/gtest.h>

#include <fcntl.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <set>
#include <thread>

#include "tests/common/support/LogFiles.h"
#include "tests/common/support/MemoryAppender.h"
#include "tests/common/support/linux/InChild.h"
#include "tests/support/OrdinaryRights.h"
#include <qz/common/uQzLogger.h>
#include <qz/runtime/text/Format.h>

namespace qz {
namespace {

class LogFaults : public testing::Test {
protected:
    std::string Native(const UnicodeString& AFile) const { return Utf16ToUtf8(Files.Path(AFile)); }
    TLogFiles Files;
    const TLogTree Tree;
};

// Each thread reports by the pipe which of its logging calls has returned.
TEST_F(LogFaults, KilledAtAnyMoment) {
    for (int Round = 0; Round < 12; ++Round) {
        const UnicodeString Name = Format(u"%d.log", {Round});
        int Pipe[2];
        ASSERT_EQ(pipe(Pipe), 0);
        const pid_t Child = fork();
        ASSERT_GE(Child, 0);
        if (Child == 0) {
            CloseRootLogger();
            Logger().AddAppender(Files.Make<TQzFileAppender>(Name).Get());
            for (int T = 0; T < 4; ++T)
                std::thread([T, &Pipe] {
                    for (int I = 0;; ++I) {
                        Logger().Info(Format(u"%d:%d", {T, I}));
                        const int Told[2] = {T, I};
                        if (write(Pipe[1], Told, sizeof Told) < 0)
                            return;
                    }
                }).detach();
            for (;;)
                pause();
        }
        close(Pipe[1]);
        std::map<int, int> Returned, Next;
        int Told[2];
        for (int I = 0; read(Pipe[0], Told, sizeof Told) > 0; ++I) {
            Returned[Told[0]] = Told[1];
            if (I == 200 + 97 * Round)
                kill(Child, SIGKILL);
        }
        close(Pipe[0]);
        ASSERT_TRUE(WIFSIGNALED(AwaitChild(Child)));
        CountInOrder(Files.Text(Name), Next);
        for (const auto& [Thread, Number] : Returned)
            EXPECT_GT(Next[Thread], Number);
    }
}

// The limit falls within the header, within a line and between two; its signal would end the process.
TEST_F(LogFaults, AFileThatMayNotGrow) {
    for (const rlim_t Limit : {0u, 2u, 100u, 101u, 102u, 106u}) {
        for (const int BufferSize : {0, 32}) {
            const UnicodeString Name = Format(u"%d.%d.log", {static_cast<int>(Limit), BufferSize});
            InChild([&] {
                CloseRootLogger();
                rlimit Old;
                getrlimit(RLIMIT_FSIZE, &Old);
                const rlimit Low{Limit, Old.rlim_max};
                setrlimit(RLIMIT_FSIZE, &Low);
                const Ref<TQzFileAppender> File = Files.Make<TQzFileAppender>(Name);
                File->SetBufferSize(BufferSize);
                Logger().AddAppender(File.Get());
                const std::uint64_t Before = QzDroppedLogMessages();
                for (int I = 0; I < 50; ++I)
                    Logger().Info(Format(u"0:%d", {I}));
                const bool HasDropped = QzDroppedLogMessages() > Before;
                setrlimit(RLIMIT_FSIZE, &Old);
                Logger().Info(u"room");
                File->Flush();
                return HasDropped;
            });
            std::string Text = Files.Text(Name);
            ASSERT_TRUE(Text.starts_with("head|") && Text.ends_with("|room|")) << Text;
            std::map<int, int> Next;
            CountInOrder(Text.substr(0, Text.size() - 5), Next);
        }
    }
}

TEST_F(LogFaults, AFullDevice) {
    ASSERT_EQ(symlink("/dev/full", Native(u"full.log").c_str()), 0);
    const Ref<TQzFileAppender> File = Files.Make<TQzFileAppender>(u"full.log");
    Logger().AddAppender(File.Get());
    const std::uint64_t Before = QzDroppedLogMessages();
    for (int I = 0; I < 10; ++I)
        Logger().Info(u"x");
    EXPECT_EQ(QzDroppedLogMessages(), Before + 10);
    // lines in the buffer at the end are counted as lost
    File->SetBufferSize(100);
    for (int I = 0; I < 3; ++I)
        Logger().Info(u"waits");
    EXPECT_THROW(File->Flush(), EWriteError);
    EXPECT_THROW(File->Close(), EWriteError);
    EXPECT_EQ(QzDroppedLogMessages(), Before + 13);
}

TEST_F(LogFaults, AFileThatIsTakenAway) {
    Logger().AddAppender(Files.Make<TQzFileAppender>().Get());
    Logger().Info(u"one");
    ASSERT_EQ(rename(Native(u"app.log").c_str(), Native(u"old.log").c_str()), 0);
    platform::SleepMs(1100);
    Logger().Info(u"two");
    EXPECT_EQ(Files.Text(u"old.log"), "head|one|foot");
    EXPECT_EQ(Files.Text(), "head|two|");
    ASSERT_EQ(unlink(Native(u"app.log").c_str()), 0);
    platform::SleepMs(1100);
    Logger().Info(u"three");
    EXPECT_EQ(Files.Text(), "head|three|");
    // truncated by another program
    ASSERT_EQ(truncate(Native(u"app.log").c_str(), 0), 0);
    Logger().Info(u"four");
    EXPECT_EQ(Files.Text(), "four|");
}

TEST(LogRights, ADirectoryWithoutRight) {
    const TOrdinaryRights Rights;
    {
        TLogFiles Files;
        const TLogTree Tree;
        const Ref<TQzRollingFileAppender> File = Files.Make<TQzRollingFileAppender>();
        File->SetMaxFileSize(10);
        Logger().AddAppender(File.Get());
        Logger().Info(u"0123456789");
        const std::string Directory = Utf16ToUtf8(Files.Path(u""));
        ASSERT_EQ(chmod(Directory.c_str(), 0500), 0);
        Logger().Info(u"stays");
        Logger().Info(u"too");
        EXPECT_EQ(Files.Text(), "head|0123456789|footstays|too|"); // one attempt a second
        ASSERT_EQ(chmod(Directory.c_str(), 0700), 0);
        platform::SleepMs(1100);
        Logger().Info(u"rolls");
        EXPECT_EQ(Files.Text(), "head|rolls|");
    }
}

// Each line is whole and occurs once. A line that was not counted as lost is in the family, unless one
// process has deleted a backup as one too many while another process was renaming it.
TEST_F(LogFaults, ProcessesThatRollOneFamily) {
    std::vector<pid_t> Children;
    for (int P = 0; P < 3; ++P) {
        const pid_t Child = fork();
        ASSERT_GE(Child, 0);
        if (Child == 0) {
            CloseRootLogger();
            const Ref<TQzRollingFileAppender> File = Files.Make<TQzRollingFileAppender>();
            File->SetMaxFileSize(2000);
            File->SetMaxBackupCount(50);
            Logger().AddAppender(File.Get());
            const std::uint64_t Before = QzDroppedLogMessages();
            for (int I = 0; I < 2000; ++I)
                Logger().Info(Format(u"<%d:%d>", {P, I}));
            File->Close();
            _exit(static_cast<int>((QzDroppedLogMessages() - Before) / 32)); // a byte for up to 2,000
        }
        Children.push_back(Child);
    }
    std::size_t Lost = 0;
    for (const pid_t Child : Children) {
        const int Status = AwaitChild(Child);
        ASSERT_TRUE(WIFEXITED(Status));
        Lost += static_cast<std::size_t>(WEXITSTATUS(Status)) * 32;
    }
    std::set<std::string> Seen;
    std::istringstream Names(Files.Names());
    for (std::string Name; Names >> Name;)
        for (std::string Line : LinesOf(Files.Text(Name))) {
            while (Line.starts_with("foot") || Line.starts_with("head"))
                Line.erase(0, 4);
            int P = 0, I = 0, Length = 0;
            if (Line.empty())
                continue;
            ASSERT_EQ(std::sscanf(Line.c_str(), "<%d:%d>%n", &P, &I, &Length), 2) << Line;
            ASSERT_EQ(static_cast<std::size_t>(Length), Line.size()) << Line;
            EXPECT_TRUE(Seen.insert(Line).second) << Line;
        }
    EXPECT_LE(Seen.size() + Lost, 6000u);
    EXPECT_GT(Seen.size() + Lost, 5000u); // a file holds 220
}

// Lines in the buffer are the parent's. Parent and child write to one file after the fork.
TEST_F(LogFaults, AChildGoesOn) {
    const Ref<TQzFileAppender> File = Files.Make<TQzFileAppender>();
    File->SetBufferSize(4096);
    Logger().AddAppender(File.Get());
    Logger().Info(u"waits");
    InChild([&] {
        Logger().Info(u"of the child");
        for (int I = 0; I < 6000 && Files.Text().find("|of the child|") == std::string::npos; ++I)
            platform::SleepMs(10); // by the flusher of the child
        return true;
    });
    Logger().Warn(u"of the parent");
    std::vector<std::string> Lines = LinesOf(Files.Text());
    std::sort(Lines.begin(), Lines.end());
    EXPECT_EQ(Lines, (std::vector<std::string>{"head", "of the child", "of the parent", "waits"}));
}

// Lines reach the file at the end of the program, also from the destructors of static objects.
TEST_F(LogFaults, TheEndOfTheProgram) {
    struct TLast {
        ~TLast() {
            if (!Words.IsEmpty())
                Logger().Info(Words);
        }
        UnicodeString Words;
    };
    static TLast Early; // destroyed after the root
    InChild([&]() -> bool {
        CloseRootLogger();
        static TLast Late;
        const Ref<TQzFileAppender> File = Files.Make<TQzFileAppender>();
        File->SetBufferSize(4096);
        Logger().AddAppender(File.Get());
        Logger().Info(u"waits");
        Early.Words = u"early";
        Late.Words = u"late";
        Logger().GetLogger("kept").Detach()->AddAppender(File.Get()); // this logger outlives the root
        std::exit(0);
    });
    EXPECT_TRUE(Files.Text().starts_with("head|waits|late|")) << Files.Text();
}

} // namespace
} // namespace qz
