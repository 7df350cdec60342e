#include <qz/platform/Threads.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <string>
#include <thread>

#include <pthread.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

namespace qz::platform {
namespace {

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
        std::string Name;
        std::string Kept;
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
