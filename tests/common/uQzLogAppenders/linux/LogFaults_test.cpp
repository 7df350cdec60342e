// Log files under faults: a killed process, a full disk, a removed file, forks, and several processes with
// one family.
#include <gtest/gtest.h>

#include <fcntl.h>
#include <signal.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <map>
#include <set>
#include <sstream>
#include <thread>

#include "tests/common/support/LogFiles.h"
#include "tests/common/support/MemoryAppender.h"
#include "tests/common/support/linux/InChild.h"
#include "tests/support/OrdinaryRights.h"
#include <qz/common/uQzLogger.h>
#include <qz/common/uQzLogger/LogDrops.h>
#include <qz/platform/Threads.h>
#include <qz/runtime/text/Format.h>

namespace qz {
namespace {

std::vector<std::string> LinesOf(const std::string& AText) {
    std::vector<std::string> Result;
    std::istringstream Stream(AText);
    for (std::string Line; std::getline(Stream, Line, '|');)
        Result.push_back(Line);
    return Result;
}

// Each thread reports by the pipe which of its logging calls has returned.
TEST(LogFaults, KilledAtAnyMoment) {
    constexpr int cThreads = 4;
    for (int Round = 0; Round < 12; ++Round) {
        TLogFiles Files;
        int Pipe[2];
        ASSERT_EQ(pipe(Pipe), 0);
        const pid_t Child = fork();
        ASSERT_GE(Child, 0);
        if (Child == 0) {
            CloseRootLogger();
            Logger().AddAppender(Files.Make<TQzFileAppender>().Get());
            for (int T = 1; T < cThreads; ++T)
                std::thread([T, &Pipe] {
                    for (int I = 0;; ++I) {
                        Logger().Info(Format(u"%d:%d", {T, I}));
                        const int Told[2] = {T, I};
                        if (write(Pipe[1], Told, sizeof Told) < 0)
                            return;
                    }
                }).detach();
            for (;;)
                Logger().Info(u"0:0");
        }
        close(Pipe[1]);
        int Returned[cThreads] = {-1, -1, -1, -1};
        int Told[2];
        for (int I = 0; I < 200 + 97 * Round && read(Pipe[0], Told, sizeof Told) > 0; ++I)
            Returned[Told[0]] = Told[1];
        kill(Child, SIGKILL);
        while (read(Pipe[0], Told, sizeof Told) > 0)
            Returned[Told[0]] = Told[1];
        close(Pipe[0]);
        ASSERT_TRUE(WIFSIGNALED(AwaitChild(Child)));
        int Next[cThreads] = {};
        const std::vector<std::string> Lines = LinesOf(Files.Text());
        ASSERT_EQ(Lines.at(0), "head");
        for (std::size_t I = 1; I < Lines.size(); ++I) {
            int T = 0, Line = 0;
            ASSERT_EQ(std::sscanf(Lines[I].c_str(), "%d:%d", &T, &Line), 2) << Lines[I];
            if (T != 0) {
                ASSERT_EQ(Line, Next[T]++);
            }
        }
        for (int T = 1; T < cThreads; ++T)
            EXPECT_GT(Next[T], Returned[T]);
    }
}

// The limit falls within a line and between two; its signal would end the process.
TEST(LogFaults, AFileThatMayNotGrow) {
    for (const rlim_t Limit : {100u, 101u, 102u, 103u, 106u}) {
        for (const int BufferSize : {0, 32}) {
            TLogFiles Files;
            InChild([&] {
                CloseRootLogger();
                rlimit Old;
                getrlimit(RLIMIT_FSIZE, &Old);
                const rlimit Low{Limit, Old.rlim_max};
                setrlimit(RLIMIT_FSIZE, &Low);
                const Ref<TQzFileAppender> File = Files.Make<TQzFileAppender>();
                File->SetBufferSize(BufferSize);
                Logger().AddAppender(File.Get());
                const std::uint64_t Before = QzDroppedLogMessages();
                for (int I = 10; I < 60; ++I)
                    Logger().Info(Format(u"a line %d", {I}));
                const bool HasDropped = QzDroppedLogMessages() > Before;
                setrlimit(RLIMIT_FSIZE, &Old);
                Logger().Info(u"room");
                File->Flush();
                return HasDropped;
            });
            const std::vector<std::string> Lines = LinesOf(Files.Text());
            ASSERT_GE(Lines.size(), 5u) << Files.Text();
            EXPECT_EQ(Lines.back(), "room");
            for (std::size_t I = 1; I + 1 < Lines.size(); ++I)
                EXPECT_EQ(Lines[I], "a line " + std::to_string(I + 9));
        }
    }
}

TEST(LogFaults, AFullDevice) {
    TLogFiles Files;
    ASSERT_EQ(symlink("/dev/full", Utf16ToUtf8(Files.Path(u"full.log")).c_str()), 0);
    const TLogTree Tree;
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

TEST(LogFaults, AFullDisk) {
    TLogFiles Files;
    const std::string Disk = Utf16ToUtf8(Files.Path(u"disk"));
    mkdir(Disk.c_str(), 0700);
    if (mount("none", Disk.c_str(), "tmpfs", 0, "size=64k") != 0)
        GTEST_SKIP() << "mounting a small disk is not allowed here";
    {
        const TLogTree Tree;
        const Ref<TQzFileAppender> File = Files.Make<TQzFileAppender>(u"disk/app.log");
        Logger().AddAppender(File.Get());
        const std::uint64_t Before = QzDroppedLogMessages();
        for (int I = 10000; I < 16000; ++I)
            Logger().Info(Format(u"a line %d of some length", {I}));
        const std::uint64_t Lost = QzDroppedLogMessages() - Before;
        EXPECT_GT(Lost, 0u);
        const std::vector<std::string> Lines = LinesOf(Files.Text(u"disk/app.log"));
        EXPECT_EQ(Lines.size() - 1 + Lost, 6000u);
        for (std::size_t I = 1; I < Lines.size(); ++I)
            EXPECT_TRUE(Lines[I].starts_with("a line 1") && Lines[I].ends_with(" of some length"))
                << Lines[I];
        ASSERT_EQ(mount("none", Disk.c_str(), "tmpfs", MS_REMOUNT, "size=256k"), 0);
        Logger().Info(u"room");
        EXPECT_TRUE(Files.Text(u"disk/app.log").ends_with("|room|"));
        File->Close();
    }
    EXPECT_EQ(umount(Disk.c_str()), 0);
}

TEST(LogFaults, AFileThatIsTakenAway) {
    TLogFiles Files;
    const TLogTree Tree;
    Logger().AddAppender(Files.Make<TQzFileAppender>().Get());
    Logger().Info(u"one");
    ASSERT_EQ(
        rename(Utf16ToUtf8(Files.Path(u"app.log")).c_str(), Utf16ToUtf8(Files.Path(u"old.log")).c_str()), 0);
    platform::SleepMs(1100);
    Logger().Info(u"two");
    EXPECT_EQ(Files.Text(u"old.log"), "head|one|foot");
    EXPECT_EQ(Files.Text(), "head|two|");
    ASSERT_EQ(unlink(Utf16ToUtf8(Files.Path(u"app.log")).c_str()), 0);
    platform::SleepMs(1100);
    Logger().Info(u"three");
    EXPECT_EQ(Files.Text(), "head|three|");
    // truncated by another program
    ASSERT_EQ(truncate(Utf16ToUtf8(Files.Path(u"app.log")).c_str(), 0), 0);
    Logger().Info(u"four");
    EXPECT_EQ(Files.Text(), "four|");
}

TEST(LogFaults, ADirectoryWithoutRight) {
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

// The family has each line once and in order.
TEST(LogFaults, ThreadsThatRollOver) {
    constexpr int cThreads = 8;
    constexpr int cLines = 4000;
    TLogFiles Files;
    {
        const TLogTree Tree;
        const Ref<TQzRollingFileAppender> File = Files.Make<TQzRollingFileAppender>();
        File->SetMaxFileSize(64 << 10);
        File->SetMaxBackupCount(100);
        Logger().AddAppender(File.Get());
        std::vector<std::thread> Threads;
        for (int T = 0; T < cThreads; ++T)
            Threads.emplace_back([T] {
                for (int I = 0; I < cLines; ++I)
                    Logger().Info(Format(u"%d:%d of a line", {T, I}));
            });
        for (std::thread& Thread : Threads)
            Thread.join();
        File->Close();
    }
    int Next[cThreads] = {};
    int Number = 99;
    for (; Number >= 0; --Number) {
        const std::string Text =
            Files.Text(Number == 0 ? UnicodeString(u"app.log") : Format(u"app.%d.log", {Number}));
        if (Text == "-")
            continue;
        const std::vector<std::string> Lines = LinesOf(Text);
        ASSERT_EQ(Lines.front(), "head");
        ASSERT_EQ(Lines.back(), "foot");
        for (std::size_t I = 1; I + 1 < Lines.size(); ++I) {
            int T = 0, Line = 0;
            ASSERT_EQ(std::sscanf(Lines[I].c_str(), "%d:%d of a line", &T, &Line), 2) << Lines[I];
            ASSERT_EQ(Line, Next[T]++);
        }
    }
    for (const int Count : Next)
        EXPECT_EQ(Count, cLines);
}

// Each line is whole and occurs once. A line that was not counted as lost is in the family, unless one
// process has deleted a backup as one too many while another process was renaming it.
TEST(LogFaults, ProcessesThatRollOneFamily) {
    TLogFiles Files;
    int Pipe[2];
    ASSERT_EQ(pipe(Pipe), 0);
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
            const std::uint64_t Lost = QzDroppedLogMessages() - Before;
            _exit(write(Pipe[1], &Lost, sizeof Lost) == sizeof Lost ? 0 : 1);
        }
        Children.push_back(Child);
    }
    for (const pid_t Child : Children) {
        EXPECT_EQ(AwaitChild(Child), 0);
    }
    close(Pipe[1]);
    std::set<std::string> Seen;
    for (const std::string& Name : LinesOf([&] {
             std::string Names = Files.Names();
             std::replace(Names.begin(), Names.end(), ' ', '|');
             return Names;
         }())) {
        for (std::string Line : LinesOf(Files.Text(Name))) {
            while (Line.starts_with("foot") || Line.starts_with("head"))
                Line.erase(0, 4);
            if (Line.empty())
                continue;
            int P = 0, I = 0, Length = 0;
            ASSERT_EQ(std::sscanf(Line.c_str(), "<%d:%d>%n", &P, &I, &Length), 2) << Line;
            ASSERT_EQ(static_cast<std::size_t>(Length), Line.size()) << Line;
            EXPECT_TRUE(Seen.insert(Line).second) << Line;
        }
    }
    std::uint64_t Lost = 0;
    for (std::uint64_t One = 0; Lost != UINT64_MAX && read(Pipe[0], &One, sizeof One) > 0;)
        Lost += One;
    close(Pipe[0]);
    EXPECT_LE(Seen.size() + Lost, 6000u);
    EXPECT_GT(Seen.size() + Lost, 5000u); // a file holds 220
}

// A child that lives on does not disturb the parent and writes no footer to its file.
TEST(LogFaults, AChildThatLivesOn) {
    TLogFiles Files;
    const TLogTree Tree;
    const Ref<TQzRollingFileAppender> File = Files.Make<TQzRollingFileAppender>();
    Logger().AddAppender(File.Get());
    Logger().Info(u"one");
    int Pipe[2];
    ASSERT_EQ(pipe(Pipe), 0);
    const pid_t Child = fork();
    ASSERT_GE(Child, 0);
    if (Child == 0) {
        close(Pipe[1]);
        char Byte = 0;
        while (read(Pipe[0], &Byte, 1) > 0) {}
        Logger().Info(u"of the child"); // to the file that has the name by then
        File->Close();
        _exit(0);
    }
    File->Close();
    Logger().Info(u"two");
    File->RollOver();
    Logger().Info(u"three");
    platform::SleepMs(1100);
    close(Pipe[1]);
    EXPECT_EQ(AwaitChild(Child), 0);
    close(Pipe[0]);
    Logger().Info(u"four");
    EXPECT_EQ(Files.Text(u"app.1.log"), "head|one|foottwo|foot");
    EXPECT_EQ(Files.Text(), "head|three|of the child|footfour|");
}

TEST(LogFaults, AHeaderThatFindsNoRoom) {
    TLogFiles Files;
    InChild([&] {
        CloseRootLogger();
        rlimit Old;
        getrlimit(RLIMIT_FSIZE, &Old);
        const rlimit None{0, Old.rlim_max};
        setrlimit(RLIMIT_FSIZE, &None);
        const Ref<TQzFileAppender> File = Files.Make<TQzFileAppender>();
        Logger().AddAppender(File.Get());
        Logger().Info(u"lost");
        setrlimit(RLIMIT_FSIZE, &Old);
        Logger().Info(u"room");
        return true;
    });
    EXPECT_EQ(Files.Text(), "head|room|");
}

// Lines in the buffer are the parent's. Parent and child write to one file after the fork.
TEST(LogFaults, AChildGoesOn) {
    TLogFiles Files;
    const TLogTree Tree;
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
TEST(LogFaults, TheEndOfTheProgram) {
    struct TLast {
        ~TLast() {
            if (!Words.IsEmpty())
                Logger().Info(Words);
        }
        UnicodeString Words;
    };
    static TLast Early; // destroyed after the root
    TLogFiles Files;
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
