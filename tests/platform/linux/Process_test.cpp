#include <atomic>
#include <chrono>
#include <csignal>
#include <string>
#include <thread>

#include <pthread.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <qz/platform/Debugger.h>
#include <qz/platform/Environment.h>
#include <qz/platform/Threads.h>

namespace qz::platform {
namespace {

TEST(DebuggerLinux, TracedProcessNoticesIt) {
    constexpr int cCannotTrace = 9;
    const pid_t Child = fork();
    ASSERT_GE(Child, 0);
    if (Child == 0) {
        if (IsDebuggerPresent())
            _exit(1);
        if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
            _exit(cCannotTrace);
        _exit(IsDebuggerPresent() ? 0 : 2);
    }
    int Status = -1;
    ASSERT_EQ(waitpid(Child, &Status, 0), Child);
    ASSERT_TRUE(WIFEXITED(Status));
    if (WEXITSTATUS(Status) == cCannotTrace)
        GTEST_SKIP() << "this system forbids tracing";
    EXPECT_EQ(WEXITSTATUS(Status), 0);
}

// The alarm ends a child that waits for ever.
TEST(EnvironmentLinux, ChildOfForkCanAsk) {
    std::atomic<bool> Stop{false};
    std::thread Asks([&] {
        while (!Stop)
            GetEnvironment(u"PATH");
    });
    int Status = 0;
    for (int Round = 0; Round < 100 && Status == 0; ++Round) {
        const pid_t Child = fork();
        ASSERT_GE(Child, 0);
        if (Child == 0) {
            alarm(20);
            GetEnvironment(u"PATH");
            _exit(0);
        }
        waitpid(Child, &Status, 0);
    }
    EXPECT_EQ(Status, 0);
    Stop = true;
    Asks.join();
}

TEST(ThreadsLinux, ChildOfForkHasItsOwnId) {
    // The second thread makes sure that it is the forking thread's id which the child forgets.
    std::thread([] {
        const uint32_t Parent = CurrentThreadId();
        EXPECT_EQ(Parent, static_cast<uint32_t>(gettid()));
        const pid_t Child = fork();
        ASSERT_GE(Child, 0);
        if (Child == 0)
            _exit(CurrentThreadId() == static_cast<uint32_t>(getpid()) ? 0 : 1);
        int Status = -1;
        ASSERT_EQ(waitpid(Child, &Status, 0), Child);
        EXPECT_EQ(Status, 0);
        EXPECT_EQ(CurrentThreadId(), Parent);
    }).join();
}

TEST(ThreadsLinux, NameIsCutBetweenCharacters) {
    struct TCase {
        std::string Name, Kept;
    };
    const TCase Cases[] = {
        {"worker", "worker"},
        {"123456789012345", "123456789012345"},
        {"1234567890123456", "123456789012345"},
        {"12345678901234\xC3\xA4", "12345678901234"},
        {"1234567890123\xC3\xA4", "1234567890123\xC3\xA4"},
        {"123456789012\xF0\x9F\x98\x80", "123456789012"},
        {std::string("a\0b", 3), "a"},
        {std::string(40, '\x80'), ""}, // nothing but torn characters
    };
    std::thread([&Cases] {
        for (const TCase& Case : Cases) {
            SetCurrentThreadName(Case.Name);
            char Name[16] = {};
            pthread_getname_np(pthread_self(), Name, sizeof Name);
            EXPECT_EQ(Name, Case.Kept) << Case.Name;
        }
    }).join();
}

TEST(ThreadsLinux, SignalsDoNotCutSleepShort) {
    using std::chrono::steady_clock;
    struct sigaction Ignore = {};
    struct sigaction Old;
    Ignore.sa_handler = [](int) {};
    sigaction(SIGUSR1, &Ignore, &Old);
    std::atomic<bool> Done = false;
    steady_clock::duration Slept{};
    std::thread Sleeper([&] {
        const auto Start = steady_clock::now();
        SleepMs(120);
        Slept = steady_clock::now() - Start;
        Done = true;
    });
    while (!Done) {
        pthread_kill(Sleeper.native_handle(), SIGUSR1);
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    Sleeper.join();
    sigaction(SIGUSR1, &Old, nullptr);
    EXPECT_GE(Slept, std::chrono::milliseconds(120));
}

} // namespace
} // namespace qz::platform
